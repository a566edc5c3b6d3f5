#include "TestTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "login/cloud/QRCodeLoginPanel.h"
#include "login/local/NormalLoginWt.h"

using namespace kelvra_login;

namespace {

const QString phone = "13912345678";
auto &resend = kelvra_saas::SaasWorker::_instance();

const QString scan = "1 Nimbra App Code scanning login";
const QString masked = "|mask|refreshBt";
// Black on the left, white on the right, with percent signs as a data URI may have them
const QString picture = "data:image/x-portable-bitmap,P1%0A%23%2B%0A2%202%201%200%201%200";

/**
 * Answers the last call of its kind: "code", "result" or a status, in any order and as often as wanted; after "!" as
 * a failure, after "?" under a foreign id.
 */
void answer(const QString &answers, const kelvra_saas::LoginQRCodeInfo &info = {"code", picture, 600})
{
    for (QString text : answers.split(' ')) {
        const bool foreign = text.startsWith('?');
        const int code = text.contains('!') ? 4711 : kelvra_saas::successCode;
        const QString kind = text.remove('?').remove('!');
        const auto give = [foreign, code](const auto call, const auto &...more) {
            call.answer({foreign ? "foreign" : call.requestId, code, 7, QString()}, more...);
        };
        if (kind == "code")
            give(host.qrCodeRequests.last(), info);
        else if (kind == "result")
            give(host.qrCodeResultQueries.last());
        else
            give(host.qrCodeStatusQueries.last(), kind.toInt());
    }
}

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

    void answers()
    {
        const QString lock =
            "messageAlert(Current errors:3,in the next 600 sec.,if you make another error 2 times, the "
            "account will be locked for 30 minutes)";
        const QString failure = "messageAlert(Nimbra account login failure:";
        const QVector<QPair<QString, QString>> rows{
            {"password 2203", lock},
            {"password 2231", lock},
            {"password 2204", failure + "cloud error 2204/8)"},
            {"password 2229", "signalSaasLoginEvent(1,13912345678) messageAlert(It is currently a non secure "
                              "terminal,Please log in as a verification code)"},
            {"code 2204", lock},
            {"code 2203", failure + "invalid account)"},
            {"code 2229", failure + "cloud error 2229/8)"},
            {"code 2231", failure + "cloud error 2231/8)"},
            {"request 7", "messageAlert(Get verificaion code failed:cloud error 7/8)"},
            {"request 1001", "messageAlert(Get verificaion code failed:invalid mobile number(1001))"},
            {"account 7", "messageAlert(Get logged in account failure:cloud error 7/8)"},
            {"automatic 7", "cancelAccountAutoLogin(13912345678) messageAlert(Nimbra account auto login "
                            "failure:cloud error 7/8)"}};
        for (const auto &[row, road] : rows) {
            init();
            answers(row.section(' ', 0, 0), row.section(' ', 1).toInt(), road);
            QVERIFY2(!QTest::currentTestFailed(), qPrintable(row));
        }
    }

