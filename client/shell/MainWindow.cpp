#include "client/shell/MainWindow.h"

#include "client/kelvra_worker/AuditEvent.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QHeaderView>

using kelvra_contact::SystemMsg;

namespace kelvra_client {

namespace {

enum Column { TimeColumn, EventColumn, UserColumn, DetailsColumn };

constexpr int passwordMethod = 0; // as LoginLogs takes it
constexpr int gestureMethod = 1;
constexpr int timeColumnWidth = 180;  // px
constexpr int eventColumnWidth = 210; // px
constexpr int userColumnWidth = 180;  // px
const QString timeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::MainWindow>())
{
    setAttribute(Qt::WA_StyledBackground);
    ui->setupUi(this);
    QHeaderView *header = ui->auditTable->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->resizeSection(TimeColumn, timeColumnWidth);
    header->resizeSection(EventColumn, eventColumnWidth);
    header->resizeSection(UserColumn, userColumnWidth);
    ui->auditTable->setFocus();
    connect(ui->switchUserBt, &QPushButton::clicked, this, &MainWindow::signalSwitchUser);
    connect(ui->quitBt, &QPushButton::clicked, this, &MainWindow::close);
}

MainWindow::~MainWindow() = default;

void MainWindow::setSession(const SessionInfo &info)
{
    session = info;
    showSession();
}

void MainWindow::setAuditLog(const QVector<kelvra_data::AuditEntry> &entries)
{
    auditLog = entries;
    showAuditLog();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showSession();
        showAuditLog();
    }
    QWidget::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    emit SystemMsg::_instance().signalPrepareQuitSystem();
    emit SystemMsg::_instance().signalQuitSystem();
    QWidget::closeEvent(event);
}

void MainWindow::showSession()
{
    ui->currentUser->setText(session.user);
    ui->method->setText(wayOfLogin());
    ui->since->setText(session.since.toString(timeFormat));
    ui->autoLogin->setText(session.autoLogin ? tr("Automatic") : tr("By hand"));
}

QString MainWindow::wayOfLogin() const
{
    if (session.type == kelvra_worker::CloudUser)
        return tr("Cloud account");
    if (session.method == passwordMethod)
        return tr("Local user, by password");
    return session.method == gestureMethod ? tr("Local user, by gesture") : tr("Local user");
}

QString MainWindow::details(const kelvra_data::AuditEntry &entry)
{
    QStringList parts;
    if (entry.method >= 0)
        parts << (entry.method == gestureMethod ? tr("gesture") : tr("password"));
    if (entry.autoLogin > 0)
        parts << tr("automatic login from now on");
    if (entry.seconds >= 0)
        parts << tr("for %1 seconds").arg(entry.seconds);
    return parts.join(tr(", ", "between details"));
}

void MainWindow::showAuditLog()
{
    ui->auditTable->setRowCount(auditLog.size());
    for (int row = 0; row < auditLog.size(); ++row) {
        const kelvra_data::AuditEntry &entry = auditLog.at(row);
        const QString texts[] = {entry.at.toLocalTime().toString(timeFormat),
                                 kelvra_worker::translatedAuditWord(entry.event), entry.user, details(entry)};
        for (int column = TimeColumn; column <= DetailsColumn; ++column)
            ui->auditTable->setItem(row, column, new QTableWidgetItem(texts[column]));
    }
}

} // namespace kelvra_client
