#pragma once

#include "host/Export.h"

#include <QString>

namespace kelvra_worker {

/** What the audit log tells of. */
enum class AuditEvent {
    LoginSuccess, ///< with the method, and whether the next login may be automatic
    LoginFailure, ///< with the method
    Lock,         ///< with the seconds
    AddGesture,
    UpdateGesture,
    DeleteGesture,
    OpenAutoLogin,
    CancelAutoLogin,
    GetBackPassword,
    ResetPassword,
    ExportCredentials,
    CreateUser,
    AddUser, ///< an ordinary local user; as the next two by the superuser's hand
    RemoveUser,
    SetPassword,
    ReplaceSuperUser ///< with the former one, who is gone with the ordinary local users
};

/** The word under which an event is stored. */
KELVRA_WORKER_EXPORT QString auditWord(AuditEvent event);

/** A stored word in the language in force; a word of another version of the client as it stands. */
KELVRA_WORKER_EXPORT QString translatedAuditWord(const QString &word);

} // namespace kelvra_worker
