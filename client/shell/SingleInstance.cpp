#include "client/shell/SingleInstance.h"

#include "client/files/OrdinaryFile.h"
#include "client/kelvra_data/OwnerFolder.h"
#include "client/shell/Console.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QSysInfo>
#include <QThread>

#ifdef Q_OS_UNIX
#    include <sys/socket.h>
#    include <unistd.h>
#endif

using kelvra_data::OwnerFolder;

namespace kelvra_client {

namespace {

constexpr int startTimeout = 10000;  // ms, for a client that has yet to open its first window
constexpr int answerTimeout = 2000;  // ms, for one that runs longer than that
constexpr int abandonedAfter = 1000; // ms without a client behind a lock file
constexpr int pollInterval = 50;     // ms
constexpr int hashCharacters = 32;   // the path of a socket may not be long
const QByteArray answer = QByteArrayLiteral("kelvra_client: in front\n");

constexpr QFile::Permissions ownerFile = QFile::ReadOwner | QFile::WriteOwner;
const QString lockFile = QStringLiteral("kelvra.lock");

QByteArray userId()
{
#ifdef Q_OS_UNIX
    return QByteArray::number(geteuid());
#else
    return qgetenv("USERNAME");
#endif
}

struct Peer
{
    bool isOwnAccount = false;
    qint64 process = 0; ///< 0: unknown
};

/** Who is at the other end. Where the system does not tell, only the answer shows it. */
Peer peerOf(const QLocalSocket &socket)
{
#ifdef Q_OS_LINUX
    ucred peer = {};
    socklen_t size = sizeof(peer);
    if (getsockopt(int(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return {};
    return {peer.uid == geteuid(), peer.pid};
#else
    Q_UNUSED(socket)
    return {true, 0};
#endif
}

QByteArray readAnswer(QLocalSocket *socket, const QDeadlineTimer &deadline)
{
    QByteArray text;
    while (text.size() < answer.size() &&
           (socket->bytesAvailable() > 0 || socket->waitForReadyRead(int(deadline.remainingTime()))))
        text += socket->read(answer.size() - text.size());
    return text;
}

} // namespace

SingleInstance::SingleInstance(const QString &dataFolder, QObject *parent)
    : QObject(parent)
    , folder(dataFolder)
{
}

SingleInstance::~SingleInstance()
{
    server.reset();
    lock.reset();
    if (folderMade)
        QDir().rmdir(folder); // takes an empty one only
}

SingleInstance::Claim SingleInstance::claim(QString *error)
{
    QElapsedTimer clock;
    clock.start();
    Reply reply = Silence;
    for (int left = startTimeout; left > 0; left = timeLeft(int(clock.elapsed()))) {
        // Each time: a client that gives up takes the folder away that it has made.
        if (!prepareFolder(error))
            return Failed;
        if (lock->tryLock(0)) {
            QFile::setPermissions(lockPath(), ownerFile);
            return First;
        }
        if (lock->error() != QLockFile::LockFailedError && QFileInfo::exists(folder)) {
            *error = OwnerFolder::notWritable(folder);
            return Failed;
        }
        reply = tellFirst(timeLeft(int(clock.elapsed())));
        if (reply == InFront)
            return Second;
        // Spares the file of a client that lives; goes where another process has got the number of a dead one.
        if (clock.elapsed() > abandonedAfter)
            lock->removeStaleLockFile();
        QThread::msleep(pollInterval);
    }
    *error = whyNotInFront(reply);
    return Failed;
}

bool SingleInstance::prepareFolder(QString *error)
{
    const bool missing = !QFileInfo::exists(folder);
    *error = OwnerFolder::prepare(folder);
    if (!error->isEmpty())
        return false;
    folderMade |= missing;
    const QString path = QFileInfo(folder).canonicalFilePath();
    if (!path.isEmpty()) // gone again: the lock will tell
        folder = path;
    *error = kelvra_files::OrdinaryFile::problem(lockPath());
    if (!error->isEmpty())
        return false;
    const QByteArray key = QFile::encodeName(folder) + '\0' + userId();
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex().left(hashCharacters);
    serverName = QStringLiteral("kelvra_client-") + QString::fromLatin1(hash);
    lock = std::make_unique<QLockFile>(lockPath());
    lock->setStaleLockTime(0); // a client may run for weeks: only one whose process is gone has lost its folder
    return true;
}

int SingleInstance::timeLeft(int elapsed) const
{
    const QFileInfo info(lockPath());
    const qint64 age = info.exists() ? info.lastModified().msecsTo(QDateTime::currentDateTime()) : startTimeout;
    const bool isStarting = age >= 0 && age < startTimeout; // below 0 the clock has been turned back
    const int toStart = isStarting ? startTimeout - int(age) : 0;
    return qBound(0, qMax(answerTimeout - elapsed, toStart), startTimeout - elapsed);
}

// The answer is waited for: a client that ends before it comes has not come to the front.
SingleInstance::Reply SingleInstance::tellFirst(int timeout) const
{
    const QDeadlineTimer deadline(timeout);
    QLocalSocket socket;
    socket.connectToServer(serverName);
    if (!socket.waitForConnected(timeout)) {
        const bool isOfOthers = !OwnerFolder::otherOwner(socketPath()).isEmpty();
        return isOfOthers || socket.error() == QLocalSocket::SocketAccessError ? Foreign : Silence;
    }
    const Peer peer = peerOf(socket);
    if (!peer.isOwnAccount)
        return Foreign;
    const QByteArray text = readAnswer(&socket, deadline);
    if (text == answer)
        return InFront;
    const bool isOther = !text.isEmpty() || (peer.process != 0 && peer.process != holder());
    return isOther ? Foreign : Silence;
}

qint64 SingleInstance::holder(QString *computer) const
{
    qint64 process = 0;
    QString name;
    QString program;
    lock->getLockInfo(&process, &name, &program);
    if (computer)
        *computer = name;
    return process;
}

QString SingleInstance::whyNotInFront(Reply reply) const
{
    const QString shown = QDir::toNativeSeparators(folder);
    const QString owner = OwnerFolder::otherOwner(lockPath());
    if (!owner.isEmpty())
        return tr("A client of the account %2 is running on the data folder %1. Have it quit there, or name another "
                  "folder with --data-dir.")
            .arg(shown, owner);
    QString computer;
    const qint64 process = holder(&computer);
    if (!computer.isEmpty() && computer != QSysInfo::machineHostName())
        return tr("A client on the computer %2 is running on the data folder %1. Quit it there, or name another folder "
                  "with --data-dir.")
            .arg(shown, computer);
    if (reply == Foreign)
        return tr("The client is already running on the data folder %1 (process %2), but cannot be brought to the "
                  "front, because another program has taken its name %3. Switch to the client's window, and end that "
                  "program.")
            .arg(shown, QString::number(process), QDir::toNativeSeparators(socketPath()));
    return tr("The client is already running on the data folder %1 (process %2), but it does not answer. Switch to its "
              "window; where it is frozen, end that process and start the client again.")
        .arg(shown, QString::number(process));
}

// Whoever has the lock owns the name, so that what is there under it was left by a process that is gone.
void SingleInstance::answerRepeatedStarts()
{
    server = std::make_unique<QLocalServer>();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server.get(), &QLocalServer::newConnection, this, &SingleInstance::greetWaiting);
    QLocalServer::removeServer(serverName);
    if (!server->listen(serverName))
        Console::complain(tr("A second start cannot bring this client to the front, because another program has taken "
                             "its name %1. End that program and start the client again.")
                              .arg(QDir::toNativeSeparators(socketPath())));
}

void SingleInstance::greetWaiting()
{
    while (QLocalSocket *socket = server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        // Queued: on Windows a socket that closes while it reports a write deletes what reports it, which then goes on.
        // To disconnect before the answer is written comes to the same.
        connect(socket, &QLocalSocket::bytesWritten, socket, &QLocalSocket::disconnectFromServer, Qt::QueuedConnection);
        socket->write(answer);
    }
    emit signalRepeatedStart();
}

QString SingleInstance::lockPath() const
{
    return QDir(folder).filePath(lockFile);
}

QString SingleInstance::socketPath() const
{
#ifdef Q_OS_WIN
    return QStringLiteral("//./pipe/") + serverName;
#else
    return QDir(QDir::tempPath()).filePath(serverName);
#endif
}

} // namespace kelvra_client
