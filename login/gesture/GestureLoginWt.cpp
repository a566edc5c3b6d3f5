#include "login/gesture/GestureLoginWt.h"

#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "ui_GestureLoginWt.h"

#include <QMouseEvent>
#include <QPointer>

using kelvra_contact::SystemMsg;
using kelvra_data::UserData;
using kelvra_worker::LoginLogs;
using kelvra_worker::SystemWorker;
using kelvra_worker::UiSettings;

namespace kelvra_login {

namespace {

constexpr int failureLabelDelayMs = 500;
constexpr int gestureMethod = 1; // of the login logs

} // namespace

GestureLoginWt::GestureLoginWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::GestureLoginWt>>())
{
    ui->setupUi(this);
    ui->pwdLogin->installEventFilter(this);
    ui->handlers.connect(ui->gesturePanel, &GesturePanel::signalGesturePwd, this, &GestureLoginWt::slotGesturePwd);
    // A host that takes its time to quit shall not be logged in meanwhile.
    ui->handlers.connect(&SystemMsg::_instance(), &SystemMsg::signalPrepareQuitSystem, [this] { quitting = true; });
    prepareAutoLogin();
}

GestureLoginWt::~GestureLoginWt() = default;

void GestureLoginWt::prepareAutoLogin()
{
    auto &worker = LoginWorker::_instance();
    const QString name = UserData::_instance().getLastLoggedLocalUser();
    bool wanted = worker.isLoginRemembered(name) && worker.isAutoLoginAllowed();
    bool locked = false;
    int lockSeconds = 0;
    worker.refreshLockInfo(locked, lockSeconds);
    wanted = wanted && !locked;
    ui->autoLogin->setChecked(wanted);
    if (wanted && SystemWorker::_instance().lastLoggedUserType() == kelvra_worker::LocalUser)
        loginSoon(name, true);
}

void GestureLoginWt::setUserName(const QString &name)
{
    ui->userName->setText(name);
    ui->autoLogin->setChecked(UserData::_instance().isUserAutoLogin(name));
}

void GestureLoginWt::slotGesturePwd(const QString &pwd)
{
    const QString userName = ui->userName->text();
    if (LoginWorker::_instance().verifyGesture(userName, pwd))
        loginSoon(userName, false);
    else
        refuseGesture(userName);
}

void GestureLoginWt::refuseGesture(const QString &userName)
{
    LoginLogs::_instance().loginFailureLog(userName, gestureMethod);
    const int count = LoginWorker::_instance().failedTimes();
    // The page may be gone when the hub returns.
    const QPointer<GestureLoginWt> guard(this);
    if (count >= maxFailures) {
        auto &hub = LoginSignals::_instance();
        emit hub.signalLoginEvent(NormalLogin, {});
        emit hub.signalLockLoginByGesture();
    }
    if (guard) {
        ui->gesturePanel->setError();
        ui->handlers.after(failureLabelDelayMs, [this, count] { showFailures(count == maxFailures ? 0 : count); });
    }
    warningAlert(
        tr("gesture error, a maximum of %1 failures are allowed, now failed %2 times").arg(maxFailures).arg(count));
}

void GestureLoginWt::showFailures(int count)
{
    ui->errorLabel->setText(count < 1 ? QString()
                                      : tr("Failed:%1 times, Remaining:%2 times").arg(count).arg(maxFailures - count));
}

void GestureLoginWt::loginSoon(const QString &userName, bool automatic)
{
    ui->handlers.after(autoLoginDelayMs, [this, userName, automatic] {
        // The last failure allowed may have come meanwhile, or a switch of user.
        auto &worker = LoginWorker::_instance();
        const bool wanted = !worker.isLocked() && (!automatic || worker.isAutoLoginAllowed());
        if (wanted && !quitting && !SystemWorker::_instance().isLoginSuccess())
            login(userName, automatic);
    });
}

void GestureLoginWt::login(const QString &userName, bool automatic)
{
    const kelvra_data::UserInfo info = UserData::_instance().getUserInfo(userName);
    // A gesture has been verified for the user that it was drawn for; the record of the last login may be older.
    if (automatic && info.name.isEmpty()) {
        warningAlert(tr("Account %1 not exist").arg(userName));
        return;
    }
    const bool autoLogin = ui->autoLogin->isChecked();
    LoginLogs::_instance().loginSuccessLog(userName, gestureMethod, autoLogin);
    LoginWorker::_instance().loginSuccess(userName, info.password, autoLogin);
    UiSettings::_instance().setValue(loginModeKey, gestureLoginMode);
}

bool GestureLoginWt::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->pwdLogin && event->type() == QEvent::MouseButtonRelease) {
        const auto *release = static_cast<QMouseEvent *>(event);
        if (release->button() == Qt::LeftButton && ui->pwdLogin->rect().contains(release->pos())) {
            // The page may be gone when the hub returns.
            emit LoginSignals::_instance().signalLoginEvent(NormalLogin, {});
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void GestureLoginWt::showEvent(QShowEvent *event)
{
    showFailures(LoginWorker::_instance().failedTimes());
    QWidget::showEvent(event);
}

void GestureLoginWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showFailures(LoginWorker::_instance().failedTimes());
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
