#pragma once

#include <QString>

namespace kelvra_worker {

/** Keys under which the services keep state of their own in UiSettings. */
inline const QString languageKey = QStringLiteral("language");
inline const QString lastUserTypeKey = QStringLiteral("last_login_user_type");

/** The module's only one. */
inline const QString loginModeKey = QStringLiteral("client_login_mode");

} // namespace kelvra_worker
