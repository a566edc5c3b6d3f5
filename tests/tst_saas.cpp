#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "host/kelvra_saas/SaasWorker.h"

#include <QSignalSpy>
#include <QtTest>

using namespace kelvra_saas;

/** The cloud library of an installation without a cloud service. */
class TestSaas : public QObject
{
    Q_OBJECT

private slots:
    void everyCallFailsOnceAndLater()
    {
        LoginWorker &worker = LoginWorker::_instance();
        const QString account = "13800001111";
        QString ids;
        const auto note = [&](const Response &response) {
            ids += response.requestId;
            QVERIFY(response.code != successCode && !saasErrorMsg(response.code, response.subCode).isEmpty());
        };
        const auto noteAny = [&](const Response &response, const auto &) { note(response); };
        const auto noteAccount = [&](const Response &response, const QString &named) {
            note(response);
            QCOMPARE(named, response.requestId == "6" ? QString() : account);
        };
        LoginReq login;
        login.requestId = "1";
        VerificationCodeReq code;
        code.requestId = "2";
        worker.login(login, noteAny);
        worker.getVerificationCode(code, note);
        worker.getLoginQRCode("3", noteAny);
        worker.checkLoginQRCodeStatus("4", "code", noteAny);
        worker.checkLoginQRCodeResult("5", "code", note);
        worker.getAccountAfterScanQRCode("6", noteAccount);
        worker.tryAutoLogin("7", account, noteAccount);
        worker.tryAutoLogin("8", account, "pwd", noteAccount);
        worker.tryAutoLogin("9", account, nullptr);
        QVERIFY(ids.isEmpty());
        QTRY_COMPARE(ids, QString("12345678"));
        QCoreApplication::processEvents();
        QCOMPARE(ids.size(), 8);
    }

    void countdownRunsToZero()
    {
        SaasWorker &worker = SaasWorker::_instance();
        QSignalSpy ticks(&worker, &SaasWorker::signalGetVerificationCodeRemainingSecs);
        for (const int seconds : {60, -1, 0, 60, 2}) // only the one that runs can be ended
            worker.resetVerificationCodeRemainingSecs(seconds);
        QCOMPARE(worker.getVerificationCodeRemainingSecs(), 2);
        QTRY_COMPARE(worker.getVerificationCodeRemainingSecs(), 0);
        QVERIFY(!ticks.wait(1100)); // none after the end
        QCOMPARE(ticks, QList<QVariantList>({{0}, {1}, {0}}));
    }
};

QTEST_GUILESS_MAIN(TestSaas)

#include "tst_saas.moc"
