#include "client/shell/AuditOrder.h"

#include "client/shell/AuditModel.h"

namespace kelvra_client {

AuditOrder::AuditOrder(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setSortRole(AuditModel::SortRole);
    setSortLocaleAware(true);
}

bool AuditOrder::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    if (QSortFilterProxyModel::lessThan(left, right))
        return true;
    // A login and what follows from it may share a millisecond. The model has the newest first.
    return !QSortFilterProxyModel::lessThan(right, left) && left.row() > right.row();
}

} // namespace kelvra_client
