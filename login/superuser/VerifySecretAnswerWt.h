#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class VerifySecretAnswerWt;
}

/**
 * Asks a superuser who has forgotten the password for the answers to the security questions or for the
 * login-credentials file; either leads to the page that sets a new password.
 */
class VerifySecretAnswerWt : public QWidget
{
    Q_OBJECT

public:
    VerifySecretAnswerWt(const QString &userName, QWidget *parent);
    ~VerifySecretAnswerWt() override;

public slots:
    void slotOkBtClicked();
    void slotBackBtClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showQuestions();
    void linkPressed(QObject *link);
    void importCredentials();

    const std::unique_ptr<Form<Ui::VerifySecretAnswerWt>> ui;
    const QString userName;
};

} // namespace kelvra_login
