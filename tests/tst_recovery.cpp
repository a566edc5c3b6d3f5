#include "fakehost/Brackets.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginSignals.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "login/superuser/VerifySecretAnswerWt.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

using namespace kelvra_login;

namespace {

FakeHost &host = FakeHost::get();
const QString password = "<b>& W</b>";
/** What was done and announced since the last call, in order, without what was only looked up. */
QString deeds()
{
    return std::exchange(host.calls, {}).filter(QRegularExpression("^(?!get[A-Z]|is)")).join(' ');
}

/** A file that holds the text "Aé中AAA...": 124 bytes follow, two for each character, big ends first. */
const QByteArray credentialsFileBytes =
    QByteArray::fromHex("0000007c004100e94e2d") + QByteArray::fromHex("0041").repeated(59);
const QString credentials = QStringLiteral("Aé中") + QString(59, 'A');

} // namespace

class TestRecovery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        connect(&LoginSignals::_instance(), &LoginSignals::signalLoginEvent, this, [](int event, QStringList params) {
            host.record("signalLoginEvent", params << QString::number(event));
        });
    }

    void init()
    {
        host.reset();
        host.superUser = {"root", password, 0, 3, "", "", 70, 0, 110, "one", "two", "three"};
        host.currentUser = "ann";
        QGuiApplication::clipboard()->clear();
    }

    void cleanup() { delete subject; }

    // The page asks for the user it was made for, the dialog for the host's superuser.
    void answers_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("granted"); // what right answers or a good file bring
        QTest::newRow("page") << QString("ann") << " signalLoginEvent(ann,4)";
        QTest::newRow("dialog") << QString("root") << " getbackPwdLog(root)";
    }

    void answers()
    {
        QFETCH(QString, user);
        QFETCH(QString, granted);
        QStringList tips;
        open();
        QCOMPARE(texts("question"), QString("question 70|question 0|question 110"));
        QVERIFY(!line("question_1")->isEnabled() && line("answer_1")->hasFocus());
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
            delete subject;
            open();
            fill("a|b|c");
            host.whileAlertIsOpen = [this] { delete subject; };
            submit(by);
            QVERIFY2(!subject, by);
        }
    }

    void credentialsFile_data() { answers_data(); }

    void credentialsFile()
    {
        QFETCH(QString, user);
        QFETCH(QString, granted);
        open();
        auto *link = child<QLabel>("importCredentialsBt");
        QVERIFY(link->text().contains("text-decoration: underline;\">import Credentials<"));
        QTest::mouseClick(link, Qt::RightButton);
        QTest::mouseRelease(link, Qt::LeftButton);
        QVERIFY(host.callsOf({"getOpenFileName"}).isEmpty());
        QTest::mousePress(link, Qt::LeftButton); // and cancelled
        QVERIFY(host.callsOf({"getOpenFileName"}).size() == 1 && deeds().isEmpty());
        QTemporaryFile file;
        QVERIFY(file.open() && file.write(credentialsFileBytes) == 128 && file.flush());
        host.chosenFile = file.fileName();
        const QString asked = "checkSuperUserCredentials(" + user + ',' + credentials + ')';
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), asked + " messageAlert(Login credentials file is invalid)");
        host.credentialsValid = true;
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), asked + granted);
        host.whileFileDialogIsOpen = [this] { delete subject; };
        QTest::mousePress(link, Qt::LeftButton);
        QCOMPARE(deeds(), asked);
    }

    void languageChange_data() { answers_data(); }

    void languageChange()
    {
        open();
        fill("a| b|c");
        const Brackets brackets;
        const int form = host.calls.indexOf(isDialog() ? "translate(Cancel)" : "translate(OK)");
        QVERIFY(form >= 0 && form < host.calls.indexOf("retranslate()"));
        QCOMPARE(texts("question"), QString("question 70'|question 0'|question 110'"));
        QCOMPARE(texts("answer"), QString("a| b|c"));
        QCOMPARE(line("answer_2")->placeholderText(), QString("[Please enter the answer to question 2]"));
        if (!isDialog())
            return;
        QCOMPARE(subject->windowTitle(), QString("[Get Back Password]"));
        host.answersRight = true;
        submit("click");
        const Brackets again;
        QCOMPARE(child<QPushButton>("operBt")->text(), QString("[Copy]"));
    }

    void otherWays()
    {
        open();
        QTest::mouseClick(child<QPushButton>("backBt"), Qt::LeftButton);
        QCOMPARE(deeds(), QString("signalLoginEvent(0)"));
        QTest::mouseClick(child<QLabel>("forgotAllBt"), Qt::RightButton);
        QTest::mousePress(child<QLabel>("forgotAllBt"), Qt::LeftButton);
        QCOMPARE(deeds(), QString("signalLoginEvent(2)"));
    }

    void passwordIsShownAndCopied()
    {
        host.answersRight = true;
        QPointer<QWidget> parent = new QWidget;
        parent->show();
        QTimer::singleShot(0, this, [this] {
            subject = QApplication::activeModalWidget();
            const auto closed = qScopeGuard([this] { QTest::keyClick(subject, Qt::Key_Escape); });
            QVERIFY(isDialog() && !child<QWidget>("pwdWt")->isVisible());
            fill("a|b|c");
            submit("enter");
            QVERIFY(texts("answer") == "one|two|three" && line("answer_1")->isReadOnly());
            auto *label = child<QLabel>("password");
            QVERIFY(label->isVisible() && !child<QPushButton>("cancelBt")->isVisible());
            submit("return");
            QCOMPARE(QGuiApplication::clipboard()->text(), password);
            QCOMPARE(deeds(), QString("verifySuperUserAnswers(root,a,b,c) getbackPwdLog(root)"));
            // Any 16 characters are seen whole, whatever they mean as markup.
            label->setText("<b>" + QString(13, 'W'));
            QVERIFY(label->sizeHint().width() > label->fontMetrics().horizontalAdvance(QString(13, 'W')));
            QVERIFY(label->sizeHint().width() <= label->width());
        });
        LoginAccess::_instance().getbackPassword(parent);
        QVERIFY(!subject && parent);
        QTimer::singleShot(0, this, [] {
            QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton *>("cancelBt"), Qt::LeftButton);
        });
        LoginAccess::_instance().getbackPassword(parent);
        QTimer::singleShot(0, this, [parent] { delete parent; });
        LoginAccess::_instance().getbackPassword(parent);
        QVERIFY(!parent);
    }

