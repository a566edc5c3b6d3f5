#pragma once

#include "client/kelvra_data/AuditEntry.h"

#include <QAbstractTableModel>
#include <QVector>

namespace kelvra_client {

/** The newest entries of the audit log, the newest in row 0. */
class AuditModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, EventColumn, UserColumn, DetailsColumn, ColumnCount };

    static constexpr int capacity = 1000; ///< entries; older ones leave as new ones come
    static constexpr int SortRole = Qt::UserRole;

    explicit AuditModel(QObject *parent = nullptr);

    /** Replaces all entries; the newest comes first. */
    void setEntries(const QVector<kelvra_data::AuditEntry> &newestFirst);
    void add(const kelvra_data::AuditEntry &entry);

    /** To be called when the language has changed. */
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(const kelvra_data::AuditEntry &entry, int column) const;
    static QString details(const kelvra_data::AuditEntry &entry);

    QVector<kelvra_data::AuditEntry> entries;
};

} // namespace kelvra_client
