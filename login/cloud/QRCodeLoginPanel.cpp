#include "login/cloud/QRCodeLoginPanel.h"

#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "login/cloud/QRCodeMaskWt.h"
#include "login/common/Form.h"
#include "login/frame/Alerts.h"
#include "login/frame/CloudAnswer.h"
#include "ui_QRCodeLoginPanel.h"

#include <QEvent>
#include <QMovie>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using kelvra_saas::LoginQRCodeInfo;
using kelvra_saas::Response;
using CloudWorker = kelvra_saas::LoginWorker;

namespace kelvra_login {

namespace {

constexpr int msPerSecond = 1000;
constexpr int statusIntervalMs = 1000;
constexpr int waitingSize = 128; // pixels
constexpr int refreshSize = 64;  // pixels

// States
constexpr int requestingCode = 0;
constexpr int codeInvalid = 1; // there is no usable code
constexpr int codeShown = 2;

// The property of the title label that remembers which title it shows, and its values
constexpr const char *titleProperty = "title_id";
constexpr int loginFailureTitle = 0;
constexpr int scanTitle = 1;
constexpr int invalidTitle = 2;
constexpr int getCodeFailureTitle = 3;
constexpr int scannedTitle = 4;
constexpr int cancelledTitle = 5;
constexpr int illegalOperationTitle = 6;
constexpr int illegalIpTitle = 7;
constexpr int statusFailureTitle = 8;

QPointer<QRCodeLoginPanel> newestPanel;

// The panel may be gone when this returns.
void cloudAlert(const QString &text, const Response &response)
{
    warningAlert(text.arg(kelvra_saas::saasErrorMsg(response.code, response.subCode)));
}

QPoint centredOn(const QWidget *below, const QWidget *widget)
{
    return below->pos() + QPoint((below->width() - widget->width()) / 2, (below->height() - widget->height()) / 2);
}

} // namespace

QRCodeLoginPanel::QRCodeLoginPanel(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Form<Ui::QRCodeLoginPanel>>())
    , statusTimer(new QTimer(this))
    , state(codeInvalid)
{
    ui->setupUi(this);
    newestPanel = this;
    init();
}

QRCodeLoginPanel::~QRCodeLoginPanel() = default;

void QRCodeLoginPanel::init()
{
    // The form's title, for a language change that comes before the first code.
    ui->QRCodeTitle->setProperty(titleProperty, scanTitle);
    ui->QRCode->setScaledContents(true);

    waitingLabel = new QLabel(this);
    waitingLabel->setObjectName(QStringLiteral("waitingLabel"));
    waitingMovie = new QMovie(QStringLiteral(":/images/images/waiting.gif"), QByteArray(), waitingLabel);
    waitingMovie->start();
    waitingLabel->setFixedSize(waitingSize, waitingSize);
    waitingLabel->setMovie(waitingMovie);
    waitingLabel->hide();
    // A movie goes on drawing for a label that nobody sees.
    waitingMovie->setPaused(true);
    waitingLabel->installEventFilter(this);

    mask = new QRCodeMaskWt(this);
    mask->setObjectName(QStringLiteral("mask"));
    mask->setFixedSize(ui->QRCode->size());
    refreshBt = new QPushButton(this);
    refreshBt->setObjectName(QStringLiteral("refreshBt"));
    refreshBt->setFixedSize(refreshSize, refreshSize);
    refreshBt->setStyleSheet(
        QStringLiteral("QPushButton{border-image:url(:/mainWnd_images/images/refresh_QRCode_n.png);}"
                       "QPushButton:hover{border-image:url(:/mainWnd_images/images/refresh_QRCode_h.png);}"));
    refreshBt->setAutoDefault(false);
    nameParts();
    setQRCodeMaskWtVisible(false);
    ui->QRCode->installEventFilter(this);

    ui->handlers.connect(statusTimer, &QTimer::timeout, this, &QRCodeLoginPanel::slotCheckLoginStatusTimeout);
    ui->handlers.connect(refreshBt, &QPushButton::clicked, this, &QRCodeLoginPanel::refreshQRCode);
}

void QRCodeLoginPanel::nameParts()
{
    ui->QRCode->setAccessibleName(tr("QR code"));
    refreshBt->setAccessibleName(tr("Refresh QR code"));
}

void QRCodeLoginPanel::setQRCodeSize(int size)
{
    ui->QRCode->setFixedSize(size, size);
}

void QRCodeLoginPanel::setLayoutSpacing(int spacing)
{
    ui->verticalLayout->setSpacing(spacing);
}

void QRCodeLoginPanel::refreshQRCode()
{
    setQRCodeMaskWtVisible(false);
    waitingLabel->show();
    waitingLabel->raise();
    const QString requestId = newRequestId();
    state = requestingCode;
    CloudWorker::_instance().getLoginQRCode(
        requestId, answerTo(requestId, ui->handlers, [this](const Response &response, const LoginQRCodeInfo &info) {
            if (newestPanel)
                codeAnswered(response, info);
        }));
}

void QRCodeLoginPanel::codeAnswered(const Response &response, const LoginQRCodeInfo &info)
{
    waitingLabel->hide();
    if (response.code != kelvra_saas::successCode) {
        QRCodeInvalid(getCodeFailureTitle, tr("Get QR Code Failure"));
        const auto alert = [response] { cloudAlert(tr("Get login QR code failure:%1"), response); };
        // A widget must not die while it is being shown, and may under an alert.
        if (beingShown)
            ui->handlers.after(0, alert);
        else
            alert();
        return;
    }
    state = codeShown;
    qrCodeId = info.id;
    if (isVisible() && !window()->isMinimized()) // else the next show starts it
        statusTimer->start(statusIntervalMs);
    setTitle(scanTitle, tr("Nimbra App Code scanning login"));
    // All at once: an image source may well contain a percent sign before a digit. None ends its attribute.
    ui->QRCode->setText(QStringLiteral("<img src=\"%1\" width=\"%2\" heigh=\"%3\" />")
                            .arg(QString(info.image).replace(QLatin1Char('"'), QLatin1String("&quot;")),
                                 QString::number(ui->QRCode->width()), QString::number(ui->QRCode->height())));
    // Never cancelled: it ends whatever code is then on show.
    ui->handlers.after(qint64(info.validitySeconds) * msPerSecond,
                       [this] { QRCodeInvalid(invalidTitle, tr("QR Code Invalid")); });
}

void QRCodeLoginPanel::slotCheckLoginStatusTimeout()
{
    if (statusQueryInFlight)
        return;
    if (qrCodeId.isEmpty()) {
        statusTimer->stop();
        return;
    }
    statusQueryInFlight = true;
    const QString requestId = newRequestId();
    // A foreign answer leaves the query in flight: there is silence until the right one comes.
    CloudWorker::_instance().checkLoginQRCodeStatus(
        requestId, qrCodeId, answerTo(requestId, ui->handlers, [this](const Response &response, int status) {
            statusAnswered(response, status);
        }));
}

void QRCodeLoginPanel::statusAnswered(const Response &response, int status)
{
    const QPointer<QRCodeLoginPanel> self(this);
    if (response.code == kelvra_saas::successCode) {
        followStatus(status);
    } else {
        QRCodeInvalid(statusFailureTitle, tr("Check Status Failure"));
        cloudAlert(tr("Check login QR code status failure:%1"), response);
    }
    if (self)
        statusQueryInFlight = false;
}

// The panel may be gone when this returns.
void QRCodeLoginPanel::followStatus(int status)
{
    switch (status) {
    case CloudWorker::QRCodeScanned:
        setTitle(scannedTitle, tr("Scanned, confirming"));
        break;
    case CloudWorker::QRCodeInvalid:
        QRCodeInvalid(invalidTitle, tr("QR Code Invalid"));
        break;
    case CloudWorker::QRCodeConfirmed:
        checkLoginQRCodeResult();
        break;
    case CloudWorker::QRCodeCancelled:
        QRCodeInvalid(cancelledTitle, tr("Scanned, cancel login"));
        break;
    case CloudWorker::QRCodeIllegalOperation:
        QRCodeInvalid(illegalOperationTitle, tr("Illegal operation"));
        break;
    case CloudWorker::QRCodeIllegalAddress:
        QRCodeInvalid(illegalIpTitle, tr("Illegal ip"));
        break;
    default: // waits to be scanned
        break;
    }
}

void QRCodeLoginPanel::checkLoginQRCodeResult()
{
    statusTimer->stop();
    const QString requestId = newRequestId();
    CloudWorker::_instance().checkLoginQRCodeResult(
        requestId, qrCodeId, answerTo(requestId, ui->handlers, [this](const Response &response) {
            if (response.code == kelvra_saas::successCode) {
                emit signalScanQRCodeLoginSuccess();
                return;
            }
            QRCodeInvalid(loginFailureTitle, tr("QR Code Login Failure"));
            cloudAlert(tr("Check QR code login result failure:%1"), response);
        }));
}

void QRCodeLoginPanel::QRCodeInvalid(int titleId, const QString &title)
{
    statusTimer->stop();
    state = codeInvalid;
    qrCodeId.clear();
    setTitle(titleId, title);
    setQRCodeMaskWtVisible(true);
}

void QRCodeLoginPanel::setTitle(int titleId, const QString &title)
{
    ui->QRCodeTitle->setText(title);
    ui->QRCodeTitle->setProperty(titleProperty, titleId);
}

void QRCodeLoginPanel::setQRCodeMaskWtVisible(bool visible)
{
    if (visible) {
        const bool pixmapShown = !ui->QRCode->pixmap(Qt::ReturnByValue).isNull();
        mask->brush = pixmapShown ? QBrush(Qt::gray) : QBrush(Qt::NoBrush);
        mask->update();
    }
    for (QWidget *overlay : {static_cast<QWidget *>(mask), static_cast<QWidget *>(refreshBt)}) {
        overlay->setVisible(visible);
        overlay->raise();
    }
}

void QRCodeLoginPanel::placeOverlays()
{
    waitingLabel->move(centredOn(ui->QRCode, waitingLabel));
    mask->move(ui->QRCode->pos());
    refreshBt->move(centredOn(ui->QRCode, refreshBt));
}

bool QRCodeLoginPanel::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == waitingLabel && (type == QEvent::Show || type == QEvent::Hide))
        waitingMovie->setPaused(type == QEvent::Hide);
    // Another size or spacing moves the code within a panel that keeps its size.
    if (watched == ui->QRCode && (type == QEvent::Move || type == QEvent::Resize))
        placeOverlays();
    return QWidget::eventFilter(watched, event);
}

