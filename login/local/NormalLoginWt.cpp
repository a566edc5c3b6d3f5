#include "login/local/NormalLoginWt.h"

#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "host/kelvra_worker/Customization.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/Alerts.h"
#include "login/frame/CloudAnswer.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/local/FieldStyle.h"
#include "ui_NormalLoginWt.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QShowEvent>

#include <utility>

using kelvra_contact::SystemMsg;
using kelvra_data::UserData;
using kelvra_worker::Customization;
using kelvra_worker::DictDef;
using kelvra_worker::LoginLogs;
using kelvra_worker::SystemWorker;
using kelvra_worker::UiSettings;
using ZCOMMON::ZLineEdit;

namespace kelvra_login {

namespace {

constexpr int countDownIntervalMs = 100;
constexpr int nameDelayMs = 1500; // pause after the last edit of the user name
constexpr int msPerSecond = 1000;
constexpr int passwordMethod = 0; // of the login logs

bool isLeftButton(QEvent *event)
{
    return static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
}

bool cloudLoginEnabled()
{
    return Customization::_instance().getCustomizeInfo().cloudLoginEnabled;
}

} // namespace

NormalLoginWt::NormalLoginWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::NormalLoginWt>>())
    , countDownTimer(new QTimer(this))
    , nameTimer(new QTimer(this))
{
    ui->setupUi(this);
    ui->localLoginBt->setText(tr("Login"));
    lockClock.start();
    nameTimer->setSingleShot(true);
    ZLineEdit *password = ui->localPwdWt->lineEdit();
    capsLockHandler = new kelvra_base::CapsLockToolTipHandler(this, password, ui->localPwdWt);
    for (QObject *watched : {static_cast<QObject *>(ui->forgetPwd), static_cast<QObject *>(ui->gesturePwd),
                             static_cast<QObject *>(ui->createUser), static_cast<QObject *>(password)})
        watched->installEventFilter(this);

    restoreLastUser();
    readLock();
    ui->localAutoLogin->setChecked(loginRemembered);

    cloudPages = {{SaasPwdLogin, ui->saasPwdLoginPage},
                  {SaasVerificationCodeLogin, ui->saasVerificationCodeLoginPage},
                  {SaasScanQRCodeLogin, ui->saasScanQRCodeLoginPage}};
    currentCloudPage = ui->saasPwdLoginPage;
    showFirstPage();
    ui->userTypeWt->setVisible(cloudLoginEnabled());

    connectFields();
    connectPages();
    connectHub();
    // Last: the page may be gone when this returns, should the answer come at once.
    if (ui->saasUserTab->isChecked() && LoginWorker::_instance().isAutoLoginAllowed())
        tryCloudAutoLogin();
}

NormalLoginWt::~NormalLoginWt() = default;

void NormalLoginWt::restoreLastUser()
{
    auto &userData = UserData::_instance();
    const kelvra_data::UserInfo info = userData.getUserInfo(userData.getLastLoggedLocalUser());
    ui->localUserWt->setText(info.name);
    auto &worker = LoginWorker::_instance();
    loginRemembered = worker.isLoginRemembered(info.name) && worker.isAutoLoginAllowed();
    if (loginRemembered)
        ui->localPwdWt->setPassword(info.password, true);
}

void NormalLoginWt::readLock()
{
    LoginWorker::_instance().refreshLockInfo(locked, lockSeconds);
    if (!locked)
        return;
    loginRemembered = false;
    startCountDown();
}

bool NormalLoginWt::isLocked()
{
    // Another form may have brought a lock about since this one was built.
    if (!locked && LoginWorker::_instance().isLocked())
        readLock();
    return locked;
}

void NormalLoginWt::showFirstPage()
{
    const bool cloud =
        cloudLoginEnabled() && SystemWorker::_instance().lastLoggedUserType() == kelvra_worker::CloudUser;
    selectTab(cloud, cloud ? ui->saasPwdLoginPage : ui->localPwdLoginPage);
    if (!cloud && loginRemembered)
        clickLoginSoon();
}

