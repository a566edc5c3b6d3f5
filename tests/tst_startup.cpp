#include "client/kelvra_data/Store.h"
#include "client/shell/SingleInstance.h"
#include "client/shell/StartOptions.h"
#include "host/kelvra_data/UserData.h"

#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using kelvra_client::SingleInstance;
using kelvra_client::StartOptions;
using kelvra_data::Store;
using kelvra_data::UserData;

Q_DECLARE_METATYPE(std::function<void()>)

namespace {

const QString user = QStringLiteral("Ada Lovelace");
const QByteArray password = QByteArrayLiteral("Engine-1843!\u00e9");

/** The program as a child that does not outlive the test. */
class Client : public QProcess
{
public:
    explicit Client(const QStringList &arguments, const QByteArray &input = {}, const QString &display = QString())
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                           display.isNull() ? QStringLiteral("offscreen") : QString());
        if (!display.isEmpty())
            environment.insert(QStringLiteral("DISPLAY"), display);
        setProcessEnvironment(environment);
        start(QStringLiteral(KELVRA_CLIENT_PROGRAM), arguments);
        write(input);
        closeWriteChannel();
    }
    ~Client() override { stop(); }

    void stop()
    {
        kill();
        waitForFinished();
    }
    bool hasEnded() const { return state() == NotRunning; }
    /** "CODE SENTENCE" */
    QString end() { return QString::number(exitCode()) + QLatin1Char(' ') + QString::fromUtf8(readAllStandardError()); }
};

/** Every entry with its permissions and content. */
QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> all;
    for (QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot); it.hasNext();) {
        QFile file(it.next());
        const QByteArray head =
            QByteArray::number(int(file.permissions())) + (it.fileInfo().isDir() ? " folder " : " ");
        all[it.fileName()] = head + (file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return all;
}

void writeFile(const QString &path, const QByteArray &data)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(data) == data.size());
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void options_data();
    void options();
    void withoutDisplay_data();
    void withoutDisplay();
    void badInput_data();
    void badInput();
    void permissions();
    void secondStartIsAnsweredByTheFirst();
    void startsAtOnceLeaveOneClient();
    void killedClientLeavesTheFolderFree();
    void userFromTheCommandLine_data();
    void userFromTheCommandLine();

private:
    QString at(const char *file = "") const { return dir->path() + QStringLiteral("/data/") + QLatin1String(file); }
    QStringList onFolder(const QStringList &more = {}) const { return QStringList{"--data-dir", at()} + more; }

    std::unique_ptr<QTemporaryDir> dir;
};

/** A folder as the program leaves it, with one user. */
void TestStartup::init()
{
    dir = std::make_unique<QTemporaryDir>();
    kelvra_data::SuperUserInfo info;
    info.userName = user;
    info.password = QString::fromUtf8(password);
    info.answer1 = info.answer2 = info.answer3 = QStringLiteral("x");
    info.role = kelvra_data::SuperUserRole;
    QVERIFY(Store::_instance().open(at()) && UserData::_instance().addSuperUser(info));
    Store::_instance().close();
}

void TestStartup::options_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("result"); // "folder language user tour", or a part of the sentence

    const auto row = [](const QStringList &arguments, const char *result) {
        QTest::newRow(qPrintable(arguments.join(' '))) << arguments << QString::fromUtf8(result);
    };
    row({"--data-dir", "/d", "--language", "1", "--user", user}, "/d 1 Ada Lovelace ");
    row({"--data-dir=/d", "--tour", "/t"}, "/d -1  /t");
    row({"--data-dir", "/d", "--help"}, "/d -1   help");
    row({"--bogus"}, "Unknown option 'bogus'.");
    row({"-platform", "offscreen"}, "Unknown option 'platform'.");
    row({"--data-dir"}, "Missing value after '--data-dir'.");
    row({"--data-dir", ""}, "Missing value after '--data-dir'.");
    row({"--data-dir", "--version"}, "Missing value after '--data-dir'.");
    row({"--user", " "}, "Missing value after '--user'.");
    row({"--language", "7"}, "Unknown language '7'; these are known: 0 English, 1 简体中文.");
    row({"--language", "english"}, "Unknown language 'english'");
    row({"--tour", "/t", "--user", "a"}, "exclude each other.");
    row({"/d"}, "Unexpected argument '/d'.");
}

