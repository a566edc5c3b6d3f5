#include "TestTools.h"
#include "login/cloud/QRCodeLoginPanel.h"

#include <QTextDocument>

#include <array>

using namespace kelvra_login;

namespace {

const QString scan = "1 Nimbra App Code scanning login";
const QString masked = "|mask|refreshBt";
// Black on the left, white on the right, with percent signs as a data URI may have them
const QString picture = "data:image/x-portable-bitmap,P1%0A%23%2B%0A2%202%201%200%201%200";

/**
 * Answers the last call of its kind: "code", "result" or a status, in any order and as often as wanted; after "!" as
 * a failure, after "?" under a foreign id.
 */
void answer(const QString &answers, const QString &codeId = "code", int validitySeconds = 600)
{
    for (QString text : answers.split(' ')) {
        const bool foreign = text.startsWith('?');
        const int code = text.contains('!') ? 4711 : kelvra_saas::successCode;
        const QString kind = text.remove('?').remove('!');
        const auto give = [foreign, code](const auto call, const auto &...more) {
            call.answer({foreign ? "foreign" : call.requestId, code, 7, QString()}, more...);
        };
        if (kind == "code")
            give(host.qrCodeRequests.last(), kelvra_saas::LoginQRCodeInfo{codeId, picture, validitySeconds});
        else if (kind == "result")
            give(host.qrCodeResultQueries.last());
        else
            give(host.qrCodeStatusQueries.last(), kind.toInt());
    }
}

} // namespace

class TestQRPanel : public WindowTest
{
    Q_OBJECT

private slots:
    void init()
    {
        host.reset();
        openPanel();
    }

    void cleanup() { delete window; }

    void addressBringsNoTextIn()
    {
        panel->refreshQRCode();
        const auto call = host.qrCodeRequests.last();
        call.answer({call.requestId, kelvra_saas::successCode, 0, QString()},
                    kelvra_saas::LoginQRCodeInfo{"code", "a\"/>Call us<i b=\"", 60});
        QTextDocument shown;
        shown.setHtml(text("QRCode"));
        QCOMPARE(shown.toPlainText(), QString(QChar::ObjectReplacementCharacter));
    }

    void firstShowFetchesACode()
    {
        delete window;
        window = panel = new QRCodeLoginPanel(nullptr);
        const QMovie *movie = child<QLabel>("waitingLabel")->movie();
        host.calls.clear();
        for (const bool shown : {false, true, false, true}) {
            panel->setVisible(shown);
            QCOMPARE(movie->state(), shown ? QMovie::Running : QMovie::Paused);
        }
        QCOMPARE(host.calls, QStringList("getLoginQRCode()"));
        QCOMPARE(look(), scan + "|waitingLabel");
        answer("code");
        QCOMPARE(look(), scan);
        QCOMPARE(movie->state(), QMovie::Paused);
        QCOMPARE(text("QRCode"), "<img src=\"" + picture + "\" width=\"220\" heigh=\"220\" />");
        QCOMPARE(codeColour(40), QColor(Qt::black));
        QCOMPARE(codeColour(180), QColor(Qt::white));
        panel->setQRCodeSize(178);
        panel->refreshQRCode();
        answer("code");
        QVERIFY(text("QRCode").endsWith(" width=\"178\" heigh=\"178\" />"));
    }

    void answers()
    {
        const QVector<std::array<QString, 3>> rows{
            {"2001", scan, ""},
            {"2002", "4 Scanned, confirming", ""},
            {"2003", "2 QR Code Invalid" + masked, ""},
            {"2005", "5 Scanned, cancel login" + masked, ""},
            {"2006", "6 Illegal operation" + masked, ""},
            {"2007", "7 Illegal ip" + masked, ""},
            {"!code", "3 Get QR Code Failure" + masked, "Get login QR code failure:cloud error 4711/7"},
            {"!2004", "8 Check Status Failure" + masked, "Check login QR code status failure:cloud error 4711/7"},
            {"2004 !result", "0 QR Code Login Failure" + masked,
             "Check QR code login result failure:cloud error 4711/7"}};
        for (const auto &[given, expected, alert] : rows) {
            QString duringAlert;
            host.whileAlertIsOpen = [&] { duringAlert = look(); };
            host.alerts.clear();
            panel->refreshQRCode();
            answerTwice(given);
            QCOMPARE(look(), expected);
            QCOMPARE(duringAlert, alert.isEmpty() ? "" : expected);
            QCOMPARE(host.alerts.value(0).second, alert);
            QVERIFY(host.alerts.size() < 2);
            QVERIFY(text("QRCode").contains(picture));
            const Brackets brackets;
            QCOMPARE(text("QRCodeTitle"), '[' + expected.section('|', 0, 0).mid(2) + ']');
        }
        host.calls.clear();
        panel->hide();
        panel->show();
        QTest::qWait(1200);
        QCOMPARE(host.calls, QStringList()); // nothing renews a refused code by itself
        click("refreshBt");
        QCOMPARE(host.calls, QStringList("getLoginQRCode()"));
        QCOMPARE(look(), QString("0 QR Code Login Failure|waitingLabel"));
        for (const char *last : {"!code", "!2001", "2004 !result"}) {
            openPanel();
            host.whileAlertIsOpen = [&] { delete window; };
            answerTwice(last);
            QVERIFY(!window);
        }
    }

