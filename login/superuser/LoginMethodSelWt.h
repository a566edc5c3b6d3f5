#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class LoginMethodSelWt;
}

/** The first-run page: use the default superuser, create a superuser, or log in with a cloud account. */
class LoginMethodSelWt : public QWidget
{
    Q_OBJECT

public:
    explicit LoginMethodSelWt(QWidget *parent);
    ~LoginMethodSelWt() override;

public slots:
    void slotLoginMethodBtClicked(int method);

protected:
    void changeEvent(QEvent *event) override;

private:
    void applyCloudRule();
    void createDefaultSuperUser();

    const std::unique_ptr<Form<Ui::LoginMethodSelWt>> ui;
};

} // namespace kelvra_login
