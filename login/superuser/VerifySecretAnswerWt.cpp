#include "login/superuser/VerifySecretAnswerWt.h"

#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "ui_VerifySecretAnswerWt.h"

#include <QPointer>
#include <QShowEvent>

using kelvra_data::UserData;
using kelvra_worker::DictDef;

namespace kelvra_login {

VerifySecretAnswerWt::VerifySecretAnswerWt(const QString &name, QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::VerifySecretAnswerWt>>())
    , userName(name)
{
    ui->setupUi(this);
    showQuestions();
    ui->importCredentialsBt->installEventFilter(this);
    ui->forgotAllBt->installEventFilter(this);
    ui->handlers.connect(ui->backBt, &QPushButton::clicked, this, &VerifySecretAnswerWt::slotBackBtClicked);
    ui->handlers.connect(ui->okBt, &QPushButton::clicked, this, &VerifySecretAnswerWt::slotOkBtClicked);
}

VerifySecretAnswerWt::~VerifySecretAnswerWt() = default;

void VerifySecretAnswerWt::showQuestions()
{
    ui->answersWt->showQuestions(UserData::_instance().getSuperUserInfo(userName));
}

void VerifySecretAnswerWt::slotOkBtClicked()
{
    SecretAnswers answers;
    if (!ui->answersWt->read(answers))
        return;
    if (UserData::_instance().verifySuperUserAnswers(userName, answers[0], answers[1], answers[2]))
        emit LoginSignals::_instance().signalLoginEvent(ResetSuperUserPwd, {userName});
    else
        warningAlert(tr("verify user answers failed"));
}

void VerifySecretAnswerWt::slotBackBtClicked()
{
    emit LoginSignals::_instance().signalLoginEvent(NormalLogin, {});
}

void VerifySecretAnswerWt::linkPressed(QObject *link)
{
    if (link == ui->importCredentialsBt)
        importCredentials();
    else
        emit LoginSignals::_instance().signalLoginEvent(CreateSuperUser, {});
}

void VerifySecretAnswerWt::importCredentials()
{
    // The page, and the name with it, may be gone when the file dialog closes.
    const QPointer<VerifySecretAnswerWt> self(this);
    const QString name = userName;
    if (LoginWorker::_instance().importLoginCredentials(name) && self)
        emit LoginSignals::_instance().signalLoginEvent(ResetSuperUserPwd, {name});
}

bool VerifySecretAnswerWt::eventFilter(QObject *watched, QEvent *event)
{
    const bool onLink = watched == ui->importCredentialsBt || watched == ui->forgotAllBt;
    if (onLink && isLeftPress(event)) {
        const QPointer<VerifySecretAnswerWt> self(this);
        linkPressed(watched);
        // Nobody is left to take the press.
        if (!self)
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

void VerifySecretAnswerWt::keyPressEvent(QKeyEvent *event)
{
    if (clickOnEnter(this, ui->okBt, event))
        QWidget::keyPressEvent(event);
}

void VerifySecretAnswerWt::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        ui->answersWt->setFocus();
    QWidget::showEvent(event);
}

void VerifySecretAnswerWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        DictDef::_instance().retranslate();
        showQuestions();
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
