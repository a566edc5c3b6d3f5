#include "login/gesture/GesturePanel.h"
#include "login/gesture/GesturePoint.h"

#include <QScreen>
#include <QtTest>

using namespace kelvra_login;

namespace {

constexpr int padSize = 300;
const QPoint padPosition(100, 100); // with room for a pointer that leaves the pad

/** Goes straight ways and stops after every step, counted in pixels over all of them. */
struct Walker
{
    QPointF position;
    qreal step;
    qreal untilStop;

    template <typename Stop>
    void go(const QPointF &to, const Stop &stop)
    {
        QLineF way(position, to);
        for (; way.length() >= untilStop; untilStop = step) {
            way.setP1(way.pointAt(untilStop / way.length()));
            stop(way.p1().toPoint());
        }
        untilStop -= way.length();
        position = to;
    }
};

QPointF beyond(const QPointF &from, const QPointF &to, qreal pixels)
{
    return QLineF(from, to).pointAt(1 + pixels / QLineF(from, to).length());
}

/** The dot half-way between two dots of the pad, or noGestureDot. */
int middleOf(int from, int to)
{
    return (from / 3 + to / 3) % 2 == 0 && (from % 3 + to % 3) % 2 == 0 ? (from + to) / 2 : noGestureDot;
}

/** Every pattern of the lock, drawn by the pad's rules: past each dot, back over it and on to the next. */
struct Lock
{
    struct Hand
    {
        Walker walker;
        QByteArray taken;
        GestureDotSet dots;
    };

    const GestureCentres centres;
    int patterns = 0;
    QByteArray wrong;

    void move(Hand &hand, const QPoint &pointer) const
    {
        const int dot = hand.taken.isEmpty() ? dotUnder(centres, pointer)
                                             : dotPassed(centres, hand.dots, centres[hand.taken.back() - '0'], pointer);
        if (dot != noGestureDot) {
            hand.taken += char('0' + dot);
            hand.dots.set(dot);
        }
    }

    void drawOn(const Hand &hand, const QByteArray &pattern)
    {
        const int last = pattern.back() - '0';
        for (int next = 0; next < gestureDots; ++next) {
            const int middle = middleOf(last, next);
            const auto isUsed = [&](int dot) { return pattern.contains(char('0' + dot)); };
            if (isUsed(next) || (middle != noGestureDot && !isUsed(middle)))
                continue;
            const QByteArray longer = pattern + char('0' + next);
            Hand onward = hand;
            const auto stop = [&](const QPoint &pointer) { move(onward, pointer); };
            onward.walker.go(centres[last], stop);
            onward.walker.go(beyond(centres[last], centres[next], 45), stop);
            drawOn(onward, longer);
            if (longer.size() < 4)
                continue;
            ++patterns;
            stop(onward.walker.position.toPoint());
            if (onward.taken != longer)
                wrong = longer + " became " + onward.taken;
        }
    }
};

bool isBlue(const QColor &colour)
{
    return colour.blue() - colour.red() > 60;
}

bool isRed(const QColor &colour)
{
    return colour.red() - colour.blue() > 40;
}

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

    void strokes_data()
    {
        using Moves = QVector<QPoint>;
        QTest::addColumn<Moves>("moves"); // the press is a pixel left of the first
        QTest::addColumn<QString>("expected");
        QTest::newRow("one dot") << Moves{{60, 60}} << "0";
        QTest::newRow("reach of a dot") << Moves{{50, 69}} << "0";
        QTest::newRow("out of reach") << Moves{{70, 50}} << "";
        QTest::newRow("truncated distance") << Moves{{63, 65}} << "0";
        QTest::newRow("up to the next dot") << Moves{{50, 50}, {150, 50}} << "0";
        QTest::newRow("past the next dot") << Moves{{50, 50}, {151, 50}} << "01";
        QTest::newRow("20 px beside") << Moves{{50, 50}, {250, 90}} << "01";
        QTest::newRow("21 px beside") << Moves{{50, 50}, {250, 93}} << "0";
        QTest::newRow("straight down") << Moves{{50, 50}, {50, 200}, {50, 290}} << "036";
        QTest::newRow("back over a dot") << Moves{{50, 50}, {170, 50}, {20, 50}, {170, 50}} << "01";
        QTest::newRow("far outside") << Moves{{50, 50}, {-90, -90}, {390, 390}, {380, 380}} << "048";
        QTest::newRow("sparse, against the index") << Moves{{250, 50}, {30, 50}, {29, 50}} << "20";
        QTest::newRow("sparse, with the index") << Moves{{50, 50}, {270, 50}} << "01";
        QTest::newRow("sparse, a dot for each move") << Moves{{50, 50}, {270, 50}, {271, 50}} << "012";
        QTest::newRow("sparse, diagonal") << Moves{{250, 250}, {30, 30}, {29, 29}} << "80";
        QTest::newRow("past a row, then the centre") << Moves{{50, 50}, {170, 50}, {270, 50}, {130, 170}} << "0124";
        QTest::newRow("press beside the dots") << Moves{{100, 100}, {150, 150}, {150, 290}} << "";
    }

