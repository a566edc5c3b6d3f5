#include "TestTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginWorker.h"
#include "login/local/NormalLoginWt.h"

using namespace kelvra_login;
using kelvra_contact::SystemMsg;

namespace {

const QString remembered(16, QChar(1));
const QString lockDeeds = "updateLockInfo(true,180) lockUserLog(alice,%1)";
constexpr int idleMs = 600; // longer than an automatic login waits

/** What a login of alice does. */
QString loginDeeds(const QString &autoLogin)
{
    return "verifyUserPassword(alice,secret) loginSuccessLog(alice,0," + autoLogin + ") " +
           localLogin("alice,secret,0", autoLogin) + " setValue(client_login_mode,0)";
}

} // namespace

class TestNormalLogin : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        LoginWorker::_instance().setLocked(false);
        resetHost();
        host.users["alice"].password = "secret";
        host.users["draw"].gesture = "0124";
        host.lastLocalUser = "alice";
    }

    void cleanup()
    {
        delete window;
        LoginWorker::_instance().login(kelvra_worker::LocalUser, {}, true); // automatic logins are allowed again
        qDeleteAll(dialogs());
    }

    void rememberedLogin_data()
    {
        QTest::addColumn<QString>("outcome"); // password put in, box checked, logged in
        for (const char *row : {"six days", "typed, switched"})
            QTest::newRow(row) << "password box login";
        for (const char *row : {"logged in", "typed, logged in"})
            QTest::newRow(row) << "password box";
        for (const char *row : {"locked", "typed, locked"})
            QTest::newRow(row) << "password";
        for (const char *row :
             {"seven days", "flag off", "no record", "other computer", "switched", "typed, seven days"})
            QTest::newRow(row) << "";
    }

    void rememberedLogin()
    {
        QFETCH(QString, outcome);
        remember();
        QElapsedTimer clock;
        clock.start();
        if (QByteArray(QTest::currentDataTag()).startsWith("typed")) {
            host.lastLocalUser.clear();
            newPage();
            QTest::keyClicks(nameEdit(), "b");
            QTest::qWait(200); // the pause counts from the last edit
            QGuiApplication::clipboard()->setText("al ice");
            QTest::keyClick(nameEdit(), Qt::Key_V, Qt::ControlModifier);
            clock.start();
            QTRY_VERIFY(host.calls.contains("getUserLoginRecord(alice)"));
            QVERIFY(clock.restart() > 1400);
        } else {
            newPage();
        }
        QCOMPARE(nameEdit()->text(), QString("alice"));
        QCOMPARE(pwdEdit()->text(), outcome.contains("password") ? remembered : QString());
        QCOMPARE(autoLoginBox()->isChecked(), outcome.contains("box"));
        if (outcome.contains("login")) {
            QTRY_VERIFY(host.calls.contains("signalLoginSuccess()"));
            QVERIFY(clock.elapsed() > 300);
            QCOMPARE(deeds(), loginDeeds("true"));
        } else {
            QTest::qWait(idleMs);
            QCOMPARE(deeds(), QString());
        }
        for (const QTimer *timer : window->findChildren<QTimer *>())
            QVERIFY(host.locked || !timer->isActive());
        QTest::keyClicks(nameEdit(), "x");
        QCOMPARE(pwdEdit()->text(), QString());
        QTest::keyClicks(pwdEdit(), "typed");
        QTest::keyClicks(nameEdit(), "y");
        QCOMPARE(pwdEdit()->text(), QString("typed"));
    }

    void login()
    {
        newPage();
        for (const char *by : {"localLoginBt", "return", "enter"})
            QCOMPARE(submit(by, "alice", "secret"), loginDeeds("false"));
        holdEnter(pwdEdit());
        QCOMPARE(deeds(), QString());
        QTest::mouseClick(autoLoginBox(), Qt::LeftButton, {}, QPoint(8, 14));
        QCOMPARE(submit("localLoginBt", "alice", "secret"), loginDeeds("true"));
    }

    void linksAndTips()
    {
        newPage();
        // What the whole click or key did, and the tips it left at the name and at the password.
        const auto pressed = [this](const char *by, const QString &name, const QString &password = {}) {
            QTest::mousePress(window, Qt::RightButton); // takes the last tip away
            const QString done = submit(by, name, password);
            return done + tipAt(nameEdit()) + '|' + tipAt(pwdEdit());
        };
        const QString emptyName = "User name can not be empty or be all blank!|";
        QCOMPARE(pressed("localLoginBt", "", "secret"), emptyName);
        QCOMPARE(pressed("return", "   ", "secret"), emptyName);
        QCOMPARE(pressed("localLoginBt", "alice"), QString("|Password can not be empty!"));
        QCOMPARE(pressed("forgetPwd", ""), emptyName);
        QCOMPARE(pressed("forgetPwd", "root"), QString("signalLoginEvent(5,root)|"));
        QCOMPARE(pressed("forgetPwd", "nobody"), QString("User not exist!|"));
        QCOMPARE(pressed("forgetPwd", "alice"),
                 QString("messageAlert(Please contact the administrator to obtain the password)|"));
        QCOMPARE(pressed("gesturePwd", ""), emptyName);
        QCOMPARE(pressed("gesturePwd", "draw"), QString("signalLoginEvent(6,draw)|"));
        QCOMPARE(pressed("gesturePwd", "alice"),
                 QString("messageAlert(The current account is not configured with gesture password login)|"));
        QCOMPARE(pressed("createUser", ""), QString("signalLoginEvent(2)|"));
        for (const char *link : {"forgetPwd", "gesturePwd", "createUser"}) {
            QTest::mouseClick(child(link), Qt::RightButton);
            QCOMPARE(deeds() + tipAt(nameEdit()), QString());
        }
    }

    void linkRow()
    {
        const auto shown = [this] {
            QStringList names;
            for (const char *name : {"gesturePwd", "forgetPwd", "createUser", "localAutoLogin"})
                names += child(name)->isVisible() ? QStringList(name) : QStringList();
            return names.join(' ');
        };
        const QString forUser = "gesturePwd forgetPwd localAutoLogin";
        newPage();
        QCOMPARE(shown(), forUser);
        nameEdit()->selectAll();
        QTest::keyClick(nameEdit(), Qt::Key_Delete);
        QCOMPARE(shown(), QString("createUser"));
        QTest::keyClick(nameEdit(), Qt::Key_X);
        QCOMPARE(shown(), forUser);
        host.users["root"].superUser = false;
        QTest::keyClick(nameEdit(), Qt::Key_X);
        QCOMPARE(shown(), QString("createUser"));

        host.users["root"].superUser = true;
        host.lastLocalUser.clear();
        newPage();
        emit LoginSignals::_instance().signalDefaultLocalSuperUserMethodSelected("admin", "468024");
        QCOMPARE(nameEdit()->text() + ' ' + pwdEdit()->text(), QString("admin 468024"));
        QCOMPARE(shown(), QString("createUser"));
        window->hide();
        window->show();
        QCOMPARE(shown(), forUser);
    }

    void fifthFailureLocks()
    {
        for (const int stored : {180, -1, 0, 77}) { // as told, cannot be read, no lock, somebody else's
            init();
            newPage();
            host.updatesSucceed = stored == 180;
            host.lockKnown = stored >= 0;
            host.locked = stored == 77;
            host.lockSeconds = stored;
            const QString seconds = QString::number(stored > 0 ? stored : 180);
            for (int failures = 1; failures <= 5; ++failures) {
                QCOMPARE(loginText(), QString("Login"));
                QCOMPARE(submit("localLoginBt", "alice", "bad"),
                         QString("verifyUserPassword(alice,bad) loginFailureLog(alice,0) %1messageAlert(user name or "
                                 "user password error, a maximum of 5 failures are allowed, now failed %2 times)")
                             .arg(failures == 5 ? lockDeeds.arg(seconds) + ' ' : QString())
                             .arg(failures));
            }
            QTRY_COMPARE(loginText(), "Locked, Wait:" + seconds + "Sec.");
            QVERIFY(isLocked());
        }
        QCOMPARE(host.alerts.last().first, QString("title 1"));
        QCOMPARE(submit("forgetPwd", "root"), QString("signalLoginEvent(5,root)"));
        QCOMPARE(submit("createUser", ""), QString("signalLoginEvent(2)"));
    }

    void lockRunsOut()
    {
        LoginWorker::_instance().verifyPassword("alice", "bad");
        host.locked = true;
        host.lockSeconds = 1;
        QElapsedTimer clock;
        clock.start();
        newPage();
        QTRY_COMPARE(loginText(), QString("Locked, Wait:0Sec."));
        QVERIFY(clock.elapsed() >= 1000 && isLocked());
        QTRY_COMPARE(loginText(), QString("Login"));
        QVERIFY(clock.elapsed() >= 2000);
        QCOMPARE(deeds(), QString("updateLockInfo(false,0)"));
        QVERIFY(submit("localLoginBt", "alice", "bad").endsWith("now failed 1 times)"));
    }

    void quitStoresTheLock()
    {
        const auto stored = [this](bool locked, int seconds, const QString &shown) {
            host.locked = locked;
            host.lockSeconds = seconds;
            newPage();
            const bool there = QTest::qWaitFor([&] { return loginText() == shown; });
            emit SystemMsg::_instance().signalPrepareQuitSystem();
            return there ? deeds() : "never there";
        };
        QCOMPARE(stored(true, 100, "Locked, Wait:99Sec."), QString("updateLockInfo(true,99)"));
        QCOMPARE(stored(true, 0, "Locked, Wait:0Sec."), QString("updateLockInfo(false,300)"));
        QCOMPARE(stored(false, 0, "Login"), QString());
        LoginWorker::_instance().setLocked(true); // by another form
        QCOMPARE(deeds(), QString("updateLockInfo(true,180)"));
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        QCOMPARE(deeds(), QString());
        QCOMPARE(submit("localLoginBt", "alice", "secret"), QString());
        QTRY_VERIFY(loginText().startsWith("Locked"));
        LoginWorker::_instance().setLocked(false);

        remember();
        newPage();
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        QTest::qWait(idleMs); // nobody is logged in while the client quits
        QCOMPARE(deeds(), QString());
    }

    void focusMarksTheFields()
    {
        newPage();
        const QWidget *name = child("localUserWt");
        const QWidget *password = child("localPwdWt");
        QTest::mouseMove(child("label"));
        nameEdit()->setFocus();
        QVERIFY(nameEdit()->hasFocus() && isFramed(name) && !isFramed(password));
        QTest::keyClick(nameEdit(), Qt::Key_Tab);
        QVERIFY(pwdEdit()->hasFocus() && !isFramed(name) && isFramed(password));
        child("localLoginBt")->setFocus();
        QVERIFY(!isFramed(name) && !isFramed(password));
    }

    void languageChange()
    {
        newPage();
        fillIn("alice", "secret");
        autoLoginBox()->setChecked(true);
        auto brackets = std::make_unique<Brackets>();
        QCOMPARE(host.calls.first(), QString("retranslate()"));
        QCOMPARE(loginText() + child<QLabel>("forgetPwd")->text(), QString("[Login][Forgot?]"));
        QCOMPARE(nameEdit()->text() + ' ' + pwdEdit()->text(), QString("alice secret"));
        QVERIFY(autoLoginBox()->isChecked());
        brackets.reset();
        QTRY_COMPARE(loginText(), QString("Login"));
        emit LoginSignals::_instance().signalLockLoginByGesture();
        QCOMPARE(deeds(), lockDeeds.arg(180));
        QTRY_COMPARE(loginText(), QString("Locked, Wait:180Sec."));
        brackets = std::make_unique<Brackets>();
        QCOMPARE(loginText(), QString("Locked, Wait:180Sec.")); // until the next tick translates it
        QVERIFY(isLocked());
    }

    void cloudTab()
    {
        newPage();
        QVERIFY(!child("userTypeWt")->isVisible());
        host.customization.cloudLoginEnabled = true;
        newPage();
        QVERIFY(child("userTypeWt")->isVisible());
        QCOMPARE(shownPage(), QString("local localPwdLoginPage"));
        // The page after a click on the tab of that name, or after the cloud event of that number.
        const auto after = [this](const QString &step) {
            if (step.endsWith("Tab"))
                click(step);
            else
                emit LoginSignals::_instance().signalSaasLoginEvent(SaasLoginEvent(step.toInt()), {});
            return shownPage();
        };
        QCOMPARE(after("saasUserTab"), QString("cloud saasPwdLoginPage"));
        QCOMPARE(after("2"), QString("cloud saasScanQRCodeLoginPage"));
        QCOMPARE(after("localUserTab"), QString("local localPwdLoginPage"));
        QCOMPARE(after("1"), QString("cloud saasVerificationCodeLoginPage"));
        QTest::keyClick(window, Qt::Key_Return); // the login button is not in sight
        QVERIFY(!QToolTip::isVisible());
        QCOMPARE(after("localUserTab"), QString("local localPwdLoginPage"));
        QCOMPARE(after("saasUserTab"), QString("cloud saasVerificationCodeLoginPage"));
        QCOMPARE(after("7"), QString("cloud saasVerificationCodeLoginPage"));
        QCOMPARE(after("0"), QString("cloud saasPwdLoginPage"));
    }

    void cloudAutomaticLogin()
    {
        remember();
        host.customization.cloudLoginEnabled = true;
        host.lastUserType = kelvra_worker::CloudUser;
        host.recentAccount = "139";
        newPage();
        QCOMPARE(shownPage(), QString("cloud saasPwdLoginPage"));
        QCOMPARE(host.autoLogins.size(), 1);
        QVERIFY(host.autoLogins.first().account == "139" && autoLoginBox()->isChecked());
        QTest::qWait(idleMs); // a remembered local login stays behind the cloud tab
        QCOMPARE(deeds(), QString());
        LoginWorker::_instance().switchUser();
        newPage();
        QCOMPARE(host.autoLogins.size(), 1);
    }

    void pageDestroyedByItsAlert()
    {
        for (const char *by : {"localLoginBt", "return", "forgetPwd", "gesturePwd"}) {
            newPage();
            fillIn("alice", "bad");
            host.whileAlertIsOpen = [this] { delete window; };
            if (QByteArray(by).endsWith("Pwd"))
                QTest::mousePress(child(by), Qt::LeftButton); // a click's release would find nobody
            else
                submit(by, "alice", "bad");
            QVERIFY2(!window, by);
        }
        QCOMPARE(host.alerts.size(), 4);
    }

    void pageDestroyedWhileItWaits()
    {
        remember();
        newPage();
        QTest::keyClicks(nameEdit(), "x");
        emit LoginSignals::_instance().signalLockLoginByGesture();
        delete window;
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasPwdLogin, {});
        deeds();
        QTest::qWait(idleMs);
        QCOMPARE(deeds(), QString());
    }

