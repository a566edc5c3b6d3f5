#include "login/local/AccessiblePassword.h"

#include "login/local/UserPwdWt.h"

#include <QLineEdit>

namespace kelvra_login {

namespace {

QAccessibleInterface *create(const QString &, QObject *object)
{
    auto *edit = qobject_cast<QLineEdit *>(object);
    const bool secret = edit && (edit->echoMode() != QLineEdit::Normal || qobject_cast<UserPwdWt *>(edit->parent()));
    return secret ? new AccessiblePassword(edit) : nullptr;
}

} // namespace

void AccessiblePassword::install()
{
    static const bool installed = (QAccessible::installFactory(create), true);
    Q_UNUSED(installed)
}

AccessiblePassword::AccessiblePassword(QLineEdit *lineEdit)
    : QAccessibleWidget(lineEdit, QAccessible::EditableText)
{
}

AccessiblePassword::~AccessiblePassword() = default;

QAccessible::State AccessiblePassword::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.passwordEdit = true;
    return state;
}

QString AccessiblePassword::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Value)
        return QAccessibleWidget::text(kind);
    return QString(static_cast<QLineEdit *>(widget())->text().size(), QLatin1Char('*'));
}

} // namespace kelvra_login
