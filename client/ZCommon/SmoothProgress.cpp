#include "host/ZCommon/SmoothProgress.h"

#include <QTimer>

namespace ZCOMMON {

namespace {

constexpr int stepMilliseconds = 15;
constexpr int stepDivisor = 16; ///< of the distance that is left: 0 to 100 takes about three quarters of a second

} // namespace

class SmoothProgress::Private
{
public:
    QTimer timer;
    int value = 0;
    int target = 0;

    /** Goes one step toward the target and stops on it. */
    int step()
    {
        const int distance = target - value;
        const int stride = qMax(1, qAbs(distance) / stepDivisor);
        value += distance < 0 ? -stride : stride;
        if (value == target)
            timer.stop();
        return value;
    }
};

SmoothProgress::SmoothProgress(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->timer.setTimerType(Qt::PreciseTimer);
    d->timer.setInterval(stepMilliseconds);
    // The emission comes last: a slot may give a new target or delete this object.
    connect(&d->timer, &QTimer::timeout, this, [this] { emit signalProgress(d->step()); });
}

SmoothProgress::~SmoothProgress() = default;

void SmoothProgress::setCurrentProgress(int value)
{
    d->target = value;
    if (d->value == value)
        d->timer.stop();
    else if (!d->timer.isActive())
        d->timer.start();
}

void SmoothProgress::stopProgressSmoothChange()
{
    d->timer.stop();
}

void SmoothProgress::resetProgress()
{
    d->timer.stop();
    d->value = 0;
    d->target = 0;
}

} // namespace ZCOMMON
