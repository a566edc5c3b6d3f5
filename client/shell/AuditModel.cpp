#include "client/shell/AuditModel.h"

#include "client/kelvra_worker/AuditEvent.h"
#include "client/shell/SessionInfo.h"

#include <QColor>

using kelvra_data::AuditEntry;
using kelvra_worker::AuditEvent;

namespace kelvra_client {

namespace {

const QColor alarmColor(0xe0, 0x6c, 0x6c);

bool isAlarm(const AuditEntry &entry)
{
    return entry.event == kelvra_worker::auditWord(AuditEvent::LoginFailure) ||
           entry.event == kelvra_worker::auditWord(AuditEvent::Lock);
}

} // namespace

AuditModel::AuditModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void AuditModel::setEntries(const QVector<AuditEntry> &newestFirst)
{
    beginResetModel();
    entries = newestFirst.mid(0, capacity);
    endResetModel();
}

void AuditModel::add(const AuditEntry &entry)
{
    if (entries.size() == capacity) {
        beginRemoveRows({}, capacity - 1, capacity - 1);
        entries.removeLast();
        endRemoveRows();
    }
    beginInsertRows({}, 0, 0);
    entries.prepend(entry);
    endInsertRows();
}

void AuditModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!entries.isEmpty())
        emit dataChanged(index(0, 0), index(entries.size() - 1, ColumnCount - 1));
}

int AuditModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : entries.size();
}

int AuditModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant AuditModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const AuditEntry &entry = entries.at(index.row());
    switch (role) {
    case SortRole:
        return index.column() == TimeColumn ? QVariant(entry.at) : QVariant(text(entry, index.column()));
    case Qt::DisplayRole:
        return text(entry, index.column());
    case Qt::ToolTipRole:
        return index.column() >= UserColumn ? QVariant(text(entry, index.column())) : QVariant();
    case Qt::ForegroundRole:
        return index.column() == EventColumn && isAlarm(entry) ? QVariant(alarmColor) : QVariant();
    default:
        return {};
    }
}

QVariant AuditModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case EventColumn:
        return tr("Event");
    case UserColumn:
        return tr("User");
    case DetailsColumn:
        return tr("Details");
    default:
        return {};
    }
}

QString AuditModel::text(const AuditEntry &entry, int column) const
{
    switch (column) {
    case TimeColumn:
        return entry.at.toLocalTime().toString(SessionInfo::timeFormat);
    case EventColumn:
        return kelvra_worker::translatedAuditWord(entry.event);
    case UserColumn:
        return entry.user;
    default:
        return details(entry);
    }
}

QString AuditModel::details(const AuditEntry &entry)
{
    QStringList parts;
    if (entry.method == SessionInfo::GestureMethod)
        parts << tr("by gesture");
    else if (entry.method == SessionInfo::PasswordMethod)
        parts << tr("by password");
    else if (entry.method == SessionInfo::CloudMethod)
        parts << tr("by cloud account");
    if (entry.autoLogin > 0)
        parts << tr("automatic login from now on");
    if (entry.seconds >= 0)
        parts << tr("for %1 seconds").arg(entry.seconds);
    return parts.join(tr(", ", "between details"));
}

} // namespace kelvra_client
