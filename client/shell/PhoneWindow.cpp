#include "client/shell/PhoneWindow.h"

#include "host/kelvra_saas/LoginWorker.h"
#include "ui_PhoneWindow.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QUrl>

using kelvra_saas::CloudAccount;
using kelvra_saas::CloudCode;
using kelvra_saas::CloudSimulation;
using kelvra_saas::CloudSms;
using kelvra_saas::LoginWorker;

namespace kelvra_client {

namespace {

constexpr int clockIntervalMs = 250;
constexpr int copiedMs = 1500; // how long a button tells that it has copied
constexpr int secondsPerMinute = 60;
constexpr int codeHalf = 3; // digits of an SMS code that are read in one go

constexpr qreal bodyRadius = 34; // as the next ones in pixels
constexpr qreal screenRadius = 24;
constexpr int bezel = 10;
constexpr QSize speaker(54, 4);
constexpr QSize homeBar(96, 4);
const QColor bodyColor(0x05, 0x08, 0x0f);
const QColor edgeColor(0x43, 0x53, 0x7a);
const QColor screenColor(0x0f, 0x15, 0x26);
const QColor partColor(0x32, 0x3e, 0x58);

QString clockText(int seconds)
{
    return QStringLiteral("%1:%2")
        .arg(seconds / secondsPerMinute)
        .arg(seconds % secondsPerMinute, 2, 10, QLatin1Char('0'));
}

/** Rounded up, so that nothing is over before it reads 0. */
int secondsUntil(const QDateTime &end)
{
    constexpr int msPerSecond = 1000;
    const qint64 ms = QDateTime::currentDateTimeUtc().msecsTo(end);
    return int(qMax<qint64>(0, (ms + msPerSecond - 1) / msPerSecond));
}

/** Whether the phone can still do something with it. */
bool isOpen(const CloudCode &code)
{
    return !code.id.isEmpty() && (code.status == kelvra_saas::codeWaiting || code.status == LoginWorker::QRCodeScanned);
}

} // namespace

// A tool window: alerts do not take it for the place where the user is at work.
PhoneWindow::PhoneWindow(CloudSimulation &simulation, QWidget *parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint)
    , cloud(simulation)
    , ui(std::make_unique<Ui::PhoneWindow>())
    , frame(this)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    ui->setupUi(this);
    clock.setInterval(clockIntervalMs);
    connect(&clock, &QTimer::timeout, this, &PhoneWindow::showTimes);
    connect(ui->phoneCloseBt, &QPushButton::clicked, this, &PhoneWindow::close);
    connectCloud();
    connectAccount();
    connectCode();
    reloadAccounts();
    showAll();
}

PhoneWindow::~PhoneWindow() = default;

// Where nothing composes windows they would be black.
void PhoneWindow::cutCorners()
{
    QPainterPath body;
    body.addRoundedRect(rect(), bodyRadius, bodyRadius);
    setMask(QRegion(body.toFillPolygon().toPolygon()));
}

void PhoneWindow::connectCloud()
{
    connect(&cloud, &CloudSimulation::signalNetworkChanged, this, &PhoneWindow::showNetwork);
    connect(&cloud, &CloudSimulation::signalAccountsChanged, this, &PhoneWindow::showAccounts);
    connect(&cloud, &CloudSimulation::signalMessageArrived, this, &PhoneWindow::showMessage);
    connect(&cloud, &CloudSimulation::signalCodeChanged, this, &PhoneWindow::showCode);
    connect(ui->networkSwitch, &QCheckBox::toggled, &cloud, &CloudSimulation::setNetworkOn);
}

void PhoneWindow::connectAccount()
{
    connect(ui->accountBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PhoneWindow::showAccount);
    connect(ui->copyPhoneBt, &QPushButton::clicked, this, [this] { copy(ui->copyPhoneBt, account().phone); });
    connect(ui->unlockBt, &QPushButton::clicked, this, [this] { cloud.unlock(account().phone); });
    connect(ui->editAccountsBt, &QPushButton::clicked, this, &PhoneWindow::editAccounts);
    connect(ui->reloadAccountsBt, &QPushButton::clicked, this, &PhoneWindow::reloadAccounts);
}

