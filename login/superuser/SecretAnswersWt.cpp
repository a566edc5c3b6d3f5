#include "login/superuser/SecretAnswersWt.h"

#include "host/kelvra_data/SuperUserInfo.h"
#include "host/kelvra_worker/DictDef.h"
#include "ui_SecretAnswersWt.h"

#include <QEvent>

using kelvra_data::SuperUserInfo;
using kelvra_worker::DictDef;

namespace kelvra_login {

namespace {

void showQuestion(QLineEdit *field, QLineEdit *answer, int id)
{
    const QString text = DictDef::_instance().securityQuestions().value(id);
    field->setText(text);
    field->setCursorPosition(0);
    // A long one is wider than the field.
    field->setToolTip(text);
    field->setAccessibleName(text);
    answer->setAccessibleDescription(text);
}

void showAnswer(QLineEdit *field, const QString &answer)
{
    field->setText(answer);
    field->setCursorPosition(0);
    field->setReadOnly(true);
}

} // namespace

SecretAnswersWt::SecretAnswersWt(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::SecretAnswersWt>>())
{
    ui->setupUi(this);
    setFocusProxy(ui->answer_1);
}

SecretAnswersWt::~SecretAnswersWt() = default;

void SecretAnswersWt::showQuestions(const SuperUserInfo &info)
{
    showQuestion(ui->question_1, ui->answer_1, info.question1);
    showQuestion(ui->question_2, ui->answer_2, info.question2);
    showQuestion(ui->question_3, ui->answer_3, info.question3);
}

void SecretAnswersWt::showAnswers(const SuperUserInfo &info)
{
    showAnswer(ui->answer_1, info.answer1);
    showAnswer(ui->answer_2, info.answer2);
    showAnswer(ui->answer_3, info.answer3);
}

bool SecretAnswersWt::read(SecretAnswers &answers)
{
    return readAnswers({ui->answer_1, ui->answer_2, ui->answer_3}, answers);
}

void SecretAnswersWt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

} // namespace kelvra_login
