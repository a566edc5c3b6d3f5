#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_saas {
struct LoginErrorInfo;
struct Response;
} // namespace kelvra_saas

namespace kelvra_login {

namespace Ui {
class SaasVerificationCodeLoginWt;
}

/** The page of the login form for a Nimbra account's phone number and a code sent to that phone. */
class SaasVerificationCodeLoginWt : public QWidget
{
    Q_OBJECT

public:
    explicit SaasVerificationCodeLoginWt(QWidget *parent);
    ~SaasVerificationCodeLoginWt() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void getVerificationCode();
    static void codeAnswered(const kelvra_saas::Response &response);
    void showCountdown(int seconds);
    void login();
    void loginAnswered(const QString &account, const kelvra_saas::Response &response,
                       const kelvra_saas::LoginErrorInfo &info);

    const std::unique_ptr<Form<Ui::SaasVerificationCodeLoginWt>> ui;
};

} // namespace kelvra_login
