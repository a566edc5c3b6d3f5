// The login in a program of its own: minimal_host DATA_FOLDER [PICTURE]
// It opens the login on a folder of data and says who has come in. With PICTURE it saves what the login looks like and
// ends.

#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kit/HostSetup.h"
#include "login/frame/LoginInit.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QTextStream>
#include <QTimer>

using kelvra_contact::SystemMsg;
using kelvra_worker::SystemWorker;

namespace {

void useStyle()
{
    // Buttons and windows are dark, so that texts come out light.
    QApplication::setPalette(QPalette(QColor(0x1e, 0x2a, 0x42), QColor(0x14, 0x1d, 0x30)));

    QFile sheet(QStringLiteral(":/style/kelvra_client.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));

    // The forms ask for "microsoft yahei"; this stands in for it where it is not installed.
    QFont::insertSubstitution(QStringLiteral("microsoft yahei"), QStringLiteral("Open Sans"));
    QFont font(QStringLiteral("microsoft yahei"));
    font.setPixelSize(13);
    QApplication::setFont(font);
}

/** What a client does once somebody is in: it loads, tells how far it is, and shows its window. */
void host(QLabel *window)
{
    SystemMsg *messages = &SystemMsg::_instance();
    QObject::connect(messages, &SystemMsg::signalLoginSuccess, window, [messages, window] {
        // From the next turn of the event loop on: the splash screen is opening.
        QTimer::singleShot(0, window, [messages] { emit messages->signalSystemInitProgress(100); });
    });
    QObject::connect(messages, &SystemMsg::signalSystemInitFinished, window, [window] {
        window->setText(QStringLiteral("Welcome, %1.").arg(SystemWorker::_instance().getCurUserName()));
        window->show();
    });
    QObject::connect(messages, &SystemMsg::signalQuitSystem, qApp, &QApplication::quit);
}

void startLogin()
{
    auto &login = kelvra_login::LoginInit::_instance();
    kelvra_base::ModuleInitialization &module = login;
    module.moduleInit();
    module.init();
    login.login(SystemWorker::_instance().lastLoggedUserType(), {}, true);
}

bool saveLogin(const QString &picture)
{
    QWidget *dialog = QApplication::activeWindow();
    return dialog != nullptr && dialog->grab().save(picture);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2 || !QDir().mkpath(arguments[1]) || !HostSetup::open(arguments[1])) {
        QTextStream(stderr) << "usage: minimal_host DATA_FOLDER [PICTURE]\n";
        return 2;
    }
    useStyle();
    QLabel window;
    window.resize(480, 320);
    window.setAlignment(Qt::AlignCenter);
    host(&window);
    startLogin();
    const int exitCode = arguments.size() > 2 ? !saveLogin(arguments[2]) : QApplication::exec();
    HostSetup::close();
    return exitCode;
}
