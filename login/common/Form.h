#pragma once

#include "login/common/Handlers.h"

namespace kelvra_login {

/**
 * A widget's designer form with the handlers that use it, which die first. The widget binds nothing to itself: it
 * loses its form before its children, and a child that dies with the focus still tells that it has lost it.
 */
template <typename Designed>
class Form : public Designed
{
public:
    Handlers handlers;
};

} // namespace kelvra_login
