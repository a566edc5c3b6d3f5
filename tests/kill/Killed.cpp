// Kills a client that writes to its data folder, and looks what is left: killed [times [seed]]
// The client is this program again. It says what each act will come to, and then that it has been done.

#include "client/kelvra_data/Store.h"
#include "client/kelvra_data/UserAdmin.h"
#include "host/kelvra_data/UserData.h"

#include <QCoreApplication>
#include <QDebug>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <functional>
#include <memory>
#include <random>

using namespace kelvra_data;

namespace {

constexpr int killsPerFolder = 10, mostUsers = 8;
constexpr int longestLifeUs = 150000;             // from before the folder is opened
constexpr int maxFailures = 5, lockSeconds = 180; // the module's rule

std::mt19937 dice;
int below(int limit)
{
    return int(dice() % unsigned(limit));
}

void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

/** What the folder holds. */
struct State
{
    QMap<QString, QString> passwords;
    bool locked = false;
    int seconds = 0, failures = 0;

    /** As the next start finds it, which locks for failures that have not come to a lock. */
    QString text() const
    {
        const bool locks = !locked && failures >= maxFailures;
        QString all = QString("lock %1 failures %2").arg(locks ? lockSeconds : seconds).arg(locks ? 0 : failures);
        for (auto user = passwords.begin(); user != passwords.end(); ++user)
            all += ' ' + user.key() + '=' + user.value();
        return all + (locks || locked ? " locked" : " open");
    }

    static State stored()
    {
        State state;
        for (const OrdinaryUser &user : UserAdmin::_instance().users())
            state.passwords[user.name] = UserData::_instance().getUserInfo(user.name).password;
        UserData::_instance().getLockInfo(state.locked, state.seconds);
        QSqlQuery row = Store::_instance().run("SELECT failed_count FROM state");
        state.failures = row.next() ? row.value(0).toInt() : -1;
        return state;
    }
};

/** Chooses an act, makes of `state` what it will come to, and gives it back to be done. */
std::function<bool()> nextAct(State &state, int &failures)
{
    const QString secret = QString::number(dice()), someone = state.passwords.keys().value(below(mostUsers));
    const int die = failures >= maxFailures ? 0 : below(12);
    if (die < 2) {
        state.locked = die == 0;
        state.seconds = die == 0 ? lockSeconds - (failures < maxFailures ? below(lockSeconds) : 0) : 300 * below(2);
        state.failures = failures = 0;
        return [=] { return UserData::_instance().updateLockInfo(state.locked, state.seconds); };
    }
    if (die < 8) {
        ++failures;
        ++state.failures;
        return [=] { return !UserData::_instance().verifyUserPassword(someone, secret); };
    }
    const bool isNew = !state.passwords.contains(someone);
    state.passwords[isNew ? 'u' + secret : someone] = secret;
    return [=, &admin = UserAdmin::_instance()] {
        return (isNew ? admin.add('u' + secret, secret) : admin.setPassword(someone, secret)) == UserAdmin::Done;
    };
}

int beClient(const QString &folder)
{
    say("start");
    bool going = Store::_instance().open(folder);
    int failures = 0;
    for (State state = State::stored(); going; say("done")) {
        const auto act = nextAct(state, failures);
        say(state.text());
        going = act();
    }
    return 1;
}

int killClients(int times)
{
    std::unique_ptr<QTemporaryDir> folder;
    QString known, error;
    int acts = 0, hit = 0, hitDone = 0, starts = 0;
    for (int i = 0; i < times; ++i) {
        const bool first = i % killsPerFolder == 0;
        if (first)
            folder = std::make_unique<QTemporaryDir>();
        QProcess client;
        client.start(QCoreApplication::applicationFilePath(), {folder->filePath("data"), QString::number(dice())});
        client.waitForReadyRead();
        QThread::usleep(ulong(below(longestLifeUs / (first ? 5 : 1)))); // the first while the folder is made
        client.kill();
        client.waitForFinished();
        const QStringList said = QString(client.readAllStandardOutput()).remove('\r').split('\n', Qt::SkipEmptyParts);
        const int done = said.count("done");
        const bool inAct = said.size() > 1 && said.last() != "done";
        known = done ? said[2 * done - 1] : first ? State().text() : known;
        const bool open = Store::_instance().open(folder->filePath("data"), &error);
        const bool whole = Store::_instance().holds("SELECT integrity_check = 'ok' FROM pragma_integrity_check");
        const QString found = State::stored().text();
        Store::_instance().close();
        if (client.exitStatus() != QProcess::CrashExit || !open || !whole ||
            (found != known && (!inAct || found != said.last()))) {
            qCritical().noquote() << "Kill" << i << error << "\nsaid" << said.join('\n') << "\nfound" << found;
            return 1;
        }
        acts += done;
        hit += inAct;
        hitDone += found != known;
        starts += said.size() == 1;
        known = found;
    }
    qInfo("%d kills, %d acts acknowledged and all there; %d hit an act, of which %d had been done; %d hit a start",
          times, acts, hit, hitDone, starts);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QString first = application.arguments().value(1, "300"), seed = application.arguments().value(2);
    dice.seed(seed.isEmpty() ? std::random_device()() : seed.toUInt());
    return first.toInt() ? killClients(first.toInt()) : beClient(first);
}
