#include "client/kelvra_data/Store.h"
#include "host/kelvra_data/UserData.h"
#include "tests/DataFolderTest.h"

#include <QElapsedTimer>

using namespace kelvra_data;

namespace {

const QString name = QStringLiteral("Grace Hopper");
const QString password = QStringLiteral("Cobol-1959!\u00fc\u6f22");
const QString gesture = QStringLiteral("036785412");
const QString account = QStringLiteral("13800001111");
QStringList warnings;

void noteWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(message);
}

Store &store = Store::_instance();
UserData &users = UserData::_instance();

/** What stands for `text` in a file, also as part of a longer text that is encoded as a whole. */
QList<QByteArray> spellings(const QString &text)
{
    const QByteArray little(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
    QByteArray big; // behind its length
    QDataStream stream(&big, QIODevice::WriteOnly);
    stream << text;
    QList<QByteArray> all;
    for (const QByteArray &raw : {text.toUtf8(), little, big.mid(4)}) {
        all << raw << raw.toHex() << raw.toHex().toUpper();
        for (int before = 0; before < 3; ++before) {
            const QByteArray base64 = (QByteArray(before, '\0') + raw).toBase64();
            const QByteArray inner = base64.mid(before ? 4 : 0).chopped((before + raw.size()) % 3 ? 4 : 0);
            all << inner << QByteArray(inner).replace('+', '-').replace('/', '_');
        }
    }
    return all;
}

bool isReadable(const QString &text, const QMap<QString, QByteArray> &files)
{
    const auto all = spellings(text);
    const QByteArray data = files.values().join();
    return std::any_of(all.cbegin(), all.cend(), [&data](const QByteArray &part) { return data.contains(part); });
}

void failFiveTimes()
{
    for (int i = 0; i < 3; ++i)
        QVERIFY(!users.verifyUserPassword(name, "wrong"));
    QVERIFY(!users.verifyUserPassword("nobody", password));
    QVERIFY(!users.verifyUserGesture(name, "0124"));
}

} // namespace

class TestStorage : public DataFolderTest
{
    Q_OBJECT

private slots:
    void initTestCase() { qInstallMessageHandler(noteWarning); }

    void init()
    {
        store.close();
        warnings.clear();
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(reopen());
    }

