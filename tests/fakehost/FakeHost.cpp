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

#include <algorithm>

namespace {

FakeHost &fake()
{
    return FakeHost::get();
}

template <typename... Arguments>
void record(const char *operation, const Arguments &...arguments)
{
    fake().record(QString::fromLatin1(operation), {QVariant(arguments).toString()...});
}

/** Records a call of `operation` with the arguments that it is handed. */
auto recordedAs(const char *operation)
{
    return [operation](const auto &...arguments) { record(operation, arguments...); };
}

// An operation that records the arguments in the second brackets and answers, or does, what the last argument says.
#define ANSWERED(RESULT, NAME, PARAMETERS, ARGUMENTS, ANSWER)                                                          \
    RESULT NAME PARAMETERS                                                                                             \
    {                                                                                                                  \
        recordedAs(__func__) ARGUMENTS;                                                                                \
        return ANSWER;                                                                                                 \
    }
#define UNRECORDED(RESULT, SIGNATURE, ANSWER)                                                                          \
    RESULT SIGNATURE                                                                                                   \
    {                                                                                                                  \
        return ANSWER;                                                                                                 \
    }
#define DONE(NAME, PARAMETERS, ARGUMENTS, ACTION) ANSWERED(void, NAME, PARAMETERS, ARGUMENTS, void(ACTION))
#define TOLD(NAME, PARAMETERS, ARGUMENTS) DONE(NAME, PARAMETERS, ARGUMENTS, 0)

#define STATELESS(CLASS)                                                                                               \
    CLASS::CLASS() = default;                                                                                          \
    CLASS::~CLASS() = default;
#define WITHOUT_PRIVATE_STATE(CLASS)                                                                                   \
    class CLASS::Private                                                                                               \
    {                                                                                                                  \
    };                                                                                                                 \
    STATELESS(CLASS)

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

WITHOUT_PRIVATE_STATE(UserData)

ANSWERED(bool, UserData::isFirstLogin, (), (), fake().firstLogin)
ANSWERED(bool, UserData::isUserExist, (const QString &name), (name), fake().users.contains(name))
ANSWERED(bool, UserData::isSuperUser, (const QString &name), (name), fake().users.value(name).superUser)
ANSWERED(bool, UserData::isSuperUserExist, (UserRole role), (int(role)),
         std::any_of(fake().users.cbegin(), fake().users.cend(), [](const auto &user) { return user.superUser; }))

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

ANSWERED(SuperUserInfo, UserData::getSuperUserInfo, (const QString &name), (name), fake().superUser)
ANSWERED(QString, UserData::getLastLoggedLocalUser, (), (), fake().lastLocalUser)
ANSWERED(bool, UserData::verifyUserPassword, (const QString &name, const QString &password), (name, password),
         fake().users.contains(name) && fake().users[name].password == password)
ANSWERED(bool, UserData::verifyUserGesture, (const QString &name, const QString &gesture), (name, gesture),
         fake().users.contains(name) && fake().users[name].gesture == gesture)

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

ANSWERED(bool, UserData::updateUserLoginRecord, (const QString &name, bool autoLogin), (name, autoLogin), true)

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

ANSWERED(bool, UserData::isUserAutoLogin, (const QString &name), (name), fake().users.value(name).autoLogin)
ANSWERED(bool, UserData::userAutoLoginCtrl, (const QString &name, bool on), (name, on), fake().users.contains(name))
ANSWERED(bool, UserData::updateLoginEnvironment, (), (), true)
ANSWERED(bool, UserData::isSameLoginEnvironment, (), (), fake().sameEnvironment)
ANSWERED(bool, UserData::isUserConfigureGesture, (const QString &name), (name),
         !fake().users.value(name).gesture.isEmpty())

bool UserData::updateUserGesture(const QString &name, const QString &gesture)
{
    record("updateUserGesture", name, gesture);
    if (fake().gestureUpdatesSucceed)
        fake().users[name].gesture = gesture;
    return fake().gestureUpdatesSucceed;
}

ANSWERED(bool, UserData::deleteUserGesture, (const QString &name), (name), fake().gestureUpdatesSucceed)

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

ANSWERED(bool, UserData::addSuperUserFromSaasUser, (const QString &account), (account), true)
ANSWERED(bool, UserData::resetUserPwd, (const QString &name, const QString &password), (name, password),
         fake().resetUserPwdSucceeds)
ANSWERED(bool, UserData::verifySuperUserAnswers,
         (const QString &name, const QString &answer1, const QString &answer2, const QString &answer3),
         (name, answer1, answer2, answer3), fake().answersRight)
ANSWERED(QString, UserData::generateSuperUserCredentials, (const QString &name), (name), fake().credentials)
ANSWERED(bool, UserData::checkSuperUserCredentials, (const QString &name, const QString &credential),
         (name, credential), fake().credentialsValid)

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

WITHOUT_PRIVATE_STATE(SystemWorker)

DONE(SystemWorker::setCurUserInfo,
     (UserType type, const QString &name, const QString &password, int attribute, bool autoLogin),
     (int(type), name, password, attribute, autoLogin), fake().currentUser = name)
DONE(SystemWorker::setLoginSuccess, (bool success), (success), fake().loginSuccess = success)
UNRECORDED(bool, SystemWorker::isLoginSuccess() const, fake().loginSuccess)
DONE(SystemWorker::setLastLoggedInUserType, (UserType type), (int(type)), fake().lastUserType = type)
UNRECORDED(UserType, SystemWorker::lastLoggedUserType() const, fake().lastUserType)
UNRECORDED(const QString &, SystemWorker::getCurUserName() const, fake().currentUser)
UNRECORDED(const QString &, SystemWorker::getSuperUserName() const, fake().superUser.userName)
TOLD(SystemWorker::setSuperUserInfo, (const QString &name, const QString &password), (name, password))

STATELESS(LoginLogs)

TOLD(LoginLogs::loginSuccessLog, (const QString &name, int method, bool autoLogin), (name, method, autoLogin))
TOLD(LoginLogs::loginFailureLog, (const QString &name, int method), (name, method))
TOLD(LoginLogs::lockUserLog, (const QString &name, int seconds), (name, seconds))
TOLD(LoginLogs::addGestureLog, (const QString &name), (name))
TOLD(LoginLogs::updateGestureLog, (const QString &name), (name))
TOLD(LoginLogs::deleteGestureLog, (const QString &name), (name))
TOLD(LoginLogs::openAutoLoginLog, (const QString &name), (name))
TOLD(LoginLogs::cancelAutoLoginLog, (const QString &name), (name))
TOLD(LoginLogs::resetUserPwdLog, (const QString &name), (name))
TOLD(LoginLogs::createUserLog, (const QString &name), (name))
TOLD(LoginLogs::getbackPwdLog, (const QString &name), (name))
TOLD(LoginLogs::exportLoginCredentialsLog, (const QString &name), (name))

WITHOUT_PRIVATE_STATE(UiSettings)

ANSWERED(QVariant, UiSettings::getValue, (const QString &key) const, (key), fake().settings.value(key))
DONE(UiSettings::setValue, (const QString &key, const QVariant &value), (key, value.toString()),
     fake().settings[key] = value)

WITHOUT_PRIVATE_STATE(SysLanguage)

UNRECORDED(Language, SysLanguage::getLanguage() const, Language(fake().language))

QMap<int, QString> SysLanguage::getLanguageNames() const
{
    return {{0, QStringLiteral("English")}, {4, QStringLiteral("Lingua")}};
}

TOLD(SysLanguage::setLanguage, (Language language, bool save), (int(language), save))

WITHOUT_PRIVATE_STATE(DictDef)

void DictDef::retranslate()
{
    record("retranslate");
    for (QString &question : fake().securityQuestions)
        question += QLatin1Char('\'');
}

UNRECORDED(QString, DictDef::alertTitle(AlertTitle title) const, QStringLiteral("title %1").arg(title))

const QMap<int, QString> &DictDef::securityQuestions() const
{
    return fake().securityQuestions;
}

STATELESS(Customization)

UNRECORDED(const CustomizeInfo &, Customization::getCustomizeInfo() const, fake().customization)

STATELESS(SystemAssistant)

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

template <typename Callback, typename... Rest>
void keepCall(const QString &requestId, const Callback &callback, const Rest &...rest)
{
    fake().cloudCalls.append({requestId, [=](const Response &response) { callback(response, rest...); }});
}

WITHOUT_PRIVATE_STATE(LoginWorker)

DONE(LoginWorker::login, (const LoginReq &request, const LoginCallback &callback),
     (request.account, request.password, request.verificationCode, request.loginType),
     keepCall(request.requestId, callback, LoginErrorInfo{QString(), 3, 2, 600, 30}))
DONE(LoginWorker::getVerificationCode, (const VerificationCodeReq &request, const ResponseCallback &callback),
     (request.account, request.purpose, request.accountKind), keepCall(request.requestId, callback))
DONE(LoginWorker::getAccountAfterScanQRCode, (const QString &requestId, const AccountCallback &callback), (),
     keepCall(requestId, callback, QStringLiteral("13912345678")))
DONE(LoginWorker::getLoginQRCode, (const QString &requestId, const QRCodeCallback &callback), (),
     fake().qrCodeRequests.append({requestId, QString(), callback}))
DONE(LoginWorker::checkLoginQRCodeStatus,
     (const QString &requestId, const QString &qrCodeId, const QRCodeStatusCallback &callback), (qrCodeId),
     fake().qrCodeStatusQueries.append({requestId, qrCodeId, callback}))
DONE(LoginWorker::checkLoginQRCodeResult,
     (const QString &requestId, const QString &qrCodeId, const ResponseCallback &callback), (qrCodeId),
     fake().qrCodeResultQueries.append({requestId, qrCodeId, callback}))
DONE(LoginWorker::tryAutoLogin, (const QString &requestId, const QString &account, const AccountCallback &callback),
     (account), fake().autoLogins.append({requestId, account, QString(), callback}))
DONE(LoginWorker::tryAutoLogin,
     (const QString &requestId, const QString &account, const QString &password, const AccountCallback &callback),
     (account, password), fake().autoLogins.append({requestId, account, password, callback}))
ANSWERED(bool, LoginWorker::cancelAccountAutoLogin, (const QString &account), (account), true)
UNRECORDED(QString, LoginWorker::getRecentlyLoggedInAccount(), fake().recentAccount)

WITHOUT_PRIVATE_STATE(SaasWorker)

UNRECORDED(int, SaasWorker::getVerificationCodeRemainingSecs() const, fake().resendSeconds)
DONE(SaasWorker::resetVerificationCodeRemainingSecs, (int seconds), (seconds), fake().resendSeconds = seconds)
UNRECORDED(QString, saasErrorMsg(int code, int subCode), QStringLiteral("cloud error %1/%2").arg(code).arg(subCode))

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
