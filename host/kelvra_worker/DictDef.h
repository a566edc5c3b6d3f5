#pragma once

#include "host/Export.h"
#include "host/ZCommon/ZSingleton.h"

#include <QMap>
#include <QString>

#include <memory>

namespace kelvra_worker {
class DictDef;
}

ZSINGLETON_DECLARE(KELVRA_WORKER_EXPORT, kelvra_worker::DictDef)

namespace kelvra_worker {

/** Translated texts that several modules share. */
class KELVRA_WORKER_EXPORT DictDef : public ZCOMMON::ZSingleton<DictDef>
{
public:
    /** Titles of alerts, by what the alert says. */
    enum AlertTitle : int {
        OperationFailedTitle = 0, ///< a creation or a reset was refused by the data library
        WarningTitle = 1,         ///< wrong answer, default superuser not available, and every other refusal
        InformationTitle = 2      ///< something has been done
    };

    /** Fills the tables in the language in force. Pages call it on a language change before they read a table. */
    void retranslate();

    /** The title of an alert; empty for a value outside the enumeration. */
    QString alertTitle(AlertTitle title) const;

    /**
     * Security questions: id to text. The ids are 0 to 11, stored with a superuser's answers, and never reused
     * for another question. At least nine entries exist.
     */
    const QMap<int, QString> &securityQuestions() const;

private:
    friend class ZCOMMON::ZSingleton<DictDef>;
    DictDef();
    ~DictDef();

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace kelvra_worker
