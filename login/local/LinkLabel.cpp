#include "login/local/LinkLabel.h"

#include "login/common/AccessibleFaces.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace kelvra_login {

namespace {

const QColor focusColour(0x22, 0x88, 0xee);

} // namespace

LinkLabel::LinkLabel(QWidget *parent)
    : QLabel(parent)
{
    // Not for the mouse: a click leaves the cursor in its field.
    setFocusPolicy(Qt::TabFocus);
    AccessibleFaces::install();
}

LinkLabel::~LinkLabel() = default;

void LinkLabel::click()
{
    const QPointer<LinkLabel> self(this);
    const QPoint middle = rect().center();
    const auto send = [&self, &middle](QEvent::Type type, Qt::MouseButtons buttons) {
        QMouseEvent event(type, middle, self->mapToGlobal(middle), Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(self, &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    if (self)
        send(QEvent::MouseButtonRelease, Qt::NoButton);
}

void LinkLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        QLabel::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        click();
}

void LinkLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(focusColour);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace kelvra_login
