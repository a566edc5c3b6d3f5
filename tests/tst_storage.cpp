#include "client/kelvra_data/Store.h"
#include "host/kelvra_data/UserData.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <functional>

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

Store &store()
{
    return ZCOMMON::ZSingleton<Store>::_instance();
}

UserData &users()
{
    return ZCOMMON::ZSingleton<UserData>::_instance();
}

SuperUserInfo superUser()
{
    SuperUserInfo info;
    info.userName = name;
    info.password = password;
    info.role = SuperUserRole;
    info.remark = name;
    info.question1 = 3;
    info.question3 = 9;
    info.answer1 = QStringLiteral("Vassar College");
    info.answer2 = QStringLiteral("a moth in a relay");
    info.answer3 = QStringLiteral("Arlington, Virginia");
    return info;
}

QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden);
    while (it.hasNext()) {
        QFile file(it.next());
        if (file.open(QIODevice::ReadOnly))
            files[it.fileName()] = file.readAll();
    }
    return files;
}

void writeFile(const QString &path, const QByteArray &data)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(data) == data.size());
}

// The characters that stand for `raw` alone when `before` bytes precede it in a base64 text.
QByteArray innerBase64(const QByteArray &raw, int before)
{
    const QByteArray text = (QByteArray(before, '\0') + raw).toBase64(QByteArray::OmitTrailingEquals);
    const int cut = (before + raw.size()) % 3 ? 1 : 0;
    return text.mid(before ? before + 1 : 0).chopped(cut);
}

QList<QByteArray> spellings(const QString &text)
{
    QByteArray little, big;
    for (const QChar c : text) {
        little.append(char(c.cell())).append(char(c.row()));
        big.append(char(c.row())).append(char(c.cell()));
    }
    QList<QByteArray> all;
    for (const QByteArray &raw : {text.toUtf8(), little, big}) {
        all << raw << raw.toHex() << raw.toHex().toUpper();
        for (int before = 0; before < 3; ++before) {
            const QByteArray base64 = innerBase64(raw, before);
            all << base64 << QByteArray(base64).replace('+', '-').replace('/', '_');
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
        QVERIFY(!users().verifyUserPassword(name, QStringLiteral("wrong")));
    QVERIFY(!users().verifyUserPassword(QStringLiteral("nobody"), password));
    QVERIFY(!users().verifyUserGesture(name, QStringLiteral("0124")));
}

} // namespace

class TestStorage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInstallMessageHandler(noteWarning); }
    void init();
    void cleanup();
    void closedStoreAnswersNothing();
    void firstLoginEndsWithTheFirstUser();
    void superUserIsGivenBackAndIsTheOnlyOne();
    void unusableRecordsAreRefused();
    void loginRecords();
    void gestures();
    void lockSurvivesRestarts();
    void environment();
    void credentials();
    void sealedValuesStayInTheirPlace();
    void secretsAreNowhereReadable();
    void filesAreTheOwnersOnly();
    void openRefuses_data();
    void openRefuses();
    void openRefusesAnUnwritableFolder();
    void crashLosesNothing();
    void auditLog();

private:
    QString at(const char *file = "") const { return dir->path() + QStringLiteral("/data/") + QLatin1String(file); }
    bool reopen() const { return store().open(at()); }
    QPair<bool, int> storedLock() const;

    std::unique_ptr<QTemporaryDir> dir;
};

void TestStorage::init()
{
    warnings.clear();
    dir = std::make_unique<QTemporaryDir>();
    QString error;
    QVERIFY2(store().open(at(), &error), qPrintable(error));
}

void TestStorage::cleanup()
{
    store().close();
    QCOMPARE(warnings, QStringList()); // a connection that is still in use, for one
}

QPair<bool, int> TestStorage::storedLock() const
{
    bool locked = false;
    int seconds = -7;
    return users().getLockInfo(locked, seconds) ? qMakePair(locked, seconds) : qMakePair(false, -1);
}

