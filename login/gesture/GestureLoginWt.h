#pragma once

#include "login/common/Form.h"

#include <QWidget>

#include <memory>

namespace kelvra_login {

namespace Ui {
class GestureLoginWt;
}

/**
 * The page on which a local user logs in by drawing a gesture. Wrong ones count with wrong passwords; the last one
 * allowed gives way to the password form, which locks local login. A remembered login goes on by itself.
 */
class GestureLoginWt : public QWidget
{
    Q_OBJECT

public:
    explicit GestureLoginWt(QWidget *parent);
    ~GestureLoginWt() override;

    /** Whose gesture is asked for; the check box shows whether that user logs in automatically. */
    void setUserName(const QString &name);

public slots:
    void slotGesturePwd(const QString &pwd);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void prepareAutoLogin();
    void refuseGesture(const QString &userName);
    void showFailures(int count);
    void loginSoon(const QString &userName, bool automatic);
    void login(const QString &userName, bool automatic);

    const std::unique_ptr<Form<Ui::GestureLoginWt>> ui;
    bool quitting = false;
};

} // namespace kelvra_login