void NormalLoginWt::connectFields()
{
    ui->handlers.connect(ui->localUserWt->lineEdit(), &ZLineEdit::signalFocusEvent, [this](bool focused) {
        ui->localUserWt->setState(focused ? FieldFocused : FieldNormal);
        if (focused)
            ui->localPwdWt->setState(FieldNormal);
    });
    ui->handlers.connect(ui->localPwdWt->lineEdit(), &ZLineEdit::signalFocusEvent, [this](bool focused) {
        if (focused)
            ui->localUserWt->setState(FieldNormal);
        ui->localPwdWt->setState(focused ? FieldFocused : FieldNormal);
    });
    ui->handlers.connect(ui->localUserWt->lineEdit(), &QLineEdit::textEdited, this, &NormalLoginWt::slotUserNameEdited);
    ui->handlers.connect(ui->localPwdWt->lineEdit(), &QLineEdit::textEdited, [this] { passwordTyped = true; });
    ui->handlers.connect(nameTimer, &QTimer::timeout, this, &NormalLoginWt::checkRememberedLogin);
    ui->handlers.connect(ui->localLoginBt, &QPushButton::clicked, this, &NormalLoginWt::slotLocalLoginBtClicked);
    ui->handlers.connect(countDownTimer, &QTimer::timeout, this, &NormalLoginWt::slotCountDownTimeout);
}

void NormalLoginWt::connectPages()
{
    ui->handlers.connect(ui->localUserTab, &QPushButton::clicked, [this] {
        selectTab(false, ui->localPwdLoginPage);
        focusField();
    });
    ui->handlers.connect(ui->saasUserTab, &QPushButton::clicked, [this] {
        selectTab(true, currentCloudPage);
        focusField();
    });
}

void NormalLoginWt::connectHub()
{
    auto &hub = LoginSignals::_instance();
    ui->handlers.connect(&hub, &LoginSignals::signalLockLoginByGesture, this, &NormalLoginWt::slotLockLoginByGesture);
    ui->handlers.connect(&SystemMsg::_instance(), &SystemMsg::signalPrepareQuitSystem, this,
                         &NormalLoginWt::slotQuitSystem);
    ui->handlers.connect(&hub, &LoginSignals::signalSaasLoginEvent, [this](SaasLoginEvent event) {
        currentCloudPage = cloudPages.value(event);
        selectTab(true, currentCloudPage);
        if (isVisible())
            focusField();
    });
    ui->handlers.connect(&hub, &LoginSignals::signalDefaultLocalSuperUserMethodSelected,
                         [this](const QString &userName, const QString &pwd) {
                             ui->localUserWt->setText(userName);
                             ui->localPwdWt->setPassword(pwd, false);
                         });
}

void NormalLoginWt::selectTab(bool cloud, QWidget *page)
{
    ui->localUserTab->setChecked(!cloud);
    ui->saasUserTab->setChecked(cloud);
    if (page)
        ui->stackedWidget->setCurrentWidget(page);
}

void NormalLoginWt::focusField()
{
    const QWidget *page = ui->stackedWidget->currentWidget();
    if (page == ui->saasPwdLoginPage)
        ui->kelvra_login__SaasPwdLoginWt->setFocus();
    else if (page == ui->saasVerificationCodeLoginPage)
        ui->kelvra_login__SaasVerificationCodeLoginWt->setFocus();
    else if (page == ui->localPwdLoginPage && ui->localUserWt->text().isEmpty())
        ui->localUserWt->setFocus();
    else if (page == ui->localPwdLoginPage)
        ui->localPwdWt->setFocus();
}

void NormalLoginWt::tryCloudAutoLogin()
{
    const QString requestId = newRequestId();
    kelvra_saas::LoginWorker::_instance().tryAutoLogin(
        requestId, ui->kelvra_login__SaasPwdLoginWt->account(),
        answerTo(requestId, ui->handlers, [this](const kelvra_saas::Response &response, const QString &account) {
            cloudAutoLoginAnswered(response, account);
        }));
}