void TestStorage::closedStoreAnswersNothing()
{
    store().close();
    bool flag = true;
    int seconds = 5;
    QDateTime when;
    QVERIFY(!users().isFirstLogin() && !users().isSuperUserExist(SuperUserRole) && !users().addSuperUser(superUser()));
    QVERIFY(!users().getLockInfo(flag, seconds) && flag && seconds == 5 && !users().updateLockInfo(true, 1));
    QVERIFY(!users().verifyUserPassword(name, QString()) && !users().verifyUserGesture(name, QString()));
    QVERIFY(!users().updateUserLoginRecord(name, true) && !users().getUserLoginRecord(name, flag, when));
    QVERIFY(!users().updateLoginEnvironment() && !users().isSameLoginEnvironment());
    QVERIFY(!users().updateUserGesture(name, gesture) && !users().addSuperUserFromSaasUser(account));
    QVERIFY(!users().resetUserPwd(name, password) && !users().checkSuperUserCredentials(name, QString()));
    QVERIFY(users().getUserInfo(name).name.isEmpty() && users().generateSuperUserCredentials(name).isEmpty());
    QVERIFY(!store().appendAudit({}) && store().auditLog(9).isEmpty() && !store().database().isValid());
}

void TestStorage::firstLoginEndsWithTheFirstUser()
{
    QVERIFY(users().isFirstLogin());
    QVERIFY(users().addSuperUserFromSaasUser(account));
    QVERIFY(users().addSuperUserFromSaasUser(account));
    QVERIFY(!users().isFirstLogin());
    QVERIFY(users().isUserExist(account) && users().isSuperUser(account));

    // The account opens no local door, and leaves the place of the local superuser free.
    QVERIFY(!users().isSuperUserExist(SuperUserRole));
    QVERIFY(!users().resetUserPwd(account, password) && !users().updateUserGesture(account, gesture));
    QVERIFY(!users().verifyUserPassword(account, QString()) && !users().verifyUserGesture(account, QString()));
    QVERIFY(!users().verifySuperUserAnswers(account, QString(), QString(), QString()));
    QVERIFY(users().generateSuperUserCredentials(account).isEmpty());
    QVERIFY(users().getSuperUserInfo(account).userName.isEmpty());
    QVERIFY(users().addSuperUser(superUser()));
    QCOMPARE(users().getSuperUserInfo(account).userName, name);
    QVERIFY(!users().addSuperUserFromSaasUser(name));
    QVERIFY(reopen() && users().isSuperUserExist(SuperUserRole) && !users().isFirstLogin());
}

void TestStorage::superUserIsGivenBackAndIsTheOnlyOne()
{
    QVERIFY(users().addSuperUser(superUser()));
    SuperUserInfo second = superUser();
    second.userName = QStringLiteral("second");
    QVERIFY(!users().addSuperUser(second) && !users().addSuperUser(superUser()));
    QVERIFY(!users().isUserExist(second.userName) && !users().isUserExist(name.toUpper()));

    QVERIFY(reopen());
    const SuperUserInfo info = users().getSuperUserInfo(name);
    QCOMPARE(QStringList({info.userName, info.password, info.remark, info.answer1, info.answer2, info.answer3}),
             QStringList({name, password, name, superUser().answer1, superUser().answer2, superUser().answer3}));
    QCOMPARE(QVector<int>({info.question1, info.question2, info.question3, info.role}), QVector<int>({3, 0, 9, 0}));
    QVERIFY(info.id >= 0);

    QVERIFY(users().verifySuperUserAnswers(name, info.answer1, info.answer2, info.answer3));
    QVERIFY(!users().verifySuperUserAnswers(name, info.answer1, info.answer2, info.answer1));
    QVERIFY(!users().verifySuperUserAnswers(name, info.answer1 + QLatin1Char('\0'), info.answer2, info.answer3));

    const QString longer(200, QLatin1Char('x'));
    QVERIFY(users().verifyUserPassword(name, password));
    QVERIFY(!users().resetUserPwd(name, QString()) && !users().resetUserPwd(second.userName, longer));
    QVERIFY(users().resetUserPwd(name, longer));
    QVERIFY(users().verifyUserPassword(name, longer) && !users().verifyUserPassword(name, password));
    QVERIFY(!users().verifyUserPassword(name, longer.chopped(1)));
    QCOMPARE(users().getUserInfo(name).password, longer);
}

