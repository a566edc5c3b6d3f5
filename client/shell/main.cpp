#include "client/shell/ClientShell.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_DisableWindowContextHelpButton);
    QCoreApplication::setOrganizationName(QStringLiteral("kelvra"));
    QCoreApplication::setApplicationName(QStringLiteral("kelvra_client"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KELVRA_VERSION));
    QApplication app(argc, argv);
    return kelvra_client::ClientShell().run(QCoreApplication::arguments());
}
