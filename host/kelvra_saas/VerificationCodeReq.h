#pragma once

#include <QString>

namespace kelvra_saas {

/** A request to send an SMS code. */
struct VerificationCodeReq
{
    QString requestId;                             ///< echoed by the answer
    QString account;                               ///< phone number
    QString purpose = QStringLiteral("LOGIN");     ///< what the code is for; the module knows no other
    QString accountKind = QStringLiteral("PHONE"); ///< what `account` is; the module knows no other
};

} // namespace kelvra_saas
