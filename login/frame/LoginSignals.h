#pragma once

#include "host/ZCommon/PwdStrength.h"
#include "host/ZCommon/ZSingleton.h"
#include "login/Export.h"
#include "login/frame/LoginEvent.h"

#include <QObject>
#include <QPoint>
#include <QStringList>

class QWidget;

namespace kelvra_login {
class LoginSignals;
}

ZSINGLETON_DECLARE(KELVRA_LOGIN_EXPORT, kelvra_login::LoginSignals)

namespace kelvra_login {

/**
 * The hub through which the screens of the module meet: emitters call its signals, receivers connect in their
 * constructors. Connections are direct, so an emitter's call returns after every receiver has run. GUI thread only.
 */
class KELVRA_LOGIN_EXPORT LoginSignals : public QObject, public ZCOMMON::ZSingleton<LoginSignals>
{
    Q_OBJECT

signals:
    /** Show a screen of the login dialog. */
    void signalLoginEvent(kelvra_login::LoginEvent event, QStringList params);

    /** Show a cloud page of the login form; `params` holds the emitting page's account, or nothing. */
    void signalSaasLoginEvent(kelvra_login::SaasLoginEvent event, QStringList params);

    /**
     * Show or hide the password rule tip. `strength` is the tip's class of the password, 0 to 3; `globalPos` the
     * point that the tip's right edge touches, in global pixels.
     */
    void signalPwdStrength(ZCOMMON::PwdStrength strength, bool visible, QPoint globalPos);

    /** A user is logged in. */
    void signalLoginSuccess();

    /** The gesture screen has seen the last failure allowed: lock local login. */
    void signalLockLoginByGesture();

    /** The phone number on the cloud page `fromWt` has changed to `account`. */
    void signalSaasAccountEditingFinished(QWidget *fromWt, QString account);

    /** The default superuser has been created: fill its name and password in. */
    void signalDefaultLocalSuperUserMethodSelected(QString userName, QString pwd);

private:
    friend class ZCOMMON::ZSingleton<LoginSignals>;
    LoginSignals();
    ~LoginSignals() override;
};

} // namespace kelvra_login
