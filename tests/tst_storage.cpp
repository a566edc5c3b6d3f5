#include "client/kelvra_data/Store.h"
#include "host/kelvra_data/UserData.h"
#include "tests/DataFolderTest.h"

#include <QElapsedTimer>

Q_DECLARE_METATYPE(std::function<void()>)

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
    return std::any_of(files.cbegin(), files.cend(), [&](const QByteArray &data) {
        return std::any_of(all.cbegin(), all.cend(), [&](const QByteArray &part) { return data.contains(part); });
    });
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

    void closedStoreAnswersNothing()
    {
        store.close();
        bool locked = true;
        int seconds = 5;
        QVERIFY(!users.getLockInfo(locked, seconds) && locked && seconds == 5);
        QVERIFY(!users.isFirstLogin() && !users.addSuperUser(grace()) && !users.updateUserGesture(name, gesture));
        QVERIFY(!users.verifyUserPassword(name, QString()) && !users.verifyUserGesture(name, QString()));
        QVERIFY(!users.isSameLoginEnvironment() && users.generateSuperUserCredentials(name).isEmpty());
    }

    void firstLoginEndsWithTheFirstUser()
    {
        QVERIFY(users.isFirstLogin());
        for (int times = 0; times < 2; ++times)
            QVERIFY(users.addSuperUserFromSaasUser(account));
        QVERIFY(!users.isFirstLogin() && users.isSuperUser(account));

        // The account opens no local door, and leaves the place of the local superuser free.
        QVERIFY(!users.isSuperUserExist(SuperUserRole));
        QVERIFY(!users.resetUserPwd(account, password) && !users.updateUserGesture(account, gesture));
        QVERIFY(!users.verifyUserPassword(account, QString()) && !users.verifyUserGesture(account, QString()));
        QVERIFY(!users.verifySuperUserAnswers(account, QString(), QString(), QString()));
        QVERIFY(users.generateSuperUserCredentials(account).isEmpty());
        QVERIFY(users.getSuperUserInfo(account).userName.isEmpty());
        QVERIFY(users.addSuperUser(grace()));
        QCOMPARE(users.getSuperUserInfo(account).userName, name);
        QVERIFY(!users.addSuperUserFromSaasUser(name));
        QVERIFY(reopen() && users.isSuperUserExist(SuperUserRole) && !users.isFirstLogin());
    }

    void superUserIsGivenBackAndIsTheOnlyOne()
    {
        QVERIFY(users.addSuperUser(grace()));
        QVERIFY(!users.addSuperUser(superUser("second", password)) && !users.addSuperUser(grace()));
        QVERIFY(!users.isUserExist("second") && !users.isUserExist(name.toUpper()));

        QVERIFY(reopen());
        const SuperUserInfo info = users.getSuperUserInfo(name);
        QCOMPARE(QStringList({info.userName, info.password, info.remark, info.answer1, info.answer2, info.answer3}),
                 QStringList({name, password, name, grace().answer1, grace().answer2, grace().answer3}));
        QCOMPARE(QVector<int>({info.question1, info.question2, info.question3, info.role}), QVector<int>({3, 0, 9, 0}));
        QVERIFY(users.verifySuperUserAnswers(name, info.answer1, info.answer2, info.answer3));
        QVERIFY(!users.verifySuperUserAnswers(name, info.answer1, info.answer2, info.answer1));
        QVERIFY(!users.verifySuperUserAnswers(name, info.answer1 + QChar(0), info.answer2, info.answer3));

        const QString longer(200, 'x');
        QVERIFY(!users.resetUserPwd(name, QString()) && !users.resetUserPwd("second", longer));
        QVERIFY(users.verifyUserPassword(name, password) && users.resetUserPwd(name, longer));
        QVERIFY(users.verifyUserPassword(name, longer) && !users.verifyUserPassword(name, password));
        QVERIFY(!users.verifyUserPassword(name, longer.chopped(1)));
        QCOMPARE(users.getUserInfo(name).password, longer);
    }

    void unusableRecordsAreRefused()
    {
        QVector<SuperUserInfo> infos(4, grace());
        infos[0].userName = "  ";
        infos[1].userName = QString(65, 'n');
        infos[2].password.clear();
        infos[3].answer2.clear();
        for (const SuperUserInfo &info : qAsConst(infos))
            QVERIFY(!users.addSuperUser(info));
        QVERIFY(users.isFirstLogin());
    }

    void loginRecords()
    {
        bool autoLogin = false;
        QDateTime when;
        QVERIFY(users.addSuperUser(grace()) && users.addSuperUserFromSaasUser(account));
        QVERIFY(!users.getUserLoginRecord(name, autoLogin, when) && !users.updateUserLoginRecord("nobody", true));
        QVERIFY(users.updateUserLoginRecord(name, true) && users.updateUserLoginRecord(account, false));
        QVERIFY(reopen() && users.getUserLoginRecord(name, autoLogin, when) && autoLogin);
        QVERIFY(qAbs(when.secsTo(QDateTime::currentDateTime())) < 60);
        QCOMPARE(users.getLastLoggedLocalUser(), name);
        QVERIFY(users.userAutoLoginCtrl(name, false) && !users.isUserAutoLogin(name));
    }

    void gestures()
    {
        QVERIFY(users.addSuperUser(grace()));
        QVERIFY(!users.isUserConfigureGesture(name) && !users.deleteUserGesture(name));
        QVERIFY(!users.updateUserGesture(name, QString()) && !users.updateUserGesture(name, "0129"));
        QVERIFY(users.updateUserGesture(name, "0124") && users.updateUserGesture(name, gesture));
        QVERIFY(reopen() && users.isUserConfigureGesture(name));
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 4; ++i)
            QVERIFY(users.verifyUserGesture(name, gesture));
        QVERIFY2(clock.elapsed() < 400, qPrintable(QString::number(clock.elapsed()))); // a login must not be felt
        QVERIFY(!users.verifyUserGesture(name, "0124") && !users.verifyUserGesture(name, QString()));
        QVERIFY(users.deleteUserGesture(name) && !users.isUserConfigureGesture(name));
        QVERIFY(!users.verifyUserGesture(name, gesture));
    }

    void lockSurvivesRestarts()
    {
        using Lock = QPair<bool, int>;
        QVERIFY(users.addSuperUser(grace()) && users.updateUserGesture(name, gesture));
        failFiveTimes();
        QVERIFY(users.verifyUserPassword(name, password)); // the module then clears the lock itself
        QCOMPARE(storedLock(), Lock(false, 0));
        QVERIFY(reopen());
        QCOMPARE(storedLock(), Lock(true, 180));

        QVERIFY(users.updateLockInfo(true, 42));
        failFiveTimes();
        QVERIFY(reopen());
        QCOMPARE(storedLock(), Lock(true, 42));

        QVERIFY(users.updateLockInfo(false, 300) && reopen());
        QCOMPARE(storedLock(), Lock(false, 300));
        failFiveTimes();
        QVERIFY(users.updateLockInfo(false, 0));
        for (int i = 0; i < 4; ++i)
            QVERIFY(!users.verifyUserPassword(name, QString()) && reopen());
        QCOMPARE(storedLock(), Lock(false, 0));
        QVERIFY(!users.verifyUserPassword(name, QString()) && reopen());
        QCOMPARE(storedLock(), Lock(true, 180));
    }

    void environment()
    {
        QVERIFY(!users.isSameLoginEnvironment());
        QVERIFY(users.updateLoginEnvironment() && reopen() && users.isSameLoginEnvironment());
        // A minimal installation has no machine id; its host name is too short to be searched for.
        const QString machine = QString::fromLatin1(QSysInfo::machineUniqueId());
        QVERIFY(machine.isEmpty() || !isReadable(machine, contents(at())));
        QVERIFY(store.change("UPDATE state SET environment = randomblob(32)"));
        QVERIFY(!users.isSameLoginEnvironment());
    }

    void credentials()
    {
        QVERIFY(users.addSuperUser(grace()));
        const QString text = users.generateSuperUserCredentials(name);
        QVERIFY(text.size() >= 62 && text.size() <= 126 && text != users.generateSuperUserCredentials(name));
        QVERIFY(!isReadable(password, {{QString(), text.toLatin1()}}));
        QVERIFY(reopen() && users.checkSuperUserCredentials(name, text));
        for (const QString &other : {QString(), text.chopped(1), text + '=', ' ' + text, QString(text.size(), 'A')})
            QVERIFY2(!users.checkSuperUserCredentials(name, other), qPrintable(other));
        QVERIFY(!users.checkSuperUserCredentials(account, text));
        QVERIFY(users.generateSuperUserCredentials("nobody").isEmpty());
        // A later superuser of the same name is somebody else.
        store.setSuperUserReplaceable(true);
        QVERIFY(users.addSuperUser(grace()));
        store.setSuperUserReplaceable(false);
        QVERIFY(users.isSuperUser(name) && !users.checkSuperUserCredentials(name, text));
        QVERIFY(users.checkSuperUserCredentials(name, users.generateSuperUserCredentials(name)));
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
        QVERIFY(users.addSuperUser(info) && users.updateUserGesture(name, gesture));
        QVERIFY(users.resetUserPwd(name, changed) && users.updateUserLoginRecord(name, true));
        for (const bool open : {true, false}) {
            const auto files = contents(at());
            QCOMPARE(files.contains("kelvra.db-wal"), open);
            QVERIFY(isReadable(name, files)); // the search sees what is there
            for (const QString &secret : {password, changed, gesture, info.answer1, info.answer2, info.answer3})
                QVERIFY2(!isReadable(secret, files), qPrintable(secret));
            store.close();
        }
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

    void openRefuses_data()
    {
        QTest::addColumn<std::function<void()>>("spoil");
        QTest::addColumn<QString>("says");
        const auto row = [](const char *tag, const char *says, std::function<void()> spoil) {
            QTest::newRow(tag) << std::move(spoil) << QString(says);
        };
        const auto key = [this](int size) {
            return [this, size] { writeFile(at("kelvra.key"), QByteArray(size, 'k')); };
        };
        const auto damage = [this](int from, int size) {
            const QByteArray junk(size, 'Z');
            return [=] { writeFile(at("kelvra.db"), readFile(at("kelvra.db")).replace(from, size, junk)); };
        };
        const auto sql = [this](const char *statement) {
            return [this, statement] {
                QVERIFY(reopen() && store.run("PRAGMA journal_mode = DELETE").isActive()); // as others keep theirs
                QVERIFY(store.run(statement).isActive());
            };
        };
        row("missing key", "missing", [this] { QVERIFY(QFile::remove(at("kelvra.key"))); });
        row("short key", "32 bytes", key(31));
        row("long key, no database", "32 bytes", [=] {
            QVERIFY(QFile::remove(at("kelvra.db")));
            key(33)();
        });
        row("another key", "does not belong", key(32));
        row("no database", "damaged", damage(0, 100));
        row("damaged table", "damaged", damage(4096, 4096));
        row("cut off", "damaged", [this] { QVERIFY(QFile::resize(at("kelvra.db"), 6000)); });
        row("newer", "newer version", sql("PRAGMA user_version = 99"));
        row("of another program", "another program", sql("PRAGMA application_id = 77"));
        row("of no program", "another program", sql("PRAGMA application_id = 0"));
        row("folder is a file", "cannot be created", [this] {
            QVERIFY(QDir(at()).removeRecursively());
            writeFile(dir->filePath("data"), "text");
        });
        row("read-only", "cannot be", [this] {
            QVERIFY(QFile::setPermissions(at("kelvra.db"), QFile::ReadOwner));
            QVERIFY(QFile::setPermissions(at(), QFile::ReadOwner | QFile::ExeOwner));
        });
        row("read-only and empty", "cannot be written", [this] {
            QVERIFY(QFile::remove(at("kelvra.db")) && QFile::remove(at("kelvra.key")));
            QVERIFY(QFile::setPermissions(at(), QFile::ReadOwner | QFile::ExeOwner));
        });
    }

    void openRefuses()
    {
        QFETCH(std::function<void()>, spoil);
        QFETCH(QString, says);
        QVERIFY(users.addSuperUser(grace()));
        store.close();
        spoil();
        store.close();
        if (QByteArray(QTest::currentDataTag()).startsWith("read-only") && QFileInfo(at()).isWritable())
            QSKIP("permissions do not bind this user");
        const auto before = contents(dir->path());
        QString error;
        QVERIFY(!store.open(at(), &error));
        QVERIFY2(error.contains(says) && error.endsWith('.'), qPrintable(error));
        QVERIFY(!store.isOpen() && !users.verifyUserPassword(name, password));
        QCOMPARE(contents(dir->path()), before);
    }

    void crashLosesNothing()
    {
        QVERIFY(users.addSuperUser(grace()));
        failFiveTimes();
        const QTemporaryDir copy; // what a power cut would leave: the log has not been moved into the database
        for (const char *file : {"kelvra.db", "kelvra.db-wal", "kelvra.key"})
            QVERIFY(QFile::copy(at(file), copy.filePath(file)));
        QVERIFY(store.open(copy.path()) && users.verifyUserPassword(name, password));
        QCOMPARE(storedLock(), qMakePair(true, 180));
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
    bool reopen() const { return store.open(at()); }
    static SuperUserInfo grace() { return superUser(name, password); }

    static QPair<bool, int> storedLock()
    {
        bool locked = false;
        int seconds = -7;
        return users.getLockInfo(locked, seconds) ? qMakePair(locked, seconds) : qMakePair(false, -1);
    }
};

QTEST_GUILESS_MAIN(TestStorage)

#include "tst_storage.moc"
