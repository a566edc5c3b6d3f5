#include "login/common/AccessibleMethod.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QTimer>

namespace kelvra_login {

AccessibleMethod::AccessibleMethod(QAbstractButton *method)
    : QAccessibleWidget(method, QAccessible::Button)
{
}

AccessibleMethod::~AccessibleMethod() = default;

QAbstractButton *AccessibleMethod::button() const
{
    return static_cast<QAbstractButton *>(widget());
}

QAccessible::State AccessibleMethod::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.focused = button()->property(chosenProperty).toBool() && button()->parentWidget()->hasFocus();
    return state;
}

QStringList AccessibleMethod::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void AccessibleMethod::doAction(const QString &name)
{
    if (name == pressAction())
        QTimer::singleShot(0, button(), &QAbstractButton::click);
    else
        QAccessibleWidget::doAction(name);
}

QStringList AccessibleMethod::keyBindingsForAction(const QString &name) const
{
    return name == pressAction() ? QStringList(button()->shortcut().toString()) : QStringList();
}

} // namespace kelvra_login
