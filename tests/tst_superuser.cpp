#include "TestTools.h"
#include "host/kelvra_base/ComboBox.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/Screens.h"
#include "login/local/PwdTipWt.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "login/superuser/VerifySecretAnswerWt.h"

using namespace kelvra_login;
using kelvra_base::ComboBox;

namespace {

const QString good = "abcd1234";
const QStringList fields = {"userWt", "inputPwdWt", "confirmPwdWt"};
const QStringList boxes = {"question_1", "question_2", "question_3"};
const QStringList answers = {"answer_1", "answer_2", "answer_3"};
constexpr int getBackPwd = -1; // the dialog, which is none of the login screens

} // namespace

/** The superuser's pages and dialog; of the others' pages only that they follow the language. */
class TestSuperUser : public WindowTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        enterScreens();
        const auto rate = [this](int strength, bool visible) {
            rating = QString::number(strength) + (visible ? " shown" : " hidden");
        };
        connect(&LoginSignals::_instance(), &LoginSignals::signalPwdStrength, this, rate);
    }

    void init()
    {
        resetHost();
        host.superUser = {"root", "roots", 0, 3, "", "", 70, 0, 110, "one", "two", "three"};
        newScreen(CreateSuperUser);
    }

    void cleanup() { delete window; }

    void tipComesAndGoes()
    {
        const auto after = [this](const QString &field, const QString &typed) {
            type(field, typed);
            return rating + (tip()->isVisible() ? " seen" : "");
        };
        QCOMPARE(after("userWt", "us"), QString("0 hidden"));
        QCOMPARE(after("inputPwdWt", ""), QString("0 shown seen"));
        for (const QString rule : {"lessThan8", "similarToName"}) { // the first one is broken
            const bool white = tip()->findChild<QWidget *>(rule + "Wt")->styleSheet().contains("color:#ffffff;");
            QCOMPARE(white, rule == "lessThan8");
        }
        const QPoint leftMiddle = child("inputPwdWt")->mapTo(tip()->parentWidget(), QPoint(0, 17));
        QCOMPARE(tip()->geometry(), QRect(leftMiddle - QPoint(365, 69), QSize(365, 138)));
        QImage drawn(tip()->size(), QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        tip()->render(&drawn, {}, {}, {});
        QCOMPARE(drawn, QImage(":/login_images/images/pwd_tip.png").convertToFormat(drawn.format()));
        QCOMPARE(after("confirmPwdWt", "x"), QString("0 hidden"));
        QCOMPARE(after("inputPwdWt", "user1234"), QString("3 shown seen"));
        QCOMPARE(after("userWt", "er1234"), QString("1 hidden"));
        QCOMPARE(after("inputPwdWt", ""), QString("1 shown seen"));
        showScreen(SetSecretAnswer);
        QVERIFY(!tip()->isVisible());
    }

    void focusMarksTheFields()
    {
        QTest::mouseMove(child("label"));
        for (const QString &focused : fields) { // no page before had the focus, so the first field takes it
            for (const QString &field : fields)
                QCOMPARE(isFramed(child(field)), field == focused);
            QTest::keyClick(edit(focused), Qt::Key_Tab);
        }
        const QWidget *confirmation = child("confirmPwdWt");
        QVERIFY(!isFramed(confirmation) && !confirmation->findChild<QLabel *>("pwdImage")->isVisible());
    }

    void creation()
    {
        QCOMPARE(submit("  ", "abc", "x"), QString("userWt: User name can not be empty or be all blank!"));
        QCOMPARE(submit("root", "abc", "x"), QString("userWt: User name already exists!"));
        QCOMPARE(submit("me", "abc", "x"), QString("inputPwdWt: Illegal password!"));
        QCOMPARE(submit("me", good, "x"), QString("confirmPwdWt: The two passwords are not the same!"));
        handOver();
        QCOMPARE(deeds(), QString("signalLoginEvent(3)"));
        QCOMPARE(missingAnswers("loginBt"), QString("123"));
        for (int changed = 0; changed < 3; ++changed) {
            fillAnswers();
            QCOMPARE(child<ComboBox>(boxes[changed])->currentText(), QString("question %1").arg(40 * changed));
            QTest::keyClick(child(boxes[changed]), Qt::Key_Down);
            for (int i = 0; i < 3; ++i)
                QCOMPARE(edit(answers[i])->text().isEmpty(), i == changed);
        }
        QCOMPARE(child<ComboBox>("question_3")->itemData(2, Qt::ToolTipRole).toString(), QString("question 20"));
        fillAnswers();
        QCOMPARE(press("loginBt"), QString());
        QCOMPARE(deeds(), "addSuperUser(me) createUserLog(me) " + localLogin("me,abcd1234,0", "true"));
        const auto &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.password, added.displayName, added.remark, added.answer1, added.answer3}),
                 QStringList({good, "", "", "a 0", "a 2"}));
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 10, 50, 90}));
    }

    void cursorIsInTheFirstFieldThereAndBack()
    {
        handOver();
        QVERIFY(edit("answer_1")->hasFocus());
        press("backBt");
        QVERIFY(edit("userWt")->hasFocus());
        press("createBt");
        QVERIFY(edit("answer_1")->hasFocus());
    }

    void cursorIsInTheFirstFieldAfterAGesture()
    {
        host.customization.cloudLoginEnabled = true; // there are tabs, which come first
        newScreen(GestureLogin);
        QTest::keyClick(window, Qt::Key_Tab);
        QVERIFY(child("autoLogin")->hasFocus());
        showScreen(NormalLogin);
        QCOMPARE(QApplication::focusWidget(), edit("localUserWt"));
    }

    void refusedCreation()
    {
        const QString refused = "addSuperUser(%1) messageAlert(Failed to create super user)";
        host.addSuperUserSucceeds = false;
        handOver();
        fillAnswers();
        deeds();
        press("loginBt");
        QCOMPARE(deeds(), refused.arg("me"));
        press("backBt");
        QCOMPARE(edit("userWt")->text() + edit("inputPwdWt")->text(), "me" + good);
        type("userWt", "too");
        press("createBt");
        host.whileAlertIsOpen = [this] { delete window; };
        QTest::keyClick(edit("answer_1"), Qt::Key_Return);
        QCOMPARE(deeds(), "signalLoginEvent(2) signalLoginEvent(3) " + refused.arg("metoo"));
        QCOMPARE(host.alerts.last().first, QString("title 0"));
    }

    void reset()
    {
        newScreen(ResetSuperUserPwd);
        QVERIFY(!edit("userWt")->isEnabled() && edit("userWt")->text() == "root");
        QCOMPARE(child("userWt")->grab().toImage().pixelColor(8, 8), QColor("#253141"));
        QCOMPARE(submit("", "abc", "x"), QString("inputPwdWt: Illegal password!"));
        QCOMPARE(submit("", good, "x"), QString("confirmPwdWt: The two passwords are not the same!"));
        child<QCheckBox>("autoLogin")->click();
        submit("", good, good);
        QCOMPARE(deeds(), "resetUserPwd(root,abcd1234) resetUserPwdLog(root) " + localLogin("root,abcd1234,0", "true"));
        newScreen(ResetSuperUserPwd);
        host.resetUserPwdSucceeds = false;
        host.whileAlertIsOpen = [this] { delete window; };
        submit("", good, good);
        QCOMPARE(deeds(), QString("resetUserPwd(root,abcd1234) messageAlert(reset [root] pwd failed)"));
        QCOMPARE(host.alerts.last().first, QString("title 0"));
    }

    void recovery()
    {
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(QByteArray(128, 0)) == 128 && file.flush()); // an empty text
        host.currentUser = "ann";
        for (const int screen : {int(VerifySecretAnswer), getBackPwd}) {
            const auto reopen = [this, screen] { newScreen(screen, "ann"); };
            // The page asks for the user it was made for, the dialog for the host's superuser.
            const bool page = screen == VerifySecretAnswer;
            const QString granted = page ? " signalLoginEvent(4,ann)" : " getbackPwdLog(root)";
            const QString asked = page ? "(ann," : "(root,";
            const QString button = page ? "okBt" : "operBt";

            reopen();
            if (page) { // it goes with the link
                QTest::mouseClick(child("forgotAllBt"), Qt::RightButton);
                QTest::mousePress(child("forgotAllBt"), Qt::LeftButton);
                QCOMPARE(deeds(), QString("signalLoginEvent(2)"));
            }
            reopen();
            QCOMPARE(edit(boxes[0])->text() + edit(boxes[1])->text(), QString("question 70question 0"));
            QVERIFY(!edit(boxes[0])->isEnabled() && edit("answer_1")->hasFocus());
            QCOMPARE(missingAnswers(button) + deeds(), QString("123"));
            fillAnswers();
            const QString verified = "verifySuperUserAnswers" + asked + "a 0,a 1,a 2)";
            press(button);
            QCOMPARE(deeds(), verified + " messageAlert(verify user answers failed)");
            QCOMPARE(host.alerts.last().first + edit("answer_1")->text(), QString("title 1 a 0 "));
            host.whileAlertIsOpen = [this] { delete window; };
            QTest::keyClick(edit("answer_2"), Qt::Key_Return);
            QVERIFY(!window);
            reopen();
            host.answersRight = true;
            QGuiApplication::clipboard()->clear();
            fillAnswers();
            QTest::keyClick(edit("answer_2"), Qt::Key_Return);
            QCOMPARE(deeds(), verified + granted);
            QVERIFY(QGuiApplication::clipboard()->text().isEmpty()); // not copied by the same key
            host.answersRight = false;

            reopen();
            auto *link = child<QLabel>("importCredentialsBt");
            QVERIFY(link->text().contains("text-decoration: underline;\">import Credentials<"));
            QTest::mouseClick(link, Qt::RightButton);
            QTest::mouseRelease(link, Qt::LeftButton);
            host.chosenFile.clear();
            QTest::mousePress(link, Qt::LeftButton); // and cancelled
            QVERIFY(host.callsOf({"getOpenFileName"}).size() == 1 && deeds().isEmpty());
            host.chosenFile = file.fileName();
            const QString checked = "checkSuperUserCredentials" + asked + ')';
            for (const bool valid : {false, true}) {
                host.credentialsValid = valid;
                QTest::mousePress(link, Qt::LeftButton);
                QCOMPARE(deeds(), checked + (valid ? granted : " messageAlert(Login credentials file is invalid)"));
            }
            host.whileFileDialogIsOpen = [this] { delete window; };
            QTest::mousePress(link, Qt::LeftButton);
            QCOMPARE(deeds(), checked);
        }
    }

    void passwordIsShownAndCopied()
    {
        const QString password = host.superUser.password = "<b>& W</b>";
        showPassword();
        QCOMPARE(edit("answer_1")->text() + edit("answer_3")->text(), QString("onethree"));
        QVERIFY(edit("answer_1")->isReadOnly() && edit("answer_3")->isReadOnly());
        auto *label = child<QLabel>("password");
        QVERIFY(label->isVisible() && !isShown("cancelBt"));
        QTest::keyClick(edit("answer_2"), Qt::Key_Return);
        QCOMPARE(QGuiApplication::clipboard()->text(), password);
        QCOMPARE(deeds(), QString("verifySuperUserAnswers(root,a 0,a 1,a 2) getbackPwdLog(root)"));
        // Any 16 characters are seen whole, whatever they mean as markup.
        label->setText("<b>" + QString(13, 'W'));
        QVERIFY(label->sizeHint().width() >= label->fontMetrics().horizontalAdvance(label->text()));
        QVERIFY(label->sizeHint().width() <= label->width());
        const Brackets brackets;
        QCOMPARE(text("operBt"), QString("[Copy]"));

        QPointer<QWidget> parent = new QWidget;
        for (const bool gone : {false, true}) { // the parent, while the dialog is open
            QTimer::singleShot(0, this, [parent, gone] {
                gone ? delete parent : QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
            });
            LoginAccess::_instance().getbackPassword(parent);
            QVERIFY(gone ? !parent : parent->children().isEmpty());
        }
    }

    void copiedPasswordIsTakenOff_data()
    {
        QTest::addColumn<QString>("end");
        for (const char *end :
             {"after a minute", "with Escape", "with the window", "with the dialog", "with the program"})
            QTest::newRow(end) << end;
    }

    void copiedPasswordIsTakenOff()
    {
        QFETCH(const QString, end);
        showPassword();
        press("operBt");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("roots"));
        auto *lifetime = window->findChild<QTimer *>();
        QCOMPARE(lifetime->interval(), 60'000);
        if (end == "after a minute")
            lifetime->start(1);
        else if (end == "with Escape")
            QTest::keyClick(window, Qt::Key_Escape);
        else if (end == "with the window")
            window->close();
        else if (end == "with the dialog")
            delete window;
        else
            runAndQuit();
        QTRY_COMPARE(QGuiApplication::clipboard()->text(), QString());
    }

    void whatIsCopiedLaterStays()
    {
        showPassword();
        press("operBt");
        QGuiApplication::clipboard()->setText("other");
        window->findChild<QTimer *>()->start(1);
        QTRY_VERIFY(!window->findChild<QTimer *>()->isActive());
        delete window;
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("other"));
    }

    void choiceLeadsToTheFirstField_data()
    {
        QTest::addColumn<int>("downs");
        QTest::addColumn<QString>("field");
        QTest::newRow("default superuser") << 0 << "localUserWt";
        QTest::newRow("new superuser") << 1 << "userWt";
        QTest::newRow("cloud account") << 2 << "userWt";
    }

    void choiceLeadsToTheFirstField()
    {
        QFETCH(const int, downs);
        QFETCH(const QString, field);
        host.customization.cloudLoginEnabled = true;
        host.recentAccount = "13800000001";
        delete window;
        auto *dialog = new LoginDlg(nullptr);
        showScreen(LoginMethodSel);
        open(dialog);
        for (int i = 0; i < downs; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->parentWidget()->objectName(), field);
        QVERIFY(QApplication::focusWidget()->isVisible());
    }

    void languageChange()
    {
        LoginWorker::_instance().verifyPassword("ann", "bad"); // the gesture page tells of it
        // In what order the form and the questions, where there are any, are translated
        const QMap<int, QStringList> screens{{CreateSuperUser, {}},
                                             {ResetSuperUserPwd, {}},
                                             {GestureLogin, {}},
                                             {SetSecretAnswer, {"retranslate()", "translate(Password protection)"}},
                                             {VerifySecretAnswer, {"translate(OK)", "retranslate()"}},
                                             {getBackPwd, {"translate(Cancel)", "retranslate()"}}};
        for (const int screen : screens.keys()) {
            const auto enter = [this] {
                for (QLineEdit *field : root()->findChildren<QLineEdit *>())
                    field->setText(field->isEnabled() ? "me" : field->text());
            };
            host.securityQuestions = FakeHost::twelveQuestions();
            newScreen(screen);
            enter();
            if (screen == SetSecretAnswer)
                QTest::keyClick(child("question_2"), Qt::Key_Up);
            host.calls.clear();
            const Brackets brackets;
            const QStringList order = screens[screen];
            if (!order.isEmpty())
                QVERIFY(host.calls.contains(order[0]) && host.calls.indexOf(order[0]) < host.calls.indexOf(order[1]));
            const QString changed = texts();
            QCOMPARE(changed.contains("question 0'|"), !order.isEmpty());
            newScreen(screen);
            if (screen != SetSecretAnswer) // which begins anew
                enter();
            QCOMPARE(changed, texts());
        }
    }

    void enterIsOneClick()
    {
        const QMap<int, QStringList> screens{{CreateSuperUser, {"inputPwdWt", "createBt"}},
                                             {ResetSuperUserPwd, {"inputPwdWt", "loginBt"}},
                                             {SetSecretAnswer, {"answer_2", "loginBt"}},
                                             {VerifySecretAnswer, {"answer_2", "okBt"}},
                                             {getBackPwd, {"answer_2", "operBt"}}};
        for (const int screen : screens.keys()) {
            newScreen(screen);
            const QSignalSpy clicked(child<QPushButton>(screens[screen][1]), &QPushButton::clicked);
            QLineEdit *field = edit(screens[screen][0]);
            QTest::keyClick(field, Qt::Key_Return);
            QTest::keyClick(field, Qt::Key_Enter);
            holdEnter(field);
            QCOMPARE(clicked.count(), 2);
        }
    }

