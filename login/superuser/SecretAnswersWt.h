#pragma once

#include "login/common/Form.h"
#include "login/superuser/PageParts.h"

#include <QWidget>

#include <memory>

namespace kelvra_data {
struct SuperUserInfo;
}

namespace kelvra_login {

namespace Ui {
class SecretAnswersWt;
}

/** The three security questions of a superuser, each above the field for its answer. */
class SecretAnswersWt : public QWidget
{
    Q_OBJECT

public:
    explicit SecretAnswersWt(QWidget *parent = nullptr);
    ~SecretAnswersWt() override;

    /** Shows the questions of `info` in the language in force; what has been typed stays. */
    void showQuestions(const kelvra_data::SuperUserInfo &info);
    /** Puts the stored answers of `info` into the fields, which then only show them. */
    void showAnswers(const kelvra_data::SuperUserInfo &info);
    /** As readAnswers() of the three fields. */
    bool read(SecretAnswers &answers);

protected:
    void changeEvent(QEvent *event) override;

private:
    const std::unique_ptr<Form<Ui::SecretAnswersWt>> ui;
};

} // namespace kelvra_login
