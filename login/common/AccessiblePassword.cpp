#include "login/common/AccessiblePassword.h"

#include <QLineEdit>

namespace kelvra_login {

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
