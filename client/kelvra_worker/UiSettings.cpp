#include "host/kelvra_worker/UiSettings.h"

#include "client/kelvra_worker/WorkerSetup.h"

#include <QDir>
#include <QHash>
#include <QSettings>

ZSINGLETON_DEFINE(kelvra_worker::UiSettings)

namespace kelvra_worker {

namespace {

const QString fileName = QStringLiteral("settings.ini");

} // namespace

class UiSettings::Private
{
public:
    QString filePath() const
    {
        const QString &folder = WorkerSetup::dataFolder();
        return folder.isEmpty() ? QString() : QDir(folder).filePath(fileName);
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
    QSettings file(path, QSettings::IniFormat);
    file.setValue(key, value);
    file.sync();
    if (file.status() != QSettings::NoError && !d->failureReported) {
        d->failureReported = true;
        qWarning("Settings cannot be written to %s; changes last until the client ends.", qUtf8Printable(path));
    }
}

} // namespace kelvra_worker
