#include "FirstPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWindow>

#include <chrono>

namespace {

constexpr int loginWidth = 860; // pixels

} // namespace

FirstPaint::FirstPaint(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

void FirstPaint::expectNext()
{
    paintedNs = 0;
}

void FirstPaint::wait() const
{
    while (!isPainted())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

qint64 FirstPaint::now()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(system_clock::now().time_since_epoch()).count();
}

bool FirstPaint::eventFilter(QObject *watched, QEvent *event)
{
    if (delivering && event->type() == QEvent::Paint)
        ++paints;
    if (isPainted() || delivering || event->type() != QEvent::Expose)
        return false;
    const auto *window = qobject_cast<QWindow *>(watched);
    if (!window || window->width() < loginWidth)
        return false;
    // A window paints itself while it handles this event, so it is handed on from here to see the end of that.
    delivering = true;
    paints = 0;
    QCoreApplication::sendEvent(watched, event);
    delivering = false;
    if (paints > 0) {
        paintedNs = now();
        emit signalPainted();
    }
    return true;
}
