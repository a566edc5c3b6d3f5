#include "TestTools.h"
#include "login/superuser/LoginMethodBt.h"
#include "login/superuser/LoginMethodSelWt.h"

using namespace kelvra_login;

namespace {

QStringList textsOf(const LoginMethodBt *button)
{
    return {button->findChild<QLabel *>("title")->text(), button->findChild<QLabel *>("detail")->text()};
}

} // namespace

class TestMethodSel : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        host.reset();
        host.customization.cloudLoginEnabled = true;
        newPage();
    }

    void cleanup() { delete window; }

    void texts()
    {
        const QStringList english = {"Use Default Superuser", "User:admin Password:468024, low security",
                                     "Create New Superuser",  "Customize user and password, high security",
                                     "Login Nimbra App User", "Login via phone number or scan QR code"};
        const auto shown = [this] { return textsOf(defaultUserBt()) + textsOf(newUserBt()) + textsOf(saasUserBt()); };
        QCOMPARE(shown(), english);
        {
            const Brackets brackets;
            QCOMPARE(shown(), QStringList(english).replaceInStrings(QRegularExpression("^(.*)$"), "[\\1]"));
            QCOMPARE(child<QLabel>("label")->text(), QString("[Welcome to login]"));
        }
        newUserBt()->setMethod(7);
        QCOMPARE(textsOf(newUserBt()), english.mid(4));
        const QSignalSpy clicked(newUserBt(), &LoginMethodBt::signalClicked);
        QTest::mouseClick(newUserBt(), Qt::LeftButton);
        QCOMPARE(clicked.value(0), QVariantList{7});
    }

    void buttonsWithoutCloudLoginSitLower()
    {
        const int top = defaultUserBt()->y();
        QVERIFY(saasUserBt()->isVisible());
        host.customization.cloudLoginEnabled = false;
        newPage();
        QCOMPARE(defaultUserBt()->y(), top + 54);
        QCOMPARE(newUserBt()->y(), top + 54 + 80);
        QVERIFY(defaultUserBt()->isVisible() && newUserBt()->isVisible() && !saasUserBt()->isVisible());
    }

    void buttonsShowPictures()
    {
        QList<QImage> pictures;
        for (LoginMethodBt *button : buttons()) {
            QCOMPARE(button->size(), QSize(275, 54));
            for (QWidget *pointedAt : {window.data(), static_cast<QWidget *>(button)}) {
                QTest::mouseMove(pointedAt, pointedAt == button ? QPoint() : QPoint(1, 1));
                const QImage picture = button->grab(QRect(0, 0, 50, 54)).toImage(); // left of the texts
                QVERIFY(!pictures.contains(picture));
                pictures << picture;
            }
            QTest::mouseClick(button, Qt::LeftButton);
            QTest::keyClick(window, Qt::Key_Tab);
            QVERIFY(!button->hasFocus());
        }
    }

    void choices()
    {
        QCOMPARE(choose(newUserBt()), QString("signalLoginEvent(2) updateLoginEnvironment()"));
        QCOMPARE(choose(saasUserBt()), QString("signalLoginEvent(0) signalSaasLoginEvent(0) "
                                               "setLastLoggedInUserType(2) updateLoginEnvironment()"));
        QCOMPARE(choose(defaultUserBt()), QString("addSuperUser(admin) signalLoginEvent(0,admin,468024) "
                                                  "fillIn(admin,468024) updateLoginEnvironment()"));
        const auto &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.userName, added.password, added.answer1, added.answer2, added.answer3}),
                 QStringList({"admin", "468024", "468024", "468024", "468024"}));
        QVERIFY(added.displayName.isEmpty() && added.remark.isEmpty());
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 0, 1, 2}));
    }

    void refusedDefaultSuperUser()
    {
        const QString refused = "addSuperUser(admin) messageAlert(Local default superuser is not available) "
                                "updateLoginEnvironment()";
        host.addSuperUserSucceeds = false;
        QCOMPARE(choose(defaultUserBt()), refused);
        QCOMPARE(host.alerts.first().first, QString("title 1"));
        host.whileAlertIsOpen = [this] { delete window; };
        QCOMPARE(choose(defaultUserBt()), refused);
        QVERIFY(!window);
    }

private:
    void newPage() { open(new LoginMethodSelWt(nullptr)); }
    LoginMethodBt *defaultUserBt() const { return child<LoginMethodBt>("defaultUserBt"); }
    LoginMethodBt *newUserBt() const { return child<LoginMethodBt>("newUserBt"); }
    LoginMethodBt *saasUserBt() const { return child<LoginMethodBt>("saasUserBt"); }
    QList<LoginMethodBt *> buttons() const { return {defaultUserBt(), newUserBt(), saasUserBt()}; }

    static QString choose(LoginMethodBt *button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        return deeds();
    }
};

QTEST_MAIN(TestMethodSel)

#include "tst_methodsel.moc"
