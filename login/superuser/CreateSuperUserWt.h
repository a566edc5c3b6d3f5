#pragma once

#include "host/kelvra_data/SuperUserInfo.h"
#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class CreateSuperUserWt;
}

/**
 * First page of superuser creation: user name, password and automatic logon. It stores nothing; what has been typed
 * and checked is handed over to SetSecretAnswerWt.
 */
class CreateSuperUserWt : public QWidget
{
    Q_OBJECT

public:
    explicit CreateSuperUserWt(QWidget *parent);
    ~CreateSuperUserWt() override;

    /** The superuser as typed, still without questions and answers. */
    kelvra_data::SuperUserInfo getSuperUserInfo() const;
    /** Whether the new superuser wants to be logged on automatically. */
    bool isAutoLogin() const;

public slots:
    void slotCreateBtClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setPlaceholders();

    const std::unique_ptr<Form<Ui::CreateSuperUserWt>> ui;
    int pwdStrength = 0;
};

} // namespace kelvra_login
