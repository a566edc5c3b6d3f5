#include "client/shell/MainWindow.h"

#include "client/ZCommon/WindowPlace.h"
#include "client/kelvra_worker/AuditTrail.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "login/frame/LoginAccess.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QStandardPaths>

using kelvra_contact::SystemMsg;
using kelvra_data::UserData;
using kelvra_login::LoginAccess;
using kelvra_worker::AuditTrail;
using kelvra_worker::SysLanguage;

namespace kelvra_client {

namespace {

const QString credentialsFileName = QStringLiteral("login-credentials.dat");

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::MainWindow>())
{
    setAttribute(Qt::WA_StyledBackground);
    ui->setupUi(this);
    fillLanguageBox();
    ui->phoneBt->hide();
    ui->auditLogWt->setFocus();
    connect(ui->switchUserBt, &QPushButton::clicked, this, &MainWindow::signalSwitchUser);
    connect(ui->getbackPwdBt, &QPushButton::clicked, this, &MainWindow::getBackPassword);
    connect(ui->exportCredentialsBt, &QPushButton::clicked, this, &MainWindow::askForCredentialsFile);
    connect(ui->phoneBt, &QPushButton::clicked, this, &MainWindow::signalShowPhone);
    connect(ui->quitBt, &QPushButton::clicked, this, &MainWindow::close);
    // Whatever is recorded may have changed what is shown here, by whose hand ever.
    connect(&AuditTrail::_instance(), &AuditTrail::entryAdded, this, &MainWindow::loadUsers);
}

MainWindow::~MainWindow() = default;

void MainWindow::fillLanguageBox()
{
    const QMap<int, QString> names = SysLanguage::_instance().getLanguageNames();
    for (auto name = names.constBegin(); name != names.constEnd(); ++name)
        ui->languageBox->addItem(name.value(), name.key());
    showLanguage();
    connect(ui->languageBox, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        const int id = ui->languageBox->itemData(index).toInt();
        SysLanguage::_instance().setLanguage(static_cast<kelvra_worker::Language>(id), true);
    });
}

void MainWindow::setSession(const SessionInfo &info)
{
    session = info;
    ui->localUsersWt->setUser(session.user);
    ui->signInWt->setSession(session);
    showSession();
}

void MainWindow::offerPhone(bool offered)
{
    ui->phoneBt->setVisible(offered);
}

void MainWindow::loadUsers()
{
    ui->localUsersWt->refresh();
    ui->signInWt->refresh();
    showSession();
}

void MainWindow::loadAuditLog()
{
    ui->auditLogWt->load();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showLanguage();
        showSession();
    }
    QWidget::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!ended) {
        ended = true;
        emit SystemMsg::_instance().signalPrepareQuitSystem();
        emit SystemMsg::_instance().signalQuitSystem();
    }
    QWidget::closeEvent(event);
}

void MainWindow::showLanguage()
{
    ui->languageBox->setCurrentIndex(ui->languageBox->findData(int(SysLanguage::_instance().getLanguage())));
}

void MainWindow::showSession()
{
    ui->currentUser->setText(session.user);
    ui->currentRole->setText(role());
    ui->loginMethod->setText(wayOfLogin());
    ui->loginSince->setText(session.since.toString(SessionInfo::timeFormat));
    showOperations();
}

void MainWindow::showOperations()
{
    auto &userData = UserData::_instance();
    // Both lead to the password of the local superuser, which is no business of an ordinary user's.
    const bool allowed = userData.isSuperUser(session.user) && userData.isSuperUserExist(kelvra_data::SuperUserRole);
    ui->getbackPwdBt->setVisible(allowed);
    ui->exportCredentialsBt->setVisible(allowed);
}

void MainWindow::getBackPassword()
{
    LoginAccess::_instance().getbackPassword(this);
}

void MainWindow::askForCredentialsFile()
{
    auto *dialog = new QFileDialog(this, tr("Export login credentials"),
                                   QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    dialog->setObjectName(QStringLiteral("exportDlg"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    ZCOMMON::WindowPlace::centre(dialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(credentialsFileName);
    connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::exportCredentials, Qt::QueuedConnection);
    dialog->open();
}

void MainWindow::exportCredentials(const QString &path)
{
    // What there is to say of it stands before this window, which may not have got its place back from the dialog yet.
    QApplication::setActiveWindow(this);
    LoginAccess::_instance().exportLoginCredentials(path);
}

QString MainWindow::role() const
{
    if (UserData::_instance().isSuperUser(session.user))
        return tr("Superuser");
    return UserData::_instance().isUserExist(session.user) ? tr("User") : tr("This user has been removed");
}

QString MainWindow::wayOfLogin() const
{
    if (session.type == kelvra_worker::CloudUser)
        return tr("Cloud account");
    if (session.method == SessionInfo::PasswordMethod)
        return tr("Local user, by password");
    return session.method == SessionInfo::GestureMethod ? tr("Local user, by gesture") : tr("Local user");
}

} // namespace kelvra_client
