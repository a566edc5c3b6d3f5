#include "client/kelvra_data/Transaction.h"

#include <QSqlQuery>

namespace kelvra_data {

Transaction::Transaction(const QSqlDatabase &connection)
    : database(connection)
{
    // Takes the write lock now: a reader that turns writer later would be refused instead of waiting its turn.
    active = database.isOpen() && run(QStringLiteral("BEGIN IMMEDIATE"));
}

Transaction::~Transaction()
{
    if (active)
        run(QStringLiteral("ROLLBACK"));
}

bool Transaction::commit()
{
    if (!active || !run(QStringLiteral("COMMIT")))
        return false;
    active = false;
    return true;
}

bool Transaction::run(const QString &statement)
{
    return QSqlQuery(database).exec(statement);
}

} // namespace kelvra_data
