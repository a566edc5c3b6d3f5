#include "login/gesture/AccessiblePad.h"

#include "login/gesture/GesturePanel.h"

namespace kelvra_login {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *panel = qobject_cast<GesturePanel *>(object);
    return panel ? new AccessiblePad(panel) : nullptr;
}

} // namespace

void AccessiblePad::install()
{
    static const bool installed = (QAccessible::installFactory(create), true);
    Q_UNUSED(installed)
}

AccessiblePad::AccessiblePad(GesturePanel *panel)
    : QAccessibleWidget(panel, QAccessible::Canvas)
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
