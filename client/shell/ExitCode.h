#pragma once

namespace kelvra_client {

/** Exit codes of the program; the help and README.md list them. */
enum ExitCode {
    ExitDone = 0,       ///< after quitting, or after another client has come to the front
    ExitCannotRun = 1,  ///< the folder cannot be used, or there is no display, font or database driver
    ExitWrongUse = 2,   ///< wrong options, or no usable password
    ExitNotLoggedIn = 3 ///< another client has come to the front, and nobody was logged in as asked
};

} // namespace kelvra_client
