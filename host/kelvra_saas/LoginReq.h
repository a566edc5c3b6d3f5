#pragma once

#include <QString>

namespace kelvra_saas {

/** A cloud login, by password ("PASSWORD") or by SMS code ("VERIFY_CODE"). */
struct LoginReq
{
    QString requestId;                              ///< echoed by the answer
    QString account;                                ///< phone number
    QString password;                               ///< empty for a login by code
    QString verificationCode;                       ///< empty for a login by password
    QString loginType = QStringLiteral("PASSWORD"); ///< "PASSWORD" or "VERIFY_CODE"
};

} // namespace kelvra_saas