private:
    void open()
    {
        subject = QTest::currentDataTag() == QByteArray("dialog") ? static_cast<QWidget *>(new GetbackPwdDlg(nullptr))
                                                                  : new VerifySecretAnswerWt("ann", nullptr);
        subject->show();
        QVERIFY(QTest::qWaitForWindowActive(subject));
        host.calls.clear();
    }

    template <typename T>
    T *child(const QString &name) const
    {
        return subject->findChild<T *>(name);
    }

    bool isDialog() const { return qobject_cast<GetbackPwdDlg *>(subject); }
    QLineEdit *line(const QString &name) const { return child<QLineEdit>(name); }

    QString texts(const QString &column) const
    {
        return line(column + "_1")->text() + '|' + line(column + "_2")->text() + '|' + line(column + "_3")->text();
    }

    void fill(const QString &answers)
    {
        for (int i = 0; i < 3; ++i)
            line(QString("answer_%1").arg(i + 1))->setText(answers.section('|', i, i));
    }

    void submit(const QString &by)
    {
        if (by == "click")
            return QTest::mouseClick(child<QPushButton>(isDialog() ? "operBt" : "okBt"), Qt::LeftButton);
        QKeyEvent press(QEvent::KeyPress, by == "enter" ? Qt::Key_Enter : Qt::Key_Return, {}, "\r", by == "held");
        QCoreApplication::sendEvent(line("answer_2"), &press);
    }

    /** The field that the tip hangs from. */
    QString tipAfter(const QString &wayAndAnswers)
    {
        QTest::mousePress(subject, Qt::RightButton); // takes the last tip away
        fill(wayAndAnswers.section('|', 1));
        submit(wayAndAnswers.section('|', 0, 0));
        for (const char *name : {"answer_1", "answer_2", "answer_3"}) {
            const auto *tip = line(name)->findChild<QLabel *>("qtooltip_label");
            if (tip && tip->isVisible() && tip->text() == "answer can not be empty or be all blank!")
                return name;
        }
        return {};
    }

    QPointer<QWidget> subject;
};

QTEST_MAIN(TestRecovery)

#include "tst_recovery.moc"
