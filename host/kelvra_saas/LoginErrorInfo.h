#pragma once

#include <QString>

namespace kelvra_saas {

/** How near a cloud account is to being locked by failed logins. */
struct LoginErrorInfo
{
    QString account;           ///< not read by the module
    int errorCount = 0;        ///< failed logins in the window so far
    int remainingAttempts = 0; ///< below 1: the account is locked
    int periodSeconds = 0;     ///< the window in which errors are counted, in seconds
    int lockMinutes = 0;       ///< how long a lock lasts, in minutes
};

} // namespace kelvra_saas
