#include "client/shell/UsersModel.h"

#include "client/shell/SessionInfo.h"

using kelvra_data::OrdinaryUser;

namespace kelvra_client {

UsersModel::UsersModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void UsersModel::setUsers(const QVector<OrdinaryUser> &list)
{
    if (users == list)
        return;
    beginResetModel();
    users = list;
    endResetModel();
}

int UsersModel::rowOf(const QString &name) const
{
    for (int row = 0; row < users.size(); ++row) {
        if (users.at(row).name == name)
            return row;
    }
    return -1;
}

void UsersModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!users.isEmpty())
        emit dataChanged(index(0, 0), index(users.size() - 1, ColumnCount - 1));
}

int UsersModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : users.size();
}

int UsersModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant UsersModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || (role != Qt::DisplayRole && role != SortRole))
        return {};
    const OrdinaryUser &user = users.at(index.row());
    switch (index.column()) {
    case NameColumn:
        return user.name;
    case LastLoginColumn:
        if (role == SortRole)
            return user.lastLogin;
        return user.lastLogin.isValid() ? user.lastLogin.toString(SessionInfo::timeFormat) : tr("never");
    case AutoLoginColumn:
        return user.autoLogin ? tr("on") : tr("off");
    default:
        return user.gesture ? tr("set", "gesture") : tr("not set", "gesture");
    }
}

QVariant UsersModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("User name");
    case LastLoginColumn:
        return tr("Last login");
    case AutoLoginColumn:
        return tr("Automatic login");
    case GestureColumn:
        return tr("Gesture");
    default:
        return {};
    }
}

} // namespace kelvra_client
