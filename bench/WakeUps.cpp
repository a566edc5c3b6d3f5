#include "WakeUps.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QTimerEvent>

WakeUps::WakeUps(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

QMap<QByteArray, int> WakeUps::count(int milliseconds)
{
    timers.clear();
    loopTurns = 0;
    ended = false;
    startTimer(milliseconds, Qt::PreciseTimer);
    while (!ended) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ++loopTurns;
    }
    return timers;
}

bool WakeUps::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Timer && watched != this) {
        const QObject *owner = watched->inherits("QTimer") && watched->parent() ? watched->parent() : watched;
        ++timers[owner->metaObject()->className()];
    }
    return false;
}

void WakeUps::timerEvent(QTimerEvent *event)
{
    killTimer(event->timerId());
    ended = true;
}
