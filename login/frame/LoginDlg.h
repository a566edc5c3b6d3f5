#pragma once

#include "host/ZCommon/MoveableDialog.h"

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
 * when it hides and deletes itself. Closing it in any other way quits the client.
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
    void createOverlays();
    void quitSystem();
    void quitWithMessage(const QString &message);
    void bringToFront();

    const std::unique_ptr<Ui::LoginDlg> ui;
    kelvra_base::LogoLabel *logo = nullptr;
    QPushButton *closeBt = nullptr;
    bool ended = false; // quit or loaded: what arrives now comes too late
};

} // namespace kelvra_login