void TestStartup::options()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, result);
    QString error;
    const auto parsed = StartOptions::parse(QStringList{"kelvra_client"} + arguments, &error);
    if (!parsed) {
        QVERIFY2(error.contains(result) && error.endsWith('.') && !error.contains('\n'), qPrintable(error));
        return;
    }
    QCOMPARE(QString("%1 %2 %3 %4%5")
                 .arg(parsed->dataFolder)
                 .arg(parsed->language ? int(*parsed->language) : -1)
                 .arg(parsed->user, parsed->tourFolder, parsed->help ? " help" : ""),
             result);
}

void TestStartup::withoutDisplay_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("end");
    QTest::newRow("help") << QStringList{"--help"} << ""
                          << "0 ";
    QTest::newRow("version") << QStringList{"--version"} << ""
                             << "0 ";
    QTest::newRow("bad option") << QStringList{"--bogus"} << ""
                                << "2 kelvra_client: Unknown option 'bogus'.\n";
    QTest::newRow("none") << onFolder() << ""
                          << "1 kelvra_client: There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n";
    QTest::newRow("dead") << onFolder() << ":6553"
                          << "1 kelvra_client: The display that the environment names cannot be used (DISPLAY=:6553, "
                             "WAYLAND_DISPLAY=, QT_QPA_PLATFORM=).\n";
}

void TestStartup::withoutDisplay()
{
#ifndef Q_OS_LINUX
    QSKIP("Here a display goes without saying.");
#endif
    QFETCH(QStringList, arguments);
    QFETCH(QString, display);
    Client client(arguments, {}, display);
    QVERIFY(client.waitForFinished());
    QCOMPARE(client.exitStatus(), QProcess::NormalExit);
    QTEST(client.end(), "end");
    QCOMPARE(client.readAllStandardOutput().isEmpty(), client.exitCode() != 0);
}

void TestStartup::badInput_data()
{
    QTest::addColumn<std::function<void()>>("spoil");
    QTest::addColumn<QStringList>("more");
    QTest::addColumn<QString>("says");
    const auto row = [](const char *tag, const char *says, std::function<void()> spoil, const QStringList &more = {}) {
        QTest::newRow(tag) << std::move(spoil) << more << QString::fromUtf8(says);
    };
    const auto file = [this](const char *name, const QByteArray &content) {
        return [=] { writeFile(at(name), content); };
    };
    const QByteArray junk("PK\x03\x04\x00\x00=\x00\xff\xfe=1\n", 14);
    row("folder is a file", "is not a folder.", [this] {
        QVERIFY(QDir(at()).removeRecursively());
        writeFile(dir->path() + "/data", "text");
    });
    row("damaged database", "kelvra.db is damaged.", file("kelvra.db", QByteArray(8192, 'x')));
    row("no key", "kelvra.key is missing", [this] { QVERIFY(QFile::remove(at("kelvra.key"))); });
    row("another key", "The key file does not belong", file("kelvra.key", QByteArray(32, 'k')));
    row("customisation cut off", "customize.ini is damaged", file("customize.ini", "[login]\ncloud_lo"));
    row("customisation junk", "customize.ini is damaged", file("customize.ini", junk));
    row("no flag", "login/cloud_login in", file("customize.ini", "[login]\ncloud_login=maybe\n"));
    row("no flag either", "recovery/replace_superuser in", file("customize.ini", "[recovery]\nreplace_superuser=\n"));
    row("customisation folder", "cannot be read.", [this] { QVERIFY(QDir(at()).mkdir("customize.ini")); });
    row("settings cut off", "settings.ini is damaged", file("settings.ini", "[General\nlanguage=0\n"));
    row("no number", "client_login_mode in", file("settings.ini", "[General]\nclient_login_mode=gesture\n"));
    row("in Chinese", "已损坏", file("customize.ini", "[login"), {"--language", "1"});
    row("no password", "needs the password on standard input", [] {}, {"--user", user});
}

void TestStartup::badInput()
{
    QFETCH(std::function<void()>, spoil);
    QFETCH(QStringList, more);
    QFETCH(QString, says);
    spoil();
    const auto before = contents(at());
    const auto beside = contents(dir->path());
    Client client(onFolder(more));
    QVERIFY(client.waitForFinished());
    const QString end = client.end();
    QVERIFY2(end.startsWith(more.contains("--user") ? "2 kelvra_client: " : "1 kelvra_client: "), qPrintable(end));
    QVERIFY2(end.contains(says) && end.count('\n') == 1, qPrintable(end));
    QCOMPARE(contents(at()), before);
    QCOMPARE(contents(dir->path()), beside);
}

