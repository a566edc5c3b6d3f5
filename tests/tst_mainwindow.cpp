#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/UserAdmin.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "client/shell/CloudSide.h"
#include "client/shell/MainWindow.h"
#include "host/ZCommon/MoveableDialog.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginInit.h"
#include "tests/DataFolderTest.h"
#include "tests/WindowParts.h"

#include <QAccessible>

#include <array>

using namespace kelvra_data;
using namespace kelvra_saas;
using namespace kelvra_worker;
using kelvra_client::CloudSide;
using kelvra_client::MainWindow;
using kelvra_client::SessionInfo;
using kelvra_contact::SystemMsg;

namespace {

UserAdmin &admin = UserAdmin::_instance();
UserData &users = UserData::_instance();

QStringList column(const QTableView *table, int column)
{
    QStringList texts;
    for (int row = 0; row < table->model()->rowCount(); ++row)
        texts << table->model()->index(row, column).data().toString();
    return texts;
}

QStringList auditEvents()
{
    QStringList events;
    for (const AuditEntry &entry : Store::_instance().auditLog(100))
        events << entry.event + " " + entry.user;
    return events;
}

/** Enters texts into the fields of these names and presses Return; the error then, and the field with the focus. */
QString entered(const QDialog *dialog, const QVector<QPair<const char *, QString>> &texts)
{
    for (const auto &[field, text] : texts) {
        auto *edit = dialog->findChild<QLineEdit *>(field);
        edit->clear();
        QTest::keyClicks(edit, text);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    return dialog->findChild<QLabel *>("error")->text() + '@' + dialog->focusWidget()->objectName();
}

} // namespace

class TestMainWindow : public DataFolderTest, private WindowParts
{
    Q_OBJECT

private slots:
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        QVERIFY(users.addSuperUser(superUser("root", "468024")) && users.addSuperUserFromSaasUser("13800001111"));
        QCOMPARE(admin.add("bob", "secret"), UserAdmin::Done);
        showWindowFor("root");
    }

    void cleanup()
    {
        window.reset();
        SysLanguage::_instance().setLanguage(Language(0), false);
        Store::_instance().setSuperUserReplaceable(false);
        Store::_instance().close();
    }

    void refusalsAreSentences()
    {
        const QString letters = " must not contain spaces or control characters.";
        const QString inUse = "This user name is already in use.";
        const QVector<std::array<QString, 3>> refusals = {
            {" \t", "pw", "Please enter a user name."},
            {"a b", "pw", "The user name" + letters},
            {QString(65, 'n'), "pw", "The user name must not be longer than 64 characters."},
            {"root", "pw", inUse},
            {"13800001111", "pw", inUse},
            {"bob", "pw", inUse},
            {"eve", "", "Please enter a password."},
            {"eve", "a b", "The password" + letters},
            {"eve", QString(17, 'p'), "The password must not be longer than 16 characters."}};
        const QPointer<QDialog> add = openDialog("addUserBt");
        const auto enter = [&add](const QString &name, const QString &password) {
            return entered(add, {{"userName", name}, {"newPwd", password}, {"confirmPwd", password}});
        };
        for (const auto &[name, password, sentence] : refusals) {
            QCOMPARE(enter(name, password), sentence + (sentence.contains("name") ? "@userName" : "@newPwd"));
            QTest::keyClicks(QApplication::focusWidget(), "x"); // typing on takes the sentence away
            QCOMPARE(add->findChild<QLabel *>("error")->text(), QString());
        }
        QVERIFY(admin.users().size() == 1 && auditEvents().isEmpty());
        const QString longest(64, 'n');
        enter(longest, "0123456789abcdef");
        QTRY_VERIFY(!add);
        QVERIFY(users.verifyUserPassword(longest, "0123456789abcdef") && !users.isSuperUser(longest));
        QCOMPARE(column(child<QTableView>("usersTable"), 0), QStringList({"bob", longest}));
    }

