#include "login/frame/LoginWorker.h"

#include "host/ZCommon/ZFileDialog.h"
#include "host/kelvra_base/BaseTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/Alerts.h"
#include "login/frame/CloudAnswer.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"

#include <QDataStream>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>

using kelvra_base::BaseTools;
using kelvra_contact::SystemMsg;
using kelvra_data::SuperUserInfo;
using kelvra_data::UserData;
using kelvra_data::UserInfo;
using kelvra_worker::SystemWorker;
using kelvra_worker::UiSettings;
using kelvra_worker::UserType;

ZSINGLETON_DEFINE(kelvra_login::LoginWorker)

namespace kelvra_login {

namespace {

// What the data library is given with "not locked" once a lock has run out by the time the client quits.
constexpr int lockSecondsWhenExpired = 300;
constexpr int unknown = -1;

// Name first, password last: what the shell hands over for an automatic login.
constexpr int handedOverParams = 2;

constexpr qint64 minCredentialsBytes = 128;
constexpr qint64 maxCredentialsBytes = 256;

// Building a screen may have logged a user in, and whoever heard of that have deleted the dialog.
void showDialog(const QPointer<LoginDlg> &dialog)
{
    if (!dialog)
        return;
    dialog->setDefaultPos(BaseTools::defaultPos(dialog));
    dialog->show();
}

void emitLoginEvent(LoginEvent event, const QStringList &params = {})
{
    emit LoginSignals::_instance().signalLoginEvent(event, params);
}

} // namespace

LoginWorker::LoginWorker()
{
    // A host that takes its time to quit shall not be logged in meanwhile.
    connect(&SystemMsg::_instance(), &SystemMsg::signalPrepareQuitSystem, this,
            [this] { handedOver = std::make_unique<Handlers>(); });
}

LoginWorker::~LoginWorker() = default;

void LoginWorker::login(UserType type, const QStringList &params, bool allowed)
{
    autoLoginAllowed = allowed;
    const QPointer<LoginDlg> dialog = new LoginDlg(nullptr);

    if (UserData::_instance().isFirstLogin()) {
        emitLoginEvent(LoginMethodSel);
    } else if (type != kelvra_worker::LocalUser) {
        emitLoginEvent(NormalLogin);
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasPwdLogin, {});
    } else {
        emitLocalLoginEvent(params);
    }

    showDialog(dialog);
    tryHandedOverLogin(type, params);
}

void LoginWorker::emitLocalLoginEvent(const QStringList &params)
{
    auto &userData = UserData::_instance();
    bool locked = false;
    int seconds = unknown;
    if (userData.getLockInfo(locked, seconds)) {
        lockState = locked ? 1 : 0;
        if (lockSeconds == unknown)
            lockSeconds = seconds;
    } else {
        locked = false;
    }

    QString userName = params.value(0);
    if (userName.isEmpty())
        userName = userData.getLastLoggedLocalUser();

    if (!locked && UiSettings::_instance().getValue(loginModeKey).toInt() == gestureLoginMode &&
        userData.isUserConfigureGesture(userName))
        emitLoginEvent(GestureLogin, {userName});
    else
        emitLoginEvent(NormalLogin);
}

void LoginWorker::tryHandedOverLogin(UserType type, const QStringList &params)
{
    if (params.size() != handedOverParams || params.first().isEmpty())
        return;

    if (type == kelvra_worker::CloudUser) {
        handedOver->after(autoLoginDelayMs, [this, params] { tryCloudAutoLogin(params.first(), params.last()); });
    } else if (type == kelvra_worker::LocalUser && verifyPassword(params.first(), params.last())) {
        handedOver->after(autoLoginDelayMs, [this, params] { finishHandedOverLogin(params.first(), params.last()); });
    }
}

void LoginWorker::tryCloudAutoLogin(const QString &account, const QString &password)
{
    const QString requestId = newRequestId();
    kelvra_saas::LoginWorker::_instance().tryAutoLogin(
        requestId, account, password,
        answerTo(requestId, *handedOver, [this](const kelvra_saas::Response &response, const QString &answeredAccount) {
            if (response.code != kelvra_saas::successCode)
                kelvra_saas::LoginWorker::_instance().cancelAccountAutoLogin(answeredAccount);
            else if (!SystemWorker::_instance().isLoginSuccess()) // whoever has logged in by hand stays
                saasLoginSuccess(answeredAccount, true);
        }));
}

void LoginWorker::finishHandedOverLogin(const QString &userName, const QString &pwd)
{
    // The shell hands over a login that is already on record: neither log, record, environment nor lock change.
    if (SystemWorker::_instance().isLoginSuccess())
        return;
    auto &userData = UserData::_instance();
    const UserInfo userInfo = userData.getUserInfo(userName);
    SystemWorker::_instance().setCurUserInfo(kelvra_worker::LocalUser, userName, pwd, userInfo.attribute,
                                             userData.isUserAutoLogin(userName));
    announceSuccess(userName);
}

void LoginWorker::announceSuccess(const QString &userName)
{
    const SuperUserInfo superInfo = UserData::_instance().getSuperUserInfo(userName);
    auto &systemWorker = SystemWorker::_instance();
    systemWorker.setSuperUserInfo(superInfo.userName, superInfo.password);
    systemWorker.setLoginSuccess(true);
    emit LoginSignals::_instance().signalLoginSuccess();
}

void LoginWorker::switchUser()
{
    autoLoginAllowed = false;
    handedOver = std::make_unique<Handlers>(); // what is still to come of a handed-over login does not
    const QPointer<LoginDlg> dialog = new LoginDlg(nullptr);
    emitLoginEvent(NormalLogin);
    showDialog(dialog);
}

