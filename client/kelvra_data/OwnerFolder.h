#pragma once

#include "host/Export.h"

#include <QCoreApplication>
#include <QString>

namespace kelvra_data {

/** A folder for its owner alone, and what is made in it. */
class KELVRA_DATA_EXPORT OwnerFolder
{
    Q_DECLARE_TR_FUNCTIONS(kelvra_data::OwnerFolder)

public:
    OwnerFolder() = delete;

    /**
     * Makes the folder where there is none, closed to everybody else. One that is there is looked at and left as it
     * is: it has to belong to this account, and nobody else may be able to write to it.
     *
     * @return empty, or a sentence for the user about why the folder cannot be used and what to do
     */
    static QString prepare(const QString &folder);

    /** The account that owns the file or folder, where that is not the account of this process; else empty. */
    static QString otherOwner(const QString &path);

    /** For a folder in which something cannot be written. */
    static QString notWritable(const QString &folder);
};

} // namespace kelvra_data