    void strayAnswers()
    {
        const QSignalSpy success(panel, &QRCodeLoginPanel::signalScanQRCodeLoginSuccess);
        answer("?code ?!code");
        QCOMPARE(look(), scan + "|waitingLabel");
        poll();
        answer("?2003 ?!2003");
        QTest::qWait(1300);
        QCOMPARE(host.qrCodeStatusQueries.size(), 1); // they have not ended the query
        answer("2001 2001");
        QTRY_COMPARE(host.qrCodeStatusQueries.size(), 2);
        host.whileAlertIsOpen = [&] {
            panel->refreshQRCode();
            answer("code");
            QTest::qWait(1300);
        };
        answer("!2001");
        QCOMPARE(host.qrCodeStatusQueries.size(), 2); // the alert's end is the query's
        QTRY_COMPARE(host.qrCodeStatusQueries.size(), 3);
        host.calls.clear();
        answer("2004 2004");
        QTest::qWait(1200);
        QCOMPARE(host.calls, QStringList("checkLoginQRCodeResult(code)"));
        answer("?result ?!result");
        QCOMPARE(success.size(), 0);
        answer("result result !result");
        QCOMPARE(success.size(), 1);
        QCOMPARE(look(), scan);
        delete window;
        answer("!code !2003 !result");
        QCOMPARE(host.alerts.size(), 1);

        openPanel();
        std::make_unique<QRCodeLoginPanel>(nullptr).reset(); // takes over, and is gone
        answer("code");
        QCOMPARE(look(), scan + "|waitingLabel");
    }

    void pollsWhileVisible()
    {
        panel->showMinimized();
        answer("code", "minimised");
        const std::unique_ptr<QWidget> minimised(std::exchange(window, nullptr));
        openPanel();
        panel->hide();
        answer("code", "hidden");
        const std::unique_ptr<QWidget> hidden(std::exchange(window, nullptr));
        openPanel();
        answer("code");
        QTimer service;
        connect(&service, &QTimer::timeout, this, [] {
            if (!host.qrCodeStatusQueries.isEmpty())
                answer("2001");
        });
        service.start(100);
        QTest::qWait(3300);
        const QStringList queries = host.callsOf({"checkLoginQRCodeStatus"});
        QVERIFY2(queries.size() == 2 || queries.size() == 3, qPrintable(queries.join(' ')));
        QCOMPARE(queries.count("checkLoginQRCodeStatus(code)"), queries.size());
        panel->hide();
        hidden->show();
        QTRY_COMPARE(host.calls.last(), QString("checkLoginQRCodeStatus(hidden)"));
        QCOMPARE(host.callsOf({"checkLoginQRCodeStatus"}).size(), queries.size() + 1);
        QCOMPARE(host.qrCodeRequests.size(), 3);
    }

    void validityRunsOut()
    {
        answer("code", "old", 1);
        panel->refreshQRCode();
        answer("code");
        QTRY_COMPARE(look(), "2 QR Code Invalid" + masked); // the old code's time, at the new one's cost
    }

    void overlaysFollowTheCode()
    {
        const QWidget *code = child("QRCode");
        const auto changes = {+[](QRCodeLoginPanel *p) { p->resize(600, 500); },
                              +[](QRCodeLoginPanel *p) { p->setQRCodeSize(177); },
                              +[](QRCodeLoginPanel *p) { p->setLayoutSpacing(450); }};
        for (const auto change : changes) {
            const QPoint before = code->pos();
            change(panel);
            QTRY_VERIFY(code->pos() != before);
            for (const QWidget *overlay : {child("waitingLabel"), child("refreshBt")}) {
                const QSize around = code->size() - overlay->size();
                QCOMPARE(overlay->pos(), code->pos() + QPoint(around.width() / 2, around.height() / 2));
            }
            QCOMPARE(child("mask")->pos(), code->pos());
        }
    }

    void maskLetsAQuarterThrough()
    {
        answer("code");
        panel->refreshQRCode();
        answer("!code");
        QCOMPARE(codeColour(40), QColor(Qt::black)); // no brush over rich text
        QPixmap red(220, 220);
        red.fill(Qt::red);
        child<QLabel>("QRCode")->setPixmap(red);
        panel->refreshQRCode();
        answer("!code");
        const QColor seen = codeColour(40);
        QVERIFY2(qAbs(seen.red() - 0.75 * 160 - 0.25 * 255) < 2, qPrintable(seen.name()));
        QVERIFY2(qAbs(seen.green() - 0.75 * 160) < 2, qPrintable(seen.name()));
    }

private:
    void openPanel()
    {
        panel = new QRCodeLoginPanel(nullptr);
        open(panel);
    }

    /** Shows a code and waits until the panel asks what has become of it. */
    void poll()
    {
        answer("code");
        host.calls.clear();
        QTRY_COMPARE(host.calls, QStringList("checkLoginQRCodeStatus(code)"));
    }

    /** What comes twice counts once. A code is shown first, unless it is refused. */
    void answerTwice(const QString &answers)
    {
        if (answers != "!code")
            poll();
        answer(answers);
        answer(answers);
    }

    /** The title's id, the title, and what lies over the code. */
    QString look() const
    {
        QString look = child<QLabel>("QRCodeTitle")->property("title_id").toString() + ' ' + text("QRCodeTitle");
        for (const char *over : {"waitingLabel", "mask", "refreshBt"})
            look += isShown(over) ? QString("|") + over : QString();
        return look;
    }

    /** What is seen of the code `x` pixels from its left edge, below the refresh button. */
    QColor codeColour(int x) const
    {
        return panel->grab().toImage().pixelColor(child<QLabel>("QRCode")->pos() + QPoint(x, 190));
    }

    QRCodeLoginPanel *panel = nullptr;
};

QTEST_MAIN(TestQRPanel)

#include "tst_qrpanel.moc"
