#pragma once

#include "host/ZCommon/ZWidget.h"
#include "login/common/Form.h"
#include "login/local/Backdrop.h"

#include <memory>

namespace ZCOMMON {
class SmoothProgress;
}

namespace kelvra_login {

namespace Ui {
class SplashScreen;
}

/** Shows how far the client has loaded after a login, gliding from report to report. */
class SplashScreen : public ZCOMMON::ZWidget
{
    Q_OBJECT

public:
    explicit SplashScreen(QWidget *parent = nullptr);
    ~SplashScreen() override;

    /**
     * Decodes the background once `window` has been painted for the first time: decoding takes its time, which neither
     * the login should wait for when it opens nor the user when it goes. Otherwise it is decoded when first shown.
     */
    void prepareAfterPaintOf(QWidget *window);

signals:
    /** The bar has reached 100. */
    void signalSystemLoadingFinished();

public slots:
    /** A step of the glide, in percent; what is outside 0 to 100 counts as the nearer end. */
    void slotSmoothProgress(int value);
    /** A report of the host, in percent: the glide's new target. */
    void slotSystemInitProgress(int value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showProgress();

    const std::unique_ptr<Form<Ui::SplashScreen>> ui;
    int progress = 0;
    Backdrop background;
    ZCOMMON::SmoothProgress *smoothProgress = nullptr;
};

} // namespace kelvra_login
