#include "client/shell/SingleInstance.h"

#include "client/files/OrdinaryFile.h"
#include "client/kelvra_data/OwnerFolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QThread>

#ifdef Q_OS_UNIX
#    include <unistd.h>
#endif

namespace kelvra_client {

namespace {

constexpr int answerTimeout = 10000; // ms, also for a client that has yet to open its first window
constexpr int abandonedAfter = 1000; // ms without a client behind a lock file
constexpr int pollInterval = 50;     // ms
constexpr int hashCharacters = 32;   // the path of a socket may not be long
constexpr char answer = '1';

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
    while (clock.elapsed() < answerTimeout) {
        // Each time: a client that gives up takes the folder away that it has made.
        if (!prepareFolder(error))
            return Failed;
        if (lock->tryLock(0)) {
            QFile::setPermissions(QDir(folder).filePath(lockFile), ownerFile);
            listen();
            return First;
        }
        if (lock->error() != QLockFile::LockFailedError && QFileInfo::exists(folder)) {
            *error = tr("The data folder %1 cannot be written to.").arg(shownFolder());
            return Failed;
        }
        if (tellFirst(answerTimeout - int(clock.elapsed())))
            return Second;
        // Spares the file of a client that lives; goes where another process has got the number of a dead one.
        if (clock.elapsed() > abandonedAfter)
            lock->removeStaleLockFile();
        QThread::msleep(pollInterval);
    }
    *error = tr("The client is already running on the data folder %1, but it does not answer.").arg(shownFolder());
    return Failed;
}

bool SingleInstance::prepareFolder(QString *error)
{
    const bool missing = !QFileInfo::exists(folder);
    folderMade |= missing && QDir().mkpath(folder);
    const QFileInfo info(folder);
    if (!info.isDir() || (missing && !kelvra_data::OwnerFolder::closeToOthers(folder))) {
        *error = missing ? tr("The data folder %1 cannot be created.").arg(shownFolder())
                         : tr("The data folder %1 is not a folder.").arg(shownFolder());
        return false;
    }
    if (!info.isReadable() || !info.isExecutable()) {
        *error = tr("The data folder %1 cannot be read.").arg(shownFolder());
        return false;
    }
    if (!info.canonicalFilePath().isEmpty()) // gone again: the lock will tell
        folder = info.canonicalFilePath();
    *error = kelvra_files::OrdinaryFile::problem(QDir(folder).filePath(lockFile));
    if (!error->isEmpty())
        return false;
    const QByteArray key = QFile::encodeName(folder) + '\0' + userId();
    const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex().left(hashCharacters);
    serverName = QStringLiteral("kelvra_client-") + QString::fromLatin1(hash);
    lock = std::make_unique<QLockFile>(QDir(folder).filePath(lockFile));
    lock->setStaleLockTime(0); // a client may run for weeks: only one whose process is gone has lost its folder
    return true;
}

// Whoever has the lock owns the name, so that what is there under it was left by a process that is gone.
void SingleInstance::listen()
{
    server = std::make_unique<QLocalServer>();
    server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(serverName);
    if (!server->listen(serverName))
        qWarning("A repeated start will not be noticed: %s.", qUtf8Printable(server->errorString()));
}

// The answer is waited for: a client that ends before it comes has not come to the front.
bool SingleInstance::tellFirst(int timeout) const
{
    QLocalSocket socket;
    socket.connectToServer(serverName);
    if (!socket.waitForConnected(timeout))
        return false;
    char byte = '\0';
    return (socket.bytesAvailable() > 0 || socket.waitForReadyRead(timeout)) && socket.getChar(&byte) && byte == answer;
}

void SingleInstance::answerRepeatedStarts()
{
    if (!server)
        return;
    connect(server.get(), &QLocalServer::newConnection, this, &SingleInstance::greetWaiting, Qt::UniqueConnection);
    if (server->hasPendingConnections())
        greetWaiting();
}

void SingleInstance::greetWaiting()
{
    while (QLocalSocket *socket = server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        // Queued: on Windows a socket that closes while it reports a write deletes what reports it, which then goes on.
        // To disconnect before the answer is written comes to the same.
        connect(socket, &QLocalSocket::bytesWritten, socket, &QLocalSocket::disconnectFromServer, Qt::QueuedConnection);
        socket->putChar(answer);
    }
    emit signalRepeatedStart();
}

QString SingleInstance::shownFolder() const
{
    return QDir::toNativeSeparators(folder);
}

} // namespace kelvra_client
