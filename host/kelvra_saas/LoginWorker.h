#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_saas/LoginErrorInfo.h"
#include "host/kelvra_saas/LoginQRCodeInfo.h"
#include "host/kelvra_saas/LoginReq.h"
#include "host/kelvra_saas/Response.h"
#include "host/kelvra_saas/VerificationCodeReq.h"

#include <QString>

#include <functional>
#include <memory>

namespace kelvra_saas {
class LoginWorker;
}

ZSINGLETON_DECLARE(KELVRA_SAAS_EXPORT, kelvra_saas::LoginWorker)

namespace kelvra_saas {

/**
 * Logins with the cloud service.
 *
 * Every call with a callback returns at once and answers later, once, on the GUI thread, never from within the
 * call itself; the answer's Response carries the request id given. A call that cannot be made answers too, with
 * a code other than successCode. The callback must be safe to call at any later time; the module guards its own.
 */
class KELVRA_SAAS_EXPORT LoginWorker : public ZCOMMON::ZSingleton<LoginWorker>
{
public:
    /** Takes an answer that is nothing but a success or a failure. */
    using ResponseCallback = std::function<void(const Response &)>;
    /** Takes the answer to a login; the error information counts only where it failed. */
    using LoginCallback = std::function<void(const Response &, const LoginErrorInfo &)>;
    /** Takes a new code; the information counts only where the call succeeded. */
    using QRCodeCallback = std::function<void(const Response &, const LoginQRCodeInfo &)>;
    /** Takes the status of a code, a QRCodeStatus or any other value. */
    using QRCodeStatusCallback = std::function<void(const Response &, int status)>;
    /** Takes the account that has been logged in, or was to be. */
    using AccountCallback = std::function<void(const Response &, const QString &account)>;

    /** Statuses of a login QR code; any other value means that it still waits to be scanned. */
    enum QRCodeStatus : int {
        QRCodeScanned = 2002,          ///< the phone has it and has yet to confirm
        QRCodeInvalid = 2003,          ///< expired or unknown
        QRCodeConfirmed = 2004,        ///< confirmed on the phone: checkLoginQRCodeResult() completes the login
        QRCodeCancelled = 2005,        ///< cancelled on the phone
        QRCodeIllegalOperation = 2006, ///< refused for what the phone did
        QRCodeIllegalAddress = 2007    ///< refused for where the request came from
    };

    /** Logs in by password or by SMS code. */
    void login(const LoginReq &request, const LoginCallback &callback);

    /** Sends an SMS code. */
    void getVerificationCode(const VerificationCodeReq &request, const ResponseCallback &callback);

    /** Asks for a new login QR code. */
    void getLoginQRCode(const QString &requestId, const QRCodeCallback &callback);

    /** Asks what has become of a code; `status` is a QRCodeStatus or any other value. */
    void checkLoginQRCodeStatus(const QString &requestId, const QString &qrCodeId,
                                const QRCodeStatusCallback &callback);

    /** Completes a login whose scan has been confirmed on the phone. */
    void checkLoginQRCodeResult(const QString &requestId, const QString &qrCodeId, const ResponseCallback &callback);

    /** The account that the last completed scan has logged in. */
    void getAccountAfterScanQRCode(const QString &requestId, const AccountCallback &callback);

    /** Logs `account` in with its stored credentials; the answer names the account in any case. */
    void tryAutoLogin(const QString &requestId, const QString &account, const AccountCallback &callback);

    /** The same with a password that the shell handed over. */
    void tryAutoLogin(const QString &requestId, const QString &account, const QString &password,
                      const AccountCallback &callback);

    /** Forgets the automatic login of `account`; false when there was none. */
    bool cancelAccountAutoLogin(const QString &account);

    /** The account that logged in last on this computer, empty before the first. */
    QString getRecentlyLoggedInAccount();

private:
    friend class ZCOMMON::ZSingleton<LoginWorker>;
    LoginWorker();
    ~LoginWorker();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_saas
