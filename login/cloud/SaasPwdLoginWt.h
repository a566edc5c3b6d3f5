#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_base {
class CapsLockToolTipHandler;
}

namespace kelvra_saas {
struct LoginErrorInfo;
struct Response;
} // namespace kelvra_saas

namespace kelvra_login {

namespace Ui {
class SaasPwdLoginWt;
}

/** The page of the login form for a Nimbra account's phone number and password. */
class SaasPwdLoginWt : public QWidget
{
    Q_OBJECT

public:
    explicit SaasPwdLoginWt(QWidget *parent);
    ~SaasPwdLoginWt() override;

    /** The phone number on the page. */
    QString account() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void login();
    void loginAnswered(const QString &account, const kelvra_saas::Response &response,
                       const kelvra_saas::LoginErrorInfo &info);

    const std::unique_ptr<Form<Ui::SaasPwdLoginWt>> ui;
    kelvra_base::CapsLockToolTipHandler *capsLockHandler;
};

} // namespace kelvra_login
