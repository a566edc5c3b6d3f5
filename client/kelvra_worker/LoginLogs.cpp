#include "host/kelvra_worker/LoginLogs.h"

#include "client/kelvra_worker/AuditTrail.h"

ZSINGLETON_DEFINE(kelvra_worker::LoginLogs)

namespace kelvra_worker {

namespace {

template <typename... Numbers>
void write(AuditEvent event, const QString &user, Numbers... numbers)
{
    AuditTrail::_instance().write(event, user, numbers...);
}

} // namespace

LoginLogs::LoginLogs() = default;

LoginLogs::~LoginLogs() = default;

void LoginLogs::loginSuccessLog(const QString &name, int method, bool autoLogin)
{
    write(AuditEvent::LoginSuccess, name, method, autoLogin ? 1 : 0);
}

void LoginLogs::loginFailureLog(const QString &name, int method)
{
    write(AuditEvent::LoginFailure, name, method);
}

void LoginLogs::lockUserLog(const QString &name, int seconds)
{
    write(AuditEvent::Lock, name, -1, -1, seconds);
}

void LoginLogs::addGestureLog(const QString &name)
{
    write(AuditEvent::AddGesture, name);
}

void LoginLogs::updateGestureLog(const QString &name)
{
    write(AuditEvent::UpdateGesture, name);
}

void LoginLogs::deleteGestureLog(const QString &name)
{
    write(AuditEvent::DeleteGesture, name);
}

void LoginLogs::openAutoLoginLog(const QString &name)
{
    write(AuditEvent::OpenAutoLogin, name);
}

void LoginLogs::cancelAutoLoginLog(const QString &name)
{
    write(AuditEvent::CancelAutoLogin, name);
}

void LoginLogs::getbackPwdLog(const QString &name)
{
    write(AuditEvent::GetBackPassword, name);
}

void LoginLogs::resetUserPwdLog(const QString &name)
{
    write(AuditEvent::ResetPassword, name);
}

void LoginLogs::exportLoginCredentialsLog(const QString &name)
{
    write(AuditEvent::ExportCredentials, name);
}

void LoginLogs::createUserLog(const QString &name)
{
    write(AuditEvent::CreateUser, name);
}

} // namespace kelvra_worker
