#include "client/kelvra_data/Store.h"
#include "client/shell/SingleInstance.h"
#include "client/shell/StartOptions.h"
#include "host/kelvra_data/UserData.h"
#include "tests/DataFolderTest.h"

#include <QCryptographicHash>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>

#ifdef Q_OS_UNIX
#    include <sys/stat.h>
#    include <unistd.h>
#endif

using kelvra_client::SingleInstance;
using kelvra_client::StartOptions;
using kelvra_data::Store;
using kelvra_data::UserData;

namespace {

const QString user = QStringLiteral("Ada Lovelace");
const QByteArray password = QByteArrayLiteral("Engine-1843!\u00e9");

/** The program as a child that does not outlive the test. */
const QString withoutWindows = isWindows ? "minimal" : "offscreen"; // Qt for Windows has no other

class Client : public QProcess
{
public:
    explicit Client(const QStringList &arguments, const QByteArray &input = {}, const QString &display = QString(),
                    const QString &variable = QString(), const QString &program = KELVRA_CLIENT_PROGRAM)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("WAYLAND_DISPLAY");
        environment.insert("DISPLAY", display);
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("QT_QPA_PLATFORM", display.isNull() ? withoutWindows : "");
        if (!variable.isEmpty())
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        setProcessEnvironment(environment);
        start(program, arguments);
        write(input);
        closeWriteChannel();
    }
    ~Client() override
    {
        kill();
        waitForFinished();
    }

    bool hasEnded() const { return state() == NotRunning; }
    /** "CODE SENTENCE" */
    QString end()
    {
        waitForFinished();
        const QString code = hasEnded() && exitStatus() == NormalExit ? QString::number(exitCode()) : "no end";
        return code + ' ' + QString::fromUtf8(readAllStandardError()).remove('\r');
    }
};

} // namespace

