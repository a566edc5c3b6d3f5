#include "TestTools.h"
#include "login/frame/LoginAccess.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "login/superuser/VerifySecretAnswerWt.h"

using namespace kelvra_login;

namespace {

const QString password = "<b>& W</b>";

} // namespace

class TestRecovery : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        host.reset();
        host.superUser = {"root", password, 0, 3, "", "", 70, 0, 110, "one", "two", "three"};
        host.currentUser = "ann";
        QGuiApplication::clipboard()->clear();
    }

    void cleanup() { delete window; }

    // The page asks for the user it was made for, the dialog for the host's superuser.
    void answers_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("granted"); // what right answers or a good file bring
        QTest::newRow("page") << QString("ann") << " signalLoginEvent(4,ann)";
        QTest::newRow("dialog") << QString("root") << " getbackPwdLog(root)";
    }

    void answers()
    {
        QFETCH(QString, user);
        QFETCH(QString, granted);
        QStringList tips;
        newSubject();
        QCOMPARE(texts("question"), QString("question 70|question 0|question 110"));
        QVERIFY(!edit("question_1")->isEnabled() && edit("answer_1")->hasFocus());
        for (const char *blank : {"click|  ||", "return|a| |c", "enter|a|b|"})
            tips << tipAfter(blank);
        QCOMPARE(tips.join(' ') + deeds(), QString("answer_1 answer_2 answer_3"));

        const QString asked = "verifySuperUserAnswers(" + user + ",a,b c,d)";
        fill(" a |b c|d\t");
        for (const char *by : {"click", "return", "enter", "held"}) {
            submit(by);
            QCOMPARE(deeds(), by == QByteArray("held") ? "" : asked + " messageAlert(verify user answers failed)");
        }
        QCOMPARE(host.alerts.last().first + texts("answer"), QString("title 1 a |b c|d\t"));
        host.answersRight = true;
        submit("return");
        QCOMPARE(deeds(), asked + granted);
        QVERIFY(QGuiApplication::clipboard()->text().isEmpty()); // not copied by the same key

        host.answersRight = false;
        for (const char *by : {"click", "return"}) {
            newSubject();
            fill("a|b|c");
            host.whileAlertIsOpen = [this] { delete window; };
            submit(by);
            QVERIFY2(!window, by);
        }
    }

    void credentialsFile_data() { answers_data(); }

    void credentialsFile()
    {
        QFETCH(QString, user);
        QFETCH(QString, granted);
        newSubject();
        auto *link = child<QLabel>("importCredentialsBt");
        QVERIFY(link->text().contains("text-decoration: underline;\">import Credentials<"));
        QTest::mouseClick(link, Qt::RightButton);
        QTest::mouseRelease(link, Qt::LeftButton);
        QVERIFY(host.callsOf({"getOpenFileName"}).isEmpty());
        QTest::mousePress(link, Qt::LeftButton); // and cancelled
        QVERIFY(host.callsOf({"getOpenFileName"}).size() == 1 && deeds().isEmpty());
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(QByteArray(128, 0)) == 128 && file.flush()); // an empty text
        host.chosenFile = file.fileName();
        const QString asked = "checkSuperUserCredentials(" + user + ",)";
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), asked + " messageAlert(Login credentials file is invalid)");
        host.credentialsValid = true;
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), asked + granted);
        host.whileFileDialogIsOpen = [this] { delete window; };
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), asked);
    }

    void languageChange_data() { answers_data(); }

    void languageChange()
    {
        newSubject();
        fill("a| b|c");
        const Brackets brackets;
        const int form = host.calls.indexOf(isDialog() ? "translate(Cancel)" : "translate(OK)");
        QVERIFY(form >= 0 && form < host.calls.indexOf("retranslate()"));
        QCOMPARE(texts("question"), QString("question 70'|question 0'|question 110'"));
        QCOMPARE(texts("answer"), QString("a| b|c"));
        QCOMPARE(edit("answer_2")->placeholderText(), QString("[Please enter the answer to question 2]"));
        if (!isDialog())
            return;
        QCOMPARE(window->windowTitle(), QString("[Get Back Password]"));
        host.answersRight = true;
        submit("click");
        const Brackets again;
        QCOMPARE(child<QPushButton>("operBt")->text(), QString("[Copy]"));
    }

    void otherWays()
    {
        newSubject();
        click("backBt");
        QCOMPARE(deeds(), QString("signalLoginEvent(0)"));
        QTest::mouseClick(child("forgotAllBt"), Qt::RightButton);
        QTest::mousePress(child("forgotAllBt"), Qt::LeftButton);
        QCOMPARE(deeds(), QString("signalLoginEvent(2)"));
    }

    void passwordIsShownAndCopied()
    {
        host.answersRight = true;
        QPointer<QWidget> parent = new QWidget;
        parent->show();
        QTimer::singleShot(0, this, [this] {
            window = QApplication::activeModalWidget();
            const auto closed = qScopeGuard([this] { QTest::keyClick(window, Qt::Key_Escape); });
            QVERIFY(isDialog() && !child("pwdWt")->isVisible());
            fill("a|b|c");
            submit("enter");
            QVERIFY(texts("answer") == "one|two|three" && edit("answer_1")->isReadOnly());
            auto *label = child<QLabel>("password");
            QVERIFY(label->isVisible() && !child("cancelBt")->isVisible());
            submit("return");
            QCOMPARE(QGuiApplication::clipboard()->text(), password);
            QCOMPARE(deeds(), QString("verifySuperUserAnswers(root,a,b,c) getbackPwdLog(root)"));
            // Any 16 characters are seen whole, whatever they mean as markup.
            label->setText("<b>" + QString(13, 'W'));
            QVERIFY(label->sizeHint().width() >= label->fontMetrics().horizontalAdvance(label->text()));
            QVERIFY(label->sizeHint().width() <= label->width());
        });
        LoginAccess::_instance().getbackPassword(parent);
        QVERIFY(!window && parent);
        QTimer::singleShot(0, this, [] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton *>("cancelBt"), Qt::LeftButton);
        });
        LoginAccess::_instance().getbackPassword(parent);
        QTimer::singleShot(0, this, [parent] { delete parent; });
        LoginAccess::_instance().getbackPassword(parent);
        QVERIFY(!parent);
    }

