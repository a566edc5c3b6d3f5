#include "login/frame/LoginInit.h"

#include "login/common/AccessibleFaces.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/Screens.h"

#include <QCoreApplication>

template <>
kelvra_login::LoginInit &ZCOMMON::ZSingleton<kelvra_login::LoginInit>::_instance()
{
    static kelvra_login::LoginInit instance(nullptr);
    return instance;
}

namespace kelvra_login {

namespace {

const QString styleSheetPath = QStringLiteral(":/style/kelvra_login_style.qss");

} // namespace

LoginInit::LoginInit(QObject *parent)
    : ModuleInitialization(parent)
{
    enterScreens();
    AccessibleFaces::install();
    loadStyleSheet(styleSheetPath);
}

LoginInit::~LoginInit() = default;

void LoginInit::moduleInit() {}

void LoginInit::init()
{
    loadStyleSheet(styleSheetPath);
}

void LoginInit::login(kelvra_worker::UserType type, const QStringList &params, bool autoLoginAllowed)
{
    LoginWorker::_instance().login(type, params, autoLoginAllowed);
    // The dialog is to be on the screen before the shell goes on.
    QCoreApplication::processEvents();
}

void LoginInit::switchUser()
{
    LoginWorker::_instance().switchUser();
    QCoreApplication::processEvents();
}

void LoginInit::recoveryToInitialState() {}

} // namespace kelvra_login
