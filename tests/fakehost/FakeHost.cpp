#include "FakeHost.h"

#include "host/ZCommon/ZFileDialog.h"
#include "host/kelvra_base/ZMessageBox.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "host/kelvra_worker/Customization.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemAssistant.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"

#include <QWidget>

namespace {

FakeHost &fake()
{
    return FakeHost::get();
}

QString text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString text(int value)
{
    return QString::number(value);
}

QString text(const QString &value)
{
    return value;
}

template <typename... Arguments>
void record(const char *operation, const Arguments &...arguments)
{
    fake().record(QString::fromLatin1(operation), {text(arguments)...});
}

// An open alert lets the test act for once: what it does may well open another.
void runOnce(std::function<void()> &action)
{
    if (const auto once = std::exchange(action, {}))
        once();
}

} // namespace

QMap<int, QString> FakeHost::twelveQuestions()
{
    QMap<int, QString> questions;
    for (int id = 0; id < 12; ++id)
        questions.insert(10 * id, QStringLiteral("question %1").arg(10 * id));
    return questions;
}

FakeHost &FakeHost::get()
{
    static FakeHost host;
    return host;
}

void FakeHost::reset()
{
    *this = FakeHost();
}

void FakeHost::record(const QString &operation, const QStringList &arguments)
{
    calls << operation + QLatin1Char('(') + arguments.join(QLatin1Char(',')) + QLatin1Char(')');
}

QStringList FakeHost::callsOf(const QStringList &operations) const
{
    QStringList found;
    for (const QString &call : calls) {
        if (operations.isEmpty() || operations.contains(call.section(QLatin1Char('('), 0, 0)))
            found << call;
    }
    return found;
}

FakeHost::User &FakeHost::rememberUser(const QString &name, const QString &password, int daysAgo)
{
    User &user = users[name];
    user.password = password;
    user.hasRecord = true;
    user.autoLogin = true;
    user.lastLogin = QDateTime::currentDateTime().addDays(-daysAgo);
    lastLocalUser = name;
    return user;
}

// Data library ------------------------------------------------------------------------------------------------------

ZSINGLETON_DEFINE(kelvra_data::UserData)

namespace kelvra_data {

class UserData::Private
{
};

UserData::UserData() = default;
UserData::~UserData() = default;

bool UserData::isFirstLogin()
{
    record("isFirstLogin");
    return fake().firstLogin;
}

bool UserData::isUserExist(const QString &name)
{
    record("isUserExist", name);
    return fake().users.contains(name);
}

bool UserData::isSuperUser(const QString &name)
{
    record("isSuperUser", name);
    return fake().users.value(name).superUser;
}

bool UserData::isSuperUserExist(UserRole role)
{
    record("isSuperUserExist", int(role));
    for (const FakeHost::User &user : qAsConst(fake().users)) {
        if (user.superUser)
            return true;
    }
    return false;
}

UserInfo UserData::getUserInfo(const QString &name)
{
    record("getUserInfo", name);
    UserInfo info;
    if (fake().users.contains(name)) {
        info.name = name;
        info.password = fake().users[name].password;
        info.attribute = fake().users[name].attribute;
    }
    return info;
}

SuperUserInfo UserData::getSuperUserInfo(const QString &name)
{
    record("getSuperUserInfo", name);
    return fake().superUser;
}

QString UserData::getLastLoggedLocalUser()
{
    record("getLastLoggedLocalUser");
    return fake().lastLocalUser;
}

bool UserData::verifyUserPassword(const QString &name, const QString &password)
{
    record("verifyUserPassword", name, password);
    return fake().users.contains(name) && fake().users[name].password == password;
}

bool UserData::verifyUserGesture(const QString &name, const QString &gesture)
{
    record("verifyUserGesture", name, gesture);
    return fake().users.contains(name) && fake().users[name].gesture == gesture;
}

bool UserData::getLockInfo(bool &locked, int &seconds)
{
    record("getLockInfo");
    if (!fake().lockKnown)
        return false;
    locked = fake().locked;
    seconds = fake().lockSeconds;
    return true;
}

bool UserData::updateLockInfo(bool locked, int seconds)
{
    record("updateLockInfo", locked, seconds);
    if (!fake().updatesSucceed)
        return false;
    fake().locked = locked;
    fake().lockSeconds = seconds;
    return true;
}

bool UserData::updateUserLoginRecord(const QString &name, bool autoLogin)
{
    record("updateUserLoginRecord", name, autoLogin);
    return true;
}

bool UserData::getUserLoginRecord(const QString &name, bool &autoLogin, QDateTime &lastLogin)
{
    record("getUserLoginRecord", name);
    const FakeHost::User user = fake().users.value(name);
    if (!user.hasRecord)
        return false;
    autoLogin = user.autoLogin;
    lastLogin = user.lastLogin;
    return true;
}

bool UserData::isUserAutoLogin(const QString &name)
{
    record("isUserAutoLogin", name);
    return fake().users.value(name).autoLogin;
}

bool UserData::userAutoLoginCtrl(const QString &name, bool on)
{
    record("userAutoLoginCtrl", name, on);
    return fake().users.contains(name);
}

bool UserData::updateLoginEnvironment()
{
    record("updateLoginEnvironment");
    return true;
}

bool UserData::isSameLoginEnvironment()
{
    record("isSameLoginEnvironment");
    return fake().sameEnvironment;
}

bool UserData::isUserConfigureGesture(const QString &name)
{
    record("isUserConfigureGesture", name);
    return !fake().users.value(name).gesture.isEmpty();
}

bool UserData::addSuperUser(const SuperUserInfo &info)
{
    record("addSuperUser", info.userName);
    fake().addedSuperUser = info;
    if (fake().addSuperUserSucceeds) {
        fake().users[info.userName].superUser = true;
        fake().users[info.userName].password = info.password;
    }
    return fake().addSuperUserSucceeds;
}

bool UserData::addSuperUserFromSaasUser(const QString &account)
{
    record("addSuperUserFromSaasUser", account);
    return true;
}

bool UserData::resetUserPwd(const QString &name, const QString &password)
{
    record("resetUserPwd", name, password);
    return fake().resetUserPwdSucceeds;
}

bool UserData::verifySuperUserAnswers(const QString &name, const QString &answer1, const QString &answer2,
                                      const QString &answer3)
{
    record("verifySuperUserAnswers", name, answer1, answer2, answer3);
    return fake().answersRight;
}

QString UserData::generateSuperUserCredentials(const QString &name)
{
    record("generateSuperUserCredentials", name);
    return fake().credentials;
}

bool UserData::checkSuperUserCredentials(const QString &name, const QString &credential)
{
    record("checkSuperUserCredentials", name, credential);
    return fake().credentialsValid;
}

} // namespace kelvra_data

