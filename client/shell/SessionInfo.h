#pragma once

#include "host/kelvra_worker/UserType.h"

#include <QDateTime>
#include <QString>

namespace kelvra_client {

/** Who is logged in, and how it came about. */
struct SessionInfo
{
    QString user;
    kelvra_worker::UserType type = kelvra_worker::LocalUser;
    int method = -1;        ///< 0 password, 1 gesture, -1 not told (a user just created, a cloud account)
    bool autoLogin = false; ///< the next login on this computer may be automatic
    QDateTime since;
};

} // namespace kelvra_client
