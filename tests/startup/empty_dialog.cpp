#include <QApplication>
#include <QDialog>

/** What a start is compared with: an empty dialog of the login's size. */
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QDialog dialog(nullptr, Qt::FramelessWindowHint);
    dialog.setFixedSize(860, 500);
    dialog.show();
    return QApplication::exec();
}