void PhoneWindow::connectCode()
{
    const auto refuse = [this](int status) { cloud.rejectScan(cloud.codeOnShow().id, status); };
    connect(ui->copyCodeBt, &QPushButton::clicked, this,
            [this] { copy(ui->copyCodeBt, cloud.messages().value(0).code); });
    connect(ui->scanBt, &QPushButton::clicked, this,
            [this] { cloud.scanCode(cloud.codeOnShow().id, account().phone); });
    connect(ui->confirmScanBt, &QPushButton::clicked, this, [this] { cloud.confirmScan(cloud.codeOnShow().id); });
    connect(ui->cancelScanBt, &QPushButton::clicked, this, [this] { cloud.cancelScan(cloud.codeOnShow().id); });
    connect(ui->refuseBt, &QToolButton::toggled, ui->refuseRow, &QWidget::setVisible);
    connect(ui->refuseOperationBt, &QPushButton::clicked, this,
            [refuse] { refuse(LoginWorker::QRCodeIllegalOperation); });
    connect(ui->refuseAddressBt, &QPushButton::clicked, this, [refuse] { refuse(LoginWorker::QRCodeIllegalAddress); });
}

void PhoneWindow::showAll()
{
    ui->editAccountsBt->setToolTip(QDir::toNativeSeparators(cloud.accountsFile()));
    ui->editAccountsBt->setVisible(!cloud.accountsFile().isEmpty());
    ui->reloadAccountsBt->setVisible(!cloud.accountsFile().isEmpty());
    showNetwork();
    showAccounts();
    showMessage();
    showCode();
}

void PhoneWindow::showNetwork()
{
    const bool on = cloud.isNetworkOn();
    ui->networkSwitch->setChecked(on);
    ui->networkSwitch->setText(on ? tr("Network of the computer: on") : tr("Network of the computer: off"));
    ui->networkSwitch->setToolTip(tr("Off, whatever the client asks the cloud for fails after a few seconds."));
}

void PhoneWindow::showAccounts()
{
    {
        const QString chosen = account().phone;
        const QSignalBlocker quiet(ui->accountBox);
        ui->accountBox->clear();
        for (const CloudAccount &known : cloud.accounts())
            ui->accountBox->addItem(nameOf(known.phone), known.phone);
        ui->accountBox->setCurrentIndex(qMax(0, ui->accountBox->findData(chosen)));
    }
    showAccount();
    showCode(); // names accounts
}

void PhoneWindow::showAccount()
{
    const CloudAccount shown = account();
    const bool any = !shown.phone.isEmpty();
    ui->accountBox->setEnabled(any);
    ui->copyPhoneBt->setEnabled(any);
    ui->accountPhone->setText(any ? shown.phone : tr("none"));
    ui->accountPassword->setText(any ? shown.password : tr("none"));
    ui->scanBt->setEnabled(any);
    ui->scanBt->setText(any ? tr("Scan as %1").arg(nameOf(shown.phone)) : tr("Scan"));
    showTimes();
}

void PhoneWindow::showMessage()
{
    const CloudSms sms = cloud.messages().value(0);
    const bool any = !sms.code.isEmpty();
    ui->smsHint->setVisible(!any);
    for (QWidget *part : std::initializer_list<QWidget *>{ui->smsText, ui->smsCode, ui->copyCodeBt})
        part->setVisible(any);
    ui->smsPhone->setText(any ? tr("SMS to %1").arg(sms.phone) : tr("SMS"));
    ui->smsText->setText(sms.text);
    ui->smsCode->setText(sms.code.left(codeHalf) + QLatin1Char(' ') + sms.code.mid(codeHalf));
    showTimes();
}

void PhoneWindow::showCode()
{
    const CloudCode code = cloud.codeOnShow();
    const bool open = isOpen(code);
    const bool scanned = open && code.status == LoginWorker::QRCodeScanned;
    ui->codeText->setText(textOf(code));
    ui->scanBt->setVisible(open && !scanned);
    ui->confirmScanBt->setVisible(scanned);
    ui->cancelScanBt->setVisible(scanned);
    ui->refuseBt->setVisible(open);
    ui->refuseBt->setChecked(ui->refuseBt->isChecked() && open);
    ui->refuseRow->setVisible(ui->refuseBt->isChecked());
    showTimes();
}

