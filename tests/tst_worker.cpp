#include "client/kelvra_data/Store.h"
#include "client/kelvra_worker/CustomizeFile.h"
#include "client/kelvra_worker/Languages.h"
#include "client/kelvra_worker/WorkerSetup.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "tests/DataFolderTest.h"

#include <QLabel>
#include <QSettings>

using namespace kelvra_worker;
using kelvra_data::Store;

class TestWorker : public DataFolderTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(Store::_instance().open(at()));
        WorkerSetup::setDataFolder(at());
    }

    void cleanupTestCase() { Store::_instance().close(); }

    void languageIsChosenAndSaved()
    {
        SysLanguage &language = SysLanguage::_instance();
        language.setLanguage(Language(1), true);
        QCOMPARE(DictDef::_instance().alertTitle(DictDef::WarningTitle), QString("警告"));
        QCOMPARE(QCoreApplication::translate("kelvra_client::MainWindow", "Quit"), QString("退出"));
        language.setLanguage(Language(7), true); // is not known
        language.setLanguage(Language(0), false);
        QCOMPARE(DictDef::_instance().alertTitle(DictDef::WarningTitle), QString("Warning"));
        WorkerSetup::loadSavedLanguage();
        QCOMPARE(int(language.getLanguage()), 1);
        language.setLanguage(Language(0), true);
        QString spoken;
        for (const char *locale :
             {"en_US", "zh_CN", "de_AT", "es_MX", "fr_CA", "ru_RU", "ja_JP", "zh_TW", "it_IT", "C"})
            spoken += QString::number(Languages::forLocale(locale));
        QCOMPARE(spoken, QString("0123456000"));
    }

    void settingsReachTheFile()
    {
        UiSettings &settings = UiSettings::_instance();
        settings.setValue("client_login_mode", 1);
        QCOMPARE(QSettings(at("settings.ini"), QSettings::IniFormat).value("client_login_mode").toInt(), 1);

        QVERIFY(QDir(at()).mkpath("blocked/settings.ini"));
        WorkerSetup::setDataFolder(at("blocked"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Settings cannot be written to .*blocked"));
        settings.setValue("client_login_mode", 0);
        settings.setValue("client_login_mode", 2);
        QCOMPARE(settings.getValue("client_login_mode").toInt(), 2);
        QCOMPARE(contents(at("blocked")).keys(), QStringList("settings.ini"));
        WorkerSetup::setDataFolder(at());

        // The user is told once, when the operation is over.
        QStringList told;
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [&told] {
            if (QWidget *alert = QApplication::activeModalWidget()) {
                told << alert->findChild<QLabel *>("text")->text();
                alert->close();
            }
        });
        closer.start(20);
        QTRY_COMPARE(told.size(), 1);
        QVERIFY(told.first().startsWith("Settings cannot be written"));
        QVERIFY(!QTest::qWaitFor([&told] { return told.size() > 1; }, 100));
    }

    void currentUserIsRememberedWithoutThePassword()
    {
        SystemWorker &worker = SystemWorker::_instance();
        worker.setCurUserInfo(CloudUser, "alice", "p4ssPhrase", 3, true);
        worker.setSuperUserInfo("root", "0therSecret");
        QVERIFY(worker.getCurUserName() == "alice" && worker.lastLoggedUserType() == CloudUser);
        QCOMPARE(worker.getSuperUserName(), QString()); // the data library has none
        const auto files = contents(at());
        QVERIFY(files.contains("settings.ini") && files.contains("kelvra.db"));
        for (auto file = files.begin(); file != files.end(); ++file)
            QVERIFY2(!file->contains("p4ssPhrase") && !file->contains("0therSecret"), qPrintable(file.key()));
    }

    void customisation()
    {
        const QString path = at("blocked/customize.ini"), damaged = "customize.ini is damaged";
        QVERIFY(CustomizeFile(path).createIfMissing());
        const QByteArray defaults = readFile(path).replace("\r\n", "\n");
        for (const char *line : {"Default: true\ncloud_login=true\n", "Default: false\ncustom_image=false\n",
                                 "\nimage=\n", "Default: false\nreplace_superuser=false\n"})
            QVERIFY2(defaults.contains(line), line);
        const QVector<std::tuple<QByteArray, QString, QString>> rows = {
            // The content, "CLOUD IMAGE REPLACEABLE PATH" ("~": the folder of the file), the problem if there is one
            {defaults, "1 0 0 ", "^$"},
            {"; nothing\n", "1 0 0 ", "^$"},
            {"[login]\ncloud_login=False\n[loading]\ncustom_image=1\nimage=/a/图.png\n"
             "[recovery]\nreplace_superuser=true\n",
             "0 1 1 /a/图.png", "^$"},
            {"[loading]\nimage=\"a, b.png\"\n", "1 0 0 ~/a, b.png", "^$"},
            {"[login]\ncloud_login=maybe\n[loading]\ncustom_image=true\n", "1 1 0 ",
             "login/cloud_login .*customize.ini"},
            {"[loading]\nimage=a,b.png\n", "1 0 0 ", "loading/image .*customize.ini"},
            {"[login\ncloud_login=true\n", "1 0 0 ", damaged},
            {"; none\rimage=\"a.png\n", "1 0 0 ", damaged},
            {"[loading]\nimage=\"a.png\n[recovery]\nreplace_superuser=tru\"e\n", "1 0 0 ", damaged}};
        for (const auto &[content, record, problem] : rows) {
            writeFile(path, content);
            CustomizeFile file(path);
            QString error;
            QCOMPARE(file.read(&error), problem == "^$");
            QVERIFY2(error.contains(QRegularExpression(problem)), qPrintable(error));
            const CustomizeInfo info = file.info();
            const QString flags = QString("%1 %2 %3 ").arg(info.cloudLoginEnabled).arg(info.customLoadingImageEnabled);
            const QString drive = isWindows ? at().left(2) : QString();
            QCOMPARE(flags.arg(file.isSuperUserReplaceable()) + info.loadingImagePath,
                     QString(record).replace(" /", ' ' + drive + '/').replace("~", at("blocked")));
            QCOMPARE(readFile(path), content);
        }
    }
};

QTEST_MAIN(TestWorker)

#include "tst_worker.moc"
