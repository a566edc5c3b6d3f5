#pragma once

#include <QDateTime>
#include <QString>

namespace kelvra_data {

/** The one event that this library writes itself; AuditEntry::user is then the former superuser. */
constexpr char superUserReplacedEvent[] = "superuser replaced";

/** One line of the audit log. */
struct AuditEntry
{
    QDateTime at;       ///< kept in UTC with milliseconds
    QString event;      ///< what happened, a word of the worker library's choosing
    QString user;       ///< whom it concerns
    int method = -1;    ///< 0 password login, 1 gesture login, 2 login with a cloud account, -1 when it does not apply
    int autoLogin = -1; ///< 0 or 1, -1 when it does not apply
    int seconds = -1;   ///< length of a lock, -1 when it does not apply
};

} // namespace kelvra_data
