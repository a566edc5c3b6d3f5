#pragma once

#include "client/ZCommon/WindowPlace.h"
#include "client/ZCommon/WindowWatch.h"
#include "client/shell/PhoneHandle.h"

#include <QObject>
#include <QRect>

#include <memory>
#include <optional>

namespace kelvra_client {

class PhoneWindow;

/**
 * Where the simulated phone stands: beside the login, which makes room once where the screen has enough; where it fits
 * nowhere beside the login, a handle at the screen's left edge stands for it, away from the login's fields. Neither
 * takes the login's focus. Owned by CloudSide; the phone outlives it.
 */
class PhonePlace : public QObject
{
    Q_OBJECT

public:
    explicit PhonePlace(PhoneWindow &phone);

    /** Shows the phone, or its handle, as soon as the window system has put up the login. */
    void accompany(QWidget *loginWindow);
    /** Something has arrived on the phone: the handle tells, where it stands for the phone. */
    void announce();
    /** Opens the phone on its own, at the edge of the screen. */
    void open();
    /** Hides the phone and its handle. */
    void leave();

    /** Hears that the user closes the phone. */
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    /** Shows what there is room for, and where. */
    void settle();
    void showPhone();
    void showHandle();
    void openByHandle();
    void makeRoom();

    QRect screen() const;
    QRect loginFrame() const;
    /** By the phone, which scrolls on a screen that is too low for it. */
    QSize roomNeeded() const;
    /** None where the phone fits nowhere beside the login. */
    std::optional<QPoint> spotBeside() const;
    QPoint spotAtEdge() const;
    QPoint spotOfPhone() const;
    QPoint spotOfHandle() const;

    PhoneWindow &phone;
    PhoneHandle handle;
    ZCOMMON::WindowWatch login;
    std::unique_ptr<ZCOMMON::WindowPlace> phonePlace;
    std::unique_ptr<ZCOMMON::WindowPlace> handlePlace;
    QPoint openedAt;         ///< of a phone that is not beside the login
    bool beside = false;     ///< the phone, or its handle, goes where the login goes
    bool roomWanted = false; ///< the login may be moved, which happens once
};

} // namespace kelvra_client
