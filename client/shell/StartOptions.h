#pragma once

#include "host/kelvra_worker/Language.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace kelvra_client {

/** What the command line asks for. Parsing needs no application object and touches no file. */
struct StartOptions
{
    bool help = false;    ///< show helpText() and end
    bool version = false; ///< show the version and end
    QString dataFolder;   ///< absolute; the platform's application-data folder unless another is named; empty: none
    std::optional<kelvra_worker::Language> language; ///< for this run; without one the saved choice holds
    QString user;         ///< to be logged in with the password from standard input; empty: nobody
    bool noPhone = false; ///< the simulated phone does not open beside the login
    QString tourFolder;   ///< absolute, where the tour puts its pictures; empty: no tour

    /** `arguments` begin with the name of the program. Without a value `error` holds a sentence for the user. */
    static std::optional<StartOptions> parse(const QStringList &arguments, QString *error);

    static QString helpText();
};

} // namespace kelvra_client
