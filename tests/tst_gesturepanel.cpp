#include "login/gesture/GesturePanel.h"
#include "login/gesture/GesturePoint.h"

#include <QScreen>
#include <QtTest>

#include <random>

using namespace kelvra_login;

namespace {

constexpr int padSize = 300;
const QPoint padPosition(100, 100); // with room for a pointer that leaves the pad

QPointF beyond(const QPointF &from, const QPointF &to, qreal pixels)
{
    return QLineF(from, to).pointAt(1 + pixels / QLineF(from, to).length());
}

/** Where a pointer stops that goes through `corners`: after every step, counted in pixels over the whole way. */
QVector<QPoint> stops(const QVector<QPointF> &corners, qreal step)
{
    QVector<QPoint> all{corners.first().toPoint()};
    qreal untilStop = step;
    for (int i = 1; i < corners.size(); ++i) {
        const QLineF way(corners[i - 1], corners[i]);
        for (; untilStop <= way.length(); untilStop += step)
            all << way.pointAt(untilStop / way.length()).toPoint();
        untilStop -= way.length();
    }
    return all << corners.last().toPoint();
}

/** The dot half-way between two dots of the pad, or noGestureDot. */
int middleOf(int from, int to)
{
    return (from / 3 + to / 3) % 2 == 0 && (from % 3 + to % 3) % 2 == 0 ? (from + to) / 2 : noGestureDot;
}

/** Takes all nine dots, those half-way between two of them without being told. */
struct Pattern
{
    explicit Pattern(std::mt19937 &random)
    {
        while (taken.size() < gestureDots) {
            const int next = int(random() % gestureDots);
            const int middle = dots.isEmpty() ? noGestureDot : middleOf(dots.last(), next);
            if (taken.contains(QString::number(next)))
                continue;
            if (middle != noGestureDot && !taken.contains(QString::number(middle)))
                taken += QString::number(middle);
            taken += QString::number(next);
            dots << next;
        }
    }

    QVector<int> dots;
    QString taken;
};

/** Where a line between two points may be painted. */
QRegion around(const QPoint &from, const QPoint &to)
{
    return QPolygon(QVector<QPoint>{from, to}).boundingRect().adjusted(-8, -8, 8, 8);
}

} // namespace