    void undoLeavesATypedPassword()
    {
        const QPointer<QDialog> add = openDialog("addUserBt");
        auto *field = add->findChild<QLineEdit *>("newPwd");
        QTest::keyClicks(field, "secret");
        QTest::keySequence(field, QKeySequence::Undo);
        QCOMPARE(field->text(), QString("secret"));
        QTest::keyClick(add, Qt::Key_Escape);
        QTRY_VERIFY(!add);
    }

    void ordinaryUsersOnlyAreRemoved()
    {
        for (const char *name : {"root", "13800001111", "nobody"}) {
            QCOMPARE(admin.remove(name), UserAdmin::NoSuchUser);
            QCOMPARE(admin.setPassword(name, "changed"), UserAdmin::NoSuchUser);
        }
        QVERIFY(users.verifyUserPassword("root", "468024") && users.updateUserLoginRecord("bob", true));
        QCOMPARE(admin.remove("bob"), UserAdmin::Done);
        QVERIFY(users.getLastLoggedLocalUser().isEmpty() && users.isSuperUserExist(SuperUserRole));
        Store::_instance().close();
        QCOMPARE(admin.add("eve", "pw"), UserAdmin::NotStored);
        QCOMPARE(admin.remove("bob"), UserAdmin::NotStored);
    }

    void superUserIsReplacedAsAWhole()
    {
        QVERIFY(users.updateUserGesture("bob", "0124") && users.updateUserLoginRecord("bob", true));
        QVERIFY(users.updateLockInfo(true, 99) && !users.addSuperUser(superUser("ada", "468024")));
        Store::_instance().setSuperUserReplaceable(true);
        QVERIFY(!users.addSuperUser(superUser("13800001111", "468024")) && users.verifyUserGesture("bob", "0124"));
        QVERIFY(users.isSuperUser("root") && users.getLastLoggedLocalUser() == "bob" && auditEvents().isEmpty());
        QVERIFY(Store::_instance().holds("SELECT locked = 1 AND lock_seconds = 99 FROM state"));
        QVERIFY(users.addSuperUser(superUser("ada", "468024")) && users.getSuperUserInfo({}).userName == "ada");
        QVERIFY(!users.isUserExist("root") && !users.isUserExist("bob") && users.isUserExist("13800001111"));
        QVERIFY(users.getLastLoggedLocalUser().isEmpty());
        QVERIFY(Store::_instance().holds("SELECT locked = 0 AND lock_seconds = 0 FROM state"));
        QCOMPARE(auditEvents(), QStringList("superuser replaced root"));
    }

