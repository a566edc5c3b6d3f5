#include "client/shell/PhonePlace.h"

#include "client/shell/PhoneWindow.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QScreen>

#include <cmath>
#include <utility>

using ZCOMMON::WindowPlace;
using ZCOMMON::WindowWatch;

namespace kelvra_client {

namespace {

constexpr int gapPixels = 12; // between the phone and its neighbour

void showWithoutFocus(QWidget &window)
{
    QWidget *const active = QApplication::activeWindow();
    window.show();
    window.raise();
    // There are platforms that activate whatever is shown.
    if (active && active != &window)
        active->activateWindow();
}

/** Where something of that height starts that is centred at `middle` as far as the screen allows. */
int topOf(int height, int middle, const QRect &screen)
{
    return qMax(screen.top(), qMin(middle - height / 2, screen.bottom() + 1 - height));
}

} // namespace

PhonePlace::PhonePlace(PhoneWindow &placedPhone)
    : phone(placedPhone)
    , login(this)
    , phonePlace(std::make_unique<WindowPlace>(&phone, [this] { return spotOfPhone(); }))
    , handlePlace(std::make_unique<WindowPlace>(&handle, [this] { return spotOfHandle(); }))
{
    phone.installEventFilter(this);
    connect(&handle, &PhoneHandle::clicked, this, &PhonePlace::openByHandle);
    // Later, as the login is just being shown or moved.
    connect(&login, &WindowWatch::signalPlaced, this, &PhonePlace::settle, Qt::QueuedConnection);
}

void PhonePlace::accompany(QWidget *loginWindow)
{
    login.setWindow(loginWindow);
    if (phone.isVisible()) {
        showWithoutFocus(phone);
        return;
    }
    beside = true;
    roomWanted = !handle.isVisible();
    settle();
}

void PhonePlace::announce()
{
    handle.setNews(!phone.isVisible());
}

void PhonePlace::open()
{
    if (phone.isVisible()) {
        showWithoutFocus(phone);
        return;
    }
    beside = false;
    openedAt = spotAtEdge();
    showPhone();
}

void PhonePlace::leave()
{
    beside = false;
    login.setWindow(nullptr);
    phone.hide();
    handle.hide();
    handle.setNews(false);
}

bool PhonePlace::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Close) {
        // Where the phone fits nowhere, it could not be found again until something arrives.
        beside = WindowWatch::isThere(login.window()) && !spotBeside();
        if (beside)
            showHandle();
        // Or the handle might get the keys that the phone has had.
        if (phone.isActiveWindow() && WindowWatch::isThere(login.window()))
            login.window()->activateWindow();
    }
    return QObject::eventFilter(object, event);
}

void PhonePlace::settle()
{
    const bool dragged = phone.isVisible() && phonePlace->isLetGo();
    if (!beside || dragged || !WindowWatch::isThere(login.window()))
        return;
    if (std::exchange(roomWanted, false) && !spotBeside())
        makeRoom();
    if (spotBeside()) {
        showPhone();
    } else {
        phone.hide();
        showHandle();
    }
}

void PhonePlace::showPhone()
{
    handle.hide();
    handle.setNews(false);
    phone.resize(roomNeeded());
    if (phone.isVisible()) {
        phonePlace->update();
        return;
    }
    phonePlace->takeBack();
    showWithoutFocus(phone);
}

void PhonePlace::showHandle()
{
    if (handle.isVisible())
        handlePlace->update();
    else
        showWithoutFocus(handle);
}

void PhonePlace::openByHandle()
{
    open();
    phone.activateWindow();
}

void PhonePlace::makeRoom()
{
    const int spare = screen().width() - loginFrame().width() - gapPixels - roomNeeded().width();
    if (spare >= 0)
        WindowPlace::move(login.window(), {screen().left() + spare / 2, loginFrame().top()});
}

QRect PhonePlace::screen() const
{
    const QScreen *shown = login.window() ? login.window()->screen() : QGuiApplication::screenAt(QCursor::pos());
    if (!shown)
        shown = QGuiApplication::primaryScreen();
    // At a fractional scale factor the last pixel may be a part of one only.
    const int broken = shown->devicePixelRatio() == std::floor(shown->devicePixelRatio()) ? 0 : 1;
    return shown->availableGeometry().adjusted(0, 0, -broken, -broken);
}

QRect PhonePlace::loginFrame() const
{
    return login.window() ? WindowWatch::frameOf(login.window()) : QRect();
}

QSize PhonePlace::roomNeeded() const
{
    return phone.maximumSize().boundedTo(QSize(phone.maximumWidth(), screen().height()));
}

std::optional<QPoint> PhonePlace::spotBeside() const
{
    const QSize size = roomNeeded();
    const QRect frame = loginFrame();
    const int y = topOf(size.height(), frame.center().y(), screen());
    for (const int x : {frame.right() + 1 + gapPixels, frame.left() - gapPixels - size.width()}) {
        if (screen().contains(QRect(QPoint(x, y), size)))
            return QPoint(x, y);
    }
    return std::nullopt;
}

QPoint PhonePlace::spotAtEdge() const
{
    const QRect room = screen();
    const QSize size = roomNeeded();
    // The login's fields are in its right half.
    const int x = login.window() ? room.left() + gapPixels : room.right() + 1 - gapPixels - size.width();
    return {x, topOf(size.height(), room.center().y(), room)};
}

QPoint PhonePlace::spotOfPhone() const
{
    return beside ? spotBeside().value_or(WindowWatch::frameOf(&phone).topLeft()) : openedAt;
}

QPoint PhonePlace::spotOfHandle() const
{
    return {screen().left(), topOf(handle.height(), screen().center().y(), screen())};
}

} // namespace kelvra_client
