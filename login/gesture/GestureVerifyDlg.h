#pragma once

#include "host/kelvra_base/CommonDialog.h"
#include "login/common/Form.h"

#include <memory>

namespace kelvra_login {

namespace Ui {
class GestureVerifyDlg;
}

/** Asks the host's current user for the gesture; accepted on the right one. Wrong ones count as failures. */
class GestureVerifyDlg : public kelvra_base::CommonDialog
{
    Q_OBJECT

public:
    explicit GestureVerifyDlg(QWidget *parent);
    ~GestureVerifyDlg() override;

public slots:
    void slotGesturePwd(const QString &pwd);

protected:
    void changeEvent(QEvent *event) override;

private:
    const std::unique_ptr<Form<Ui::GestureVerifyDlg>> ui;
};

} // namespace kelvra_login
