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
    void loginSuccessLog(const QString &name, int method, bool autoLogin);
    void loginFailureLog(const QString &name, int method);

    /** Local login has been locked for `seconds` by failures of `name`. */
    void lockUserLog(const QString &name, int seconds);

    void addGestureLog(const QString &name);
    void updateGestureLog(const QString &name);
    void deleteGestureLog(const QString &name);
    void openAutoLoginLog(const QString &name);
    void cancelAutoLoginLog(const QString &name);
    void getbackPwdLog(const QString &name);
    void resetUserPwdLog(const QString &name);
    void exportLoginCredentialsLog(const QString &name);
    void createUserLog(const QString &name);

private:
    friend class ZCOMMON::ZSingleton<LoginLogs>;
    LoginLogs();
    ~LoginLogs();
};

} // namespace kelvra_worker
