#include "login/superuser/LoginMethodSelWt.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/Customization.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "ui_LoginMethodSelWt.h"

#include <QEvent>

using kelvra_data::UserData;
using kelvra_worker::Customization;
using kelvra_worker::SystemWorker;

namespace kelvra_login {

namespace {

constexpr int topMarginWithoutCloud = 54; // pixels, above the two buttons that are left

} // namespace

LoginMethodSelWt::LoginMethodSelWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::LoginMethodSelWt>>())
{
    ui->setupUi(this);
    ui->defaultUserBt->setMethod(LoginMethodBt::DefaultSuperUserMethod);
    ui->newUserBt->setMethod(LoginMethodBt::NewSuperUserMethod);
    ui->saasUserBt->setMethod(LoginMethodBt::CloudUserMethod);
    // The buttons take no focus, and the page has nothing else to choose with.
    ui->defaultUserBt->setShortcut(Qt::ALT | Qt::Key_1);
    ui->newUserBt->setShortcut(Qt::ALT | Qt::Key_2);
    ui->saasUserBt->setShortcut(Qt::ALT | Qt::Key_3);
    applyCloudRule();
    for (const LoginMethodBt *button : {ui->defaultUserBt, ui->newUserBt, ui->saasUserBt})
        ui->handlers.connect(button, &LoginMethodBt::signalClicked, this, &LoginMethodSelWt::slotLoginMethodBtClicked);
}

LoginMethodSelWt::~LoginMethodSelWt() = default;

void LoginMethodSelWt::applyCloudRule()
{
    if (Customization::_instance().getCustomizeInfo().cloudLoginEnabled)
        return;
    ui->saasUserBt->hide();
    ui->verticalLayout->setContentsMargins(0, topMarginWithoutCloud, 0, 0);
}

void LoginMethodSelWt::slotLoginMethodBtClicked(int method)
{
    auto &hub = LoginSignals::_instance();
    switch (method) {
    case LoginMethodBt::DefaultSuperUserMethod:
        createDefaultSuperUser();
        break;
    case LoginMethodBt::NewSuperUserMethod:
        emit hub.signalLoginEvent(CreateSuperUser, {});
        break;
    default:
        emit hub.signalLoginEvent(NormalLogin, {});
        emit hub.signalSaasLoginEvent(SaasPwdLogin, {});
        SystemWorker::_instance().setLastLoggedInUserType(kelvra_worker::CloudUser);
    }
    // Safe also when the alert of a refusal has outlived this page.
    UserData::_instance().updateLoginEnvironment();
}

void LoginMethodSelWt::createDefaultSuperUser()
{
    const kelvra_data::SuperUserInfo info = LoginWorker::_instance().defaultSuperUserInfo();
    if (!UserData::_instance().addSuperUser(info)) {
        warningAlert(tr("Local default superuser is not available"));
        return;
    }
    auto &hub = LoginSignals::_instance();
    emit hub.signalLoginEvent(NormalLogin, {info.userName, info.password});
    emit hub.signalDefaultLocalSuperUserMethodSelected(info.userName, info.password);
}

void LoginMethodSelWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
