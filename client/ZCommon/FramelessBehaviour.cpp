#include "client/ZCommon/FramelessBehaviour.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QWidget>
#include <QWindow>

#ifdef Q_OS_WIN
#    include <qt_windows.h>
#endif

namespace ZCOMMON {

namespace {

/** Windows drags until the mouse button comes up, so not at all for a press that was a finger's or a pen's. */
bool canSystemDrag()
{
#ifdef Q_OS_WIN
    return GetAsyncKeyState(GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON) < 0;
#else
    return true;
#endif
}

} // namespace

FramelessBehaviour::FramelessBehaviour(QWidget *draggedWindow)
    : window(draggedWindow)
{
}

bool FramelessBehaviour::press(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || window->isMaximized() || window->isFullScreen())
        return false;
    grip = event->globalPos() - window->pos();
    dragging = true;
    return true;
}

bool FramelessBehaviour::move(const QMouseEvent *event)
{
    if (!dragging)
        return false;
    if (!(event->buttons() & Qt::LeftButton)) {
        cancelDrag();
        return false;
    }
    // The window system snaps to edges and moves across screens better than we can, and then keeps the release.
    QWindow *const handle = window->windowHandle();
    if (canSystemDrag() && handle && handle->startSystemMove())
        cancelDrag();
    else
        window->move(event->globalPos() - grip);
    return true;
}

bool FramelessBehaviour::release(const QMouseEvent *event)
{
    if (!dragging || event->button() != Qt::LeftButton)
        return false;
    cancelDrag();
    return true;
}

void FramelessBehaviour::cancelDrag()
{
    dragging = false;
}

void FramelessBehaviour::demoteDefaultButtons() const
{
    const auto buttons = window->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setDefault(false);
}

} // namespace ZCOMMON
