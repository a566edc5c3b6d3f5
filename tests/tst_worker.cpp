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

namespace {

/** A window that shows an alert title and follows the language as pages do. */
class TitleLabel : public QLabel
{
public:
    int languageChanges = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            ++languageChanges;
            setText(DictDef::_instance().alertTitle(DictDef::WarningTitle));
        }
        QLabel::changeEvent(event);
    }
};

/** "CLOUD IMAGE REPLACEABLE PATH" */
QString textOf(const CustomizeFile &file)
{
    const CustomizeInfo info = file.info();
    const QString flags = QString("%1 %2 %3 ").arg(info.cloudLoginEnabled).arg(info.customLoadingImageEnabled);
    return flags.arg(file.isSuperUserReplaceable()) + info.loadingImagePath;
}

} // namespace

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

    void languageFollowsTheChoice()
    {
        SysLanguage &language = SysLanguage::_instance();
        const QMap<int, QString> english = DictDef::_instance().securityQuestions();
        TitleLabel label;
        language.setLanguage(Language(1), true);
        QTRY_COMPARE(label.text(), QStringLiteral("警告"));
        QCOMPARE(QCoreApplication::translate("kelvra_client::MainWindow", "Quit"), QStringLiteral("退出"));
        const QMap<int, QString> chinese = DictDef::_instance().securityQuestions();
        QCOMPARE(chinese.keys(), english.keys());
        for (auto it = chinese.begin(); it != chinese.end(); ++it)
            QVERIFY2(it.value() != english.value(it.key()), qPrintable(it.value()));

        const int changes = label.languageChanges;
        language.setLanguage(Language(1), false);
        language.setLanguage(Language(7), true);
        QCoreApplication::processEvents();
        QCOMPARE(label.languageChanges, changes);

        language.setLanguage(Language(0), false);
        QTRY_COMPARE(label.text(), QStringLiteral("Warning"));
        WorkerSetup::loadSavedLanguage();
        QCOMPARE(int(language.getLanguage()), 1);
        language.setLanguage(Language(0), true);
        const QStringList locales{"en_US", "zh_CN", "de_AT", "es_MX", "fr_CA", "ru_RU", "ja_JP", "zh_TW", "it_IT", "C"};
        QVector<int> spoken;
        for (const QString &locale : locales)
            spoken << Languages::forLocale(locale);
        QCOMPARE(spoken, QVector<int>({0, 1, 2, 3, 4, 5, 6, 0, 0, 0}));
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
        QCOMPARE(int(worker.lastLoggedUserType()), int(LocalUser));
        worker.setCurUserInfo(CloudUser, "alice", "p4ssPhrase", 3, true);
        worker.setSuperUserInfo("root", "0therSecret");
        QCOMPARE(worker.getCurUserName(), QStringLiteral("alice"));
        QCOMPARE(int(worker.lastLoggedUserType()), int(CloudUser));
        QCOMPARE(worker.getSuperUserName(), QString()); // the data library has none
        const auto files = contents(at());
        QVERIFY(files.contains("settings.ini") && files.contains("kelvra.db"));
        for (auto file = files.begin(); file != files.end(); ++file)
            QVERIFY2(!file->contains("p4ssPhrase") && !file->contains("0therSecret"), qPrintable(file.key()));
    }

    void customisation()
    {
        struct Row
        {
            QByteArray content;
            QString record;  // "~" stands for the folder of the file
            QString problem; // empty for none
        };
        const QVector<Row> rows = {
            {"; nothing\n", "1 0 0 ", ""},
            {"[login]\ncloud_login=False\n[loading]\ncustom_image=1\nimage=/a/图.png\n"
             "[recovery]\nreplace_superuser=true\n",
             "0 1 1 /a/图.png", ""},
            {"[loading]\nimage=\"a, b.png\"\n", "1 0 0 ~/a, b.png", ""},
            {"[login]\ncloud_login=maybe\n[loading]\ncustom_image=true\n", "1 1 0 ",
             "login/cloud_login .*customize.ini"},
            {"[loading]\nimage=a,b.png\n", "1 0 0 ", "loading/image .*customize.ini"},
            {"[login\ncloud_login=true\n", "1 0 0 ", "customize.ini is damaged"},
            {"[loading]\nimage=\"a.png\n[recovery]\nreplace_superuser=tru\"e\n", "1 0 0 ", "customize.ini is damaged"}};
        for (const Row &row : rows) {
            writeFile(at("customize.ini"), row.content);
            CustomizeFile customization(at("customize.ini"));
            QString error;
            QCOMPARE(customization.read(&error), row.problem.isEmpty());
            QVERIFY2(error.contains(QRegularExpression(row.problem.isEmpty() ? "^$" : row.problem)), qPrintable(error));
            QCOMPARE(textOf(customization), QString(row.record).replace("~/", at()));
            QCOMPARE(readFile(at("customize.ini")), row.content);
        }
    }

    void customisationIsCreatedForEditing()
    {
        const QString path = at("blocked/customize.ini");
        CustomizeFile customization(path);
        QVERIFY(customization.read() && !QFile::exists(path) && customization.createIfMissing());
        const QByteArray text = readFile(path);
        for (const char *line : {"Default: true\ncloud_login=true\n", "Default: false\ncustom_image=false\n",
                                 "\nimage=\n", "Default: false\nreplace_superuser=false\n"})
            QVERIFY2(text.contains(line), line);
        QVERIFY(customization.read());
        QCOMPARE(textOf(customization), QString("1 0 0 "));
    }
};

QTEST_MAIN(TestWorker)

#include "tst_worker.moc"
