#include "login/frame/LoginSignals.h"

ZSINGLETON_DEFINE(kelvra_login::LoginSignals)

namespace kelvra_login {

LoginSignals::LoginSignals() = default;

LoginSignals::~LoginSignals() = default;

} // namespace kelvra_login
