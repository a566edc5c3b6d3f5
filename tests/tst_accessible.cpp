// What assistive technology finds on every screen, and whether the keyboard gets everywhere it may.
#include "client/kelvra_base/AlertBox.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/shell/AddUserDlg.h"
#include "client/shell/CloudSide.h"
#include "client/shell/MainWindow.h"
#include "client/shell/PhoneWindow.h"
#include "client/shell/SetPwdDlg.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/Screens.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/gesture/GestureVerifyDlg.h"
#include "login/local/UserPwdWt.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "tests/DataFolderTest.h"

#include <QAccessible>
#include <QtWidgets>

using namespace kelvra_client;
using namespace kelvra_data;
using namespace kelvra_login;
using kelvra_base::AlertBox;

namespace {

const QString user = QStringLiteral("root");
const QString secret = QStringLiteral("Unheard-of-57");
const QString phoneSecret = QStringLiteral("Analytical1"); // of the phone's first account
const QSet<QString> focusless{"closeBt",   "phoneCloseBt", "defaultUserBt", "newUserBt",
                              "saasUserBt", "gesturePanel", "languageBox"};

bool isInteractive(QAccessible::Role role)
{
    return QSet<int>{QAccessible::Button, QAccessible::CheckBox, QAccessible::ComboBox, QAccessible::EditableText,
                     QAccessible::Link, QAccessible::Table, QAccessible::ButtonMenu, QAccessible::Canvas}
        .contains(role);
}

using Make = std::function<QWidget *()>;

} // namespace

Q_DECLARE_METATYPE(Make)

