#pragma once

#include "client/kelvra_data/AuditEntry.h"
#include "client/kelvra_worker/AuditEvent.h"
#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QObject>
#include <QString>

namespace kelvra_worker {
class AuditTrail;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::AuditTrail)

namespace kelvra_worker {

/** The way of every event into the audit log, and the news that it has arrived. For the client itself. */
class KELVRA_WORKER_EXPORT AuditTrail : public QObject, public ZCOMMON::ZSingleton<AuditTrail>
{
    Q_OBJECT

public:
    /**
     * Writes an event that happens now; the numbers are AuditEntry's. That the log cannot be written is told
     * to the user once.
     */
    void write(AuditEvent event, const QString &user, int method = -1, int autoLogin = -1, int seconds = -1);

signals:
    /** The entry stands in the log. */
    void entryAdded(const kelvra_data::AuditEntry &entry);

private:
    friend class ZCOMMON::ZSingleton<AuditTrail>;
    AuditTrail();
    ~AuditTrail() override;

    bool failureReported = false;
};

} // namespace kelvra_worker