// Worker library ----------------------------------------------------------------------------------------------------

ZSINGLETON_DEFINE(kelvra_worker::SystemWorker)
ZSINGLETON_DEFINE(kelvra_worker::LoginLogs)
ZSINGLETON_DEFINE(kelvra_worker::UiSettings)
ZSINGLETON_DEFINE(kelvra_worker::SysLanguage)
ZSINGLETON_DEFINE(kelvra_worker::DictDef)
ZSINGLETON_DEFINE(kelvra_worker::Customization)
ZSINGLETON_DEFINE(kelvra_worker::SystemAssistant)

namespace kelvra_worker {

class SystemWorker::Private
{
};

SystemWorker::SystemWorker() = default;
SystemWorker::~SystemWorker() = default;

void SystemWorker::setCurUserInfo(UserType type, const QString &name, const QString &password, int attribute,
                                  bool autoLogin)
{
    record("setCurUserInfo", int(type), name, password, attribute, autoLogin);
    fake().currentUser = name;
}

void SystemWorker::setLoginSuccess(bool success)
{
    record("setLoginSuccess", success);
    fake().loginSuccess = success;
}

bool SystemWorker::isLoginSuccess() const
{
    return fake().loginSuccess;
}

void SystemWorker::setLastLoggedInUserType(UserType type)
{
    record("setLastLoggedInUserType", int(type));
    fake().lastUserType = type;
}

UserType SystemWorker::lastLoggedUserType() const
{
    return fake().lastUserType;
}

const QString &SystemWorker::getCurUserName() const
{
    return fake().currentUser;
}

const QString &SystemWorker::getSuperUserName() const
{
    return fake().superUser.userName;
}

void SystemWorker::setSuperUserInfo(const QString &name, const QString &password)
{
    record("setSuperUserInfo", name, password);
}

LoginLogs::LoginLogs() = default;
LoginLogs::~LoginLogs() = default;

void LoginLogs::loginSuccessLog(const QString &name, int method, bool autoLogin)
{
    record("loginSuccessLog", name, method, autoLogin);
}

void LoginLogs::loginFailureLog(const QString &name, int method)
{
    record("loginFailureLog", name, method);
}

void LoginLogs::lockUserLog(const QString &name, int seconds)
{
    record("lockUserLog", name, seconds);
}

void LoginLogs::resetUserPwdLog(const QString &name)
{
    record("resetUserPwdLog", name);
}

void LoginLogs::createUserLog(const QString &name)
{
    record("createUserLog", name);
}

void LoginLogs::getbackPwdLog(const QString &name)
{
    record("getbackPwdLog", name);
}

void LoginLogs::exportLoginCredentialsLog(const QString &name)
{
    record("exportLoginCredentialsLog", name);
}

class UiSettings::Private
{
};

UiSettings::UiSettings() = default;
UiSettings::~UiSettings() = default;

QVariant UiSettings::getValue(const QString &key) const
{
    record("getValue", key);
    return fake().settings.value(key);
}

void UiSettings::setValue(const QString &key, const QVariant &value)
{
    record("setValue", key, value.toString());
    fake().settings[key] = value;
}

class SysLanguage::Private
{
};

SysLanguage::SysLanguage() = default;
SysLanguage::~SysLanguage() = default;

Language SysLanguage::getLanguage() const
{
    return Language(fake().language);
}

QMap<int, QString> SysLanguage::getLanguageNames() const
{
    return {{0, QStringLiteral("English")}, {4, QStringLiteral("Lingua")}};
}

void SysLanguage::setLanguage(Language language, bool save)
{
    record("setLanguage", int(language), save);
}

class DictDef::Private
{
};

DictDef::DictDef() = default;
DictDef::~DictDef() = default;

void DictDef::retranslate()
{
    record("retranslate");
    for (QString &question : fake().securityQuestions)
        question += QLatin1Char('\'');
}

QString DictDef::alertTitle(AlertTitle title) const
{
    return QStringLiteral("title %1").arg(title);
}

const QMap<int, QString> &DictDef::securityQuestions() const
{
    return fake().securityQuestions;
}

Customization::Customization() = default;
Customization::~Customization() = default;

const CustomizeInfo &Customization::getCustomizeInfo() const
{
    return fake().customization;
}

SystemAssistant::SystemAssistant() = default;
SystemAssistant::~SystemAssistant() = default;

void SystemAssistant::messageAlert(const QString &title, const QString &alertText)
{
    record("messageAlert", alertText);
    fake().alerts.append({title, alertText});
    runOnce(fake().whileAlertIsOpen);
}

} // namespace kelvra_worker

