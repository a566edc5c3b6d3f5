#include "client/shell/ClientShell.h"

#include "client/kelvra_base/AlertBox.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/kelvra_worker/AuditEvent.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "client/kelvra_worker/CustomizeFile.h"
#include "client/kelvra_worker/FailureNotice.h"
#include "client/kelvra_worker/WorkerSetup.h"
#include "client/shell/ClientStyle.h"
#include "client/shell/CloudSide.h"
#include "client/shell/Console.h"
#include "client/shell/ExitCode.h"
#include "client/shell/MainWindow.h"
#include "client/shell/PasswordInput.h"
#include "client/shell/SingleInstance.h"
#include "host/kelvra_base/BaseTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/LoginInit.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPointer>
#include <QTimer>

#include <iterator>
#include <utility>

using kelvra_contact::SystemMsg;
using kelvra_data::Store;
using kelvra_data::UserData;
using kelvra_worker::CustomizeFile;
using kelvra_worker::SystemWorker;
using kelvra_worker::UiSettings;
using kelvra_worker::WorkerSetup;

namespace kelvra_client {

namespace {

constexpr int auditEntriesSearched = 200; // for how the user has logged in
constexpr int passwordMethod = 0;         // as LoginLogs takes it
const QString geometryKey = QStringLiteral("main_window_geometry");
const QString offscreenPlatform = QStringLiteral("offscreen");
const QString minimalPlatform = QStringLiteral("minimal");

} // namespace

ClientShell::ClientShell(QObject *parent)
    : QObject(parent)
{
    loadTimer.setSingleShot(true);
    loadTimer.setInterval(0);
}

ClientShell::~ClientShell()
{
    window.reset();
    cloud.reset();
    QList<QPointer<QWidget>> left;
    for (QWidget *widget : QApplication::topLevelWidgets())
        left.append(widget);
    // Guarded, since one may own another.
    for (const QPointer<QWidget> &widget : qAsConst(left))
        delete widget.data();
    Store::_instance().close();
}

int ClientShell::run(const StartOptions &startOptions)
{
    options = startOptions;
    prepareApplication();
    if (const std::optional<int> exitCode = begin())
        return *exitCode;
    connectMessages();
    QTimer::singleShot(0, this, &ClientShell::startLogin);
    return QCoreApplication::exec();
}

std::optional<int> ClientShell::begin()
{
    if (!ClientStyle::hasFonts()) {
        // An alert could not be read.
        Console::complain(tr("There are no fonts, so that no text can be shown. Install a font (on Debian the package "
                             "fonts-dejavu-core)."));
        return ExitCannotRun;
    }
    if (options.dataFolder.isEmpty()) {
        refuse(tr("There is no default data folder: HOME has to be the full path of an existing folder, and "
                  "XDG_DATA_HOME, where it is set, a full path. Correct them, or name a folder with --data-dir."));
        return ExitCannotRun;
    }
    if (!options.user.isEmpty()) {
        // Only a look at first: the folder is not kept from others while somebody types.
        if (const std::optional<int> exitCode = claimFolder())
            return exitCode;
        instance.reset();
        if (!readPassword())
            return ExitWrongUse;
    }
    if (const std::optional<int> exitCode = claimFolder())
        return exitCode;
    const QString problem = openData();
    if (problem.isEmpty())
        return std::nullopt;
    instance.reset(); // the next start does not wait until the alert is closed
    refuse(problem);
    return ExitCannotRun;
}

void ClientShell::prepareApplication()
{
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/images/app_icon_256.png")));
    ClientStyle::install(*qApp);
    WorkerSetup::setDataFolder(options.dataFolder);
    if (options.language)
        kelvra_worker::SysLanguage::_instance().setLanguage(*options.language, false);
    else
        WorkerSetup::loadSavedLanguage();
}

std::optional<int> ClientShell::claimFolder()
{
    instance = std::make_unique<SingleInstance>(options.dataFolder);
    QString error;
    switch (instance->claim(&error)) {
    case SingleInstance::First:
        return std::nullopt;
    case SingleInstance::Second:
        if (options.user.isEmpty())
            return ExitDone;
        refuse(tr("A client is already running on the data folder %1 and has come to the front. Nobody was logged in "
                  "and the password was not used: log in there, or quit that client and start again.")
                   .arg(QDir::toNativeSeparators(options.dataFolder)));
        return ExitNotLoggedIn;
    case SingleInstance::Failed:
        break;
    }
    refuse(error);
    return ExitCannotRun;
}

bool ClientShell::readPassword()
{
    QString error;
    const std::optional<QString> given = PasswordInput::read(&error);
    if (given)
        handedPassword = *given;
    else
        Console::complain(error);
    return given.has_value();
}

QString ClientShell::openData()
{
    CustomizeFile customization(WorkerSetup::customizeFilePath());
    QString error;
    if (!customization.read(&error) || !WorkerSetup::checkSettings(&error))
        return error;
    error = kelvra_saas::SaasSetup::unfitFile(options.dataFolder);
    if (!error.isEmpty() || !Store::_instance().open(options.dataFolder, &error))
        return error;
    cloud = std::make_unique<CloudSide>();
    cloud->open(options.dataFolder);
    cloud->keepPhone(!options.noPhone);
    Store::_instance().setSuperUserReplaceable(customization.isSuperUserReplaceable());
    if (!customization.createIfMissing())
        notice = tr("The file %1 cannot be written; the client goes on without it.")
                     .arg(QDir::toNativeSeparators(WorkerSetup::customizeFilePath()));
    return {};
}

void ClientShell::refuse(const QString &sentence) const
{
    Console::complain(sentence);
    // Nobody could close an alert where windows are not shown.
    if (QGuiApplication::platformName() == offscreenPlatform || QGuiApplication::platformName() == minimalPlatform)
        return;
    using kelvra_base::AlertBox;
    using kelvra_worker::DictDef;
    AlertBox::ask(nullptr, AlertBox::Error, DictDef::_instance().alertTitle(DictDef::OperationFailedTitle), sentence);
}

void ClientShell::connectMessages()
{
    const SystemMsg &messages = SystemMsg::_instance();
    connect(&messages, &SystemMsg::signalLoginSuccess, this, &ClientShell::startLoading);
    connect(&messages, &SystemMsg::signalSystemInitFinished, this, &ClientShell::showWindow);
    connect(&messages, &SystemMsg::signalPrepareQuitSystem, this, &ClientShell::saveSettings);
    connect(&messages, &SystemMsg::signalPrepareQuitSystem, &loadTimer, &QTimer::stop);
    connect(&messages, &SystemMsg::signalPrepareQuitSystem, cloud.get(), &CloudSide::leaveLogin);
    connect(&loadTimer, &QTimer::timeout, this, &ClientShell::loadNext);
    connect(&messages, &SystemMsg::signalQuitSystem, this, &QCoreApplication::quit);
}

void ClientShell::startLogin()
{
    auto &loginInit = kelvra_login::LoginInit::_instance();
    kelvra_base::ModuleInitialization &module = loginInit;
    module.moduleInit();
    module.init();
    loginOpened = QDateTime::currentDateTime();
    requestLogin();
    cloud->accompanyLogin();
    if (!notice.isEmpty())
        kelvra_worker::FailureNotice::show(notice);
    connect(instance.get(), &SingleInstance::signalRepeatedStart, this, &ClientShell::comeToFront);
    instance->answerRepeatedStarts();
}

void ClientShell::requestLogin()
{
    bool locked = false;
    int seconds = 0;
    if (UserData::_instance().getLockInfo(locked, seconds) && locked && !CloudSide::isAccount(options.user))
        handedPassword.clear();
    userHandedOver = !handedPassword.isEmpty();
    if (userHandedOver) {
        requestHandedOverLogin();
        return;
    }
    const bool cloudUser =
        CloudSide::isEnabled() && SystemWorker::_instance().lastLoggedUserType() == kelvra_worker::CloudUser;
    // Where a user has been named, a remembered one does not log in of itself: it would be there first.
    const bool byItself = options.user.isEmpty() && (!cloudUser || CloudSide::isAutoLoginStored());
    kelvra_login::LoginInit::_instance().login(cloudUser ? kelvra_worker::CloudUser : kelvra_worker::LocalUser, {},
                                               byItself);
}

void ClientShell::requestHandedOverLogin()
{
    const bool isAccount = CloudSide::isEnabled() && CloudSide::isAccount(options.user);
    handedAutoLogin = UserData::_instance().isUserAutoLogin(options.user);
    kelvra_login::LoginInit::_instance().login(isAccount ? kelvra_worker::CloudUser : kelvra_worker::LocalUser,
                                               {options.user, handedPassword}, false);
    handedPassword.clear();
}

void ClientShell::comeToFront()
{
    emit SystemMsg::_instance().signalClientRepeatedStart();
    if (!window || !window->isVisible()) {
        cloud->accompanyLogin();
        return;
    }
    if (window->isMinimized())
        window->showNormal();
    window->raise();
    window->activateWindow();
}

void ClientShell::switchUser()
{
    SystemWorker::_instance().setLoginSuccess(false);
    saveSettings();
    window->hide();
    loginOpened = QDateTime::currentDateTime();
    kelvra_login::LoginInit::_instance().switchUser();
    cloud->accompanyLogin();
}

void ClientShell::startLoading()
{
    nextStep = 0;
    session.since = QDateTime::currentDateTime();
    // From the next turn on: the module has yet to say that loading stands at 50, and to finish its own records.
    loadTimer.start();
}

void ClientShell::loadNext()
{
    struct Step
    {
        void (ClientShell::*work)();
        int progress; ///< percent, when it is done
    };
    static constexpr Step steps[] = {{&ClientShell::readSession, 60},
                                     {&ClientShell::buildWindow, 70},
                                     {&ClientShell::readUsers, 80},
                                     {&ClientShell::readAuditLog, 90},
                                     {&ClientShell::readSettings, 100}};

    const Step &step = steps[nextStep++];
    (this->*step.work)();
    if (nextStep < int(std::size(steps)))
        loadTimer.start();
    emit SystemMsg::_instance().signalSystemInitProgress(step.progress);
}

void ClientShell::readSession()
{
    const SystemWorker &worker = SystemWorker::_instance();
    session.user = worker.getCurUserName();
    session.type = worker.lastLoggedUserType();
    session.method = -1;
    if (session.type == kelvra_worker::CloudUser) {
        readCloudSession();
        return;
    }
    const QString success = kelvra_worker::auditWord(kelvra_worker::AuditEvent::LoginSuccess);
    for (const kelvra_data::AuditEntry &entry : Store::_instance().auditLog(auditEntriesSearched)) {
        if (entry.event == success && entry.user == session.user && entry.at >= loginOpened) {
            session.method = entry.method;
            break;
        }
    }
    recordHandedOver();
}

// The module keeps no record of such a login, and takes one that was handed over for automatic from now on.
void ClientShell::readCloudSession()
{
    auto &userData = UserData::_instance();
    if (std::exchange(userHandedOver, false) && !handedAutoLogin)
        userData.userAutoLoginCtrl(session.user, false);
    CloudSide::settleAutoLogin(session.user);
    session.method = SessionInfo::CloudMethod;
    kelvra_worker::AuditTrail::_instance().write(kelvra_worker::AuditEvent::LoginSuccess, session.user, session.method,
                                                 int(userData.isUserAutoLogin(session.user)));
}

// The module takes such a login for one that is on record, so the record is made here.
void ClientShell::recordHandedOver()
{
    if (userHandedOver && session.method < 0 && session.user == options.user) {
        session.method = passwordMethod;
        kelvra_worker::LoginLogs::_instance().loginSuccessLog(session.user, passwordMethod,
                                                              UserData::_instance().isUserAutoLogin(session.user));
    }
    userHandedOver = false;
}

void ClientShell::buildWindow()
{
    if (!window) {
        window = std::make_unique<MainWindow>();
        connect(window.get(), &MainWindow::signalSwitchUser, this, &ClientShell::switchUser);
        connect(window.get(), &MainWindow::signalShowPhone, cloud.get(), &CloudSide::showPhone);
        window->offerPhone(cloud->hasPhone());
    }
    window->setSession(session);
}

void ClientShell::readUsers()
{
    window->loadUsers();
}

void ClientShell::readAuditLog()
{
    window->loadAuditLog();
}

void ClientShell::readSettings()
{
    if (!window->restoreGeometry(UiSettings::_instance().getValue(geometryKey).toByteArray()))
        window->move(kelvra_base::BaseTools::defaultPos(window.get()));
}

void ClientShell::saveSettings()
{
    // While it is still being loaded the window does not stand where the user has put it.
    if (window && !loadTimer.isActive())
        UiSettings::_instance().setValue(geometryKey, window->saveGeometry());
}

void ClientShell::showWindow()
{
    cloud->leaveLogin();
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace kelvra_client
