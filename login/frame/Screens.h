#pragma once

namespace kelvra_login {

/** Enters every screen of the module in the router's table. Entering them again changes nothing. */
void enterScreens();

} // namespace kelvra_login
