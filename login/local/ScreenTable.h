#pragma once

#include "host/ZCommon/PwdStrength.h"
#include "login/frame/LoginEvent.h"

#include <QStringList>

#include <functional>

class QWidget;

namespace kelvra_login {

class LoginWt;

/**
 * What the router knows of the screens: how to make each and what to hand it. The screens are entered from above,
 * so that the router depends on none of them.
 */
class ScreenTable
{
public:
    struct Screen
    {
        /** Makes the screen as a child of `parent`. */
        std::function<QWidget *(const QStringList &params, QWidget *parent)> create;
        /** Runs after every showing; may be empty. */
        std::function<void(const LoginWt &router, const QStringList &params)> afterShowing;
    };

    struct Tip
    {
        /** Makes the password rule tip as a child of `parent`. */
        std::function<QWidget *(QWidget *parent)> create;
        std::function<void(QWidget *tip, ZCOMMON::PwdStrength strength)> setStrength;
    };

    ScreenTable() = delete;

    static void enter(LoginEvent event, const Screen &screen);
    static void enterTip(const Tip &tip);

    /** The entry of `event`, null when there is none. */
    static const Screen *find(LoginEvent event);
    /** The tip's entry, null when there is none. */
    static const Tip *findTip();
};

} // namespace kelvra_login
