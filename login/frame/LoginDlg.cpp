#include "login/frame/LoginDlg.h"

#include "host/kelvra_base/LogoLabel.h"
#include "host/kelvra_base/ZMessageBox.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginSignals.h"
#include "ui_LoginDlg.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

using kelvra_base::LogoLabel;
using kelvra_base::ZMessageBox;
using kelvra_contact::SystemMsg;

namespace kelvra_login {

namespace {

constexpr int splashPage = 1;
constexpr QPoint logoPos(34, 20);
constexpr int closeBtSize = 14;
constexpr int closeBtMargin = 15; // to the dialog's top and right edge
constexpr int loadedHalf = 50;    // percent: where loading stands once the login is accepted

void announceQuit()
{
    emit SystemMsg::_instance().signalPrepareQuitSystem();
    emit SystemMsg::_instance().signalQuitSystem();
}

} // namespace

LoginDlg::LoginDlg(QWidget *parent)
    : MoveableDialog(parent, QString(), QColor(QStringLiteral("#0f1526")))
    , ui(std::make_unique<Form<Ui::LoginDlg>>())
{
    ui->setupUi(this);
    setWindowFlags(windowFlags() | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowMaximizeButtonHint);
    createOverlays();
    ui->splashScreen->prepareAfterPaintOf(this);

    ui->handlers.connect(closeBt, &QPushButton::clicked, this, &LoginDlg::slotCloseBtClicked);
    ui->handlers.connect(ui->splashScreen, &SplashScreen::signalSystemLoadingFinished, this,
                         &LoginDlg::slotSystemLoadingFinished);
    ui->handlers.connect(&LoginSignals::_instance(), &LoginSignals::signalLoginSuccess, this,
                         &LoginDlg::slotLoginSuccess);
    ui->handlers.connect(&SystemMsg::_instance(), &SystemMsg::signalDgwAbnormal, this, &LoginDlg::quitWithMessage);
    ui->handlers.connect(&SystemMsg::_instance(), &SystemMsg::signalClientRepeatedStart, this, &LoginDlg::bringToFront);
}

LoginDlg::~LoginDlg() = default;

void LoginDlg::createOverlays()
{
    logo = new LogoLabel(this);
    logo->setObjectName(QStringLiteral("logo"));

    closeBt = new QPushButton(this);
    closeBt->setObjectName(QStringLiteral("closeBt"));
    closeBt->setAccessibleName(tr("Close"));
    closeBt->setFixedSize(closeBtSize, closeBtSize);
    closeBt->setAutoDefault(false);
    closeBt->setDefault(false);
    closeBt->setFocusPolicy(Qt::NoFocus);
    closeBt->setProperty("common_close_bt_style1", true);

    ui->stackedWidget->lower();
}

void LoginDlg::quitSystem()
{
    if (hasEnded())
        return;
    state = State::Quitting;
    const QPointer<LoginDlg> self(this);
    announceQuit();
    if (self)
        reject();
}

void LoginDlg::quitWithMessage(const QString &message)
{
    if (hasEnded())
        return;
    // The dialog may end under the open message, and be gone. The client has to quit all the same, once.
    const QPointer<LoginDlg> self(this);
    bool quitHeard = false;
    Handlers quitHandlers;
    quitHandlers.connect(&SystemMsg::_instance(), &SystemMsg::signalPrepareQuitSystem,
                         [&quitHeard] { quitHeard = true; });
    if (!message.isEmpty())
        ZMessageBox::warning(this, message, kelvra_base::OkButton, false);
    if (self && !self->hasEnded())
        quitSystem();
    else if (!quitHeard)
        announceQuit();
}

void LoginDlg::bringToFront()
{
    if (hasEnded())
        return;
    {
        // A pop-up that comes and goes lets a window of another foreground program be overtaken.
        QMenu menu;
        menu.popup(QPoint(-1, -1));
    }
    showNormal();
    raise();
    QApplication::setActiveWindow(this);
}

void LoginDlg::slotCloseBtClicked()
{
    quitSystem();
}

void LoginDlg::slotLoginSuccess()
{
    if (state != State::LoggingIn)
        return;
    state = State::Loading;
    ui->stackedWidget->setCurrentIndex(splashPage);
    logo->hide();
    repaint();
    // The dialog may be gone when either returns.
    emit SystemMsg::_instance().signalLoginSuccess();
    emit SystemMsg::_instance().signalSystemInitProgress(loadedHalf);
}

void LoginDlg::slotSystemLoadingFinished()
{
    if (hasEnded())
        return;
    state = State::Loaded;
    const QPointer<LoginDlg> self(this);
    hide();
    emit SystemMsg::_instance().signalSystemInitFinished();
    if (self)
        deleteLater();
}

void LoginDlg::closeEvent(QCloseEvent *event)
{
    const QPointer<LoginDlg> self(this);
    quitSystem();
    if (self)
        MoveableDialog::closeEvent(event);
}

void LoginDlg::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        event->accept();
        quitSystem();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // The page has had its click; a dialog would press a button of its own choice besides.
        event->accept();
        break;
    default:
        MoveableDialog::keyPressEvent(event);
    }
}

void LoginDlg::resizeEvent(QResizeEvent *event)
{
    MoveableDialog::resizeEvent(event);
    logo->move(logoPos);
    closeBt->move(width() - closeBtMargin - closeBt->width(), closeBtMargin);
}

void LoginDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        closeBt->setAccessibleName(tr("Close"));
    }
    MoveableDialog::changeEvent(event);
}

} // namespace kelvra_login
