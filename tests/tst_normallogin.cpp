#include "TestTools.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginWorker.h"
#include "login/local/NormalLoginWt.h"
#include "login/local/UserNameWt.h"
#include "login/local/UserPwdWt.h"

using namespace kelvra_login;
using kelvra_contact::SystemMsg;

namespace {

const QString placeholders(16, QChar(1));
const QString lockDeeds = "updateLockInfo(true,180) lockUserLog(alice,%1)";
constexpr int idleMs = 600; // longer than an automatic login waits

/** What a login of alice does. */
QString loginDeeds(const QString &autoLogin)
{
    return "verifyUserPassword(alice,secret) loginSuccessLog(alice,0," + autoLogin + ") " +
           localLogin("alice,secret,0", autoLogin) + " setValue(client_login_mode,0)";
}

// The colours of a field's frame, of the ground that all within shares, and of the text.
const QMap<QString, QString> looks = {{"#323e58 #0e1623 #858fa2", "plain"},
                                      {"#2c7dce #0e1623 #858fa2", "dimly lit"},
                                      {"#2c7dce #0e1623 #ccd3dd", "lit"},
                                      {"#323e58 #253141 #858fa2", "disabled"}};

QString pictureName(const QIcon &shown)
{
    for (const QString name :
         {"login_images/images/user_n", "login_images/images/user_h", "login_images/images/password_n",
          "login_images/images/password_h", "images/images/show_pwd_n", "images/images/show_pwd_h",
          "images/images/hide_pwd_n", "images/images/hide_pwd_h"}) {
        const QPixmap picture(":/" + name + ".png");
        if (!picture.isNull() && picture.toImage() == shown.pixmap(picture.size()).toImage())
            return name.section('/', -1);
    }
    return "?";
}

} // namespace

