#include "login/local/AccessibleLink.h"

#include "login/local/LinkLabel.h"

#include <QTextDocumentFragment>
#include <QTimer>

namespace kelvra_login {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *label = qobject_cast<LinkLabel *>(object);
    return label ? new AccessibleLink(label) : nullptr;
}

} // namespace

void AccessibleLink::install()
{
    static const bool installed = (QAccessible::installFactory(create), true);
    Q_UNUSED(installed)
}

AccessibleLink::AccessibleLink(LinkLabel *label)
    : QAccessibleWidget(label, QAccessible::Link)
{
}

AccessibleLink::~AccessibleLink() = default;

LinkLabel *AccessibleLink::link() const
{
    return static_cast<LinkLabel *>(widget());
}

QAccessible::State AccessibleLink::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.linked = true;
    return state;
}

QString AccessibleLink::text(QAccessible::Text kind) const
{
    const QString given = QAccessibleWidget::text(kind);
    if (kind != QAccessible::Name || !given.isEmpty())
        return given;
    return QTextDocumentFragment::fromHtml(link()->text()).toPlainText();
}

QStringList AccessibleLink::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void AccessibleLink::doAction(const QString &name)
{
    if (name == pressAction())
        QTimer::singleShot(0, link(), &LinkLabel::click);
    else
        QAccessibleWidget::doAction(name);
}

} // namespace kelvra_login
