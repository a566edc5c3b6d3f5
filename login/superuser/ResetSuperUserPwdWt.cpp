#include "login/superuser/ResetSuperUserPwdWt.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginWorker.h"
#include "login/local/PwdTipWt.h"
#include "login/superuser/NewPwdRating.h"
#include "login/superuser/PageParts.h"
#include "ui_ResetSuperUserPwdWt.h"

#include <QKeyEvent>

using kelvra_data::UserData;
using kelvra_worker::DictDef;
using kelvra_worker::LoginLogs;

namespace kelvra_login {

ResetSuperUserPwdWt::ResetSuperUserPwdWt(const QString &name, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::ResetSuperUserPwdWt>>())
    , userName(name)
{
    ui->setupUi(this);
    ui->userWt->setText(userName);
    ui->userWt->setFieldDisabled();
    ui->confirmPwdWt->hideIcon();
    setPlaceholders();
    const NewPwdRating::Fields fields{ui->userWt, ui->inputPwdWt, ui->pwdStrengthWt, ui->confirmPwdWt};
    ui->handlers.connect(new NewPwdRating(fields, ui->handlers), &NewPwdRating::signalRated,
                         [this](int rated) { pwdStrength = rated; });
    ui->handlers.connect(ui->loginBt, &QPushButton::clicked, this, &ResetSuperUserPwdWt::slotLoginBtClicked);
}

ResetSuperUserPwdWt::~ResetSuperUserPwdWt() = default;

bool ResetSuperUserPwdWt::checkFields()
{
    if (ui->userWt->text().isEmpty())
        ui->userWt->showError(tr("User name can not be empty or be all blank!"));
    else if (pwdStrength != PwdTipKept)
        ui->inputPwdWt->showError(tr("Illegal password!"));
    else if (ui->confirmPwdWt->text() != ui->inputPwdWt->text())
        ui->confirmPwdWt->showError(tr("The two passwords are not the same!"));
    else
        return true;
    return false;
}

void ResetSuperUserPwdWt::slotLoginBtClicked()
{
    if (!checkFields())
        return;
    // Copies: the page may be gone before the login is complete.
    const QString name = userName;
    const QString pwd = ui->inputPwdWt->text();
    const bool autoLogin = ui->autoLogin->isChecked();
    if (!UserData::_instance().resetUserPwd(name, pwd)) {
        messageAlert(DictDef::OperationFailedTitle, tr("reset [%1] pwd failed").arg(name));
        return;
    }
    LoginLogs::_instance().resetUserPwdLog(name);
    LoginWorker::_instance().loginSuccess(name, pwd, autoLogin);
}

void ResetSuperUserPwdWt::keyPressEvent(QKeyEvent *event)
{
    if (clickOnEnter(this, ui->loginBt, event))
        QWidget::keyPressEvent(event);
}

void ResetSuperUserPwdWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        setPlaceholders();
    }
    QWidget::changeEvent(event);
}

void ResetSuperUserPwdWt::setPlaceholders()
{
    ui->inputPwdWt->setPlaceholderText(tr("Password"));
    ui->confirmPwdWt->setPlaceholderText(tr("Confirm Password"));
}

} // namespace kelvra_login
