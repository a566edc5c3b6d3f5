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

constexpr int padSize = 300;
const QPoint padPosition(100, 100);

QPoint centreOf(int dot)
{
    return QPoint(dot % 3, dot / 3) * 100 + QPoint(50, 50);
}

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

    void strokes()
    {
        if (isWindows)
            QSKIP(realPointer);
        // The press is a pixel left of the first place.
        const QVector<QPair<QVector<QPoint>, QString>> rows = {
            {{{60, 60}}, "0"},
            {{{50, 69}}, "0"},
            {{{70, 50}}, ""},
            {{{63, 65}}, "0"}, // truncated distance
            {{{50, 50}, {150, 50}}, "0"},
            {{{50, 50}, {151, 50}}, "01"},
            {{{50, 50}, {250, 90}}, "01"}, // 20 px beside
            {{{50, 50}, {250, 93}}, "0"},  // 21 px
            {{{50, 50}, {50, 200}, {50, 290}}, "036"},
            {{{50, 50}, {170, 50}, {20, 50}, {170, 50}}, "01"},
            {{{50, 50}, {-90, -90}, {390, 390}, {380, 380}}, "048"},
            // One dot for each move, that of the lower index first
            {{{250, 50}, {30, 50}, {29, 50}}, "20"},
            {{{50, 50}, {270, 50}}, "01"},
            {{{50, 50}, {270, 50}, {271, 50}}, "012"},
            {{{50, 50}, {170, 50}, {270, 50}, {130, 170}}, "0124"},
            {{{100, 100}, {150, 150}, {150, 290}}, ""}}; // the press is beside the dots
        for (const auto &[moves, expected] : rows) {
            newPad();
            stroke(moves);
            QVERIFY2(drawn.join('|') == expected, qPrintable(drawn.join('|') + " for " + expected));
        }
    }

    void everyPatternCanBeDrawn()
    {
        if (isWindows)
            QSKIP(realPointer);
        // From each dot to each other one, also over one that is taken
        for (const QString pattern : {"650487231", "738641205", "743521680", "136075428", "451827630", "256140837",
                                      "847015326", "578103462", "248530671", "584173026"}) {
            // Past each dot, back over it and on to the next, with a pointer that is seen every so many pixels
            for (const int step : {1, 10, 13, 40, 80}) {
                QPainterPath way(centreOf(pattern[0].digitValue()));
                for (const QChar dot : pattern) {
                    QLineF past(way.currentPosition(), centreOf(dot.digitValue()));
                    past.setLength(past.length() + 45);
                    way.lineTo(past.p2());
                    way.lineTo(centreOf(dot.digitValue()));
                }
                QVector<QPoint> stops;
                for (int length = 0; length < way.length(); length += step)
                    stops << way.pointAtPercent(way.percentAtLength(length)).toPoint();
                newPad();
                stroke(stops << way.currentPosition().toPoint());
                QCOMPARE(drawn, QStringList(pattern));
            }
        }
    }

    void oneGestureAfterTheOther()
    {
        if (isWindows)
            QSKIP(realPointer);
        newPad();
        press({50, 50});
        release(); // a click leaves the pad ready for a press beside the dots
        stroke({{100, 100}, {150, 150}});
        QTRY_COMPARE(look(), QString("----------"));
        stroke(topRow);
        stroke({{50, 250}, {170, 250}}); // while the last one is on show
        QCOMPARE(look(), QString("bbb------b"));
        QTRY_COMPARE(look(), QString("----------"));
        stroke({{100, 100}, {150, 150}, {150, 290}}); // the press is forgotten as well
        connect(pad, &GesturePanel::signalGesturePwd, pad, &GesturePanel::setError);
        stroke(topRow);
        QCOMPARE(look(), QString("rrr------r"));
        QTRY_COMPARE(look(), QString("----------"));
        stroke(topRow, false);
        QCOMPARE(look(), QString("bbb------b"));
        QCOMPARE(drawn, QStringList({"4", "012", "012"}));
    }

    void trailEndsAtThePointer()
    {
        if (isWindows)
            QSKIP(realPointer);
        newPad();
        stroke({{50, 50}, {170, 50}, {150, 170}, {150, 200}}, false);
        QCOMPARE(hue({150, 190}), QChar('b'));
        release(); // beside the dots
        QCOMPARE(hue({150, 190}), QChar('-'));
        QCursor::setPos(pad->mapToGlobal({250, 150}));
        QCOMPARE(hue({200, 150}), QChar('-'));
        QCursor::setPos(pad->mapToGlobal({50, 50}));
        QCOMPARE(hue({100, 100}), QChar('b'));
    }

    void picturesOfDotsAtRest()
    {
        newPad();
        for (const int style : {1, 0, 7}) {
            pad->setPointStyle(style);
            for (int dot = 0; dot < gestureDots; ++dot)
                QCOMPARE(pad->grab().toImage().pixelColor(centreOf(dot) + QPoint(0, 10)).name(),
                         QString(style == 0 ? "#192741" : "#0e1623"));
        }
    }

    void receiverMayDestroyThePanelOrWait()
    {
        if (isWindows)
            QSKIP(realPointer);
        newPad();
        connect(pad, &GesturePanel::signalGesturePwd, this, [this] { delete pad; });
        stroke(topRow);
        QVERIFY(!pad);
        newPad();
        connect(pad, &GesturePanel::signalGesturePwd, this, [this] {
            if (drawn.size() > 1)
                return;
            pad->setError();
            QMouseEvent move(QEvent::MouseMove, {250, 170}, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(pad, &move);
            QTest::mouseRelease(pad.data(), Qt::LeftButton, {}, {250, 170});
            QTest::qWait(600); // an alert, open for longer than a gesture is on show
        });
        stroke(topRow);
        QCOMPARE(drawn, QStringList("012"));
        QCOMPARE(look(), QString("rrr------r"));
        QTRY_COMPARE(look(), QString("----------"));
    }

    void strokePaintsAlongItsLinesOnly()
    {
        if (isWindows)
            QSKIP(realPointer);
        newPad();
        stroke({{50, 50}}, false);
        pad->installEventFilter(this);
        for (const QPoint &pointer : QVector<QPoint>{
                 {90, 60}, {170, 50}, {270, 50}, {200, 110}, {130, 170}, {270, 151}, {130, 270}, {20, 20}}) {
            painted = QRegion();
            moveTo(pointer);
            int pixels = 0;
            for (const QRect &rect : painted)
                pixels += rect.width() * rect.height();
            // Neither the box of a slanting line nor what is done with, as the line between the first two dots soon is
            QVERIFY2(pixels < padSize * padSize / 4, qPrintable(QString::number(pixels)));
            QCOMPARE(painted.contains(QPoint(100, 50)), pointer == QPoint(170, 50));
            // On the screen nothing is left of the lines before, and nothing of the new ones is missing.
            QCOMPARE(window->screen()->grabWindow(window->winId()).toImage(), window->grab().toImage());
        }
        release();
        QCOMPARE(drawn, QStringList("012457"));
    }

    void login()
    {
        for (const QString row :
             {"drawn", "drawn, logged in", "drawn, quits", "drawn, page gone", "drawn, fails", "automatic",
              "automatic, logged in", "automatic, quits", "automatic, page gone", "automatic, fails",
              "automatic, user gone", "automatic, cloud login", "seven days", "flag off", "no record", "other computer",
              "locked", "automatic, switches", "switched"}) {
            const auto is = [row](const char *condition) { return row.contains(condition); };
            cleanup();
            init();
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
            QVERIFY2(box->isChecked() == is("automatic"), qPrintable(row));
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
            QString outcome = is("user gone") ? "messageAlert(Account ann not exist)" : "";
            if (row == "drawn" || row == "automatic") {
                const QString automatic = is("drawn") ? "false" : "true";
                outcome = "loginSuccessLog(ann,1," + automatic + ") " + localLogin("ann,secret,7", automatic) +
                          " setValue(client_login_mode,1)";
            }
            const bool done = QTest::qWaitFor([] { return !host.calls.isEmpty(); }, outcome.isEmpty() ? 600 : 5000);
            QVERIFY(!done || clock.elapsed() > 450);
            QCOMPARE(row + ": " + deeds(), row + ": " + outcome);
        }
    }

    void failures()
    {
        auto &hub = LoginSignals::_instance();
        const auto failUpTo = [](int count) {
            while (LoginWorker::_instance().failedTimes() < count)
                LoginWorker::_instance().verifyPassword("ann", "bad");
        };
        for (const int count : {1, 5}) { // the page goes with its alert, or with what the fifth failure leads to
            open(new GestureLoginWt(nullptr));
            failUpTo(count - 1);
            host.whileAlertIsOpen = [&] { delete window; };
            connect(&hub, &LoginSignals::signalLoginEvent, window, [&] { delete window; });
            draw(window, "0367");
            QVERIFY(!window && deeds().endsWith(QString("now failed %1 times)").arg(count)));
        }
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

    void setGesture()
    {
        const QString first = "First input gesture";
        const QString second = "Second input gesture";
        for (const QString verb : {"add", "update"}) {
            // What is drawn, the prompt at once and later, what is done
            const QVector<QStringList> steps{
                {"012", "Too simple gesture:at least 4 points", first,
                 "messageAlert(The gesture password is too simple,you should connect at least 4 points)"},
                {"0124", first, second, ""},
                {"012", second, first, "messageAlert(The gesture passwords entered twice are inconsistent)"},
                {"0125", first, second, ""},
                {"0125", second, first, "updateUserGesture(ann,0125) messageAlert(Failed to %1 gesture password)"},
                {"0124", first, second, ""},
                {"0124", second, "Successfully set gesture password", "updateUserGesture(ann,0124) %1GestureLog(ann)"}};
            host.users["ann"].gesture = verb == "add" ? "" : "0367";
            auto *dialog = new AddGesturePwdDlg(nullptr);
            open(dialog);
            const QSignalSpy accepted(dialog, &QDialog::accepted);
            QElapsedTimer clock;
            for (const QStringList &step : steps) {
                clock.start();
                host.gestureUpdatesSucceed = step[0] == "0124";
                draw(dialog, step[0]);
                QCOMPARE(text("prompt"), step[1]);
                QTRY_COMPARE(text("prompt"), step[2]);
                QCOMPARE(deeds(), QString(step[3]).replace("%1", verb));
                QCOMPARE(std::make_unique<Brackets>() ? text("prompt") : "", '[' + step[2] + ']');
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

    void refusedSwitchesAreNotLogged()
    {
        auto &access = LoginAccess::_instance();
        for (const bool ok : {true, false}) {
            host.currentUser = ok ? "ann" : "nobody";
            host.gestureUpdatesSucceed = ok;
            host.calls.clear();
            QVERIFY(access.isCurUserConfigureGesture() == ok && access.isCurUserAutoLogin() == ok);
            QVERIFY(access.openCurUserAutoLogin() == ok && access.cancelCurUserAutoLogin() == ok);
            QCOMPARE(access.deleteCurUserGesture(), ok);
            QCOMPARE(deeds(), QString(ok ? "userAutoLoginCtrl(ann,true) openAutoLoginLog(ann) "
                                           "userAutoLoginCtrl(ann,false) cancelAutoLoginLog(ann) "
                                           "deleteUserGesture(ann) deleteGestureLog(ann)"
                                         : "userAutoLoginCtrl(nobody,true) userAutoLoginCtrl(nobody,false) "
                                           "deleteUserGesture(nobody)"));
        }
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }

private:
    /** A pad with room for a pointer that leaves it. */
    void newPad()
    {
        auto *ground = new QWidget;
        ground->setStyleSheet("QWidget { background-color: #18233a; }");
        ground->resize(500, 500);
        pad = new GesturePanel(ground);
        pad->setGeometry(QRect(padPosition, QSize(padSize, padSize)));
        connect(pad, &GesturePanel::signalGesturePwd, this, [this](const QString &pwd) { drawn.append(pwd); });
        drawn.clear();
        open(ground);
    }

    void press(const QPoint &at)
    {
        moveTo(at);
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, padPosition + at);
    }

    void moveTo(const QPoint &at)
    {
        // The stand-in screen sends the move that a cursor in a new place brings.
        QCursor::setPos(window->mapToGlobal(padPosition + at));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(); // for what is to be painted now
    }

    void release()
    {
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, window->mapFromGlobal(QCursor::pos()));
    }

    void stroke(const QVector<QPoint> &moves, bool isReleased = true)
    {
        press(moves.first() - QPoint(1, 0));
        for (const QPoint &move : moves)
            moveTo(move);
        if (isReleased)
            release();
    }

    /** The colour there: b(lue), r(ed) or another. */
    QChar hue(const QPoint &place) const
    {
        const QColor colour = window->grab().toImage().pixelColor(padPosition + place);
        const int blue = colour.blue() - colour.red();
        return blue > 60 ? 'b' : blue < -40 ? 'r' : '-';
    }

    /** The hues of the nine dots and of the line between the first two. */
    QString look() const
    {
        QString hues;
        for (int dot = 0; dot < gestureDots; ++dot)
            hues += hue(centreOf(dot) + QPoint(3, 3));
        return hues + hue({100, 50});
    }

    const QVector<QPoint> topRow{{50, 50}, {170, 50}, {270, 50}};
    QPointer<GesturePanel> pad;
    QStringList drawn;
    QRegion painted;
};

QTEST_MAIN(TestGesture)

#include "tst_gesture.moc"
