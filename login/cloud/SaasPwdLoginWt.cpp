#include "login/cloud/SaasPwdLoginWt.h"

#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "login/cloud/CloudPageParts.h"
#include "login/frame/Alerts.h"
#include "login/frame/CloudAnswer.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "ui_SaasPwdLoginWt.h"

#include <QRegExpValidator>

using kelvra_saas::LoginErrorInfo;
using kelvra_saas::Response;

namespace kelvra_login {

namespace {

constexpr int minPasswordLength = 8;

// Result codes with a road of their own
constexpr int nearLockCode = 2231;
constexpr int lockedCode = 2203;
constexpr int insecureTerminalCode = 2229;

} // namespace

SaasPwdLoginWt::SaasPwdLoginWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::SaasPwdLoginWt>>())
{
    ui->setupUi(this);
    QLineEdit *password = ui->pwdWt->lineEdit();
    capsLockHandler = new kelvra_base::CapsLockToolTipHandler(this, password, ui->pwdWt);
    setUpPhoneField(this, ui->userWt, ui->handlers);
    password->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("^\\S+$")), password));
    followFocus(ui->pwdWt, ui->handlers);
    handFocusOn(this, ui->userWt, ui->pwdWt, ui->handlers);
    ui->verificationCodeLogin->installEventFilter(this);
    ui->QRCodeLogin->installEventFilter(this);
    ui->handlers.connect(ui->loginBt, &QPushButton::clicked, this, &SaasPwdLoginWt::login);
}

SaasPwdLoginWt::~SaasPwdLoginWt() = default;

QString SaasPwdLoginWt::account() const
{
    return ui->userWt->text();
}

void SaasPwdLoginWt::login()
{
    if (isLoggingIn(ui->loginBt) || !checkPhoneNumber(ui->userWt))
        return;
    const QString password = ui->pwdWt->text();
    if (password.size() < minPasswordLength) {
        showFieldError(ui->pwdWt, tr("Invalid password"));
        return;
    }

    kelvra_saas::LoginReq request;
    request.requestId = newRequestId();
    request.account = account();
    request.password = password;
    setLoggingIn(ui->loginBt, true);
    const auto take = [this, request](const Response &response, const LoginErrorInfo &info) {
        loginAnswered(request.account, response, info);
    };
    kelvra_saas::LoginWorker::_instance().login(request, answerTo(request.requestId, ui->handlers, take));
}

void SaasPwdLoginWt::loginAnswered(const QString &account, const Response &response, const LoginErrorInfo &info)
{
    const QPointer<SaasPwdLoginWt> self(this);
    switch (response.code) {
    case kelvra_saas::successCode:
        finishLogin(this, account, ui->autoLogin->isChecked());
        return;
    case insecureTerminalCode:
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasVerificationCodeLogin, {account});
        warningAlert(tr("It is currently a non secure terminal,Please log in as a verification code"));
        break;
    case nearLockCode:
    case lockedCode:
        LoginWorker::_instance().showLockAlert(info);
        break;
    default:
        warningAlert(tr("Nimbra account login failure:%1").arg(errorText(response)));
    }
    // The alert may have outlived this page.
    if (self)
        setLoggingIn(ui->loginBt, false);
}

bool SaasPwdLoginWt::eventFilter(QObject *watched, QEvent *event)
{
    // Whoever hears the hub may delete the page: nobody is left to take the release then.
    const QPointer<QWidget> self(this);
    if (isLeftRelease(event)) {
        auto &hub = LoginSignals::_instance();
        if (watched == ui->verificationCodeLogin)
            emit hub.signalSaasLoginEvent(SaasVerificationCodeLogin, {account()});
        else if (watched == ui->QRCodeLogin)
            emit hub.signalSaasLoginEvent(SaasScanQRCodeLogin, {account()});
    }
    return !self || QWidget::eventFilter(watched, event);
}

void SaasPwdLoginWt::keyPressEvent(QKeyEvent *event)
{
    if (loginOnEnter(this, ui->loginBt, event))
        QWidget::keyPressEvent(event);
}

void SaasPwdLoginWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        setPhonePlaceholder(ui->userWt);
        setLoggingIn(ui->loginBt, isLoggingIn(ui->loginBt));
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
