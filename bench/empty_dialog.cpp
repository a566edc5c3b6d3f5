#include "PictureDialog.h"

#include <QApplication>

/** The yardstick of a start and of its memory. */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    PictureDialog dialog;
    dialog.show();
    return QApplication::exec();
}
