#include "client/kelvra_saas/JsonFile.h"

#include "client/files/OrdinaryFile.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

using kelvra_files::OrdinaryFile;

namespace kelvra_saas {

namespace {

constexpr qint64 maxFileBytes = Q_INT64_C(16) * 1024 * 1024;
const QString damagedSuffix = QStringLiteral(".damaged");

} // namespace

QString JsonFile::problem() const
{
    return OrdinaryFile::problem(path, maxFileBytes);
}

QJsonObject JsonFile::read() const
{
    if (path.isEmpty() || !QFile::exists(path))
        return {};
    QString error;
    const std::optional<QByteArray> data = OrdinaryFile::read(path, &error, maxFileBytes);
    if (!data) {
        qWarning("%s", qUtf8Printable(error));
        return {};
    }
    const QJsonDocument document = QJsonDocument::fromJson(*data);
    if (!document.isObject()) {
        QFile::remove(path + damagedSuffix);
        QFile::rename(path, path + damagedSuffix);
        qWarning("%s is damaged; it has been set aside.", qUtf8Printable(QDir::toNativeSeparators(path)));
    }
    return document.object();
}

bool JsonFile::write(const QJsonObject &object) const
{
    if (path.isEmpty())
        return true;
    const QByteArray data = QJsonDocument(object).toJson();
    QSaveFile file(path);
    // Flushed first: commit() takes no notice of what does not fit on the disk any more.
    const bool written = problem().isEmpty() && file.open(QIODevice::WriteOnly) &&
                         file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                         file.write(data) == data.size() && file.flush() && file.commit();
    if (!written)
        qWarning("%s cannot be written.", qUtf8Printable(QDir::toNativeSeparators(path)));
    return written;
}

} // namespace kelvra_saas