    void somebodyElseMayBeQuicker()
    {
        QVERIFY(!child("removeUserBt")->isEnabled());
        child<QTableView>("usersTable")->selectRow(0);
        const QPointer<QDialog> alert = openDialog("removeUserBt");
        QTest::mouseClick(alert->findChild<QPushButton *>("cancelBt"), Qt::LeftButton);
        QTRY_VERIFY(!alert);
        const QPointer<QDialog> set = openDialog("setPwdBt");
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("newPwd"));
        QCOMPARE(admin.remove("bob"), UserAdmin::Done);
        QCOMPARE(entered(set, {{"newPwd", "pw"}, {"confirmPwd", "pw"}}), QString("This user no longer exists.@newPwd"));
        QTest::keyClick(set, Qt::Key_Escape);
        QTRY_COMPARE(child<QTableView>("usersTable")->model()->rowCount(), 0);
        QVERIFY(!child("setPwdBt")->isEnabled() && auditEvents().isEmpty());
    }

    void everybodyIsOfferedTheirOwn()
    {
        const auto offered = [this](const QString &user) {
            showWindowFor(user);
            QStringList shown;
            for (const char *part : {"addUserBt", "setPwdBt", "removeUserBt", "usersTable", "usersNote", "getbackPwdBt",
                                     "exportCredentialsBt"})
                shown += isShown(part) ? QStringList(part) : QStringList();
            return shown.join(' ');
        };
        const QString userParts = "addUserBt setPwdBt removeUserBt usersTable";
        QCOMPARE(offered("root"), userParts + " getbackPwdBt exportCredentialsBt");
        QCOMPARE(offered("13800001111"), userParts + " getbackPwdBt exportCredentialsBt");
        QCOMPARE(offered("bob"), QString("usersNote"));
        QVERIFY(text("usersNote").contains("root") && text("currentUser") == "bob");
        QCOMPARE(admin.remove("bob"), UserAdmin::Done);
        AuditTrail::_instance().write(AuditEvent::RemoveUser, "bob");
        QCOMPARE(text("currentRole"), QString("This user has been removed"));
        // An account alone has no password here.
        QVERIFY(Store::_instance().change("DELETE FROM users WHERE name = 'root'"));
        QCOMPARE(offered("13800001111"), userParts);
    }

    void gestureOfAnotherIsManaged()
    {
        child<QTableView>("usersTable")->selectRow(0);
        QTimer::singleShot(0, window.get(), [] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            const auto closed = qScopeGuard([dialog] { dialog->reject(); });
            auto *pad = dialog->findChild<QWidget *>("gesturePanel");
            const QImage clean = pad->grab().toImage();
            drawGesture(dialog, "4876");
            QTRY_VERIFY(pad->grab().toImage() == clean);
            drawGesture(dialog, "4876");
            QTRY_VERIFY(dialog->isHidden());
        });
        click("setGestureBt");
        QVERIFY(users.verifyUserGesture("bob", "4876") && !users.isUserConfigureGesture("root"));
        QCOMPARE(column(child<QTableView>("usersTable"), 3), QStringList("set"));
        QTest::keyClick(openDialog("deleteGestureBt"), Qt::Key_Return);
        QVERIFY(!users.isUserConfigureGesture("bob") && !child("deleteGestureBt")->isEnabled());
        QCOMPARE(auditEvents(), QStringList({"delete gesture bob", "add gesture bob"}));
    }

    void automaticLoginIsSwitched()
    {
        // An account can only give it up, and has no gesture.
        for (const bool on : {true, false}) {
            showWindowFor("13800001111", CloudUser, on);
            QVERIFY(!child("setOwnGestureBt")->isEnabled());
            QVERIFY(child("setOwnGestureBt")->toolTip().contains("cloud account"));
            QCOMPARE(child<QCheckBox>("autoLoginSwitch")->isEnabled(), on);
            click("autoLoginSwitch", QPoint(10, child("autoLoginSwitch")->height() / 2));
            QVERIFY(!users.isUserAutoLogin("13800001111"));
        }
        QCOMPARE(auditEvents(), QStringList("cancel automatic login 13800001111"));
    }

    void automaticLoginIsSwitchedByAssistiveTechnology()
    {
        QAccessible::queryAccessibleInterface(child("autoLoginSwitch"))->actionInterface()->doAction("Toggle");
        QVERIFY(users.isUserAutoLogin("root"));
    }

    void auditLogIsAlive()
    {
        auto *table = child<QTableView>("auditTable");
        LoginLogs::_instance().lockUserLog("zoe", 180);
        LoginLogs::_instance().loginSuccessLog("amy", 1, false);
        LoginLogs::_instance().loginFailureLog("bob", 0);
        QCOMPARE(column(table, 2), QStringList({"bob", "amy", "zoe"}));
        QCOMPARE(column(table, 3), QStringList({"by password", "by gesture", "for 180 seconds"}));
        table->sortByColumn(2, Qt::AscendingOrder);
        QCOMPARE(column(table, 2), QStringList({"amy", "bob", "zoe"}));
        LoginLogs::_instance().addGestureLog("ben");
        QCOMPARE(column(table, 2), QStringList({"amy", "ben", "bob", "zoe"}));
        table->sortByColumn(0, Qt::AscendingOrder);
        QCOMPARE(column(table, 2), QStringList({"zoe", "amy", "bob", "ben"}));

        QVERIFY(users.userAutoLoginCtrl("root", true));
        QCOMPARE(text("autoLogin"), QString("By hand"));
        LoginLogs::_instance().openAutoLoginLog("root");
        QCOMPARE(text("autoLogin"), QString("Automatic"));

        auto *box = child<QComboBox>("languageBox");
        QTest::keyClick(box, Qt::Key_Down);
        QTRY_COMPARE(table->model()->headerData(0, Qt::Horizontal).toString(), QString("时间"));
        QCOMPARE(column(table, 1)[2], QString("登录失败"));
        SysLanguage::_instance().setLanguage(Language(0), false);
        QTRY_COMPARE(box->currentText(), QString("English"));
    }

    void auditLogStaysInPlaceAndBounded()
    {
        auto *table = child<QTableView>("auditTable");
        const char *many = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1500) "
                           "INSERT INTO audit_log (at, event, user) "
                           "SELECT '2024-01-01T00:00:00.000Z', 'lock', 'user' || i FROM n";
        QVERIFY(Store::_instance().run(many).isActive());
        window->loadAuditLog();
        LoginLogs::_instance().lockUserLog("top", 1);
        // Equal times do not mix up what came first.
        QCOMPARE(column(table, 2).mid(0, 3), QStringList({"top", "user1500", "user1499"}));
        QTRY_VERIFY(table->verticalScrollBar()->maximum() > 401);
        QCOMPARE(table->verticalScrollBar()->value(), 0); // at the top the newest comes into sight

        table->verticalScrollBar()->setValue(401);
        const QImage before = table->viewport()->grab().toImage();
        LoginLogs::_instance().lockUserLog("next", 1);
        LoginLogs::_instance().lockUserLog("after that", 1);
        QCOMPARE(table->viewport()->grab().toImage(), before);
        QCOMPARE(table->model()->rowCount(), 1000);
    }

    void closingQuitsOnce()
    {
        QStringList heard;
        const QObject listener;
        const SystemMsg *msg = &SystemMsg::_instance();
        connect(msg, &SystemMsg::signalPrepareQuitSystem, &listener, [&] { heard << "prepare"; });
        connect(msg, &SystemMsg::signalQuitSystem, &listener, [&] { heard << "quit"; });
        click("quitBt");
        window->close();
        QCOMPARE(heard, QStringList({"prepare", "quit"}));
    }

    void phoneStandsBesideTheLogin()
    {
        auto side = std::make_unique<CloudSide>();
        side->open(at());
        ZCOMMON::MoveableDialog login(nullptr, QString(), Qt::black);
        login.resize(300, 200);
        login.show();
        QVERIFY(QTest::qWaitForWindowActive(&login));
        side->accompanyLogin();
        phone = topLevel("PhoneWindow");
        // The login makes room where it has to, and keeps the keys.
        QVERIFY(phone && phone->isVisible() && !phone->geometry().intersects(login.geometry()));
        QVERIFY(phone->geometry().right() <= phone->screen()->availableGeometry().right());
        QTRY_COMPARE(QApplication::activeWindow(), &login);
        QVERIFY(!isShown("copyCodeBt") && !isShown("lockRow") && !isShown("scanBt") && !isShown("refuseBt"));

        // A message logs in; what an automatic login needs goes when its user does not want one.
        QVERIFY(users.addSuperUserFromSaasUser(ada));
        for (const bool automatic : {true, false}) {
            QTest::keyClick(phone, Qt::Key_Escape);
            QCOMPARE(ask(sendCodeOperation, {{accountField, ada}}), 1000);
            QVERIFY(phone->isVisible() && QStringList({"5:00 left", "4:59 left"}).contains(text("smsLeft")));
            const QString code = text("smsCode").remove(' ');
            QVERIFY(code.size() == 6 && text("smsText").contains(code));
            int result = 0;
            LoginWorker::_instance().login({"id", ada, {}, code, "VERIFY_CODE"},
                                           [&](const Response &response, const auto &) { result = response.code; });
            QTRY_COMPARE(result, 1000);
            SystemWorker::_instance().setCurUserInfo(CloudUser, ada, {}, 0, automatic);
            CloudSide::settleAutoLogin(ada);
            QVERIFY(CloudSide::isAutoLoginStored() == automatic && SaasSetup::isAutoLoginStored(ada) == automatic);
        }

        QCOMPARE(ask(qrCodeOperation), 1000);
        click("scanBt");
        QVERIFY(!isShown("scanBt") && isShown("confirmScanBt") && !isShown("refuseRow"));
        click("refuseBt");
        click("refuseOperationBt");
        QVERIFY(!isShown("refuseRow") && !isShown("confirmScanBt"));
        QCOMPARE(SaasSetup::simulation()->codeOnShow().status, int(LoginWorker::QRCodeIllegalOperation));

        writeFile(at("cloud_accounts.ini"), "[13800000001]\npassword=short\n");
        click("reloadAccountsBt");
        QVERIFY(text("accountsProblem").contains("Line 2") && text("accountPhone") == ada);
        writeFile(at("cloud_accounts.ini"), "[18812345678]\npassword=longenough\n");
        click("reloadAccountsBt");
        QVERIFY(!isShown("accountsProblem") && text("accountPhone") == "18812345678");
        side.reset();
        QVERIFY(!phone);
    }

    void phoneThatFitsNowhereWaitsBehindAHandle()
    {
        const QScopedPointer<CloudSide> side(new CloudSide);
        side->open(at());
        ZCOMMON::MoveableDialog login(nullptr, QString(), Qt::black);
        login.setDefaultPos({50, 40});
        login.resize(700, 400);
        login.show();
        side->accompanyLogin();
        QWidget *handle = nullptr;
        QTRY_VERIFY((handle = topLevel("phoneHandle")) && handle->isVisible());
        phone = topLevel("PhoneWindow");
        QVERIFY(!phone->isVisible());
        const QRect screen = login.screen()->availableGeometry();
        QVERIFY(!handle->geometry().intersects(login.geometry()));
        QVERIFY(screen.contains(handle->geometry()));
        QTRY_COMPARE(QApplication::activeWindow(), &login);

        QCOMPARE(ask(sendCodeOperation, {{accountField, ada}}), 1000);
        QVERIFY(handle->accessibleName().endsWith("something has arrived"));
        QTest::keyClick(handle, Qt::Key_Return);
        QVERIFY(!handle->isVisible());
        QVERIFY(screen.contains(phone->geometry()));
        click("phoneCloseBt");
        QVERIFY(handle->isVisible());
        QCOMPARE(handle->accessibleName(), QString("Open the simulated phone"));
        login.resize(300, 400); // as much room as it needs
        QTRY_VERIFY(phone->isVisible());
        QVERIFY(!handle->isVisible());
        QVERIFY(!phone->geometry().intersects(login.geometry()));
    }

    void moduleAddsItsStyleSheet()
    {
        const QString own = "QLabel{color:red}\n";
        qApp->setStyleSheet(own);
        static_cast<kelvra_base::ModuleInitialization &>(kelvra_login::LoginInit::_instance()).init();
        QVERIFY(qApp->styleSheet().startsWith(own) && qApp->styleSheet().size() > 2 * own.size());
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

    static QWidget *topLevel(const QString &name)
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == name)
                return window;
        }
        return nullptr;
    }

    QWidget *root() const override { return phone ? phone.data() : window.get(); }

    QDialog *openDialog(const char *button) const
    {
        click(button);
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        return QTest::qWaitFor([&] { return dialog && QApplication::activeWindow() == dialog; }) ? dialog : nullptr;
    }

    void showWindowFor(const QString &user, UserType type = kelvra_worker::LocalUser, bool autoLogin = false)
    {
        SystemWorker::_instance().setCurUserInfo(type, user, {}, 0, autoLogin);
        window = std::make_unique<MainWindow>();
        window->setSession({user, type, SessionInfo::PasswordMethod, QDateTime::currentDateTime()});
        window->loadUsers();
        window->loadAuditLog();
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    const QString ada = QStringLiteral("13800000001"); // an account of the simulated cloud
    std::unique_ptr<MainWindow> window;
    QPointer<QWidget> phone;
};

QTEST_MAIN(TestMainWindow)

#include "tst_mainwindow.moc"
