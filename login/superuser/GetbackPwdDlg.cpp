#include "login/superuser/GetbackPwdDlg.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginWorker.h"
#include "login/superuser/SecretCopy.h"
#include "ui_GetbackPwdDlg.h"

#include <QHideEvent>
#include <QPointer>

using kelvra_data::UserData;
using kelvra_worker::DictDef;
using kelvra_worker::LoginLogs;
using kelvra_worker::SystemWorker;

namespace kelvra_login {

GetbackPwdDlg::GetbackPwdDlg(QWidget *parent)
    : CommonDialog(parent, 0, 1)
    , ui(std::make_unique<Form<Ui::GetbackPwdDlg>>())
    , superUserInfo(UserData::_instance().getSuperUserInfo(SystemWorker::_instance().getSuperUserName()))
    , copy(new SecretCopy(this))
{
    ui->setupUi(this);
    setTitle(tr("Get Back Password"));
    ui->pwdWt->hide();
    ui->importCredentialsBt->installEventFilter(this);
    ui->answersWt->showQuestions(superUserInfo);
    ui->answersWt->setFocus();
    ui->handlers.connect(ui->operBt, &QPushButton::clicked, this, &GetbackPwdDlg::slotOperBtClicked);
    ui->handlers.connect(ui->cancelBt, &QPushButton::clicked, this, &GetbackPwdDlg::reject);
}

GetbackPwdDlg::~GetbackPwdDlg() = default;

void GetbackPwdDlg::slotOperBtClicked()
{
    if (passwordShown)
        copy->put(ui->password->text());
    else
        verifyAnswers();
}

void GetbackPwdDlg::verifyAnswers()
{
    SecretAnswers answers;
    if (!ui->answersWt->read(answers))
        return;
    const QString name = SystemWorker::_instance().getSuperUserName();
    if (UserData::_instance().verifySuperUserAnswers(name, answers[0], answers[1], answers[2]))
        showPassword();
    else
        warningAlert(tr("verify user answers failed"));
}

void GetbackPwdDlg::importCredentials()
{
    const QPointer<GetbackPwdDlg> self(this);
    const QString name = SystemWorker::_instance().getSuperUserName();
    if (LoginWorker::_instance().importLoginCredentials(name) && self)
        showPassword();
}

void GetbackPwdDlg::showPassword()
{
    passwordShown = true;
    ui->answersWt->showAnswers(superUserInfo);
    ui->password->setText(superUserInfo.password);
    ui->operBt->setText(tr("Copy"));
    ui->pwdWt->show();
    ui->cancelBt->hide();
    LoginLogs::_instance().getbackPwdLog(superUserInfo.userName);
}

bool GetbackPwdDlg::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui->importCredentialsBt && isLeftPress(event)) {
        const QPointer<GetbackPwdDlg> self(this);
        importCredentials();
        // Nobody is left to take the press.
        if (!self)
            return true;
    }
    return CommonDialog::eventFilter(watched, event);
}

void GetbackPwdDlg::keyPressEvent(QKeyEvent *event)
{
    // The base finds no default button to press besides: the form has none.
    if (clickOnEnter(this, ui->operBt, event))
        CommonDialog::keyPressEvent(event);
}

void GetbackPwdDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    CommonDialog::changeEvent(event);
}

void GetbackPwdDlg::hideEvent(QHideEvent *event)
{
    // A minimised dialog is still open.
    if (!event->spontaneous())
        copy->takeOff();
    CommonDialog::hideEvent(event);
}

void GetbackPwdDlg::retranslate()
{
    ui->retranslateUi(this);
    setTitle(tr("Get Back Password"));
    if (passwordShown)
        ui->operBt->setText(tr("Copy"));
    DictDef::_instance().retranslate();
    ui->answersWt->showQuestions(superUserInfo);
}

} // namespace kelvra_login
