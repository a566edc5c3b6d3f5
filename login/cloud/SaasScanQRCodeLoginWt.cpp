#include "login/cloud/SaasScanQRCodeLoginWt.h"

#include "host/kelvra_saas/LoginWorker.h"
#include "login/cloud/CloudPageParts.h"
#include "login/frame/Alerts.h"
#include "login/frame/CloudAnswer.h"
#include "login/frame/LoginSignals.h"
#include "ui_SaasScanQRCodeLoginWt.h"

#include <QEvent>

using kelvra_saas::Response;

namespace kelvra_login {

namespace {

constexpr int panelSpacing = 18; // pixels
constexpr int codeSize = 178;    // pixels
constexpr int newCodeDelayMs = 1000;

} // namespace

SaasScanQRCodeLoginWt::SaasScanQRCodeLoginWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::SaasScanQRCodeLoginWt>>())
{
    ui->setupUi(this);
    ui->QRCodePanel->setLayoutSpacing(panelSpacing);
    ui->QRCodePanel->setQRCodeSize(codeSize);
    ui->verificationCodeLogin->installEventFilter(this);
    ui->passwordLogin->installEventFilter(this);
    ui->handlers.connect(ui->QRCodePanel, &QRCodeLoginPanel::signalScanQRCodeLoginSuccess, this,
                         &SaasScanQRCodeLoginWt::queryAccount);
}

SaasScanQRCodeLoginWt::~SaasScanQRCodeLoginWt() = default;

void SaasScanQRCodeLoginWt::queryAccount()
{
    // Whatever id the answer carries: the scan has been confirmed, and an account is an account.
    kelvra_saas::LoginWorker::_instance().getAccountAfterScanQRCode(
        newRequestId(), firstAnswer(ui->handlers, [this](const Response &response, const QString &account) {
            accountAnswered(response, account);
        }));
}

void SaasScanQRCodeLoginWt::accountAnswered(const Response &response, const QString &account)
{
    if (response.code == kelvra_saas::successCode) {
        finishLogin(this, account, ui->autoLogin->isChecked());
        return;
    }
    const QPointer<SaasScanQRCodeLoginWt> self(this);
    warningAlert(tr("Get logged in account failure:%1").arg(errorText(response)));
    // The alert may have outlived this page.
    if (self)
        ui->handlers.after(newCodeDelayMs, [this] { ui->QRCodePanel->refreshQRCode(); });
}

bool SaasScanQRCodeLoginWt::eventFilter(QObject *watched, QEvent *event)
{
    // Whoever hears the hub may delete the page: nobody is left to take the release then.
    const QPointer<QWidget> self(this);
    if (isLeftRelease(event)) {
        auto &hub = LoginSignals::_instance();
        if (watched == ui->verificationCodeLogin)
            emit hub.signalSaasLoginEvent(SaasVerificationCodeLogin, {});
        else if (watched == ui->passwordLogin)
            emit hub.signalSaasLoginEvent(SaasPwdLogin, {});
    }
    return !self || QWidget::eventFilter(watched, event);
}

void SaasScanQRCodeLoginWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
