#pragma once

#include "client/shell/SessionInfo.h"
#include "client/shell/StartOptions.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

namespace kelvra_client {

class CloudSide;
class MainWindow;
class SingleInstance;

/** The story of one run: data folder, login, loading, main window, the end. */
class ClientShell : public QObject
{
    Q_OBJECT

public:
    explicit ClientShell(QObject *parent = nullptr);
    /** Deletes every window that is left, then closes the store that they read from. */
    ~ClientShell() override;

    /**
     * Runs the client until the user quits. The application object exists.
     *
     * The password of a user whom the options name is read from standard input, unless another client has the folder.
     *
     * @return an ExitCode
     */
    int run(const StartOptions &startOptions);

private:
    void prepareApplication();
    /** Exit code where the client has nothing to run on. */
    std::optional<int> begin();
    /** Exit code where the folder does not become this client's. */
    std::optional<int> claimFolder();
    bool readPassword();
    /** Everything is looked at before anything is written; empty, or a sentence about what cannot be used. */
    QString openData();
    void refuse(const QString &sentence) const;
    void connectMessages();

    void startLogin();
    void requestLogin();
    /** As the options name them, with the password given. */
    void requestHandedOverLogin();
    void comeToFront();
    void switchUser();
    void startLoading();
    void loadNext();
    void saveSettings();

    void readSession();
    void readCloudSession();
    void recordHandedOver();
    void buildWindow();
    void readUsers();
    void readAuditLog();
    void readSettings();
    void showWindow();

    StartOptions options;
    QString notice;                           ///< for the user, once the login is open
    QString handedPassword;                   ///< until the login has it
    std::unique_ptr<SingleInstance> instance; ///< goes last: the folder is in use until the store is closed
    std::unique_ptr<CloudSide> cloud;         ///< from when the store is open
    std::unique_ptr<MainWindow> window;
    SessionInfo session;
    QDateTime loginOpened;        ///< a login success in the audit log belongs to this session from here on
    bool userHandedOver = false;  ///< and not yet on record
    bool handedAutoLogin = false; ///< what the account had chosen before it was handed over
    QTimer loadTimer;             ///< to the next step of loading; stops when the user quits meanwhile
    int nextStep = 0;
};

} // namespace kelvra_client
