#include "login/local/FieldStyle.h"

#include "login/local/FieldTip.h"

#include <QIcon>
#include <QLabel>
#include <QLineEdit>

namespace kelvra_login {

void applyStyle(QWidget *widget, const QString &styleSheet)
{
    if (widget->styleSheet() != styleSheet)
        widget->setStyleSheet(styleSheet);
}

void showIcon(QLabel *label, const QString &fileName)
{
    label->setPixmap(QIcon(fileName).pixmap(label->maximumSize()));
}

void showFieldError(QWidget *field, const QString &text)
{
    // A field out of sight would take the keys unseen.
    if (field->isVisible())
        field->setFocus();
    // Only now: a change of focus hides every tool tip.
    FieldTip::show(field, text);
}

void nameAfterPlaceholder(QLineEdit *lineEdit)
{
    lineEdit->setAccessibleName(lineEdit->placeholderText());
}

FieldContent::FieldContent(QLineEdit *edit, bool keep)
    : lineEdit(edit)
    , keepPlaceholder(keep)
    , text(edit->text())
    , placeholder(edit->placeholderText())
{
}

void FieldContent::restore() const
{
    if (lineEdit->text() != text)
        lineEdit->setText(text);
    // The owner hears of a new language first, and its placeholder is the one to keep.
    if (keepPlaceholder)
        lineEdit->setPlaceholderText(placeholder);
    nameAfterPlaceholder(lineEdit);
}

} // namespace kelvra_login
