#include "login/common/AccessiblePad.h"

namespace kelvra_login {

AccessiblePad::AccessiblePad(QWidget *pad)
    : QAccessibleWidget(pad, QAccessible::Canvas)
{
}

AccessiblePad::~AccessiblePad() = default;

int AccessiblePad::childCount() const
{
    return 0;
}

QAccessibleInterface *AccessiblePad::child(int) const
{
    return nullptr;
}

QAccessibleInterface *AccessiblePad::childAt(int, int) const
{
    return nullptr;
}

} // namespace kelvra_login
