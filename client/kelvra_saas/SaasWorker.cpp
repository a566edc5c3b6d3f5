#include "host/kelvra_saas/SaasWorker.h"

#include <QTimer>

ZSINGLETON_DEFINE(kelvra_saas::SaasWorker)

namespace {

constexpr int tickMilliseconds = 1000;

} // namespace

namespace kelvra_saas {

class SaasWorker::Private
{
public:
    QTimer timer;
    int remaining = 0;
};

SaasWorker::SaasWorker()
    : d(std::make_unique<Private>())
{
    d->timer.setInterval(tickMilliseconds);
    connect(&d->timer, &QTimer::timeout, this, [this] {
        if (--d->remaining == 0)
            d->timer.stop();
        emit signalGetVerificationCodeRemainingSecs(d->remaining);
    });
}

SaasWorker::~SaasWorker() = default;

int SaasWorker::getVerificationCodeRemainingSecs() const
{
    return d->remaining;
}

void SaasWorker::resetVerificationCodeRemainingSecs(int seconds)
{
    const bool wasRunning = d->timer.isActive();
    d->remaining = qMax(0, seconds);
    if (d->remaining > 0) {
        d->timer.start();
    } else if (wasRunning) {
        d->timer.stop();
        emit signalGetVerificationCodeRemainingSecs(0);
    }
}

} // namespace kelvra_saas
