#pragma once

#include "login/common/Form.h"

#include <QPushButton>

#include <memory>

namespace kelvra_login {

namespace Ui {
class LoginMethodBt;
}

/** One choice of the first-run page. */
class LoginMethodBt : public QPushButton
{
    Q_OBJECT

public:
    /** What a button stands for; any other value reads like CloudUserMethod. */
    enum Method : int { DefaultSuperUserMethod = 0, NewSuperUserMethod = 1, CloudUserMethod = 2 };

    explicit LoginMethodBt(QWidget *parent = nullptr);
    ~LoginMethodBt() override;

    /** Stores the method and shows its texts. */
    void setMethod(int method);

signals:
    void signalClicked(int method);

protected:
    void changeEvent(QEvent *event) override;

private:
    const std::unique_ptr<Form<Ui::LoginMethodBt>> ui;
    int method = DefaultSuperUserMethod;
};

} // namespace kelvra_login