class TestAccessible : public DataFolderTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        QVERIFY(UserData::_instance().addSuperUser(superUser(user, secret)));
        kelvra_worker::SystemWorker::_instance().setSuperUserInfo(user, secret);
        cloud.open(at());
        enterScreens();
    }

    void cleanupTestCase() { Store::_instance().close(); }

    void screens_data()
    {
        QTest::addColumn<Make>("make");
        for (const int event : {NormalLogin, CreateSuperUser, SetSecretAnswer, ResetSuperUserPwd, VerifySecretAnswer,
                                GestureLogin, LoginMethodSel})
            QTest::addRow("login event %d", event) << Make([event] { return login(event); });
        for (int page = SaasPwdLogin; page <= SaasScanQRCodeLogin; ++page)
            QTest::addRow("cloud page %d", page) << Make([page] { return login(NormalLogin, page); });
        QTest::newRow("verify gesture") << Make([] { return new GestureVerifyDlg(nullptr); });
        QTest::newRow("add gesture") << Make([] { return new AddGesturePwdDlg(nullptr); });
        QTest::newRow("get back password") << Make([] { return new GetbackPwdDlg(nullptr); });
        QTest::newRow("password got back") << Make(gotBack);
        QTest::newRow("alert") << Make([] { return new AlertBox(nullptr, AlertBox::Warning, "a", "b", 3); });
        QTest::newRow("new user") << Make([] { return new AddUserDlg(nullptr); });
        QTest::newRow("new password") << Make([] { return new SetPwdDlg("operator", nullptr); });
        QTest::newRow("main window") << Make(mainWindow);
        QTest::newRow("phone") << Make([] { return new PhoneWindow(*kelvra_saas::SaasSetup::simulation()); });
    }

    void screens()
    {
        QFETCH(Make, make);
        const std::unique_ptr<QWidget> window(make());
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        for (auto *edit : window->findChildren<QLineEdit *>()) {
            if (edit->echoMode() == QLineEdit::Password)
                edit->setText(secret.left(edit->maxLength()));
        }
        faults.clear();
        walk(QAccessible::queryAccessibleInterface(window.get()));
        followTab(*window);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    /** Whatever has been typed or is remembered, and whether the eye is open or not. */
    void passwordsAreKept()
    {
        UserPwdWt field;
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        auto *node = QAccessible::queryAccessibleInterface(field.lineEdit());
        QTest::keyClicks(field.lineEdit(), "Secret");
        QVERIFY(node->state().passwordEdit && node->role() == QAccessible::EditableText);
        // One with a text interface has every typed character told in an event.
        QVERIFY(!node->textInterface());
        QCOMPARE(node->text(QAccessible::Value), QString("******"));
        QTest::keyClick(field.lineEdit(), Qt::Key_F8, Qt::AltModifier);
        QCOMPARE(field.lineEdit()->displayText(), QString("Secret"));
        QCOMPARE(node->text(QAccessible::Value), QString("******"));
        field.setPassword("Secret", true);
        QCOMPARE(node->text(QAccessible::Value), QString(16, '*'));
    }

    void linksArePressed()
    {
        const std::unique_ptr<QWidget> window(login(NormalLogin));
        window->show();
        auto *link = window->findChild<QLabel *>("createUser");
        QSignalSpy events(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent);
        QAccessible::queryAccessibleInterface(link)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_COMPARE(events.size(), 1);
        QTest::keyClick(link, Qt::Key_Space);
        QCOMPARE(events.size(), 2);
        QCOMPARE(events.last().first().value<LoginEvent>(), CreateSuperUser);
    }

private:
    static QWidget *login(int event, int cloudPage = -1)
    {
        auto *dialog = new LoginDlg(nullptr);
        auto &hub = LoginSignals::_instance();
        emit hub.signalLoginEvent(LoginEvent(event), {user});
        if (cloudPage >= 0)
            emit hub.signalSaasLoginEvent(SaasLoginEvent(cloudPage), {});
        return dialog;
    }

    static QWidget *gotBack()
    {
        auto *dialog = new GetbackPwdDlg(nullptr);
        const SuperUserInfo info = superUser(user, {});
        dialog->findChild<QLineEdit *>("answer_1")->setText(info.answer1);
        dialog->findChild<QLineEdit *>("answer_2")->setText(info.answer2);
        dialog->findChild<QLineEdit *>("answer_3")->setText(info.answer3);
        QTest::mouseClick(dialog->findChild<QPushButton *>("operBt"), Qt::LeftButton);
        return dialog;
    }

    static QWidget *mainWindow()
    {
        auto *window = new MainWindow;
        window->setSession({user, kelvra_worker::LocalUser, SessionInfo::PasswordMethod, QDateTime::currentDateTime()});
        window->offerPhone(true);
        return window;
    }

    void walk(QAccessibleInterface *node)
    {
        if (!node || node->state().invisible)
            return;
        const auto *widget = qobject_cast<QWidget *>(node->object());
        const QString name = widget ? widget->objectName() : QString();
        if (isInteractive(node->role()) && node->text(QAccessible::Name).isEmpty())
            faults << name + ": no name";
        // Where a combo box gives its current text for its name.
        if (node->role() == QAccessible::ComboBox && node->text(QAccessible::Description).isEmpty())
            faults << name + ": no description";
        if (qobject_cast<const QLabel *>(widget) && widget->testAttribute(Qt::WA_SetCursor) &&
            (node->role() != QAccessible::Link || !node->actionInterface()->actionNames().contains("Press")))
            faults << name + ": no link";
        QString told = node->textInterface() ? node->textInterface()->text(0, 99) : QString();
        for (const auto text : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
            told += '\n' + node->text(text);
        if (told.contains(secret) || told.contains(phoneSecret))
            faults << name + ": tells a password";
        for (int i = 0; i < node->childCount() && node->role() != QAccessible::Table; ++i)
            walk(node->child(i));
    }

    void followTab(QWidget &window)
    {
        QSet<QWidget *> reached;
        for (QWidget *at = window.focusWidget(); at && !reached.contains(at); at = window.focusWidget()) {
            reached << at;
            QTest::keyClick(at, Qt::Key_Tab);
        }
        for (auto *widget : window.findChildren<QWidget *>()) {
            const auto *node = QAccessible::queryAccessibleInterface(widget);
            if (!node || !isInteractive(node->role()) || !widget->isVisible() || !widget->isEnabled())
                continue;
            const bool eye = qobject_cast<QLineEdit *>(widget->parent()); // it has a key of its own
            const QString name = widget->objectName();
            const bool mayNot = widget->focusPolicy() == Qt::NoFocus && focusless.contains(name);
            if (!eye && !mayNot && !reached.contains(widget))
                faults << name + ": not reached by Tab";
        }
    }

    CloudSide cloud;
    QStringList faults;
};

QTEST_MAIN(TestAccessible)

#include "tst_accessible.moc"
