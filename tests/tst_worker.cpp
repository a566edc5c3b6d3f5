#include "client/kelvra_data/Store.h"
#include "client/kelvra_worker/AuditEvent.h"
#include "client/kelvra_worker/CustomizeFile.h"
#include "client/kelvra_worker/WorkerSetup.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/LoginLogs.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"

#include <QApplication>
#include <QDirIterator>
#include <QLabel>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

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

} // namespace

class TestWorker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        WorkerSetup::setDataFolder(folder.path());
        QString error;
        QVERIFY2(Store::_instance().open(folder.path(), &error), qPrintable(error));
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
        QCOMPARE(language.getLanguageNames().value(language.getLanguage()), QStringLiteral("简体中文"));

        language.setLanguage(Language(0), false);
        QTRY_COMPARE(label.text(), QStringLiteral("Warning"));
        WorkerSetup::loadSavedLanguage();
        QCOMPARE(int(language.getLanguage()), 1);
        language.setLanguage(Language(0), true);
        QCOMPARE(int(WorkerSetup::languageForLocale("zh_CN")), 1);
        QCOMPARE(int(WorkerSetup::languageForLocale("de_DE")), 0);
    }

    void settingsReachTheFile()
    {
        UiSettings &settings = UiSettings::_instance();
        QVERIFY(!settings.getValue("client_login_mode").isValid());
        settings.setValue("client_login_mode", 1);
        const QSettings file(folder.filePath("settings.ini"), QSettings::IniFormat);
        QCOMPARE(file.value("client_login_mode").toInt(), 1);

        QVERIFY(QDir(folder.path()).mkpath("blocked/settings.ini"));
        WorkerSetup::setDataFolder(folder.filePath("blocked"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Settings cannot be written to .*blocked"));
        settings.setValue("client_login_mode", 0);
        settings.setValue("client_login_mode", 2);
        QCOMPARE(settings.getValue("client_login_mode").toInt(), 2);
        QCOMPARE(QDir(folder.filePath("blocked")).entryList(QDir::Files), QStringList());
        WorkerSetup::setDataFolder(folder.path());

        // The user is told once, when the operation is over.
        QVERIFY(!QApplication::activeModalWidget());
        QStringList told;
        QTimer closer;
        connect(&closer, &QTimer::timeout, [&told] {
            if (QWidget *alert = QApplication::activeModalWidget()) {
                told << alert->findChild<QLabel *>("text")->text();
                alert->close();
            }
        });
        closer.start(20);
        QTRY_COMPARE(told.size(), 1);
        QVERIFY(told.first().startsWith("Settings cannot be written"));
        QTest::qWait(100);
        QCOMPARE(told.size(), 1);
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
        int files = 0;
        for (QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext(); ++files) {
            QFile file(it.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QByteArray content = file.readAll();
            QVERIFY2(!content.contains("p4ssPhrase") && !content.contains("0therSecret"), qPrintable(file.fileName()));
        }
        QVERIFY(files >= 2);
    }

    void auditEntriesAreStored()
    {
        LoginLogs::_instance().loginSuccessLog("bob", 1, true);
        LoginLogs::_instance().loginFailureLog("bob", 0);
        LoginLogs::_instance().lockUserLog("bob", 180);
        LoginLogs::_instance().resetUserPwdLog("bob");
        QStringList stored;
        for (const kelvra_data::AuditEntry &entry : Store::_instance().auditLog(10)) {
            QVERIFY(qAbs(entry.at.secsTo(QDateTime::currentDateTime())) < 60);
            stored << QString("%1 %2 %3 %4 %5")
                          .arg(entry.event, entry.user)
                          .arg(entry.method)
                          .arg(entry.autoLogin)
                          .arg(entry.seconds);
        }
        QCOMPARE(stored, QStringList({"reset password bob -1 -1 -1", "lock bob -1 -1 180", "login failure bob 0 -1 -1",
                                      "login success bob 1 1 -1"}));
    }

    void customisation_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("record"); // "~" stands for the folder of the file
        QTest::addColumn<QString>("problem");
        QTest::newRow("empty") << QByteArray("; nothing\n") << "0 0 0 "
                               << "";
        QTest::newRow("set") << QByteArray("[login]\ncloud_login=True\n[loading]\ncustom_image=1\nimage=/a/图.png\n"
                                           "[recovery]\nreplace_superuser=true\n")
                             << "1 1 1 /a/图.png"
                             << "";
        QTest::newRow("beside") << QByteArray("[loading]\nimage=\"a, b.png\"\n") << "0 0 0 ~/a, b.png"
                                << "";
        QTest::newRow("no flag") << QByteArray("[login]\ncloud_login=maybe\n[loading]\ncustom_image=true\n") << "0 1 0 "
                                 << "login/cloud_login .*customize.ini";
        QTest::newRow("list") << QByteArray("[loading]\nimage=a,b.png\n") << "0 0 0 "
                              << "loading/image .*customize.ini";
        QTest::newRow("damaged") << QByteArray("[login\ncloud_login=true\n") << "0 0 0 "
                                 << "customize.ini is damaged";
    }

    void customisation()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, record);
        QFETCH(QString, problem);
        const QTemporaryDir own;
        QFile file(own.filePath("customize.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.close();
        CustomizeFile customization(file.fileName());
        QString error;
        QCOMPARE(customization.read(&error), problem.isEmpty());
        QVERIFY2(problem.isEmpty() ? error.isEmpty() : error.contains(QRegularExpression(problem)), qPrintable(error));
        const CustomizeInfo info = customization.info();
        QCOMPARE(QString("%1 %2 %3 ")
                         .arg(info.cloudLoginEnabled)
                         .arg(info.customLoadingImageEnabled)
                         .arg(customization.isSuperUserReplaceable()) +
                     info.loadingImagePath,
                 record.replace('~', own.path()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
    }

    void customisationIsCreatedForEditing()
    {
        const QTemporaryDir own;
        QFile file(own.filePath("customize.ini"));
        CustomizeFile customization(file.fileName());
        QVERIFY(customization.read() && !file.exists());
        QVERIFY(customization.createIfMissing());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        for (const char *line : {"Default: false\ncloud_login=false\n", "Default: false\ncustom_image=false\n",
                                 "\nimage=\n", "Default: false\nreplace_superuser=false\n"})
            QVERIFY2(text.contains(line), line);
        QVERIFY(customization.read());
        const CustomizeInfo info = customization.info();
        QVERIFY(!info.cloudLoginEnabled && !info.customLoadingImageEnabled && info.loadingImagePath.isEmpty());
        QVERIFY(!customization.isSuperUserReplaceable());
    }

private:
    const QTemporaryDir folder;
};

QTEST_MAIN(TestWorker)

#include "tst_worker.moc"
