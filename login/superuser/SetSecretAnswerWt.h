#pragma once

#include "host/kelvra_data/SuperUserInfo.h"
#include "login/common/Form.h"

#include <QWidget>

#include <array>
#include <memory>

class QLineEdit;

namespace kelvra_base {
class ComboBox;
}

namespace kelvra_login {

namespace Ui {
class SetSecretAnswerWt;
}

/**
 * Second page of superuser creation: three security questions with their answers. It creates the superuser that the
 * first page has handed over, and logs it in.
 */
class SetSecretAnswerWt : public QWidget
{
    Q_OBJECT

public:
    explicit SetSecretAnswerWt(QWidget *parent);
    ~SetSecretAnswerWt() override;

    /** Takes over the user name, the password and the role; questions and answers are this page's own. */
    void setSuperUserInfo(const kelvra_data::SuperUserInfo &info);
    /** Whether the new superuser is to be logged on automatically next time. */
    void setAutoLogin(bool on);

public slots:
    void slotLoginBtClicked();
    void slotBackBtClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void fillQuestions();
    std::array<kelvra_base::ComboBox *, 3> questionBoxes() const;
    std::array<QLineEdit *, 3> answerFields() const;

    const std::unique_ptr<Form<Ui::SetSecretAnswerWt>> ui;
    kelvra_data::SuperUserInfo superUserInfo;
    bool autoLogin = false;
};

} // namespace kelvra_login