/** The local login form, and the two fields that it shares with other pages. */
class TestNormalLogin : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        LoginWorker::_instance().setLocked(false);
        resetHost();
        host.users["alice"].password = "secret";
        host.users["draw"].gesture = "0124";
        host.lastLocalUser = "alice";
    }

    void cleanup()
    {
        delete window;
        LoginWorker::_instance().login(kelvra_worker::LocalUser, {}, true); // automatic logins are allowed again
        qDeleteAll(dialogs());
    }

    void rememberedLogin_data()
    {
        QTest::addColumn<QString>("outcome"); // password put in, box checked, logged in
        const auto rows = [](const QString &outcome, const std::vector<const char *> &names) {
            for (const char *name : names)
                QTest::newRow(name) << outcome;
        };
        rows("password box login", {"six days", "typed, switched"});
        rows("password box", {"logged in", "typed, logged in", "quits"});
        rows("password", {"locked", "typed, locked"});
        rows("", {"seven days", "typed, seven days", "switched"});
    }

    void rememberedLogin()
    {
        QFETCH(QString, outcome);
        const bool isTyped = QByteArray(QTest::currentDataTag()).startsWith("typed");
        remember();
        if (isTyped)
            host.lastLocalUser.clear();
        QElapsedTimer clock;
        clock.start();
        newPage();
        if (isTyped) {
            QTest::keyClicks(nameEdit(), "b");
            QTest::qWait(200); // the pause counts from the last edit
            QGuiApplication::clipboard()->setText("al ice");
            QTest::keyClick(nameEdit(), Qt::Key_V, Qt::ControlModifier);
            clock.start();
            QTRY_VERIFY(host.calls.contains("getUserLoginRecord(alice)"));
            QVERIFY(clock.restart() > 1400);
        }
        if (QTest::currentDataTag() == QByteArray("quits"))
            quit();
        QCOMPARE(nameEdit()->text(), QString("alice"));
        QCOMPARE(pwdEdit()->text(), outcome.contains("password") ? placeholders : QString());
        QCOMPARE(autoLoginBox()->isChecked(), outcome.contains("box"));
        const bool logsIn = outcome.contains("login");
        const auto isIn = [] { return host.calls.contains("signalLoginSuccess()"); };
        QCOMPARE(QTest::qWaitFor(isIn, logsIn ? 5000 : idleMs), logsIn);
        QVERIFY(clock.elapsed() > 300);
        QCOMPARE(deeds(), logsIn ? loginDeeds("true") : QString());
        for (const QTimer *timer : window->findChildren<QTimer *>())
            QVERIFY(host.locked || !timer->isActive());
        for (const QString &kept : {QString(), QString("x")}) {
            QTest::keyClicks(nameEdit(), "x");
            QCOMPARE(pwdEdit()->text(), kept);
            QTest::keyClicks(pwdEdit(), "x");
        }
    }

    void typingKeepsARememberedLoginAway_data()
    {
        QTest::addColumn<QString>("lastUser");
        QTest::addColumn<QString>("nameKeys");
        QTest::addColumn<QString>("passwordKeys");
        QTest::newRow("name edited again") << "alice"
                                           << "x\b"
                                           << "ab";
        QTest::newRow("remembered password typed over") << "alice"
                                                        << ""
                                                        << "xab"; // x clears the field
        QTest::newRow("password typed after the name") << ""
                                                       << "alice"
                                                       << "ab";
    }

    void typingKeepsARememberedLoginAway()
    {
        QFETCH(QString, lastUser);
        QFETCH(QString, nameKeys);
        QFETCH(QString, passwordKeys);
        remember();
        host.lastLocalUser = lastUser;
        window = new NormalLoginWt(nullptr);
        window->show();
        QTest::keyClicks(nameEdit(), nameKeys);
        QTest::keyClicks(pwdEdit(), passwordKeys);
        deeds();
        const auto timers = window->findChildren<QTimer *>();
        const auto isActive = [](const QTimer *timer) { return timer->isActive(); };
        QTRY_VERIFY(std::none_of(timers.begin(), timers.end(), isActive));
        QCOMPARE(deedsSoon(), QString());
        QCOMPARE(nameEdit()->text() + ' ' + pwdEdit()->text(), QString("alice ab"));
    }

    void clicksAndKeys()
    {
        newPage();
        // What the whole click or key did, and the tips it left at the name and at the password.
        const auto pressed = [this](const QString &by, const QString &name, const QString &password) {
            QTest::mouseClick(window, Qt::RightButton); // takes the last tip away
            const QString done = submit(by, name, password);
            return done + tipAt(nameEdit()) + '|' + tipAt(pwdEdit());
        };
        const QString emptyName = "User name can not be empty or be all blank!|";
        for (const char *by : {"localLoginBt", "return", "enter"}) {
            QCOMPARE(pressed(by, "   ", "secret"), emptyName);
            QCOMPARE(pressed(by, "alice", ""), QString("|Password can not be empty!"));
            QCOMPARE(pressed(by, "alice", "secret"), loginDeeds("false") + '|');
        }
        holdEnter(pwdEdit());
        QCOMPARE(deeds(), QString());
        pressed("localLoginBt", "alice", "");
        QTest::mouseMove(child("localLoginBt"));
        QTRY_VERIFY(child("localLoginBt")->underMouse());
        QTest::mouseMove(child("label"));
        deedsSoon();
        QCOMPARE(tipAt(pwdEdit()), QString("Password can not be empty!"));
        QTest::keyClick(QApplication::focusWidget(), 'x');
        QCOMPARE(pwdEdit()->text(), QString("x"));
        QTRY_VERIFY(!QToolTip::isVisible()); // it lies over what is typed
        click("localAutoLogin", {8, 14});
        QCOMPARE(submit("localLoginBt", "alice", "secret"), loginDeeds("true"));
        QCOMPARE(pressed("forgetPwd", "", ""), emptyName);
        QCOMPARE(pressed("forgetPwd", "root", ""), QString("signalLoginEvent(5,root)|"));
        QCOMPARE(pressed("gesturePwd", "", ""), emptyName);
        QCOMPARE(pressed("gesturePwd", "draw", ""), QString("signalLoginEvent(6,draw)|"));
        QCOMPARE(pressed("createUser", "", ""), QString("signalLoginEvent(2)|"));
        for (const char *link : {"forgetPwd", "gesturePwd", "createUser"})
            QTest::mouseClick(child(link), Qt::RightButton);
        QCOMPARE(deeds() + tipAt(nameEdit()), QString());
    }

    void linkRow()
    {
        const auto shownAfter = [this](const char *keys) {
            QTest::keySequence(nameEdit(), QKeySequence(keys));
            const QString links = isShown("forgetPwd") && isShown("gesturePwd") ? "forgotten, gesture" : "";
            return links + (isShown("localAutoLogin") ? ", box" : "") + (isShown("createUser") ? "creation" : "");
        };
        newPage();
        QCOMPARE(shownAfter(""), QString("forgotten, gesture, box"));
        QCOMPARE(shownAfter("Ctrl+A, Del"), QString("creation"));
        QCOMPARE(shownAfter("X"), QString("forgotten, gesture, box"));
        host.users["root"].superUser = false;
        QCOMPARE(shownAfter("X"), QString("creation"));
    }

    void fifthFailureLocks()
    {
        for (const int stored : {180, -1, 0, 77}) { // as told, cannot be read, no lock, somebody else's
            init();
            newPage();
            host.updatesSucceed = stored == 180;
            host.lockKnown = stored >= 0;
            host.locked = stored == 77;
            host.lockSeconds = stored;
            const QString seconds = QString::number(stored > 0 ? stored : 180);
            for (const QString &lock : {QString(), QString(), QString(), QString(), lockDeeds.arg(seconds) + ' '}) {
                const QString done = submit("localLoginBt", "alice", "bad").section("messageAlert", 0, 0);
                QCOMPARE(done, "verifyUserPassword(alice,bad) loginFailureLog(alice,0) " + lock);
            }
            QTRY_COMPARE(text("localLoginBt"), "Locked, Wait:" + seconds + "Sec.");
            QVERIFY(isLocked());
        }
        QVERIFY(host.alerts.last().first == "title 1" && host.alerts.last().second.endsWith("now failed 5 times"));
        QCOMPARE(submit("forgetPwd", "root"), QString("signalLoginEvent(5,root)"));
        QCOMPARE(submit("createUser", ""), QString("signalLoginEvent(2)"));
    }

    void lockRunsOut()
    {
        auto &worker = LoginWorker::_instance();
        worker.verifyPassword("alice", "bad");
        host.locked = true;
        host.lockSeconds = 1;
        QElapsedTimer clock;
        clock.start();
        newPage();
        QTRY_COMPARE(text("localLoginBt"), QString("Locked, Wait:0Sec."));
        QCOMPARE(quit(), QString("updateLockInfo(false,300)"));
        QVERIFY(clock.elapsed() >= 1000 && isLocked());
        QTRY_COMPARE(text("localLoginBt"), QString("Login"));
        QVERIFY(clock.elapsed() >= 2000);
        QCOMPARE(quit(), QString("updateLockInfo(false,0)"));
        QVERIFY(submit("localLoginBt", "alice", "bad").endsWith("now failed 1 times)"));
        worker.setLocked(true); // by another form
        QCOMPARE(quit(), QString("updateLockInfo(true,180)"));
        QCOMPARE(submit("localLoginBt", "alice", "secret"), QString());
        QTRY_COMPARE(text("localLoginBt"), QString("Locked, Wait:179Sec."));
        QCOMPARE(quit(), QString("updateLockInfo(true,179)"));
    }

    void languageChange()
    {
        remember();
        host.loginSuccess = true;
        newPage();
        autoLoginBox()->setChecked(true);
        {
            const Brackets brackets;
            QCOMPARE(host.calls.first(), QString("retranslate()"));
            QCOMPARE(text("localLoginBt") + pwdEdit()->placeholderText(), QString("[Login][password]"));
            QCOMPARE(nameEdit()->text() + pwdEdit()->text(), "alice" + placeholders);
            QVERIFY(autoLoginBox()->isChecked());
        }
        QTRY_COMPARE(text("localLoginBt"), QString("Login"));
    }

    void cloudTab()
    {
        newPage();
        QVERIFY(!isShown("userTypeWt"));
        host.customization.cloudLoginEnabled = true;
        newPage();
        QVERIFY(isShown("userTypeWt"));
        // The page after a click on the tab of that name, or after the cloud event of that number.
        for (const QString row : {"localUserTab: local localPwdLoginPage", "saasUserTab: cloud saasPwdLoginPage",
                                  "2: cloud saasScanQRCodeLoginPage", "localUserTab: local localPwdLoginPage",
                                  "1: cloud saasVerificationCodeLoginPage", "localUserTab: local localPwdLoginPage",
                                  "saasUserTab: cloud saasVerificationCodeLoginPage",
                                  "7: cloud saasVerificationCodeLoginPage", "0: cloud saasPwdLoginPage"}) {
            const QString step = row.section(": ", 0, 0);
            if (step.endsWith("Tab"))
                click(step);
            else
                emit LoginSignals::_instance().signalSaasLoginEvent(SaasLoginEvent(step.toInt()), {});
            QCOMPARE(step + ": " + shownPage(), row);
        }
        host.calls.clear();
        QTest::keyClick(window, Qt::Key_Return); // the login button is not in sight
        QVERIFY(deeds().isEmpty() && !QToolTip::isVisible());

        remember();
        host.lastUserType = kelvra_worker::CloudUser;
        host.recentAccount = "139";
        newPage();
        QVERIFY(shownPage() == "cloud saasPwdLoginPage" && autoLoginBox()->isChecked());
        QCOMPARE(deedsSoon(), QString()); // a remembered local login stays behind the cloud tab
        LoginWorker::_instance().switchUser();
        newPage();
        QCOMPARE(host.autoLogins.size(), 1);
        QCOMPARE(host.autoLogins.first().account, QString("139"));
    }

    void pageDestroyed()
    {
        for (const char *by : {"localLoginBt", "return", "forgetPwd", "gesturePwd"}) {
            newPage();
            host.whileAlertIsOpen = [this] { delete window; };
            submit(by, "alice", "bad");
            QVERIFY2(!window, by);
        }
        remember();
        newPage();
        QTest::keySequence(nameEdit(), QKeySequence("X, Backspace"));
        emit LoginSignals::_instance().signalLockLoginByGesture();
        QCOMPARE(deeds(), lockDeeds.arg(180));
        delete window; // while it waits for three things
        emit LoginSignals::_instance().signalSaasLoginEvent(SaasPwdLogin, {});
        deeds();
        QCOMPARE(deedsSoon(), QString());
    }

    void fieldStates()
    {
        if (isWindows)
            QSKIP(realPointer);
        for (const QString row :
             {": lit user_h", "3 -1 1 in out 0: lit user_h", "tab: plain user_n", "tab in 3 -1: dimly lit user_h",
              "tab in out: plain user_n", "disable 0 1 2 in: disabled user_n"})
            QCOMPARE(look<UserNameWt>("localUserWt", row), row);
        for (const QString row : {": plain password_n hide_pwd_n", "in 3 -1: lit password_h hide_pwd_h",
                                  "in out: plain password_n hide_pwd_n",
                                  "tab 3 -1 1 in out 0: lit password_h hide_pwd_h", "eye: plain password_n show_pwd_h",
                                  "eye 0: plain password_n show_pwd_n", "eye 0 eye: plain password_n hide_pwd_h"})
            QCOMPARE(look<UserPwdWt>("localPwdWt", row), row);
    }

    void typedAndPasted()
    {
        newFields();
        QTest::keyClicks(nameEdit(), " a b ");
        QCOMPARE(nameEdit()->text(), QString("ab"));
        name()->setText(" padded ");
        QCOMPARE(name()->text(), QString("padded"));
        QTest::keyClicks(pwdEdit(), QString(20, 'x'));
        QCOMPARE(pwd()->text(), QString(16, 'x'));
        pwd()->setText("");
        QTest::keyClicks(pwdEdit(), " a b ");
        QTest::keySequence(pwdEdit(), QKeySequence("Left, Space, Home, Space"));
        QCOMPARE(pwdEdit()->text(), QString("a b"));

        // The text after pasting, with the number of edits and of changes that are reported.
        const auto pasted = [this](const QString &before, const QString &clipboard, const char *keys = "Ctrl+V") {
            name()->setText(before);
            QGuiApplication::clipboard()->setText(clipboard);
            const QSignalSpy edits(nameEdit(), &QLineEdit::textEdited);
            const QSignalSpy changes(nameEdit(), &QLineEdit::textChanged);
            QTest::keySequence(nameEdit(), QKeySequence(keys));
            return QString("%1 %2 %3").arg(nameEdit()->text()).arg(edits.count()).arg(changes.count());
        };
        QCOMPARE(pasted("old", "\tn e w\n"), QString("new 1 1"));
        QCOMPARE(pasted("old", "\tn e w\n", "Shift+Ins"), QString("new 1 1"));
        QCOMPARE(pasted("alice", " al ice\n"), QString("alice 0 0"));
        QCOMPARE(pasted("old", " \n"), QString(" 1 1"));
        QCOMPARE(pasted("old", QString(70, 'y')), QString(64, 'y') + " 1 1");
    }

    void enteredNameLosesItsBlanks_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("stands");
        QTest::newRow("no-break space") << "keys" << QStringLiteral("a\u00a0b") << "ab";
        QTest::newRow("ideographic space")
            << "keys" << QStringLiteral("\u5f20\u3000\u4e09") << QStringLiteral("\u5f20\u4e09");
        QTest::newRow("next line, em space") << "keys" << QStringLiteral("a\u0085b\u2003c") << "abc";
        QTest::newRow("phone number in groups") << "keys" << QStringLiteral("138 1234\u00a05678\r\n") << "13812345678";
        QTest::newRow("by the menu") << "menu"
                                     << "a b"
                                     << "ab";
        QTest::newRow("by an input method") << "input method" << QStringLiteral("a\u3000b") << "ab";
    }

    void enteredNameLosesItsBlanks()
    {
        QFETCH(QString, way);
        QFETCH(QString, entered);
        newFields();
        name()->setText("old");
        nameEdit()->selectAll();
        QGuiApplication::clipboard()->setText(entered);
        if (way == "keys") {
            QTest::keySequence(nameEdit(), QKeySequence::Paste);
        } else if (way == "menu") {
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), nameEdit()->mapToGlobal(QPoint(5, 5)));
            qApp->notify(nameEdit(), &event);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_P);
        } else {
            QInputMethodEvent event;
            event.setCommitString(entered);
            QCoreApplication::sendEvent(nameEdit(), &event);
        }
        QTEST(nameEdit()->text(), "stands");
    }

    void passwordStaysInItsField()
    {
        newFields();
        QGuiApplication::clipboard()->setText("other");
        QTest::keyClicks(pwdEdit(), "secret");
        QVERIFY(pwdEdit()->displayText() != "secret");
        QTest::mouseClick(eye(), Qt::LeftButton);
        QCOMPARE(pwdEdit()->displayText(), QString("secret"));
        for (const char *keys : {"Ctrl+C", "Ctrl+X", "Ctrl+V", "Ctrl+Ins", "Shift+Del", "Shift+Ins"}) {
            pwdEdit()->selectAll();
            QTest::keySequence(pwdEdit(), QKeySequence(keys));
            pwdEdit()->home(false);
            QTest::keySequence(pwdEdit(), QKeySequence(keys));
            QCOMPARE(pwd()->text() + ' ' + QGuiApplication::clipboard()->text(), QString("secret other"));
        }
        for (int toggles = 0; toggles < 3; ++toggles, eye()->click()) {
            QVERIFY(!pwdEdit()->testAttribute(Qt::WA_InputMethodEnabled));
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), pwdEdit()->mapToGlobal(QPoint(5, 5)));
            qApp->notify(pwdEdit(), &event);
            QVERIFY(!QApplication::activePopupWidget() && window->findChildren<QMenu *>().isEmpty());
        }
        QCOMPARE(pwdEdit()->echoMode(), QLineEdit::Password);
    }

    void erasedPasswordDoesNotComeBack_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<bool>("remembered");
        QTest::addColumn<QKeySequence>("erasure");
        QTest::newRow("character by character") << "ab" << false << QKeySequence("Backspace, Backspace");
        QTest::newRow("as a whole") << "secret" << false << QKeySequence("Ctrl+A, Del");
        QTest::newRow("retyped") << "secret" << false << QKeySequence("Ctrl+A, x, Backspace");
        QTest::newRow("remembered") << "stored" << true << QKeySequence("Ctrl+A, x, Backspace");
    }

    void erasedPasswordDoesNotComeBack()
    {
        QFETCH(const QString, password);
        QFETCH(const bool, remembered);
        QFETCH(const QKeySequence, erasure);
        newFields();
        remembered ? pwd()->setPassword(password, true) : QTest::keyClicks(pwdEdit(), password);
        QTest::keySequence(pwdEdit(), erasure);
        QTest::mouseClick(eye(), Qt::LeftButton);
        for (const char *keys : {"Ctrl+Z", "Ctrl+Shift+Z"}) {
            QTest::keySequence(pwdEdit(), QKeySequence(keys));
            QCOMPARE(pwdEdit()->text(), QString());
        }
        pwdEdit()->undo(); // as a program may
        QCOMPARE(pwdEdit()->text(), QString());
    }

    void undoLeavesATypedPassword()
    {
        newFields();
        QTest::keyClicks(pwdEdit(), "secret");
        QTest::keySequence(pwdEdit(), QKeySequence::Undo);
        QCOMPARE(pwd()->text(), QString("secret"));
    }

    void rememberedPassword()
    {
        newFields();
        // What is shown, what it stands for, what is kept of it, and whether the eye is there.
        const auto shown = [this] {
            return pwdEdit()->text() + ' ' + pwd()->text() + ' ' + pwdEdit()->property("pwd").toString() +
                   (eye()->isVisible() ? " eye" : "");
        };
        const auto after = [&](Qt::Key key, const QString &text, Qt::KeyboardModifiers modifiers = {}) {
            pwd()->setPassword("stored", true);
            QTest::sendKeyEvent(QTest::Click, pwdEdit(), key, text, modifiers);
            return shown();
        };
        const QString kept = QString(16, QChar(1)) + " stored stored";
        const QString cleared = "   eye";
        eye()->click();
        QCOMPARE(after(Qt::Key_Left, ""), kept);
        QVERIFY(!pwdEdit()->displayText().trimmed().isEmpty());
        QCOMPARE(after(Qt::Key_C, "\x03", Qt::ControlModifier), kept);
        QCOMPARE(after(Qt::Key_Space, " "), cleared);
        QCOMPARE(after(Qt::Key_Backspace, ""), cleared);
        QCOMPARE(after(Qt::Key_At, "@", Qt::ControlModifier | Qt::AltModifier), cleared); // AltGr
        QCOMPARE(after(Qt::Key_X, "x"), cleared);
        QTest::keyClicks(pwdEdit(), "new");
        QCOMPARE(shown(), QString("new new  eye"));
        pwd()->setPassword("stored", true);
        pwdEdit()->selectAll();
        QTest::keyClicks(pwdEdit(), "x");
        QVERIFY(pwd()->text() == "x" && eye()->isVisible());
    }