private:
    // A remembered login of alice, but for what the row is about.
    static void remember()
    {
        const QString row = QTest::currentDataTag();
        auto &user = host.rememberUser("alice", "secret", row.contains("seven") ? 7 : 6);
        user.autoLogin = row != "flag off";
        user.hasRecord = row != "no record";
        host.sameEnvironment = row != "other computer";
        host.loginSuccess = row.contains("logged in");
        host.locked = row.contains("locked");
        host.lockSeconds = 100;
        if (row.contains("switched"))
            LoginWorker::_instance().switchUser();
    }

    void newPage() { open(new NormalLoginWt(nullptr)); }
    QLineEdit *nameEdit() const { return edit("localUserWt"); }
    QLineEdit *pwdEdit() const { return edit("localPwdWt"); }
    QCheckBox *autoLoginBox() const { return child<QCheckBox>("localAutoLogin"); }
    QString loginText() const { return child<QPushButton>("localLoginBt")->text(); }

    QString shownPage() const
    {
        return QString(child<QPushButton>("localUserTab")->isChecked() ? "local " : "") +
               (child<QPushButton>("saasUserTab")->isChecked() ? "cloud " : "") +
               child<QStackedWidget>("stackedWidget")->currentWidget()->objectName();
    }

    void fillIn(const QString &name, const QString &password) const
    {
        nameEdit()->setText(name);
        pwdEdit()->setText(password);
    }

    // What a login by key, or a click on the button or link of that name, does with the form filled in.
    QString submit(const QString &by, const QString &name, const QString &password = {})
    {
        fillIn(name, password);
        if (by == "return")
            QTest::keyClick(pwdEdit(), Qt::Key_Return);
        else if (by == "enter")
            QTest::keyClick(nameEdit(), Qt::Key_Enter);
        else
            click(by);
        return deeds();
    }

    // Nothing that logs in does anything.
    bool isLocked()
    {
        deeds();
        QString done;
        for (const char *by : {"localLoginBt", "return", "enter", "gesturePwd"})
            done += submit(by, "draw", "bad") + submit(by, "");
        return done.isEmpty() && !QToolTip::isVisible();
    }
};

QTEST_MAIN(TestNormalLogin)

#include "tst_normallogin.moc"
