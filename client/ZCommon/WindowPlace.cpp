#include "client/ZCommon/WindowPlace.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace ZCOMMON {

namespace {

constexpr int corrections = 3; // of one place

QWidget *ownerOf(const QWidget *window)
{
    return window->parentWidget() ? window->parentWidget()->window() : nullptr;
}

QPoint centred(const QWidget *window)
{
    const QWidget *owner = ownerOf(window);
    if (owner && !owner->isVisible())
        owner = nullptr;
    const QWidget *near = owner ? owner : QApplication::activeWindow();
    const QRect available = (near ? near : window)->screen()->availableGeometry();
    QRect place(QPoint(), WindowWatch::frameOf(window).size());
    place.moveCenter(owner && !owner->isMinimized() ? WindowWatch::frameOf(owner).center() : available.center());
    place.moveRight(qMin(place.right(), available.right()));
    place.moveBottom(qMin(place.bottom(), available.bottom()));
    return {qMax(place.left(), available.left()), qMax(place.top(), available.top())};
}

} // namespace

WindowPlace::WindowPlace(QWidget *placedWindow, Rule belongsAt)
    : QObject(placedWindow)
    , window(placedWindow)
    , rule(std::move(belongsAt))
    , owner(this)
{
    window->installEventFilter(this);
    connect(&owner, &WindowWatch::signalPlaced, this, &WindowPlace::update);
}

void WindowPlace::centre(QWidget *window)
{
    new WindowPlace(window, [window] { return centred(window); });
}

void WindowPlace::move(QWidget *window, const QPoint &place)
{
    const QPoint border = window->geometry().topLeft() - WindowWatch::frameOf(window).topLeft();
    window->setGeometry(QRect(place + border, window->size()));
}

void WindowPlace::update()
{
    correctionsLeft = corrections;
    put();
}

bool WindowPlace::eventFilter(QObject *object, QEvent *event)
{
    if (object != window) { // the handle: once it is exposed, the size of the frame is known
        if (event->type() == QEvent::Expose)
            correct();
        return QObject::eventFilter(object, event);
    }
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous())
            begin();
        break;
    case QEvent::Resize:
        if (!event->spontaneous())
            put();
        break;
    case QEvent::Move:
        // Later, as the window is being moved.
        if (event->spontaneous())
            QMetaObject::invokeMethod(this, &WindowPlace::correct, Qt::QueuedConnection);
        break;
    case QEvent::MouseMove:
        letGo = letGo || (static_cast<QMouseEvent *>(event)->buttons() & Qt::LeftButton);
        break;
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

void WindowPlace::begin()
{
    letGo = letGo || (!std::exchange(begun, true) && window->testAttribute(Qt::WA_Moved));
    owner.setWindow(ownerOf(window));
    window->windowHandle()->installEventFilter(this);
    update();
}

void WindowPlace::put()
{
    if (isFree() && !stands())
        move(window, rule());
}

void WindowPlace::correct()
{
    if (!isFree() || stands())
        return;
    // A window that keeps moving is moved by the user, or by a window manager with a rule of its own.
    letGo = correctionsLeft == 0;
    --correctionsLeft;
    put();
}

bool WindowPlace::stands() const
{
    return WindowWatch::frameOf(window).topLeft() == rule();
}

bool WindowPlace::isFree() const
{
    constexpr Qt::WindowStates bound = Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen;
    return !letGo && window->isVisible() && !(window->windowState() & bound);
}

} // namespace ZCOMMON
