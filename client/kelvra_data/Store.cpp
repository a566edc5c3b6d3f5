#include "client/kelvra_data/Store.h"

#include "client/files/OrdinaryFile.h"
#include "client/kelvra_data/OwnerFolder.h"
#include "client/kelvra_data/Schema.h"
#include "client/kelvra_data/Transaction.h"
#include "client/kelvra_data/Vault.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

using kelvra_files::OrdinaryFile;

ZSINGLETON_DEFINE(kelvra_data::Store)

namespace {

constexpr int maxFailures = 5;
constexpr int lockSeconds = 180;
constexpr int saltBytes = 16;
constexpr int sqliteCorrupt = 11;
constexpr int sqliteNotADatabase = 26;

constexpr QFile::Permissions ownerFile = QFile::ReadOwner | QFile::WriteOwner;

const QString driver = QStringLiteral("QSQLITE");
const QString connectionName = QStringLiteral("kelvra_data");
const QString databaseFile = QStringLiteral("kelvra.db");
const QString keyFile = QStringLiteral("kelvra.key");
// What SQLite opens beside the database when it is there.
const QStringList databaseCompanions = {QStringLiteral("-wal"), QStringLiteral("-shm"), QStringLiteral("-journal")};
const QString busyTimeout = QStringLiteral("QSQLITE_BUSY_TIMEOUT=3000"); // milliseconds

// The value that tells whether the key file belongs to the database.
const QByteArray keyCheckPlace = QByteArrayLiteral("state.key_check");
const QString keyCheckText = QStringLiteral("kelvra");

/** Empty, or what may not be opened of the database and its companions. */
QString unfitFile(const QString &database)
{
    QString problem = OrdinaryFile::problem(database, OrdinaryFile::anySize);
    for (const QString &companion : databaseCompanions) {
        if (problem.isEmpty())
            problem = OrdinaryFile::problem(database + companion, OrdinaryFile::anySize);
    }
    return problem;
}

bool isDamage(const QSqlError &error)
{
    const int code = error.nativeErrorCode().toInt() & 0xff; // the rest tells variants apart
    return code == sqliteCorrupt || code == sqliteNotADatabase;
}

QVariant orNull(int value)
{
    return value < 0 ? QVariant(QVariant::Int) : QVariant(value);
}

// Qt binds a null text as NULL, which no column for a text takes.
QVariant textNotNull(const QVariant &value)
{
    return value.type() == QVariant::String && value.isNull() ? QVariant(QStringLiteral("")) : value;
}

int orAbsent(const QVariant &value)
{
    return value.isNull() ? -1 : value.toInt();
}

// A connection must be gone before the application object is.
void closeWithApplication()
{
    ZCOMMON::ZSingleton<kelvra_data::Store>::_instance().close();
}

} // namespace

