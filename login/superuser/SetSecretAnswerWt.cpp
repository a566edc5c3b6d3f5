#include "login/superuser/SetSecretAnswerWt.h"

#include "host/kelvra_base/ComboBox.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "login/frame/Alerts.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/superuser/PageParts.h"
#include "ui_SetSecretAnswerWt.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QShowEvent>

using kelvra_base::ComboBox;
using kelvra_data::UserData;
using kelvra_worker::DictDef;
using kelvra_worker::LoginLogs;

namespace kelvra_login {

namespace {

constexpr int secondDefault = 4; // index of the question that the second box starts with
constexpr int thirdDefault = 8;

} // namespace

SetSecretAnswerWt::SetSecretAnswerWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::SetSecretAnswerWt>>())
{
    ui->setupUi(this);
    const auto boxes = questionBoxes();
    const auto fields = answerFields();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->getListWt()->setStyleSheet(
            QStringLiteral("QListWidget{border:0px;border-radius:0px;} QListWidget::item{min-height:34px;}"));
        ui->handlers.connect(boxes[i], QOverload<int>::of(&QComboBox::currentIndexChanged), fields[i],
                             &QLineEdit::clear);
    }
    fillQuestions();
    ui->handlers.connect(ui->backBt, &QPushButton::clicked, this, &SetSecretAnswerWt::slotBackBtClicked);
    ui->handlers.connect(ui->loginBt, &QPushButton::clicked, this, &SetSecretAnswerWt::slotLoginBtClicked);
}

SetSecretAnswerWt::~SetSecretAnswerWt() = default;

std::array<ComboBox *, 3> SetSecretAnswerWt::questionBoxes() const
{
    return {ui->question_1, ui->question_2, ui->question_3};
}

std::array<QLineEdit *, 3> SetSecretAnswerWt::answerFields() const
{
    return {ui->answer_1, ui->answer_2, ui->answer_3};
}

void SetSecretAnswerWt::fillQuestions()
{
    const QMap<int, QString> questions = DictDef::_instance().securityQuestions();
    int number = 0;
    for (ComboBox *box : questionBoxes()) {
        box->setAccessibleName(tr("Question %1").arg(++number));
        // On some systems a combo box gives its current text for its name.
        box->setAccessibleDescription(box->accessibleName());
        box->clear();
        for (auto question = questions.constBegin(); question != questions.constEnd(); ++question) {
            box->addItem(question.value(), question.key());
            box->setItemData(box->count() - 1, question.value(), Qt::ToolTipRole);
        }
    }
    ui->question_2->setCurrentIndex(secondDefault);
    ui->question_3->setCurrentIndex(thirdDefault);
}

void SetSecretAnswerWt::setSuperUserInfo(const kelvra_data::SuperUserInfo &info)
{
    superUserInfo.userName = info.userName;
    superUserInfo.password = info.password;
    superUserInfo.role = info.role;
}

void SetSecretAnswerWt::setAutoLogin(bool on)
{
    autoLogin = on;
}

void SetSecretAnswerWt::slotLoginBtClicked()
{
    SecretAnswers answers;
    if (!readAnswers(answerFields(), answers))
        return;
    superUserInfo.question1 = ui->question_1->currentData().toInt();
    superUserInfo.question2 = ui->question_2->currentData().toInt();
    superUserInfo.question3 = ui->question_3->currentData().toInt();
    superUserInfo.answer1 = answers[0];
    superUserInfo.answer2 = answers[1];
    superUserInfo.answer3 = answers[2];

    // Copies: the page may be gone before the login is complete.
    const kelvra_data::SuperUserInfo info = superUserInfo;
    const bool automatic = autoLogin;
    if (!UserData::_instance().addSuperUser(info)) {
        messageAlert(DictDef::OperationFailedTitle, tr("Failed to create super user"));
        return;
    }
    LoginLogs::_instance().createUserLog(info.userName);
    LoginWorker::_instance().loginSuccess(info.userName, info.password, automatic);
}

void SetSecretAnswerWt::slotBackBtClicked()
{
    emit LoginSignals::_instance().signalLoginEvent(CreateSuperUser, {});
}

void SetSecretAnswerWt::keyPressEvent(QKeyEvent *event)
{
    if (clickOnEnter(this, ui->loginBt, event))
        QWidget::keyPressEvent(event);
}

void SetSecretAnswerWt::showEvent(QShowEvent *event)
{
    // The questions stand already. Shown again, the page would give the focus to the button that led away from it.
    if (!event->spontaneous())
        ui->answer_1->setFocus();
    QWidget::showEvent(event);
}

void SetSecretAnswerWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        DictDef::_instance().retranslate();
        ui->retranslateUi(this);
        fillQuestions();
    }
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