private:
    // A remembered login of alice, but for what the row is about.
    static void remember()
    {
        const QString row = QTest::currentDataTag();
        host.rememberUser("alice", "secret", row.contains("seven") ? 7 : 6);
        host.loginSuccess = row.contains("logged in");
        host.locked = row.contains("locked");
        host.lockSeconds = 100;
        if (row.contains("switched"))
            LoginWorker::_instance().switchUser();
    }

    void newPage() { open(new NormalLoginWt(nullptr)); }

    // With empty fields, the first of which has the focus.
    void newFields()
    {
        host.lastLocalUser.clear();
        newPage();
        QTest::mouseMove(child("label"));
    }

    UserNameWt *name() const { return child<UserNameWt>("localUserWt"); }
    UserPwdWt *pwd() const { return child<UserPwdWt>("localPwdWt"); }
    QLineEdit *nameEdit() const { return edit("localUserWt"); }
    QLineEdit *pwdEdit() const { return edit("localPwdWt"); }
    QToolButton *eye() const { return pwdEdit()->findChild<QToolButton *>(); }
    QCheckBox *autoLoginBox() const { return child<QCheckBox>("localAutoLogin"); }

    QString shownPage() const
    {
        return QString(child<QPushButton>("localUserTab")->isChecked() ? "local " : "") +
               (child<QPushButton>("saasUserTab")->isChecked() ? "cloud " : "") +
               child<QStackedWidget>("stackedWidget")->currentWidget()->objectName();
    }

    // What a login by key, or a click on the button or link of that name, does with the form filled in.
    QString submit(const QString &by, const QString &name, const QString &password = {})
    {
        nameEdit()->setText(name);
        pwdEdit()->setText(password);
        if (by == "return")
            QTest::keyClick(pwdEdit(), Qt::Key_Return);
        else if (by == "enter")
            QTest::keyClick(nameEdit(), Qt::Key_Enter);
        else
            QTest::mousePress(child(by), Qt::LeftButton);
        if (window && child(by)) // an alert may have outlived it
            QTest::mouseRelease(child(by), Qt::LeftButton);
        return deeds();
    }

    // What is done by the time an automatic login would be.
    static QString deedsSoon()
    {
        QTest::qWait(idleMs);
        return deeds();
    }

    // What a client that quits does to the page.
    static QString quit()
    {
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        return deeds();
    }

    // Nothing that logs in does anything.
    bool isLocked()
    {
        deeds();
        QString done;
        for (const char *by : {"localLoginBt", "return", "enter", "gesturePwd"})
            done += submit(by, "draw", "bad") + submit(by, "");
        return done.isEmpty() && !QToolTip::isVisible();
    }

    // The row with the look of a fresh field after its steps: states that are set, and what else happens in between.
    template <typename Field>
    QString look(const QString &fieldName, const QString &row)
    {
        newFields();
        auto *field = child<Field>(fieldName);
        const QMap<QString, std::function<void()>> others{{"tab", [&] { QTest::keyClick(nameEdit(), Qt::Key_Tab); }},
                                                          {"in", [&] { QTest::mouseMove(field, QPoint(3, 3)); }},
                                                          {"out", [&] { QTest::mouseMove(child("label")); }},
                                                          {"disable", [&] { name()->setFieldDisabled(); }},
                                                          {"eye", [&] { eye()->click(); }}};
        const QString steps = row.section(':', 0, 0);
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts))
            others.value(step, [&] { field->setState(step.toInt()); })();
        const QImage image = field->grab().toImage();
        const auto *icon = field->template findChild<QLabel *>();
        QStringList grounds;
        for (const QPoint &at : {QPoint(4, 4), icon->pos(), field->lineEdit()->pos()})
            grounds << image.pixelColor(at).name();
        grounds.removeDuplicates();
        const QString colours = image.pixelColor(0, 9).name() + ' ' + grounds.join(' ') + ' ' +
                                field->lineEdit()->palette().color(QPalette::Text).name();
        const QString eyePicture = std::is_same_v<Field, UserPwdWt> ? ' ' + pictureName(eye()->icon()) : QString();
        return steps + ": " + looks.value(colours, colours) + ' ' + pictureName(icon->pixmap(Qt::ReturnByValue)) +
               eyePicture;
    }
};

QTEST_MAIN(TestNormalLogin)

#include "tst_normallogin.moc"
