#include "login/local/FieldStyle.h"

#include <QLineEdit>
#include <QToolTip>

namespace kelvra_login {

void applyStyle(QWidget *widget, const QString &styleSheet)
{
    if (widget->styleSheet() != styleSheet)
        widget->setStyleSheet(styleSheet);
}

void showFieldError(QLineEdit *lineEdit, const QString &text)
{
    QToolTip::showText(lineEdit->mapToGlobal(QPoint(0, 0)), text, lineEdit);
}

} // namespace kelvra_login
