#include "TestTools.h"
#include "host/kelvra_base/ComboBox.h"
#include "login/frame/Screens.h"
#include "login/local/PwdTipWt.h"
#include "login/superuser/CreateSuperUserWt.h"

using namespace kelvra_login;
using kelvra_base::ComboBox;

namespace {

const QString good = "abcd1234";
const QString emptyName = "userWt: User name can not be empty or be all blank!";
const QStringList fields = {"userWt", "inputPwdWt", "confirmPwdWt"};
const QStringList boxes = {"question_1", "question_2", "question_3"};
const QStringList answers = {"answer_1", "answer_2", "answer_3"};

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

class TestSuperUser : public WindowTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        enterScreens();
        const auto rate = [this](int strength, bool visible) {
            ratings << QString::number(strength) + (visible ? " shown" : " hidden");
        };
        connect(&LoginSignals::_instance(), &LoginSignals::signalPwdStrength, this, rate);
    }

    void init()
    {
        resetHost();
        newDialog(CreateSuperUser);
    }

    void cleanup() { delete window; }

    void rating()
    {
        const QStringList marks{"[·][·]√", "√√[·]", "[·]√√", "√√√"}; // by class
        const QMap<QString, int> classes{{"user123", 0}, {"user1234", 1}, {"4321resu", 1}, {"abcdefgh", 2}, {good, 3}};
        for (const QString &password : classes.keys()) {
            const QString refused = classes[password] == 3 ? "" : "inputPwdWt: Illegal password!";
            newDialog(CreateSuperUser);
            QCOMPARE(submit("user1234", password, password), refused);
            QCOMPARE(password + rules(tip()), password + marks.at(classes[password]));
            newDialog(ResetSuperUserPwd, {"user1234"});
            QCOMPARE(submit("", password, password), refused);
            QCOMPARE(ratings.last(), QString("%1 hidden").arg(classes[password]));
        }
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
        QCOMPARE(submit("  ", "abc", "x"), emptyName);
        QCOMPARE(submit("root", "abc", "x"), QString("userWt: User name already exists!"));
        QCOMPARE(submit("me", "abc", "x"), QString("inputPwdWt: Illegal password!"));
        QCOMPARE(submit("me", good, "x"), QString("confirmPwdWt: The two passwords are not the same!"));
        QCOMPARE(deeds(), QString());
        const auto *page = qobject_cast<CreateSuperUserWt *>(child("label")->parentWidget());
        QCOMPARE(page->getSuperUserInfo().remark, QString("me")); // the further text that goes no further
        handOver();
        QCOMPARE(deeds(), QString("signalLoginEvent(3)"));
        for (int missing = 2; missing >= 0; --missing) { // the first one that is missing counts
            fillAnswers();
            for (int i = missing; i < 3; ++i)
                edit(answers[i])->setText("  ");
            QCOMPARE(press("loginBt"), answers[missing] + ": answer can not be empty or be all blank!");
        }
        for (int changed = 0; changed < 3; ++changed) {
            fillAnswers();
            QCOMPARE(child<ComboBox>(boxes[changed])->currentText(), QString("question %1").arg(40 * changed));
            QTest::keyClick(child(boxes[changed]), Qt::Key_Down);
            for (int i = 0; i < 3; ++i)
                QCOMPARE(edit(answers[i])->text().isEmpty(), i == changed);
        }
        QCOMPARE(child<ComboBox>("question_3")->itemData(2, Qt::ToolTipRole).toString(), QString("question 20"));
        fillAnswers();
        QCOMPARE(deeds(), QString());
        QCOMPARE(press("loginBt"), QString());
        QCOMPARE(deeds(), "addSuperUser(me) createUserLog(me) " + localLogin("me,abcd1234,0", "true"));
        const auto &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.password, added.displayName, added.remark, added.answer1, added.answer3}),
                 QStringList({good, "", "", "a 0", "a 2"}));
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 10, 50, 90}));
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
        newDialog(ResetSuperUserPwd, {""});
        QCOMPARE(submit("", "abc", "x"), emptyName);
        newDialog(ResetSuperUserPwd, {"root"});
        QVERIFY(!edit("userWt")->isEnabled() && edit("userWt")->text() == "root");
        QCOMPARE(child("userWt")->grab().toImage().pixelColor(8, 8), QColor("#253141"));
        QCOMPARE(submit("", "abc", "x"), QString("inputPwdWt: Illegal password!"));
        QCOMPARE(submit("", good, "x"), QString("confirmPwdWt: The two passwords are not the same!"));
        child<QCheckBox>("autoLogin")->click();
        submit("", good, good);
        QCOMPARE(deeds(), "resetUserPwd(root,abcd1234) resetUserPwdLog(root) " + localLogin("root,abcd1234,0", "true"));
        newDialog(ResetSuperUserPwd, {"root"});
        host.resetUserPwdSucceeds = false;
        host.whileAlertIsOpen = [this] { delete window; };
        submit("", good, good);
        QCOMPARE(deeds(), QString("resetUserPwd(root,abcd1234) messageAlert(reset [root] pwd failed)"));
        QCOMPARE(host.alerts.last().first, QString("title 0"));
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
            newDialog(event, {"root"});
            const QString button = event == CreateSuperUser ? "createBt" : "loginBt";
            const QSignalSpy clicked(child<QPushButton>(button), &QPushButton::clicked);
            QLineEdit *field = edit(event == SetSecretAnswer ? "answer_2" : "inputPwdWt");
            QTest::keyClick(field, Qt::Key_Return);
            QTest::keyClick(field, Qt::Key_Enter);
            holdEnter(field);
            QCOMPARE(clicked.count(), 2);
        }
    }

private:
    QWidget *root() const override // the page that is shown
    {
        return window->findChild<QWidget *>("loginWt")->findChild<QStackedWidget *>()->currentWidget();
    }

    void newDialog(int event, const QStringList &params = {})
    {
        open(new LoginDlg(nullptr));
        showScreen(event, params);
        deeds();
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
        click(button); // takes the last tip away
        if (!window)
            return QString();
        for (const QString &field : child("answer_1") ? answers : fields) {
            if (!tipAt(edit(field)).isEmpty())
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

    QStringList ratings;
};

QTEST_MAIN(TestSuperUser)

#include "tst_superuser.moc"
