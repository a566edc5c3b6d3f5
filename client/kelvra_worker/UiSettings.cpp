#include "host/kelvra_worker/UiSettings.h"

#include "client/files/OrdinaryFile.h"
#include "client/kelvra_worker/FailureNotice.h"
#include "client/kelvra_worker/WorkerSetup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSettings>
#include <QUuid>

#include <filesystem>

ZSINGLETON_DEFINE(kelvra_worker::UiSettings)

using kelvra_files::OrdinaryFile;

namespace kelvra_worker {

namespace {

const QString lockSuffix = QStringLiteral(".lock"); // of the file beside one that QSettings writes

QVariantMap valuesIn(const QString &path)
{
    QVariantMap values;
    if (!OrdinaryFile::problem(path).isEmpty())
        return values;
    const QSettings file(path, QSettings::IniFormat);
    for (const QString &key : file.allKeys())
        values.insert(key, file.value(key));
    return values;
}

bool holdsAll(const QString &path, const QVariantMap &values)
{
    const QVariantMap stored = valuesIn(path);
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (stored.value(value.key()) != value.value())
            return false;
    }
    return true;
}

// QSettings would read what a killed run has left under that name, and wait for ever for a lock file to go.
bool makeFree(const QString &path)
{
    QFile::remove(path);
    const QFileInfo left(path);
    return !left.exists() && !left.isSymLink();
}

bool replaceFile(const QString &path, const QString &by)
{
    std::error_code error;
    std::filesystem::rename(by.toStdU16String(), path.toStdU16String(), error);
    return !error;
}

// QSettings cuts a file off when the disk is full, and says nothing. So it writes a new one, which takes the place
// of the old when everything is found in it; under a name that QSettings has nothing about in memory.
bool store(const QString &path, const QHash<QString, QVariant> &changes)
{
    if (!OrdinaryFile::problem(path).isEmpty())
        return false; // what has not been read is not written over
    QVariantMap values = valuesIn(path);
    for (auto change = changes.begin(); change != changes.end(); ++change)
        values.insert(change.key(), change.value());

    const QString unfinished = path + QStringLiteral(".new");
    const QString finished = path + QLatin1Char('.') + QUuid::createUuid().toString(QUuid::Id128);
    if (!makeFree(unfinished) || !makeFree(unfinished + lockSuffix))
        return false;
    {
        QSettings file(unfinished, QSettings::IniFormat);
        file.clear();
        for (auto entry = values.begin(); entry != values.end(); ++entry)
            file.setValue(entry.key(), entry.value());
    }
    const bool stored =
        QFile::rename(unfinished, finished) && holdsAll(finished, values) && replaceFile(path, finished);
    if (!stored) {
        QFile::remove(unfinished);
        QFile::remove(finished);
    }
    return stored;
}

} // namespace

class UiSettings::Private
{
public:
    QString filePath() const
    {
        return WorkerSetup::dataFolder().isEmpty() ? QString() : WorkerSetup::settingsFilePath();
    }

    QHash<QString, QVariant> memory; ///< every value of this run, also the one that could not be written
    bool failureReported = false;
};

UiSettings::UiSettings()
    : d(std::make_unique<Private>())
{
}

UiSettings::~UiSettings() = default;

QVariant UiSettings::getValue(const QString &key) const
{
    const auto kept = d->memory.constFind(key);
    if (kept != d->memory.constEnd())
        return *kept;
    const QString path = d->filePath();
    return path.isEmpty() ? QVariant() : valuesIn(path).value(key);
}

void UiSettings::setValue(const QString &key, const QVariant &value)
{
    d->memory.insert(key, value);
    const QString path = d->filePath();
    if (path.isEmpty())
        return;
    if (!store(path, d->memory) && !d->failureReported) {
        d->failureReported = true;
        FailureNotice::show(
            QCoreApplication::translate("kelvra_worker::UiSettings",
                                        "Settings cannot be written to %1; changes last until the client ends.")
                .arg(QDir::toNativeSeparators(path)));
    }
}

} // namespace kelvra_worker
