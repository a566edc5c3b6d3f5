#include "client/shell/ClientShell.h"

#include "client/kelvra_base/AlertBox.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_worker/AuditEvent.h"
#include "client/kelvra_worker/WorkerSetup.h"
#include "client/shell/ClientStyle.h"
#include "client/shell/MainWindow.h"
#include "host/kelvra_base/BaseTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/LoginInit.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>
#include <iterator>

using kelvra_contact::SystemMsg;
using kelvra_data::Store;
using kelvra_data::UserData;
using kelvra_worker::SystemWorker;
using kelvra_worker::UiSettings;

namespace kelvra_client {

namespace {

constexpr int exitNoData = 1;
constexpr int exitUsage = 2;
constexpr int auditEntriesShown = 200;
const QString geometryKey = QStringLiteral("main_window_geometry");

void printLine(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
    std::fflush(stream);
}

} // namespace

ClientShell::ClientShell(QObject *parent)
    : QObject(parent)
{
}

ClientShell::~ClientShell()
{
    window.reset();
    QList<QPointer<QWidget>> left;
    for (QWidget *widget : QApplication::topLevelWidgets())
        left.append(widget);
    // Guarded, since one may own another.
    for (const QPointer<QWidget> &widget : qAsConst(left))
        delete widget.data();
    Store::_instance().close();
}

int ClientShell::run(const QStringList &arguments)
{
    if (const std::optional<int> exitCode = readOptions(arguments))
        return *exitCode;
    prepareApplication();
    if (!openStore())
        return exitNoData;
    connectMessages();
    QTimer::singleShot(0, this, &ClientShell::startLogin);
    return QCoreApplication::exec();
}

std::optional<int> ClientShell::readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    // In English: the language is chosen in the settings of the folder that is named here.
    parser.setApplicationDescription(QStringLiteral("Desktop client for video management."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption folder(QStringLiteral("data-dir"), QStringLiteral("Folder of users, settings and logs."),
                                    QStringLiteral("DIR"),
                                    QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    parser.addOptions({help, folder});
    QString error;
    if (!parser.parse(arguments))
        error = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        error = QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
    else if (parser.value(folder).isEmpty())
        error = QStringLiteral("The option --data-dir needs the name of a folder.");
    if (!error.isEmpty()) {
        printLine(stderr, QStringLiteral("kelvra_client: ") + error);
        return exitUsage;
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        printLine(stdout, parser.isSet(help)
                              ? parser.helpText()
                              : QStringLiteral("kelvra_client ") + QCoreApplication::applicationVersion());
        return 0;
    }
    dataFolder = QDir().absoluteFilePath(parser.value(folder));
    return std::nullopt;
}

void ClientShell::prepareApplication()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/images/app_icon_256.png")));
    ClientStyle::install(*qApp);
    kelvra_worker::WorkerSetup::setDataFolder(dataFolder);
    kelvra_worker::WorkerSetup::loadSavedLanguage();
}

bool ClientShell::openStore()
{
    QString error;
    if (Store::_instance().open(dataFolder, &error))
        return true;
    printLine(stderr, QStringLiteral("kelvra_client: ") + error);
    using kelvra_base::AlertBox;
    using kelvra_worker::DictDef;
    AlertBox::ask(nullptr, AlertBox::Error, DictDef::_instance().alertTitle(DictDef::OperationFailedTitle), error);
    return false;
}

void ClientShell::connectMessages()
{
    const SystemMsg &messages = SystemMsg::_instance();
    connect(&messages, &SystemMsg::signalLoginSuccess, this, &ClientShell::startLoading);
    connect(&messages, &SystemMsg::signalSystemInitFinished, this, &ClientShell::showWindow);
    connect(&messages, &SystemMsg::signalPrepareQuitSystem, this, &ClientShell::saveSettings);
    connect(&messages, &SystemMsg::signalQuitSystem, this, &QCoreApplication::quit);
}

void ClientShell::startLogin()
{
    auto &loginInit = kelvra_login::LoginInit::_instance();
    kelvra_base::ModuleInitialization &module = loginInit;
    module.moduleInit();
    module.init();
    loginOpened = QDateTime::currentDateTime();
    loginInit.login(SystemWorker::_instance().lastLoggedUserType(), {}, true);
}

void ClientShell::switchUser()
{
    SystemWorker::_instance().setLoginSuccess(false);
    saveSettings();
    window->hide();
    loginOpened = QDateTime::currentDateTime();
    kelvra_login::LoginInit::_instance().switchUser();
}

void ClientShell::startLoading()
{
    nextStep = 0;
    session.since = QDateTime::currentDateTime();
    // From the next turn on: the module has yet to say that loading stands at 50, and to finish its own records.
    QTimer::singleShot(0, this, &ClientShell::loadNext);
}

void ClientShell::loadNext()
{
    struct Step
    {
        void (ClientShell::*work)();
        int progress; ///< percent, when it is done
    };
    static constexpr Step steps[] = {{&ClientShell::readSession, 60},
                                     {&ClientShell::buildWindow, 75},
                                     {&ClientShell::readAuditLog, 90},
                                     {&ClientShell::readSettings, 100}};

    const Step &step = steps[nextStep++];
    (this->*step.work)();
    if (nextStep < int(std::size(steps)))
        QTimer::singleShot(0, this, &ClientShell::loadNext);
    emit SystemMsg::_instance().signalSystemInitProgress(step.progress);
}

void ClientShell::readSession()
{
    const SystemWorker &worker = SystemWorker::_instance();
    session.user = worker.getCurUserName();
    session.type = worker.lastLoggedUserType();
    session.autoLogin = UserData::_instance().isUserAutoLogin(session.user);
    session.method = -1;
    const QString success = kelvra_worker::auditWord(kelvra_worker::AuditEvent::LoginSuccess);
    for (const kelvra_data::AuditEntry &entry : Store::_instance().auditLog(auditEntriesShown)) {
        if (entry.event == success && entry.user == session.user && entry.at >= loginOpened) {
            session.method = entry.method;
            break;
        }
    }
}

void ClientShell::buildWindow()
{
    if (!window) {
        window = std::make_unique<MainWindow>();
        connect(window.get(), &MainWindow::signalSwitchUser, this, &ClientShell::switchUser);
    }
    window->setSession(session);
}

void ClientShell::readAuditLog()
{
    window->setAuditLog(Store::_instance().auditLog(auditEntriesShown));
}

void ClientShell::readSettings()
{
    if (!window->restoreGeometry(UiSettings::_instance().getValue(geometryKey).toByteArray()))
        window->move(kelvra_base::BaseTools::defaultPos(window.get()));
}

void ClientShell::saveSettings()
{
    if (window)
        UiSettings::_instance().setValue(geometryKey, window->saveGeometry());
}

void ClientShell::showWindow()
{
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace kelvra_client
