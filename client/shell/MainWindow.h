#pragma once

#include "client/kelvra_data/AuditEntry.h"
#include "client/shell/SessionInfo.h"

#include <QVector>
#include <QWidget>

#include <memory>

namespace kelvra_client {

namespace Ui {
class MainWindow;
}

/** The window of the logged-in client. Closing it quits the client. */
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    void setSession(const SessionInfo &info);
    void setAuditLog(const QVector<kelvra_data::AuditEntry> &entries);

signals:
    void signalSwitchUser();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void showSession();
    void showAuditLog();
    QString wayOfLogin() const;
    static QString details(const kelvra_data::AuditEntry &entry);

    const std::unique_ptr<Ui::MainWindow> ui;
    SessionInfo session;
    QVector<kelvra_data::AuditEntry> auditLog;
};

} // namespace kelvra_client
