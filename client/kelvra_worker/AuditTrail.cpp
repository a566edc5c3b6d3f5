#include "client/kelvra_worker/AuditTrail.h"

#include "client/kelvra_data/Store.h"
#include "client/kelvra_worker/FailureNotice.h"

#include <QDateTime>

ZSINGLETON_DEFINE(kelvra_worker::AuditTrail)

namespace kelvra_worker {

AuditTrail::AuditTrail() = default;

AuditTrail::~AuditTrail() = default;

void AuditTrail::write(AuditEvent event, const QString &user, int method, int autoLogin, int seconds)
{
    kelvra_data::AuditEntry entry;
    entry.at = QDateTime::currentDateTime();
    entry.event = auditWord(event);
    entry.user = user;
    entry.method = method;
    entry.autoLogin = autoLogin;
    entry.seconds = seconds;
    if (kelvra_data::Store::_instance().appendAudit(entry)) {
        emit entryAdded(entry);
    } else if (!failureReported) {
        failureReported = true;
        FailureNotice::show(tr("The audit log cannot be written; events go unrecorded."));
    }
}

} // namespace kelvra_worker
