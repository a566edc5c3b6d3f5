#pragma once

#include "host/kelvra_worker/UserType.h"

#include <QDateTime>
#include <QString>

namespace kelvra_client {

/** Who is logged in, and how it came about. */
struct SessionInfo
{
    /** The first two as LoginLogs takes them, the third for the client's own entries. */
    enum Method { PasswordMethod = 0, GestureMethod = 1, CloudMethod = 2 };

    /** How the client writes a time, with QDateTime::toString. */
    static inline const QString timeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

    QString user;
    kelvra_worker::UserType type = kelvra_worker::LocalUser;
    int method = -1; ///< a Method, -1 when it was not told (a user just created)
    QDateTime since;
};

} // namespace kelvra_client
