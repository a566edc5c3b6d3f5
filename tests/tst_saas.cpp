#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "host/kelvra_saas/SaasWorker.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

using namespace kelvra_saas;

/** The cloud library of an installation without a cloud service. */
class TestSaas : public QObject
{
    Q_OBJECT

private slots:
    void everyCallFailsOnceAndLater();
    void countdownRunsToZero();
};

void TestSaas::everyCallFailsOnceAndLater()
{
    LoginWorker &worker = ZCOMMON::ZSingleton<LoginWorker>::_instance();
    const QString account = QStringLiteral("13800001111");
    QStringList ids, accounts;
    const auto note = [&](const Response &response) {
        ids.append(response.requestId);
        QVERIFY(response.code != successCode && !saasErrorMsg(response.code, response.subCode).isEmpty());
    };
    const auto noteAccount = [&](const Response &response, const QString &named) {
        note(response);
        accounts.append(named);
    };
    LoginReq login;
    login.requestId = QStringLiteral("1");
    VerificationCodeReq code;
    code.requestId = QStringLiteral("2");
    const QString qrCode = QStringLiteral("code");
    worker.login(login, [&](const Response &response, const LoginErrorInfo &) { note(response); });
    worker.getVerificationCode(code, note);
    worker.getLoginQRCode(QStringLiteral("3"),
                          [&](const Response &response, const LoginQRCodeInfo &) { note(response); });
    worker.checkLoginQRCodeStatus(QStringLiteral("4"), qrCode, [&](const Response &response, int) { note(response); });
    worker.checkLoginQRCodeResult(QStringLiteral("5"), qrCode, note);
    worker.getAccountAfterScanQRCode(QStringLiteral("6"), noteAccount);
    worker.tryAutoLogin(QStringLiteral("7"), account, noteAccount);
    worker.tryAutoLogin(QStringLiteral("8"), account, QStringLiteral("pwd"), noteAccount);
    worker.tryAutoLogin(QStringLiteral("9"), account, nullptr);
    QVERIFY(ids.isEmpty());
    QTRY_COMPARE(ids.join(QString()), QStringLiteral("12345678"));
    QCOMPARE(accounts, QStringList({QString(), account, account}));
    QVERIFY(!worker.cancelAccountAutoLogin(account) && worker.getRecentlyLoggedInAccount().isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(ids.size(), 8);
}

void TestSaas::countdownRunsToZero()
{
    SaasWorker &worker = ZCOMMON::ZSingleton<SaasWorker>::_instance();
    QSignalSpy ticks(&worker, &SaasWorker::signalGetVerificationCodeRemainingSecs);
    worker.resetVerificationCodeRemainingSecs(60);
    worker.resetVerificationCodeRemainingSecs(2);
    QCOMPARE(worker.getVerificationCodeRemainingSecs(), 2);
    QTRY_COMPARE(worker.getVerificationCodeRemainingSecs(), 0);
    QCOMPARE(ticks, QList<QVariantList>({{1}, {0}}));

    worker.resetVerificationCodeRemainingSecs(60);
    worker.resetVerificationCodeRemainingSecs(-1);
    worker.resetVerificationCodeRemainingSecs(0);
    worker.resetVerificationCodeRemainingSecs(1);
    QTRY_COMPARE(worker.getVerificationCodeRemainingSecs(), 0);
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(clock.hasExpired(1100));
    QCOMPARE(ticks.mid(2), QList<QVariantList>({{0}, {0}})); // one end each, and no tick after it
}

QTEST_GUILESS_MAIN(TestSaas)

#include "tst_saas.moc"
