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

#include <QRegularExpression>
#include <QWidget>

#include <algorithm>

using namespace kelvra_data;
using namespace kelvra_saas;
using namespace kelvra_worker;

namespace {

using Text = const QString &;
using Texts = QMap<int, QString>;
FakeHost &host = FakeHost::get();

/** Records a call of `operation` with the arguments that it is handed. */
auto recordedAs(const char *operation)
{
    return [operation](const auto &...arguments) { host.record(operation, {QVariant(arguments).toString()...}); };
}

template <typename T, typename Value>
bool stored(T &place, const Value &value)
{
    place = value;
    return true;
}

// An operation that records the arguments in the second brackets and answers, or does, what the last argument says.
#define ANSWERED(RESULT, NAME, PARAMETERS, ARGUMENTS, ...)                                                             \
    RESULT NAME PARAMETERS                                                                                             \
    {                                                                                                                  \
        recordedAs(__func__) ARGUMENTS;                                                                                \
        return __VA_ARGS__;                                                                                            \
    }
#define DONE(NAME, PARAMETERS, ARGUMENTS, ...) ANSWERED(void, NAME, PARAMETERS, ARGUMENTS, void(__VA_ARGS__))
#define TOLD(NAME, PARAMETERS, ARGUMENTS) DONE(NAME, PARAMETERS, ARGUMENTS, 0)
#define UNRECORDED(RESULT, SIGNATURE, ...)                                                                             \
    RESULT SIGNATURE                                                                                                   \
    {                                                                                                                  \
        return __VA_ARGS__;                                                                                            \
    }

#define STATELESS(SPACE, CLASS)                                                                                        \
    ZSINGLETON_DEFINE(SPACE::CLASS)                                                                                    \
    SPACE::CLASS::CLASS() = default;                                                                                   \
    SPACE::CLASS::~CLASS() = default;
#define WITHOUT_PRIVATE_STATE(SPACE, CLASS)                                                                            \
    class SPACE::CLASS::Private                                                                                        \
    {                                                                                                                  \
    };                                                                                                                 \
    STATELESS(SPACE, CLASS)

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
        questions.insert(10 * id, QString("question %1").arg(10 * id));
    return questions;
}

FakeHost &FakeHost::get()
{
    static FakeHost instance;
    return instance;
}

void FakeHost::record(const QString &operation, const QStringList &arguments)
{
    calls << operation + '(' + arguments.join(',') + ')';
}

QStringList FakeHost::callsOf(const QStringList &operations) const
{
    return calls.filter(QRegularExpression("^(" + operations.join('|') + ")\\("));
}

FakeHost::User &FakeHost::rememberUser(const QString &name, const QString &password, int daysAgo)
{
    User &user = users[name];
    user.password = password;
    user.hasRecord = user.autoLogin = true;
    user.lastLogin = QDateTime::currentDateTime().addDays(-daysAgo);
    lastLocalUser = name;
    return user;
}

// Data library ------------------------------------------------------------------------------------------------------

WITHOUT_PRIVATE_STATE(kelvra_data, UserData)

ANSWERED(bool, UserData::isFirstLogin, (), (), host.firstLogin)
ANSWERED(bool, UserData::isUserExist, (Text name), (name), host.users.contains(name))
ANSWERED(bool, UserData::isSuperUser, (Text name), (name), host.users.value(name).superUser)
ANSWERED(bool, UserData::isSuperUserExist, (UserRole role), (int(role)),
         std::any_of(host.users.cbegin(), host.users.cend(), [](const auto &user) { return user.superUser; }))
ANSWERED(UserInfo, UserData::getUserInfo, (Text name), (name),
         {host.users.contains(name) ? name : QString(), host.users.value(name).password,
          host.users.value(name).attribute, QString(), QString()})
ANSWERED(SuperUserInfo, UserData::getSuperUserInfo, (Text name), (name), host.superUser)
ANSWERED(QString, UserData::getLastLoggedLocalUser, (), (), host.lastLocalUser)
ANSWERED(bool, UserData::verifyUserPassword, (Text name, Text password), (name, password),
         host.users.contains(name) && host.users[name].password == password)
ANSWERED(bool, UserData::verifyUserGesture, (Text name, Text gesture), (name, gesture),
         host.users.contains(name) && host.users[name].gesture == gesture)
ANSWERED(bool, UserData::getLockInfo, (bool &locked, int &seconds), (),
         host.lockKnown &&stored(locked, host.locked) && stored(seconds, host.lockSeconds))
ANSWERED(bool, UserData::updateLockInfo, (bool locked, int seconds), (locked, seconds),
         host.updatesSucceed &&stored(host.locked, locked) && stored(host.lockSeconds, seconds))
