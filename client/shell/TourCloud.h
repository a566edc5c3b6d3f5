#pragma once

#include "client/shell/TourScript.h"

namespace kelvra_client {

/** Cloud accounts: login by password, SMS code and QR code, every refusal, and the simulated phone beside it. */
class TourCloud
{
public:
    TourCloud() = delete;

    static QVector<TourStage> stages();
};

} // namespace kelvra_client
