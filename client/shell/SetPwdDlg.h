#pragma once

#include "client/shell/NewPwdDlg.h"

namespace kelvra_client {

/** Gives an ordinary local user a new password. */
class SetPwdDlg : public NewPwdDlg
{
    Q_OBJECT

public:
    SetPwdDlg(const QString &name, QWidget *parent);

protected:
    QString titleText() const override;
    kelvra_data::UserAdmin::Answer apply(const QString &password) override;
};

} // namespace kelvra_client
