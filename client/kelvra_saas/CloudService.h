#pragma once

#include "host/Export.h"

#include <QString>
#include <QVariantMap>

#include <functional>

namespace kelvra_saas {

// CloudRequest::operation, with the fields that each request carries and those that its answer adds on success. Every
// request carries the terminal field besides, and every answer names the account that the request has named.
constexpr char loginOperation[] = "login";         ///< account, loginType, password or verificationCode; token
constexpr char autoLoginOperation[] = "autoLogin"; ///< account, token
constexpr char sendCodeOperation[] = "sendCode";   ///< account, purpose, accountKind
constexpr char qrCodeOperation[] = "qrCode";       ///< nothing; codeId, validitySeconds
constexpr char qrStatusOperation[] = "qrStatus";   ///< codeId; status
constexpr char qrResultOperation[] = "qrResult";   ///< codeId
constexpr char qrAccountOperation[] = "qrAccount"; ///< nothing; account, token

// Keys of the fields. The errors come with a login that has been refused because of them.
constexpr char accountField[] = "account"; ///< phone number
constexpr char accountKindField[] = "accountKind";
constexpr char codeIdField[] = "codeId";
constexpr char errorCountField[] = "errorCount";
constexpr char lockMinutesField[] = "lockMinutes";
constexpr char loginTypeField[] = "loginType"; ///< "PASSWORD" or "VERIFY_CODE"
constexpr char passwordField[] = "password";
constexpr char periodSecondsField[] = "periodSeconds";
constexpr char purposeField[] = "purpose";
constexpr char remainingAttemptsField[] = "remainingAttempts";
constexpr char statusField[] = "status";     ///< LoginWorker::QRCodeStatus or codeWaiting
constexpr char terminalField[] = "terminal"; ///< which computer asks
constexpr char tokenField[] = "token";       ///< lets this account log in from this terminal without a password
constexpr char validitySecondsField[] = "validitySeconds";
constexpr char verificationCodeField[] = "verificationCode";

/** The status of a login QR code that nobody has scanned yet. */
constexpr int codeWaiting = 2001;

/** What the client asks of the cloud. */
struct CloudRequest
{
    QString id; ///< echoed by the answer
    QString operation;
    QVariantMap fields;
};

/** What the cloud answers. */
struct CloudAnswer
{
    QString id;
    int code = 0;    ///< successCode, or the first argument of saasErrorMsg
    int subCode = 0; ///< the second
    QString message; ///< for logs, in English; holds nothing secret
    QVariantMap fields;
};

/** The way to the cloud. A client that speaks to a real one implements this and hands it to SaasSetup. */
class KELVRA_SAAS_EXPORT CloudService
{
public:
    using Callback = std::function<void(const CloudAnswer &)>;

    CloudService() = default;
    virtual ~CloudService();
    CloudService(const CloudService &) = delete;
    CloudService &operator=(const CloudService &) = delete;

    /**
     * Sends a request and returns at once. The answer comes later, once, on the GUI thread, never from within the
     * call; where none arrives in time, an answer with a code for that. A service that is destroyed drops the
     * callbacks that still wait.
     */
    virtual void send(const CloudRequest &request, const Callback &callback) = 0;
};

} // namespace kelvra_saas
