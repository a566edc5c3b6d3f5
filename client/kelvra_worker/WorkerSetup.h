#pragma once

#include "host/Export.h"
#include "host/kelvra_worker/Language.h"

#include <QString>

namespace kelvra_worker {

/** What the shell tells the worker library before it uses its services. For the client itself, not for modules. */
class KELVRA_WORKER_EXPORT WorkerSetup
{
public:
    WorkerSetup() = delete;

    /**
     * Sets the folder of "settings.ini" and "customize.ini". Without one, settings live in memory and the
     * customisation is the default. Called once, before a service is used.
     */
    static void setDataFolder(const QString &folder);
    static const QString &dataFolder();

    /**
     * Puts the language of the first screen into force: the saved one, else that of the system where the client
     * speaks it, else English.
     */
    static void loadSavedLanguage();

    /** The language of `locale` ("zh_CN") where the client speaks it, else English. */
    static Language languageForLocale(const QString &locale);
};

} // namespace kelvra_worker
