#pragma once

#include "client/shell/TourScript.h"

namespace kelvra_client {

/** The default superuser's first login, ordinary users, remembered and refused logins, the lock, another language. */
class TourLocalUser
{
public:
    TourLocalUser() = delete;

    static QVector<TourStage> stages();
};

} // namespace kelvra_client
