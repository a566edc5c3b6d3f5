#include "host/ZCommon/ZFileDialog.h"

#include "client/ZCommon/WindowPlace.h"

#include <QDir>
#include <QPointer>

namespace ZCOMMON {

QString ZFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &directory,
                                     const QString &filter, QString *selectedFilter, QFileDialog::Options options)
{
    // The last part of a folder that is not there would be taken for the name of a file.
    const QString start = QFileInfo(directory).isDir() ? directory : QDir::homePath();
    // On the heap and guarded, unlike in QFileDialog's own static function: the parent may go while it is open.
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, caption, start, filter);
    WindowPlace::centre(dialog);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty())
        dialog->selectNameFilter(*selectedFilter);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    QString path = accepted ? dialog->selectedFiles().value(0) : QString();
    if (accepted && selectedFilter)
        *selectedFilter = dialog->selectedNameFilter();
    delete dialog;
    return path;
}

} // namespace ZCOMMON
