#include "host/ZCommon/MoveableDialog.h"

#include "client/ZCommon/FramelessBehaviour.h"
#include "host/ZCommon/StyleDefs.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <optional>

namespace ZCOMMON {

class MoveableDialog::Private
{
public:
    Private(QWidget *dialog, const QColor &fill)
        : frame(dialog)
        , background(fill)
    {
    }

    FramelessBehaviour frame;
    const QColor background;
    std::optional<QPoint> defaultPos; ///< until the first show
    bool shownBefore = false;
};

MoveableDialog::MoveableDialog(QWidget *parent, const QString &title, const QColor &background)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , d(std::make_unique<Private>(this, background))
{
    setWindowTitle(title);
}

MoveableDialog::~MoveableDialog() = default;

void MoveableDialog::setDefaultPos(const QPoint &pos)
{
    d->defaultPos = pos;
    // A window is made at its place, not moved there later: Qt asks for the place of a window that has been moved while
    // a window manager is still taking it over, and may keep a wrong answer.
    if (!testAttribute(Qt::WA_WState_Created))
        move(pos);
}

void MoveableDialog::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(d->frame.press(event));
}

void MoveableDialog::mouseMoveEvent(QMouseEvent *event)
{
    event->setAccepted(d->frame.move(event));
}

void MoveableDialog::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(d->frame.release(event));
}

void MoveableDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QColor(colorBorder));
    painter.setBrush(d->background);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void MoveableDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous() && !d->shownBefore) {
        d->shownBefore = true;
        // Before the base, which centres a dialog that nobody has placed.
        if (d->defaultPos)
            move(*d->defaultPos);
    }
    QDialog::showEvent(event);
}

void MoveableDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange)
        d->frame.cancelDrag();
    QDialog::changeEvent(event);
}

bool MoveableDialog::event(QEvent *event)
{
    if (event->type() == QEvent::Hide || event->type() == QEvent::WindowBlocked) {
        d->frame.cancelDrag();
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            d->frame.demoteDefaultButtons();
    }
    return QDialog::event(event);
}

} // namespace ZCOMMON
