#include "login/gesture/GesturePanel.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int rounds = 20;
constexpr int pixelsPerMove = 4;
constexpr int giveUpMs = 1000;   // without a move that the pointer has made
constexpr qreal legLength = 220; // pixels, about that of the stroke's legs
constexpr QSize padSize(300, 300);
// Long slanting ways past all nine dots.
const QVector<QPointF> stroke{{50, 50},  {260, 155}, {41, 259},  {154, 41}, {255, 259},
                              {41, 145}, {259, 45},  {145, 260}, {155, 130}};

/** What the panel is measured against: one polyline, painted as a whole at each move. */
class Polyline : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        if (points.size() < 2 || QLineF(points.last(), points.at(points.size() - 2)).length() > legLength)
            points.append(event->pos());
        points.last() = event->pos();
        update();
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(0x2c, 0x7d, 0xce));
        painter.drawPolyline(points);
    }

private:
    QPolygon points;
};

/** What a move of the mouse costs on a pad, from the event to the painted picture. */
class Measurement : public QObject
{
public:
    template <typename Pad>
    void run()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QWidget { background-color: #18233a; }"));
        window.setFixedSize(padSize);
        Pad pad(&window);
        pad.resize(padSize);
        // The window system knows of no button that is held.
        pad.setMouseTracking(true);
        for (auto *child : pad.template findChildren<QWidget *>())
            child->setMouseTracking(true);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            std::exit(1);
        pad.installEventFilter(this); // for its painting
        window.windowHandle()->installEventFilter(this);
        moveTo(window, stroke.first().toPoint());
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, stroke.first().toPoint());
        for (int leg = 1; leg < stroke.size(); ++leg)
            draw(window, QLineF(stroke.at(leg - 1), stroke.at(leg)));
    }

    void print(const char *name)
    {
        const auto middle = nanoseconds.begin() + nanoseconds.size() / 2;
        std::nth_element(nanoseconds.begin(), middle, nanoseconds.end());
        std::printf("gesture_%s_us %.2f\ngesture_%s_pixels %d\n", name, double(*middle) / 1000, name,
                    pixels / nanoseconds.size());
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove && watched->isWindowType() && !moved) {
            moved = true;
            timer.start();
        }
        if (event->type() == QEvent::Paint)
            for (const QRect &rect : static_cast<QPaintEvent *>(event)->region())
                pixels += rect.width() * rect.height();
        return QObject::eventFilter(watched, event);
    }

private:
    /** From when the move has come until it is painted; the pointer's way to the program is not the pad's. */
    void moveTo(const QWidget &window, const QPoint &place)
    {
        moved = false;
        QCursor::setPos(window.mapToGlobal(place));
        const QDeadlineTimer deadline(giveUpMs);
        while (!moved && !deadline.hasExpired())
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        if (moved)
            nanoseconds.append(timer.nsecsElapsed());
    }

    void draw(const QWidget &window, const QLineF &way)
    {
        for (int move = 1; move * pixelsPerMove < way.length(); ++move) {
            moveTo(window, way.pointAt(move * pixelsPerMove / way.length()).toPoint());
            if (!moved)
                std::exit(1);
        }
    }

    bool moved = false;
    QElapsedTimer timer;
    QVector<qint64> nanoseconds;
    int pixels = 0;
};

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_XCB_GL_INTEGRATION", "none"); // as the client has it
    const QApplication application(argc, argv);
    for (int round = 0; round < rounds; ++round) {
        Measurement panel;
        Measurement polyline;
        panel.run<kelvra_login::GesturePanel>();
        polyline.run<Polyline>();
        if (round == 0)
            continue; // loads pictures, makes the first window
        panel.print("panel");
        polyline.print("polyline");
    }
    return 0;
}
