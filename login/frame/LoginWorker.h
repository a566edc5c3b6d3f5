#pragma once

#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_data/SuperUserInfo.h"
#include "host/kelvra_saas/LoginErrorInfo.h"
#include "host/kelvra_worker/UserType.h"
#include "login/common/Handlers.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace kelvra_login {
class LoginWorker;
}

ZSINGLETON_DECLARE(, kelvra_login::LoginWorker)

namespace kelvra_login {

/** Failed local verifications, of passwords and gestures together, that lock local login. */
constexpr int maxFailures = 5;

/** Length of the lock that failures bring, in seconds. */
constexpr int lockSecondsOnFailure = 180;

/** UI setting that tells how the last login was made, with its values. */
inline const QString loginModeKey = QStringLiteral("client_login_mode");
constexpr int passwordLoginMode = 0;
constexpr int gestureLoginMode = 1;

/** How long after a page has been built or a login handed over an automatic login waits, in milliseconds. */
constexpr int autoLoginDelayMs = 500;

/** A remembered login is honoured while fewer whole days than this have passed since the last one. */
constexpr int rememberedLoginDays = 7;

/**
 * The module's login logic that is not tied to a screen: which screen a login opens on, the counting of failed
 * local verifications, the lock of local login, and what ends every successful login. GUI thread only.
 */
class LoginWorker : public QObject, public ZCOMMON::ZSingleton<LoginWorker>
{
    Q_OBJECT

public:
    ~LoginWorker() override;

    /** See LoginInit::login. */
    void login(kelvra_worker::UserType type, const QStringList &params, bool autoLoginAllowed);
    /** See LoginInit::switchUser. */
    void switchUser();

    /** Asks the data library; a wrong password counts as a failure. */
    bool verifyPassword(const QString &userName, const QString &pwd);
    /** Asks the data library; a wrong gesture counts as a failure. */
    bool verifyGesture(const QString &userName, const QString &gesture);
    /** Consecutive failures since the last success or unlock. */
    int failedTimes() const;

    /** Whether the last `login` call allowed automatic logins; false after `switchUser`. */
    bool isAutoLoginAllowed() const;
    /**
     * Whether `name` asked to be remembered at a login that is fewer than rememberedLoginDays days old and was
     * made on this computer.
     */
    bool isLoginRemembered(const QString &name) const;

    /** Locks local login for 180 s, or unlocks it and forgets the failures; the data library's answer. */
    bool setLocked(bool locked);
    /** Stores what is left of a lock, in seconds; 0 or less stores "not locked". The data library's answer. */
    bool setLockSeconds(int remainingSeconds);
    bool isLocked();
    /** Reads the stored lock into the arguments and into the worker. */
    void refreshLockInfo(bool &locked, int &seconds);

    /** Ends a local login made by a screen: records it, clears the lock, announces it. */
    void loginSuccess(const QString &userName, const QString &pwd, bool autoLogin);
    /** Ends a cloud login: adopts an account that is new here, records the user, announces it. */
    void saasLoginSuccess(const QString &account, bool autoLogin);

    /** Tells how near to being locked a cloud account is, or that it is. */
    void showLockAlert(const kelvra_saas::LoginErrorInfo &info);

    /** Lets the user choose a login-credentials file; true when it is the one of `userName`. */
    bool importLoginCredentials(const QString &userName);

    /** The superuser that "Use Default Superuser" creates. */
    kelvra_data::SuperUserInfo defaultSuperUserInfo() const;

protected:
    LoginWorker();

private:
    friend class ZCOMMON::ZSingleton<LoginWorker>;

    void emitLocalLoginEvent(const QStringList &params);
    void tryHandedOverLogin(kelvra_worker::UserType type, const QStringList &params);
    void tryCloudAutoLogin(const QString &account, const QString &password);
    void finishHandedOverLogin(const QString &userName, const QString &pwd);
    void announceSuccess(const QString &userName);

    int lockSeconds = -1;
    int lockState = -1;
    int failedCount = 0;
    bool autoLoginAllowed = true;
    std::unique_ptr<Handlers> handedOver = std::make_unique<Handlers>(); ///< lives as long as logins handed over count
};

} // namespace kelvra_login