void TestStorage::unusableRecordsAreRefused()
{
    QVector<SuperUserInfo> infos(5, superUser());
    infos[0].userName.clear();
    infos[1].userName = QStringLiteral("  ");
    infos[2].userName = QString(65, QLatin1Char('n'));
    infos[3].password.clear();
    infos[4].answer2.clear();
    for (int i = 0; i < infos.size(); ++i)
        QVERIFY2(!users().addSuperUser(infos.at(i)), qPrintable(QString::number(i)));
    QVERIFY(users().isFirstLogin());
}

void TestStorage::loginRecords()
{
    bool autoLogin = true;
    QDateTime when;
    QVERIFY(users().addSuperUser(superUser()) && users().addSuperUserFromSaasUser(account));
    QVERIFY(users().getLastLoggedLocalUser().isEmpty() && !users().getUserLoginRecord(name, autoLogin, when));
    QVERIFY(autoLogin && when.isNull() && !users().updateUserLoginRecord(QStringLiteral("nobody"), true));

    QVERIFY(users().updateUserLoginRecord(name, true) && users().updateUserLoginRecord(account, false));
    QVERIFY(reopen());
    QCOMPARE(users().getLastLoggedLocalUser(), name);
    autoLogin = false;
    QVERIFY(users().getUserLoginRecord(name, autoLogin, when) && autoLogin && users().isUserAutoLogin(name));
    QVERIFY(qAbs(when.secsTo(QDateTime::currentDateTime())) < 60);
    QVERIFY(users().userAutoLoginCtrl(name, false) && !users().userAutoLoginCtrl(QStringLiteral("nobody"), true));
    QVERIFY(!users().isUserAutoLogin(name) && users().getUserLoginRecord(name, autoLogin, when) && !autoLogin);
}

void TestStorage::gestures()
{
    QVERIFY(users().addSuperUser(superUser()));
    QVERIFY(!users().isUserConfigureGesture(name) && !users().deleteUserGesture(name));
    QVERIFY(!users().updateUserGesture(name, QString()) && !users().updateUserGesture(name, QStringLiteral("0129")));
    QVERIFY(users().updateUserGesture(name, QStringLiteral("0124")) && users().updateUserGesture(name, gesture));
    QVERIFY(reopen() && users().isUserConfigureGesture(name));
    qint64 best = 1000;
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer clock;
        clock.start();
        QVERIFY(users().verifyUserGesture(name, gesture));
        best = qMin(best, clock.elapsed());
    }
    QVERIFY2(best < 100, qPrintable(QString::number(best)));
    QVERIFY(!users().verifyUserGesture(name, QStringLiteral("0124")) && !users().verifyUserGesture(name, QString()));
    QVERIFY(users().deleteUserGesture(name));
    QVERIFY(!users().isUserConfigureGesture(name) && !users().verifyUserGesture(name, gesture));
}

