#include "client/kelvra_saas/JsonFile.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace kelvra_saas {

namespace {

const QString damagedSuffix = QStringLiteral(".damaged");

} // namespace

QJsonObject JsonFile::read() const
{
    QFile file(path);
    if (path.isEmpty() || !file.exists())
        return {};
    QJsonDocument document;
    if (file.open(QIODevice::ReadOnly))
        document = QJsonDocument::fromJson(file.readAll());
    file.close();
    if (!document.isObject()) {
        QFile::remove(path + damagedSuffix);
        file.rename(path + damagedSuffix);
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
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                         file.write(data) == data.size() && file.flush() && file.commit();
    if (!written)
        qWarning("%s cannot be written.", qUtf8Printable(QDir::toNativeSeparators(path)));
    return written;
}

} // namespace kelvra_saas
