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
     * Lets the user set or replace the gesture of the current user, or of `userName`. Like every operation that
     * takes a parent it shows a dialog and blocks in an event loop of its own until that is closed; `parent` may be
     * destroyed meanwhile.
     */
    void addCurUserGesture(QWidget *parent);
    void addUserGesture(QWidget *parent, const QString &userName);

    /** Takes the gesture of the current user, or of `userName`, away; the data library's answer. */
    bool deleteCurUserGesture();
    bool deleteUserGesture(const QString &userName);

    /** Asks the current user for the gesture; false when the dialog is closed without the right one. */
    bool gestureVerify(QWidget *parent);

    bool isCurUserConfigureGesture();

    /** Whether the current user is logged in automatically, and the switches; the data library's answers. */
    bool isCurUserAutoLogin();
    bool openCurUserAutoLogin();
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
