#include "client/kelvra_saas/ServiceRecords.h"

namespace kelvra_saas {

namespace {

const QString errorsKey = QStringLiteral("errors");
const QString lastErrorKey = QStringLiteral("lastError");
const QString lockedUntilKey = QStringLiteral("lockedUntil");
const QString terminalsKey = QStringLiteral("terminals");

QDateTime toTime(const QJsonValue &value)
{
    return QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
}

QString toText(const QDateTime &time)
{
    return time.toUTC().toString(Qt::ISODateWithMs);
}

ServiceRecord toRecord(const QJsonObject &object)
{
    ServiceRecord record;
    record.errors = qMax(0, object.value(errorsKey).toInt());
    record.lastError = toTime(object.value(lastErrorKey));
    record.lockedUntil = toTime(object.value(lockedUntilKey));
    const QJsonObject terminals = object.value(terminalsKey).toObject();
    for (auto it = terminals.begin(); it != terminals.end(); ++it)
        record.terminals.insert(it.key(), QByteArray::fromHex(it.value().toString().toLatin1()));
    return record;
}

QJsonObject toObject(const ServiceRecord &record)
{
    QJsonObject terminals;
    for (auto it = record.terminals.begin(); it != record.terminals.end(); ++it)
        terminals.insert(it.key(), QString::fromLatin1(it.value().toHex()));
    return {{errorsKey, record.errors},
            {lastErrorKey, toText(record.lastError)},
            {lockedUntilKey, toText(record.lockedUntil)},
            {terminalsKey, terminals}};
}

} // namespace

const QString ServiceRecords::fileName = QStringLiteral("cloud_service.json");

ServiceRecords::ServiceRecords(const QString &filePath)
    : file(filePath)
{
    const QJsonObject all = file.read();
    for (auto it = all.begin(); it != all.end(); ++it)
        records.insert(it.key(), toRecord(it.value().toObject()));
}

void ServiceRecords::set(const QString &phone, const ServiceRecord &record)
{
    records.insert(phone, record);
    save();
}

void ServiceRecords::save() const
{
    QJsonObject all;
    for (auto it = records.begin(); it != records.end(); ++it)
        all.insert(it.key(), toObject(it.value()));
    file.write(all);
}

} // namespace kelvra_saas
