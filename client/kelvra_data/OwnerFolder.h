#pragma once

#include "host/Export.h"

#include <QString>

namespace kelvra_data {

/** A folder for its owner alone, and what is made in it. */
class KELVRA_DATA_EXPORT OwnerFolder
{
public:
    OwnerFolder() = delete;

    /** Closes the folder, which has just been made, to everybody else. False where that cannot be done. */
    static bool closeToOthers(const QString &folder);
};

} // namespace kelvra_data