class TestStartup : public DataFolderTest
{
    Q_OBJECT

private slots:
    /** A folder as the program leaves it, with one user. */
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        QVERIFY(UserData::_instance().addSuperUser(superUser(user, QString::fromUtf8(password))));
        Store::_instance().close();
    }

    void cleanup() { QFile::setPermissions(at(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner); }

    void options()
    {
        const QVector<QPair<QStringList, QString>> rows = {
            // Folder, language, user, tour and what is set, or a part of the sentence
            {{"--data-dir", "/d", "--language", "1", "--user", user}, "/d 1 Ada Lovelace ."},
            {{"--data-dir=/d", "--tour", "/t"}, "/d -1  /t."},
            {{"--data-dir", "/d", "--help"}, "/d -1   help."},
            {{"--data-dir", "/d", "--no-phone"}, "/d -1   no phone."},
            {{"-platform", "offscreen"}, "Unknown option 'platform'."},
            {{"--data-dir", "--version"}, "Missing value after '--data-dir'."},
            {{"--user", " "}, "Missing value after '--user'."},
            {{"--user", "a", "--user=b"},
             "'--user' is there more than once. 'kelvra_client --help' lists the options."},
            {{"--language", "7"}, "Unknown language '7'; these are known: 0 English, 1 简体中文, 2 Deutsch,"},
            {{"--language", "english"}, "Unknown language 'english'"},
            {{"--tour", "/t", "--user", "a"}, "exclude each other."},
            {{"/d"}, "Unexpected argument '/d'."}};
        for (const auto &[arguments, result] : rows) {
            QString told;
            if (const auto parsed = StartOptions::parse(QStringList{"kelvra_client"} + arguments, &told)) {
                const QString language = QString::number(parsed->language ? int(*parsed->language) : -1);
                const QStringList all{parsed->dataFolder, language, parsed->user, parsed->tourFolder};
                told = all.join(' ') + (parsed->help ? " help." : parsed->noPhone ? " no phone." : ".");
            }
            told.remove(QRegularExpression("\\b[A-Z]:(?=/)")); // the drive
            QVERIFY2(told.contains(result) && told.endsWith('.') && !told.contains('\n'), qPrintable(told));
        }
    }

    void endsWithoutAWindow()
    {
#ifndef Q_OS_LINUX
        QSKIP("Here a display goes without saying.");
#endif
        const QVector<std::tuple<QStringList, QString, QString>> rows = {
            // Options, the display or null for one that shows nothing, code and sentence
            {{"--help"}, "", "0 "},
            {{"--version"}, "", "0 "},
            {{"--tour", at("kelvra.key")}, "", "1 The folder " + at("kelvra.key") + " cannot be made."},
            {{"--bogus"}, "", "2 Unknown option 'bogus'. 'kelvra_client --help' lists the options."},
            {{}, "", "1 There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set."},
            {{},
             ":6553",
             "1 The display that the environment names cannot be used (DISPLAY=:6553, WAYLAND_DISPLAY=, "
             "QT_QPA_PLATFORM=)."},
            {{"--user", user}, QString(), "2 '--user' needs the password on standard input, which holds none."}};
        const auto before = contents(at());
        for (const auto &[options, display, end] : rows) {
            Client client(onFolder(options), {}, display);
            const bool runs = end == "0 ";
            QCOMPARE(client.end(), runs ? end : QString(end).insert(2, "kelvra_client: ") + '\n');
            QCOMPARE(client.readAllStandardOutput().isEmpty(), !runs);
            QCOMPARE(contents(at()), before);
        }
    }

    void badInputEndsWithASentence()
    {
        const auto write = [this](const char *file, const QByteArray &data) { return writeFile(at(file), data), true; };
        const auto allow = [this](QFile::Permission one) { return QFile::setPermissions(at(), one | QFile::ExeOwner); };
        QVERIFY(write("customize.ini", "[login"));
        QVERIFY(Client(onFolder({"--language", "1"})).end().contains("已损坏"));
        const QByteArray junk("PK\x03\x04\x00\x00=\x00\xff\xfe=1\n", 14);
        const QVector<QPair<QString, std::function<bool()>>> rows = {
            {"is not a folder\\.",
             [&] { return QDir(at()).removeRecursively() && QFile(dir->filePath("data")).open(QFile::WriteOnly); }},
            {"kelvra.db is damaged\\.", [&] { return write("kelvra.db", QByteArray(8192, 'x')); }},
            {"customize.ini is damaged", [&] { return write("customize.ini", junk); }},
            {"recovery/replace_superuser in",
             [&] { return write("customize.ini", "[recovery]\nreplace_superuser=\n"); }},
            {"customize.ini is not a file", [&] { return QDir(at()).mkdir("customize.ini"); }},
            {"settings.ini is damaged", [&] { return write("settings.ini", "[General\nlanguage=0\n"); }},
            {"client_login_mode in", [&] { return write("settings.ini", "[General]\nclient_login_mode=gesture\n"); }},
            {"cannot be written to\\.", [&] { return allow(QFile::ReadOwner); }},
            {"cannot be read\\.", [&] { return allow(QFile::WriteOwner); }}};
        for (const auto &[says, spoil] : rows) {
            init();
            QVERIFY2(spoil(), qPrintable(says));
            const QFileInfo info(at());
            if (says.startsWith("cannot") && info.isWritable() && info.isReadable())
                QSKIP("permissions do not bind this user");
            const auto before = contents(dir->path());
            const QRegularExpression sentence(QString("^1 kelvra_client: [^\n]*%1[^\n]*\n$").arg(says));
            const QString end = Client(onFolder()).end();
            QVERIFY2(sentence.match(end).hasMatch(), qPrintable(end));
            QCOMPARE(contents(dir->path()), before);
            cleanup();
        }
    }

    void startReadsOrdinaryFilesOnly_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("kind");
        for (const char *file :
             {"settings.ini", "customize.ini", "loading.png", "cloud_accounts.ini", "cloud_service.json",
              "cloud_client.json", "kelvra.key", "kelvra.lock", "kelvra.db", "kelvra.db-wal", "kelvra.db-journal"}) {
            for (const char *kind : {"pipe", "device", "folder"})
                QTest::addRow("%s is a %s", file, kind) << file << kind;
        }
        for (const char *file : {"settings.ini", "cloud_accounts.ini", "cloud_client.json", "kelvra.lock"})
            QTest::addRow("%s is too large", file) << file << "large file";
    }

    void startReadsOrdinaryFilesOnly()
    {
        QFETCH(QString, file);
        QFETCH(QString, kind);
        if (isWindows && (kind == "pipe" || kind == "device"))
            QSKIP("There are none in a folder here.");
        writeFile(at("customize.ini"), "[loading]\ncustom_image=true\nimage=loading.png\n");
        QFile::remove(at(file));
        QVERIFY(putInPlaceOf(file, kind));
        const QString said = kind == "large file" ? QString("The file %1 has more than ") : QString("%1 is not a file");
        const QString end = Client(onFolder()).end();
        QVERIFY2(end.startsWith("1 kelvra_client: " + said.arg(QDir::toNativeSeparators(at(file)))), qPrintable(end));
        QCOMPARE(end.count('\n'), 1);
    }

    void helpNamesTheDefaultFolder()
    {
        const QString text = StartOptions::helpText();
        const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QVERIFY2(text.contains("  " + QDir::toNativeSeparators(folder) + '\n'), qPrintable(text));
        QVERIFY2(text.contains("\nExit status:\n  0  after quitting"), qPrintable(text));
    }

    void folderOfOthersIsRefused_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("foreign");
        QTest::addColumn<QString>("says");
        QTest::newRow("everybody writes") << 0707 << false << "Other accounts can write to the data folder %1,";
        QTest::newRow("a group writes") << 0770 << false << "Other accounts can write to the data folder %1,";
        QTest::newRow("another account's") << 0755 << true << "The data folder %1 belongs to the account ";
    }

    void folderOfOthersIsRefused()
    {
#ifdef Q_OS_UNIX
        QFETCH(int, mode);
        QFETCH(bool, foreign);
        QFETCH(QString, says);
        const QByteArray path = QFile::encodeName(at());
        QCOMPARE(chmod(path.constData(), mode_t(mode)), 0);
        // Only the superuser can give a folder away; for everybody else there are folders of others.
        const bool given = foreign && chown(path.constData(), 1, 1) == 0;
        const auto before = contents(dir->path());
        const QString folder = foreign && !given ? "/usr" : QDir::cleanPath(at());
        const QString end = Client({"--data-dir", folder}).end();
        QVERIFY2(end.startsWith("1 kelvra_client: " + says.arg(folder)), qPrintable(end));
        QVERIFY(end.contains("--data-dir"));
        QCOMPARE(contents(dir->path()), before);
#else
        QSKIP("Access lists are not set by modes.");
#endif
    }

    void missingPartsEndWithASentence_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("says");
        QTest::newRow("no home") << "HOME="
                                 << "There is no default data folder: HOME has to be";
        QTest::newRow("no folder at home") << "HOME=/proc/none"
                                           << "There is no default data folder: HOME has to be";
        QTest::newRow("no fonts") << "FONTCONFIG_FILE=%1/fonts.conf"
                                  << "There are no fonts, ";
        QTest::newRow("no database driver") << ""
                                            << "The SQLite driver of Qt is missing. ";
    }

    void missingPartsEndWithASentence()
    {
#ifndef Q_OS_LINUX
        QSKIP("Here all of them go without saying.");
#endif
        QFETCH(QString, variable);
        QFETCH(QString, says);
        writeFile(dir->filePath("fonts.conf"), "<fontconfig/>");
        QString program = KELVRA_CLIENT_PROGRAM;
        if (variable.isEmpty()) {
            program = dir->filePath("kelvra_client");
            QVERIFY(QFile::copy(KELVRA_CLIENT_PROGRAM, program));
            QVERIFY(QDir(dir->path()).mkdir("plugins"));
            writeFile(dir->filePath("qt.conf"), "[Paths]\nPlugins=plugins\n");
            const QString platforms = QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/platforms";
            QVERIFY(QFile::link(platforms, dir->filePath("plugins/platforms")));
        }
        const auto before = contents(at());
        const QStringList options = variable.startsWith("HOME") ? QStringList() : onFolder();
        const QString end = Client(options, {}, {}, variable.replace("%1", dir->path()), program).end();
        QVERIFY2(end.contains(QRegularExpression("^1 (Fontconfig [^\n]*\n)*kelvra_client: " + says)), qPrintable(end));
        QCOMPARE(contents(at()), before);
    }

    void secondStartIsAnsweredByTheFirst()
    {
        QString error;
        const QString folder = dir->filePath("new");
        auto first = std::make_unique<SingleInstance>(folder);
        QCOMPARE(first->claim(&error), SingleInstance::First);
        QVERIFY(isPrivate(folder + "/kelvra.lock") && isPrivate(folder));
        QSignalSpy spy(first.get(), &SingleInstance::signalRepeatedStart);
        const QString sameFolder = isWindows ? folder : dir->filePath("link"); // links are files there
        QVERIFY(isWindows || QFile::link(folder, sameFolder));

        // Started before the first is ready to answer: it waits.
        Client second({"--data-dir", sameFolder});
        QVERIFY(!QTest::qWaitFor([&] { return second.hasEnded(); }, 1000));
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
        QTRY_VERIFY2(QFile::exists(dir->filePath("third/customize.ini")), heir.readAllStandardError().constData());
        QVERIFY(!heir.hasEnded());
    }

    void secondStartsThatReadLateHarmNobody()
    {
#ifndef Q_OS_WIN
        QSKIP("Only on Windows does a write wait for who reads it.");
#endif
        QString error;
        SingleInstance first(at());
        QCOMPARE(first.claim(&error), SingleInstance::First);
        first.answerRepeatedStarts();
        QSignalSpy spy(&first, &SingleInstance::signalRepeatedStart);
        const QByteArray key = QFile::encodeName(QFileInfo(at()).canonicalFilePath()) + '\0' + qgetenv("USERNAME");
        const QByteArray hash = QCryptographicHash::hash(key, QCryptographicHash::Sha256).toHex();
        for (int start = 1; start <= 200; ++start) {
            QFile late("//./pipe/kelvra_client-" + QString::fromLatin1(hash.left(32)));
            QVERIFY2(late.open(QFile::ReadOnly | QFile::Unbuffered), qPrintable(late.errorString()));
            QTRY_COMPARE(spy.count(), start);
            QVERIFY(late.readLine().endsWith('\n'));
        }
        Client second(onFolder());
        QTRY_VERIFY(second.hasEnded());
        QCOMPARE(second.end(), QString("0 "));
    }

    void secondStartSaysThatNobodyWasLoggedIn()
    {
        QString error;
        SingleInstance first(at());
        QCOMPARE(first.claim(&error), SingleInstance::First);
        first.answerRepeatedStarts();
        QSignalSpy spy(&first, &SingleInstance::signalRepeatedStart);
        Client second(onFolder({"--user", user})); // with no password, which is not asked for
        QTRY_VERIFY(second.hasEnded());
        const QString end = second.end();
        QVERIFY2(end.startsWith("3 kelvra_client: A client is already running on the data folder "), qPrintable(end));
        QCOMPARE(spy.count(), 1);
    }

    void firstThatCannotComeToTheFrontIsReported_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("says");
        QTest::newRow("frozen") << QByteArray() << QString("(process %1), but it does not answer.");
        QTest::newRow("another program answers") << QByteArray("1") << QString("another program has taken its name ");
    }

    void firstThatCannotComeToTheFrontIsReported()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, says);