// Cloud library -----------------------------------------------------------------------------------------------------

ZSINGLETON_DEFINE(kelvra_saas::LoginWorker)
ZSINGLETON_DEFINE(kelvra_saas::SaasWorker)

namespace kelvra_saas {

class LoginWorker::Private
{
};

LoginWorker::LoginWorker() = default;
LoginWorker::~LoginWorker() = default;

void LoginWorker::tryAutoLogin(const QString &requestId, const QString &account, const AccountCallback &callback)
{
    record("tryAutoLogin", account);
    fake().autoLogins.append({requestId, account, QString(), callback});
}

void LoginWorker::tryAutoLogin(const QString &requestId, const QString &account, const QString &password,
                               const AccountCallback &callback)
{
    record("tryAutoLogin", account, password);
    fake().autoLogins.append({requestId, account, password, callback});
}

bool LoginWorker::cancelAccountAutoLogin(const QString &account)
{
    record("cancelAccountAutoLogin", account);
    return true;
}

QString LoginWorker::getRecentlyLoggedInAccount()
{
    return fake().recentAccount;
}

class SaasWorker::Private
{
};

SaasWorker::SaasWorker() = default;
SaasWorker::~SaasWorker() = default;

QString saasErrorMsg(int code, int subCode)
{
    return QStringLiteral("cloud error %1/%2").arg(code).arg(subCode);
}

} // namespace kelvra_saas

// What would block --------------------------------------------------------------------------------------------------

QString ZCOMMON::ZFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &directory,
                                              const QString &filter, QString *selectedFilter,
                                              QFileDialog::Options options)
{
    record("getOpenFileName", parent != nullptr, caption, directory, filter, selectedFilter != nullptr, int(options));
    runOnce(fake().whileFileDialogIsOpen);
    return fake().chosenFile;
}

kelvra_base::MessageBoxButton kelvra_base::ZMessageBox::warning(QWidget *parent, const QString &message, int buttons,
                                                                bool flag)
{
    record("warning", parent ? parent->objectName() : QString(), message, buttons, flag);
    fake().messageBoxes << message;
    runOnce(fake().whileMessageBoxIsOpen);
    return OkButton;
}
