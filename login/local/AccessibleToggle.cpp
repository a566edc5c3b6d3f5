#include "login/local/AccessibleToggle.h"

#include <QAbstractButton>
#include <QTimer>

namespace kelvra_login {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *button = qobject_cast<QAbstractButton *>(object);
    return button && button->isCheckable() ? new AccessibleToggle(button) : nullptr;
}

QAccessible::Role roleOf(const QAbstractButton *button)
{
    return button->property("page_tab").toBool() ? QAccessible::PageTab : QAccessible::CheckBox;
}

} // namespace

void AccessibleToggle::install()
{
    static const bool installed = (QAccessible::installFactory(create), true);
    Q_UNUSED(installed)
}

AccessibleToggle::AccessibleToggle(QAbstractButton *toggle)
    : QAccessibleWidget(toggle, roleOf(toggle))
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
    const QString given = QAccessibleWidget::text(kind);
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
