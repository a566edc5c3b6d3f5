#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/shell/CloudSide.h"
#include "host/ZCommon/MoveableDialog.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "tests/DataFolderTest.h"
#include "tests/WindowParts.h"

using namespace kelvra_saas;
using kelvra_client::CloudSide;
using kelvra_data::Store;
using kelvra_data::UserData;

class TestPhone : public DataFolderTest, private WindowParts
{
    Q_OBJECT

private slots:
    /** The phone comes beside a login that keeps the keys, and makes room where it has to. */
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        side = std::make_unique<CloudSide>();
        side->open(at());
        login = std::make_unique<ZCOMMON::MoveableDialog>(nullptr, QString(), Qt::black);
        login->resize(300, 200);
        login->show();
        QVERIFY(QTest::qWaitForWindowActive(login.get()));
        side->accompanyLogin();
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "PhoneWindow")
                phone = window;
        }
        QVERIFY(phone && phone->isVisible() && !phone->geometry().intersects(login->geometry()));
        QVERIFY(phone->geometry().right() <= phone->screen()->availableGeometry().right());
        QTRY_COMPARE(QApplication::activeWindow(), login.get());
    }

    void cleanup()
    {
        side.reset();
        QVERIFY(!phone);
        Store::_instance().close();
    }

    void startsWithWhatToDo()
    {
        QVERIFY(text("smsHint").contains("“Get PIN”") && !isShown("copyCodeBt") && !isShown("lockRow"));
        QCOMPARE(text("codeText"), QString("No code on show. Choose QR Code in the login window."));
        QVERIFY(!isShown("scanBt") && !isShown("confirmScanBt") && !isShown("refuseBt"));
        writeFile(at("cloud_accounts.ini"), "[13800000001]\npassword=short\n");
        click("reloadAccountsBt");
        QVERIFY(text("accountsProblem").contains("Line 2") && text("accountPhone") == ada);
        writeFile(at("cloud_accounts.ini"), "[18812345678]\npassword=longenough\n");
        click("reloadAccountsBt");
        QVERIFY(!isShown("accountsProblem") && text("accountPhone") == "18812345678");
    }

    void messageLogsIn()
    {
        QVERIFY(UserData::_instance().addSuperUserFromSaasUser(ada));
        for (const bool automatic : {true, false}) {
            QTest::keyClick(phone, Qt::Key_Escape);
            QCOMPARE(ask(sendCodeOperation, {{accountField, ada}}), 1000);
            QVERIFY(phone->isVisible() && text("smsPhone") == "SMS to " + ada && !isShown("smsHint"));
            QVERIFY(QStringList({"5:00 left", "4:59 left"}).contains(text("smsLeft")));
            click("copyCodeBt");
            const QString code = QGuiApplication::clipboard()->text();
            QVERIFY(code.size() == 6 && text("smsCode").remove(' ') == code && text("smsText").contains(code));
            int result = 0;
            LoginWorker::_instance().login({"id", ada, {}, code, "VERIFY_CODE"},
                                           [&](const Response &response, const auto &) { result = response.code; });
            QTRY_COMPARE(result, 1000);
            kelvra_worker::SystemWorker::_instance().setCurUserInfo(kelvra_worker::CloudUser, ada, {}, 0, automatic);
            CloudSide::settleAutoLogin(ada);
            QCOMPARE(CloudSide::isAutoLoginStored(), automatic);
        }
    }

    void codeIsAnswered()
    {
        const QMap<int, const char *> answers = {{LoginWorker::QRCodeConfirmed, "confirmScanBt"},
                                                 {LoginWorker::QRCodeCancelled, "cancelScanBt"},
                                                 {LoginWorker::QRCodeIllegalOperation, "refuseOperationBt"},
                                                 {LoginWorker::QRCodeIllegalAddress, "refuseAddressBt"}};
        QTest::keyClick(child("accountBox"), Qt::Key_Down);
        for (auto answer = answers.begin(); answer != answers.end(); ++answer) {
            QCOMPARE(ask(qrCodeOperation), 1000);
            click("scanBt");
            QVERIFY(text("codeText").contains("as Grace Hopper?") && !isShown("scanBt") && !isShown("refuseRow"));
            QCOMPARE(SaasSetup::simulation()->codeOnShow().status, int(LoginWorker::QRCodeScanned));
            click("refuseBt");
            click(*answer);
            QVERIFY(!text("codeText").contains('?') && !isShown("refuseRow") && !isShown("confirmScanBt"));
            QCOMPARE(SaasSetup::simulation()->codeOnShow().status, answer.key());
        }
    }

private:
    /** The code of what the cloud answers to another computer. */
    static int ask(const char *operation, QVariantMap fields = {})
    {
        int code = 0;
        fields.insert(terminalField, "other");
        SaasSetup::simulation()->send({"id", operation, fields}, [&](const CloudAnswer &given) { code = given.code; });
        return QTest::qWaitFor([&] { return code != 0; }) ? code : -1;
    }

    QWidget *root() const override { return phone; }

    const QString ada = QStringLiteral("13800000001");
    std::unique_ptr<CloudSide> side;
    std::unique_ptr<QDialog> login;
    QPointer<QWidget> phone;
};

QTEST_MAIN(TestPhone)

#include "tst_phone.moc"
