#pragma once

#include <QSortFilterProxyModel>

namespace kelvra_client {

/** An AuditModel in the order that the user asks for; equal entries in the order of their arrival. */
class AuditOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit AuditOrder(QObject *parent = nullptr);

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
};

} // namespace kelvra_client