    void cleanup()
    {
        store.close();
        QFile::setPermissions(at(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(warnings, QStringList()); // a connection that is still in use, for one
    }

    void unusableSuperUsersAreRefused()
    {
        QVector<SuperUserInfo> infos(4, grace());
        infos[0].userName = "  ";
        infos[1].userName = QString(65, 'n');
        infos[2].password.clear();
        infos[3].answer2.clear();
        for (const SuperUserInfo &info : qAsConst(infos))
            QVERIFY(!users.addSuperUser(info));
        QVERIFY(users.isFirstLogin() && users.addSuperUser(grace()));
        QVERIFY(!users.addSuperUser(superUser("second", password)) && !users.isUserExist("second"));
        QVERIFY(!users.isUserExist(name.toUpper()) && reopen());
        const SuperUserInfo info = users.getSuperUserInfo(name);
        QCOMPARE(info.password + info.remark + info.answer1, password + name + grace().answer1);
        QVERIFY(!users.verifySuperUserAnswers(name, info.answer1, info.answer2, info.answer1));
        QVERIFY(!users.verifySuperUserAnswers(name, info.answer1 + QChar(0), info.answer2, info.answer3));

        const QString longer(200, 'x');
        QVERIFY(!users.resetUserPwd(name, QString()) && !users.resetUserPwd("second", longer));
        QVERIFY(users.verifyUserPassword(name, password) && users.resetUserPwd(name, longer));
        QVERIFY(users.verifyUserPassword(name, longer) && !users.verifyUserPassword(name, longer.chopped(1)));
    }

    void accountOpensNoLocalDoor()
    {
        for (int times = 0; times < 2; ++times)
            QVERIFY(users.addSuperUserFromSaasUser(account));
        QVERIFY(users.isSuperUser(account) && !users.isSuperUserExist(SuperUserRole));
        QVERIFY(!users.resetUserPwd(account, password) && !users.updateUserGesture(account, gesture));
        QVERIFY(!users.verifyUserPassword(account, QString()) && !users.verifyUserGesture(account, QString()));
        QVERIFY(!users.verifySuperUserAnswers(account, QString(), QString(), QString()));
        QVERIFY(users.generateSuperUserCredentials(account).isEmpty());

        // The place of the local superuser stays free.
        QVERIFY(users.getSuperUserInfo(account).userName.isEmpty() && users.addSuperUser(grace()));
        QVERIFY(users.getSuperUserInfo(account).userName == name && !users.addSuperUserFromSaasUser(name));
        QVERIFY(users.updateUserLoginRecord(name, true) && users.updateUserLoginRecord(account, false));
        QVERIFY(users.getLastLoggedLocalUser() == name && !users.updateUserLoginRecord("nobody", true));
    }

    void gestures()
    {
        QVERIFY(users.addSuperUser(grace()) && !users.deleteUserGesture(name));
        QVERIFY(!users.updateUserGesture(name, QString()) && !users.updateUserGesture(name, "0129"));
        QVERIFY(users.updateUserGesture(name, gesture) && !users.verifyUserGesture(name, QString()));
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 4; ++i)
            QVERIFY(users.verifyUserGesture(name, gesture));
        QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed()))); // a login must not be felt
    }

    void failuresLockTheNextStart()
    {
        QVERIFY(users.addSuperUser(grace()) && users.updateUserGesture(name, gesture));
        failFiveTimes();
        QVERIFY(users.verifyUserPassword(name, password)); // the module then clears the lock itself
        QCOMPARE(storedLock(), Lock(false, 0));
        QCOMPARE(lockOfNextStart(), Lock(true, 180));
        QVERIFY(users.updateLockInfo(true, 42));
        failFiveTimes();
        QCOMPARE(lockOfNextStart(), Lock(true, 42));
        failFiveTimes();
        QVERIFY(users.updateLockInfo(false, 0));
        for (int failures = 1; failures <= 5; ++failures) {
            QVERIFY(!users.verifyUserPassword(name, QString()));
            QCOMPARE(lockOfNextStart(), failures < 5 ? Lock(false, 0) : Lock(true, 180));
        }
    }

    void credentialsAreOfThisSuperUser()
    {
        QVERIFY(users.addSuperUser(grace()));
        const QString former = users.generateSuperUserCredentials(name);
        QVERIFY(former != users.generateSuperUserCredentials(name));
        QVERIFY(!isReadable(password, {{QString(), former.toLatin1()}}));
        // A later superuser of the same name is somebody else.
        store.setSuperUserReplaceable(true);
        QVERIFY(users.addSuperUser(grace()));
        store.setSuperUserReplaceable(false);
        const QString text = users.generateSuperUserCredentials(name);
        QVERIFY(users.checkSuperUserCredentials(name, text));
        for (const QString &other : {former, text + '=', ' ' + text, QString(text.size(), 'A')})
            QVERIFY2(!users.checkSuperUserCredentials(name, other), qPrintable(other));
        QVERIFY(store.change("UPDATE users SET name = 'Mallory'"));
        QVERIFY(!users.checkSuperUserCredentials("Mallory", text));
    }

    void sealedValuesStayInTheirPlace()
    {
        QVERIFY(users.addSuperUser(grace()) && users.updateUserGesture(name, gesture));
        QVERIFY(store.change("INSERT INTO users (name, kind, role, password, gesture) "
                             "SELECT 'Mallory', 1, 2, password, gesture FROM users"));
        QVERIFY(!users.verifyUserPassword("Mallory", password) && !users.verifyUserPassword("Mallory", QString()));
        QVERIFY(!users.verifyUserGesture("Mallory", gesture) && users.getUserInfo("Mallory").password.isEmpty());
        QVERIFY(store.change("UPDATE users SET answer1 = password WHERE role = 0"));
        QVERIFY(!users.verifySuperUserAnswers(name, password, grace().answer2, grace().answer3));
        QVERIFY(users.verifyUserPassword(name, password) && users.verifyUserGesture(name, gesture));

        // Nor does a value that has been tampered with open.
        QVERIFY(store.change("UPDATE users SET password = substr(password, 1, 40) || x'00' || substr(password, 42) "
                             "WHERE role = 0"));
        QVERIFY(!users.verifyUserPassword(name, password));
    }

    void secretsAreNowhereReadable()
    {
        const SuperUserInfo info = grace();
        const QString changed = "Flow-Matic/1955";
        // A minimal installation has none; its host name is too short to be searched for.
        const QString machine = QString::fromLatin1(QSysInfo::machineUniqueId());
        QVERIFY(users.addSuperUser(info) && users.updateUserGesture(name, gesture) && users.updateLoginEnvironment());
        QVERIFY(users.resetUserPwd(name, changed) && users.updateUserLoginRecord(name, true));
        for (const bool open : {true, false}) {
            const auto files = contents(at());
            QCOMPARE(files.contains("kelvra.db-wal"), open);
            QVERIFY(isReadable(name, files)); // the search sees what is there
            for (const QString &secret :
                 {password, changed, gesture, info.answer1, info.answer2, info.answer3, machine})
                QVERIFY2(secret.isEmpty() || !isReadable(secret, files), qPrintable(secret));
            store.close();
        }
        QVERIFY(reopen() && store.change("UPDATE state SET environment = randomblob(32)"));
        QVERIFY(!users.isSameLoginEnvironment());
    }

    void filesAreTheOwnersOnly()
    {
        QVERIFY(users.addSuperUser(grace()));
        const QByteArray key = readFile(at("kelvra.key"));
        QVERIFY(key.size() == 32 && key.count(key.at(0)) < 8);
        for (const char *file : {"", "kelvra.db", "kelvra.db-shm", "kelvra.db-wal", "kelvra.key"})
            QVERIFY2(isPrivate(at(file)), file);

        // A key that is there is taken as it is, with a database that is not there yet too.
        store.close();
        QVERIFY(QFile::remove(at("kelvra.db")) && reopen());
        QCOMPARE(readFile(at("kelvra.key")), key);
    }

    void openRefuses()
    {
        const auto write = [this](const char *file, const QByteArray &data) { return writeFile(at(file), data), true; };
        const auto remove = [this](const char *file) { return QFile::remove(at(file)); };
        const auto forbidWriting = [this](const char *file) {
            return QFile::setPermissions(at(file), QFile::ReadOwner | QFile::ExeOwner);
        };
        const auto damage = [&](int from, int size) {
            return write("kelvra.db", readFile(at("kelvra.db")).replace(from, size, QByteArray(size, 'Z')));
        };
        const auto run = [this](const char *statement) {
            return reopen() && store.run("PRAGMA journal_mode = DELETE").isActive() && // as others keep theirs
                   store.run(statement).isActive();
        };
        const QByteArray longKey(33, 'k');
        const QVector<QPair<QString, std::function<bool()>>> rows = {
            {"missing", [&] { return remove("kelvra.key"); }},
            {"32 bytes", [&] { return write("kelvra.key", longKey.left(31)); }},
            {"32 bytes", [&] { return remove("kelvra.db") && write("kelvra.key", longKey); }},
            {"does not belong", [&] { return write("kelvra.key", longKey.left(32)); }},
            {"damaged", [&] { return damage(0, 100); }},
            {"damaged", [&] { return damage(4096, 4096); }},
            {"damaged", [&] { return QFile::resize(at("kelvra.db"), 6000); }},
            {"newer version", [&] { return run("PRAGMA user_version = 99"); }},
            {"another program", [&] { return run("PRAGMA application_id = 77"); }},
            {"another program", [&] { return run("PRAGMA application_id = 0"); }},
            {"cannot be created",
             [&] { return QDir(at()).removeRecursively() && QFile(dir->filePath("data")).open(QFile::WriteOnly); }},
            {"written to", [&] { return forbidWriting("kelvra.db") && forbidWriting(""); }},
            {"written to", [&] { return remove("kelvra.db") && remove("kelvra.key") && forbidWriting(""); }}};
        for (const auto &[says, spoil] : rows) {
            init();
            QVERIFY(users.addSuperUser(grace()));
            store.close();
            QVERIFY2(spoil(), qPrintable(says));
            store.close();
            if (says == "written to" && QFileInfo(at()).isWritable())
                QSKIP("permissions do not bind this user");
            const auto before = contents(dir->path());
            QString error;
            QVERIFY2(!store.open(at(), &error) && !store.isOpen(), qPrintable(says));
            QVERIFY2(error.contains(says) && error.endsWith('.'), qPrintable(error));
            // Closed, it answers nothing.
            Lock lock(true, 5);
            QVERIFY(!users.getLockInfo(lock.first, lock.second) && lock == Lock(true, 5) && !users.isFirstLogin());
            QVERIFY(!users.addSuperUser(grace()) && !users.updateUserGesture(name, gesture));
            QVERIFY(!users.verifyUserPassword(name, password) && !users.verifyUserGesture(name, QString()));
            QVERIFY(!users.isSameLoginEnvironment() && users.generateSuperUserCredentials(name).isEmpty());
            QCOMPARE(contents(dir->path()), before);
            cleanup();
        }
    }

    void auditLog()
    {
        const QDateTime when(QDate(2024, 2, 29), QTime(1, 2, 3, 45), Qt::UTC);
        QVERIFY(store.appendAudit({when.toLocalTime(), "lock", name, -1, -1, 180}));
        QVERIFY(store.appendAudit({when.addMSecs(1), "login", QString(), 1, 0, -1}) && reopen());
        QCOMPARE(store.auditLog(5).size(), 2);
        QCOMPARE(store.auditLog(1).constFirst().at, when.addMSecs(1));
        QVERIFY(store.holds("SELECT at = '2024-02-29T01:02:03.045Z' FROM audit_log WHERE seconds = 180"));
    }

private:
    using Lock = QPair<bool, int>;

    bool reopen() const { return store.open(at()); }
    static SuperUserInfo grace() { return superUser(name, password); }

    static Lock storedLock()
    {
        Lock lock;
        return users.getLockInfo(lock.first, lock.second) ? lock : Lock(false, -1);
    }

    Lock lockOfNextStart() const { return reopen() ? storedLock() : Lock(false, -1); }
};

QTEST_GUILESS_MAIN(TestStorage)

#include "tst_storage.moc"
