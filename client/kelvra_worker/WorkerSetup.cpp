#include "client/kelvra_worker/WorkerSetup.h"

#include "client/kelvra_worker/WorkerKeys.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/UiSettings.h"

#include <QLocale>

namespace kelvra_worker {

namespace {

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

void WorkerSetup::loadSavedLanguage()
{
    SysLanguage &sysLanguage = SysLanguage::_instance();
    bool isNumber = false;
    const int saved = UiSettings::_instance().getValue(languageKey).toInt(&isNumber);
    const bool known = isNumber && sysLanguage.getLanguageNames().contains(saved);
    sysLanguage.setLanguage(known ? Language(saved) : languageForLocale(QLocale::system().name()), false);
}

Language WorkerSetup::languageForLocale(const QString &locale)
{
    return locale == QLatin1String("zh_CN") ? chinese : english;
}

} // namespace kelvra_worker