    void submissions()
    {
        for (const int key : {0, int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            openForm();
            QCOMPARE(submit(0, phone, "1234 678", key), QString("login(13912345678,1234 678,,PASSWORD)"));
            QCOMPARE(submit(1, phone, "123456", key), QString("login(13912345678,,123456,VERIFY_CODE)"));
            QCOMPARE(submit(0, phone, "1234 678", key) + submit(1, phone, "123456", key), QString());
            const Brackets language;
            const QString placeholder = child<QLineEdit>("userName")->placeholderText();
            QCOMPARE(state("loginBt") + placeholder, QString("[Logging in...] busy[Phone Number]"));
        }
        host.lastUserType = kelvra_worker::CloudUser;
        host.recentAccount.clear();
        openForm();
        QVERIFY(child<QLineEdit>("userName")->hasFocus());
        const QString number = "userName: Illegal mobile phone number";
        QCOMPARE(submit(0, phone, "1234567"), QString("pwd: Invalid password"));
        QCOMPARE(submit(1, "1", ""), number);
        QCOMPARE(submit(1, phone, "1234567"), QString("verificationCode: Invalid verification code"));
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

    void firstShowFetchesACode()
    {
        delete window;
        window = page = panel = new QRCodeLoginPanel(nullptr);
        const QMovie *movie = child<QLabel>("waitingLabel")->movie();
        host.calls.clear();
        for (const bool shown : {false, true, false, true}) {
            panel->setVisible(shown);
            QCOMPARE(movie->state(), shown ? QMovie::Running : QMovie::Paused);
        }
        QCOMPARE(host.calls, QStringList("getLoginQRCode()"));
        QCOMPARE(look(), scan + "|waitingLabel");
        answer("code", {"code", picture, 2});
        QCOMPARE(look(), scan);
        QCOMPARE(movie->state(), QMovie::Paused);
        QCOMPARE(text("QRCode"), "<img src=\"" + picture + "\" width=\"220\" heigh=\"220\" />");
        QCOMPARE(codeColour(40), QColor(Qt::black));
        QCOMPARE(codeColour(180), QColor(Qt::white));
        panel->setQRCodeSize(178);
        panel->refreshQRCode();
        answer("code", {"code", "a\"/>Call us<i b=\"", 60});
        QVERIFY(text("QRCode").endsWith(" width=\"178\" heigh=\"178\" />"));
        QTextDocument shown;
        shown.setHtml(text("QRCode"));
        QCOMPARE(shown.toPlainText(), QString(QChar::ObjectReplacementCharacter)); // an address brings no text in
        QTRY_COMPARE(look(), "2 QR Code Invalid" + masked); // the first code's time, at the second one's cost
    }

    void panelAnswers()
    {
        openPanel();
        // What comes, the look then, an alert
        const QVector<QStringList> rows{
            {"2001", scan, ""},
            {"2002", "4 Scanned, confirming", ""},
            {"2003", "2 QR Code Invalid" + masked, ""},
            {"2005", "5 Scanned, cancel login" + masked, ""},
            {"2006", "6 Illegal operation" + masked, ""},
            {"2007", "7 Illegal ip" + masked, ""},
            {"!code", "3 Get QR Code Failure" + masked, "Get login QR code failure:cloud error 4711/7"},
            {"!2004", "8 Check Status Failure" + masked, "Check login QR code status failure:cloud error 4711/7"},
            {"2004 !result", "0 QR Code Login Failure" + masked,
             "Check QR code login result failure:cloud error 4711/7"}};
        for (const QStringList &row : rows) {
            QString duringAlert;
            host.whileAlertIsOpen = [&] { duringAlert = look(); };
            host.alerts.clear();
            panel->refreshQRCode();
            answerTwice(row[0]);
            QCOMPARE(QStringList({row[0], look(), host.alerts.value(0).second}), row);
            QCOMPARE(duringAlert, row[2].isEmpty() ? "" : row[1]);
            QVERIFY(host.alerts.size() < 2 && text("QRCode").contains(picture));
            const Brackets brackets;
            QCOMPARE(text("QRCodeTitle"), '[' + row[1].section('|', 0, 0).mid(2) + ']');
        }
        QCOMPARE(codeColour(40), QColor(Qt::black)); // nothing is painted over the picture
        host.calls.clear();
        panel->hide();
        panel->show();
        QTest::qWait(1200);
        QCOMPARE(host.calls, QStringList()); // nothing renews a refused code by itself
        click("refreshBt");
        QCOMPARE(host.calls, QStringList("getLoginQRCode()"));
        QCOMPARE(look(), QString("0 QR Code Login Failure|waitingLabel"));
        for (const char *last : {"!code", "!2001", "2004 !result"}) {
            openPanel();
            host.whileAlertIsOpen = [&] { delete window; };
            answerTwice(last);
            QVERIFY(!window);
        }
    }

    void strayAnswers()
    {
        openPanel();
        const QSignalSpy success(panel, &QRCodeLoginPanel::signalScanQRCodeLoginSuccess);
        answer("?code ?!code");
        QCOMPARE(look(), scan + "|waitingLabel");
        poll();
        answer("?2003 ?!2003");
        QTest::qWait(1300);
        QCOMPARE(host.qrCodeStatusQueries.size(), 1); // they have not ended the query
        answer("2001 2001");
        QTRY_COMPARE(host.qrCodeStatusQueries.size(), 2);
        host.whileAlertIsOpen = [&] {
            panel->refreshQRCode();
            answer("code");
            QTest::qWait(1300);
        };
        answer("!2001");
        QCOMPARE(host.qrCodeStatusQueries.size(), 2); // the alert's end is the query's
        QTRY_COMPARE(host.qrCodeStatusQueries.size(), 3);
        host.calls.clear();
        answer("2004 2004");
        QTest::qWait(1200);
        QCOMPARE(host.calls, QStringList("checkLoginQRCodeResult(code)"));
        answer("?result ?!result");
        QCOMPARE(success.size(), 0);
        answer("result result !result");
        QCOMPARE(success.size(), 1);
        QCOMPARE(look(), scan);
        delete window;
        answer("!code !2003 !result");
        QCOMPARE(host.alerts.size(), 1);

        openPanel();
        std::make_unique<QRCodeLoginPanel>(nullptr).reset(); // takes over, and is gone
        answer("code");
        QCOMPARE(look(), scan + "|waitingLabel");
    }

    void panelMayDieOfAnAnswerWithinTheCall()
    {
        openPanel();
        poll();
        connect(panel, &QRCodeLoginPanel::signalScanQRCodeLoginSuccess, this, [this] { delete window; });
        host.whileCloudIsAsked = [] { answer("result"); };
        answer("2004");
        QVERIFY(!window);
    }

    void panelMayDieOfAnAnswerWhileItIsShown()
    {
        host.whileCloudIsAsked = [] { answer("!code"); };
        host.whileAlertIsOpen = [this] { delete window; };
        delete window;
        window = new QRCodeLoginPanel(nullptr);
        window->show();
        QTRY_VERIFY(!window);
    }

    void pageMayDieOfALink()
    {
        connect(&LoginSignals::_instance(), &LoginSignals::signalSaasLoginEvent, page, [this] { delete window; });
        click("QRCodeLogin");
        QVERIFY(!window);
    }

    void longValidityDoesNotWrapRound()
    {
        openPanel();
        answer("code", {"code", picture, 4294968}); // seconds: 704 ms beyond what 32 bits hold
        QTest::qWait(900);
        QCOMPARE(look(), scan);
    }

    void pollsWhileVisible()
    {
        openPanel();
        for (const bool minimised : {true, false}) {
            minimised ? panel->showMinimized() : panel->hide();
            panel->refreshQRCode();
            answer("code");
            QTest::qWait(1300);
        }
        QVERIFY(host.qrCodeStatusQueries.isEmpty());
        panel->showNormal();
        QElapsedTimer clock;
        clock.start();
        for (int queries = 1; queries < 4; ++queries) {
            QTRY_COMPARE(host.qrCodeStatusQueries.size(), queries);
            answer("2001");
        }
        QVERIFY(clock.elapsed() > 2900);
        panel->hide();
        QTest::qWait(1300);
        QCOMPARE(host.qrCodeStatusQueries.size(), 3);
        QCOMPARE(host.qrCodeRequests.size(), 3); // none comes with the second show
    }

    void overlaysFollowTheCode()
    {
        openPanel();
        const QWidget *code = child("QRCode");
        for (const auto change :
             {+[](QRCodeLoginPanel *p) { p->resize(600, 500); }, +[](QRCodeLoginPanel *p) { p->setQRCodeSize(178); },
              +[](QRCodeLoginPanel *p) { p->setLayoutSpacing(450); }}) {
            const QPoint before = code->pos();
            change(panel);
            QTRY_VERIFY(code->pos() != before);
            QCOMPARE(child("waitingLabel")->geometry().center(), code->geometry().center());
            QCOMPARE(child("refreshBt")->geometry().center(), code->geometry().center());
            QCOMPARE(child("mask")->pos(), code->pos());
        }
    }

private:
    // What comes of the answers to `call`, of which that of `code` does what `road` says.
    void answers(const QString &call, int code, const QString &road)
    {
        const bool login = call == "password" || call == "code";
        const auto first = ask(call);
        first.callback({"foreign", code, 8, {}});
        // Only the account that has been scanned is taken from any answer.
        QCOMPARE(deeds(), call == "account" ? road : QString());
        const auto second = call == "account" ? ask(call) : first;
        QVERIFY(call != "automatic" || child<QLineEdit>("pwd")->hasFocus());
        window->hide();
        bool busy = false;
        host.whileAlertIsOpen = [&] {
            second.answer(code);
            busy = login && state("loginBt") == "Logging in... busy";
        };
        second.answer(code);
        QCOMPARE(deeds(), road);
        QCOMPARE(host.alerts.last().first, QString("title 1"));
        QVERIFY(busy == login && (!login || state("loginBt") == "Login"));

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

    void openPanel() { open(page = panel = new QRCodeLoginPanel(nullptr)); }

    /** Shows a code and waits until the panel asks what has become of it. */
    void poll()
    {
        answer("code");
        host.calls.clear();
        QTRY_COMPARE(host.calls, QStringList("checkLoginQRCodeStatus(code)"));
    }

    /** What comes twice counts once. A code is shown first, unless it is refused. */
    void answerTwice(const QString &answers)
    {
        if (answers != "!code")
            poll();
        answer(answers);
        answer(answers);
    }

    /** The title's id, the title, and what lies over the code. */
    QString look() const
    {
        QString look = child<QLabel>("QRCodeTitle")->property("title_id").toString() + ' ' + text("QRCodeTitle");
        for (const char *over : {"waitingLabel", "mask", "refreshBt"})
            look += isShown(over) ? QString("|") + over : QString();
        return look;
    }

    /** What is seen of the code `x` pixels from its left edge, below the refresh button. */
    QColor codeColour(int x) const
    {
        return panel->grab().toImage().pixelColor(child<QLabel>("QRCode")->pos() + QPoint(x, 190));
    }

    QPointer<QWidget> page;
    QRCodeLoginPanel *panel = nullptr;
};

QTEST_MAIN(TestCloudPages)

#include "tst_cloudpages.moc"
