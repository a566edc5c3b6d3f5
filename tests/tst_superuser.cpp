#include "fakehost/Brackets.h"
#include "host/kelvra_base/ComboBox.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/Screens.h"
#include "login/local/PwdTipWt.h"
#include "login/superuser/CreateSuperUserWt.h"

#include <QtTest>
#include <QtWidgets>

using namespace kelvra_login;
using kelvra_base::ComboBox;
using kelvra_worker::DictDef;

namespace {

const QString good = "abcd1234";
const QStringList fields = {"userWt", "inputPwdWt", "confirmPwdWt"};
const QStringList boxes = {"question_1", "question_2", "question_3"};
const QStringList answers = {"answer_1", "answer_2", "answer_3"};

const QString loggedIn = " updateUserLoginRecord(%1,true) setCurUserInfo(1,%1,abcd1234,0,true) signalLoginSuccess()";

FakeHost &host = FakeHost::get();

/** What was stored, logged and announced since the last call, in order. */
QString deeds()
{
    const QRegularExpression told("^(add|create|reset|updateUser|setCur|messageAlert|signal)");
    return std::exchange(host.calls, {}).filter(told).join(' ');
}

/** The marks of the rules in their order, those of broken rules in brackets. */
QString rules(const PwdTipWt *tip)
{
    QString found;
    for (const QString rule : {"tooSimple", "lessThan8", "similarToName"}) {
        const bool white = tip->findChild<QWidget *>(rule + "Wt")->styleSheet().startsWith("QLabel{color:#ffffff;");
        found += QString(white ? "[%1]" : "%1").arg(tip->findChild<QLabel *>(rule + "Flag")->text());
    }
    return found;
}

} // namespace

