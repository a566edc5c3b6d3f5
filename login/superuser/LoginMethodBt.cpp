#include "login/superuser/LoginMethodBt.h"

#include "ui_LoginMethodBt.h"

#include <QEvent>

namespace kelvra_login {

LoginMethodBt::LoginMethodBt(QWidget *parent)
    : QPushButton(parent)
    , ui(std::make_unique<Form<Ui::LoginMethodBt>>())
{
    ui->setupUi(this);
    // A label under the pointer would take the hover picture from the button.
    ui->title->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui->detail->setAttribute(Qt::WA_TransparentForMouseEvents);
    ui->handlers.connect(this, &QPushButton::clicked, [this] { emit signalClicked(method); });
}

LoginMethodBt::~LoginMethodBt() = default;

void LoginMethodBt::setMethod(int newMethod)
{
    method = newMethod;
    switch (method) {
    case DefaultSuperUserMethod:
        ui->title->setText(tr("Use Default Superuser"));
        ui->detail->setText(tr("User:admin Password:468024, low security"));
        break;
    case NewSuperUserMethod:
        ui->title->setText(tr("Create New Superuser"));
        ui->detail->setText(tr("Customize user and password, high security"));
        break;
    default:
        ui->title->setText(tr("Login Nimbra App User"));
        ui->detail->setText(tr("Login via phone number or scan QR code"));
    }
    setAccessibleName(ui->title->text());
    setAccessibleDescription(ui->detail->text());
}

void LoginMethodBt::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setMethod(method);
    QPushButton::changeEvent(event);
}

} // namespace kelvra_login
