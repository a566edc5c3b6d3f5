#include "login/cloud/SaasVerificationCodeLoginWt.h"

#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "login/cloud/CloudPageParts.h"
#include "login/frame/Alerts.h"
#include "login/frame/CloudAnswer.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "ui_SaasVerificationCodeLoginWt.h"

using kelvra_saas::LoginErrorInfo;
using kelvra_saas::Response;
using kelvra_saas::SaasWorker;
using kelvra_worker::DictDef;

namespace kelvra_login {

namespace {

constexpr int codeLength = 6;
constexpr int resendSeconds = 60;

// Result codes with a road of their own: not those of a login by password.
constexpr int invalidNumberCode = 1001;
constexpr int nearLockCode = 2204;
constexpr int invalidAccountCode = 2203;

} // namespace

SaasVerificationCodeLoginWt::SaasVerificationCodeLoginWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::SaasVerificationCodeLoginWt>>())
{
    ui->setupUi(this);
    setUpPhoneField(this, ui->userWt, ui->handlers);
    handFocusOn(this, ui->userWt, ui->verificationCode, ui->handlers);
    ui->passwordLogin->installEventFilter(this);
    ui->QRCodeLogin->installEventFilter(this);

    const auto &countdown = SaasWorker::_instance();
    if (const int seconds = countdown.getVerificationCodeRemainingSecs(); seconds > 0)
        showCountdown(seconds);
    ui->handlers.connect(&countdown, &SaasWorker::signalGetVerificationCodeRemainingSecs, this,
                         &SaasVerificationCodeLoginWt::showCountdown);
    ui->handlers.connect(ui->getVerificationCodeBt, &QPushButton::clicked, this,
                         &SaasVerificationCodeLoginWt::getVerificationCode);
    ui->handlers.connect(ui->loginBt, &QPushButton::clicked, this, &SaasVerificationCodeLoginWt::login);
}

SaasVerificationCodeLoginWt::~SaasVerificationCodeLoginWt() = default;

void SaasVerificationCodeLoginWt::getVerificationCode()
{
    if (!checkPhoneNumber(ui->userWt))
        return;
    ui->verificationCode->clear();
    ui->verificationCode->setFocus();
    // It runs from here on, whatever the cloud answers.
    ui->getVerificationCodeBt->setText(tr("60S"));
    ui->getVerificationCodeBt->setEnabled(false);
    kelvra_saas::VerificationCodeReq request;
    request.requestId = newRequestId();
    request.account = ui->userWt->text();
    const auto answer = answerTo(request.requestId, ui->handlers, &SaasVerificationCodeLoginWt::codeAnswered);
    // The host tells everybody of the countdown: the page may be gone when this returns.
    SaasWorker::_instance().resetVerificationCodeRemainingSecs(resendSeconds);
    kelvra_saas::LoginWorker::_instance().getVerificationCode(request, answer);
}

void SaasVerificationCodeLoginWt::codeAnswered(const Response &response)
{
    switch (response.code) {
    case kelvra_saas::successCode:
        messageAlert(DictDef::InformationTitle, tr("Get verificaion code success, please check the verification code "
                                                   "on your mobile phone"));
        break;
    case invalidNumberCode:
        warningAlert(tr("Get verificaion code failed:invalid mobile number(%1)").arg(response.code));
        break;
    default:
        warningAlert(tr("Get verificaion code failed:%1").arg(errorText(response)));
    }
}

void SaasVerificationCodeLoginWt::showCountdown(int seconds)
{
    const bool over = seconds == 0;
    ui->getVerificationCodeBt->setText(over ? tr("Get Verification Code") : tr("%1S").arg(seconds));
    if (ui->getVerificationCodeBt->isEnabled() != over)
        ui->getVerificationCodeBt->setEnabled(over);
}

void SaasVerificationCodeLoginWt::login()
{
    if (isLoggingIn(ui->loginBt) || !checkPhoneNumber(ui->userWt))
        return;
    const QString code = ui->verificationCode->text();
    if (code.size() != codeLength) {
        showFieldError(ui->verificationCode, tr("Invalid verification code"));
        return;
    }

    kelvra_saas::LoginReq request;
    request.requestId = newRequestId();
    request.account = ui->userWt->text();
    request.verificationCode = code;
    request.loginType = QStringLiteral("VERIFY_CODE");
    setLoggingIn(ui->loginBt, true);
    const auto take = [this, request](const Response &response, const LoginErrorInfo &info) {
        loginAnswered(request.account, response, info);
    };
    kelvra_saas::LoginWorker::_instance().login(request, answerTo(request.requestId, ui->handlers, take));
}

void SaasVerificationCodeLoginWt::loginAnswered(const QString &account, const Response &response,
                                                const LoginErrorInfo &info)
{
    const QPointer<SaasVerificationCodeLoginWt> self(this);
    switch (response.code) {
    case kelvra_saas::successCode:
        finishLogin(this, account, ui->autoLogin->isChecked());
        return;
    case nearLockCode:
        LoginWorker::_instance().showLockAlert(info);
        break;
    case invalidAccountCode:
        warningAlert(tr("Nimbra account login failure:invalid account"));
        break;
    default:
        warningAlert(tr("Nimbra account login failure:%1").arg(errorText(response)));
    }
    // The alert may have outlived this page.
    if (self)
        setLoggingIn(ui->loginBt, false);
}

bool SaasVerificationCodeLoginWt::eventFilter(QObject *watched, QEvent *event)
{
    // Whoever hears the hub may delete the page: nobody is left to take the release then.
    const QPointer<QWidget> self(this);
    if (isLeftRelease(event)) {
        auto &hub = LoginSignals::_instance();
        if (watched == ui->passwordLogin)
            emit hub.signalSaasLoginEvent(SaasPwdLogin, {ui->userWt->text()});
        else if (watched == ui->QRCodeLogin)
            emit hub.signalSaasLoginEvent(SaasScanQRCodeLogin, {ui->userWt->text()});
    }
    return !self || QWidget::eventFilter(watched, event);
}

void SaasVerificationCodeLoginWt::keyPressEvent(QKeyEvent *event)
{
    if (loginOnEnter(this, ui->loginBt, event))
        QWidget::keyPressEvent(event);
}

void SaasVerificationCodeLoginWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        // A countdown gives way to the form's text until its next second.
        ui->retranslateUi(this);
        setPhonePlaceholder(ui->userWt);
        setLoggingIn(ui->loginBt, isLoggingIn(ui->loginBt));
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