void TestStorage::lockSurvivesRestarts()
{
    using Lock = QPair<bool, int>;
    QVERIFY(users().addSuperUser(superUser()) && users().updateUserGesture(name, gesture));
    QCOMPARE(storedLock(), Lock(false, 0));

    failFiveTimes();
    QVERIFY(users().verifyUserPassword(name, password)); // the module then clears the lock itself
    QCOMPARE(storedLock(), Lock(false, 0));
    QVERIFY(reopen());
    QCOMPARE(storedLock(), Lock(true, 180));

    QVERIFY(users().updateLockInfo(true, 42));
    failFiveTimes();
    QVERIFY(reopen());
    QCOMPARE(storedLock(), Lock(true, 42));

    QVERIFY(users().updateLockInfo(false, 300) && reopen());
    QCOMPARE(storedLock(), Lock(false, 300));
    failFiveTimes();
    QVERIFY(users().updateLockInfo(false, 0));
    for (int i = 0; i < 4; ++i)
        QVERIFY(!users().verifyUserPassword(name, QString()) && reopen());
    QCOMPARE(storedLock(), Lock(false, 0));
    QVERIFY(!users().verifyUserPassword(name, QString()) && reopen());
    QCOMPARE(storedLock(), Lock(true, 180));
}

void TestStorage::environment()
{
    QVERIFY(!users().isSameLoginEnvironment());
    QVERIFY(users().updateLoginEnvironment() && reopen() && users().isSameLoginEnvironment());
    // A minimal installation has no machine id; its host name is too short to be searched for.
    const QByteArray machine = QSysInfo::machineUniqueId();
    QVERIFY(machine.isEmpty() || !isReadable(QString::fromLatin1(machine), contents(at())));
    QVERIFY(store().change("UPDATE state SET environment = randomblob(32)"));
    QVERIFY(!users().isSameLoginEnvironment());
}

void TestStorage::credentials()
{
    QVERIFY(users().addSuperUser(superUser()));
    const QString text = users().generateSuperUserCredentials(name);
    QVERIFY(text.size() >= 62 && text.size() <= 126);
    QVERIFY(!isReadable(password, {{QString(), text.toLatin1()}}));
    QVERIFY(text != users().generateSuperUserCredentials(name));
    QVERIFY(users().resetUserPwd(name, QStringLiteral("another")) && reopen());
    QVERIFY(users().checkSuperUserCredentials(name, text));

    for (int i = 0; i < text.size(); ++i) {
        for (int bit = 0; bit < 16; ++bit) {
            QString changed = text;
            changed[i] = QChar(text.at(i).unicode() ^ (1 << bit));
            QVERIFY2(!users().checkSuperUserCredentials(name, changed), qPrintable(QString::number(i)));
        }
    }
    for (const QString &other : {QString(), text.chopped(1), text + QLatin1Char('='), QLatin1Char(' ') + text,
                                 QString(text.size(), QLatin1Char('A')), password})
        QVERIFY(!users().checkSuperUserCredentials(name, other));
    QVERIFY(!users().checkSuperUserCredentials(account, text));
    QVERIFY(users().generateSuperUserCredentials(QStringLiteral("nobody")).isEmpty());
    QVERIFY(store().change("UPDATE users SET name = 'Mallory'"));
    QVERIFY(!users().checkSuperUserCredentials(QStringLiteral("Mallory"), text));

    const QTemporaryDir other;
    QVERIFY(store().open(other.path()) && users().addSuperUser(superUser()));
    QVERIFY(!users().checkSuperUserCredentials(name, text));
}

void TestStorage::sealedValuesStayInTheirPlace()
{
    QVERIFY(users().addSuperUser(superUser()) && users().updateUserGesture(name, gesture));
    QVERIFY(store().change("INSERT INTO users (name, kind, role, password, gesture) "
                           "SELECT 'Mallory', 1, 2, password, gesture FROM users"));
    const QString other = QStringLiteral("Mallory");
    QVERIFY(!users().verifyUserPassword(other, password) && !users().verifyUserPassword(other, QString()));
    QVERIFY(!users().verifyUserGesture(other, gesture) && users().getUserInfo(other).password.isEmpty());
    QVERIFY(store().change("UPDATE users SET answer1 = password WHERE role = 0"));
    QVERIFY(!users().verifySuperUserAnswers(name, password, superUser().answer2, superUser().answer3));
    QVERIFY(users().verifyUserPassword(name, password) && users().verifyUserGesture(name, gesture));

    // Nor does a value that has been tampered with open.
    QVERIFY(store().change("UPDATE users SET password = substr(password, 1, 40) || x'00' || substr(password, 42) "
                           "WHERE role = 0"));
    QVERIFY(!users().verifyUserPassword(name, password));
}

