#pragma once

#include "login/Export.h"

#include <QMap>
#include <QString>
#include <QWidget>

#include <memory>

class QLabel;
class QMovie;
class QPushButton;
class QTimer;

namespace kelvra_saas {
struct LoginQRCodeInfo;
struct Response;
} // namespace kelvra_saas

namespace kelvra_login {

class QRCodeMaskWt;

template <typename Designed>
class Form;

namespace Ui {
class QRCodeLoginPanel;
}

/**
 * Login with a Nimbra account by scanning a QR code with the Nimbra App.
 *
 * Put it into a layout, connect signalScanQRCodeLoginSuccess() and show it: the first show fetches a code, and while
 * the panel is visible it asks the cloud once a second what has become of the code. A code that has expired, failed
 * or was refused is covered until the user presses the refresh button on it; a failed cloud call is told in a modal
 * alert as well, during which the panel may be destroyed.
 *
 * The panel knows nothing of accounts: when it reports success, ask the cloud library for the account
 * (kelvra_saas::LoginWorker::getAccountAfterScanQRCode). Use one panel at a time: a newly built one takes over, and
 * once it is gone, codes that an older one asks for are not shown. GUI thread only.
 */
class KELVRA_LOGIN_EXPORT QRCodeLoginPanel : public QWidget
{
    Q_OBJECT

public:
    /** Asks the cloud for nothing yet. @param parent owner, may be null */
    explicit QRCodeLoginPanel(QWidget *parent);
    ~QRCodeLoginPanel() override;

    /** Fixes the code at `size` × `size` pixels, 220 at first; a code on show keeps its size. */
    void setQRCodeSize(int size);

    /** The space between title and code, in pixels, 36 at first. */
    void setLayoutSpacing(int spacing);

public slots:
    /** Asks for a new code, whatever is on show; a title stays until the answer. */
    void refreshQRCode();

signals:
    /** The cloud has confirmed a login by the code on show, which is not renewed by itself. */
    void signalScanQRCodeLoginSuccess();

protected:
    /** Watches the code and the waiting animation, its own children; every event goes on. */
    bool eventFilter(QObject *watched, QEvent *event) override;
    /** Fetches the first code, or asks on about the one on show; a covered code waits for the refresh button. */
    void showEvent(QShowEvent *event) override;
    /** Stops asking. */
    void hideEvent(QHideEvent *event) override;
    /** Keeps cover, button and animation on the code. */
    void resizeEvent(QResizeEvent *event) override;
    /** Translates the title on show on QEvent::LanguageChange; the code stays. */
    void changeEvent(QEvent *event) override;

private slots:
    void slotCheckLoginStatusTimeout();

private:
    void init();
    void nameParts();
    void retranslate();
    void placeOverlays();
    void setTitle(int titleId, const QString &title);
    void setQRCodeMaskWtVisible(bool visible);
    void QRCodeInvalid(int titleId, const QString &title);
    void fetchFirstCode();
    void codeAnswered(const kelvra_saas::Response &response, const kelvra_saas::LoginQRCodeInfo &info);
    void statusAnswered(const kelvra_saas::Response &response, int status);
    void followStatus(int status);
    void checkLoginQRCodeResult();

    const std::unique_ptr<Form<Ui::QRCodeLoginPanel>> ui;
    QTimer *statusTimer;
    bool statusQueryInFlight = false;
    bool beingShown = false;
    int state;
    QString qrCodeId;
    QMap<int, QString> titles; // title id -> translated title
    QLabel *waitingLabel;
    QMovie *waitingMovie;
    QRCodeMaskWt *mask;
    QPushButton *refreshBt;
};

} // namespace kelvra_login
