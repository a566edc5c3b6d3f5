#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class ResetSuperUserPwdWt;
}

/** Gives a superuser who has proved to be the right person a new password, and logs them in with it. */
class ResetSuperUserPwdWt : public QWidget
{
    Q_OBJECT

public:
    /** A page for the superuser `name`. */
    ResetSuperUserPwdWt(const QString &name, QWidget *parent);
    ~ResetSuperUserPwdWt() override;

public slots:
    void slotLoginBtClicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setPlaceholders();
    bool checkFields();

    const std::unique_ptr<Form<Ui::ResetSuperUserPwdWt>> ui;
    const QString userName;
    int pwdStrength = 0;
};

} // namespace kelvra_login
