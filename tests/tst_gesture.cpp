#include "fakehost/Brackets.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/Screens.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/gesture/GestureLoginWt.h"
#include "login/gesture/GesturePanel.h"
#include "login/gesture/GesturePoint.h"
#include "login/local/LoginWt.h"
#include "login/local/NormalLoginWt.h"

#include <QCheckBox>
#include <QLabel>
#include <QtTest>

using namespace kelvra_login;

namespace {

FakeHost &host = FakeHost::get();

/** What was done and announced since the last call, in order, without what was only looked up. */
QString deeds()
{
    return std::exchange(host.calls, {}).filter(QRegularExpression("^(?!get|is|translate)")).join(' ');
}

/** Shows whether the gestures of these tests, which all begin in that corner, are on the pad and marked as wrong. */
int cornerState(const QWidget *window)
{
    return window->findChild<GesturePoint *>()->getState();
}

/** Draws as a hand does: a little past each dot. */
void draw(QWidget *window, const QString &gesture)
{
    QTRY_COMPARE(cornerState(window), int(GesturePoint::NormalState)); // the last gesture is on show no longer
    const auto *panel = window->findChild<GesturePanel *>();
    const auto dots = panel->findChildren<GesturePoint *>();
    const auto at = [&](const QPoint &point) { return panel->mapTo(window, point); };
    QPoint last = dots[0]->getCentre();
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, at(last));
    QTest::mouseMove(window->windowHandle(), at(last + QPoint(1, 1)));
    for (const QChar digit : gesture.mid(1)) {
        const QPoint next = dots[digit.digitValue()]->getCentre();
        QTest::mouseMove(window->windowHandle(), at(next + (next - last) / 10));
        last = next;
    }
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, at(last));
}

std::unique_ptr<GestureLoginWt> openPage()
{
    auto page = std::make_unique<GestureLoginWt>(nullptr);
    page->show();
    deeds();
    return page;
}

QString text(const QWidget *window, const char *label)
{
    return window->findChild<QLabel *>(label)->text();
}

} // namespace