class TestSuperUser : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        enterScreens();
        // Among the host's calls, so that the order of both shows.
        const auto &hub = LoginSignals::_instance();
        connect(&hub, &LoginSignals::signalLoginEvent, this,
                [](LoginEvent event) { host.record("signalLoginEvent", {QString::number(event)}); });
        connect(&hub, &LoginSignals::signalLoginSuccess, this, [] { host.record("signalLoginSuccess", {}); });
        connect(&hub, &LoginSignals::signalPwdStrength, this, [this](int strength, bool visible) {
            ratings << QString::number(strength) + (visible ? " shown" : " hidden");
        });
    }

    void init()
    {
        host.reset();
        host.users["root"].superUser = true;
        open(CreateSuperUser);
    }

    void cleanup() { dialog.reset(); }

    void rating_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<int>("tipClass");
        QTest::newRow("too short") << "user123" << 0;
        QTest::newRow("one kind") << "abcdefgh" << 2;
        QTest::newRow("name") << "user1234" << 1;
        QTest::newRow("name reversed") << "4321resu" << 1;
        QTest::newRow("good") << good << 3;
    }

    void rating()
    {
        QFETCH(QString, password);
        QFETCH(int, tipClass);
        const QString refused = tipClass == 3 ? "" : "inputPwdWt: Illegal password!";
        QCOMPARE(submit("user1234", password, password), refused);
        QCOMPARE(rules(tip()), QStringList({"[·][·]√", "√√[·]", "[·]√√", "√√√"}).at(tipClass));
        open(ResetSuperUserPwd, {"user1234"});
        QCOMPARE(submit("", password, password), refused);
        QCOMPARE(ratings.last(), QString("%1 hidden").arg(tipClass));
    }

    void tipComesAndGoes()
    {
        ratings.clear();
        type("userWt", "us");
        QCOMPARE(ratings, QStringList({"0 hidden", "0 hidden"}));
        edit("inputPwdWt")->setFocus();
        QCOMPARE(ratings.last(), QString("0 shown"));
        const QPoint leftMiddle = child("inputPwdWt")->mapTo(tip()->parentWidget(), QPoint(0, 17));
        QCOMPARE(tip()->geometry(), QRect(leftMiddle - QPoint(365, 69), QSize(365, 138)));
        QImage drawn(tip()->size(), QImage::Format_ARGB32_Premultiplied);
        drawn.fill(Qt::transparent);
        tip()->render(&drawn, {}, {}, {});
        QCOMPARE(drawn, QImage(":/login_images/images/pwd_tip.png").convertToFormat(drawn.format()));
        ratings.clear();
        type("confirmPwdWt", "x");
        QVERIFY(ratings == QStringList("0 hidden") && !tip()->isVisible());
        type("inputPwdWt", "user1234");
        QVERIFY(ratings.last() == "3 shown" && tip()->isVisible());
        type("userWt", "er1234");
        QVERIFY(ratings.last() == "1 hidden" && !tip()->isVisible());
        edit("inputPwdWt")->setFocus();
        QVERIFY(tip()->isVisible());
        show(SetSecretAnswer);
        QVERIFY(!tip()->isVisible());
    }

    void focusMarksTheFields()
    {
        const auto framed = [this](const QString &field) {
            return child(field)->styleSheet().contains("border:1px solid #2c7dce");
        };
        QTest::mouseMove(child("label"));
        for (const QString &focused : fields) { // no page before had the focus, so the first field takes it
            for (const QString &field : fields)
                QCOMPARE(framed(field), field == focused);
            QTest::keyClick(edit(focused), Qt::Key_Tab);
        }
        QVERIFY(!framed("confirmPwdWt") && !child("confirmPwdWt")->findChild<QLabel *>("pwdImage")->isVisible());
        open(ResetSuperUserPwd, {"root"});
        QVERIFY(!edit("userWt")->isEnabled() && edit("userWt")->text() == "root");
        QCOMPARE(child("userWt")->grab().toImage().pixelColor(8, 8), QColor("#253141"));
    }

    void creation()
    {
        QCOMPARE(submit("  ", "abc", "x"), QString("userWt: User name can not be empty or be all blank!"));
        QCOMPARE(submit("root", "abc", "x"), QString("userWt: User name already exists!"));
        QCOMPARE(submit("me", "abc", "x"), QString("inputPwdWt: Illegal password!"));
        QCOMPARE(submit("me", good, "x"), QString("confirmPwdWt: The two passwords are not the same!"));
        QCOMPARE(deeds(), QString());
        const auto *page = qobject_cast<CreateSuperUserWt *>(child("label")->parentWidget());
        QCOMPARE(page->getSuperUserInfo().remark, QString("me")); // the further text that goes no further
        handOver();
        QCOMPARE(deeds(), QString("signalLoginEvent(3)"));
        for (int i = 0; i < 3; ++i)
            QCOMPARE(child<ComboBox>(boxes[i])->currentText(), QString("question %1").arg(40 * i));
        QTest::keyClick(child("question_1"), Qt::Key_Down);
        fillAnswers();
        QCOMPARE(press("loginBt"), QString());
        QCOMPARE(deeds(), "addSuperUser(me) createUserLog(me)" + loggedIn.arg("me"));
        const auto &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.password, added.displayName, added.remark, added.answer1, added.answer3}),
                 QStringList({good, "", "", "a 0", "a 2"}));
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 10, 40, 80}));
    }

    void answersAreAsked()
    {
        handOver();
        for (int missing = 2; missing >= 0; --missing) { // the first one that is missing counts
            fillAnswers();
            for (int i = missing; i < 3; ++i)
                edit(answers[i])->setText("  ");
            QCOMPARE(press("loginBt"), answers[missing] + ": answer can not be empty or be all blank!");
        }
        QCOMPARE(deeds(), QString("signalLoginEvent(3)"));
        for (int changed = 0; changed < 3; ++changed) {
            fillAnswers();
            QTest::keyClick(child(boxes[changed]), Qt::Key_Down);
            for (int i = 0; i < 3; ++i)
                QCOMPARE(edit(answers[i])->text().isEmpty(), i == changed);
        }
        QCOMPARE(child<ComboBox>("question_3")->itemData(2, Qt::ToolTipRole).toString(), QString("question 20"));
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
        QCOMPARE(host.alerts.last().first, DictDef::_instance().alertTitle(DictDef::OperationFailedTitle));
        press("backBt");
        QCOMPARE(edit("userWt")->text() + edit("inputPwdWt")->text(), "me" + good);
        type("userWt", "too");
        press("createBt");
        host.whileAlertIsOpen = [this] { dialog.reset(); };
        QTest::keyClick(edit("answer_1"), Qt::Key_Return);
        QCOMPARE(deeds(), "signalLoginEvent(2) signalLoginEvent(3) " + refused.arg("metoo"));
    }

    void reset()
    {
        open(ResetSuperUserPwd, {""});
        QCOMPARE(submit("", "abc", "x"), QString("userWt: User name can not be empty or be all blank!"));
        open(ResetSuperUserPwd, {"root"});
        QCOMPARE(submit("", "abc", "x"), QString("inputPwdWt: Illegal password!"));
        QCOMPARE(submit("", good, "x"), QString("confirmPwdWt: The two passwords are not the same!"));
        child<QCheckBox>("autoLogin")->click();
        submit("", good, good);
        QCOMPARE(deeds(), "resetUserPwd(root,abcd1234) resetUserPwdLog(root)" + loggedIn.arg("root"));
        open(ResetSuperUserPwd, {"root"});
        host.resetUserPwdSucceeds = false;
        host.whileAlertIsOpen = [this] { dialog.reset(); };
        submit("", good, good);
        QCOMPARE(deeds(), QString("resetUserPwd(root,abcd1234) messageAlert(reset [root] pwd failed)"));
        QCOMPARE(host.alerts.last().first, DictDef::_instance().alertTitle(DictDef::OperationFailedTitle));
    }

    void languageChange()
    {
        submit("me", good, "x");
        ratings.clear();
        auto brackets = std::make_unique<Brackets>();
        QCOMPARE(child<QLabel>("label_2")->text(), QString("[Create a  new local superuser]"));
        QCOMPARE(edit("confirmPwdWt")->placeholderText(), QString("[Confirm Password]"));
        QCOMPARE(tip()->findChild<QLabel *>("lessThan8Tip")->text(), QString("[Password length:8-16]"));
        QCOMPARE(edit("userWt")->text() + edit("inputPwdWt")->text() + edit("confirmPwdWt")->text(), "me" + good + 'x');
        QVERIFY(ratings.isEmpty() && !tip()->isVisible());
        brackets.reset();
        handOver();
        fillAnswers();
        QTest::keyClick(child("question_2"), Qt::Key_Up);
        host.calls.clear();
        brackets = std::make_unique<Brackets>();
        QVERIFY(host.calls.lastIndexOf("retranslate()") < host.calls.indexOf("translate(Password protection)"));
        for (int i = 0; i < 3; ++i) {
            const auto *box = child<ComboBox>(boxes[i]);
            QVERIFY(box->count() == 12 && box->currentIndex() == 4 * i && edit(answers[i])->text().isEmpty());
            QCOMPARE(box->currentText(), host.securityQuestions.value(40 * i));
        }
    }

    void enterIsOneClick()
    {
        for (const int event : {CreateSuperUser, SetSecretAnswer, ResetSuperUserPwd}) {
            open(event, {"root"});
            const QString button = event == CreateSuperUser ? "createBt" : "loginBt";
            const QSignalSpy clicked(child<QPushButton>(button), &QPushButton::clicked);
            QLineEdit *field = edit(event == SetSecretAnswer ? "answer_2" : "inputPwdWt");
            QTest::keyClick(field, Qt::Key_Return);
            QTest::keyClick(field, Qt::Key_Enter);
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
            QCoreApplication::sendEvent(field, &held);
            QCOMPARE(clicked.count(), 2);
        }
    }

