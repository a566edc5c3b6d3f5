#pragma once

#include "client/kelvra_data/UserAdmin.h"
#include "host/kelvra_base/CommonDialog.h"

#include <memory>

namespace kelvra_client {

namespace Ui {
class NewPwdDlg;
}

/**
 * A dialog that asks for a new password twice and says below the fields why one is not taken. "OK", Return and Enter
 * try it; the dialog is accepted once that has worked.
 */
class NewPwdDlg : public kelvra_base::CommonDialog
{
    Q_OBJECT

public:
    ~NewPwdDlg() override;

    /** What stands in the field of the user name, without blanks around it. */
    QString userName() const;

protected:
    /** `name` not empty: the password is that user's, and the field only shows it. */
    NewPwdDlg(const QString &name, QWidget *parent);

    virtual QString titleText() const = 0;

    /** Whether the user name can be taken; asked before the passwords are looked at. */
    virtual kelvra_data::UserAdmin::Answer checkUser() const;

    /** Does it; anything but Done keeps the dialog open. */
    virtual kelvra_data::UserAdmin::Answer apply(const QString &password) = 0;

    void retranslate();

    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void connectFields();
    void slotOkBtClicked();
    void forgetRefusal();
    void showRefusal();
    void focusRefused();

    const std::unique_ptr<Ui::NewPwdDlg> ui;
    kelvra_data::UserAdmin::Answer refusal = kelvra_data::UserAdmin::Done;
    bool passwordsDiffer = false;
};

} // namespace kelvra_client
