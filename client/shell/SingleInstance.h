#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;
class QLockFile;

namespace kelvra_client {

/** One client per data folder: claims the folder, or tells the client that has it to come to the front. */
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum Claim {
        First,  ///< the folder is this client's until the object goes
        Second, ///< another client has it, and has been told; this one ends
        Failed  ///< neither
    };

    /** `dataFolder` may be spelled in any way; what counts is where it leads to. */
    explicit SingleInstance(const QString &dataFolder, QObject *parent = nullptr);
    /** Gives the folder back, and removes it when it was made here and nothing has come into it. */
    ~SingleInstance() override;

    /**
     * Claims the folder, which is made for its owner only when there is none. Waits up to ten seconds for a client
     * that is still in its own start. With Failed `error` holds a sentence for the user.
     */
    Claim claim(QString *error);

    /** From now on repeated starts are told, those that have waited since claim() at once. */
    void answerRepeatedStarts();

signals:
    void signalRepeatedStart();

private:
    bool prepareFolder(QString *error);
    void listen();
    bool tellFirst(int timeout) const;
    void greetWaiting();
    QString shownFolder() const;

    QString folder;
    QString serverName;
    bool folderMade = false;
    std::unique_ptr<QLockFile> lock;
    std::unique_ptr<QLocalServer> server; ///< goes before the lock: its name is free when the folder is
};

} // namespace kelvra_client
