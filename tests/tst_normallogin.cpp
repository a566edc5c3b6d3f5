#include "fakehost/Brackets.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/local/NormalLoginWt.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolTip>
#include <QUuid>
#include <QtTest>

using namespace kelvra_login;
using kelvra_contact::SystemMsg;
using kelvra_worker::DictDef;

namespace {

const QString remembered(16, QChar(1));
const QString emptyName = "User name can not be empty or be all blank!";
constexpr int idleMs = 600; // longer than an automatic login waits

FakeHost &host = FakeHost::get();

/** What was done and announced since the last call, in order, without what was only looked up. */
QStringList deeds()
{
    return std::exchange(host.calls, {}).filter(QRegularExpression("^(?!get|is|retranslate|translate)"));
}

QString failureAlert(int failures)
{
    return QString("messageAlert(user name or user password error, a maximum of 5 failures are allowed, "
                   "now failed %1 times)")
        .arg(failures);
}

/** What a login with the password "secret" does. */
QStringList loginDeeds(const QString &name, const QString &autoLogin)
{
    return {"verifyUserPassword(" + name + ",secret)",
            "loginSuccessLog(" + name + ",0," + autoLogin + ')',
            "updateLoginEnvironment()",
            "updateUserLoginRecord(" + name + ',' + autoLogin + ')',
            "updateLockInfo(false,0)",
            "setCurUserInfo(1," + name + ",secret,0," + autoLogin + ')',
            "setSuperUserInfo(root,roots)",
            "setLoginSuccess(true)",
            "signalLoginSuccess()",
            "setValue(client_login_mode,0)"};
}

} // namespace

