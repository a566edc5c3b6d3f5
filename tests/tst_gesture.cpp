#include "TestTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/Screens.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/gesture/GestureLoginWt.h"
#include "login/gesture/GesturePanel.h"
#include "login/gesture/GesturePoint.h"
#include "login/local/LoginWt.h"
#include "login/local/NormalLoginWt.h"

using namespace kelvra_login;

namespace {

/** Shows whether the gestures of these tests, which all begin in that corner, are on the pad and marked as wrong. */
int cornerState(const QWidget *window)
{
    return window->findChild<GesturePoint *>()->getState();
}

void draw(const QWidget *window, const QString &gesture)
{
    QTRY_COMPARE(cornerState(window), int(GesturePoint::NormalState)); // the last gesture is on show no longer
    drawGesture(window, gesture);
}

} // namespace

class TestGesture : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        LoginWorker::_instance().setLocked(false);
        resetHost();
        host.users["ann"] = host.users["bob"] = {"secret", "0124", 7, false, false, true, {}};
        host.currentUser = "ann";
    }

    void cleanup()
    {
        delete window;
        qDeleteAll(dialogs());
    }

    void login_data()
    {
        QTest::addColumn<QString>("outcome");
        for (const char *way : {"drawn", "automatic"}) {
            const QString automatic = *way == 'd' ? "false" : "true";
            QTest::newRow(way) << QString("loginSuccessLog(ann,1,%1) ").arg(automatic) +
                                      localLogin("ann,secret,7", automatic) + " setValue(client_login_mode,1)";
            for (const char *inVain : {"logged in", "quits", "page gone", "fails"})
                QTest::addRow("%s, %s", way, inVain) << "";
        }
        QTest::newRow("automatic, user gone") << "messageAlert(Account ann not exist)";
        QTest::newRow("automatic, cloud login") << "";
        for (const char *why :
             {"seven days", "flag off", "no record", "other computer", "locked", "automatic, switches", "switched"})
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
        auto *page = new GestureLoginWt(nullptr);
        open(page);
        auto *box = child<QCheckBox>("autoLogin");
        QCOMPARE(box->isChecked(), is("automatic"));
        if (is("drawn")) {
            page->setUserName("ann");
            clock.restart();
            draw(page, "0124");
            QVERIFY(box->isChecked());
            click("autoLogin", QPoint(8, 12));
            QCOMPARE(deeds(), QString("verifyUserGesture(ann,0124)"));
        }
        if (is("switches"))
            LoginWorker::_instance().switchUser();
        if (is("fails"))
            LoginWorker::_instance().setLocked(true);
        deeds();
        host.loginSuccess = is("logged in");
        if (is("quits"))
            emit kelvra_contact::SystemMsg::_instance().signalPrepareQuitSystem();
        if (is("page gone"))
            delete window;
        if (is("user gone"))
            host.users.clear();
        const bool done = QTest::qWaitFor([] { return !host.calls.isEmpty(); }, outcome.isEmpty() ? 600 : 5000);
        QVERIFY(!done || clock.elapsed() > 450);
        QCOMPARE(deeds(), outcome);
    }

    void failures()
    {
        const auto failUpTo = [](int count) {
            while (LoginWorker::_instance().failedTimes() < count)
                LoginWorker::_instance().verifyPassword("ann", "bad");
        };
        open(new GestureLoginWt(nullptr));
        host.whileAlertIsOpen = [&] { delete window; };
        draw(window, "0367");
        QVERIFY(!window);

        open(new GestureLoginWt(nullptr));
        failUpTo(4);
        auto &hub = LoginSignals::_instance();
        connect(&hub, &LoginSignals::signalLoginEvent, window, [&] { delete window; });
        draw(window, "0367");
        QVERIFY(!window && deeds().endsWith("now failed 5 times)"));
        LoginWorker::_instance().setLocked(false);

        enterScreens();
        open(new LoginWt);
        showScreen(GestureLogin, {"bob"});
        showScreen(GestureLogin, {"ann"});
        const auto *shown = child<GestureLoginWt>({});
        const auto *error = shown->findChild<QLabel *>("errorLabel");
        connect(&hub, &LoginSignals::signalLockLoginByGesture, shown,
                [&] { host.record("signalLockLoginByGesture", {QString::number(cornerState(shown))}); });
        for (const int count : {2, 4, 5, 6}) {
            failUpTo(count - 1);
            showScreen(GestureLogin);
            const QString before = error->text();
            const QString label = QString("Failed:%1 times, Remaining:%2 times").arg(count).arg(5 - count);
            host.whileAlertIsOpen = [&] {
                QCOMPARE(cornerState(shown), int(GesturePoint::ErrorState));
                QCOMPARE(error->text(), before);
                QTRY_COMPARE(error->text(), count == 5 ? "" : label);
            };
            deeds();
            draw(window, "0367");
            const QString lock = "signalLoginEvent(0) signalLockLoginByGesture(1) updateLockInfo(true,180) "
                                 "lockUserLog(,180) ";
            const QString all = "verifyUserGesture(ann,0367) loginFailureLog(ann,1) %1messageAlert(gesture error, a "
                                "maximum of 5 failures are allowed, now failed %2 times)";
            QCOMPARE(deeds(), all.arg(count < 5 ? "" : lock).arg(count));
            QCOMPARE(shown->isVisible(), count < 5);
        }
        QVERIFY(child<NormalLoginWt>({})->isVisible());
    }

    void languageAndLink()
    {
        LoginWorker::_instance().verifyPassword("ann", "bad");
        open(new GestureLoginWt(nullptr));
        const Brackets brackets;
        QCOMPARE(text("label") + text("autoLogin") + text("errorLabel"),
                 QString("[Welcome to login][Automatic Logon][Failed:1 times, Remaining:4 times]"));
        QCOMPARE(text("userName") + text("pwdLogin"), QString("admin[Pwd Login]"));
        deeds();
        QTest::mouseClick(child("pwdLogin"), Qt::RightButton);
        QTest::mousePress(child("pwdLogin"), Qt::LeftButton);
        QCOMPARE(deeds(), QString());
        QTest::mouseRelease(child("pwdLogin"), Qt::LeftButton);
        QCOMPARE(deeds(), QString("signalLoginEvent(0)"));
    }

    void setGesture()
    {
        QElapsedTimer clock;
        for (const QString verb : {"add", "update"}) {
            host.users["ann"].gesture = verb == "add" ? "" : "0367";
            auto *dialog = new AddGesturePwdDlg(nullptr);
            open(dialog);
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
                QCOMPARE(text("prompt"), parts[1]);
                QTRY_COMPARE(text("prompt"), parts[2]);
                QCOMPARE(state, parts[3].toInt());
                QCOMPARE(deeds(), parts[4]);
                QCOMPARE(std::make_unique<Brackets>() ? text("prompt") : "", '[' + parts[2] + ']');
            }
            QVERIFY(!child<GesturePanel>({})->isEnabled());
            QTRY_COMPARE(accepted.size(), 1);
            QVERIFY(clock.elapsed() > 900);
        }
        open(new AddGesturePwdDlg(nullptr));
        host.whileAlertIsOpen = [&] { delete window; };
        draw(window, "036");
        QVERIFY(!window);
    }

    void accessDialogs()
    {
        auto &access = LoginAccess::_instance();
        open(new QWidget);
        const auto during = [this](const std::function<void(QWidget *)> &action) {
            QTimer::singleShot(0, this, [action] { action(QApplication::activeModalWidget()); });
        };
        QString before = "01258";
        const auto drawBoth = [&](QWidget *dialog) {
            draw(dialog, before);
            draw(dialog, "01258");
        };
        during(drawBoth);
        access.addCurUserGesture(window);
        during(drawBoth);
        access.addUserGesture(window, "bob");
        QCOMPARE(deeds(), QString("updateUserGesture(ann,01258) updateGestureLog(ann) "
                                  "updateUserGesture(bob,01258) updateGestureLog(bob)"));
        before = "0367";
        during(drawBoth);
        QVERIFY(access.gestureVerify(window));
        QCOMPARE(deeds(), QString("verifyUserGesture(ann,0367) verifyUserGesture(ann,01258)"));
        during([](QWidget *dialog) {
            draw(dialog, "0367");
            QCOMPARE(dialog->windowTitle() + QString::number(cornerState(dialog)), QString("Gesture Verify2"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QVERIFY(!access.gestureVerify(window) && LoginWorker::_instance().failedTimes() == 2);
        during([&](QWidget *) { delete window; });
        QVERIFY(!access.gestureVerify(window) && !window);
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
