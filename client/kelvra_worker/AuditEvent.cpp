#include "client/kelvra_worker/AuditEvent.h"

#include "client/kelvra_data/AuditEntry.h"

#include <QCoreApplication>

#include <iterator>
#include <string_view>

namespace kelvra_worker {

namespace {

// In the order of AuditEvent. The words are stored: one that has been used keeps its meaning.
constexpr const char *words[] = {
    QT_TRANSLATE_NOOP("AuditEvent", "login success"),
    QT_TRANSLATE_NOOP("AuditEvent", "login failure"),
    QT_TRANSLATE_NOOP("AuditEvent", "lock"),
    QT_TRANSLATE_NOOP("AuditEvent", "add gesture"),
    QT_TRANSLATE_NOOP("AuditEvent", "update gesture"),
    QT_TRANSLATE_NOOP("AuditEvent", "delete gesture"),
    QT_TRANSLATE_NOOP("AuditEvent", "open automatic login"),
    QT_TRANSLATE_NOOP("AuditEvent", "cancel automatic login"),
    QT_TRANSLATE_NOOP("AuditEvent", "get back password"),
    QT_TRANSLATE_NOOP("AuditEvent", "reset password"),
    QT_TRANSLATE_NOOP("AuditEvent", "export login credentials"),
    QT_TRANSLATE_NOOP("AuditEvent", "create user"),
    QT_TRANSLATE_NOOP("AuditEvent", "add user"),
    QT_TRANSLATE_NOOP("AuditEvent", "remove user"),
    QT_TRANSLATE_NOOP("AuditEvent", "set password"),
    QT_TRANSLATE_NOOP("AuditEvent", "superuser replaced"),
};
static_assert(std::size(words) == std::size_t(AuditEvent::ReplaceSuperUser) + 1);
static_assert(words[int(AuditEvent::ReplaceSuperUser)] == std::string_view(kelvra_data::superUserReplacedEvent));

} // namespace

QString auditWord(AuditEvent event)
{
    return QLatin1String(words[int(event)]);
}

QString translatedAuditWord(const QString &word)
{
    return QCoreApplication::translate("AuditEvent", word.toUtf8().constData());
}

} // namespace kelvra_worker
