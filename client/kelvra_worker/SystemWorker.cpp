#include "host/kelvra_worker/SystemWorker.h"

#include "client/kelvra_worker/WorkerKeys.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/UiSettings.h"

ZSINGLETON_DEFINE(kelvra_worker::SystemWorker)

namespace kelvra_worker {

/** A user as recorded at login. */
struct LoggedInUser
{
    QString name;
    QString password;
    int attribute = 0;
    bool autoLogin = false;
};

class SystemWorker::Private
{
public:
    LoggedInUser current;
    QString superUserName;     ///< what getSuperUserName refers to
    QString superUserPassword; ///< never leaves memory
    bool loginSuccess = false;
};

SystemWorker::SystemWorker()
    : d(std::make_unique<Private>())
{
}

SystemWorker::~SystemWorker() = default;

void SystemWorker::setCurUserInfo(UserType type, const QString &name, const QString &password, int attribute,
                                  bool autoLogin)
{
    d->current = {name, password, attribute, autoLogin};
    setLastLoggedInUserType(type);
    // A local user's choice is in the login record; an account has none.
    if (type == CloudUser)
        kelvra_data::UserData::_instance().userAutoLoginCtrl(name, autoLogin);
}

void SystemWorker::setLoginSuccess(bool success)
{
    d->loginSuccess = success;
}

bool SystemWorker::isLoginSuccess() const
{
    return d->loginSuccess;
}

void SystemWorker::setLastLoggedInUserType(UserType type)
{
    UiSettings::_instance().setValue(lastUserTypeKey, int(type));
}

UserType SystemWorker::lastLoggedUserType() const
{
    // Anything else that an edited file may hold counts as the time before the first login.
    return UiSettings::_instance().getValue(lastUserTypeKey).toInt() == CloudUser ? CloudUser : LocalUser;
}

const QString &SystemWorker::getCurUserName() const
{
    return d->current.name;
}

const QString &SystemWorker::getSuperUserName() const
{
    d->superUserName = kelvra_data::UserData::_instance().getSuperUserInfo(d->current.name).userName;
    return d->superUserName;
}

void SystemWorker::setSuperUserInfo(const QString &name, const QString &password)
{
    d->superUserName = name;
    d->superUserPassword = password;
}

} // namespace kelvra_worker
