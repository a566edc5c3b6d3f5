#pragma once

namespace kelvra_worker {

/** How a user is known to the client. */
enum UserType : int {
    LocalUser = 1, ///< user of the local data library
    CloudUser = 2  ///< account of the cloud service
};

} // namespace kelvra_worker
