#pragma once

#include "client/kelvra_data/AuditEntry.h"
#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVector>

#include <memory>

namespace kelvra_data {
class Store;
}

ZSINGLETON_DECLARE(KELVRA_DATA_EXPORT, kelvra_data::Store)

namespace kelvra_data {

class Vault;

/**
 * The client's database and its key file, both in one folder that only its owner can read.
 *
 * Secrets stand in the database sealed under the key file only; neither is of use without the other. While the
 * store is closed every operation on it answers false or nothing. GUI thread only.
 */
class KELVRA_DATA_EXPORT Store : public ZCOMMON::ZSingleton<Store>
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_data::Store)

public:
    /**
     * Opens the store in `folder`, or creates it there. Needs the application object.
     *
     * On failure it answers false with a sentence for the user in `error`, and the files are as they were. The
     * store that was open before is closed in any case.
     */
    bool open(const QString &folder, QString *error = nullptr);
    void close();
    bool isOpen() const { return opened; }

    /** The folder of the open store, empty while it is closed. */
    QString folder() const { return openFolder; }

    /** The connection, invalid while the store is closed. Copies must not outlive close(). */
    QSqlDatabase database() const;

    /** Runs one statement with its values bound in order; the result is inactive on failure. */
    QSqlQuery run(const char *sql, const QVariantList &values = {}) const;

    /** Runs one writing statement; true when it changed exactly one row. */
    bool change(const char *sql, const QVariantList &values = {}) const;

    /** Whether the statement's first column of its first row holds true. */
    bool holds(const char *sql, const QVariantList &values = {}) const;

    const Vault &vault() const { return *keys; }

    /**
     * A text of another library sealed under the key file, empty on failure. It opens only for the same `place`, a
     * word that says what it is.
     */
    QByteArray seal(const QString &text, const QByteArray &place) const;
    /** False when `sealed` was not sealed in this folder for that place; `text` is then left alone. */
    bool unseal(const QByteArray &sealed, const QByteArray &place, QString *text) const;

    /** 16 random bytes that no other folder has. */
    QByteArray salt() const;

    /**
     * Whether UserData::addSuperUser may replace the local superuser, together with the ordinary local users and all
     * gestures; cloud accounts stay. Off at first; opening or closing the store does not change it.
     */
    void setSuperUserReplaceable(bool replaceable) { superUserReplaceable = replaceable; }
    bool isSuperUserReplaceable() const { return superUserReplaceable; }

    bool appendAudit(const AuditEntry &entry);

    /** The newest `limit` entries, the newest first. */
    QVector<AuditEntry> auditLog(int limit) const;

private:
    friend class ZCOMMON::ZSingleton<Store>;
    Store();
    ~Store();

    // The steps of open(). Each answers an empty text, or why it failed.
    QString openFiles(const QString &folder, bool *created);
    QString connectTo(const QString &file) const;
    QString inspect(int *version) const;
    QString unlock(const QString &file, bool mayCreate) const;
    QString checkKey(int version) const;
    QString migrate(int version) const;
    QString beginUse() const;

    const std::unique_ptr<Vault> keys;
    QString openFolder;
    bool opened = false;
    bool superUserReplaceable = false;
};

} // namespace kelvra_data