ANSWERED(bool, UserData::updateUserLoginRecord, (Text name, bool autoLogin), (name, autoLogin), true)
ANSWERED(bool, UserData::getUserLoginRecord, (Text name, bool &autoLogin, QDateTime &lastLogin), (name),
         host.users.value(name).hasRecord &&stored(autoLogin, host.users[name].autoLogin) &&
             stored(lastLogin, host.users[name].lastLogin))
ANSWERED(bool, UserData::isUserAutoLogin, (Text name), (name), host.users.value(name).autoLogin)
ANSWERED(bool, UserData::userAutoLoginCtrl, (Text name, bool on), (name, on), host.users.contains(name))
ANSWERED(bool, UserData::updateLoginEnvironment, (), (), true)
ANSWERED(bool, UserData::isSameLoginEnvironment, (), (), host.sameEnvironment)
ANSWERED(bool, UserData::isUserConfigureGesture, (Text name), (name), !host.users.value(name).gesture.isEmpty())
ANSWERED(bool, UserData::updateUserGesture, (Text name, Text gesture), (name, gesture),
         host.gestureUpdatesSucceed &&stored(host.users[name].gesture, gesture))
ANSWERED(bool, UserData::deleteUserGesture, (Text name), (name), host.gestureUpdatesSucceed)
ANSWERED(bool, UserData::addSuperUser, (const SuperUserInfo &info), (info.userName),
         stored(host.addedSuperUser, info) && host.addSuperUserSucceeds &&
             stored(host.users[info.userName].superUser, true) &&
             stored(host.users[info.userName].password, info.password))
ANSWERED(bool, UserData::addSuperUserFromSaasUser, (Text account), (account), true)
ANSWERED(bool, UserData::resetUserPwd, (Text name, Text password), (name, password), host.resetUserPwdSucceeds)
ANSWERED(bool, UserData::verifySuperUserAnswers, (Text name, Text answer1, Text answer2, Text answer3),
         (name, answer1, answer2, answer3), host.answersRight)
ANSWERED(QString, UserData::generateSuperUserCredentials, (Text name), (name), host.credentials)
ANSWERED(bool, UserData::checkSuperUserCredentials, (Text name, Text credential), (name, credential),
         host.credentialsValid)

// Worker library ----------------------------------------------------------------------------------------------------

WITHOUT_PRIVATE_STATE(kelvra_worker, SystemWorker)
STATELESS(kelvra_worker, LoginLogs)
WITHOUT_PRIVATE_STATE(kelvra_worker, UiSettings)
WITHOUT_PRIVATE_STATE(kelvra_worker, SysLanguage)
WITHOUT_PRIVATE_STATE(kelvra_worker, DictDef)
STATELESS(kelvra_worker, Customization)
STATELESS(kelvra_worker, SystemAssistant)

DONE(SystemWorker::setCurUserInfo, (UserType type, Text name, Text password, int attribute, bool autoLogin),
     (int(type), name, password, attribute, autoLogin), host.currentUser = name)
DONE(SystemWorker::setLoginSuccess, (bool success), (success), host.loginSuccess = success)
UNRECORDED(bool, SystemWorker::isLoginSuccess() const, host.loginSuccess)
DONE(SystemWorker::setLastLoggedInUserType, (UserType type), (int(type)), host.lastUserType = type)
UNRECORDED(UserType, SystemWorker::lastLoggedUserType() const, host.lastUserType)
UNRECORDED(Text, SystemWorker::getCurUserName() const, host.currentUser)
UNRECORDED(Text, SystemWorker::getSuperUserName() const, host.superUser.userName)
TOLD(SystemWorker::setSuperUserInfo, (Text name, Text password), (name, password))

TOLD(LoginLogs::loginSuccessLog, (Text name, int method, bool autoLogin), (name, method, autoLogin))
TOLD(LoginLogs::loginFailureLog, (Text name, int method), (name, method))
TOLD(LoginLogs::lockUserLog, (Text name, int seconds), (name, seconds))
TOLD(LoginLogs::addGestureLog, (Text name), (name))
TOLD(LoginLogs::updateGestureLog, (Text name), (name))
TOLD(LoginLogs::deleteGestureLog, (Text name), (name))
TOLD(LoginLogs::openAutoLoginLog, (Text name), (name))
TOLD(LoginLogs::cancelAutoLoginLog, (Text name), (name))
TOLD(LoginLogs::resetUserPwdLog, (Text name), (name))
TOLD(LoginLogs::createUserLog, (Text name), (name))
TOLD(LoginLogs::getbackPwdLog, (Text name), (name))
TOLD(LoginLogs::exportLoginCredentialsLog, (Text name), (name))

ANSWERED(QVariant, UiSettings::getValue, (Text key) const, (key), host.settings.value(key))
DONE(UiSettings::setValue, (Text key, const QVariant &value), (key, value), host.settings[key] = value)

