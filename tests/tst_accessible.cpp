// What assistive technology finds on every screen, and whether the keyboard gets everywhere it may.
#include "client/kelvra_base/AlertBox.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/shell/AddUserDlg.h"
#include "client/shell/CloudSide.h"
#include "client/shell/MainWindow.h"
#include "client/shell/PhoneWindow.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/Screens.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/local/UserPwdWt.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "tests/DataFolderTest.h"

#include <QAccessible>
#include <QtWidgets>

using namespace kelvra_client;
using namespace kelvra_data;
using namespace kelvra_login;
using Action = QAccessibleActionInterface;
using Make = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Make)

namespace {

const QString secret = QStringLiteral("Unheard-of-57");
const QString phoneSecret = QStringLiteral("Analytical1"); // of the phone's first account
const QSet<QString> focusless{"closeBt",    "phoneCloseBt", "defaultUserBt", "newUserBt",
                              "saasUserBt", "gesturePanel", "languageBox",   "eye"};

bool isInteractive(QAccessible::Role role)
{
    static const QSet<int> roles{QAccessible::Button,       QAccessible::CheckBox, QAccessible::ComboBox,
                                 QAccessible::EditableText, QAccessible::Link,     QAccessible::Table,
                                 QAccessible::PageTab,      QAccessible::Canvas};
    return roles.contains(role);
}

QWidget *login(int event, int cloudPage = -1)
{
    auto *dialog = new LoginDlg(nullptr);
    emit LoginSignals::_instance().signalLoginEvent(LoginEvent(event), {"root"});
    if (cloudPage >= 0)
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasLoginEvent(cloudPage), {});
    return dialog;
}

QWidget *gotBack()
{
    auto *dialog = new GetbackPwdDlg(nullptr);
    for (const char *field : {"answer_1", "answer_2", "answer_3"})
        dialog->findChild<QLineEdit *>(field)->setText("moth");
    dialog->slotOperBtClicked();
    return dialog;
}

QWidget *mainWindow()
{
    auto *window = new MainWindow;
    window->setSession({"root", kelvra_worker::LocalUser, SessionInfo::PasswordMethod, QDateTime::currentDateTime()});
    return window;
}

void press(QWidget *widget)
{
    QAccessible::queryAccessibleInterface(widget)->actionInterface()->doAction(Action::pressAction());
}

} // namespace

class TestAccessible : public DataFolderTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        SuperUserInfo info = superUser("root", secret);
        info.answer1 = info.answer2 = info.answer3 = "moth";
        QVERIFY(UserData::_instance().addSuperUser(info));
        kelvra_worker::SystemWorker::_instance().setSuperUserInfo("root", secret);
        cloud.open(at());
        enterScreens();
    }

    void cleanupTestCase() { Store::_instance().close(); }

    void screens_data()
    {
        QTest::addColumn<Make>("make");
        for (const int event : {0, 2, 3, 4, 5, 6, 7})
            QTest::addRow("login event %d", event) << Make([event] { return login(event); });
        for (const int page : {SaasPwdLogin, SaasVerificationCodeLogin, SaasScanQRCodeLogin})
            QTest::addRow("cloud page %d", page) << Make([page] { return login(NormalLogin, page); });
        QTest::newRow("gesture") << Make([] { return new AddGesturePwdDlg(nullptr); });
        QTest::newRow("get back password") << Make([] { return new GetbackPwdDlg(nullptr); });
        QTest::newRow("password got back") << Make(gotBack);
        QTest::newRow("alert") << Make(
            [] { return new kelvra_base::AlertBox(nullptr, kelvra_base::AlertBox::Warning, "a", "b", 3); });
        QTest::newRow("new user") << Make([] { return new AddUserDlg(nullptr); });
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
                edit->setText(secret);
        }
        QSet<QWidget *> reached;
        for (QWidget *at = window->focusWidget(); at && !reached.contains(at); at = window->focusWidget()) {
            reached << at;
            QTest::keyClick(at, Qt::Key_Tab);
        }
        QStringList faults;
        for (auto *widget : window->findChildren<QWidget *>()) {
            if (widget->isVisible())
                faults << faultsOf(widget, reached.contains(widget));
        }
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
        // A field with a text interface has every typed character told in an event.
        QVERIFY(node->role() == QAccessible::EditableText && node->state().passwordEdit && !node->textInterface());
        QTest::keyClick(field.lineEdit(), Qt::Key_F8, Qt::AltModifier);
        QCOMPARE(field.lineEdit()->displayText() + node->text(QAccessible::Value), QString("Secret******"));
        press(field.findChild<QToolButton *>());
        QTRY_VERIFY(field.lineEdit()->displayText() != "Secret");
        field.setPassword("Secret", true);
        QCOMPARE(node->text(QAccessible::Value), QString(16, '*'));
    }

    void tabsAndLinksArePressed()
    {
        const std::unique_ptr<QWidget> window(login(NormalLogin));
        window->show();
        press(window->findChild<QWidget *>("saasUserTab"));
        QTRY_VERIFY(window->findChild<QWidget *>("saasPwdLoginPage")->isVisible());
        auto *link = window->findChild<QWidget *>("createUser");
        QSignalSpy events(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent);
        press(link);
        QTRY_COMPARE(events.size(), 1);
        QTest::keyClick(link, Qt::Key_Space);
        QCOMPARE(events.size(), 2);
    }

private:
    static QStringList faultsOf(QWidget *widget, bool reached)
    {
        QStringList faults;
        auto *node = QAccessible::queryAccessibleInterface(widget);
        const bool eye = qobject_cast<QLineEdit *>(widget->parent());
        const QString name = eye ? "eye" : widget->objectName();
        QString told = node->textInterface() ? node->textInterface()->text(0, 99) : QString();
        for (const auto text : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
            told += '\n' + node->text(text);
        if (told.contains(secret) || told.contains(phoneSecret))
            faults << name + ": tells a password";
        const bool pressable = node->actionInterface() && node->actionInterface()->actionNames().contains("Press");
        if (qobject_cast<QLabel *>(widget) && widget->testAttribute(Qt::WA_SetCursor) &&
            (node->role() != QAccessible::Link || !pressable))
            faults << name + ": no link";
        if (!isInteractive(node->role()))
            return faults;
        // A combo box gives its current text for its name on some systems.
        const auto naming = node->role() == QAccessible::ComboBox ? QAccessible::Description : QAccessible::Name;
        if (node->text(naming).isEmpty())
            faults << name + ": no name";
        const bool mayNot = widget->focusPolicy() == Qt::NoFocus && focusless.contains(name);
        if (widget->isEnabled() && !mayNot && !reached)
            faults << name + ": not reached by Tab";
        return faults;
    }

    CloudSide cloud;
};

QTEST_MAIN(TestAccessible)

#include "tst_accessible.moc"
