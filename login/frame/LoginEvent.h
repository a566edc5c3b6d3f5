#pragma once

#include <QMetaType>

namespace kelvra_login {

/**
 * The screen of the login dialog to show. Parameters travel beside it in a list of texts; where a screen takes
 * one, it is the user name.
 *
 * The values are on the wire of LoginSignals and must not change; 1 is deliberately unassigned.
 */
enum LoginEvent : int {
    NormalLogin = 0,        ///< login form with its local and cloud tabs
    CreateSuperUser = 2,    ///< name and password of a new superuser
    SetSecretAnswer = 3,    ///< its security questions; takes over what was typed on the page before
    ResetSuperUserPwd = 4,  ///< new password for the superuser params[0]
    VerifySecretAnswer = 5, ///< security questions of the superuser params[0]
    GestureLogin = 6,       ///< gesture of the user params[0]
    LoginMethodSel = 7      ///< the choice of the first run
};

/** The cloud page of the login form to show. The receiver does not read the parameters sent along. */
enum SaasLoginEvent : int {
    SaasPwdLogin = 0,              ///< by phone number and password
    SaasVerificationCodeLogin = 1, ///< by phone number and SMS code
    SaasScanQRCodeLogin = 2        ///< by scanning a QR code
};

} // namespace kelvra_login

Q_DECLARE_METATYPE(kelvra_login::LoginEvent)
Q_DECLARE_METATYPE(kelvra_login::SaasLoginEvent)
