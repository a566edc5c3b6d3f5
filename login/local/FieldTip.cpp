#include "login/local/FieldTip.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QToolTip>

namespace kelvra_login {

FieldTip::FieldTip(QWidget *owner, const QString &tip)
    : QObject(owner)
    , field(owner)
    , text(tip)
{
    showTip();
    hideOnTyping();
    QCoreApplication::instance()->installEventFilter(this);
}

void FieldTip::show(QWidget *field, const QString &text)
{
    static QPointer<FieldTip> last; // there is one tool tip at a time
    delete last;
    last = new FieldTip(field, text);
}

void FieldTip::showTip()
{
    // The corner is outside the rectangle: else the toolkit takes no notice while the same tip is about to go. The
    // tip itself is inside: else the toolkit hides it when the pointer moves over it.
    const QRect nearby(1, 1, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QToolTip::showText(field->mapToGlobal(QPoint(0, 0)), text, field, nearby);
}

bool FieldTip::isOnScreen() const
{
    return field->isVisible() && QToolTip::isVisible() && QToolTip::text() == text;
}

void FieldTip::hideOnTyping()
{
    const QWidget *proxy = field->focusProxy();
    const auto *edit = qobject_cast<const QLineEdit *>(proxy ? proxy : field);
    if (!edit)
        return;
    connect(edit, &QLineEdit::textEdited, this, [this] {
        // By now it may be the tip about Caps Lock.
        if (isOnScreen())
            QToolTip::hideText();
        deleteLater();
    });
}

bool FieldTip::eventFilter(QObject *watched, QEvent *event)
{
    // Later, when the toolkit has seen the event as well.
    if (event->type() == QEvent::Leave)
        QTimer::singleShot(0, this, [this] {
            if (isOnScreen())
                showTip();
        });
    return QObject::eventFilter(watched, event);
}

} // namespace kelvra_login
