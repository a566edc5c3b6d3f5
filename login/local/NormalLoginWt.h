#pragma once

#include "login/common/Form.h"

#include <QElapsedTimer>
#include <QMap>
#include <QStringList>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace kelvra_base {
class CapsLockToolTipHandler;
}

namespace kelvra_saas {
struct Response;
}

namespace kelvra_login {

namespace Ui {
class NormalLoginWt;
}

/**
 * The everyday login form: a tab for local users, with the failure limit, the countdown of the lock and the
 * remembered login, and a tab for cloud accounts, whose pages LoginSignals::signalSaasLoginEvent selects.
 */
class NormalLoginWt : public QWidget
{
    Q_OBJECT

public:
    explicit NormalLoginWt(QWidget *parent);
    ~NormalLoginWt() override;

public slots:
    void slotLocalLoginBtClicked();
    void slotCountDownTimeout();
    void slotQuitSystem();
    void slotLockLoginByGesture();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void restoreLastUser();
    void readLock();
    bool isLocked();
    void showFirstPage();
    void connectFields();
    void connectPages();
    void connectHub();

    /** Puts the cursor in the field of the page on show that wants input; the scan-code page has none. */
    void focusField();
    void selectTab(bool cloud, QWidget *page);
    void slotUserNameEdited();
    void checkRememberedLogin();
    /** The user name, the password, and what the password field shows of it. */
    QStringList entered() const;
    /** Clicks the login button in a moment, if name and remembered password are still the same then. */
    void clickLoginSoon();
    void tryCloudAutoLogin();
    void cloudAutoLoginAnswered(const kelvra_saas::Response &response, const QString &account);
    void startLock(const QString &userName);
    void startCountDown();
    int remainingLockSeconds() const;
    void refreshLinkRow();

    bool linkPressed(QObject *link);
    void forgotPressed();
    void gesturePressed();
    bool hasUserName();
    void showNameError(const QString &text);

    const std::unique_ptr<Form<Ui::NormalLoginWt>> ui;
    bool locked = false;
    qint32 lockSeconds = 0;
    QTimer *countDownTimer;
    QTimer *nameTimer;
    QElapsedTimer lockClock;
    QMap<int, QWidget *> cloudPages;
    QWidget *currentCloudPage = nullptr;
    kelvra_base::CapsLockToolTipHandler *capsLockHandler;
    bool loginRemembered = false;
    bool passwordTyped = false; ///< since the last edit of the user name
    bool quitting = false;
    QString tipAfterRelease;
};

} // namespace kelvra_login