class TestGesture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        connect(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent, this,
                [](LoginEvent event) { host.record("signalLoginEvent", {QString::number(event)}); });
    }

    void init()
    {
        LoginWorker::_instance().setLocked(false);
        host.reset();
        host.users["ann"] = host.users["bob"] = {"secret", "0124", 7, false, false, true, {}};
        host.superUser.userName = "root";
        host.currentUser = "ann";
    }

    void cleanup()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("kelvra_login::LoginDlg"))
                return delete window;
        }
    }

    void login_data()
    {
        QTest::addColumn<QString>("outcome");
        const QString granted = "loginSuccessLog(ann,1,%1) updateLoginEnvironment() updateUserLoginRecord(ann,%1) "
                                "updateLockInfo(false,0) setCurUserInfo(1,ann,secret,7,%1) setSuperUserInfo(root,) "
                                "setLoginSuccess(true) setValue(client_login_mode,1)";
        for (const char *way : {"drawn", "automatic"}) {
            QTest::newRow(way) << granted.arg(*way == 'd' ? "false" : "true");
            for (const char *inVain : {"logged in", "quits", "page gone"})
                QTest::addRow("%s, %s", way, inVain) << "";
        }
        QTest::newRow("automatic, user gone") << "messageAlert(Account ann not exist)";
        QTest::newRow("automatic, cloud login") << "";
        for (const char *why : {"seven days", "flag off", "no record", "other computer", "locked", "switched"})
            QTest::newRow(why) << "";
    }

    void login()
    {
        QFETCH(QString, outcome);
        const auto is = [](const char *condition) { return QByteArray(QTest::currentDataTag()).contains(condition); };
        auto &user = host.rememberUser("ann", "secret", is("seven days") ? 7 : 6);
        user.autoLogin = !is("flag off");
        user.hasRecord = !is("no record") && !is("drawn");
        host.sameEnvironment = !is("other computer");
        host.locked = is("locked");
        host.lastUserType = is("cloud login") ? kelvra_worker::CloudUser : kelvra_worker::LocalUser;
        if (is("switched"))
            LoginWorker::_instance().switchUser();
        QElapsedTimer clock;
        clock.start();
        auto page = openPage();
        auto *box = page->findChild<QCheckBox *>("autoLogin");
        QCOMPARE(box->isChecked(), is("automatic"));
        if (is("drawn")) {
            page->setUserName("ann");
            clock.restart();
            draw(page.get(), "0124");
            QVERIFY(box->isChecked());
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, 12));
            QCOMPARE(deeds(), QString("verifyUserGesture(ann,0124)"));
        }
        host.loginSuccess = is("logged in");
        if (is("quits"))
            emit kelvra_contact::SystemMsg::_instance().signalPrepareQuitSystem();
        if (is("page gone"))
            page.reset();
        if (is("user gone"))
            host.users.clear();
        const bool done = QTest::qWaitFor([] { return !host.calls.isEmpty(); }, outcome.isEmpty() ? 600 : 5000);
        QVERIFY(!done || clock.elapsed() > 450);
        QCOMPARE(deeds(), outcome);
    }

    void failures()
    {
        auto page = openPage();
        host.whileAlertIsOpen = [&] { page.reset(); };
        draw(page.get(), "0367");
        QVERIFY(!page);

        page = openPage();
        while (LoginWorker::_instance().failedTimes() < 4)
            LoginWorker::_instance().verifyPassword("ann", "bad");
        QObject context;
        connect(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent, &context, [&] { page.reset(); });
        draw(page.get(), "0367");
        QVERIFY(!page && deeds().endsWith("now failed 5 times)"));
        LoginWorker::_instance().setLocked(false);

        enterScreens();
        LoginWt router;
        router.show();
        auto &hub = LoginSignals::_instance();
        emit hub.signalLoginEvent(GestureLogin, {"bob"});
        emit hub.signalLoginEvent(GestureLogin, {"ann"});
        const auto *shown = router.findChild<GestureLoginWt *>();
        connect(&hub, &LoginSignals::signalLockLoginByGesture, shown,
                [&] { host.record("signalLockLoginByGesture", {QString::number(cornerState(shown))}); });
        for (const int count : {2, 4, 5, 6}) {
            while (LoginWorker::_instance().failedTimes() < count - 1)
                LoginWorker::_instance().verifyPassword("ann", "bad");
            emit hub.signalLoginEvent(GestureLogin, {});
            const QString before = text(shown, "errorLabel");
            const QString label = QString("Failed:%1 times, Remaining:%2 times").arg(count).arg(5 - count);
            host.whileAlertIsOpen = [&] {
                QCOMPARE(cornerState(shown), int(GesturePoint::ErrorState));
                QCOMPARE(text(shown, "errorLabel"), before);
                QTRY_COMPARE(text(shown, "errorLabel"), count == 5 ? "" : label);
            };
            deeds();
            draw(&router, "0367");
            const QString lock = "signalLoginEvent(0) signalLockLoginByGesture(1) updateLockInfo(true,180) "
                                 "lockUserLog(,180) ";
            const QString all = "verifyUserGesture(ann,0367) loginFailureLog(ann,1) %1messageAlert(gesture error, a "
                                "maximum of 5 failures are allowed, now failed %2 times)";
            QCOMPARE(deeds(), all.arg(count < 5 ? "" : lock).arg(count));
            QCOMPARE(shown->isVisible(), count < 5);
        }
        QVERIFY(router.findChild<NormalLoginWt *>()->isVisible());
    }

    void languageAndLink()
    {
        LoginWorker::_instance().verifyPassword("ann", "bad");
        const auto page = openPage();
        const Brackets brackets;
        QCOMPARE(text(page.get(), "label") + page->findChild<QCheckBox *>()->text() + text(page.get(), "errorLabel"),
                 QString("[Welcome to login][Automatic Logon][Failed:1 times, Remaining:4 times]"));
        QCOMPARE(text(page.get(), "userName") + text(page.get(), "pwdLogin"), QString("admin[Pwd Login]"));
        deeds();
        auto *link = page->findChild<QLabel *>("pwdLogin");
        QTest::mouseClick(link, Qt::RightButton);
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), QString());
        QTest::mouseRelease(link, Qt::LeftButton);
        QCOMPARE(deeds(), QString("signalLoginEvent(0)"));
    }

    void setGesture()
    {
        QPointer<AddGesturePwdDlg> dialog;
        QElapsedTimer clock;
        for (const QString verb : {"add", "update"}) {
            host.users["ann"].gesture = verb == "add" ? "" : "0367";
            dialog = new AddGesturePwdDlg(nullptr);
            dialog->show();
            const QSignalSpy accepted(dialog, &QDialog::accepted);
            // What is drawn, the prompt at once and later, the pad under an alert, what is done.
            for (const QString step :
                 {"012|Too simple gesture:at least 4 points|First input gesture|2|messageAlert(The gesture password is "
                  "too simple,you should connect at least 4 points)",
                  "0124|First input gesture|Second input gesture|0|",
                  "012|Second input gesture|First input gesture|2|messageAlert(The gesture passwords entered twice "
                  "are inconsistent)",
                  "0125|First input gesture|Second input gesture|0|",
                  "0125|Second input gesture|First input gesture|1|updateUserGesture(ann,0125) messageAlert(Failed to "
                  "%1 gesture password)",
                  "0124|First input gesture|Second input gesture|0|",
                  "0124|Second input gesture|Successfully set gesture password|0|updateUserGesture(ann,0124) "
                  "%1GestureLog(ann)"}) {
                const QStringList parts = QString(step).replace("%1", verb).split('|');
                int state = 0;
                clock.restart();
                host.gestureUpdatesSucceed = parts[0] == "0124";
                host.whileAlertIsOpen = [&] { state = cornerState(dialog); };
                draw(dialog, parts[0]);
                QCOMPARE(text(dialog, "prompt"), parts[1]);
                QTRY_COMPARE(text(dialog, "prompt"), parts[2]);
                QCOMPARE(state, parts[3].toInt());
                QCOMPARE(deeds(), parts[4]);
                QCOMPARE(std::make_unique<Brackets>() ? text(dialog, "prompt") : "", '[' + parts[2] + ']');
            }
            QVERIFY(!dialog->findChild<GesturePanel *>()->isEnabled());
            QTRY_COMPARE(accepted.size(), 1);
            QVERIFY(clock.elapsed() > 900);
            delete dialog;
        }
        dialog = new AddGesturePwdDlg(nullptr);
        dialog->show();
        host.whileAlertIsOpen = [&] { delete dialog; };
        draw(dialog, "036");
        QVERIFY(!dialog);
    }

    void accessDialogs()
    {
        auto &access = LoginAccess::_instance();
        QPointer<QWidget> parent = new QWidget;
        const auto during = [this](const std::function<void(QWidget *)> &action) {
            QTimer::singleShot(0, this, [action] { action(QApplication::activeModalWidget()); });
        };
        QString before = "01258";
        const auto drawBoth = [&](QWidget *dialog) {
            draw(dialog, before);
            draw(dialog, "01258");
        };
        during(drawBoth);
        access.addCurUserGesture(parent);
        during(drawBoth);
        access.addUserGesture(parent, "bob");
        QCOMPARE(deeds(), QString("updateUserGesture(ann,01258) updateGestureLog(ann) "
                                  "updateUserGesture(bob,01258) updateGestureLog(bob)"));
        before = "0367";
        during(drawBoth);
        QVERIFY(access.gestureVerify(parent));
        QCOMPARE(deeds(), QString("verifyUserGesture(ann,0367) verifyUserGesture(ann,01258)"));
        during([](QWidget *dialog) {
            draw(dialog, "0367");
            QCOMPARE(dialog->windowTitle() + QString::number(cornerState(dialog)), QString("Gesture Verify2"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QVERIFY(!access.gestureVerify(parent) && LoginWorker::_instance().failedTimes() == 2);
        during([&](QWidget *) { delete parent; });
        QVERIFY(!access.gestureVerify(parent) && !parent);
    }

    void accessSwitches()
    {
        auto &access = LoginAccess::_instance();
        const auto all = [&] {
            for (const bool ok :
                 {access.isCurUserConfigureGesture(), access.isCurUserAutoLogin(), access.openCurUserAutoLogin(),
                  access.cancelCurUserAutoLogin(), access.deleteCurUserGesture(), access.deleteUserGesture("bob")})
                host.calls << (ok ? "yes" : "no");
            return std::exchange(host.calls, {}).join(' ');
        };
        QCOMPARE(all(), QString("isUserConfigureGesture(ann) isUserAutoLogin(ann) userAutoLoginCtrl(ann,true) "
                                "openAutoLoginLog(ann) userAutoLoginCtrl(ann,false) cancelAutoLoginLog(ann) "
                                "deleteUserGesture(ann) deleteGestureLog(ann) deleteUserGesture(bob) "
                                "deleteGestureLog(bob) yes yes yes yes yes yes"));
        host.currentUser = "nobody";
        host.gestureUpdatesSucceed = false;
        QCOMPARE(all(), QString("isUserConfigureGesture(nobody) isUserAutoLogin(nobody) "
                                "userAutoLoginCtrl(nobody,true) userAutoLoginCtrl(nobody,false) "
                                "deleteUserGesture(nobody) deleteUserGesture(bob) no no no no no no"));
    }
};

QTEST_MAIN(TestGesture)

#include "tst_gesture.moc"
