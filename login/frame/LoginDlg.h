#pragma once

#include "host/ZCommon/MoveableDialog.h"
#include "login/common/Form.h"

#include <memory>

class QPushButton;

namespace kelvra_base {
class LogoLabel;
}

namespace kelvra_login {

namespace Ui {
class LoginDlg;
}

/**
 * The module's window: the login widget until a user is in, then the splash screen until the client has loaded,
 * when it hides and deletes itself. Closing it in any other way quits the client. Whoever hears what it announces may
 * delete it.
 */
class LoginDlg : public ZCOMMON::MoveableDialog
{
    Q_OBJECT

public:
    explicit LoginDlg(QWidget *parent);
    ~LoginDlg() override;

public slots:
    void slotCloseBtClicked();
    void slotLoginSuccess();
    void slotSystemLoadingFinished();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class State { LoggingIn, Loading, Loaded, Quitting };

    void createOverlays();
    /** What arrives once the client quits or has loaded comes too late for the dialog. */
    bool hasEnded() const { return state == State::Loaded || state == State::Quitting; }
    void quitSystem();
    void quitWithMessage(const QString &message);
    void bringToFront();

    const std::unique_ptr<Form<Ui::LoginDlg>> ui;
    kelvra_base::LogoLabel *logo = nullptr;
    QPushButton *closeBt = nullptr;
    State state = State::LoggingIn;
};

} // namespace kelvra_login
