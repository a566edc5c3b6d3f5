#include "host/kelvra_saas/LoginWorker.h"

#include "client/kelvra_saas/ResultCodes.h"

#include <QObject>
#include <QTimer>

ZSINGLETON_DEFINE(kelvra_saas::LoginWorker)

namespace kelvra_saas {

/** Stands in for the service while there is none: each call fails, in the way a call of a real one does. */
class LoginWorker::Private
{
public:
    /** Answers from the event loop, never from within the call; not at all once the library has gone. */
    template <typename Callback, typename... Rest>
    void fail(const QString &requestId, const Callback &callback, const Rest &...rest)
    {
        if (!callback)
            return;
        Response response;
        response.requestId = requestId;
        response.code = serviceUnavailableCode;
        QTimer::singleShot(0, &context, [=] { callback(response, rest...); });
    }

private:
    QObject context;
};

LoginWorker::LoginWorker()
    : d(std::make_unique<Private>())
{
}

LoginWorker::~LoginWorker() = default;

void LoginWorker::login(const LoginReq &request, const LoginCallback &callback)
{
    LoginErrorInfo info;
    info.account = request.account;
    d->fail(request.requestId, callback, info);
}

void LoginWorker::getVerificationCode(const VerificationCodeReq &request, const ResponseCallback &callback)
{
    d->fail(request.requestId, callback);
}

void LoginWorker::getLoginQRCode(const QString &requestId, const QRCodeCallback &callback)
{
    d->fail(requestId, callback, LoginQRCodeInfo());
}

void LoginWorker::checkLoginQRCodeStatus(const QString &requestId, const QString &,
                                         const QRCodeStatusCallback &callback)
{
    d->fail(requestId, callback, 0);
}

void LoginWorker::checkLoginQRCodeResult(const QString &requestId, const QString &, const ResponseCallback &callback)
{
    d->fail(requestId, callback);
}

void LoginWorker::getAccountAfterScanQRCode(const QString &requestId, const AccountCallback &callback)
{
    d->fail(requestId, callback, QString());
}

void LoginWorker::tryAutoLogin(const QString &requestId, const QString &account, const AccountCallback &callback)
{
    d->fail(requestId, callback, account);
}

void LoginWorker::tryAutoLogin(const QString &requestId, const QString &account, const QString &,
                               const AccountCallback &callback)
{
    d->fail(requestId, callback, account);
}

bool LoginWorker::cancelAccountAutoLogin(const QString &)
{
    return false;
}

QString LoginWorker::getRecentlyLoggedInAccount()
{
    return {};
}

} // namespace kelvra_saas
