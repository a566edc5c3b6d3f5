#include "client/kelvra_data/Store.h"
#include "client/shell/SingleInstance.h"
#include "client/shell/StartOptions.h"
#include "host/kelvra_data/UserData.h"
#include "tests/DataFolderTest.h"

#include <QProcess>

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
        environment.remove("WAYLAND_DISPLAY");
        environment.remove("DISPLAY");
        environment.insert("LC_ALL", "C.UTF-8");
        environment.insert("QT_QPA_PLATFORM", display.isNull() ? "offscreen" : "");
        if (!display.isEmpty())
            environment.insert("DISPLAY", display);
        setProcessEnvironment(environment);
        start(KELVRA_CLIENT_PROGRAM, arguments);
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
    QString end() { return QString::number(exitCode()) + ' ' + QString::fromUtf8(readAllStandardError()); }
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
            // Folder, language, user and tour, or a part of the sentence
            {{"--data-dir", "/d", "--language", "1", "--user", user}, "/d 1 Ada Lovelace "},
            {{"--data-dir=/d", "--tour", "/t"}, "/d -1  /t"},
            {{"--data-dir", "/d", "--help"}, "/d -1   help"},
            {{"--data-dir", "/d", "--no-phone"}, "/d -1   no phone"},
            {{"-platform", "offscreen"}, "Unknown option 'platform'."},
            {{"--data-dir"}, "Missing value after '--data-dir'."},
            {{"--data-dir", "--version"}, "Missing value after '--data-dir'."},
            {{"--user", " "}, "Missing value after '--user'."},
            {{"--language", "7"}, "Unknown language '7'; these are known: 0 English, 1 简体中文, 2 Deutsch,"},
            {{"--language", "english"}, "Unknown language 'english'"},
            {{"--tour", "/t", "--user", "a"}, "exclude each other."},
            {{"/d"}, "Unexpected argument '/d'."}};
        for (const auto &[arguments, result] : rows) {
            QString error;
            const auto parsed = StartOptions::parse(QStringList{"kelvra_client"} + arguments, &error);
            if (parsed) {
                const QString language = QString::number(parsed->language ? int(*parsed->language) : -1);
                const QStringList all{parsed->dataFolder, language, parsed->user, parsed->tourFolder};
                QCOMPARE(all.join(' ') + (parsed->help ? " help" : "") + (parsed->noPhone ? " no phone" : ""), result);
            } else {
                QVERIFY2(error.contains(result) && error.endsWith('.') && !error.contains('\n'), qPrintable(error));
            }
        }
    }

    void endsWithoutAWindow()
    {
#ifndef Q_OS_LINUX
        QSKIP("Here a display goes without saying.");
#endif
        struct Row
        {
            QStringList arguments;
            QString display; // null for one that shows nothing
            QString end;
        };
        const QVector<Row> rows = {
            {{"--help"}, "", "0 "},
            {{"--version"}, "", "0 "},
            {{"--bogus"}, "", "2 kelvra_client: Unknown option 'bogus'.\n"},
            {onFolder(), "", "1 kelvra_client: There is no display: neither DISPLAY nor WAYLAND_DISPLAY is set.\n"},
            {onFolder(), ":6553",
             "1 kelvra_client: The display that the environment names cannot be used (DISPLAY=:6553, "
             "WAYLAND_DISPLAY=, QT_QPA_PLATFORM=).\n"},
            {onFolder({"--user", user}), QString(),
             "2 kelvra_client: '--user' needs the password on standard input, which holds none.\n"}};
        const auto before = contents(at());
        for (const Row &row : rows) {
            Client client(row.arguments, {}, row.display);
            QVERIFY(client.waitForFinished());
            QCOMPARE(client.exitStatus(), QProcess::NormalExit);
            QCOMPARE(client.end(), row.end);
            QCOMPARE(contents(at()), before);
            QCOMPARE(client.readAllStandardOutput().isEmpty(), client.exitCode() != 0);
        }
    }

    void badInput_data()
    {
        QTest::addColumn<std::function<void()>>("spoil");
        QTest::addColumn<QStringList>("more");
        QTest::addColumn<QString>("says");
        const auto row = [](const char *tag, const char *says, std::function<void()> spoil,
                            const QStringList &more = {}) {
            QTest::newRow(tag) << std::move(spoil) << more << QString("1 kelvra_client: [^\n]*%1[^\n]*\n").arg(says);
        };
        const auto file = [this](const char *name, const QByteArray &content) {
            return [=] { writeFile(at(name), content); };
        };
        const auto forbid = [this](QFile::Permissions left) {
            return [=] { QVERIFY(QFile::setPermissions(at(), left | QFile::ExeOwner)); };
        };
        row("folder is a file", "is not a folder\\.", [this] {
            QVERIFY(QDir(at()).removeRecursively());
            writeFile(dir->filePath("data"), "text");
        });
        row("forbidden: writing", "cannot be written to\\.", forbid(QFile::ReadOwner));
        row("forbidden: reading", "cannot be read\\.", forbid(QFile::WriteOwner));
        row("damaged database", "kelvra.db is damaged\\.", file("kelvra.db", QByteArray(8192, 'x')));
        const QByteArray junk("PK\x03\x04\x00\x00=\x00\xff\xfe=1\n", 14);
        row("customisation junk", "customize.ini is damaged", file("customize.ini", junk));
        row("empty flag", "recovery/replace_superuser in", file("customize.ini", "[recovery]\nreplace_superuser=\n"));
        row("customisation folder", "cannot be read\\.", [this] { QVERIFY(QDir(at()).mkdir("customize.ini")); });
        row("settings cut off", "settings.ini is damaged", file("settings.ini", "[General\nlanguage=0\n"));
        row("no number", "client_login_mode in", file("settings.ini", "[General]\nclient_login_mode=gesture\n"));
        row("in Chinese", "已损坏", file("customize.ini", "[login"), {"--language", "1"});
    }

    void badInput()
    {
        QFETCH(std::function<void()>, spoil);
        QFETCH(QStringList, more);
        QFETCH(QString, says);
        spoil();
        const QFileInfo info(at());
        if (QByteArray(QTest::currentDataTag()).startsWith("forbidden") && info.isWritable() && info.isReadable())
            QSKIP("permissions do not bind this user");
        const auto before = contents(dir->path());
        Client client(onFolder(more));
        QVERIFY(client.waitForFinished());
        const QString end = client.end();
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(says)).match(end).hasMatch(), qPrintable(end));
        QCOMPARE(contents(dir->path()), before);
    }

    void secondStartIsAnsweredByTheFirst()
    {
        QString error;
        const QString folder = dir->filePath("new");
        auto first = std::make_unique<SingleInstance>(folder);
        QCOMPARE(first->claim(&error), SingleInstance::First);
        QVERIFY(isPrivate(folder + "/kelvra.lock") && isPrivate(folder));
        QSignalSpy spy(first.get(), &SingleInstance::signalRepeatedStart);
        QVERIFY(QFile::link(folder, dir->filePath("link")));

        // Started before the first is ready to answer: it waits.
        Client second({"--data-dir", dir->filePath("link")});
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
        QTRY_VERIFY2(QFile::exists(dir->filePath("third/customize.ini")), qPrintable(heir.end()));
        QVERIFY(!heir.hasEnded());
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
        left.stop(); // a killed one leaves the folder free
        QVERIFY(QFile::exists(at("kelvra.lock")));
        QString error;
        QCOMPARE(SingleInstance(at()).claim(&error), SingleInstance::First);
    }

    void userFromTheCommandLine_data()
    {
        QTest::addColumn<bool>("locked");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("failures");
        QTest::newRow("first line") << false << password + "\nmore\n" << 0;
        QTest::newRow("no line break") << false << password << 0;
        QTest::newRow("wrong") << false << QByteArray("wrong\n") << 1;
        QTest::newRow("not while locked") << true << QByteArray("wrong\n") << 0;
    }

    void userFromTheCommandLine()
    {
        QFETCH(bool, locked);
        QFETCH(QByteArray, input);
        QFETCH(int, failures);
        Store &store = Store::_instance();
        QVERIFY(store.open(at()) && UserData::_instance().updateLockInfo(locked, locked ? 170 : 0));
        const bool lets = input.startsWith(password);
        Client client(onFolder({"--user", user}), input);
        QTRY_VERIFY(!lets || !store.auditLog(1).isEmpty());
        QTRY_VERIFY(QFile::exists(at("kelvra.lock")));
        // It answers from when the login has been asked for.
        Client second(onFolder());
        QVERIFY(second.waitForFinished() && second.exitCode() == 0);
        QStringList log;
        for (const auto &entry : store.auditLog(9)) {
            QVERIFY(qAbs(entry.at.secsTo(QDateTime::currentDateTime())) < 60);
            log << QString("%1 %2 %3 %4").arg(entry.event, entry.user).arg(entry.method).arg(entry.autoLogin);
        }
        QCOMPARE(log, lets ? QStringList("login success Ada Lovelace 0 0") : QStringList());
        QVERIFY(store.holds("SELECT failed_count = ? FROM state", {failures}));
        store.close();
    }

private:
    QStringList onFolder(const QStringList &more = {}) const
    {
        return QStringList{"--data-dir", at()} + more;
    }
};

QTEST_MAIN(TestStartup)

#include "tst_startup.moc"