    void strokes()
    {
        QFETCH(const QVector<QPoint>, moves);
        draw(moves);
        QTEST(drawn.join('|'), "expected");
    }

    void movesBetweenTwoDots_data()
    {
        QTest::addColumn<int>("step");
        for (const int step : {1, 10, 40})
            QTest::addRow("%d px", step) << step;
    }

    void movesBetweenTwoDots()
    {
        QFETCH(const int, step);
        for (int from = 0; from < gestureDots; ++from) {
            for (int to = 0; to < gestureDots; ++to) {
                const int middle = middleOf(from, to);
                if (from != to && middle == noGestureDot)
                    QCOMPARE(drawOver({from, to}, step), QString("%1%2").arg(from).arg(to));
                if (from != to && middle != noGestureDot) {
                    QCOMPARE(drawOver({from, to}, step), QString("%1%2%3").arg(from).arg(middle).arg(to));
                    QCOMPARE(drawOver({middle, from, to}, step), QString("%1%2%3").arg(middle).arg(from).arg(to));
                }
            }
        }
    }

    void everyPatternCanBeDrawn()
    {
        for (const qreal firstStep : {80, 47, 13}) {
            Lock lock{centres(), 0, {}};
            for (int first = 0; first < gestureDots; ++first) {
                Lock::Hand hand{{lock.centres[first], 80, firstStep}, {}, {}};
                lock.move(hand, lock.centres[first] + QPoint(13, -13));
                lock.drawOn(hand, QByteArray::number(first));
            }
            QCOMPARE(lock.wrong, QByteArray());
            QCOMPARE(lock.patterns, 389112);
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
        QCOMPARE(blueDots(), QString("012"));
        QVERIFY(isBlue(colourAt({100, 50})));
        QTRY_COMPARE(blueDots(), QString());
        QVERIFY(!isBlue(colourAt({100, 50})));
        draw({{100, 100}, {150, 150}, {150, 290}}); // the press is forgotten as well
        QCOMPARE(drawn, QStringList("012"));
        draw(topRow);
        QCOMPARE(drawn, QStringList({"012", "012"}));
    }

    void trailEndsAtThePointer()
    {
        draw({{50, 50}, {170, 50}, {150, 170}, {150, 200}}, false);
        QVERIFY(isBlue(colourAt({150, 190})));
        release(); // beside the dots
        QVERIFY(!isBlue(colourAt({150, 190})));
        QCursor::setPos(pad->mapToGlobal({250, 150}));
        QVERIFY(!isBlue(colourAt({200, 150})));
        QCursor::setPos(pad->mapToGlobal({50, 50}));
        QVERIFY(isBlue(colourAt({100, 100})));
    }

    void wrongGestureIsRed()
    {
        connect(pad, &GesturePanel::signalGesturePwd, pad, &GesturePanel::setError);
        draw(topRow);
        QCOMPARE(blueDots(), QString());
        for (const QPoint &at : {QPoint(53, 53), QPoint(100, 50), QPoint(153, 53), QPoint(200, 50), QPoint(253, 53)})
            QVERIFY(isRed(colourAt(at)));
        QTRY_VERIFY(!isRed(colourAt({100, 50})));
        QVERIFY(!isRed(colourAt({53, 53})));
        draw(topRow, false);
        QVERIFY(isBlue(colourAt({100, 50})));
    }

    void picturesOfDotsAtRest()
    {
        for (const int style : {1, 0, 7}) {
            pad->setPointStyle(style);
            for (const QPoint &centre : centres())
                QCOMPARE(colourAt(centre + QPoint(0, 10)).name(), QString(style == 0 ? "#192741" : "#0e1623"));
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
        QCOMPARE(blueDots(), QString());
        QVERIFY(isRed(colourAt({100, 50})));
        QTRY_VERIFY(!isRed(colourAt({100, 50})));
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

    /** What a new pad makes of a pointer that goes past each of these dots and on to the next. */
    QString drawOver(const QVector<int> &dots, int step)
    {
        open();
        const GestureCentres at = centres();
        draw({at[dots.first()]}, false);
        Walker walker{at[dots.first()], qreal(step), qreal(step)};
        for (int i = 1; i < dots.size(); ++i)
            walker.go(beyond(at[dots[i - 1]], at[dots[i]], step + 1), [this](const QPoint &stop) { moveTo(stop); });
        release();
        return drawn.join('|');
    }

    QColor colourAt(const QPoint &at) const { return window->grab().toImage().pixelColor(padPosition + at); }

    QString blueDots() const
    {
        QString digits;
        for (int index = 0; index < gestureDots; ++index)
            digits += isBlue(colourAt(centres()[index] + QPoint(3, 3))) ? QString::number(index) : QString();
        return digits;
    }

    const QVector<QPoint> topRow{{50, 50}, {170, 50}, {270, 50}};
    std::unique_ptr<QWidget> window;
    QPointer<GesturePanel> pad;
    QStringList drawn;
    QRegion painted;
};

QTEST_MAIN(TestGesturePanel)
#include "tst_gesturepanel.moc"
