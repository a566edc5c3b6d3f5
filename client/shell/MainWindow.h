#pragma once

#include "client/shell/SessionInfo.h"

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

    /** The user is also the one that SystemWorker knows. */
    void setSession(const SessionInfo &info);

    /** Whether signalShowPhone can be asked for. */
    void offerPhone(bool offered);

    /** Reads again what the users may do and who they are. */
    void loadUsers();
    void loadAuditLog();

signals:
    void signalSwitchUser();
    void signalShowPhone();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void fillLanguageBox();
    void showLanguage();
    void showSession();
    void showOperations();
    void getBackPassword();
    void askForCredentialsFile();
    void exportCredentials(const QString &path);
    QString role() const;
    QString wayOfLogin() const;

    const std::unique_ptr<Ui::MainWindow> ui;
    SessionInfo session;
    bool ended = false; ///< the client has been told to quit
};

} // namespace kelvra_client
