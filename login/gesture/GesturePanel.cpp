#include "login/gesture/GesturePanel.h"

#include "login/common/AccessibleFaces.h"
#include "login/gesture/GesturePoint.h"
#include "ui_GesturePanel.h"

#include <QCursor>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cstdlib>

namespace kelvra_login {

namespace {

constexpr int padColumns = 3;
constexpr int resetDelayMs = 500;
constexpr int lineStep = 32;  // pixels
constexpr int lineMargin = 4; // pixels: the pen, and a pointer that has gone on when the line is painted
const QColor lineColour(0x2c, 0x7d, 0xce);
const QColor errorLineColour(0xf4, 0x5b, 0x5b);

// The rectangle of a slanting line is mostly empty, so the line is followed in steps.
QRegion lineArea(const QPoint &from, const QPoint &to, const QRect &bounds)
{
    const QPoint way = to - from;
    const int steps = 1 + std::min(std::abs(way.x()), std::abs(way.y())) / lineStep;
    QRegion area;
    for (int step = 0; step < steps; ++step) {
        const QPolygon piece{QVector<QPoint>{from + way * step / steps, from + way * (step + 1) / steps}};
        area += piece.boundingRect().adjusted(-lineMargin, -lineMargin, lineMargin, lineMargin) & bounds;
    }
    return area;
}

} // namespace

GesturePanel::GesturePanel(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::GesturePanel>>())
    , overlay(new QWidget(this))
{
    AccessibleFaces::install();
    ui->setupUi(this);
    for (int index = 0; index < gestureDots; ++index) {
        points.append(new GesturePoint(index, this));
        ui->gridLayout->addWidget(points.last(), index / padColumns, index % padColumns, Qt::AlignCenter);
    }
    // Whatever background a style sheet gives to plain widgets would hide the dots.
    overlay->setAttribute(Qt::WA_NoSystemBackground);
    overlay->raise();
    overlay->installEventFilter(this);
}

GesturePanel::~GesturePanel() = default;

void GesturePanel::setError()
{
    if (selected.isEmpty())
        return;
    error = true;
    for (GesturePoint *point : qAsConst(selected))
        point->setState(GesturePoint::ErrorState);
    overlay->update();
}

void GesturePanel::setPointStyle(int style)
{
    for (GesturePoint *point : qAsConst(points))
        point->setPictureStyle(style);
}

void GesturePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

bool GesturePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == overlay && event->type() == QEvent::Paint)
        paintLines();
    return QWidget::eventFilter(watched, event);
}

void GesturePanel::mousePressEvent(QMouseEvent *event)
{
    if (!finished && pointUnder(event->pos()))
        pressed = true;
    event->accept();
}

void GesturePanel::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (!pressed || finished || isHandingOut)
        return;
    GesturePoint *const point = selected.isEmpty() ? pointUnder(event->pos()) : pointPassed(event->pos());
    if (point && point->getState() != GesturePoint::SelectedState)
        select(point);
    updateTrail(event->pos());
}

void GesturePanel::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (finished || isHandingOut || selected.isEmpty())
        return;
    const QPointer<GesturePanel> guard(this);
    isHandingOut = true;
    emit signalGesturePwd(gesture());
    if (!guard)
        return;
    isHandingOut = false;
    finished = true;
    overlay->update();
    ui->handlers.after(resetDelayMs, [this] { reset(); });
}

void GesturePanel::resizeEvent(QResizeEvent *event)
{
    overlay->setGeometry(rect());
    QWidget::resizeEvent(event);
}

GestureCentres GesturePanel::centres() const
{
    GestureCentres all;
    std::transform(points.begin(), points.end(), all.begin(),
                   [](const GesturePoint *point) { return point->getCentre(); });
    return all;
}

GesturePoint *GesturePanel::pointUnder(const QPoint &pointer) const
{
    return points.value(dotUnder(centres(), pointer));
}

GesturePoint *GesturePanel::pointPassed(const QPoint &pointer) const
{
    GestureDotSet taken;
    for (const GesturePoint *point : points)
        taken[point->getIndex()] = point->getState() == GesturePoint::SelectedState;
    return points.value(dotPassed(centres(), taken, selected.last()->getCentre(), pointer));
}

// Where the cursor is by now, which may be further on than the event being handled.
QPoint GesturePanel::cursorPoint() const
{
    return overlay->mapFromGlobal(QCursor::pos());
}

QString GesturePanel::gesture() const
{
    QString digits;
    for (const GesturePoint *point : selected)
        digits += QString::number(point->getIndex());
    return digits;
}

void GesturePanel::select(GesturePoint *point)
{
    point->setState(GesturePoint::SelectedState);
    selected.append(point);
    // Not isEmpty(): that says yes of a path with its start alone.
    if (path.elementCount() == 0) {
        path.moveTo(point->getCentre());
    } else {
        trailArea += lineArea(path.currentPosition().toPoint(), point->getCentre(), rect());
        path.lineTo(point->getCentre());
    }
}

// Where the pointer was at the move will do: asking the window system takes longer than the painting.
void GesturePanel::updateTrail(const QPoint &pointer)
{
    if (selected.isEmpty())
        return;
    overlay->update(trailArea + lineArea(path.currentPosition().toPoint(), pointer, rect()));
    trailArea = QRegion();
}

void GesturePanel::paintLines()
{
    if (path.elementCount() == 0)
        return;
    QPainter painter(overlay);
    painter.setRenderHint(QPainter::Antialiasing);
    // With any other cap a path's last piece would look different from the same piece once a dot follows it.
    painter.setPen(QPen(error ? errorLineColour : lineColour, 1, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(path);
    QPoint end = cursorPoint();
    if (finished) {
        GesturePoint *const point = pointUnder(end);
        if (!selected.contains(point))
            return;
        end = point->getCentre();
    }
    painter.drawLine(path.currentPosition(), end);
    trailArea += lineArea(path.currentPosition().toPoint(), end, rect());
}

void GesturePanel::reset()
{
    for (GesturePoint *point : qAsConst(points))
        point->setState(GesturePoint::NormalState);
    finished = false;
    error = false;
    selected.clear();
    path = QPainterPath();
    pressed = false;
    trailArea = QRegion();
    overlay->update();
}

} // namespace kelvra_login