class TestGesturePanel : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<QWidget>();
        window->setStyleSheet("QWidget { background-color: #18233a; }");
        window->resize(500, 500);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        open();
    }

    void strokes()
    {
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
            {{{250, 250}, {30, 30}, {29, 29}}, "80"},
            {{{50, 50}, {170, 50}, {270, 50}, {130, 170}}, "0124"},
            {{{100, 100}, {150, 150}, {150, 290}}, ""}}; // the press is beside the dots
        for (const auto &[moves, expected] : rows) {
            open();
            draw(moves);
            QVERIFY2(drawn.join('|') == expected, qPrintable(drawn.join('|') + " for " + expected));
        }
    }

    void everyPatternCanBeDrawn()
    {
        std::mt19937 random(20240229);
        for (const int step : {1, 10, 13, 40, 80}) {
            for (int left = 6 * step; left > 0; --left) {
                const Pattern pattern(random);
                QCOMPARE(drawOver(pattern.dots, step), pattern.taken);
            }
        }
    }

    void clickLeavesThePadReady()
    {
        press({50, 50});
        release();
        press({100, 100});
        moveTo({150, 150});
        release();
        QCOMPARE(drawn, QStringList("4"));
    }

    void gestureStaysOnShow()
    {
        draw(topRow);
        draw({{50, 250}, {170, 250}});
        QCOMPARE(drawn, QStringList("012"));
        QCOMPARE(dotHues() + hues({{100, 50}}), QString("bbb------b"));
        QTRY_COMPARE(dotHues() + hues({{100, 50}}), QString("----------"));
        draw({{100, 100}, {150, 150}, {150, 290}}); // the press is forgotten as well
        QCOMPARE(drawn, QStringList("012"));
        draw(topRow);
        QCOMPARE(drawn, QStringList({"012", "012"}));
    }

    void trailEndsAtThePointer()
    {
        draw({{50, 50}, {170, 50}, {150, 170}, {150, 200}}, false);
        QCOMPARE(hues({{150, 190}}), QString("b"));
        release(); // beside the dots
        QCOMPARE(hues({{150, 190}}), QString("-"));
        QCursor::setPos(pad->mapToGlobal({250, 150}));
        QCOMPARE(hues({{200, 150}}), QString("-"));
        QCursor::setPos(pad->mapToGlobal({50, 50}));
        QCOMPARE(hues({{100, 100}}), QString("b"));
    }

    void wrongGestureIsRed()
    {
        connect(pad, &GesturePanel::signalGesturePwd, pad, &GesturePanel::setError);
        draw(topRow);
        QCOMPARE(dotHues() + hues({{100, 50}, {200, 50}}), QString("rrr------rr"));
        QTRY_COMPARE(dotHues() + hues({{100, 50}}), QString("----------"));
        draw(topRow, false);
        QCOMPARE(hues({{100, 50}}), QString("b"));
    }

    void picturesOfDotsAtRest()
    {
        for (const int style : {1, 0, 7}) {
            pad->setPointStyle(style);
            for (const QPoint &centre : centres())
                QCOMPARE(window->grab().toImage().pixelColor(padPosition + centre + QPoint(0, 10)).name(),
                         QString(style == 0 ? "#192741" : "#0e1623"));
        }
    }

    void receiverMayDestroyThePanel()
    {
        connect(pad, &GesturePanel::signalGesturePwd, this, [this] { delete pad; });
        draw(topRow);
        QVERIFY(!pad);
    }

    void receiverMayWait()
    {
        connect(pad, &GesturePanel::signalGesturePwd, this, [this] {
            if (drawn.size() > 1)
                return;
            pad->setError();
            QMouseEvent move(QEvent::MouseMove, {250, 170}, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(pad, &move);
            QTest::mouseRelease(pad.data(), Qt::LeftButton, {}, {250, 170});
            QTest::qWait(600); // an alert, open for longer than a gesture is on show
        });
        draw(topRow);
        QCOMPARE(drawn, QStringList("012"));
        QCOMPARE(dotHues() + hues({{100, 50}}), QString("rrr------r"));
        QTRY_COMPARE(hues({{100, 50}}), QString("-"));
    }

    void strokePaintsAlongItsLinesOnly()
    {
        draw({{50, 50}}, false);
        pad->installEventFilter(this);
        const QVector<QPair<QPoint, int>> moves{{{90, 60}, 0},   {{170, 50}, 1},  {{270, 50}, 2},  {{200, 110}, 2},
                                                {{130, 170}, 4}, {{270, 151}, 5}, {{130, 270}, 7}, {{20, 20}, 7}};
        QPoint last(50, 50);
        QPoint trailEnd(50, 50);
        for (const auto &[pointer, index] : moves) {
            const QPoint dot = centres()[index];
            QRegion allowed = around(last, trailEnd) + around(last, dot) + around(dot, pointer);
            if (dot != last)
                allowed += QRect(dot - QPoint(20, 20), QSize(40, 40));
            painted = QRegion();
            moveTo(pointer);
            QVERIFY(!painted.isEmpty() && (painted - allowed).isEmpty());
            int pixels = 0;
            for (const QRect &rect : painted)
                pixels += rect.width() * rect.height();
            QVERIFY2(pixels < padSize * padSize / 4, "the box of a slanting line");
            // On the screen nothing is left of the lines before, and nothing of the new ones is missing.
            QCOMPARE(window->screen()->grabWindow(window->winId()).toImage(), window->grab().toImage());
            last = dot;
            trailEnd = pointer;
        }
        release();
        QCOMPARE(drawn, QStringList("012457"));
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }

private:
    void open()
    {
        delete pad;
        drawn.clear();
        pad = new GesturePanel(window.get());
        pad->setGeometry(QRect(padPosition, QSize(padSize, padSize)));
        connect(pad, &GesturePanel::signalGesturePwd, this, [this](const QString &pwd) { drawn.append(pwd); });
        pad->show();
    }

    GestureCentres centres() const
    {
        GestureCentres all;
        for (const GesturePoint *point : pad->findChildren<GesturePoint *>())
            all[point->getIndex()] = point->pos() + QPoint(20, 20);
        return all;
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

    void draw(const QVector<QPoint> &moves, bool isReleased = true)
    {
        press(moves.first() - QPoint(1, 0));
        for (const QPoint &move : moves)
            moveTo(move);
        if (isReleased)
            release();
    }

    /** What a new pad makes of a pointer that goes past each of these dots, back over it and on to the next. */
    QString drawOver(const QVector<int> &dots, int step)
    {
        open();
        const GestureCentres at = centres();
        QVector<QPointF> corners{at[dots.first()]};
        for (int i = 1; i < dots.size(); ++i)
            corners << beyond(at[dots[i - 1]], at[dots[i]], 45) << at[dots[i]];
        draw(stops(corners, step));
        return drawn.join('|');
    }

    /** The colours there: b(lue), r(ed) or another. */
    QString hues(const QVector<QPoint> &places) const
    {
        const QImage image = window->grab().toImage();
        QString all;
        for (const QPoint &place : places) {
            const QColor colour = image.pixelColor(padPosition + place);
            const int blue = colour.blue() - colour.red();
            all += blue > 60 ? 'b' : blue < -40 ? 'r' : '-';
        }
        return all;
    }

    QString dotHues() const
    {
        QVector<QPoint> places;
        for (const QPoint &centre : centres())
            places << centre + QPoint(3, 3);
        return hues(places);
    }

    const QVector<QPoint> topRow{{50, 50}, {170, 50}, {270, 50}};
    std::unique_ptr<QWidget> window;
    QPointer<GesturePanel> pad;
    QStringList drawn;
    QRegion painted;
};

QTEST_MAIN(TestGesturePanel)
#include "tst_gesturepanel.moc"
