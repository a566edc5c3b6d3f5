#pragma once

#include "host/kelvra_base/CommonDialog.h"
#include "host/kelvra_data/SuperUserInfo.h"
#include "login/common/Form.h"

#include <memory>

namespace kelvra_login {

namespace Ui {
class GetbackPwdDlg;
}

class SecretCopy;

/**
 * Shows the password of the host's superuser, to be copied, to whoever answers the security questions or has the
 * login-credentials file. There is no way back from the password to the questions. The copy does not outlive the
 * dialog.
 */
class GetbackPwdDlg : public kelvra_base::CommonDialog
{
    Q_OBJECT

public:
    explicit GetbackPwdDlg(QWidget *parent);
    ~GetbackPwdDlg() override;

public slots:
    void slotOperBtClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void retranslate();
    void verifyAnswers();
    void importCredentials();
    void showPassword();

    const std::unique_ptr<Form<Ui::GetbackPwdDlg>> ui;
    const kelvra_data::SuperUserInfo superUserInfo;
    SecretCopy *const copy;
    bool passwordShown = false;
};

} // namespace kelvra_login
