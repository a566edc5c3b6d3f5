#pragma once

#include "client/kelvra_data/UserAdmin.h"

#include <QAbstractTableModel>
#include <QVector>

namespace kelvra_client {

/** The ordinary local users as last read. */
class UsersModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, LastLoginColumn, AutoLoginColumn, GestureColumn, ColumnCount };

    static constexpr int SortRole = Qt::UserRole;

    explicit UsersModel(QObject *parent = nullptr);

    /** Takes over what has changed; a selection survives where nothing has. */
    void setUsers(const QVector<kelvra_data::OrdinaryUser> &list);

    QString name(int row) const { return users.at(row).name; }
    bool hasGesture(int row) const { return users.at(row).gesture; }
    /** Row of that user, -1 when there is none. */
    int rowOf(const QString &name) const;

    /** To be called when the language has changed. */
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QVector<kelvra_data::OrdinaryUser> users;
};

} // namespace kelvra_client
