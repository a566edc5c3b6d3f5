#pragma once

#include "login/common/Form.h"

#include <QVector>
#include <QWidget>

#include <memory>

class QFrame;

namespace kelvra_login {

namespace Ui {
class LoginMethodSelWt;
}

class LoginMethodBt;

/**
 * The first-run page: use the default superuser, create a superuser, or log in with a cloud account. The keyboard
 * focus is the page's, as its buttons take none: Tab and the arrow keys move a frame from button to button, and Return,
 * Enter and Space click the one in the frame.
 */
class LoginMethodSelWt : public QWidget
{
    Q_OBJECT

public:
    explicit LoginMethodSelWt(QWidget *parent);
    ~LoginMethodSelWt() override;

public slots:
    void slotLoginMethodBtClicked(int method);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void applyCloudRule();
    void createDefaultSuperUser();
    void showNextScreen(int method);
    void focusFirstField() const;

    QVector<LoginMethodBt *> offered() const;
    void choose(LoginMethodBt *button);
    void moveChoice(int step);
    void placeFrame();
    void announceChoice();

    const std::unique_ptr<Form<Ui::LoginMethodSelWt>> ui;
    QFrame *const frame;
    LoginMethodBt *choice = nullptr;
};

} // namespace kelvra_login
