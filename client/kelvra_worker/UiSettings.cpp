#include "host/kelvra_worker/UiSettings.h"

#include "client/kelvra_worker/FailureNotice.h"
#include "client/kelvra_worker/WorkerSetup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QSettings>
#include <QUuid>

#include <filesystem>

ZSINGLETON_DEFINE(kelvra_worker::UiSettings)

namespace kelvra_worker {

namespace {

bool holdsAll(const QString &path, const QVariantMap &values)
{
    const QSettings file(path, QSettings::IniFormat);
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (file.value(value.key()) != value.value())
            return false;
    }
    return true;
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
    QVariantMap values;
    const QSettings current(path, QSettings::IniFormat);
    for (const QString &other : current.allKeys())
        values.insert(other, current.value(other));
    for (auto change = changes.begin(); change != changes.end(); ++change)
        values.insert(change.key(), change.value());

    const QString unfinished = path + QStringLiteral(".new");
    const QString finished = path + QLatin1Char('.') + QUuid::createUuid().toString(QUuid::Id128);
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
    return path.isEmpty() ? QVariant() : QSettings(path, QSettings::IniFormat).value(key);
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
