#pragma once

#include "login/common/Handlers.h"

namespace kelvra_login {

/**
 * A widget's designer form and the handlers that use it, which end just before it. The widget binds nothing to itself:
 * its children outlive its form, and a child that dies with the focus still tells that it has lost it.
 */
template <typename Designed>
class Form : public Designed
{
public:
    Handlers handlers;
};

} // namespace kelvra_login
