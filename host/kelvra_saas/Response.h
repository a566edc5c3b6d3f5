#pragma once

#include <QString>

namespace kelvra_saas {

/** Result code of a cloud call that succeeded. */
constexpr int successCode = 1000;

/** The result of a cloud call. */
struct Response
{
    QString requestId; ///< the id that the caller gave, echoed
    int code = 0;      ///< successCode, or what saasErrorMsg takes first
    int subCode = 0;   ///< what saasErrorMsg takes second
    QString message;   ///< the service's own text; not read by the module
};

} // namespace kelvra_saas
