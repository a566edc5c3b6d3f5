#pragma once

#include "client/shell/SessionInfo.h"

#include <QWidget>

#include <memory>

namespace kelvra_client {

namespace Ui {
class SignInWt;
}

/** How the current user gets in: the gesture password and the automatic login, each with its state. */
class SignInWt : public QWidget
{
    Q_OBJECT

public:
    explicit SignInWt(QWidget *parent = nullptr);
    ~SignInWt() override;

    void setSession(const SessionInfo &info);

    /** Reads the states again. */
    void refresh();

protected:
    void changeEvent(QEvent *event) override;

private:
    void setGesture();
    void confirmGestureDeletion();
    void deleteGesture();
    void verifyGesture();
    void switchAutoLogin(bool on);
    void showGesture();
    void showAutoLogin();
    /** What has come of the last action; it stays until the next. */
    void tell(const QString &outcome);

    const std::unique_ptr<Ui::SignInWt> ui;
    SessionInfo session;
};

} // namespace kelvra_client