private:
    void newSubject()
    {
        const bool asDialog = QTest::currentDataTag() == QByteArray("dialog");
        open(asDialog ? static_cast<QWidget *>(new GetbackPwdDlg(nullptr)) : new VerifySecretAnswerWt("ann", nullptr));
    }

    bool isDialog() const { return qobject_cast<GetbackPwdDlg *>(window); }

    QString texts(const QString &column) const
    {
        return edit(column + "_1")->text() + '|' + edit(column + "_2")->text() + '|' + edit(column + "_3")->text();
    }

    void fill(const QString &answers)
    {
        for (int i = 0; i < 3; ++i)
            edit(QString("answer_%1").arg(i + 1))->setText(answers.section('|', i, i));
    }

    void submit(const QString &by)
    {
        if (by == "click")
            click(isDialog() ? "operBt" : "okBt");
        else if (by == "held")
            holdEnter(edit("answer_2"));
        else
            QTest::keyClick(edit("answer_2"), by == "enter" ? Qt::Key_Enter : Qt::Key_Return);
    }

    /** The field that the tip hangs from. */
    QString tipAfter(const QString &wayAndAnswers)
    {
        QTest::mousePress(window, Qt::RightButton); // takes the last tip away
        fill(wayAndAnswers.section('|', 1));
        submit(wayAndAnswers.section('|', 0, 0));
        for (const char *name : {"answer_1", "answer_2", "answer_3"}) {
            if (tipAt(edit(name)) == "answer can not be empty or be all blank!")
                return name;
        }
        return {};
    }
};

QTEST_MAIN(TestRecovery)

#include "tst_recovery.moc"
