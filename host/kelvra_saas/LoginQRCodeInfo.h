#pragma once

#include <QString>

namespace kelvra_saas {

/** A login QR code. */
struct LoginQRCodeInfo
{
    QString id;              ///< by which the code's status and result are asked for
    QString image;           ///< put into the `src` of an HTML image: resource path, file path or data URI
    int validitySeconds = 0; ///< how long the code may be scanned, in seconds
};

} // namespace kelvra_saas
