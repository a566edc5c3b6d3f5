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
    NormalLogin = 0,
    CreateSuperUser = 2,
    SetSecretAnswer = 3,
    ResetSuperUserPwd = 4,  ///< params[0]: user name
    VerifySecretAnswer = 5, ///< params[0]: user name
    GestureLogin = 6,       ///< params[0]: user name
    LoginMethodSel = 7
};

/** The cloud page of the login form to show. The receiver does not read the parameters sent along. */
enum SaasLoginEvent : int { SaasPwdLogin = 0, SaasVerificationCodeLogin = 1, SaasScanQRCodeLogin = 2 };

} // namespace kelvra_login

Q_DECLARE_METATYPE(kelvra_login::LoginEvent)
Q_DECLARE_METATYPE(kelvra_login::SaasLoginEvent)