#ifndef Q_OS_UNIX
        QSKIP("Here the lock file cannot be made older.");
#endif
        const QByteArray temporary = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(dir->path())); // where the name is
        const auto restore = qScopeGuard([&] { qputenv("TMPDIR", temporary.isEmpty() ? "/tmp" : temporary); });
        QString error;
        SingleInstance first(at());
        QCOMPARE(first.claim(&error), SingleInstance::First);
        first.answerRepeatedStarts();
        QFile lock(at("kelvra.lock"));
        QVERIFY(lock.open(QFile::ReadWrite));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFile::FileModificationTime));
        QLocalServer other;
        if (!answer.isEmpty()) {
            const QString name = QDir(dir->path()).entryList({"kelvra_client-*"}, QDir::System).value(0);
            QVERIFY(QLocalServer::removeServer(name));
            QVERIFY(other.listen(name));
            connect(&other, &QLocalServer::newConnection, &other,
                    [&] { other.nextPendingConnection()->write(answer); });
        }
        QElapsedTimer clock;
        clock.start();
        Client second(onFolder());
        if (answer.isEmpty())
            second.waitForFinished(); // and nothing is answered meanwhile
        QTRY_VERIFY_WITH_TIMEOUT(second.hasEnded(), 20000);
        QVERIFY(clock.elapsed() < 8000);
        const QString end = second.end();
        QVERIFY2(end.startsWith("1 kelvra_client: The client is already running on the data folder "), qPrintable(end));
        QVERIFY2(end.contains(says.replace("%1", QString::number(QCoreApplication::applicationPid()))),
                 qPrintable(end));
    }

    void startsAtOnceLeaveOneClient()
    {
        Client one(onFolder());
        Client two(onFolder());
        QTRY_VERIFY(one.hasEnded() || two.hasEnded());
        QCOMPARE((one.hasEnded() ? one : two).end(), QString("0 "));
        Client &left = one.hasEnded() ? two : one;
        QTRY_VERIFY(QFile::exists(at("customize.ini")));
        QVERIFY(!left.hasEnded());
        left.kill(); // which leaves the folder free
        QVERIFY(left.waitForFinished());
        QVERIFY(QFile::exists(at("kelvra.lock")));
        QString error;
        QCOMPARE(SingleInstance(at()).claim(&error), SingleInstance::First);
    }

    void userFromTheCommandLine()
    {
        const QVector<std::tuple<QByteArray, bool, int>> rows = {
            // Standard input, whether the client is locked, the failures counted
            {password + "\nmore\n", false, 0},
            {password, false, 0},
            {"wrong\n", false, 1},
            {"wrong\n", true, 0}};
        for (const auto &[input, locked, failures] : rows) {
            init();
            Store &store = Store::_instance();
            QVERIFY(store.open(at()) && UserData::_instance().updateLockInfo(locked, locked ? 170 : 0));
            const bool lets = input.startsWith(password);
            Client client(onFolder({"--user", user}), input);
            QTRY_VERIFY(!lets || !store.auditLog(1).isEmpty());
            QTRY_VERIFY(QFile::exists(at("kelvra.lock")));
            // It answers from when the login has been asked for.
            QCOMPARE(Client(onFolder()).end(), QString("0 "));
            QStringList log;
            for (const auto &entry : store.auditLog(9)) {
                QVERIFY(qAbs(entry.at.secsTo(QDateTime::currentDateTime())) < 60);
                log << QString("%1 %2 %3 %4").arg(entry.event, entry.user).arg(entry.method).arg(entry.autoLogin);
            }
            QCOMPARE(log, lets ? QStringList("login success Ada Lovelace 0 0") : QStringList());
            QVERIFY(store.holds("SELECT failed_count = ? FROM state", {failures}));
            store.close();
        }
    }

private:
    bool putInPlaceOf(const QString &file, const QString &kind) const
    {
        if (kind == "folder")
            return QDir().mkdir(at(file));
        if (kind == "large file")
            return QFile(at(file)).open(QFile::WriteOnly) && QFile::resize(at(file), 32LL * 1024 * 1024);
        if (kind == "pipe")
            return QProcess::execute("mkfifo", {at(file)}) == 0;
        // A link to a link: whoever puts a file in the place of its target leaves the device alone.
        return QFile::link("/dev/zero", at("endless")) && QFile::link(at("endless"), at(file));
    }

    QStringList onFolder(QStringList options = QStringList()) const
    {
        return options << "--data-dir" << at();
    }
};

QTEST_MAIN(TestStartup)

#include "tst_startup.moc"
