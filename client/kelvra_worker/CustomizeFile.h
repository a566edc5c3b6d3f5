#pragma once

#include "host/Export.h"
#include "host/kelvra_worker/CustomizeInfo.h"

#include <QString>

namespace kelvra_worker {

/** The customisation as a file that a person can edit. */
class KELVRA_WORKER_EXPORT CustomizeFile
{
public:
    explicit CustomizeFile(const QString &filePath);

    /**
     * Reads the file; one that does not exist stands for the defaults, and nothing is ever written. When the file is
     * damaged, a value in it makes no sense, or the image to be shown is there but no file that can be read, answers
     * false with a sentence for the user in `error`; what could not be read then has its default.
     */
    bool read(QString *error = nullptr);

    /**
     * Writes the file with every key at its default and a comment to it, complete or not at all, unless there is one.
     * False when it is not there afterwards.
     */
    bool createIfMissing() const;

    /** What the modules are told; the defaults before read(). */
    const CustomizeInfo &info() const { return record; }

    /**
     * Whether a new superuser may take the place of the old one once every way back to it is lost. The client's own
     * matter, so no part of the record.
     */
    bool isSuperUserReplaceable() const { return superUserReplaceable; }

private:
    QString path;
    CustomizeInfo record;
    bool superUserReplaceable = false;
};

} // namespace kelvra_worker
