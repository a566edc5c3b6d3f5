#pragma once

#include "host/Export.h"

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
    static QString customizeFilePath();
    static QString settingsFilePath();

    /**
     * Whether "settings.ini" can be used; otherwise `error` holds a sentence for the user. The file is left alone.
     * These keys are looked at, each a number: "language" (an id of Languages: 0 English, 1 简体中文, 2 Deutsch,
     * 3 Español, 4 Français, 5 Русский, 6 日本語), "last_login_user_type" (1 local, 2 cloud) and "client_login_mode" (0
     * password, 1 gesture).
     */
    static bool checkSettings(QString *error);

    /**
     * Puts the language of the first screen into force: the saved one, else that of the system where the client
     * speaks it, else English.
     */
    static void loadSavedLanguage();
};

} // namespace kelvra_worker
