#pragma once

#include "host/Export.h"

#include <QSqlDatabase>

namespace kelvra_data {

/** A write transaction on the store; what has not been committed when it goes out of scope is undone. */
class KELVRA_DATA_EXPORT Transaction
{
public:
    explicit Transaction(const QSqlDatabase &connection);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    /** False when the database cannot be written, or another program has been writing for too long. */
    bool isActive() const { return active; }

    /** False when nothing was written. */
    bool commit();

private:
    bool run(const QString &statement);

    QSqlDatabase database;
    bool active = false;
};

} // namespace kelvra_data
