#include "TestTools.h"
#include "host/kelvra_base/ComboBox.h"
#include "login/local/LoginWt.h"
#include "login/local/ScreenTable.h"

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

QWidget *createTip(QWidget *parent)
{
    auto *tip = new QWidget(parent);
    tip->setObjectName("tip");
    tip->setFixedSize(120, 31);
    return tip;
}

} // namespace

class TestLoginWt : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        for (const int event : {NormalLogin, CreateSuperUser, SetSecretAnswer, VerifySecretAnswer, GestureLogin})
            ScreenTable::enter(LoginEvent(event), recordedScreen(event));
        ScreenTable::enterTip({createTip, [](QWidget *, PwdStrength strength) {
                                   host.record("setStrength", {QString::number(strength)});
                               }});
        host.reset();
        host.language = 4;
        open(new LoginWt);
    }

    void cleanup() { delete window; }

    void screensAreMadeOnce()
    {
        showScreen(VerifySecretAnswer, {"ann"});
        QWidget *verify = current();
        showScreen(GestureLogin);
        QWidget *gesture = current();
        QVERIFY(verify && gesture && verify != gesture && gesture->isVisible() && !verify->isVisible());
        showScreen(VerifySecretAnswer, {"bob"});
        QCOMPARE(current(), verify);
        showScreen(SetSecretAnswer);
        showScreen(CreateSuperUser);
        showScreen(SetSecretAnswer);
        QCOMPARE(host.callsOf({"create", "shown"}),
                 QStringList({"create(5,ann)", "shown(5,alone,ann)", "create(6)", "shown(6,alone)",
                              "shown(5,alone,bob)", "create(3)", "shown(3,alone)", "create(2)",
                              "shown(2,with creation)", "shown(3,with creation)"}));
    }

    void otherEventsChangeNothing()
    {
        for (const bool empty : {true, false}) {
            QWidget *before = current();
            for (const int event : {1, 8, -3, int(LoginMethodSel)})
                showScreen(event, {"ann"});
            QCOMPARE(current(), before);
            if (empty)
                showScreen(NormalLogin);
        }
        QCOMPARE(host.callsOf({"create", "shown"}), QStringList({"create(0)", "shown(0,alone)"}));
        QCOMPARE(stack()->count(), 1);
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
        QVERIFY(tip() && tip()->parent() == window && tip()->isVisible());
        QCOMPARE(tip()->pos(), QPoint(640, 5)); // 21 − 15.5
        box()->raise();
        QCOMPARE(window->childAt(700, 20), box());
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

    void languageBox()
    {
        QVERIFY(window->minimumSize() == QSize(860, 500) && window->maximumSize() == QSize(860, 500));
        window->setFixedSize(1000, 600);
        QCOMPARE(box()->geometry(), QRect(780, 8, 175, 24));
        QCOMPARE(stack()->geometry(), QRect(674, 0, 300, 600));
        QVERIFY(box()->focusPolicy() == Qt::NoFocus && box()->count() == 2);
        QCOMPARE(box()->currentText(), QString("Lingua"));
        QCOMPARE(host.calls, QStringList());
        QTest::keyClick(box(), Qt::Key_Up);
        QCOMPARE(host.calls, QStringList("setLanguage(0,true)"));
    }

    void backgroundFillsTheWidget()
    {
        const QImage background(":/login_images/images/img_bg_login.png");
        box()->hide();
        for (const QSize size : {window->size(), QSize(1000, 600)}) {
            window->setFixedSize(size);
            const QImage stretched = background.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QCOMPARE(window->grab().toImage().convertToFormat(stretched.format()), stretched);
        }
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

private:
    QStackedWidget *stack() const { return child<QStackedWidget>("stackedWidget"); }
    QWidget *current() const { return stack()->currentWidget(); }
    QWidget *tip() const { return child("tip"); }
    kelvra_base::ComboBox *box() const { return window->findChild<kelvra_base::ComboBox *>(); }

    void strength(int grade, bool visible, const QPoint &pos) const
    {
        emit LoginSignals::_instance().signalPwdStrength(PwdStrength(grade), visible, window->mapToGlobal(pos));
    }
};

QTEST_MAIN(TestLoginWt)

#include "tst_loginwt.moc"
