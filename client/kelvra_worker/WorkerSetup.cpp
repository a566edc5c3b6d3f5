#include "client/kelvra_worker/WorkerSetup.h"

#include "client/kelvra_worker/IniFile.h"
#include "client/kelvra_worker/Languages.h"
#include "client/kelvra_worker/WorkerKeys.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/UiSettings.h"

#include <QDir>
#include <QLocale>

namespace kelvra_worker {

namespace {

const QString customizeFile = QStringLiteral("customize.ini");
const QString settingsFile = QStringLiteral("settings.ini");

QString &folderInUse()
{
    static QString folder;
    return folder;
}

} // namespace

void WorkerSetup::setDataFolder(const QString &folder)
{
    folderInUse() = folder;
}

const QString &WorkerSetup::dataFolder()
{
    return folderInUse();
}

QString WorkerSetup::customizeFilePath()
{
    return QDir(folderInUse()).filePath(customizeFile);
}

QString WorkerSetup::settingsFilePath()
{
    return QDir(folderInUse()).filePath(settingsFile);
}

bool WorkerSetup::checkSettings(QString *error)
{
    IniFile file(settingsFilePath());
    for (const QString &key : {languageKey, lastUserTypeKey, loginModeKey})
        file.number(key, 0);
    *error = file.problem();
    return error->isEmpty();
}

void WorkerSetup::loadSavedLanguage()
{
    bool isNumber = false;
    const int saved = UiSettings::_instance().getValue(languageKey).toInt(&isNumber);
    const bool known = isNumber && Languages::find(Language(saved));
    const Language language = known ? Language(saved) : Languages::forLocale(QLocale::system().name());
    SysLanguage::_instance().setLanguage(language, false);
}

} // namespace kelvra_worker
