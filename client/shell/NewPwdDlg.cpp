#include "client/shell/NewPwdDlg.h"

#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "ui_NewPwdDlg.h"

#include <QKeyEvent>

#include <initializer_list>

using kelvra_base::CapsLockToolTipHandler;
using kelvra_data::UserAdmin;

namespace kelvra_client {

NewPwdDlg::NewPwdDlg(const QString &name, QWidget *parent)
    : CommonDialog(parent, 0, 1)
    , ui(std::make_unique<Ui::NewPwdDlg>())
{
    ui->setupUi(this);
    setFixedSize(size());
    ui->userName->setText(name);
    ui->userName->setEnabled(name.isEmpty());
    (name.isEmpty() ? ui->userName : ui->newPwd)->setFocus();
    connectFields();
}

NewPwdDlg::~NewPwdDlg() = default;

void NewPwdDlg::connectFields()
{
    for (QLineEdit *field : std::initializer_list<QLineEdit *>{ui->userName, ui->newPwd, ui->confirmPwd}) {
        connect(field, &QLineEdit::textEdited, this, &NewPwdDlg::forgetRefusal);
        if (field != ui->userName) {
            field->setContextMenuPolicy(Qt::NoContextMenu);
            field->installEventFilter(this);
            new CapsLockToolTipHandler(this, field, field);
        }
    }
    connect(ui->newPwd, &QLineEdit::textChanged, ui->pwdStrengthWt, &kelvra_base::PwdStrengthWt::setPwd);
    connect(ui->okBt, &QPushButton::clicked, this, &NewPwdDlg::slotOkBtClicked);
    connect(ui->cancelBt, &QPushButton::clicked, this, &NewPwdDlg::reject);
}

QString NewPwdDlg::userName() const
{
    return ui->userName->text().trimmed();
}

UserAdmin::Answer NewPwdDlg::checkUser() const
{
    return UserAdmin::Done;
}

void NewPwdDlg::slotOkBtClicked()
{
    const QString password = ui->newPwd->text();
    refusal = checkUser();
    if (refusal == UserAdmin::Done)
        refusal = UserAdmin::_instance().checkPassword(password);
    passwordsDiffer = refusal == UserAdmin::Done && ui->confirmPwd->text() != password;
    if (refusal == UserAdmin::Done && !passwordsDiffer)
        refusal = apply(password);
    showRefusal();
    if (refusal == UserAdmin::Done && !passwordsDiffer)
        accept();
    else
        focusRefused();
}

void NewPwdDlg::forgetRefusal()
{
    refusal = UserAdmin::Done;
    passwordsDiffer = false;
    showRefusal();
}

void NewPwdDlg::showRefusal()
{
    ui->error->setText(passwordsDiffer ? tr("The two passwords are not the same.") : UserAdmin::sentence(refusal));
}

void NewPwdDlg::focusRefused()
{
    const bool byName = refusal >= UserAdmin::NameEmpty && refusal <= UserAdmin::NameTaken;
    QLineEdit *field = byName ? ui->userName : ui->newPwd;
    if (passwordsDiffer)
        field = ui->confirmPwd;
    field->setFocus();
    field->selectAll();
}

void NewPwdDlg::retranslate()
{
    ui->retranslateUi(this);
    setTitle(titleText());
    showRefusal();
}

void NewPwdDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    CommonDialog::changeEvent(event);
}

bool NewPwdDlg::eventFilter(QObject *watched, QEvent *event)
{
    // Undo would empty a password field as a whole.
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo))
            return true;
    }
    return CommonDialog::eventFilter(watched, event);
}

void NewPwdDlg::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        CommonDialog::keyPressEvent(event);
        return;
    }
    // One that is still held from the page behind is meant for that page.
    if (!event->isAutoRepeat())
        (ui->cancelBt->hasFocus() ? ui->cancelBt : ui->okBt)->click();
}

} // namespace kelvra_client