void TestStorage::secretsAreNowhereReadable()
{
    const SuperUserInfo info = superUser();
    const QString changed = QStringLiteral("Flow-Matic/1955");
    QVERIFY(users().addSuperUser(info) && users().updateUserGesture(name, gesture));
    QVERIFY(users().resetUserPwd(name, changed) && users().updateUserLoginRecord(name, true));
    const QStringList secrets = {password, changed, gesture, info.answer1, info.answer2, info.answer3};

    for (const QByteArray &spelling : spellings(password))
        QVERIFY(isReadable(password, {{QString(), "junk" + spelling + "junk"}}));
    for (int open = 1; open >= 0; --open) {
        const auto files = contents(at());
        QCOMPARE(files.contains(QStringLiteral("kelvra.db-wal")), bool(open));
        QVERIFY(isReadable(name, files)); // the search sees what is there
        for (const QString &secret : secrets)
            QVERIFY2(!isReadable(secret, files), qPrintable(secret));
        store().close();
    }
}

void TestStorage::filesAreTheOwnersOnly()
{
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(users().addSuperUser(superUser()));
    const QByteArray key = contents(at())[QStringLiteral("kelvra.key")];
    QCOMPARE(key.size(), 32);
    QVERIFY(key.count(key.at(0)) < 8);
    const QStringList files = contents(at()).keys();
    QCOMPARE(files, QStringList({QStringLiteral("kelvra.db"), QStringLiteral("kelvra.db-shm"),
                                 QStringLiteral("kelvra.db-wal"), QStringLiteral("kelvra.key")}));
    for (const QString &file : files)
        QVERIFY2(!(QFile::permissions(at() + file) & others), qPrintable(file));
    QVERIFY(!(QFile::permissions(at()) & others));

    // A key that is there is taken as it is, with a database that is not there yet too.
    store().close();
    QVERIFY(QFile::remove(at("kelvra.db")) && reopen());
    QCOMPARE(contents(at())[QStringLiteral("kelvra.key")], key);
}

void TestStorage::openRefuses_data()
{
    QTest::addColumn<std::function<void()>>("spoil");
    QTest::addColumn<QString>("says");
    const auto row = [](const char *tag, const char *says, std::function<void()> spoil) {
        QTest::newRow(tag) << std::move(spoil) << QString::fromLatin1(says);
    };
    const auto sql = [this](const char *statement) {
        return [this, statement] { QVERIFY(reopen() && store().run(statement).isActive()); };
    };
    const auto damage = [this](int from, int size) {
        QByteArray data = contents(at())[QStringLiteral("kelvra.db")];
        writeFile(at("kelvra.db"), data.replace(from, size, QByteArray(size, '\x5a')));
    };
    row("missing key", "missing", [this] { QVERIFY(QFile::remove(at("kelvra.key"))); });
    row("short key", "32 bytes", [this] { writeFile(at("kelvra.key"), QByteArray(31, 'k')); });
    row("long key", "32 bytes", [this] { writeFile(at("kelvra.key"), QByteArray(33, 'k')); });
    row("short key without a database", "32 bytes", [this] {
        QVERIFY(QFile::remove(at("kelvra.db")));
        writeFile(at("kelvra.key"), QByteArray(31, 'k'));
    });
    row("another key", "does not belong", [this] { writeFile(at("kelvra.key"), QByteArray(32, 'k')); });
    row("no database", "damaged", [damage] { damage(0, 100); });
    row("damaged table", "damaged", [damage] { damage(4096, 4096); });
    row("cut off", "damaged", [this] { QVERIFY(QFile::resize(at("kelvra.db"), 6000)); });
    row("newer", "newer version", sql("PRAGMA user_version = 99"));
    row("of another program", "another program", sql("PRAGMA application_id = 77"));
    row("of no program", "another program", sql("PRAGMA application_id = 0"));
    row("folder is a file", "cannot be created", [this] {
        QVERIFY(QDir(at()).removeRecursively());
        writeFile(dir->path() + QStringLiteral("/data"), "text");
    });
}