bool LoginWorker::verifyPassword(const QString &userName, const QString &pwd)
{
    const bool ok = UserData::_instance().verifyUserPassword(userName, pwd);
    if (!ok)
        ++failedCount;
    return ok;
}

bool LoginWorker::verifyGesture(const QString &userName, const QString &gesture)
{
    const bool ok = UserData::_instance().verifyUserGesture(userName, gesture);
    if (!ok)
        ++failedCount;
    return ok;
}

int LoginWorker::failedTimes() const
{
    return failedCount;
}

bool LoginWorker::isAutoLoginAllowed() const
{
    return autoLoginAllowed;
}

bool LoginWorker::isLoginRemembered(const QString &name) const
{
    auto &userData = UserData::_instance();
    bool autoLogin = false;
    QDateTime lastLogin;
    // A time that is not valid counts as today in daysTo().
    if (!userData.getUserLoginRecord(name, autoLogin, lastLogin) || !autoLogin || !lastLogin.isValid())
        return false;
    return lastLogin.daysTo(QDateTime::currentDateTime()) < rememberedLoginDays && userData.isSameLoginEnvironment();
}

bool LoginWorker::setLocked(bool locked)
{
    lockState = locked ? 1 : 0;
    lockSeconds = locked ? lockSecondsOnFailure : 0;
    if (!locked)
        failedCount = 0;
    return UserData::_instance().updateLockInfo(locked, lockSeconds);
}

bool LoginWorker::setLockSeconds(int remainingSeconds)
{
    const bool locked = remainingSeconds > 0;
    lockSeconds = locked ? remainingSeconds : lockSecondsWhenExpired;
    return UserData::_instance().updateLockInfo(locked, lockSeconds);
}

bool LoginWorker::isLocked()
{
    if (lockSeconds == unknown) {
        bool locked = false;
        if (UserData::_instance().getLockInfo(locked, lockSeconds))
            lockState = locked ? 1 : 0;
    }
    return lockState == 1;
}

void LoginWorker::refreshLockInfo(bool &locked, int &seconds)
{
    if (!UserData::_instance().getLockInfo(locked, seconds))
        return;
    lockState = locked ? 1 : 0;
    if (lockSeconds == unknown)
        lockSeconds = seconds;
}

void LoginWorker::loginSuccess(const QString &userName, const QString &pwd, bool autoLogin)
{
    auto &userData = UserData::_instance();
    userData.updateLoginEnvironment();
    userData.updateUserLoginRecord(userName, autoLogin);
    lockSeconds = 0;
    lockState = 0;
    failedCount = 0;
    userData.updateLockInfo(false, 0);
    const UserInfo userInfo = userData.getUserInfo(userName);
    SystemWorker::_instance().setCurUserInfo(kelvra_worker::LocalUser, userName, pwd, userInfo.attribute, autoLogin);
    announceSuccess(userName);
}

void LoginWorker::saasLoginSuccess(const QString &account, bool autoLogin)
{
    auto &userData = UserData::_instance();
    if (!userData.isUserExist(account))
        userData.addSuperUserFromSaasUser(account);
    const UserInfo userInfo = userData.getUserInfo(account);
    SystemWorker::_instance().setCurUserInfo(kelvra_worker::CloudUser, account, userInfo.password, userInfo.attribute,
                                             autoLogin);
    announceSuccess(account);
    UiSettings::_instance().setValue(loginModeKey, passwordLoginMode);
}

void LoginWorker::showLockAlert(const kelvra_saas::LoginErrorInfo &info)
{
    if (info.remainingAttempts < 1) {
        warningAlert(tr("The account has been locked for %1 minutes, you can unlock by Nimbra App forgetting password")
                         .arg(info.lockMinutes));
        return;
    }
    warningAlert(tr("Current errors:%1,in the next %2 sec.,if you make another error %3 times, the account will be "
                    "locked for %4 minutes")
                     .arg(info.errorCount)
                     .arg(info.periodSeconds)
                     .arg(info.remainingAttempts)
                     .arg(info.lockMinutes));
}

bool LoginWorker::importLoginCredentials(const QString &userName)
{
    const QString path = ZCOMMON::ZFileDialog::getOpenFileName(
        nullptr, tr("Select Login Credentials"), QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
        QString(), nullptr, {});
    if (path.isEmpty())
        return false;

    const qint64 bytes = QFileInfo(path).size();
    if (bytes < minCredentialsBytes || bytes > maxCredentialsBytes) {
        warningAlert(tr("Login credentials file is illegal"));
        return false;
    }

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        warningAlert(tr("Failed to open login credentials file"));
        return false;
    }
    QString content;
    QDataStream stream(&file);
    stream >> content;
    file.close();

    if (UserData::_instance().checkSuperUserCredentials(userName, content))
        return true;
    warningAlert(tr("Login credentials file is invalid"));
    return false;
}

SuperUserInfo LoginWorker::defaultSuperUserInfo() const
{
    const QString defaultPassword = QStringLiteral("468024");
    SuperUserInfo info;
    info.userName = QStringLiteral("admin");
    info.password = defaultPassword;
    info.role = kelvra_data::SuperUserRole;
    info.question1 = 0;
    info.question2 = 1;
    info.question3 = 2;
    info.answer1 = defaultPassword;
    info.answer2 = defaultPassword;
    info.answer3 = defaultPassword;
    return info;
}

} // namespace kelvra_login