QString PhoneWindow::textOf(const CloudCode &code) const
{
    if (code.id.isEmpty())
        return tr("No code on show. Choose QR Code in the login window.");
    switch (code.status) {
    case kelvra_saas::codeWaiting:
        return tr("The login window shows a code.");
    case LoginWorker::QRCodeScanned:
        return tr("Log in on the computer as %1? The computer waits for your answer.").arg(nameOf(code.account));
    case LoginWorker::QRCodeConfirmed:
        return tr("Confirmed. The computer logs in as %1.").arg(nameOf(code.account));
    case LoginWorker::QRCodeCancelled:
        return tr("Cancelled. Click the arrows in the login window to get a new code.");
    default:
        return tr("Refused by the cloud. Click the arrows in the login window to get a new code.");
    }
}

void PhoneWindow::showTimes()
{
    const CloudSms sms = cloud.messages().value(0);
    const int smsSeconds = secondsUntil(sms.expires);
    ui->smsLeft->setText(sms.code.isEmpty() ? QString()
                         : smsSeconds > 0   ? tr("%1 left").arg(clockText(smsSeconds))
                                            : tr("expired"));
    const CloudCode code = cloud.codeOnShow();
    const bool open = isOpen(code);
    ui->codeLeft->setText(open ? tr("%1 left").arg(clockText(secondsUntil(code.expires))) : QString());
    const int lockSeconds = cloud.lockedSeconds(account().phone);
    ui->lockRow->setVisible(lockSeconds > 0);
    ui->accountLock->setText(tr("Locked, %1 left").arg(clockText(lockSeconds)));
    // Whatever begins to run is announced, so that a phone on which nothing runs need not wake the client.
    if (!isVisible() || (smsSeconds <= 0 && !open && lockSeconds <= 0))
        clock.stop();
    else if (!clock.isActive())
        clock.start();
}

void PhoneWindow::reloadAccounts()
{
    QString problem;
    cloud.reloadAccounts(&problem);
    ui->accountsProblem->setText(problem);
    ui->accountsProblem->setVisible(!problem.isEmpty());
}

void PhoneWindow::editAccounts()
{
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(cloud.accountsFile())))
        return;
    ui->accountsProblem->setText(
        tr("No editor opens by itself; edit %1.").arg(QDir::toNativeSeparators(cloud.accountsFile())));
    ui->accountsProblem->show();
}

void PhoneWindow::copy(QPushButton *button, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    button->setText(tr("Copied"));
    QTimer::singleShot(copiedMs, button, [button] { button->setText(tr("Copy")); });
}

CloudAccount PhoneWindow::account() const
{
    const QString phone = ui->accountBox->currentData().toString();
    for (const CloudAccount &known : cloud.accounts()) {
        if (known.phone == phone)
            return known;
    }
    return {};
}

QString PhoneWindow::nameOf(const QString &phone) const
{
    for (const CloudAccount &known : cloud.accounts()) {
        if (known.phone == phone && !known.name.isEmpty())
            return known.name;
    }
    return phone;
}

bool PhoneWindow::event(QEvent *event)
{
    // Whoever comes back from the editor finds what they have written.
    if (event->type() == QEvent::WindowActivate)
        reloadAccounts();
    else if (event->type() == QEvent::WindowBlocked)
        frame.cancelDrag();
    return QWidget::event(event);
}

void PhoneWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showAll();
    }
    QWidget::changeEvent(event);
}

void PhoneWindow::resizeEvent(QResizeEvent *event)
{
    cutCorners();
    QWidget::resizeEvent(event);
}

void PhoneWindow::showEvent(QShowEvent *event)
{
    showTimes();
    QWidget::showEvent(event);
}

void PhoneWindow::hideEvent(QHideEvent *event)
{
    clock.stop();
    frame.cancelDrag();
    QWidget::hideEvent(event);
}

void PhoneWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void PhoneWindow::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(frame.press(event));
}

void PhoneWindow::mouseMoveEvent(QMouseEvent *event)
{
    event->setAccepted(frame.move(event));
}

void PhoneWindow::mouseReleaseEvent(QMouseEvent *event)
{
    event->setAccepted(frame.release(event));
}

void PhoneWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edgeColor, 2));
    painter.setBrush(bodyColor);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), bodyRadius, bodyRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(screenColor);
    painter.drawRoundedRect(rect().adjusted(bezel, bezel, -bezel, -bezel), screenRadius, screenRadius);
    painter.setBrush(partColor);
    QRect part(QPoint(), speaker);
    part.moveCenter({rect().center().x(), bezel + 12});
    painter.drawRoundedRect(part, 2, 2);
    part.setSize(homeBar);
    part.moveCenter({rect().center().x(), height() - bezel - 9});
    painter.drawRoundedRect(part, 2, 2);
}

} // namespace kelvra_client
