#include "login/frame/SplashScreen.h"

#include "host/ZCommon/SmoothProgress.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_worker/Customization.h"
#include "ui_SplashScreen.h"

#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QPainter>
#include <QPixmap>

using kelvra_contact::SystemMsg;
using kelvra_worker::Customization;
using kelvra_worker::CustomizeInfo;
using ZCOMMON::SmoothProgress;

namespace kelvra_login {

namespace {

constexpr int fullProgress = 100; // percent
constexpr int barMargin = 40;     // left and right of the track
constexpr int barBottom = 77;     // from the track's top edge to the screen's bottom
constexpr int barHeight = 7;
constexpr int trackRadius = 3;
constexpr int barRadius = 4;
constexpr int lightLeft = 18; // from the bar's head to the left edge of the glow
constexpr double lightTop = 12.5;
constexpr QSize lightSize(36, 33);

// Holds a picture for a screen of 3840 x 2160 even when it is not compressed; reading more would hold up the login.
constexpr qint64 largestPicture = qint64(40) * 1024 * 1024; // bytes

/** The host's own loading picture as it is in its file; empty when it has none, or none that can be read. */
QByteArray customPicture()
{
    const CustomizeInfo &customization = Customization::_instance().getCustomizeInfo();
    // Reading a pipe or a device may never end.
    if (!customization.customLoadingImageEnabled || !QFileInfo(customization.loadingImagePath).isFile())
        return QByteArray();
    QFile file(customization.loadingImagePath);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestPicture)
        return QByteArray();
    return file.read(largestPicture);
}

} // namespace

SplashScreen::SplashScreen(QWidget *parent)
    : ZWidget(parent)
    , ui(std::make_unique<Form<Ui::SplashScreen>>())
    , background(QStringLiteral(":/login_images/images/img_bg_loading.png"), customPicture())
    , smoothProgress(new SmoothProgress(this))
{
    ui->setupUi(this);
    ui->handlers.connect(smoothProgress, &SmoothProgress::signalProgress, this, &SplashScreen::slotSmoothProgress);
    ui->handlers.connect(&SystemMsg::_instance(), &SystemMsg::signalSystemInitProgress, this,
                         &SplashScreen::slotSystemInitProgress);
}

SplashScreen::~SplashScreen() = default;

void SplashScreen::prepareAfterPaintOf(QWidget *window)
{
    window->installEventFilter(this);
}

bool SplashScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // All of the window is painted before the event loop goes on.
        ui->handlers.after(0, [this] { background.prepare((QSizeF(size()) * devicePixelRatioF()).toSize()); });
    }
    return ZWidget::eventFilter(watched, event);
}

void SplashScreen::slotSystemInitProgress(int value)
{
    smoothProgress->setCurrentProgress(value);
}

void SplashScreen::slotSmoothProgress(int value)
{
    progress = qBound(0, value, fullProgress);
    showProgress();
    repaint();
    if (progress == fullProgress)
        emit signalSystemLoadingFinished();
}

void SplashScreen::showProgress()
{
    ui->progress->setText(QStringLiteral("%1%").arg(progress));
}

void SplashScreen::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setPen(Qt::NoPen);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        background.paint(&painter, rect());

        painter.setRenderHint(QPainter::Antialiasing);
        const int top = height() - barBottom;
        const int trackWidth = width() - 2 * barMargin;
        painter.setBrush(QColor(QStringLiteral("#202a3f")));
        painter.drawRoundedRect(barMargin, top, trackWidth, barHeight, trackRadius, trackRadius);

        const int x = static_cast<int>((progress * trackWidth) * 0.01 + barMargin);
        QLinearGradient gradient(barMargin, top, x, top);
        gradient.setColorAt(0, QColor(QStringLiteral("#0f8bfd")));
        gradient.setColorAt(1, QColor(QStringLiteral("#12f8fd")));
        painter.setBrush(gradient);
        painter.drawRoundedRect(barMargin, top, x - barMargin, barHeight, barRadius, barRadius);

        if (progress > 0)
            painter.drawPixmap(x - lightLeft, static_cast<int>(top - lightTop),
                               QIcon(QStringLiteral(":/login_images/images/img_light.png")).pixmap(lightSize));
    }
    ZWidget::paintEvent(event);
}

void SplashScreen::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showProgress();
    }
    ZWidget::changeEvent(event);
}

} // namespace kelvra_login
