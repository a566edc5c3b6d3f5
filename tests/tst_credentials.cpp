#include "client/kelvra_data/Store.h"
#include "host/ZCommon/ZFileDialog.h"
#include "host/kelvra_data/UserData.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginWorker.h"
#include "tests/DataFolderTest.h"

#include <QLabel>
#include <QPushButton>

using kelvra_data::Store;
using kelvra_data::UserData;
using kelvra_login::LoginAccess;
using kelvra_login::LoginWorker;

static QString chosenFile;

/** Would wait for a person. */
QString ZCOMMON::ZFileDialog::getOpenFileName(QWidget *, const QString &, const QString &, const QString &, QString *,
                                              QFileDialog::Options)
{
    return chosenFile;
}

/** The module and the client's real libraries. */
class TestCredentials : public DataFolderTest
{
    Q_OBJECT

private slots:
    void exportedFileIsGoodForItsFolder()
    {
        QStringList alerts;
        QTimer reader; // of every alert, which it answers
        connect(&reader, &QTimer::timeout, this, [&alerts] {
            if (const QWidget *alert = QApplication::activeModalWidget()) {
                alerts << alert->findChild<QLabel *>("text")->text();
                alert->findChild<QPushButton *>("okBt")->click();
            }
        });
        reader.start(0);
        dir = std::make_unique<QTemporaryDir>();
        chosenFile = dir->filePath("file");
        openData("own");
        LoginAccess::_instance().exportLoginCredentials(chosenFile);
        QVERIFY(std::exchange(alerts, {}).join(' ').startsWith("Export login credentials success"));
        QCOMPARE(Store::_instance().auditLog(1).value(0).event, QString("export login credentials"));

        const auto outcome = [&alerts](const QByteArray &bytes) {
            writeFile(chosenFile, bytes);
            const bool accepted = LoginWorker::_instance().importLoginCredentials("root");
            return (accepted ? "accepted" : "") + std::exchange(alerts, {}).join("");
        };
        const QString accepted = "accepted", invalid = "Login credentials file is invalid";
        const QByteArray exported = readFile(chosenFile);
        QCOMPARE(outcome(exported), accepted);
        QCOMPARE(outcome(exported.leftJustified(256, '\xff')), accepted); // what follows is not read
        QVERIFY(UserData::_instance().resetUserPwd("root", "another"));
        QCOMPARE(outcome(exported), accepted);
        openData("other");
        QCOMPARE(outcome(exported), invalid);
        openData("own");
        QCOMPARE(outcome(exported), accepted);
        for (int at = 0; at < exported.size(); ++at) {
            QByteArray changed = exported;
            changed[at] = char(changed.at(at) ^ 1);
            QVERIFY2(outcome(changed) == invalid, changed.toHex().constData());
        }
        Store::_instance().close();
    }

private:
    void openData(const QString &name) const
    {
        QVERIFY(Store::_instance().open(at(name)));
        UserData::_instance().addSuperUser(superUser("root", "468024")); // refused where there is one
        QVERIFY(UserData::_instance().isSuperUser("root"));
    }
};

QTEST_MAIN(TestCredentials)

#include "tst_credentials.moc"
