#include "fakehost/FakeHost.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/Screens.h"
#include "login/local/NormalLoginWt.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolTip>
#include <QTranslator>
#include <QUuid>
#include <QVBoxLayout>
#include <QtTest>

using namespace kelvra_login;
using kelvra_contact::SystemMsg;

/** Tells the fake host, or does with the page, what a row is about. */
using Step = void (*)();
Q_DECLARE_METATYPE(Step)

namespace {

const QString remembered(16, QChar(1));
const QString emptyName = QStringLiteral("User name can not be empty or be all blank!");
constexpr int idleMs = 650; // longer than the delay of an automatic login

FakeHost &host()
{
    return FakeHost::get();
}

QString failureText(int failures)
{
    return QString("user name or user password error, a maximum of 5 failures are allowed, now failed %1 times")
        .arg(failures);
}

/** What a password login that succeeds does, in order. */
QStringList successCalls(const QString &name, const QString &password, const QString &autoLogin)
{
    return {"verifyUserPassword(" + name + ',' + password + ')',
            "loginSuccessLog(" + name + ",0," + autoLogin + ')',
            "updateLoginEnvironment()",
            "updateUserLoginRecord(" + name + ',' + autoLogin + ')',
            "updateLockInfo(false,0)",
            "getUserInfo(" + name + ')',
            "setCurUserInfo(1," + name + ',' + password + ",3," + autoLogin + ')',
            "getSuperUserInfo(" + name + ')',
            "setSuperUserInfo(root,rootpw)",
            "setLoginSuccess(true)",
            "signalLoginSuccess()",
            "setValue(client_login_mode,0)"};
}

void deleteDialogs()
{
    QList<LoginDlg *> dialogs; // a dialog takes other windows with it
    for (QWidget *shown : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<LoginDlg *>(shown))
            dialogs << dialog;
    }
    qDeleteAll(dialogs);
}

class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "kelvra_login::NormalLoginWt") != 0)
            return QString();
        host().record("translate", {text});
        return QString("[%1]").arg(text);
    }
};

} // namespace

