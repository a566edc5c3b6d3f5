#include "login/superuser/CreateSuperUserWt.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_data/UserRole.h"
#include "login/frame/LoginSignals.h"
#include "login/local/PwdTipWt.h"
#include "login/superuser/NewPwdRating.h"
#include "login/superuser/PageParts.h"
#include "ui_CreateSuperUserWt.h"

#include <QKeyEvent>
#include <QShowEvent>

using kelvra_data::UserData;

namespace kelvra_login {

CreateSuperUserWt::CreateSuperUserWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::CreateSuperUserWt>>())
{
    ui->setupUi(this);
    ui->confirmPwdWt->hideIcon();
    setPlaceholders();
    const NewPwdRating::Fields fields{ui->userWt, ui->inputPwdWt, ui->pwdStrengthWt, ui->confirmPwdWt};
    ui->handlers.connect(new NewPwdRating(fields, ui->handlers), &NewPwdRating::signalRated,
                         [this](int rated) { pwdStrength = rated; });
    ui->handlers.connect(ui->createBt, &QPushButton::clicked, this, &CreateSuperUserWt::slotCreateBtClicked);
}

CreateSuperUserWt::~CreateSuperUserWt() = default;

kelvra_data::SuperUserInfo CreateSuperUserWt::getSuperUserInfo() const
{
    kelvra_data::SuperUserInfo info;
    info.userName = ui->userWt->text();
    info.password = ui->inputPwdWt->text();
    info.role = kelvra_data::SuperUserRole;
    info.remark = info.userName;
    return info;
}

bool CreateSuperUserWt::isAutoLogin() const
{
    return ui->autoLogin->isChecked();
}

void CreateSuperUserWt::slotCreateBtClicked()
{
    const QString userName = ui->userWt->text();
    if (userName.isEmpty())
        ui->userWt->showError(tr("User name can not be empty or be all blank!"));
    else if (UserData::_instance().isUserExist(userName))
        ui->userWt->showError(tr("User name already exists!"));
    else if (pwdStrength != PwdTipKept)
        ui->inputPwdWt->showError(tr("Illegal password!"));
    else if (ui->confirmPwdWt->text() != ui->inputPwdWt->text())
        ui->confirmPwdWt->showError(tr("The two passwords are not the same!"));
    else
        emit LoginSignals::_instance().signalLoginEvent(SetSecretAnswer, {});
}

void CreateSuperUserWt::keyPressEvent(QKeyEvent *event)
{
    if (clickOnEnter(this, ui->createBt, event))
        QWidget::keyPressEvent(event);
}

void CreateSuperUserWt::showEvent(QShowEvent *event)
{
    // Shown again, the page would give the focus to the button that led away from it.
    if (!event->spontaneous())
        ui->userWt->setFocus();
    QWidget::showEvent(event);
}

void CreateSuperUserWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        setPlaceholders();
    }
    QWidget::changeEvent(event);
}

void CreateSuperUserWt::setPlaceholders()
{
    ui->userWt->setPlaceholderText(tr("Super User Name"));
    ui->inputPwdWt->setPlaceholderText(tr("Password"));
    ui->confirmPwdWt->setPlaceholderText(tr("Confirm Password"));
}

} // namespace kelvra_login
