#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QObject>

#include <memory>

namespace kelvra_saas {
class SaasWorker;
}

ZSINGLETON_DECLARE(KELVRA_SAAS_EXPORT, kelvra_saas::SaasWorker)

namespace kelvra_saas {

/** The countdown until another SMS code may be asked for; it outlives the pages that show it. */
class KELVRA_SAAS_EXPORT SaasWorker : public QObject, public ZCOMMON::ZSingleton<SaasWorker>
{
    Q_OBJECT

public:
    /** Seconds left, 0 when no countdown runs. */
    int getVerificationCodeRemainingSecs() const;

    /** Starts the countdown anew from `seconds`. */
    void resetVerificationCodeRemainingSecs(int seconds);

signals:
    /** The seconds left, as the countdown runs; 0 once when it is over. */
    void signalGetVerificationCodeRemainingSecs(int seconds);

private:
    friend class ZCOMMON::ZSingleton<SaasWorker>;
    SaasWorker();
    ~SaasWorker() override;

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_saas
