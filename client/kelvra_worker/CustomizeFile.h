#pragma once

#include "host/Export.h"
#include "host/kelvra_worker/CustomizeInfo.h"

#include <QString>

namespace kelvra_worker {

/** The customisation record as a file that a person can edit. */
class KELVRA_WORKER_EXPORT CustomizeFile
{
public:
    explicit CustomizeFile(const QString &filePath);

    /**
     * The record in the file. A file that does not exist is written first, with every key at its default and a
     * comment to it; one that exists is left as it is. What cannot be read is reported as a warning and counts as
     * the default.
     */
    CustomizeInfo read() const;

private:
    void create() const;

    QString path;
};

} // namespace kelvra_worker
