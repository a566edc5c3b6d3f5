#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QString>

#include <limits>
#include <optional>

namespace kelvra_files {

/**
 * The only way to a file that this run of the program has not made: reads ordinary files of a sensible size. A pipe
 * would keep its reader waiting, and a device has no end. Every sentence is for the user, and names the file.
 */
class OrdinaryFile
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_files::OrdinaryFile)

public:
    static constexpr qint64 textBytes = Q_INT64_C(1024) * 1024; ///< more than a person writes
    static constexpr qint64 anySize = std::numeric_limits<qint64>::max();

    OrdinaryFile() = delete;

    /**
     * Why `path` is not to be opened, for who has it opened by a name: empty for a file that can be read and for
     * none at all. Opens nothing.
     */
    static QString problem(const QString &path, qint64 maxBytes = textBytes);

    /** Opens the file for reading and waits for nothing. Empty, or why it stays closed. */
    static QString open(QFile *file, qint64 maxBytes = textBytes, QIODevice::OpenMode mode = QIODevice::ReadOnly);

    /** The whole file; without a value, `error` says why. A file that does not exist is an error. */
    static std::optional<QByteArray> read(const QString &path, QString *error, qint64 maxBytes = textBytes);
};

} // namespace kelvra_files
