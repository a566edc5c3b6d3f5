#include "login/gesture/GesturePanel.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QtTest>

#include <cstdio>

namespace {

constexpr int rounds = 20;
constexpr int pixelsPerMove = 4;
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

class Measurement : public QObject
{
public:
    template <typename Pad>
    void run()
    {
        for (int round = 0; round < rounds; ++round) {
            QWidget window;
            window.setStyleSheet(QStringLiteral("QWidget { background-color: #18233a; }"));
            window.setFixedSize(padSize);
            Pad pad(&window);
            pad.resize(padSize);
            window.show();
            (void)QTest::qWaitForWindowExposed(&window);
            QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, stroke.first().toPoint());
            pad.installEventFilter(this);
            for (int leg = 1; leg < stroke.size(); ++leg)
                draw(window, QLineF(stroke.at(leg - 1), stroke.at(leg)));
        }
    }

    double microseconds() const { return double(nanoseconds) / 1000 / moves; }
    double area() const { return double(pixels) / moves; }

    void print(const char *name) const
    {
        std::printf("%-14s %6.1f us and %6.0f painted pixels for each of %d moves\n", name, microseconds(), area(),
                    moves);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            for (const QRect &rect : static_cast<QPaintEvent *>(event)->region())
                pixels += rect.width() * rect.height();
        return QObject::eventFilter(watched, event);
    }

private:
    void draw(const QWidget &window, const QLineF &way)
    {
        for (qreal at = pixelsPerMove; at < way.length(); at += pixelsPerMove) {
            const QPoint pointer = window.mapToGlobal(way.pointAt(at / way.length()).toPoint());
            QElapsedTimer timer;
            timer.start();
            QCursor::setPos(pointer); // brings the move
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents();
            nanoseconds += timer.nsecsElapsed();
            ++moves;
        }
    }

    qint64 nanoseconds = 0;
    qint64 pixels = 0;
    int moves = 0;
};

} // namespace

/** What a move of the mouse costs on the gesture pad, from the event to the painted picture. */
int main(int argc, char *argv[])
{
    // The stand-in screen, which turns a set cursor into a mouse event.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Measurement panel;
    Measurement polyline;
    panel.run<kelvra_login::GesturePanel>();
    polyline.run<Polyline>();
    panel.print("gesture panel");
    polyline.print("bare polyline");
    std::printf("ratio of times %.2f, of areas %.2f\n", panel.microseconds() / polyline.microseconds(),
                panel.area() / polyline.area());
    return 0;
}
