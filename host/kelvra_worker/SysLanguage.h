#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"
#include "host/kelvra_worker/Language.h"

#include <QMap>
#include <QString>

#include <memory>

namespace kelvra_worker {
class SysLanguage;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::SysLanguage)

namespace kelvra_worker {

/** The language of the user interface. */
class KELVRA_WORKER_EXPORT SysLanguage : public ZCOMMON::ZSingleton<SysLanguage>
{
public:
    /** The language in force. */
    Language getLanguage() const;

    /** Language id to the language's own name, for the selector. */
    QMap<int, QString> getLanguageNames() const;

    /**
     * Switches the client to `language`: every widget receives QEvent::LanguageChange. An unknown id changes
     * nothing.
     *
     * @param language id from getLanguageNames()
     * @param save     true keeps the choice for the next start
     */
    void setLanguage(Language language, bool save);

private:
    friend class ZCOMMON::ZSingleton<SysLanguage>;
    SysLanguage();
    ~SysLanguage();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_worker
