#include "login/local/FieldStyle.h"

#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

namespace kelvra_login {

namespace {

void hideTipOnTyping(QWidget *field, const QString &tip)
{
    // There is one tool tip at a time.
    static QMetaObject::Connection typing;
    QObject::disconnect(typing);
    const QWidget *proxy = field->focusProxy();
    if (const auto *edit = qobject_cast<const QLineEdit *>(proxy ? proxy : field))
        typing = QObject::connect(edit, &QLineEdit::textEdited, edit, [tip] {
            // By now it may be the tip about Caps Lock.
            if (QToolTip::text() == tip)
                QToolTip::hideText();
        });
}

} // namespace

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
    QToolTip::showText(field->mapToGlobal(QPoint(0, 0)), text, field);
    hideTipOnTyping(field, text);
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
