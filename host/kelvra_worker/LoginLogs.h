#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QString>

namespace kelvra_worker {
class LoginLogs;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::LoginLogs)

namespace kelvra_worker {

/**
 * Audit entries. Each call writes one entry with the present time; none answers, since the module has nothing
 * to do about a failure: the host reports an entry that it could not write in its own way.
 *
 * A `method` is 0 for a password login and 1 for a gesture login.
 */
class KELVRA_WORKER_EXPORT LoginLogs : public ZCOMMON::ZSingleton<LoginLogs>
{
public:
    /** `name` has logged in; `autoLogin` tells whether the next login may be automatic. */
    void loginSuccessLog(const QString &name, int method, bool autoLogin);
    /** A wrong password or gesture for `name`, who need not exist. */
    void loginFailureLog(const QString &name, int method);

    /** Local login has been locked for `seconds` by failures of `name`. */
    void lockUserLog(const QString &name, int seconds);

    /** `name` has a gesture, and had none before. */
    void addGestureLog(const QString &name);
    /** The gesture of `name` has been replaced. */
    void updateGestureLog(const QString &name);
    /** The gesture of `name` has been taken away. */
    void deleteGestureLog(const QString &name);
    /** Automatic login of `name` has been switched on after the login. */
    void openAutoLoginLog(const QString &name);
    /** Automatic login of `name` has been switched off after the login. */
    void cancelAutoLoginLog(const QString &name);
    /** The password of the superuser `name` has been shown to whoever answered or had the credentials file. */
    void getbackPwdLog(const QString &name);
    /** The superuser `name` has a new password by way of recovery. */
    void resetUserPwdLog(const QString &name);
    /** `name`, who is logged in, has exported the superuser's login-credentials file. */
    void exportLoginCredentialsLog(const QString &name);
    /** The superuser `name` has been created with security questions of its own. */
    void createUserLog(const QString &name);

private:
    friend class ZCOMMON::ZSingleton<LoginLogs>;
    LoginLogs();
    ~LoginLogs();
};

} // namespace kelvra_worker