class TestNormalLogin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Among the host's calls, so that the order of both shows.
        const auto &hub = LoginSignals::_instance();
        connect(&hub, &LoginSignals::signalLoginEvent, this, [](LoginEvent event, const QStringList &params) {
            host.record("signalLoginEvent", QStringList(QString::number(event)) + params);
        });
        connect(&hub, &LoginSignals::signalLoginSuccess, this, [] { host.record("signalLoginSuccess", {}); });
    }

    void init()
    {
        LoginWorker::_instance().setLocked(false);
        host.reset();
        host.users["alice"].password = "secret";
        host.users["root"].superUser = true;
        host.users["draw"].gesture = "0124";
        host.superUser.userName = "root";
        host.superUser.password = "roots";
        host.lastLocalUser = "alice";
    }

    void cleanup()
    {
        page.reset();
        LoginWorker::_instance().login(kelvra_worker::LocalUser, {}, true); // automatic logins are allowed again
        QList<LoginDlg *> dialogs;
        for (QWidget *shown : QApplication::topLevelWidgets()) {
            if (auto *dialog = qobject_cast<LoginDlg *>(shown))
                dialogs << dialog;
        }
        qDeleteAll(dialogs);
    }

    void rememberedLogin_data()
    {
        QTest::addColumn<QString>("outcome"); // password put in, box checked, logged in
        QTest::newRow("remembered") << "password box login";
        QTest::newRow("six days") << "password box login";
        QTest::newRow("seven days") << "";
        QTest::newRow("flag off") << "";
        QTest::newRow("no record") << "";
        QTest::newRow("other computer") << "";
        QTest::newRow("switched") << "";
        QTest::newRow("locked") << "password";
        QTest::newRow("logged in") << "password box";
        QTest::newRow("typed, remembered") << "password box login";
        QTest::newRow("typed, switched") << "password box login";
        QTest::newRow("typed, seven days") << "";
        QTest::newRow("typed, locked") << "password";
        QTest::newRow("typed, logged in") << "password box";
    }

    void rememberedLogin()
    {
        QFETCH(QString, outcome);
        remember("alice");
        QElapsedTimer clock;
        clock.start();
        if (QByteArray(QTest::currentDataTag()).startsWith("typed")) {
            host.lastLocalUser.clear();
            open();
            QTest::keyClicks(nameEdit(), "b");
            QTest::qWait(200); // the pause counts from the last edit
            QGuiApplication::clipboard()->setText("al ice");
            QTest::keyClick(nameEdit(), Qt::Key_V, Qt::ControlModifier);
            clock.start();
            QTRY_VERIFY(host.calls.contains("getUserLoginRecord(alice)"));
            QVERIFY(clock.restart() > 1400);
        } else {
            open();
        }
        QCOMPARE(nameEdit()->text(), QString("alice"));
        QCOMPARE(pwdEdit()->text(), outcome.contains("password") ? remembered : QString());
        QCOMPARE(autoLoginBox()->isChecked(), outcome.contains("box"));
        if (outcome.contains("login")) {
            QTRY_VERIFY(host.calls.contains("signalLoginSuccess()"));
            QVERIFY(clock.elapsed() > 300);
            QCOMPARE(deeds(), loginDeeds("alice", "true"));
        } else {
            QTest::qWait(idleMs);
            QCOMPARE(deeds(), QStringList());
        }
        const auto timers = page->findChildren<QTimer *>();
        QVERIFY(host.locked || std::none_of(timers.begin(), timers.end(), [](QTimer *t) { return t->isActive(); }));
    }

    void editedNameForgetsThePassword()
    {
        remember("alice");
        open();
        QTest::keyClicks(nameEdit(), "x");
        QCOMPARE(pwdEdit()->text(), QString());
        QTest::keyClicks(pwdEdit(), "typed");
        QTest::keyClicks(nameEdit(), "y");
        QCOMPARE(pwdEdit()->text(), QString("typed"));
    }

    void login()
    {
        open();
        for (const char *by : {"localLoginBt", "return", "enter"}) {
            fillIn("alice", "secret");
            submit(by);
            QCOMPARE(deeds(), loginDeeds("alice", "false"));
        }
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
        QCoreApplication::sendEvent(pwdEdit(), &held);
        QCOMPARE(deeds(), QStringList());
        QTest::mouseClick(autoLoginBox(), Qt::LeftButton, {}, QPoint(8, 14));
        submit("localLoginBt");
        QCOMPARE(deeds(), loginDeeds("alice", "true"));
    }

    void fieldTips()
    {
        open();
        // The tip after the whole click or key, with the field that it hangs from.
        const auto tip = [this](const QString &name, const QString &password, const char *by) {
            QTest::mousePress(page.get(), Qt::RightButton); // takes the last tip away
            fillIn(name, password);
            submit(by);
            for (const QWidget *shown : QApplication::topLevelWidgets()) {
                if (shown->inherits("QTipLabel") && shown->isVisible())
                    return (shown->y() < pwdEdit()->mapToGlobal({}).y() ? "name: " : "password: ") + QToolTip::text();
            }
            return QString();
        };
        QCOMPARE(tip("", "secret", "localLoginBt"), "name: " + emptyName);
        QCOMPARE(tip("   ", "secret", "return"), "name: " + emptyName);
        QCOMPARE(tip("alice", "", "localLoginBt"), QString("password: Password can not be empty!"));
        QCOMPARE(tip("", "", "forgetPwd"), "name: " + emptyName);
        QCOMPARE(tip("root", "", "forgetPwd"), QString());
        QCOMPARE(tip("nobody", "", "forgetPwd"), QString("name: User not exist!"));
        QCOMPARE(tip("", "", "gesturePwd"), "name: " + emptyName);
        QCOMPARE(deeds(), QStringList("signalLoginEvent(5,root)"));
    }

    void links()
    {
        open();
        const auto press = [this](const QString &name, const QString &link, Qt::MouseButton button = Qt::LeftButton) {
            fillIn(name, "");
            QTest::mouseClick(child<QLabel>(link), button);
            return deeds().join(' ');
        };
        QCOMPARE(press("root", "forgetPwd"), QString("signalLoginEvent(5,root)"));
        QCOMPARE(press("alice", "forgetPwd"),
                 QString("messageAlert(Please contact the administrator to obtain the password)"));
        QCOMPARE(press("draw", "gesturePwd"), QString("signalLoginEvent(6,draw)"));
        QCOMPARE(press("alice", "gesturePwd"),
                 QString("messageAlert(The current account is not configured with gesture password login)"));
        QCOMPARE(press("", "createUser"), QString("signalLoginEvent(2)"));
        for (const char *link : {"forgetPwd", "gesturePwd", "createUser"})
            QCOMPARE(press("", link, Qt::RightButton) + QToolTip::text(), QString());
    }

    void linkRow()
    {
        const auto shown = [this] {
            return QString(child<QLabel>("gesturePwd")->isVisible() ? "gesture " : "") +
                   (child<QLabel>("forgetPwd")->isVisible() ? "forgot " : "") +
                   (child<QLabel>("createUser")->isVisible() ? "create " : "") +
                   (autoLoginBox()->isVisible() ? "box" : "");
        };
        open();
        QCOMPARE(shown(), QString("gesture forgot box"));
        nameEdit()->selectAll();
        QTest::keyClick(nameEdit(), Qt::Key_Delete);
        QCOMPARE(shown(), QString("create "));
        QTest::keyClick(nameEdit(), Qt::Key_X);
        QCOMPARE(shown(), QString("gesture forgot box"));
        host.users["root"].superUser = false;
        QTest::keyClick(nameEdit(), Qt::Key_X);
        QCOMPARE(shown(), QString("create "));

        host.users["root"].superUser = true;
        host.lastLocalUser.clear();
        open();
        QCOMPARE(shown(), QString("create "));
        emit LoginSignals::_instance().signalDefaultLocalSuperUserMethodSelected("admin", "468024");
        QCOMPARE(nameEdit()->text() + ' ' + pwdEdit()->text(), QString("admin 468024"));
        QCOMPARE(shown(), QString("create "));
        page->hide();
        page->show();
        QCOMPARE(shown(), QString("gesture forgot box"));
    }

    void fifthFailureLocks()
    {
        open();
        for (int failures = 1; failures <= 5; ++failures) {
            QCOMPARE(loginText(), QString("Login"));
            fillIn("alice", "bad");
            submit("localLoginBt");
            QStringList expected = {"verifyUserPassword(alice,bad)", "loginFailureLog(alice,0)"};
            if (failures == 5) {
                QVERIFY(host.calls.indexOf("getLockInfo()") < host.calls.indexOf("lockUserLog(alice,180)"));
                expected << "updateLockInfo(true,180)"
                         << "lockUserLog(alice,180)";
            }
            QCOMPARE(deeds(), expected << failureAlert(failures));
        }
        QCOMPARE(host.alerts.last().first, DictDef::_instance().alertTitle(DictDef::WarningTitle));
        QTRY_COMPARE(loginText(), QString("Locked, Wait:180Sec."));
        QVERIFY(isLocked());
        QTRY_COMPARE(loginText(), QString("Locked, Wait:179Sec."));
        fillIn("root", "");
        submit("forgetPwd");
        submit("createUser");
        QCOMPARE(deeds().join(' '), QString("signalLoginEvent(5,root) signalLoginEvent(2)"));
    }

    void lockRunsOut()
    {
        LoginWorker::_instance().verifyPassword("alice", "bad");
        host.locked = true;
        host.lockSeconds = 1;
        QElapsedTimer clock;
        clock.start();
        open();
        QTRY_COMPARE(loginText(), QString("Locked, Wait:1Sec."));
        QTRY_COMPARE(loginText(), QString("Locked, Wait:0Sec."));
        QVERIFY(clock.elapsed() >= 1000 && isLocked());
        QTRY_COMPARE(loginText(), QString("Login"));
        QVERIFY(clock.elapsed() >= 2000);
        QCOMPARE(deeds().join(' '), QString("updateLockInfo(false,0)"));
        fillIn("alice", "bad");
        submit("localLoginBt");
        QCOMPARE(deeds().last(), failureAlert(1));
    }

    void lockHoldsWithoutTheDataLibrary()
    {
        for (const bool readable : {false, true}) {
            init();
            open();
            host.lockKnown = readable;
            host.updatesSucceed = false;
            for (int failures = 0; failures < 5; ++failures) {
                fillIn("alice", "bad");
                submit("localLoginBt");
            }
            QCOMPARE(host.callsOf({"lockUserLog"}).join(' '), QString("lockUserLog(alice,180)"));
            QTRY_COMPARE(loginText(), QString("Locked, Wait:180Sec."));
            QVERIFY(isLocked());
        }
    }

    void quitStoresTheLock()
    {
        const auto stored = [this](bool locked, int seconds, const QString &shown) -> QString {
            host.locked = locked;
            host.lockSeconds = seconds;
            open();
            if (!QTest::qWaitFor([&] { return loginText() == shown; }))
                return "never there";
            emit SystemMsg::_instance().signalPrepareQuitSystem();
            return host.calls.isEmpty() ? "nothing" : deeds().join(' ');
        };
        QCOMPARE(stored(true, 100, "Locked, Wait:99Sec."), QString("updateLockInfo(true,99)"));
        QCOMPARE(stored(true, 0, "Locked, Wait:0Sec."), QString("updateLockInfo(false,300)"));
        QCOMPARE(stored(false, 0, "Login"), QString("nothing"));

        remember("alice");
        open();
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        QTest::qWait(idleMs); // nobody is logged in while the client quits
        QCOMPARE(deeds(), QStringList());
    }

    void focusMarksTheFields()
    {
        open();
        const auto framed = [this](const char *field) {
            return child<QWidget>(field)->styleSheet().contains("border:1px solid #2c7dce");
        };
        QVERIFY(nameEdit()->hasFocus());
        QTest::mouseMove(child<QLabel>("label"));
        QVERIFY(framed("localUserWt") && !framed("localPwdWt"));
        QTest::keyClick(nameEdit(), Qt::Key_Tab);
        QVERIFY(pwdEdit()->hasFocus() && !framed("localUserWt") && framed("localPwdWt"));
        child<QPushButton>("localLoginBt")->setFocus();
        QVERIFY(!framed("localUserWt") && !framed("localPwdWt"));
    }

    void languageChange()
    {
        open();
        fillIn("bob", "secret");
        autoLoginBox()->setChecked(true);
        {
            const Brackets brackets;
            QCOMPARE(host.calls.first(), QString("retranslate()"));
            QCOMPARE(loginText() + child<QLabel>("forgetPwd")->text(), QString("[Login][Forgot?]"));
            QCOMPARE(nameEdit()->text() + ' ' + pwdEdit()->text(), QString("bob secret"));
            QVERIFY(autoLoginBox()->isChecked());
        }
        QTRY_COMPARE(loginText(), QString("Login"));
    }

    void lockByGesture()
    {
        open();
        emit LoginSignals::_instance().signalLockLoginByGesture();
        QCOMPARE(deeds().join(' '), QString("updateLockInfo(true,180) lockUserLog(alice,180)"));
        QTRY_COMPARE(loginText(), QString("Locked, Wait:180Sec."));
        const Brackets brackets;
        QCOMPARE(loginText(), QString("Locked, Wait:180Sec.")); // until the next tick translates it
        QVERIFY(isLocked());
    }

    void cloudTab()
    {
        open();
        QVERIFY(!child<QWidget>("userTypeWt")->isVisible());
        host.customization.cloudLoginEnabled = true;
        open();
        QVERIFY(child<QWidget>("userTypeWt")->isVisible());
        QCOMPARE(shownPage(), QString("local localPwdLoginPage"));
        const auto click = [this](const char *tab) {
            QTest::mouseClick(child<QPushButton>(tab), Qt::LeftButton);
            return shownPage();
        };
        const auto event = [this](int value) {
            emit LoginSignals::_instance().signalSaasLoginEvent(SaasLoginEvent(value), {});
            return shownPage();
        };
        QCOMPARE(click("saasUserTab"), QString("cloud saasPwdLoginPage"));
        QCOMPARE(event(2), QString("cloud saasScanQRCodeLoginPage"));
        click("localUserTab");
        QCOMPARE(click("localUserTab"), QString("local localPwdLoginPage"));
        QCOMPARE(event(1), QString("cloud saasVerificationCodeLoginPage"));
        QTest::keyClick(page.get(), Qt::Key_Return); // the login button is not in sight
        QVERIFY(!QToolTip::isVisible());
        click("localUserTab");
        QCOMPARE(click("saasUserTab"), QString("cloud saasVerificationCodeLoginPage"));
        QCOMPARE(event(7), QString("cloud saasVerificationCodeLoginPage"));
        QCOMPARE(click("localUserTab"), QString("local localPwdLoginPage"));
        click("saasUserTab");
        QCOMPARE(event(0), QString("cloud saasPwdLoginPage"));
    }

    void cloudAutomaticLogin()
    {
        remember("alice");
        host.customization.cloudLoginEnabled = true;
        host.lastUserType = kelvra_worker::CloudUser;
        host.recentAccount = "139";
        open();
        QCOMPARE(shownPage(), QString("cloud saasPwdLoginPage"));
        QCOMPARE(host.autoLogins.size(), 1);
        const FakeHost::AutoLoginCall call = host.autoLogins.first();
        QVERIFY(!QUuid(call.requestId).isNull());
        QCOMPARE(call.account, QString("139"));
        QVERIFY(autoLoginBox()->isChecked());
        QTest::qWait(idleMs); // a remembered local login stays behind the cloud tab
        QCOMPARE(deeds(), QStringList());

        call.answer({call.requestId, 1000, 0, ""}, "139");
        QCOMPARE(deeds().join(' '), QString("addSuperUserFromSaasUser(139) setCurUserInfo(2,139,,0,true) "
                                            "setSuperUserInfo(root,roots) setLoginSuccess(true) "
                                            "signalLoginSuccess() setValue(client_login_mode,0)"));
        const QString failed = "cancelAccountAutoLogin(139) messageAlert(Nimbra account auto login failure:"
                               "cloud error 7/8)";
        call.answer({call.requestId, 7, 8, ""}, "139");
        QCOMPARE(deeds().join(' '), failed);
        host.whileAlertIsOpen = [this] { page.reset(); };
        call.answer({call.requestId, 7, 8, ""}, "139");
        QCOMPARE(deeds().join(' '), failed);
        call.answer({call.requestId, 7, 8, ""}, "139"); // the page is gone
        call.answer({call.requestId, 1000, 0, ""}, "139");
        QCOMPARE(deeds(), QStringList());

        host.autoLogins.clear();
        LoginWorker::_instance().switchUser();
        open();
        QCOMPARE(host.autoLogins.size(), 0);
    }

    void pageDestroyedByItsAlert()
    {
        for (const char *by : {"localLoginBt", "return", "forgetPwd", "gesturePwd"}) {
            open();
            fillIn("alice", "bad");
            host.whileAlertIsOpen = [this] { page.reset(); };
            if (QByteArray(by).endsWith("Pwd"))
                QTest::mousePress(child<QLabel>(by), Qt::LeftButton);
            else
                submit(by);
            QVERIFY2(!page, by);
        }
        QCOMPARE(host.alerts.size(), 4);
    }

    void pageDestroyedWhileItWaits()
    {
        remember("alice");
        open();
        QTest::keyClicks(nameEdit(), "x");
        emit LoginSignals::_instance().signalLockLoginByGesture();
        page.reset();
        deeds();
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasPwdLogin, {});
        QTest::qWait(idleMs);
        QCOMPARE(deeds(), QStringList());
    }

