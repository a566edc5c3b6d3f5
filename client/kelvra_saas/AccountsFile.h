#pragma once

#include "client/kelvra_saas/CloudSimulation.h"

#include <QCoreApplication>
#include <QDateTime>

#include <optional>
#include <tuple>

namespace kelvra_saas {

/** The simulated cloud's accounts in a file that a person reads and edits. It is never written over. */
class AccountsFile
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_saas::AccountsFile)

public:
    static const QString fileName;

    /** An empty path stands for the demonstration accounts without a file. */
    explicit AccountsFile(const QString &filePath);

    const QString &filePath() const { return path; }

    /**
     * Reads the file when it has changed; writes it with the demonstration accounts when there is none, and goes on
     * with those where it cannot be written. False when it holds a mistake: the accounts stay those from before. True
     * in `changed` when they have been read anew.
     */
    bool read(bool *changed = nullptr);

    const QVector<CloudAccount> &accounts() const { return known; }
    const CloudAccount *find(const QString &phone) const;

    /** Empty, or a sentence for the user about the first mistake in the file. */
    const QString &problem() const { return sentence; }

private:
    /** Size, time of the last modification, time of the last change of any kind (none on Windows). */
    using Stamp = std::tuple<qint64, QDateTime, QDateTime>;

    enum class Loaded { Yes, Unchanged, Unreadable };

    Loaded load();
    /** Nothing for a file that was changed just now: its times could not tell the next change from that one. */
    std::optional<Stamp> stampNow() const;
    bool create() const;
    /** Empty, or a sentence about the first mistake; `found` is then of no use. */
    QString parse(QVector<CloudAccount> *found) const;
    // Empty, or what is wrong with the line.
    static QString parseLine(const QString &line, QVector<CloudAccount> *found);
    static QString parseSection(const QString &phone, QVector<CloudAccount> *found);
    static QString parseValue(const QString &line, QVector<CloudAccount> *found);

    QString path;
    std::optional<QByteArray> data; ///< what has been read last
    std::optional<Stamp> stamp;     ///< of the file that it was read from; while it stays, so does the content
    QVector<CloudAccount> known;
    QString sentence;
};

/** Whether `text` has the shape of a phone number: eleven digits, the first of them 1. */
bool isPhoneNumber(const QString &text);

} // namespace kelvra_saas
