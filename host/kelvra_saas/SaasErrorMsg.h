#pragma once

#include "host/Export.h"

#include <QString>

namespace kelvra_saas {

/** The text, in the language in force, for a cloud call that failed; never empty. */
KELVRA_SAAS_EXPORT QString saasErrorMsg(int code, int subCode);

} // namespace kelvra_saas
