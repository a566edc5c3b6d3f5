#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QString>

namespace kelvra_worker {
class SystemAssistant;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::SystemAssistant)

namespace kelvra_worker {

/** Alerts in the client's look. */
class KELVRA_WORKER_EXPORT SystemAssistant : public ZCOMMON::ZSingleton<SystemAssistant>
{
public:
    /**
     * Shows a modal alert and blocks in an event loop of its own until the user has closed it.
     *
     * Timers and callbacks run meanwhile: the caller may be gone when this returns.
     */
    void messageAlert(const QString &title, const QString &text);

private:
    friend class ZCOMMON::ZSingleton<SystemAssistant>;
    SystemAssistant();
    ~SystemAssistant();
};

} // namespace kelvra_worker
