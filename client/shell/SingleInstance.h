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
     * Claims the folder, which is made for its owner only when there is none. The lock file alone decides who is
     * first. Waits two seconds for that one's answer, and up to ten for a client that is still in its own start. With
     * Failed `error` holds a sentence for the user.
     */
    Claim claim(QString *error);

    /** From now on repeated starts are answered, those that have waited since claim() at once. */
    void answerRepeatedStarts();

signals:
    void signalRepeatedStart();

private:
    enum Reply {
        InFront, ///< the client has come to the front
        Silence, ///< nobody has answered
        Foreign  ///< another program answers to the client's name, or keeps silent under it
    };

    bool prepareFolder(QString *error);
    /** Milliseconds that the client which has the folder may still take to answer. */
    int timeLeft(int elapsed) const;
    Reply tellFirst(int timeout) const;
    /** The process that has the lock, and the computer that it runs on. */
    qint64 holder(QString *computer = nullptr) const;
    QString whyNotInFront(Reply reply) const;
    void greetWaiting();
    QString lockPath() const;
    QString socketPath() const;

    QString folder;
    QString serverName;
    bool folderMade = false;
    std::unique_ptr<QLockFile> lock;
    std::unique_ptr<QLocalServer> server; ///< goes before the lock: its name is free when the folder is
};

} // namespace kelvra_client
