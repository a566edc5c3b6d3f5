#pragma once

namespace kelvra_data {

/** Role of a local user. */
enum UserRole : int {
    SuperUserRole = 0,   ///< the only value that the module passes
    OrdinaryUserRole = 2 ///< everybody else
};

} // namespace kelvra_data
