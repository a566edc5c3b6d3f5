#pragma once

#include "client/shell/TourScript.h"

namespace kelvra_client {

/** A superuser of one's own, and every way back to a forgotten password. */
class TourSuperUser
{
public:
    TourSuperUser() = delete;

    static QVector<TourStage> stages();
};

} // namespace kelvra_client