UNRECORDED(Language, SysLanguage::getLanguage() const, Language(host.language))
UNRECORDED(Texts, SysLanguage::getLanguageNames() const, {{0, "English"}, {4, "Lingua"}})
TOLD(SysLanguage::setLanguage, (Language language, bool save), (int(language), save))

UNRECORDED(QString, DictDef::alertTitle(AlertTitle title) const, QString("title %1").arg(title))
UNRECORDED(const Texts &, DictDef::securityQuestions() const, host.securityQuestions)
DONE(DictDef::retranslate, (), (),
     std::for_each(host.securityQuestions.begin(), host.securityQuestions.end(), [](auto &text) { text += '\''; }))

UNRECORDED(const CustomizeInfo &, Customization::getCustomizeInfo() const, host.customization)

void SystemAssistant::messageAlert(const QString &title, const QString &alertText)
{
    recordedAs("messageAlert")(alertText);
    host.alerts.append({title, alertText});
    runOnce(host.whileAlertIsOpen);
}

// Cloud library -----------------------------------------------------------------------------------------------------

template <typename Calls, typename Call>
void keep(Calls &calls, const Call &call)
{
    calls.append(call);
    runOnce(host.whileCloudIsAsked);
}

template <typename Callback, typename... Rest>
void keepCall(const QString &requestId, const Callback &callback, const Rest &...rest)
{
    keep(host.cloudCalls,
         FakeHost::CloudCall{requestId, [=](const Response &response) { callback(response, rest...); }});
}

WITHOUT_PRIVATE_STATE(kelvra_saas, LoginWorker)
WITHOUT_PRIVATE_STATE(kelvra_saas, SaasWorker)

DONE(LoginWorker::login, (const LoginReq &request, const LoginCallback &callback),
     (request.account, request.password, request.verificationCode, request.loginType),
     keepCall(request.requestId, callback, LoginErrorInfo{QString(), 3, 2, 600, 30}))
DONE(LoginWorker::getVerificationCode, (const VerificationCodeReq &request, const ResponseCallback &callback),
     (request.account, request.purpose, request.accountKind), keepCall(request.requestId, callback))
DONE(LoginWorker::getAccountAfterScanQRCode, (Text requestId, const AccountCallback &callback), (),
     keepCall(requestId, callback, QString("13912345678")))
DONE(LoginWorker::getLoginQRCode, (Text requestId, const QRCodeCallback &callback), (),
     keep(host.qrCodeRequests, FakeHost::QRCodeCall<LoginWorker::QRCodeCallback>{requestId, callback}))
DONE(LoginWorker::checkLoginQRCodeStatus, (Text requestId, Text code, const QRCodeStatusCallback &callback), (code),
     keep(host.qrCodeStatusQueries, FakeHost::QRCodeCall<LoginWorker::QRCodeStatusCallback>{requestId, callback}))
DONE(LoginWorker::checkLoginQRCodeResult, (Text requestId, Text code, const ResponseCallback &callback), (code),
     keep(host.qrCodeResultQueries, FakeHost::QRCodeCall<LoginWorker::ResponseCallback>{requestId, callback}))
DONE(LoginWorker::tryAutoLogin, (Text requestId, Text account, const AccountCallback &callback), (account),
     keep(host.autoLogins, FakeHost::AutoLoginCall{requestId, account, callback}))
DONE(LoginWorker::tryAutoLogin, (Text requestId, Text account, Text password, const AccountCallback &callback),
     (account, password), keep(host.autoLogins, FakeHost::AutoLoginCall{requestId, account, callback}))
ANSWERED(bool, LoginWorker::cancelAccountAutoLogin, (Text account), (account), true)
UNRECORDED(QString, LoginWorker::getRecentlyLoggedInAccount(), host.recentAccount)

UNRECORDED(int, SaasWorker::getVerificationCodeRemainingSecs() const, host.resendSeconds)
DONE(SaasWorker::resetVerificationCodeRemainingSecs, (int seconds), (seconds), host.resendSeconds = seconds)
UNRECORDED(QString, kelvra_saas::saasErrorMsg(int code, int subCode),
           QString("cloud error %1/%2").arg(code).arg(subCode))

// What would block --------------------------------------------------------------------------------------------------

QString ZCOMMON::ZFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &directory,
                                              const QString &filter, QString *selectedFilter,
                                              QFileDialog::Options options)
{
    recordedAs(__func__)(parent != nullptr, caption, directory, filter, selectedFilter != nullptr, int(options));
    runOnce(host.whileFileDialogIsOpen);
    return host.chosenFile;
}

kelvra_base::MessageBoxButton kelvra_base::ZMessageBox::warning(QWidget *parent, const QString &message, int buttons,
                                                                bool flag)
{
    recordedAs(__func__)(parent ? parent->objectName() : QString(), message, buttons, flag);
    runOnce(host.whileMessageBoxIsOpen);
    return OkButton;
}