void NormalLoginWt::cloudAutoLoginAnswered(const kelvra_saas::Response &response, const QString &account)
{
    if (response.code == kelvra_saas::successCode) {
        // Whoever has logged in by hand meanwhile stays.
        if (!quitting && !SystemWorker::_instance().isLoginSuccess())
            LoginWorker::_instance().saasLoginSuccess(account, true);
        return;
    }
    kelvra_saas::LoginWorker::_instance().cancelAccountAutoLogin(account);
    warningAlert(
        tr("Nimbra account auto login failure:%1").arg(kelvra_saas::saasErrorMsg(response.code, response.subCode)));
}

QStringList NormalLoginWt::entered() const
{
    // What the field shows tells a remembered password from the same one typed.
    return {ui->localUserWt->text(), ui->localPwdWt->text(), ui->localPwdWt->lineEdit()->text()};
}

void NormalLoginWt::clickLoginSoon()
{
    ui->handlers.after(autoLoginDelayMs, [this, remembered = entered()] {
        if (entered() == remembered && !quitting && !SystemWorker::_instance().isLoginSuccess())
            emit ui->localLoginBt->clicked();
    });
}

void NormalLoginWt::slotLocalLoginBtClicked()
{
    if (isLocked() || !hasUserName())
        return;
    const QString userName = ui->localUserWt->text();
    const QString pwd = ui->localPwdWt->text();
    if (pwd.isEmpty()) {
        ui->localPwdWt->showError(tr("Password can not be empty!"));
        return;
    }

    auto &worker = LoginWorker::_instance();
    if (worker.verifyPassword(userName, pwd)) {
        const bool autoLogin = ui->localAutoLogin->isChecked();
        LoginLogs::_instance().loginSuccessLog(userName, passwordMethod, autoLogin);
        worker.loginSuccess(userName, pwd, autoLogin);
        UiSettings::_instance().setValue(loginModeKey, passwordLoginMode);
        return;
    }

    LoginLogs::_instance().loginFailureLog(userName, passwordMethod);
    const int failures = worker.failedTimes();
    if (failures >= maxFailures)
        startLock(userName);
    warningAlert(tr("user name or user password error, a maximum of %1 failures are allowed, now failed %2 times")
                     .arg(maxFailures)
                     .arg(failures));
}

void NormalLoginWt::startLock(const QString &userName)
{
    auto &worker = LoginWorker::_instance();
    worker.setLocked(true);
    bool storedLock = false;
    int storedSeconds = 0;
    worker.refreshLockInfo(storedLock, storedSeconds);
    // Locked here even where the data library could not store it or cannot be read.
    locked = true;
    lockSeconds = storedLock ? storedSeconds : lockSecondsOnFailure;
    LoginLogs::_instance().lockUserLog(userName, lockSeconds);
    startCountDown();
}

void NormalLoginWt::startCountDown()
{
    countDownTimer->start(countDownIntervalMs);
    lockClock.restart();
}

int NormalLoginWt::remainingLockSeconds() const
{
    return lockSeconds - static_cast<int>(lockClock.elapsed() / msPerSecond);
}

void NormalLoginWt::slotCountDownTimeout()
{
    const int remaining = remainingLockSeconds();
    if (remaining >= 0) {
        ui->localLoginBt->setText(tr("Locked, Wait:%1Sec.").arg(remaining));
        return;
    }
    ui->localLoginBt->setText(tr("Login"));
    locked = false;
    countDownTimer->stop();
    LoginWorker::_instance().setLocked(false);
}

void NormalLoginWt::slotLockLoginByGesture()
{
    startLock(ui->localUserWt->text());
}

void NormalLoginWt::slotQuitSystem()
{
    // A host that takes its time to quit shall not be logged in meanwhile.
    quitting = true;
    nameTimer->stop();
    auto &worker = LoginWorker::_instance();
    // A form that counts nothing down must not end the lock of another one.
    if (locked && worker.isLocked())
        worker.setLockSeconds(remainingLockSeconds());
}

void NormalLoginWt::slotUserNameEdited()
{
    ui->localPwdWt->forgetRememberedPassword();
    passwordTyped = false;
    nameTimer->start(nameDelayMs);
    refreshLinkRow();
}