void TestStartup::permissions()
{
    const auto mode = QFile::permissions(at());
    const QVector<QPair<QFile::Permissions, const char *>> cases = {
        {QFile::ReadOwner | QFile::ExeOwner, "cannot be written to."},
        {QFile::WriteOwner | QFile::ExeOwner, "cannot be read."}};
    for (const auto &one : cases) {
        QVERIFY(QFile::setPermissions(at(), one.first));
        const QFileInfo info(at());
        Client client(onFolder());
        const bool bound = !info.isWritable() || !info.isReadable();
        const bool ended = bound && client.waitForFinished();
        QFile::setPermissions(at(), mode);
        if (!bound)
            QSKIP("permissions do not bind this user");
        QVERIFY(ended && client.end().contains(one.second));
    }
}

void TestStartup::secondStartIsAnsweredByTheFirst()
{
    QString error;
    const QString folder = dir->filePath("new");
    auto first = std::make_unique<SingleInstance>(folder);
    QCOMPARE(first->claim(&error), SingleInstance::First);
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(folder + "/kelvra.lock") & others) && !(QFile::permissions(folder) & others));
    QSignalSpy spy(first.get(), &SingleInstance::signalRepeatedStart);
    QVERIFY(QFile::link(folder, dir->filePath("link")));

    // Started before the first is ready to answer: it waits.
    Client second({"--data-dir", dir->filePath("link")});
    QVERIFY(!second.waitForFinished(1000));
    QCOMPARE(spy.count(), 0);
    first->answerRepeatedStarts();
    QTRY_VERIFY(second.hasEnded());
    QCOMPARE(second.end(), QString("0 "));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(contents(folder).keys(), QStringList{"kelvra.lock"}); // nothing of the database

    SingleInstance elsewhere(at());
    QCOMPARE(elsewhere.claim(&error), SingleInstance::First);

    // One that ends before it has answered leaves its folder to the one that waits.
    first = std::make_unique<SingleInstance>(dir->filePath("third"));
    QCOMPARE(first->claim(&error), SingleInstance::First);
    Client heir({"--data-dir", dir->filePath("third")});
    QVERIFY(!heir.waitForFinished(500));
    first.reset();
    QTRY_VERIFY2(QFile::exists(dir->filePath("third/customize.ini")), qPrintable(heir.end()));
    QVERIFY(!heir.hasEnded());
}

void TestStartup::startsAtOnceLeaveOneClient()
{
    Client one(onFolder());
    Client two(onFolder());
    QTRY_VERIFY(one.hasEnded() || two.hasEnded());
    Client &ended = one.hasEnded() ? one : two;
    QCOMPARE(ended.end(), QString("0 "));
    QVERIFY(!one.hasEnded() || !two.hasEnded());
}

void TestStartup::killedClientLeavesTheFolderFree()
{
    Client client(onFolder());
    QTRY_VERIFY(QFile::exists(at("customize.ini")));
    client.stop();
    QVERIFY(QFile::exists(at("kelvra.lock")));
    QString error;
    SingleInstance next(at());
    QCOMPARE(next.claim(&error), SingleInstance::First);
}

void TestStartup::userFromTheCommandLine_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("failures");
    QTest::addColumn<QString>("log");
    const QString success = QStringLiteral("login success Ada Lovelace 0");
    QTest::newRow("first line") << false << password + "\nmore\n" << 0 << success;
    QTest::newRow("no line break") << false << password << 0 << success;
    QTest::newRow("wrong") << false << QByteArray("wrong\n") << 1 << QString();
    QTest::newRow("not while locked") << true << QByteArray("wrong\n") << 0 << QString();
}

void TestStartup::userFromTheCommandLine()
{
    QFETCH(bool, locked);
    QFETCH(QByteArray, input);
    QFETCH(QString, log);
    Store &store = Store::_instance();
    QVERIFY(store.open(at()) && UserData::_instance().updateLockInfo(locked, locked ? 170 : 0));
    Client client(onFolder({"--user", user}), input);
    if (!log.isEmpty())
        QTRY_VERIFY(!store.auditLog(1).isEmpty());
    QTRY_VERIFY(QFile::exists(at("kelvra.lock")));
    // It answers from when the login has been asked for.
    Client second(onFolder());
    QVERIFY(second.waitForFinished() && second.exitCode() == 0);
    const auto entries = store.auditLog(9);
    QCOMPARE(entries.size(), log.isEmpty() ? 0 : 1);
    if (!log.isEmpty())
        QCOMPARE(QString("%1 %2 %3").arg(entries[0].event, entries[0].user).arg(entries[0].method), log);
    QSqlQuery failures = store.run("SELECT failed_count FROM state");
    QVERIFY(failures.next());
    QTEST(failures.value(0).toInt(), "failures");
    failures.finish();
    store.close();
}

QTEST_MAIN(TestStartup)

#include "tst_startup.moc"
