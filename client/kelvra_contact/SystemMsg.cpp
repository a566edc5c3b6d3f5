#include "host/kelvra_contact/SystemMsg.h"

ZSINGLETON_DEFINE(kelvra_contact::SystemMsg)

namespace kelvra_contact {

SystemMsg::SystemMsg() = default;

SystemMsg::~SystemMsg() = default;

} // namespace kelvra_contact