void NormalLoginWt::checkRememberedLogin()
{
    const QString userName = ui->localUserWt->text();
    auto &worker = LoginWorker::_instance();
    const bool passwordGiven = passwordTyped && !ui->localPwdWt->text().isEmpty();
    if (passwordGiven || !worker.isLoginRemembered(userName))
        return;
    ui->localPwdWt->setPassword(UserData::_instance().getUserInfo(userName).password, true);
    bool storedLock = false;
    int storedSeconds = 0;
    worker.refreshLockInfo(storedLock, storedSeconds);
    if (storedLock && !locked) {
        locked = true;
        lockSeconds = storedSeconds;
        startCountDown();
    }
    if (locked)
        return;
    ui->localAutoLogin->setChecked(true);
    clickLoginSoon();
}

void NormalLoginWt::refreshLinkRow()
{
    const bool userGiven =
        UserData::_instance().isSuperUserExist(kelvra_data::SuperUserRole) && !ui->localUserWt->text().isEmpty();
    ui->operStackedWt->setCurrentWidget(userGiven ? ui->page : ui->page_2);
    ui->localAutoLogin->setVisible(userGiven);
}

bool NormalLoginWt::hasUserName()
{
    if (!ui->localUserWt->text().isEmpty())
        return true;
    showNameError(tr("User name can not be empty or be all blank!"));
    return false;
}

void NormalLoginWt::showNameError(const QString &text)
{
    ui->localUserWt->showError(text);
    tipAfterRelease = text;
}

void NormalLoginWt::forgotPressed()
{
    if (!hasUserName())
        return;
    const QString userName = ui->localUserWt->text();
    auto &userData = UserData::_instance();
    if (!userData.isUserExist(userName))
        showNameError(tr("User not exist!"));
    else if (userData.isSuperUser(userName))
        emit LoginSignals::_instance().signalLoginEvent(VerifySecretAnswer, {userName});
    else
        warningAlert(tr("Please contact the administrator to obtain the password"));
}

void NormalLoginWt::gesturePressed()
{
    if (isLocked() || !hasUserName())
        return;
    const QString userName = ui->localUserWt->text();
    if (UserData::_instance().isUserConfigureGesture(userName))
        emit LoginSignals::_instance().signalLoginEvent(GestureLogin, {userName});
    else
        warningAlert(tr("The current account is not configured with gesture password login"));
}

bool NormalLoginWt::linkPressed(QObject *link)
{
    tipAfterRelease.clear();
    if (link == ui->forgetPwd) {
        forgotPressed();
        return true;
    }
    if (link == ui->gesturePwd) {
        gesturePressed();
        return true;
    }
    const QPointer<NormalLoginWt> self(this);
    if (link == ui->createUser)
        emit LoginSignals::_instance().signalLoginEvent(CreateSuperUser, {});
    return !self;
}

bool NormalLoginWt::eventFilter(QObject *watched, QEvent *event)
{
    const bool onLink = watched == ui->forgetPwd || watched == ui->gesturePwd || watched == ui->createUser;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        // An alert may have outlived this page when the handler returns.
        if (onLink && isLeftButton(event) && linkPressed(watched))
            return true;
        break;
    case QEvent::MouseButtonRelease:
        // The release hides the tip that its press has shown, once for every widget that it is handed up to.
        if (onLink && isLeftButton(event) && !tipAfterRelease.isEmpty()) {
            ui->localUserWt->showError(std::exchange(tipAfterRelease, {}));
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void NormalLoginWt::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && ui->localLoginBt->isVisible()) {
        event->accept();
        // A held key must not spend one failure after the other.
        if (!event->isAutoRepeat())
            emit ui->localLoginBt->clicked();
        return;
    }
    QWidget::keyPressEvent(event);
}

void NormalLoginWt::showEvent(QShowEvent *event)
{
    refreshLinkRow();
    // Left to itself, the focus would go to a tab, or to the button that led away from this page.
    if (!event->spontaneous())
        focusField();
    QWidget::showEvent(event);
}

void NormalLoginWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        DictDef::_instance().retranslate();
        ui->retranslateUi(this);
        if (!countDownTimer->isActive())
            ui->localLoginBt->setText(tr("Login"));
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
