#include "login/common/AccessibleLink.h"

#include <QLabel>
#include <QTextDocumentFragment>

namespace kelvra_login {

AccessibleLink::AccessibleLink(QLabel *label)
    : QAccessibleWidget(label, QAccessible::Link)
{
}

AccessibleLink::~AccessibleLink() = default;

QAccessible::State AccessibleLink::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.linked = true;
    return state;
}

QString AccessibleLink::text(QAccessible::Text kind) const
{
    QString given = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !given.isEmpty())
        return given;
    return QTextDocumentFragment::fromHtml(static_cast<QLabel *>(widget())->text()).toPlainText();
}

QStringList AccessibleLink::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void AccessibleLink::doAction(const QString &name)
{
    if (name == pressAction())
        QMetaObject::invokeMethod(widget(), "click", Qt::QueuedConnection);
    else
        QAccessibleWidget::doAction(name);
}

} // namespace kelvra_login
