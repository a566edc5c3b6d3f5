#pragma once

#include <QString>

namespace kelvra_worker {

/** What a delivery of the client customises. */
struct CustomizeInfo
{
    bool cloudLoginEnabled = false;         ///< users may log in with a cloud account
    bool customLoadingImageEnabled = false; ///< the splash screen shows an image of the delivery's own
    QString loadingImagePath;               ///< file path of that image; a missing file falls back to the built-in one
};

} // namespace kelvra_worker