private:
    // A remembered login of `name`, but for what the row is about.
    static void remember(const QString &name)
    {
        const QString row = QTest::currentDataTag();
        auto &user = host.rememberUser(name, "secret", row.contains("seven") ? 7 : row.contains("six") ? 6 : 1);
        user.autoLogin = row != "flag off";
        user.hasRecord = row != "no record";
        host.sameEnvironment = row != "other computer";
        host.loginSuccess = row.contains("logged in");
        host.locked = row.contains("locked");
        host.lockSeconds = 100;
        if (row.contains("switched"))
            LoginWorker::_instance().switchUser();
    }

    // What follows is the doing of the page once it stands.
    void open()
    {
        page = std::make_unique<NormalLoginWt>(nullptr);
        page->show();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        host.calls.clear();
    }

    template <typename T>
    T *child(const QString &name) const
    {
        return page->findChild<T *>(name);
    }

    QLineEdit *nameEdit() const { return child<UserNameWt>("localUserWt")->lineEdit(); }
    QLineEdit *pwdEdit() const { return child<UserPwdWt>("localPwdWt")->lineEdit(); }
    QCheckBox *autoLoginBox() const { return child<QCheckBox>("localAutoLogin"); }
    QString loginText() const { return child<QPushButton>("localLoginBt")->text(); }

    QString shownPage() const
    {
        return QString(child<QPushButton>("localUserTab")->isChecked() ? "local " : "") +
               (child<QPushButton>("saasUserTab")->isChecked() ? "cloud " : "") +
               child<QStackedWidget>("stackedWidget")->currentWidget()->objectName();
    }

    void fillIn(const QString &name, const QString &password)
    {
        nameEdit()->setText(name);
        pwdEdit()->setText(password);
    }

    // By a key, or by a click on the button or link of that name.
    void submit(const QString &by)
    {
        if (by == "return" || by == "enter")
            QTest::keyClick(by == "return" ? pwdEdit() : nameEdit(), by == "return" ? Qt::Key_Return : Qt::Key_Enter);
        else
            QTest::mouseClick(child<QWidget>(by), Qt::LeftButton);
    }

    // Nothing that logs in does anything.
    bool isLocked()
    {
        host.calls.clear();
        for (const char *by : {"localLoginBt", "return", "enter", "gesturePwd"}) {
            fillIn("draw", "bad");
            submit(by);
            fillIn("", "");
            submit(by);
        }
        fillIn("alice", "");
        return host.calls.isEmpty() && !QToolTip::isVisible();
    }

    std::unique_ptr<NormalLoginWt> page;
};

QTEST_MAIN(TestNormalLogin)

#include "tst_normallogin.moc"
