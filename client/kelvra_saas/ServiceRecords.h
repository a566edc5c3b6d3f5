#pragma once

#include "client/kelvra_saas/JsonFile.h"

#include <QDateTime>
#include <QMap>

namespace kelvra_saas {

/** What the simulated cloud remembers of an account. */
struct ServiceRecord
{
    int errors = 0;      ///< in a row, none longer than the window after the one before
    QDateTime lastError; ///< null: none
    QDateTime lockedUntil;
    QMap<QString, QByteArray> terminals; ///< the trusted ones, each with the hash of its token
};

/** The records of the simulated cloud by phone number; they outlive the program. */
class ServiceRecords
{
public:
    static const QString fileName;

    /** An empty path: in memory only. */
    explicit ServiceRecords(const QString &filePath);

    ServiceRecord of(const QString &phone) const { return records.value(phone); }
    void set(const QString &phone, const ServiceRecord &record);

private:
    void save() const;

    JsonFile file;
    QMap<QString, ServiceRecord> records;
};

} // namespace kelvra_saas
