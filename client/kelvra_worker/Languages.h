#pragma once

#include "host/Export.h"
#include "host/kelvra_worker/Language.h"

#include <QString>

#include <vector>

namespace kelvra_worker {

/** The language of the source texts, so it needs no translation. */
constexpr Language english{0};

/** The languages that the client speaks. For the client itself; modules ask SysLanguage. */
class KELVRA_WORKER_EXPORT Languages
{
public:
    struct Entry
    {
        Language id;  ///< stored in "settings.ini", so it never changes its meaning
        QString code; ///< of the translations, as in "kelvra_client_zh_CN.qm"; that of English is its locale's only
        QString name; ///< in the language itself
    };

    Languages() = delete;

    /** In the order of their ids, as selectors show them. */
    static const std::vector<Entry> &all();

    /** Null for an id that is not known. */
    static const Entry *find(Language id);

    /** The language of `locale` ("zh_CN", "de_AT") where the client speaks it, else English. */
    static Language forLocale(const QString &locale);
};

} // namespace kelvra_worker
