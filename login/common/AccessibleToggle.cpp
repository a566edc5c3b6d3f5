#include "login/common/AccessibleToggle.h"

#include <QAbstractButton>
#include <QTimer>

namespace kelvra_login {

AccessibleToggle::AccessibleToggle(QAbstractButton *toggle, QAccessible::Role role)
    : QAccessibleWidget(toggle, role)
{
}

AccessibleToggle::~AccessibleToggle() = default;

QAbstractButton *AccessibleToggle::button() const
{
    return static_cast<QAbstractButton *>(widget());
}

QAccessible::State AccessibleToggle::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const bool tab = role() == QAccessible::PageTab;
    state.checkable = !tab;
    state.checked = !tab && button()->isChecked();
    state.selectable = tab;
    state.selected = tab && button()->isChecked();
    return state;
}

QString AccessibleToggle::text(QAccessible::Text kind) const
{
    QString given = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && given.isEmpty() ? button()->text() : given;
}

QStringList AccessibleToggle::actionNames() const
{
    return QStringList(role() == QAccessible::PageTab ? pressAction() : toggleAction()) +
           QAccessibleWidget::actionNames();
}

void AccessibleToggle::doAction(const QString &name)
{
    if (name == toggleAction() || name == pressAction())
        QTimer::singleShot(0, button(), &QAbstractButton::click);
    else
        QAccessibleWidget::doAction(name);
}

} // namespace kelvra_login
