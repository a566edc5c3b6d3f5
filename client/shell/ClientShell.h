#pragma once

#include "client/shell/SessionInfo.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

namespace kelvra_client {

class MainWindow;

/** The story of one run: options, data folder, login, loading, main window, the end. */
class ClientShell : public QObject
{
    Q_OBJECT

public:
    explicit ClientShell(QObject *parent = nullptr);
    /** Deletes every window that is left, then closes the store: a login page stores its lock when it goes. */
    ~ClientShell() override;

    /**
     * Runs the client until the user quits. The application object exists.
     *
     * @return exit code: 0, 1 when the data folder cannot be used, 2 for wrong options
     */
    int run(const QStringList &arguments);

private:
    /** Exit code where the options leave nothing to run; sets dataFolder otherwise. */
    std::optional<int> readOptions(const QStringList &arguments);
    bool openStore();
    void prepareApplication();
    void connectMessages();

    void startLogin();
    void switchUser();
    void startLoading();
    void loadNext();
    void saveSettings();

    void readSession();
    void readAuditLog();
    void buildWindow();
    void readSettings();
    void showWindow();

    QString dataFolder;
    std::unique_ptr<MainWindow> window;
    SessionInfo session;
    QDateTime loginOpened; ///< a login success in the audit log belongs to this session from here on
    int nextStep = 0;
};

} // namespace kelvra_client
