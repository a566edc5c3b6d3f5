#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/UserAdmin.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "client/shell/MainWindow.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "tests/DataFolderTest.h"
#include "tests/WindowParts.h"

#include <array>

using namespace kelvra_data;
using namespace kelvra_worker;
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

void clickHeader(QTableView *table, int section)
{
    QHeaderView *header = table->horizontalHeader();
    const QPoint place(header->sectionViewportPosition(section) + 5, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
}

void fill(const QDialog *dialog, const char *field, const QString &text)
{
    auto *edit = dialog->findChild<QLineEdit *>(field);
    edit->clear();
    QTest::keyClicks(edit, text);
}

/** Fills the two password fields and presses Return. */
void enterPwd(const QDialog *dialog, const QString &password, const QString &confirmed)
{
    fill(dialog, "newPwd", password);
    fill(dialog, "confirmPwd", confirmed);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

QString focus()
{
    return QApplication::focusWidget()->objectName();
}

QString errorOf(const QDialog *dialog)
{
    return dialog->findChild<QLabel *>("error")->text();
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
        QCOMPARE(focus(), QString("userName"));
        for (const auto &[name, password, sentence] : refusals) {
            fill(add, "userName", name);
            enterPwd(add, password, password);
            QCOMPARE(errorOf(add), sentence);
            QCOMPARE(focus(), QString(sentence.contains("name") ? "userName" : "newPwd"));
            SysLanguage::_instance().setLanguage(Language(1), false);
            QTRY_VERIFY(!errorOf(add).isEmpty() && errorOf(add) != sentence);
            SysLanguage::_instance().setLanguage(Language(0), false);
            QTest::keyClicks(QApplication::focusWidget(), "x"); // typing on takes the sentence away
            QCOMPARE(errorOf(add), QString());
        }
        QVERIFY(admin.users().size() == 1 && auditEvents().isEmpty());
        const QString longest(64, 'n');
        fill(add, "userName", longest);
        enterPwd(add, "0123456789abcdef", "0123456789abcdef");
        QTRY_VERIFY(!add);
        QVERIFY(users.verifyUserPassword(longest, "0123456789abcdef") && !users.isSuperUser(longest));
        QCOMPARE(column(child<QTableView>("usersTable"), 0), QStringList({"bob", longest}));
    }

    void ordinaryUsersOnlyAreRemoved()
    {
        for (const char *name : {"root", "13800001111", "nobody"}) {
            QCOMPARE(admin.remove(name), UserAdmin::NoSuchUser);
            QCOMPARE(admin.setPassword(name, "changed"), UserAdmin::NoSuchUser);
        }
        QVERIFY(users.verifyUserPassword("root", "468024"));
        QVERIFY(users.updateUserLoginRecord("bob", true));
        QCOMPARE(admin.remove("bob"), UserAdmin::Done);
        QVERIFY(users.getLastLoggedLocalUser().isEmpty() && users.isSuperUserExist(SuperUserRole));
        Store::_instance().close();
        QCOMPARE(admin.add("eve", "pw"), UserAdmin::NotStored);
        QCOMPARE(admin.remove("bob"), UserAdmin::NotStored);
    }

    void superUserIsReplacedAsAWhole()
    {
        QVERIFY(users.updateUserGesture("bob", "0124") && users.updateUserLoginRecord("bob", true));
        QVERIFY(users.updateLockInfo(true, 99));
        QVERIFY(!users.addSuperUser(superUser("ada", "468024")) && users.isSuperUser("root"));

        Store::_instance().setSuperUserReplaceable(true);
        QVERIFY(!users.addSuperUser(superUser("13800001111", "468024")));
        QVERIFY(users.isSuperUser("root") && users.verifyUserGesture("bob", "0124"));
        QVERIFY(users.getLastLoggedLocalUser() == "bob" && auditEvents().isEmpty());
        bool locked = false;
        int seconds = 0;
        QVERIFY(users.getLockInfo(locked, seconds) && locked && seconds == 99);

        QVERIFY(users.addSuperUser(superUser("ada", "468024")));
        QCOMPARE(users.getSuperUserInfo({}).userName, QString("ada"));
        QVERIFY(!users.isUserExist("root") && !users.isUserExist("bob") && users.isUserExist("13800001111"));
        QVERIFY(users.getLastLoggedLocalUser().isEmpty());
        QVERIFY(users.getLockInfo(locked, seconds) && !locked && seconds == 0);
        QCOMPARE(auditEvents(), QStringList("superuser replaced root"));
    }

    void removalIsAskedBack()
    {
        QVERIFY(!child("removeUserBt")->isEnabled());
        for (const char *button : {"cancelBt", "okBt"}) {
            select("bob");
            const QPointer<QDialog> alert = openDialog("removeUserBt");
            QVERIFY(users.isUserExist("bob"));
            QTest::mouseClick(alert->findChild<QPushButton *>(button), Qt::LeftButton);
            QTRY_VERIFY(!alert);
        }
        QVERIFY(!users.isUserExist("bob") && !child("setPwdBt")->isEnabled());
        QCOMPARE(auditEvents(), QStringList("remove user bob"));

        // Somebody else may be quicker.
        QCOMPARE(admin.add("eve", "pw"), UserAdmin::Done);
        window->loadUsers();
        select("eve");
        const QPointer<QDialog> set = openDialog("setPwdBt");
        QCOMPARE(focus(), QString("newPwd"));
        QCOMPARE(admin.remove("eve"), UserAdmin::Done);
        enterPwd(set, "pw", "pw");
        QCOMPARE(errorOf(set), QString("This user no longer exists."));
        QTest::keyClick(set, Qt::Key_Escape);
        QTRY_COMPARE(child<QTableView>("usersTable")->model()->rowCount(), 0);
    }

    void ordinaryUserIsOnlyTold()
    {
        showWindowFor("bob");
        QCOMPARE(text("currentUser"), QString("bob"));
        for (const char *name : {"addUserBt", "setPwdBt", "removeUserBt", "usersTable"})
            QVERIFY2(!isShown(name), name);
        QVERIFY(isShown("usersNote") && text("usersNote").contains("root"));

        QCOMPARE(admin.remove("bob"), UserAdmin::Done);
        AuditTrail::_instance().write(AuditEvent::RemoveUser, "bob");
        QCOMPARE(text("currentRole"), QString("This user has been removed"));
    }

    void onlySuperUsersGetAtThePassword()
    {
        const auto offered = [this](const QString &user) {
            showWindowFor(user);
            return isShown("getbackPwdBt") + isShown("exportCredentialsBt");
        };
        QCOMPARE(offered("root"), 2);
        QCOMPARE(offered("13800001111"), 2);
        QCOMPARE(offered("bob"), 0);
        // An account alone has no password here.
        QVERIFY(Store::_instance().change("DELETE FROM users WHERE name = 'root'"));
        QCOMPARE(offered("13800001111"), 0);
    }

    void gestureOfAnotherIsManaged()
    {
        select("bob");
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
            click("autoLoginSwitch", QPoint(10, 10));
            QVERIFY(!users.isUserAutoLogin("13800001111"));
        }
        QCOMPARE(auditEvents(), QStringList("cancel automatic login 13800001111"));
    }

    void auditLogIsAlive()
    {
        auto *table = child<QTableView>("auditTable");
        LoginLogs::_instance().lockUserLog("zoe", 180);
        LoginLogs::_instance().loginSuccessLog("amy", 1, false);
        LoginLogs::_instance().loginFailureLog("bob", 0);
        QCOMPARE(column(table, 2), QStringList({"bob", "amy", "zoe"}));
        QCOMPARE(column(table, 3), QStringList({"by password", "by gesture", "for 180 seconds"}));
        clickHeader(table, 2);
        QCOMPARE(column(table, 2), QStringList({"amy", "bob", "zoe"}));
        LoginLogs::_instance().addGestureLog("ben");
        QCOMPARE(column(table, 2), QStringList({"amy", "ben", "bob", "zoe"}));
        clickHeader(table, 0);
        QCOMPARE(column(table, 2), QStringList({"zoe", "amy", "bob", "ben"}));

        QVERIFY(users.userAutoLoginCtrl("root", true));
        QCOMPARE(text("autoLogin"), QString("By hand"));
        LoginLogs::_instance().openAutoLoginLog("root");
        QCOMPARE(text("autoLogin"), QString("Automatic"));
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

    void languageIsFollowed()
    {
        auto *box = child<QComboBox>("languageBox");
        const auto *table = child<QTableView>("auditTable");
        LoginLogs::_instance().loginFailureLog("bob", 0);
        QTest::keyClick(box, Qt::Key_Down);
        QTRY_COMPARE(text("addUserBt"), QString("添加用户"));
        QCOMPARE(table->model()->index(0, 1).data().toString(), QString("登录失败"));
        QCOMPARE(table->model()->headerData(0, Qt::Horizontal).toString(), QString("时间"));
        SysLanguage::_instance().setLanguage(Language(0), false);
        QTRY_COMPARE(box->currentText(), QString("English"));
        QCOMPARE(text("currentRole"), QString("Superuser"));
    }

    void closingQuitsOnce()
    {
        QStringList heard;
        const QObject listener;
        const SystemMsg *msg = &SystemMsg::_instance();
        connect(msg, &SystemMsg::signalPrepareQuitSystem, &listener, [&] { heard << "prepare"; });
        connect(msg, &SystemMsg::signalQuitSystem, &listener, [&] { heard << "quit"; });
        connect(window.get(), &MainWindow::signalSwitchUser, &listener, [&] { heard << "switch"; });
        connect(window.get(), &MainWindow::signalShowPhone, &listener, [&] { heard << "phone"; });
        QVERIFY(!isShown("phoneBt"));
        window->offerPhone(true);
        click("phoneBt");
        click("switchUserBt");
        click("quitBt");
        window->close();
        QCOMPARE(heard, QStringList({"phone", "switch", "prepare", "quit"}));
    }

private:
    QWidget *root() const override { return window.get(); }

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
        SessionInfo session;
        session.user = user;
        session.type = type;
        session.since = QDateTime::currentDateTime();
        window->setSession(session);
        window->loadUsers();
        window->loadAuditLog();
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    void select(const QString &user) const
    {
        auto *table = child<QTableView>("usersTable");
        const QModelIndex index = table->model()->index(column(table, 0).indexOf(user), 0);
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(index).center());
    }

    std::unique_ptr<MainWindow> window;
};

QTEST_MAIN(TestMainWindow)

#include "tst_mainwindow.moc"