void QRCodeLoginPanel::showEvent(QShowEvent *event)
{
    if (state == codeShown && !qrCodeId.isEmpty())
        statusTimer->start(statusIntervalMs);
    else if (state == codeInvalid && mask->isHidden())
        fetchFirstCode();
    QWidget::showEvent(event);
}

void QRCodeLoginPanel::fetchFirstCode()
{
    beingShown = true;
    refreshQRCode();
    beingShown = false;
}

void QRCodeLoginPanel::hideEvent(QHideEvent *event)
{
    statusTimer->stop();
    QWidget::hideEvent(event);
}

void QRCodeLoginPanel::resizeEvent(QResizeEvent *event)
{
    placeOverlays();
    QWidget::resizeEvent(event);
}

void QRCodeLoginPanel::changeEvent(QEvent *event)
{
    // The form is not retranslated: that would empty the code on show.
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        nameParts();
        ui->QRCodeTitle->setText(titles.value(ui->QRCodeTitle->property(titleProperty).toInt()));
    }
    QWidget::changeEvent(event);
}

void QRCodeLoginPanel::retranslate()
{
    titles = {{loginFailureTitle, tr("QR Code Login Failure")},
              {scanTitle, tr("Nimbra App Code scanning login")},
              {invalidTitle, tr("QR Code Invalid")},
              {getCodeFailureTitle, tr("Get QR Code Failure")},
              {scannedTitle, tr("Scanned, confirming")},
              {cancelledTitle, tr("Scanned, cancel login")},
              {illegalOperationTitle, tr("Illegal operation")},
              {illegalIpTitle, tr("Illegal ip")},
              {statusFailureTitle, tr("Check Status Failure")}};
}

} // namespace kelvra_login
