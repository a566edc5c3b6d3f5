#include "client/ZCommon/WindowWatch.h"

#include <QEvent>
#include <QSet>
#include <QWidget>
#include <QWindow>

namespace ZCOMMON {

WindowWatch::WindowWatch(QObject *parent)
    : QObject(parent)
{
}

void WindowWatch::setWindow(QWidget *window)
{
    if (watched == window)
        return;
    if (watched) {
        watched->removeEventFilter(this);
        if (QWindow *handle = watched->windowHandle())
            handle->removeEventFilter(this);
    }
    watched = window;
    if (!watched)
        return;
    watched->installEventFilter(this);
    watchHandle();
}

bool WindowWatch::isThere(const QWidget *window)
{
    return window && window->isVisible() && window->windowHandle() && window->windowHandle()->isExposed();
}

QRect WindowWatch::frameOf(const QWidget *window)
{
    const QRect inside = window->geometry();
    const QRect frame = window->frameGeometry();
    return (window->windowFlags() & Qt::FramelessWindowHint) || !frame.contains(inside) ? inside : frame;
}

bool WindowWatch::eventFilter(QObject *object, QEvent *event)
{
    static const QSet<int> ofWidget{QEvent::Move, QEvent::Resize, QEvent::WindowStateChange};
    if (object == watched && (event->type() == QEvent::Show || event->type() == QEvent::WinIdChange))
        watchHandle();
    const bool placed = object == watched ? ofWidget.contains(event->type()) : event->type() == QEvent::Expose;
    if (placed && isThere(watched))
        emit signalPlaced();
    return QObject::eventFilter(object, event);
}

void WindowWatch::watchHandle()
{
    if (QWindow *handle = watched->windowHandle())
        handle->installEventFilter(this);
}

} // namespace ZCOMMON