private:
    QWidget *root() const override // the page that is shown, or the dialog
    {
        const auto *pages = login()->findChild<QStackedWidget *>();
        return pages ? pages->currentWidget() : window.data();
    }

    QWidget *login() const
    {
        auto *found = window->findChild<QWidget *>("loginWt");
        return found ? found : window.data();
    }

    void newScreen(int screen, const QString &user = "root")
    {
        open(screen == getBackPwd ? static_cast<QWidget *>(new GetbackPwdDlg(nullptr)) : new LoginDlg(nullptr));
        if (screen != getBackPwd)
            showScreen(screen, {user});
        deeds();
    }

    // What a program does when it ends.
    static void runAndQuit()
    {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
    }

    void showPassword()
    {
        host.answersRight = true;
        newScreen(getBackPwd);
        fillAnswers();
        press("operBt");
    }

    PwdTipWt *tip() const { return window->findChild<PwdTipWt *>(); }

    // With the keys, behind what is there.
    void type(const QString &field, const QString &text) const
    {
        edit(field)->setFocus();
        edit(field)->end(false);
        QTest::keyClicks(edit(field), text);
    }

    // The tip that a click leaves, with the field that it hangs from.
    QString press(const QString &button) const
    {
        QTest::mousePress(window, Qt::RightButton); // takes the last tip away
        click(button);
        for (const QString &field : window ? fields + answers : QStringList()) {
            if (child(field) && !tipAt(edit(field)).isEmpty())
                return field + ": " + tipAt(edit(field));
        }
        return QString();
    }

    QString submit(const QString &name, const QString &password, const QString &confirmation) const
    {
        const QStringList texts = {name, password, confirmation};
        for (int i = edit("userWt")->isEnabled() ? 0 : 1; i < 3; ++i) {
            edit(fields[i])->clear();
            type(fields[i], texts[i]);
        }
        return press(child("createBt") ? "createBt" : "loginBt");
    }

    void handOver() const
    {
        child<QCheckBox>("autoLogin")->setChecked(true);
        submit("me", good, good);
    }

    void fillAnswers() const
    {
        for (int i = 0; i < 3; ++i)
            edit(answers[i])->setText(QString(" a %1 ").arg(i));
    }

    // The numbers of the fields that are told to be empty when those from the first, second and third on are.
    QString missingAnswers(const QString &button) const
    {
        QString told;
        for (int missing = 0; missing < 3; ++missing) {
            fillAnswers();
            for (int i = missing; i < 3; ++i)
                edit(answers[i])->setText("  ");
            const QString tipText = press(button);
            if (tipText.endsWith(": answer can not be empty or be all blank!"))
                told += tipText.midRef(7, 1);
        }
        return told;
    }

    // What every part of the login pages, or of the dialog, says.
    QString texts() const
    {
        QString all = window->windowTitle();
        for (const QWidget *part : login()->findChildren<QWidget *>()) {
            for (const char *text : {"text", "currentText", "placeholderText", "toolTip", "accessibleName"})
                all += part->property(text).toString() + '|';
        }
        return all;
    }

    QString rating; // the last one
};

QTEST_MAIN(TestSuperUser)

#include "tst_superuser.moc"
