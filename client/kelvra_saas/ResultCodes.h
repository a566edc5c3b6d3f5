#pragma once

namespace kelvra_saas {

/** Response::code of every call while this installation has no cloud service. */
constexpr int serviceUnavailableCode = 1;

} // namespace kelvra_saas
