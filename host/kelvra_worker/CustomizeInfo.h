#pragma once

#include <QString>

namespace kelvra_worker {

/** What a delivery of the client customises. */
struct CustomizeInfo
{
    bool cloudLoginEnabled = false;         ///< users may log in with a cloud account
    bool customLoadingImageEnabled = false; ///< the splash screen shows an image of the delivery's own
    /** File path of that image. One that is missing, no picture or larger than 40 MiB leaves the built-in image. */
    QString loadingImagePath;
};

} // namespace kelvra_worker