class TestNormalLogin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Among the host's calls, so that the order of both shows.
        const LoginSignals &hub = LoginSignals::_instance();
        connect(&hub, &LoginSignals::signalLoginEvent, this, [](LoginEvent event, const QStringList &params) {
            host().record("signalLoginEvent", QStringList(QString::number(event)) + params);
        });
        connect(&hub, &LoginSignals::signalLoginSuccess, this, [] { host().record("signalLoginSuccess", {}); });
    }

    void init()
    {
        LoginWorker::_instance().setLocked(false);
        host().reset();
        host().users["alice"].password = "secret";
        host().users["alice"].attribute = 3;
        host().users["root"].superUser = true;
        host().users["draw"].gesture = "0124";
        host().superUser.userName = "root";
        host().superUser.password = "rootpw";
        host().lastLocalUser = "alice";
    }

    void cleanup()
    {
        window.reset();
        if (!LoginWorker::_instance().isAutoLoginAllowed())
            LoginWorker::_instance().login(kelvra_worker::LocalUser, {}, true);
        deleteDialogs();
    }

    void rememberedLogin_data()
    {
        QTest::addColumn<Step>("setUp");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("automatic");
        QTest::newRow("remembered") << Step([] {}) << true << true << true;
        QTest::newRow("six days") << Step([] { remember("alice", 6); }) << true << true << true;
        QTest::newRow("seven days") << Step([] { remember("alice", 7); }) << false << false << false;
        QTest::newRow("flag off") << Step([] { host().users["alice"].autoLogin = false; }) << false << false << false;
        QTest::newRow("no record") << Step([] { host().users["alice"].hasRecord = false; }) << false << false << false;
        QTest::newRow("other computer") << Step([] { host().sameEnvironment = false; }) << false << false << false;
        QTest::newRow("not allowed") << Step([] { LoginWorker::_instance().switchUser(); }) << false << false << false;
        QTest::newRow("locked") << Step([] {
            host().locked = true;
            host().lockSeconds = 100;
        }) << true << false << false;
        QTest::newRow("logged in meanwhile") << Step([] { host().loginSuccess = true; }) << true << true << false;
    }

    void rememberedLogin()
    {
        QFETCH(Step, setUp);
        QFETCH(bool, shown);
        QFETCH(bool, automatic);
        remember("alice", 1);
        setUp();
        open();
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(nameEdit()->text(), QStringLiteral("alice"));
        QCOMPARE(pwdEdit()->text(), shown ? remembered : QString());
        QCOMPARE(child<UserPwdWt>("localPwdWt")->text(), shown ? QString("secret") : QString());
        QTEST(child<QCheckBox>("localAutoLogin")->isChecked(), "checked");
        if (automatic) {
            QTRY_COMPARE(host().calls, successCalls("alice", "secret", "true"));
            QVERIFY(clock.elapsed() > 300);
        } else {
            QTest::qWait(idleMs);
            QCOMPARE(host().calls, QStringList());
        }
    }

    void login_data()
    {
        QTest::addColumn<bool>("autoLogin");
        QTest::addColumn<QString>("by");
        QTest::newRow("click, automatic") << true << "click";
        QTest::newRow("click") << false << "click";
        QTest::newRow("return") << false << "return";
        QTest::newRow("enter") << false << "enter";
    }

    void login()
    {
        QFETCH(bool, autoLogin);
        QFETCH(QString, by);
        open();
        QTest::keyClicks(pwdEdit(), "secret");
        if (autoLogin)
            QTest::mouseClick(child<QCheckBox>("localAutoLogin"), Qt::LeftButton, {}, QPoint(8, 14));
        submit(by);
        QCOMPARE(host().calls, successCalls("alice", "secret", autoLogin ? "true" : "false"));
    }

    void fieldTips_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("tip");
        const QString emptyPassword = "Password can not be empty!";
        QTest::newRow("no name") << "" << "secret" << "click" << emptyName;
        QTest::newRow("blank name") << "   " << "secret" << "return" << emptyName;
        QTest::newRow("no password") << "alice" << "" << "click" << emptyPassword;
        QTest::newRow("neither") << "" << "" << "enter" << emptyName;
        QTest::newRow("forgot without name") << "" << "" << "forgetPwd" << emptyName;
        QTest::newRow("forgot with blank name") << " " << "" << "forgetPwd" << emptyName;
        QTest::newRow("forgot with unknown name") << "nobody" << "" << "forgetPwd" << "User not exist!";
        QTest::newRow("gesture without name") << "" << "" << "gesturePwd" << emptyName;
    }

    void fieldTips()
    {
        QFETCH(QString, name);
        QFETCH(QString, password);
        QFETCH(QString, by);
        QFETCH(QString, tip);
        open();
        fillIn(name, password);
        submit(by);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), tip);
        const QLineEdit *field = tip.startsWith("User") ? nameEdit() : pwdEdit();
        for (const QWidget *shown : QApplication::topLevelWidgets()) {
            if (shown->inherits("QTipLabel"))
                QVERIFY(QRect(0, 0, 6, 24).contains(shown->pos() - field->mapToGlobal(QPoint(0, 0))));
        }
        QCOMPARE(host().callsOf({"verifyUserPassword", "signalLoginEvent", "messageAlert"}), QStringList());
    }

    void fifthFailureLocks()
    {
        open();
        const QString wrong = "verifyUserPassword(alice,bad)";
        const QString logged = "loginFailureLog(alice,0)";
        for (int failures = 1; failures <= 5; ++failures) {
            host().calls.clear();
            fillIn("alice", "bad");
            submit("click");
            QStringList expected = {wrong, logged};
            if (failures == 5)
                expected << "updateLockInfo(true,180)" << "getLockInfo()" << "lockUserLog(alice,180)";
            QCOMPARE(host().calls, expected << "messageAlert(" + failureText(failures) + ')');
        }
        QCOMPARE(host().alerts.last().first, kelvra_worker::DictDef::_instance().alertTitle(
                                                 kelvra_worker::DictDef::WarningTitle));
        expectLocked();
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:180Sec."));
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:179Sec."));

        fillIn("root", "");
        submit("forgetPwd");
        nameEdit()->selectAll();
        QTest::keyClick(nameEdit(), Qt::Key_Backspace);
        submit("createUser");
        QCOMPARE(host().callsOf({"signalLoginEvent"}),
                 QStringList({"signalLoginEvent(5,root)", "signalLoginEvent(2)"}));
    }

    void lockRunsOut()
    {
        for (int failures = 0; failures < 3; ++failures)
            LoginWorker::_instance().verifyPassword("alice", "bad");
        host().locked = true;
        host().lockSeconds = 1;
        QElapsedTimer clock;
        clock.start();
        open();
        expectLocked();
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:1Sec."));
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:0Sec."));
        QVERIFY(clock.elapsed() >= 1000);
        expectLocked();
        QTRY_COMPARE(button()->text(), QStringLiteral("Login"));
        QVERIFY(clock.elapsed() >= 2000);
        QCOMPARE(host().callsOf({"updateLockInfo"}), QStringList("updateLockInfo(false,0)"));
        fillIn("alice", "bad");
        submit("click");
        QCOMPARE(host().alerts.last().second, failureText(1));
    }

    void lockHoldsWithoutTheDataLibrary_data()
    {
        QTest::addColumn<bool>("readable");
        QTest::addColumn<bool>("writable");
        QTest::newRow("not read") << false << true;
        QTest::newRow("not written") << true << false;
        QTest::newRow("neither") << false << false;
    }

    void lockHoldsWithoutTheDataLibrary()
    {
        open();
        QFETCH(bool, readable);
        QFETCH(bool, writable);
        host().lockKnown = readable;
        host().updatesSucceed = writable;
        for (int failures = 0; failures < 5; ++failures) {
            fillIn("alice", "bad");
            submit("click");
        }
        QCOMPARE(host().callsOf({"lockUserLog"}), QStringList("lockUserLog(alice,180)"));
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:180Sec."));
        expectLocked();
    }

    void lockByGesture()
    {
        open();
        emit LoginSignals::_instance().signalLockLoginByGesture();
        QCOMPARE(host().calls,
                 QStringList({"updateLockInfo(true,180)", "getLockInfo()", "lockUserLog(alice,180)"}));
        expectLocked();
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:180Sec."));
    }

    void quitStoresTheLock_data()
    {
        QTest::addColumn<int>("seconds"); // stored; -1 for no lock
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("running") << 100 << "Locked, Wait:99Sec." << QStringList("updateLockInfo(true,99)");
        QTest::newRow("run out") << 0 << "Locked, Wait:0Sec." << QStringList("updateLockInfo(false,300)");
        QTest::newRow("not locked") << -1 << "Login" << QStringList();
    }

    void quitStoresTheLock()
    {
        QFETCH(int, seconds);
        QFETCH(QString, shown);
        host().locked = seconds >= 0;
        host().lockSeconds = qMax(0, seconds);
        open();
        QTRY_COMPARE(button()->text(), shown);
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        QTEST(host().callsOf({"updateLockInfo"}), "calls");
    }

    void linkRow_data()
    {
        QTest::addColumn<bool>("superUser");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("login");
        QTest::newRow("both") << true << "alice" << true;
        QTest::newRow("no name") << true << "" << false;
        QTest::newRow("no superuser") << false << "alice" << false;
    }

    void linkRow()
    {
        QFETCH(bool, superUser);
        QFETCH(QString, name);
        QFETCH(bool, login);
        host().users["root"].superUser = superUser;
        host().lastLocalUser = name;
        open();
        const auto shown = [this] {
            return QList<bool>{child<QLabel>("gesturePwd")->isVisible(), child<QLabel>("forgetPwd")->isVisible(),
                               child<QCheckBox>("localAutoLogin")->isVisible(),
                               !child<QLabel>("createUser")->isVisible()};
        };
        const QList<bool> all(QVector<bool>(4, true).toList());
        const QList<bool> none(QVector<bool>(4, false).toList());
        QCOMPARE(shown(), login ? all : none);
        QTest::keyClick(nameEdit(), Qt::Key_X);
        QCOMPARE(shown(), superUser ? all : none);
        nameEdit()->selectAll();
        QTest::keyClick(nameEdit(), Qt::Key_Delete);
        QCOMPARE(shown(), none);
    }

    void links_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QString>("user");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("forgot, superuser") << "forgetPwd" << "root" << QStringList("signalLoginEvent(5,root)");
        QTest::newRow("forgot, ordinary user")
            << "forgetPwd" << "alice"
            << QStringList("messageAlert(Please contact the administrator to obtain the password)");
        QTest::newRow("gesture") << "gesturePwd" << "draw" << QStringList("signalLoginEvent(6,draw)");
        QTest::newRow("no gesture")
            << "gesturePwd" << "alice"
            << QStringList("messageAlert(The current account is not configured with gesture password login)");
        QTest::newRow("create") << "createUser" << "" << QStringList("signalLoginEvent(2)");
    }

    void links()
    {
        QFETCH(QString, link);
        QFETCH(QString, user);
        host().lastLocalUser = user;
        open();
        QVERIFY(child<QLabel>(link)->isVisible());
        nameEdit()->setText(user);
        QTest::mouseClick(child<QLabel>(link), Qt::RightButton);
        QCOMPARE(host().callsOf({"signalLoginEvent", "messageAlert"}), QStringList());
        submit(link);
        QTEST(host().callsOf({"signalLoginEvent", "messageAlert"}), "calls");
        QVERIFY(!QToolTip::isVisible());
    }

    void typedName_data()
    {
        QTest::addColumn<Step>("setUp");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("pasted");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("automatic");
        QTest::newRow("remembered") << Step([] {}) << "bob" << false << true << true;
        QTest::newRow("pasted") << Step([] {}) << " b o b" << true << true << true;
        QTest::newRow("after a switch of users") << Step([] { LoginWorker::_instance().switchUser(); }) << "bob"
                                                 << false << true << true;
        QTest::newRow("six days") << Step([] { remember("bob", 6); }) << "bob" << false << true << true;
        QTest::newRow("seven days") << Step([] { remember("bob", 7); }) << "bob" << false << false << false;
        QTest::newRow("other computer")
            << Step([] { host().sameEnvironment = false; }) << "bob" << false << false << false;
        QTest::newRow("locked") << Step([] {
            host().locked = true;
            host().lockSeconds = 100;
        }) << "bob" << false << true << false;
        QTest::newRow("logged in") << Step([] { host().loginSuccess = true; }) << "bob" << false << true << false;
        QTest::newRow("unknown") << Step([] {}) << "nobody" << false << false << false;
    }

    void typedName()
    {
        QFETCH(Step, setUp);
        QFETCH(QString, text);
        QFETCH(bool, pasted);
        QFETCH(bool, shown);
        QFETCH(bool, automatic);
        remember("bob", 1);
        host().users["bob"].attribute = 3;
        host().lastLocalUser.clear();
        setUp();
        open();
        QElapsedTimer clock;
        if (pasted) {
            QGuiApplication::clipboard()->setText(text);
            QTest::keyClick(nameEdit(), Qt::Key_V, Qt::ControlModifier);
        } else {
            QTest::keyClicks(nameEdit(), text.chopped(1));
            QTest::qWait(200); // the pause counts from the last edit
            QTest::keyClicks(nameEdit(), text.right(1));
        }
        clock.start();
        host().calls.clear();
        QTRY_COMPARE(host().callsOf({"getUserLoginRecord"}).size(), 1);
        QVERIFY(clock.elapsed() > 1400);
        QCOMPARE(pwdEdit()->text(), shown ? remembered : QString());
        QCOMPARE(child<QCheckBox>("localAutoLogin")->isChecked(), shown && !host().locked);
        host().calls.clear();
        if (automatic) {
            QTRY_COMPARE(host().calls, successCalls("bob", "secret", "true"));
        } else {
            QTest::qWait(idleMs);
            QCOMPARE(host().callsOf({"verifyUserPassword"}), QStringList());
        }
    }

    void typedNameForgetsThePassword()
    {
        remember("alice", 1);
        host().loginSuccess = true;
        open();
        QCOMPARE(pwdEdit()->text(), remembered);
        QTest::keyClicks(nameEdit(), "x");
        QCOMPARE(pwdEdit()->text(), QString());
        QTest::keyClicks(pwdEdit(), "typed");
        QTest::keyClicks(nameEdit(), "y");
        QCOMPARE(pwdEdit()->text(), QStringLiteral("typed"));
    }

    void focusMarksTheFields()
    {
        open();
        const auto framed = [this](const char *field) {
            return child<QWidget>(field)->styleSheet().contains("border:1px solid #2c7dce");
        };
        QTest::mouseMove(child<QLabel>("label"));
        nameEdit()->setFocus();
        QVERIFY(framed("localUserWt") && !framed("localPwdWt"));
        QTest::keyClick(nameEdit(), Qt::Key_Tab);
        QVERIFY(pwdEdit()->hasFocus() && !framed("localUserWt") && framed("localPwdWt"));
        button()->setFocus();
        QVERIFY(!framed("localUserWt") && !framed("localPwdWt"));
    }

    void languageChange()
    {
        open();
        fillIn("bob", "secret");
        child<QCheckBox>("localAutoLogin")->setChecked(true);
        Brackets brackets;
        host().calls.clear();
        QVERIFY(QCoreApplication::installTranslator(&brackets));
        QTRY_COMPARE(button()->text(), QStringLiteral("[Login]"));
        QCOMPARE(host().calls.first(), QStringLiteral("retranslate()"));
        QCOMPARE(child<QLabel>("forgetPwd")->text(), QStringLiteral("[Forgot?]"));
        QCOMPARE(nameEdit()->text(), QStringLiteral("bob"));
        QCOMPARE(pwdEdit()->text(), QStringLiteral("secret"));
        QVERIFY(child<QCheckBox>("localAutoLogin")->isChecked());

        QVERIFY(QCoreApplication::removeTranslator(&brackets));
        QTRY_COMPARE(button()->text(), QStringLiteral("Login"));
        emit LoginSignals::_instance().signalLockLoginByGesture();
        QTRY_COMPARE(button()->text(), QStringLiteral("Locked, Wait:180Sec."));
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(page, &change);
        QCOMPARE(button()->text(), QStringLiteral("Locked, Wait:180Sec."));
    }

    void cloudTabs()
    {
        open();
        QVERIFY(!child<QWidget>("userTypeWt")->isVisible());
        host().customization.cloudLoginEnabled = true;
        open();
        QVERIFY(child<QWidget>("userTypeWt")->isVisible());
        const auto shown = [this] {
            const QString tab = child<QPushButton>("localUserTab")->isChecked() ? "local " : "";
            return tab + (child<QPushButton>("saasUserTab")->isChecked() ? "cloud " : "") +
                   child<QStackedWidget>("stackedWidget")->currentWidget()->objectName();
        };
        const auto click = [this](const char *tab) { QTest::mouseClick(child<QPushButton>(tab), Qt::LeftButton); };
        const auto event = [](int value) {
            emit LoginSignals::_instance().signalSaasLoginEvent(SaasLoginEvent(value), {});
        };
        QCOMPARE(shown(), QStringLiteral("local localPwdLoginPage"));
        click("saasUserTab");
        QCOMPARE(shown(), QStringLiteral("cloud saasPwdLoginPage"));
        click("saasUserTab");
        QCOMPARE(shown(), QStringLiteral("cloud saasPwdLoginPage"));
        event(2);
        QCOMPARE(shown(), QStringLiteral("cloud saasScanQRCodeLoginPage"));
        click("localUserTab");
        click("localUserTab");
        QCOMPARE(shown(), QStringLiteral("local localPwdLoginPage"));
        event(1);
        QCOMPARE(shown(), QStringLiteral("cloud saasVerificationCodeLoginPage"));
        QTest::keyClick(page, Qt::Key_Return);
        QCOMPARE(host().callsOf({"verifyUserPassword"}), QStringList());
        QVERIFY(!QToolTip::isVisible());
        click("localUserTab");
        click("saasUserTab");
        QCOMPARE(shown(), QStringLiteral("cloud saasVerificationCodeLoginPage"));
        event(7);
        click("localUserTab");
        QCOMPARE(shown(), QStringLiteral("local localPwdLoginPage"));
        click("saasUserTab");
        event(0);
        QCOMPARE(shown(), QStringLiteral("cloud saasPwdLoginPage"));
    }

    void cloudAutoLogin_data()
    {
        QTest::addColumn<Step>("setUp");
        QTest::addColumn<bool>("requested");
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("calls");
        const Step nothing = [] {};
        QTest::newRow("success") << nothing << true << 1000
                                 << QStringList{"isUserExist(139)",
                                                "addSuperUserFromSaasUser(139)",
                                                "getUserInfo(139)",
                                                "setCurUserInfo(2,139,,0,true)",
                                                "getSuperUserInfo(139)",
                                                "setSuperUserInfo(root,rootpw)",
                                                "setLoginSuccess(true)",
                                                "signalLoginSuccess()",
                                                "setValue(client_login_mode,0)"};
        QTest::newRow("failure") << nothing << true << 7
                                 << QStringList{"cancelAccountAutoLogin(139)",
                                                "messageAlert(Nimbra account auto login failure:cloud error 7/8)"};
        QTest::newRow("not allowed") << Step([] { LoginWorker::_instance().switchUser(); }) << false << 0
                                     << QStringList();
        QTest::newRow("off") << Step([] { host().customization.cloudLoginEnabled = false; }) << false << 0
                             << QStringList();
        QTest::newRow("local user last") << Step([] { host().lastUserType = kelvra_worker::LocalUser; }) << false << 0
                                         << QStringList();
    }

    void cloudAutoLogin()
    {
        QFETCH(Step, setUp);
        QFETCH(bool, requested);
        QFETCH(int, code);
        host().customization.cloudLoginEnabled = true;
        host().lastUserType = kelvra_worker::CloudUser;
        host().recentAccount = "139";
        setUp();
        open();
        const bool cloud = host().customization.cloudLoginEnabled && host().lastUserType == kelvra_worker::CloudUser;
        QCOMPARE(child<QStackedWidget>("stackedWidget")->currentWidget()->objectName(),
                 cloud ? QString("saasPwdLoginPage") : QString("localPwdLoginPage"));
        QCOMPARE(child<QPushButton>("saasUserTab")->isChecked(), cloud);
        QCOMPARE(child<QPushButton>("localUserTab")->isChecked(), !cloud);
        QCOMPARE(host().autoLogins.size(), requested ? 1 : 0);
        if (!requested)
            return;
        const FakeHost::AutoLoginCall call = host().autoLogins.first();
        QVERIFY(!QUuid(call.requestId).isNull());
        QCOMPARE(call.account, QStringLiteral("139"));
        host().calls.clear();
        call.answer({call.requestId, code, 8, "unread"}, "139");
        QTEST(host().calls, "calls");
    }

    // A remembered local login waits behind the cloud tab.
    void cloudTabStopsTheLocalAutomaticLogin()
    {
        host().customization.cloudLoginEnabled = true;
        host().lastUserType = kelvra_worker::CloudUser;
        remember("alice", 1);
        open();
        QVERIFY(child<QCheckBox>("localAutoLogin")->isChecked());
        QTest::qWait(idleMs);
        QCOMPARE(host().callsOf({"verifyUserPassword"}), QStringList());
    }

    void defaultSuperUserIsFilledIn()
    {
        host().lastLocalUser.clear();
        open();
        emit LoginSignals::_instance().signalDefaultLocalSuperUserMethodSelected("admin", "468024");
        QCOMPARE(nameEdit()->text(), QStringLiteral("admin"));
        QCOMPARE(pwdEdit()->text(), QStringLiteral("468024"));
        const QCheckBox *box = child<QCheckBox>("localAutoLogin");
        QVERIFY(!box->isVisible());
        page->hide();
        page->show();
        QVERIFY(box->isVisible());
        submit("click");
        QCOMPARE(host().callsOf({"verifyUserPassword"}), QStringList("verifyUserPassword(admin,468024)"));
    }

    void pageDestroyedByItsAlert_data()
    {
        QTest::addColumn<QString>("by");
        for (const char *by : {"click", "return", "forgetPwd", "gesturePwd"})
            QTest::newRow(by) << by;
        QTest::newRow("cloud answer") << "";
    }

    void pageDestroyedByItsAlert()
    {
        QFETCH(QString, by);
        host().customization.cloudLoginEnabled = by.isEmpty();
        host().lastUserType = kelvra_worker::CloudUser;
        open();
        fillIn("alice", "bad");
        host().whileAlertIsOpen = [this] { window.reset(); };
        if (by.isEmpty())
            host().autoLogins.first().answer({"", 7, 8, ""}, "139");
        else if (by.endsWith("Pwd"))
            QTest::mousePress(child<QLabel>(by), Qt::LeftButton);
        else
            submit(by);
        QVERIFY(!page);
        QCOMPARE(host().alerts.size(), 1);
    }

    void pageDestroyedWhileItWaits()
    {
        host().customization.cloudLoginEnabled = true;
        host().lastUserType = kelvra_worker::CloudUser;
        open();
        const FakeHost::AutoLoginCall call = host().autoLogins.first();
        host().lastUserType = kelvra_worker::LocalUser;
        remember("alice", 1);
        open(); // with the automatic login ahead
        QTest::keyClicks(nameEdit(), "x");
        emit LoginSignals::_instance().signalLockLoginByGesture();
        window.reset();
        host().calls.clear();
        call.answer({call.requestId, 1000, 0, ""}, "139");
        call.answer({call.requestId, 7, 8, ""}, "139");
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasPwdLogin, {});
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        QTest::qWait(idleMs);
        QCOMPARE(host().calls, QStringList());
    }

    void enterInTheDialogLogsInOnce()
    {
        enterScreens();
        LoginWorker::_instance().login(kelvra_worker::LocalUser, {}, true);
        for (const QWidget *dialog : QApplication::topLevelWidgets()) {
            if (auto *found = dialog->findChild<NormalLoginWt *>())
                page = found;
        }
        QVERIFY(page);
        QVERIFY(QTest::qWaitForWindowActive(page->window()));
        fillIn("alice", "bad");
        submit("return");
        submit("enter");
        button()->setFocus();
        QTest::keyClick(button(), Qt::Key_Return);
        QCOMPARE(host().alerts.size(), 3);
        QVERIFY(page && page->isVisible());
    }

