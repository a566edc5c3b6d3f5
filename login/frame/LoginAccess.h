#pragma once

#include "host/ZCommon/ZSingleton.h"
#include "login/Export.h"

#include <QObject>

class QWidget;

namespace kelvra_login {
class LoginAccess;
}

ZSINGLETON_DECLARE(KELVRA_LOGIN_EXPORT, kelvra_login::LoginAccess)

namespace kelvra_login {

/**
 * What the rest of the client asks of the module once a user is logged in. Nothing here keeps state; the current
 * user is the one that SystemWorker knows. GUI thread only.
 */
class KELVRA_LOGIN_EXPORT LoginAccess : public QObject, public ZCOMMON::ZSingleton<LoginAccess>
{
    Q_OBJECT

public:
    ~LoginAccess() override;

    /**
     * Lets the user set or replace the gesture of the current user. Like every operation that takes a parent it
     * shows a dialog and blocks in an event loop of its own until that is closed; `parent` may be destroyed
     * meanwhile.
     */
    void addCurUserGesture(QWidget *parent);
    /** The same for the local user `userName`. */
    void addUserGesture(QWidget *parent, const QString &userName);

    /** Takes the gesture of the current user away; the data library's answer, false when there was none. */
    bool deleteCurUserGesture();
    /** The same for the local user `userName`. */
    bool deleteUserGesture(const QString &userName);

    /** Asks the current user for the gesture; false when the dialog is closed without the right one. */
    bool gestureVerify(QWidget *parent);

    /** Whether the current user has a gesture to log in with. */
    bool isCurUserConfigureGesture();

    /** Whether the next login of the current user may be automatic. */
    bool isCurUserAutoLogin();
    /** Allows it; the data library's answer. */
    bool openCurUserAutoLogin();
    /** Forbids it; the data library's answer. */
    bool cancelCurUserAutoLogin();

    /** Shows the superuser's password to whoever answers the security questions or has the login-credentials file. */
    void getbackPassword(QWidget *parent);

    /**
     * Writes the superuser's login-credentials file, 128 to 256 bytes that lead back in when the password is lost.
     * A file that is there already is replaced; a failure leaves things as they were, but for a file in a folder
     * that takes no new ones, which is written in place. The user is told of either by a modal alert.
     *
     * @param filePath where to; with an empty path nothing happens
     */
    void exportLoginCredentials(const QString &filePath);

private:
    friend class ZCOMMON::ZSingleton<LoginAccess>;
    explicit LoginAccess(QObject *parent);
};

} // namespace kelvra_login
