#pragma once

#include "host/Export.h"

#include <QString>

namespace ZCOMMON {

/** Small tools that every module shares. */
class ZCOMMON_EXPORT ToolsCollection
{
public:
    ToolsCollection() = delete;

    /** The characters of `text` in reverse order; a surrogate pair stays a pair. */
    static QString reverseString(const QString &text);
};

} // namespace ZCOMMON
