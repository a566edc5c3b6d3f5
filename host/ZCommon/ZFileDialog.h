#pragma once

#include "host/Export.h"

#include <QFileDialog>
#include <QString>

namespace ZCOMMON {

/** The client's file dialog. */
class ZCOMMON_EXPORT ZFileDialog
{
public:
    ZFileDialog() = delete;

    /**
     * Lets the user choose one existing file; blocks in an event loop of its own.
     *
     * @param parent         window to stand before, may be null
     * @param caption        title of the dialog
     * @param directory      folder to start in; the home folder where it is missing
     * @param filter         file filter in QFileDialog's notation, empty for all files
     * @param selectedFilter in: the filter to start with; out: the one used; may be null
     * @param options        QFileDialog options
     * @return the path chosen, empty when the user cancelled
     */
    static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &directory,
                                   const QString &filter, QString *selectedFilter, QFileDialog::Options options);
};

} // namespace ZCOMMON
