#include "fakehost/FakeHost.h"
#include "host/kelvra_base/ComboBox.h"
#include "login/frame/LoginSignals.h"
#include "login/local/LoginWt.h"
#include "login/local/ScreenTable.h"

#include <QStackedWidget>
#include <QtTest>

using namespace kelvra_login;
using ZCOMMON::PwdStrength;

namespace {

FakeHost &host = FakeHost::get();

void show(int event, const QStringList &params = {})
{
    emit LoginSignals::_instance().signalLoginEvent(LoginEvent(event), params);
}

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

class TestLoginWt : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        host.reset();
        for (const int event : {NormalLogin, CreateSuperUser, SetSecretAnswer, VerifySecretAnswer, GestureLogin})
            ScreenTable::enter(LoginEvent(event), recordedScreen(event));
        ScreenTable::enterTip(
            {[](QWidget *parent) {
                 host.record("createTip", {});
                 auto *tip = new QWidget(parent);
                 tip->setObjectName("tip");
                 tip->setFixedSize(120, 31);
                 return tip;
             },
             [](QWidget *, PwdStrength strength) { host.record("setStrength", {QString::number(strength)}); }});
        wt = std::make_unique<LoginWt>();
        wt->show();
    }

    void cleanup() { wt.reset(); }

    void screensAreMadeOnce()
    {
        show(VerifySecretAnswer, {"ann"});
        QWidget *verify = current();
        show(GestureLogin);
        QWidget *gesture = current();
        QVERIFY(verify && gesture && verify != gesture && gesture->isVisible() && !verify->isVisible());
        show(VerifySecretAnswer, {"bob"});
        QCOMPARE(current(), verify);
        show(GestureLogin, {"carl"});
        QCOMPARE(current(), gesture);
        show(SetSecretAnswer);
        show(CreateSuperUser);
        show(SetSecretAnswer);
        QCOMPARE(host.calls, QStringList({"create(5,ann)", "shown(5,alone,ann)", "create(6)", "shown(6,alone)",
                                          "shown(5,alone,bob)", "shown(6,alone,carl)", "create(3)", "shown(3,alone)",
                                          "create(2)", "shown(2,with creation)", "shown(3,with creation)"}));
    }

    void otherEventsChangeNothing()
    {
        for (const bool empty : {true, false}) {
            QWidget *before = current();
            for (const int event : {1, 8, -3, int(LoginMethodSel)})
                show(event, {"ann"});
            QCOMPARE(current(), before);
            if (empty)
                show(NormalLogin);
        }
        QCOMPARE(host.calls, QStringList({"create(0)", "shown(0,alone)"}));
        QCOMPARE(stack()->count(), 1);
    }

    void earlyTipTakesTheFirstIndexForTheCreationScreen()
    {
        strength(1, true, {400, 200});
        show(NormalLogin);
        QWidget *normal = current();
        show(GestureLogin);
        show(CreateSuperUser);
        QCOMPARE(current(), normal);
        QVERIFY(!host.calls.contains("create(2)") && !host.calls.contains("createTip()"));
    }

    void tipStandsAtThePoint()
    {
        show(CreateSuperUser);
        auto *box = wt->findChild<kelvra_base::ComboBox *>();
        strength(3, true, {760, 21});
        auto *tip = wt->findChild<QWidget *>("tip");
        QVERIFY(tip && tip->parent() == wt.get() && tip->isVisible());
        QCOMPARE(tip->pos(), QPoint(640, 5)); // 21 − 15.5
        box->raise();
        QCOMPARE(wt->childAt(700, 20), box);
        strength(2, true, {760, 10});
        QCOMPARE(wt->childAt(700, 20), tip);
        QCOMPARE(tip->pos(), QPoint(640, -5)); // toward zero, above the edge too
        strength(0, false, {400, 200});
        QVERIFY(!tip->isVisible());
        QCOMPARE(host.callsOf({"createTip", "setStrength"}),
                 QStringList({"createTip()", "setStrength(3)", "setStrength(2)", "setStrength(0)"}));
    }

    void tipGoesWithTheCreationScreen()
    {
        show(CreateSuperUser);
        strength(1, true, {400, 200});
        auto *tip = wt->findChild<QWidget *>("tip");
        QVERIFY(tip->isVisible());
        show(NormalLogin);
        QVERIFY(!tip->isVisible());
        strength(2, true, {500, 300});
        QVERIFY(!tip->isVisible());
        show(CreateSuperUser);
        QVERIFY(!tip->isVisible());
        QCOMPARE(host.callsOf({"setStrength"}), QStringList("setStrength(1)"));
    }

    void languageBox()
    {
        host.language = 4;
        wt = std::make_unique<LoginWt>();
        wt->show();
        auto *box = wt->findChild<kelvra_base::ComboBox *>();
        QVERIFY(wt->minimumSize() == QSize(860, 500) && wt->maximumSize() == QSize(860, 500));
        QCOMPARE(box->geometry(), QRect(640, 8, 175, 24));
        wt->setFixedSize(1000, 600);
        QCOMPARE(box->geometry(), QRect(780, 8, 175, 24));
        QCOMPARE(stack()->geometry(), QRect(674, 0, 300, 600));
        QVERIFY(box->focusPolicy() == Qt::NoFocus && box->count() == 2);
        QCOMPARE(box->itemText(0) + box->itemData(0).toString(), QString("English0"));
        QCOMPARE(box->currentText() + box->currentData().toString(), QString("Lingua4"));
        QCOMPARE(host.calls, QStringList());
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(host.calls, QStringList("setLanguage(0,true)"));
    }

    void backgroundFillsTheWidget()
    {
        const QImage background(":/login_images/images/img_bg_login.png");
        wt->findChild<kelvra_base::ComboBox *>()->hide();
        QCOMPARE(wt->grab().toImage().convertToFormat(background.format()), background);
        wt->setFixedSize(1000, 600);
        QCOMPARE(wt->grab().toImage().pixel(999, 599), background.pixel(859, 499));
    }

    void routerMayDieOfAnEvent()
    {
        ScreenTable::enter(GestureLogin, {recordedScreen(GestureLogin).create,
                                          [this](const LoginWt &, const QStringList &) { wt.reset(); }});
        LoginWt second;
        show(GestureLogin, {"ann"});
        QVERIFY(!wt);
        QCOMPARE(second.findChild<QStackedWidget *>()->count(), 1);
    }

private:
    QStackedWidget *stack() const { return wt->findChild<QStackedWidget *>("stackedWidget"); }
    QWidget *current() const { return stack()->currentWidget(); }

    void strength(int grade, bool visible, const QPoint &pos) const
    {
        emit LoginSignals::_instance().signalPwdStrength(PwdStrength(grade), visible, wt->mapToGlobal(pos));
    }

    std::unique_ptr<LoginWt> wt;
};

QTEST_MAIN(TestLoginWt)

#include "tst_loginwt.moc"
