#include "TestTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "login/cloud/QRCodeLoginPanel.h"
#include "login/local/NormalLoginWt.h"

#include <optional>

using namespace kelvra_login;

namespace {

const QString phone = "13912345678";
auto &resend = kelvra_saas::SaasWorker::_instance();

} // namespace

class TestCloudPages : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        resetHost();
        host.customization.cloudLoginEnabled = true;
        host.recentAccount = phone;
        openForm();
    }

    void cleanup() { delete window; }

    void answers_data()
    {
        QTest::addColumn<QString>("road"); // of the code that the row names, in each call's own way
        const QString lock =
            "messageAlert(Current errors:3,in the next 600 sec.,if you make another error 2 times, the "
            "account will be locked for 30 minutes)";
        const QString loginFailed = "messageAlert(Nimbra account login failure:%1)";
        const auto row = [](const char *call, int code, const QString &road) {
            QTest::addRow("%s %d", call, code) << QString(road).replace("%1", QString("cloud error %1/8").arg(code));
        };
        row("password", 2203, lock);
        row("password", 2231, lock);
        row("password", 2204, loginFailed);
        row("password", 2229,
            "signalSaasLoginEvent(1,13912345678) messageAlert(It is currently a non secure terminal,Please log in "
            "as a verification code)");
        row("code", 2204, lock);
        row("code", 2203, loginFailed.arg("invalid account"));
        row("code", 2229, loginFailed);
        row("code", 2231, loginFailed);
        row("request", 7, "messageAlert(Get verificaion code failed:%1)");
        row("request", 1001, "messageAlert(Get verificaion code failed:invalid mobile number(1001))");
        row("account", 7, "messageAlert(Get logged in account failure:%1)");
        row("automatic", 7, "cancelAccountAutoLogin(13912345678) messageAlert(Nimbra account auto login failure:%1)");
    }

    void answers()
    {
        QFETCH(QString, road);
        const QStringList row = QString(QTest::currentDataTag()).split(' ');
        const QString call = row[0];
        const int code = row[1].toInt();
        const bool login = call == "password" || call == "code";

        const auto first = ask(call);
        first.callback({"foreign", code, 8, {}});
        // Only the account that has been scanned is taken from any answer.
        QCOMPARE(deeds(), call == "account" ? road : QString());
        const auto second = call == "account" ? ask(call) : first;
        QVERIFY(!login || state("loginBt") == "Logging in... busy");
        window->hide();
        std::optional<Brackets> language;
        QString meanwhile;
        host.whileAlertIsOpen = [&] {
            second.answer(code);
            language.emplace();
            meanwhile = login ? state("loginBt") + child<QLineEdit>("userName")->placeholderText() : QString();
        };
        second.answer(code);
        QCOMPARE(deeds(), road);
        QCOMPARE(host.alerts.last().first, QString("title 1"));
        QCOMPARE(meanwhile, QString(login ? "[Logging in...] busy[Phone Number]" : ""));
        QVERIFY(!login || state("loginBt") == "[Login]");
        language.reset();

        window->show();
        const auto third = ask(call);
        QVERIFY(third.requestId.size() > 30 && third.requestId != first.requestId);
        second.answer(1000);
        QCOMPARE(deeds(), QString());
        third.answer(1000);
        third.answer(1000);
        const QString success = call == "request"
                                    ? "messageAlert(Get verificaion code success, please check the verification code "
                                      "on your mobile phone)"
                                    : "addSuperUserFromSaasUser(13912345678) setCurUserInfo(2,13912345678,,0,true) " +
                                          endOfLogin + " setValue(client_login_mode,0)";
        QCOMPARE(deeds(), success);
        QCOMPARE(host.alerts.last().first, QString(call == "request" ? "title 2" : "title 1"));
        QVERIFY(!login || state("loginBt").endsWith("busy")); // the dialog moves on

        for (const bool left : {false, true}) { // somebody else is in by then, or the window is closed
            openForm();
            const auto late = ask(call);
            host.loginSuccess = !left;
            window->setVisible(!left);
            if (left)
                emit kelvra_contact::SystemMsg::_instance().signalPrepareQuitSystem();
            late.answer(1000);
            QCOMPARE(deeds(), call == "request" ? success : QString());
            host.loginSuccess = false;
        }

        openForm();
        const auto fourth = ask(call);
        host.whileAlertIsOpen = [this] { delete window; };
        fourth.answer(code);
        QVERIFY(!window);
        openForm();
        const auto last = ask(call);
        delete window;
        deeds();
        last.answer(code);
        last.answer(1000);
        QCOMPARE(deeds(), QString());
    }

    void submissions()
    {
        for (const int key : {0, int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            openForm();
            QCOMPARE(submit(0, phone, "1234 678", key), QString("login(13912345678,1234 678,,PASSWORD)"));
            QCOMPARE(submit(1, phone, "123456", key), QString("login(13912345678,,123456,VERIFY_CODE)"));
            QCOMPARE(submit(0, phone, "1234 678", key) + submit(1, phone, "123456", key), QString());
        }
        openForm();
        const QString number = "userName: Illegal mobile phone number";
        const QString code = "verificationCode: Invalid verification code";
        QCOMPARE(submit(0, "1391234567", ""), number);
        QCOMPARE(submit(0, phone, "1234567"), QString("pwd: Invalid password"));
        QCOMPARE(submit(1, "", "123456"), number);
        QCOMPARE(submit(1, phone, "12345"), code);
        QCOMPARE(submit(1, "1", ""), number);
        QCOMPARE(submit(1, phone, "1234567"), code);
        child<QLineEdit>("userName")->clear();
        click("getVerificationCodeBt");
        QCOMPARE(outcome(), number);
    }

    void countdown()
    {
        host.resendSeconds = 42;
        openForm();
        showPage(1);
        QCOMPARE(state("getVerificationCodeBt"), QString("42S off"));
        {
            const Brackets language;
            QCOMPARE(state("getVerificationCodeBt"), QString("[Get PIN] off"));
            emit resend.signalGetVerificationCodeRemainingSecs(41);
            QCOMPARE(state("getVerificationCodeBt"), QString("[41S] off"));
        }
        emit resend.signalGetVerificationCodeRemainingSecs(0);
        QCOMPARE(state("getVerificationCodeBt"), QString("Get Verification Code"));
        secret()->setText("old");
        click("getVerificationCodeBt");
        QCOMPARE(host.callsOf({"resetVerificationCodeRemainingSecs", "getVerificationCode"}).join(' '),
                 QString("resetVerificationCodeRemainingSecs(60) getVerificationCode(13912345678,LOGIN,PHONE)"));
        QVERIFY(secret()->text().isEmpty() && secret()->hasFocus());
        host.cloudCalls.last().answer(1001);
        QCOMPARE(state("getVerificationCodeBt"), QString("60S off"));
    }

    void numbersStayInStep()
    {
        for (const int typed : {0, 1}) {
            showPage(1 - typed);
            const auto *other = child<QLineEdit>("userName");
            showPage(typed);
            auto *number = child<QLineEdit>("userName");
            QCOMPARE(other->text(), phone);
            number->clear();
            QTest::keyClicks(number, "2a139123 4567890");
            QCOMPARE(other->text(), phone);
            number->setCursorPosition(3);
            QTest::keyClicks(number, "\b7");
            QCOMPARE(other->text(), QString("13712345678"));
            QCOMPARE(number->cursorPosition(), 3); // its own text does not come back to it
            number->setText(phone);
        }
    }

    void links()
    {
        for (const QString row :
             {"0 verificationCodeLogin 1,13912345678", "0 QRCodeLogin 2,13912345678", "1 passwordLogin 0,13912345678",
              "1 QRCodeLogin 2,13912345678", "2 verificationCodeLogin 1", "2 passwordLogin 0"}) {
            const QStringList link = row.split(' ');
            showPage(link[0].toInt());
            QTest::mouseClick(child(link[1]), Qt::RightButton);
            QTest::mousePress(child(link[1]), Qt::LeftButton);
            QCOMPARE(deeds(), QString());
            QTest::mouseRelease(child(link[1]), Qt::LeftButton);
            QCOMPARE(deeds(), "signalSaasLoginEvent(" + link[2] + ")");
            QVERIFY(!page->isVisible());
        }
    }

    void newCodeAfterAFailedAccount()
    {
        const auto asked = ask("account");
        QCOMPARE(child<QLabel>("QRCode")->size(), QSize(178, 178));
        host.qrCodeRequests.clear();
        asked.answer(7);
        QTest::qWait(900);
        QVERIFY(host.qrCodeRequests.isEmpty());
        QTRY_COMPARE(host.qrCodeRequests.size(), 1);
    }

    void lateAutomaticLogin()
    {
        const auto late = ask("automatic");
        QVERIFY(child<QLineEdit>("pwd")->hasFocus());
        host.loginSuccess = true; // somebody has logged in by hand meanwhile
        late.answer(1000);
        QCOMPARE(deeds(), QString());
        host.recentAccount.clear();
        openForm();
        QVERIFY(child<QLineEdit>("userName")->hasFocus());
    }

private:
    void openForm()
    {
        page = nullptr;
        open(new NormalLoginWt(nullptr));
        page = window->findChild<QWidget *>("saasPwdLoginPage");
    }

    void showPage(int number)
    {
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasLoginEvent(number), {});
        page = window->findChild<QStackedWidget *>("stackedWidget")->currentWidget();
        deeds();
    }

    QWidget *root() const override { return page; }

    QLineEdit *secret() const
    {
        auto *code = child<QLineEdit>("verificationCode");
        return code ? code : child<QLineEdit>("pwd");
    }

    QString state(const char *button) const
    {
        const auto *bt = child<QPushButton>(button);
        return bt->text() + (bt->isEnabled() ? "" : " off") + (bt->property("is_logging_in").toBool() ? " busy" : "");
    }

    // What has been done, or the tip that hangs from a field.
    QString outcome() const
    {
        QString all = deeds();
        for (const QLineEdit *field : {child<QLineEdit>("userName"), secret()})
            all += tipAt(field).isEmpty() ? QString() : field->objectName() + ": " + tipAt(field);
        return all;
    }

    // What comes of it when the login button, or a key in a field, is pressed on a page filled in so.
    QString submit(int number, const QString &account, const QString &entered, int key = 0)
    {
        showPage(number);
        child<QLineEdit>("userName")->setText(account);
        secret()->setText(entered);
        if (key)
            QTest::keyClick(key == Qt::Key_Enter ? secret() : child<QLineEdit>("userName"), Qt::Key(key));
        else
            click("loginBt");
        return outcome();
    }

    FakeHost::CloudCall ask(const QString &call)
    {
        if (call == "automatic") {
            host.lastUserType = kelvra_worker::CloudUser;
            openForm();
            const auto asked = host.autoLogins.last();
            return {asked.requestId,
                    [asked](const kelvra_saas::Response &response) { asked.answer(response, asked.account); }};
        }
        showPage(call == "password" ? 0 : call == "account" ? 2 : 1);
        child<QCheckBox>("autoLogin")->setChecked(true);
        if (call == "account") {
            emit child<QRCodeLoginPanel>("QRCodePanel")->signalScanQRCodeLoginSuccess();
        } else if (call == "request") {
            emit resend.signalGetVerificationCodeRemainingSecs(0);
            click("getVerificationCodeBt");
        } else {
            submit(call == "code", phone, call == "code" ? "123456" : "12345678");
        }
        deeds();
        return host.cloudCalls.takeLast();
    }

    QWidget *page = nullptr;
};

QTEST_MAIN(TestCloudPages)

#include "tst_cloudpages.moc"