namespace kelvra_data {

Store::Store()
    : keys(std::make_unique<Vault>())
{
}

// Nothing of Qt's is closed here: this runs after the application has gone, which has closed the store.
Store::~Store() = default;

bool Store::open(const QString &folder, QString *error)
{
    close();
    qRemovePostRoutine(closeWithApplication);
    qAddPostRoutine(closeWithApplication);

    bool created = false;
    const bool withoutKey = !QFileInfo::exists(QDir(folder).filePath(keyFile));
    const QString problem = openFiles(folder, &created);
    opened = problem.isEmpty();
    if (opened) {
        openFolder = QDir(folder).absolutePath();
    } else {
        close();
        if (created)
            QFile::remove(QDir(folder).filePath(databaseFile));
        if (created && withoutKey)
            QFile::remove(QDir(folder).filePath(keyFile));
    }
    if (error)
        *error = problem;
    return opened;
}

QString Store::openFiles(const QString &folder, bool *created)
{
    if (!QSqlDatabase::isDriverAvailable(driver))
        return tr("The SQLite driver of Qt is missing. Install the client anew, or this driver alone (on Debian the "
                  "package libqt5sql5-sqlite).");
    QString problem = OwnerFolder::prepare(folder);
    if (!problem.isEmpty())
        return problem;

    // Made here rather than by SQLite: the files that SQLite puts beside it get its permissions.
    const QString path = QDir(folder).filePath(databaseFile);
    problem = unfitFile(path);
    if (!problem.isEmpty())
        return problem;
    QFile file(path);
    *created = !file.exists() && file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.setPermissions(ownerFile);
    file.close();
    // SQLite would leave files of its own beside a database that it may only read.
    if (!file.exists() || !QFileInfo(path).isWritable())
        return OwnerFolder::notWritable(folder);

    int version = 0;
    problem = connectTo(path);
    if (problem.isEmpty())
        problem = inspect(&version);
    if (problem.isEmpty())
        problem = unlock(QDir(folder).filePath(keyFile), version == 0);
    if (problem.isEmpty())
        problem = checkKey(version);
    if (problem.isEmpty())
        problem = migrate(version);
    if (problem.isEmpty())
        problem = beginUse();
    return problem;
}

QString Store::connectTo(const QString &file) const
{
    QSqlDatabase connection = QSqlDatabase::addDatabase(driver, connectionName);
    connection.setDatabaseName(file);
    connection.setConnectOptions(busyTimeout);
    const bool ready = connection.open();
    return ready ? QString() : tr("The database %1 cannot be opened.").arg(QDir::toNativeSeparators(file));
}

QString Store::inspect(int *version) const
{
    const QString path = QDir::toNativeSeparators(database().databaseName());
    QSqlQuery check = run("PRAGMA quick_check(1)");
    const bool checked = check.next();
    if (!checked && !isDamage(check.lastError()))
        return tr("The database %1 cannot be read; another program may be using it.").arg(path);
    QSqlQuery marks = run("SELECT application_id, user_version, (SELECT COUNT(*) FROM sqlite_master) "
                          "FROM pragma_application_id, pragma_user_version");
    if (!checked || check.value(0).toString() != QLatin1String("ok") || !marks.next())
        return tr("The database %1 is damaged.").arg(path);

    const int application = marks.value(0).toInt();
    *version = marks.value(1).toInt();
    const bool empty = application == 0 && *version == 0 && marks.value(2).toInt() == 0;
    if (application != Schema::applicationId && !empty)
        return tr("The database %1 belongs to another program.").arg(path);
    if (*version > Schema::migrations().size())
        return tr("The database %1 was written by a newer version of this program.").arg(path);
    return {};
}

QString Store::unlock(const QString &file, bool mayCreate) const
{
    const QString path = QDir::toNativeSeparators(file);
    if (!QFileInfo::exists(file)) {
        if (!mayCreate)
            return tr("The key file %1 is missing; the database cannot be opened without it.").arg(path);
        if (!Vault::createKeyFile(file) && !QFileInfo::exists(file))
            return tr("The key file %1 cannot be written.").arg(path);
    }
    QString problem = OrdinaryFile::problem(file, OrdinaryFile::anySize);
    if (!problem.isEmpty())
        return problem;
    if (QFileInfo(file).size() != Vault::keyFileBytes)
        return tr("The key file %1 is damaged: it does not have %2 bytes.").arg(path).arg(Vault::keyFileBytes);
    return keys->unlock(file) ? QString() : tr("The key file %1 cannot be read.").arg(path);
}

QString Store::checkKey(int version) const
{
    if (version == 0)
        return {};
    QString text;
    QSqlQuery check = run("SELECT key_check FROM state");
    const bool fits =
        check.next() && keys->open(check.value(0).toByteArray(), keyCheckPlace, text) && text == keyCheckText;
    return fits ? QString() : tr("The key file does not belong to the database beside it.");
}

QString Store::migrate(int version) const
{
    // PRAGMA takes no bound values.
    const auto mark = [this](const char *name, int value) {
        const QString statement = QStringLiteral("PRAGMA %1 = %2").arg(QLatin1String(name)).arg(value);
        return run(statement.toLatin1().constData()).isActive();
    };
    const auto &steps = Schema::migrations();
    bool done = run("PRAGMA synchronous = FULL").isActive() && run("PRAGMA foreign_keys = ON").isActive() &&
                run("PRAGMA secure_delete = ON").isActive();
    Transaction transaction(database());
    done = done && transaction.isActive();
    for (int step = version; step < steps.size(); ++step) {
        for (const char *statement : steps.at(step))
            done = done && run(statement).isActive();
        done = done && mark("user_version", step + 1);
    }
    if (version == 0) {
        done = done && mark("application_id", Schema::applicationId) &&
               change("INSERT INTO state (id, salt, key_check) VALUES (1, ?, ?)",
                      {Vault::randomBytes(saltBytes), keys->seal(keyCheckText, keyCheckPlace)});
    }
    return done && transaction.commit() ? QString() : tr("The database cannot be written to.");
}

// Last of all: until here nothing but a new or an older database of our own has been written to.
QString Store::beginUse() const
{
    const bool ready = run("PRAGMA journal_mode = WAL").isActive() &&
                       run("UPDATE state SET locked = 1, lock_seconds = ?, failed_count = 0 "
                           "WHERE failed_count >= ? AND locked = 0",
                           {lockSeconds, maxFailures})
                           .isActive();
    return ready ? QString() : tr("The database cannot be written to.");
}

void Store::close()
{
    opened = false;
    openFolder.clear();
    keys->lock();
    if (!QSqlDatabase::contains(connectionName))
        return;
    database().close();
    QSqlDatabase::removeDatabase(connectionName);
}

QSqlDatabase Store::database() const
{
    return QSqlDatabase::database(connectionName, false);
}

QSqlQuery Store::run(const char *sql, const QVariantList &values) const
{
    const QSqlDatabase connection = database();
    if (!connection.isOpen())
        return QSqlQuery();
    QSqlQuery query(connection);
    query.setForwardOnly(true);
    if (!query.prepare(QString::fromLatin1(sql)))
        return query; // exec() would replace the error
    for (const QVariant &value : values)
        query.addBindValue(textNotNull(value));
    query.exec();
    return query;
}

bool Store::change(const char *sql, const QVariantList &values) const
{
    const QSqlQuery query = run(sql, values);
    return query.isActive() && query.numRowsAffected() == 1;
}

bool Store::holds(const char *sql, const QVariantList &values) const
{
    QSqlQuery query = run(sql, values);
    return query.next() && query.value(0).toBool();
}

// Apart from the places of the tables' columns, which hold a dot.
QByteArray Store::seal(const QString &text, const QByteArray &place) const
{
    return keys->seal(text, "text:" + place);
}

bool Store::unseal(const QByteArray &sealed, const QByteArray &place, QString *text) const
{
    return keys->open(sealed, "text:" + place, *text);
}

QByteArray Store::salt() const
{
    QSqlQuery query = run("SELECT salt FROM state");
    return query.next() ? query.value(0).toByteArray() : QByteArray();
}

bool Store::appendAudit(const AuditEntry &entry)
{
    return change("INSERT INTO audit_log (at, event, user, method, auto_login, seconds) VALUES (?, ?, ?, ?, ?, ?)",
                  {entry.at.toUTC().toString(Qt::ISODateWithMs), entry.event, entry.user, orNull(entry.method),
                   orNull(entry.autoLogin), orNull(entry.seconds)});
}

QVector<AuditEntry> Store::auditLog(int limit) const
{
    QVector<AuditEntry> entries;
    QSqlQuery query = run("SELECT at, event, user, method, auto_login, seconds "
                          "FROM audit_log ORDER BY id DESC LIMIT ?",
                          {qMax(0, limit)});
    while (query.next()) {
        entries.append({QDateTime::fromString(query.value(0).toString(), Qt::ISODateWithMs), query.value(1).toString(),
                        query.value(2).toString(), orAbsent(query.value(3)), orAbsent(query.value(4)),
                        orAbsent(query.value(5))});
    }
    return entries;
}

} // namespace kelvra_data
