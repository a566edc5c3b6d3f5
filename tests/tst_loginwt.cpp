#include "TestTools.h"
#include "login/local/LoginWt.h"
#include "login/local/ScreenTable.h"
#include "login/superuser/LoginMethodSelWt.h"

using namespace kelvra_login;
using ZCOMMON::PwdStrength;

namespace {

/** A screen that says when it is made and what it is handed after each showing. */
ScreenTable::Screen recordedScreen(int event)
{
    const QString number = QString::number(event);
    return {[number](const QStringList &params, QWidget *parent) {
                host.record("create", QStringList(number) + params);
                return new QWidget(parent);
            },
            [number](const LoginWt &router, const QStringList &params) {
                const QString creation = router.screen(CreateSuperUser) ? "with creation" : "alone";
                host.record("shown", QStringList{number, creation} + params);
            }};
}

} // namespace

/** The router, and the page with the three methods that a first run begins with. */
class TestLoginWt : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        for (const int event : {NormalLogin, CreateSuperUser, SetSecretAnswer, VerifySecretAnswer, GestureLogin})
            ScreenTable::enter(LoginEvent(event), recordedScreen(event));
        const auto createTip = [](QWidget *parent) {
            auto *tip = new QWidget(parent);
            tip->setObjectName("tip");
            tip->setFixedSize(120, 31);
            return tip;
        };
        ScreenTable::enterTip({createTip, [](QWidget *, PwdStrength strength) {
                                   host.record("setStrength", {QString::number(strength)});
                               }});
        host.reset();
        host.language = 4;
        host.customization.cloudLoginEnabled = true;
        open(new LoginWt);
    }

    void cleanup() { delete window; }

    void screensAreMadeOnce()
    {
        for (const int event : {1, 8, -3, int(LoginMethodSel)}) // there are none
            showScreen(event, {"ann"});
        QCOMPARE(stack()->count(), 0);
        showScreen(VerifySecretAnswer, {"ann"});
        QWidget *verify = current();
        showScreen(GestureLogin);
        QWidget *gesture = current();
        QVERIFY(verify && gesture && verify != gesture && gesture->isVisible() && !verify->isVisible());
        showScreen(VerifySecretAnswer, {"bob"});
        showScreen(8);
        QCOMPARE(current(), verify);
        showScreen(SetSecretAnswer);
        showScreen(CreateSuperUser);
        showScreen(SetSecretAnswer);
        QCOMPARE(host.callsOf({"create", "shown"}),
                 QStringList({"create(5,ann)", "shown(5,alone,ann)", "create(6)", "shown(6,alone)",
                              "shown(5,alone,bob)", "create(3)", "shown(3,alone)", "create(2)",
                              "shown(2,with creation)", "shown(3,with creation)"}));
    }

    void earlyTipTakesTheFirstIndexForTheCreationScreen()
    {
        strength(1, true, {400, 200});
        showScreen(NormalLogin);
        QWidget *normal = current();
        showScreen(GestureLogin);
        showScreen(CreateSuperUser);
        QCOMPARE(current(), normal);
        QVERIFY(!host.calls.contains("create(2)") && !tip());
    }

    void tipStandsAtThePoint()
    {
        showScreen(CreateSuperUser);
        strength(3, true, {760, 21});
        QVERIFY(tip()->isVisible());
        QCOMPARE(tip()->pos(), QPoint(640, 5)); // 21 − 15.5
        box()->raise();
        strength(2, true, {760, 10});
        QCOMPARE(window->childAt(700, 20), tip());
        QCOMPARE(tip()->pos(), QPoint(640, -5)); // toward zero, above the edge too
        strength(0, false, {400, 200});
        QVERIFY(!tip()->isVisible());
        strength(1, true, {400, 200});
        showScreen(NormalLogin);
        QVERIFY(!tip()->isVisible());
        strength(2, true, {500, 300});
        showScreen(CreateSuperUser);
        QVERIFY(!tip()->isVisible());
        QCOMPARE(host.callsOf({"setStrength"}),
                 QStringList({"setStrength(3)", "setStrength(2)", "setStrength(0)", "setStrength(1)"}));
        QCOMPARE(window->findChildren<QWidget *>("tip").size(), 1);
    }

    void languageBoxAndBackground()
    {
        QVERIFY(window->minimumSize() == QSize(860, 500) && window->maximumSize() == QSize(860, 500));
        QCOMPARE(box()->currentText(), QString("Lingua"));
        QCOMPARE(host.calls, QStringList());
        QTest::keyClick(box(), Qt::Key_Up);
        QCOMPARE(host.calls, QStringList("setLanguage(0,true)"));
        box()->hide();
        const QImage background(":/login_images/images/img_bg_login.png");
        for (const QSize size : {window->size(), QSize(1000, 600)}) {
            window->setFixedSize(size);
            const QImage stretched = background.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QCOMPARE(window->grab().toImage().convertToFormat(stretched.format()), stretched);
        }
        QCOMPARE(box()->geometry(), QRect(780, 8, 175, 24));
        QCOMPARE(stack()->geometry(), QRect(674, 0, 300, 600));
    }

    void routerMayDieOfAnEvent()
    {
        ScreenTable::enter(GestureLogin, {recordedScreen(GestureLogin).create,
                                          [this](const LoginWt &, const QStringList &) { delete window; }});
        LoginWt second;
        showScreen(GestureLogin, {"ann"});
        QVERIFY(!window);
        QCOMPARE(second.findChild<QStackedWidget *>()->count(), 1);
    }

    void methods()
    {
        if (isWindows)
            QSKIP(realPointer);
        open(new LoginMethodSelWt(nullptr));
        const Brackets brackets;
        QStringList texts;
        for (const auto *label : window->findChildren<QLabel *>())
            texts << label->text();
        QCOMPARE(texts, QStringList({"[Welcome to login]", "[Use Default Superuser]",
                                     "[User:admin Password:468024, low security]", "[Create New Superuser]",
                                     "[Customize user and password, high security]", "[Login Nimbra App User]",
                                     "[Login via phone number or scan QR code]"}));
        QList<QImage> pictures;
        for (auto *button : window->findChildren<QPushButton *>()) {
            for (const QPoint &pointer : {QPoint(-1, -1), QPoint(9, 9)}) {
                QTest::mouseMove(button, pointer);
                const QImage picture = button->grab(QRect(0, 0, 50, 54)).toImage(); // left of the texts
                QVERIFY(!pictures.contains(picture));
                pictures << picture;
            }
            QVERIFY(button->size() == QSize(275, 54) && button->focusPolicy() == Qt::NoFocus);
        }
        QCOMPARE(pictures.size(), 6);
        const int top = child("defaultUserBt")->y();
        host.customization.cloudLoginEnabled = false;
        open(new LoginMethodSelWt(nullptr));
        QCOMPARE(child("defaultUserBt")->y(), top + 54);
        QCOMPARE(child("newUserBt")->y(), top + 54 + 80);
        QVERIFY(isShown("newUserBt") && !isShown("saasUserBt"));
    }

    void keysChooseAMethod_data()
    {
        QTest::addColumn<bool>("cloud");
        QTest::addColumn<QKeySequence>("keys");
        QTest::addColumn<QString>("deed");
        const QString byDefault = "addSuperUser(admin)", create = "signalLoginEvent(2)", cloud = "signalLoginEvent(0)";
        QTest::newRow("at once") << true << QKeySequence("Return") << byDefault;
        QTest::newRow("Tab") << true << QKeySequence("Tab, Enter") << create;
        QTest::newRow("Tab, once round") << true << QKeySequence("Tab, Tab, Tab, Return") << byDefault;
        QTest::newRow("Shift+Tab") << true << QKeySequence("Shift+Tab, Space") << cloud;
        QTest::newRow("arrows") << true << QKeySequence("Down, Right, Up, Return") << create;
        QTest::newRow("Left") << true << QKeySequence("Left, Return") << cloud;
        QTest::newRow("without cloud") << false << QKeySequence("Up, Return") << create;
    }

    void keysChooseAMethod()
    {
        QFETCH(const bool, cloud);
        QFETCH(const QKeySequence, keys);
        QFETCH(const QString, deed);
        host.customization.cloudLoginEnabled = cloud;
        open(new LoginMethodSelWt(nullptr));
        QTest::keySequence(QApplication::focusWidget(), keys);
        QCOMPARE(deeds().section(' ', 0, 0), deed);
    }

    void frameStandsRoundTheChoice()
    {
        open(new LoginMethodSelWt(nullptr));
        holdEnter(window); // since before the page came
        QCOMPARE(deeds(), QString());
        QTest::keyClick(window, Qt::Key_Tab);
        const Brackets brackets; // another language
        const auto *button = child("newUserBt");
        QVERIFY(QAccessible::queryAccessibleInterface(child("newUserBt"))->state().focused);
        const QPoint corner = button->geometry().topLeft() + QPoint(20, -1);
        QCOMPARE(window->grab().toImage().pixelColor(corner), QColor(Qt::white));
        window->clearFocus();
        QVERIFY(window->grab().toImage().pixelColor(corner) != QColor(Qt::white));
    }

    void methodChoices()
    {
        const auto choose = [this](const char *button) {
            click(button);
            return deeds();
        };
        open(new LoginMethodSelWt(nullptr));
        QCOMPARE(choose("newUserBt"), QString("signalLoginEvent(2) updateLoginEnvironment()"));
        QCOMPARE(choose("saasUserBt"), QString("signalLoginEvent(0) signalSaasLoginEvent(0) "
                                               "setLastLoggedInUserType(2) updateLoginEnvironment()"));
        QCOMPARE(choose("defaultUserBt"), QString("addSuperUser(admin) signalLoginEvent(0,admin,468024) "
                                                  "fillIn(admin,468024) updateLoginEnvironment()"));
        const auto &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.password, added.answer1, added.answer2, added.answer3, added.displayName}),
                 QStringList({"468024", "468024", "468024", "468024", ""}));
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 0, 1, 2}));
        host.addSuperUserSucceeds = false;
        host.whileAlertIsOpen = [this] { delete window; };
        QCOMPARE(choose("defaultUserBt"), QString("addSuperUser(admin) messageAlert(Local default superuser is not "
                                                  "available) updateLoginEnvironment()"));
        QVERIFY(!window && host.alerts.first().first == "title 1");
    }

private:
    QStackedWidget *stack() const { return child<QStackedWidget>("stackedWidget"); }
    QWidget *current() const { return stack()->currentWidget(); }
    QWidget *tip() const { return child("tip"); }
    QComboBox *box() const { return child<QComboBox>("languageBox"); }

    void strength(int grade, bool visible, const QPoint &pos) const
    {
        emit LoginSignals::_instance().signalPwdStrength(PwdStrength(grade), visible, window->mapToGlobal(pos));
    }
};

QTEST_MAIN(TestLoginWt)

#include "tst_loginwt.moc"
