#include "host/kelvra_saas/LoginWorker.h"

#include "client/kelvra_saas/CloudLink.h"
#include "client/kelvra_saas/QRPicture.h"
#include "client/kelvra_saas/ResultCodes.h"

ZSINGLETON_DEFINE(kelvra_saas::LoginWorker)

namespace kelvra_saas {

namespace {

// What the phone's App finds in a login QR code.
const QString codeContent = QStringLiteral("nimbra://login?code=%1");

Response toResponse(const CloudAnswer &answer)
{
    return {answer.id, answer.code, answer.subCode, answer.message};
}

LoginErrorInfo toErrorInfo(const CloudAnswer &answer)
{
    return {answer.fields.value(accountField).toString(), answer.fields.value(errorCountField).toInt(),
            answer.fields.value(remainingAttemptsField).toInt(), answer.fields.value(periodSecondsField).toInt(),
            answer.fields.value(lockMinutesField).toInt()};
}

LoginQRCodeInfo toQRCodeInfo(const CloudAnswer &answer)
{
    if (answer.code != successCode)
        return {};
    const QString id = answer.fields.value(codeIdField).toString();
    return {id, qrPicture(codeContent.arg(id)), answer.fields.value(validitySecondsField).toInt()};
}

} // namespace

/** Turns the calls of the contract into requests, and answers into what the contract's callbacks take. */
class LoginWorker::Private
{
public:
    void ask(const char *operation, const QString &requestId, const QVariantMap &fields,
             const CloudService::Callback &tell)
    {
        link.send({requestId, QString::fromLatin1(operation), fields}, tell);
    }

    void noteLogin(const CloudAnswer &answer)
    {
        if (answer.code == successCode)
            link.memory().noteLogin(answer.fields.value(accountField).toString(),
                                    answer.fields.value(tokenField).toString());
    }

    CloudService::Callback toAccount(const AccountCallback &callback)
    {
        return [this, callback](const CloudAnswer &answer) {
            noteLogin(answer);
            if (callback)
                callback(toResponse(answer), answer.fields.value(accountField).toString());
        };
    }

    static CloudService::Callback toResponseOnly(const ResponseCallback &callback)
    {
        return [callback](const CloudAnswer &answer) {
            if (callback)
                callback(toResponse(answer));
        };
    }

    CloudLink &link = CloudLink::current(); // made before the worker, so that it outlives it
};

LoginWorker::LoginWorker()
    : d(std::make_unique<Private>())
{
}

LoginWorker::~LoginWorker() = default;

void LoginWorker::login(const LoginReq &request, const LoginCallback &callback)
{
    d->ask(loginOperation, request.requestId,
           {{accountField, request.account},
            {passwordField, request.password},
            {verificationCodeField, request.verificationCode},
            {loginTypeField, request.loginType}},
           [this, callback](const CloudAnswer &answer) {
               d->noteLogin(answer);
               if (callback)
                   callback(toResponse(answer), toErrorInfo(answer));
           });
}

void LoginWorker::getVerificationCode(const VerificationCodeReq &request, const ResponseCallback &callback)
{
    d->ask(sendCodeOperation, request.requestId,
           {{accountField, request.account}, {purposeField, request.purpose}, {accountKindField, request.accountKind}},
           Private::toResponseOnly(callback));
}

void LoginWorker::getLoginQRCode(const QString &requestId, const QRCodeCallback &callback)
{
    d->ask(qrCodeOperation, requestId, {}, [callback](const CloudAnswer &answer) {
        if (callback)
            callback(toResponse(answer), toQRCodeInfo(answer));
    });
}

void LoginWorker::checkLoginQRCodeStatus(const QString &requestId, const QString &qrCodeId,
                                         const QRCodeStatusCallback &callback)
{
    d->ask(qrStatusOperation, requestId, {{codeIdField, qrCodeId}}, [callback](const CloudAnswer &answer) {
        if (callback)
            callback(toResponse(answer), answer.fields.value(statusField).toInt());
    });
}

void LoginWorker::checkLoginQRCodeResult(const QString &requestId, const QString &qrCodeId,
                                         const ResponseCallback &callback)
{
    d->ask(qrResultOperation, requestId, {{codeIdField, qrCodeId}}, Private::toResponseOnly(callback));
}

void LoginWorker::getAccountAfterScanQRCode(const QString &requestId, const AccountCallback &callback)
{
    d->ask(qrAccountOperation, requestId, {}, d->toAccount(callback));
}

void LoginWorker::tryAutoLogin(const QString &requestId, const QString &account, const AccountCallback &callback)
{
    const QVariantMap named = {{accountField, account}};
    const QString token = d->link.memory().token(account);
    if (token.isEmpty()) {
        d->link.answerLater({requestId, nothingStoredCode, 0, {}, named}, d->toAccount(callback));
        return;
    }
    d->ask(autoLoginOperation, requestId, {{accountField, account}, {tokenField, token}}, d->toAccount(callback));
}

void LoginWorker::tryAutoLogin(const QString &requestId, const QString &account, const QString &password,
                               const AccountCallback &callback)
{
    LoginReq request;
    request.requestId = requestId;
    request.account = account;
    request.password = password;
    login(request, [callback, account](const Response &response, const LoginErrorInfo &) {
        if (callback)
            callback(response, account);
    });
}

bool LoginWorker::cancelAccountAutoLogin(const QString &account)
{
    return d->link.memory().forgetToken(account);
}

QString LoginWorker::getRecentlyLoggedInAccount()
{
    return d->link.memory().recentAccount();
}

} // namespace kelvra_saas
