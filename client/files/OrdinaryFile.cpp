#include "client/files/OrdinaryFile.h"

#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_WIN
#    include <qt_windows.h>

#    include <io.h>
#else
#    include <fcntl.h>
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace kelvra_files {

namespace {

// What is looked at is what has been opened: the name may lead elsewhere by now.
#ifdef Q_OS_WIN
bool openAtOnce(QFile *file, QIODevice::OpenMode mode)
{
    return file->open(mode) && GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(file->handle()))) == FILE_TYPE_DISK;
}
#else
bool openAtOnce(QFile *file, QIODevice::OpenMode mode)
{
    const QByteArray path = QFile::encodeName(file->fileName());
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat found = {};
    return descriptor >= 0 && file->open(descriptor, mode, QFile::AutoCloseHandle) && fstat(descriptor, &found) == 0 &&
           S_ISREG(found.st_mode);
}
#endif

QString unreadable(const QString &path)
{
    return OrdinaryFile::tr("The file %1 cannot be read; check its permissions.").arg(QDir::toNativeSeparators(path));
}

QString tooLarge(const QString &path, qint64 maxBytes)
{
    return OrdinaryFile::tr("The file %1 has more than %2 bytes; correct it or delete it.")
        .arg(QDir::toNativeSeparators(path), QString::number(maxBytes));
}

} // namespace

QString OrdinaryFile::problem(const QString &path, qint64 maxBytes)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    if (!info.isFile())
        return tr("%1 is not a file but a folder, a pipe or a device; move it away.")
            .arg(QDir::toNativeSeparators(path));
    if (info.size() > maxBytes)
        return tooLarge(path, maxBytes);
    return info.isReadable() ? QString() : unreadable(path);
}

QString OrdinaryFile::open(QFile *file, qint64 maxBytes, QIODevice::OpenMode mode)
{
    // Asked first: with many a device, opening alone has an effect.
    QString sentence = problem(file->fileName(), maxBytes);
    if (sentence.isEmpty() && !openAtOnce(file, mode)) {
        file->close();
        sentence = unreadable(file->fileName());
    }
    return sentence;
}

std::optional<QByteArray> OrdinaryFile::read(const QString &path, QString *error, qint64 maxBytes)
{
    QFile file(path);
    *error = open(&file, maxBytes);
    if (!error->isEmpty())
        return std::nullopt;
    QByteArray data = file.read(maxBytes + 1); // it may grow meanwhile
    if (file.error() != QFile::NoError)
        *error = unreadable(path);
    else if (data.size() > maxBytes)
        *error = tooLarge(path, maxBytes);
    data.squeeze();
    return error->isEmpty() ? std::make_optional(data) : std::nullopt;
}

} // namespace kelvra_files
