#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_worker/UserType.h"

#include <QString>

#include <memory>

namespace kelvra_worker {
class SystemWorker;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::SystemWorker)

namespace kelvra_worker {

/** The client-wide state of who is logged in. */
class KELVRA_WORKER_EXPORT SystemWorker : public ZCOMMON::ZSingleton<SystemWorker>
{
public:
    /**
     * Records the user who is logging in, just before setLoginSuccess(true).
     *
     * The kind of the last login (lastLoggedUserType) is taken from `type` here.
     *
     * @param type      local or cloud
     * @param name      user name or cloud account
     * @param password  the password typed or stored; the host keeps it in memory only
     * @param attribute UserInfo::attribute of the user, passed on unchanged
     * @param autoLogin the user asked to be logged in automatically next time
     */
    void setCurUserInfo(UserType type, const QString &name, const QString &password, int attribute, bool autoLogin);

    /** The client-wide logged-in flag. The shell clears it before it asks for a change of user. */
    void setLoginSuccess(bool success);
    /** Whether somebody is in. Automatic logins and late answers of the cloud ask before they log in. */
    bool isLoginSuccess() const;

    /** Stores the kind of the last login, for later runs as well; also at the choice of the cloud on the first run. */
    void setLastLoggedInUserType(UserType type);
    /** The kind of the last login, of this run or an earlier one; LocalUser before the first. */
    UserType lastLoggedUserType() const;

    /** Name of the user recorded last, empty before the first login of this run. */
    const QString &getCurUserName() const;

    /** Name of the local superuser, empty while none exists. */
    const QString &getSuperUserName() const;

    /** The superuser's credentials, for the rest of the client; kept in memory only. */
    void setSuperUserInfo(const QString &name, const QString &password);

private:
    friend class ZCOMMON::ZSingleton<SystemWorker>;
    SystemWorker();
    ~SystemWorker();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_worker