void TestStorage::openRefuses()
{
    QVERIFY(users().addSuperUser(superUser()));
    store().close();
    QFETCH(std::function<void()>, spoil);
    QFETCH(QString, says);
    spoil();
    store().close();
    const auto before = contents(at());
    const auto beside = contents(dir->path());
    QString error;
    QVERIFY(!store().open(at(), &error));
    QVERIFY2(error.contains(says) && error.endsWith(QLatin1Char('.')), qPrintable(error));
    QVERIFY(!store().isOpen() && !users().verifyUserPassword(name, password));
    QCOMPARE(contents(at()), before);
    QCOMPARE(contents(dir->path()), beside);
}

void TestStorage::openRefusesAnUnwritableFolder()
{
    QVERIFY(users().addSuperUser(superUser()));
    const QString empty = dir->filePath(QStringLiteral("empty"));
    QVERIFY(QDir().mkdir(empty));
    store().close();
    const auto before = contents(at());
    for (const QString &folder : {at(), empty})
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(QFile::setPermissions(at("kelvra.db"), QFile::ReadOwner));
    if (QFile(at("kelvra.db")).open(QIODevice::ReadWrite))
        QSKIP("permissions do not bind this user");
    QString error;
    QVERIFY(!store().open(at(), &error) && error.contains(QLatin1String("cannot be")));
    QVERIFY(!store().open(empty, &error) && error.contains(QLatin1String("cannot be written")));
    QCOMPARE(contents(at()), before);
    for (const QString &folder : {at(), empty})
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestStorage::crashLosesNothing()
{
    QVERIFY(users().addSuperUser(superUser()));
    failFiveTimes();
    const QTemporaryDir copy; // what a power cut would leave: the log has not been moved into the database
    const auto files = contents(at());
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        writeFile(copy.filePath(file.key()), file.value());
    QVERIFY(store().open(copy.path()));
    QVERIFY(users().verifyUserPassword(name, password));
    QCOMPARE(storedLock(), qMakePair(true, 180));
}

void TestStorage::auditLog()
{
    const QDateTime when(QDate(2024, 2, 29), QTime(1, 2, 3, 45), Qt::UTC);
    AuditEntry lock{when, QStringLiteral("lock"), name, -1, -1, 180};
    AuditEntry login{when.addMSecs(1).toLocalTime(), QStringLiteral("login"), QString(), 1, 0, -1};
    QVERIFY(store().appendAudit(lock) && store().appendAudit(login) && reopen());
    const auto log = store().auditLog(5);
    QCOMPARE(log.size(), 2);
    QCOMPARE(log.at(0).at, login.at);
    QCOMPARE(QVector<int>({log.at(0).method, log.at(0).autoLogin, log.at(0).seconds}), QVector<int>({1, 0, -1}));
    QCOMPARE(QVector<int>({log.at(1).method, log.at(1).autoLogin, log.at(1).seconds}), QVector<int>({-1, -1, 180}));
    QCOMPARE(log.at(1).event + log.at(1).user, lock.event + name);
    QCOMPARE(store().auditLog(1).size(), 1);
    QVERIFY(store().holds("SELECT at = '2024-02-29T01:02:03.045Z' FROM audit_log WHERE seconds = 180"));
}

QTEST_GUILESS_MAIN(TestStorage)

#include "tst_storage.moc"