private:
    static void remember(const QString &name, int daysAgo)
    {
        const QString last = host().lastLocalUser;
        host().rememberUser(name, "secret", daysAgo);
        host().lastLocalUser = last;
    }

    // The calls that follow are those of the page once it stands.
    void open()
    {
        window = std::make_unique<QWidget>();
        page = new NormalLoginWt(window.get());
        (new QVBoxLayout(window.get()))->addWidget(page);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        host().calls.clear();
    }

    template <typename T>
    T *child(const QString &name) const
    {
        return page->findChild<T *>(name);
    }

    QLineEdit *nameEdit() const { return child<UserNameWt>("localUserWt")->lineEdit(); }
    QLineEdit *pwdEdit() const { return child<UserPwdWt>("localPwdWt")->lineEdit(); }
    QPushButton *button() const { return child<QPushButton>("localLoginBt"); }

    void fillIn(const QString &name, const QString &password)
    {
        nameEdit()->setText(name);
        pwdEdit()->setText(password);
    }

    // By a click on the login button, by a key, or by a click on the link of that name.
    void submit(const QString &by)
    {
        if (by == "click")
            QTest::mouseClick(button(), Qt::LeftButton);
        else if (by == "return" || by == "enter")
            QTest::keyClick(by == "return" ? pwdEdit() : nameEdit(), by == "return" ? Qt::Key_Return : Qt::Key_Enter);
        else
            QTest::mouseClick(child<QLabel>(by), Qt::LeftButton);
    }

    void expectLocked()
    {
        host().calls.clear();
        fillIn("draw", "bad");
        for (const char *by : {"click", "return", "enter", "gesturePwd"})
            submit(by);
        fillIn("", "");
        submit("click");
        fillIn("alice", "");
        QCOMPARE(host().calls, QStringList());
        QVERIFY(!QToolTip::isVisible());
    }

    std::unique_ptr<QWidget> window;
    QPointer<NormalLoginWt> page;
};

QTEST_MAIN(TestNormalLogin)

#include "tst_normallogin.moc"
