#pragma once

#include "host/kelvra_worker/DictDef.h"

#include <QString>

namespace kelvra_login {

/** Shows a modal alert under the dictionary's title. The caller may be gone when this returns. */
void messageAlert(kelvra_worker::DictDef::AlertTitle title, const QString &text);

/** The alert of every refusal that is not a failed creation or reset. */
void warningAlert(const QString &text);

} // namespace kelvra_login