private:
    void open(int event, const QStringList &params = {})
    {
        dialog = std::make_unique<LoginDlg>(nullptr);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        show(event, params);
        deeds();
    }

    static void show(int event, const QStringList &params = {})
    {
        emit LoginSignals::_instance().signalLoginEvent(LoginEvent(event), params);
    }

    PwdTipWt *tip() const { return dialog->findChild<PwdTipWt *>(); }

    // Of the page that is shown.
    template <typename T = QWidget>
    T *child(const QString &name) const
    {
        const auto *stack = dialog->findChild<QWidget *>("loginWt")->findChild<QStackedWidget *>("stackedWidget");
        return stack->currentWidget()->findChild<T *>(name);
    }

    // The line edit of that name, or the one in the field of that name.
    QLineEdit *edit(const QString &name) const
    {
        auto *lineEdit = child<QLineEdit>(name);
        return lineEdit ? lineEdit : child(name)->findChild<QLineEdit *>();
    }

    // With the keys, behind what is there.
    void type(const QString &field, const QString &text) const
    {
        edit(field)->setFocus();
        edit(field)->end(false);
        QTest::keyClicks(edit(field), text);
    }

    // The tip that a click leaves, with the lowest field that begins above it.
    QString press(const QString &button) const
    {
        QTest::mouseClick(child(button), Qt::LeftButton); // takes the last tip away
        QString found;
        for (const QWidget *label : QApplication::topLevelWidgets()) {
            if (!dialog || !label->inherits("QTipLabel") || !label->isVisible())
                continue;
            for (const QString &field : child("answer_1") ? answers : fields)
                found = label->y() > edit(field)->mapToGlobal({}).y() ? field + ": " + QToolTip::text() : found;
        }
        return found;
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

    std::unique_ptr<LoginDlg> dialog;
    QStringList ratings;
};

QTEST_MAIN(TestSuperUser)

#include "tst_superuser.moc"
