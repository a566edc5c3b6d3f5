#pragma once

#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_base/ModuleInitialization.h"
#include "host/kelvra_worker/UserType.h"
#include "login/Export.h"

#include <QStringList>

namespace kelvra_login {
class LoginInit;
}

ZSINGLETON_DECLARE(KELVRA_LOGIN_EXPORT, kelvra_login::LoginInit)

namespace kelvra_login {

/**
 * Where the shell enters the login module.
 *
 * The shell fetches the object (which loads the module's style sheet), calls `moduleInit()` and `init()` through
 * the base, then `login()` once at start-up and `switchUser()` whenever the logged-in user asks to change. What
 * comes of it is told by SystemMsg: signalLoginSuccess, signalSystemInitProgress, signalSystemInitFinished, and
 * signalPrepareQuitSystem with signalQuitSystem when the user quits instead. GUI thread only.
 */
class KELVRA_LOGIN_EXPORT LoginInit : public kelvra_base::ModuleInitialization, public ZCOMMON::ZSingleton<LoginInit>
{
    Q_OBJECT

public:
    ~LoginInit() override;

    /** Does nothing: the module has nothing to prepare. */
    void moduleInit() override;

    /**
     * Opens the login dialog on the screen that the stored data call for and returns once it is painted.
     *
     * @param type             kind of user to log in; decides nothing on the very first start
     * @param params           empty, or the user name (or cloud account) first and the password last; exactly two
     *                         entries with a name that is not empty are tried as an automatic login
     * @param autoLoginAllowed whether remembered users may be logged in without a hand
     */
    void login(kelvra_worker::UserType type, const QStringList &params, bool autoLoginAllowed);

    /**
     * Opens the login dialog on the login form, without any automatic login. The shell has cleared the logged-in
     * flag (SystemWorker::setLoginSuccess) before.
     */
    void switchUser();

    /** Does nothing: all state of a login is the host's. */
    void recoveryToInitialState() override;

protected:
    /** Loads the module's style sheet again. */
    void init() override;

private:
    friend class ZCOMMON::ZSingleton<LoginInit>;
    explicit LoginInit(QObject *parent);
};

} // namespace kelvra_login
