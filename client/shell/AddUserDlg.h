#pragma once

#include "client/shell/NewPwdDlg.h"

namespace kelvra_client {

/** Asks for the name and the password of a new ordinary local user, and adds them. */
class AddUserDlg : public NewPwdDlg
{
    Q_OBJECT

public:
    explicit AddUserDlg(QWidget *parent);

protected:
    QString titleText() const override;
    kelvra_data::UserAdmin::Answer checkUser() const override;
    kelvra_data::UserAdmin::Answer apply(const QString &password) override;
};

} // namespace kelvra_client
