#pragma once

#include <QString>

namespace kelvra_saas {

/** A request to send an SMS code. */
struct VerificationCodeReq
{
    QString requestId;
    QString account; ///< phone number
    QString purpose = QStringLiteral("LOGIN");
    QString accountKind = QStringLiteral("PHONE");
};

} // namespace kelvra_saas
