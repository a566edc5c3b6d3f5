#include "client/kelvra_data/Store.h"
#include "host/ZCommon/ZFileDialog.h"
#include "host/kelvra_base/ZMessageBox.h"
#include "host/kelvra_data/UserData.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginWorker.h"

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using kelvra_data::Store;
using kelvra_data::UserData;
using kelvra_login::LoginAccess;
using kelvra_login::LoginWorker;

namespace {

constexpr int prefixBytes = 4;
constexpr int largestFile = 256;
constexpr quint32 seed = 20240229;
const QString invalid = "Login credentials file is invalid";
QString chosenFile;

} // namespace

// What would wait for a person.

QString ZCOMMON::ZFileDialog::getOpenFileName(QWidget *, const QString &, const QString &, const QString &, QString *,
                                              QFileDialog::Options)
{
    return chosenFile;
}

kelvra_base::MessageBoxButton kelvra_base::ZMessageBox::warning(QWidget *, const QString &, int, bool)
{
    return OkButton;
}

/** The module and the client's real libraries. */
class TestCredentials : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Reads every alert and answers it.
        connect(&reader, &QTimer::timeout, this, [this] {
            if (const QWidget *alert = QApplication::activeModalWidget()) {
                alerts << alert->findChild<QLabel *>("text")->text();
                alert->findChild<QPushButton *>("okBt")->click();
            }
        });
        reader.start(0);
        chosenFile = folder.filePath("file");
        openData("own");
        LoginAccess::_instance().exportLoginCredentials(chosenFile);
        QFile file(chosenFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        exported = file.readAll();
        QVERIFY(std::exchange(alerts, {}).join(' ').startsWith("Export login credentials success"));
        QCOMPARE(Store::_instance().auditLog(1).value(0).event, QString("export login credentials"));
    }

    void cleanupTestCase() { Store::_instance().close(); }

    void ownFolderAccepts()
    {
        QCOMPARE(outcome(exported), QString("accepted"));
        // What follows the text is not read.
        QCOMPARE(outcome(exported.leftJustified(largestFile, '\xff')), QString("accepted"));
        QVERIFY(UserData::_instance().resetUserPwd("root", "another"));
        QCOMPARE(outcome(exported), QString("accepted"));
    }

    void otherFolderRefuses()
    {
        openData("other");
        QCOMPARE(outcome(exported), invalid);
        openData("own");
        QCOMPARE(outcome(exported), QString("accepted"));
    }

    void changesAreRefused()
    {
        QRandomGenerator random(seed);
        const auto change = [&random](QByteArray &bytes, int at) {
            bytes[at] = char(bytes.at(at) ^ int(1 + random.bounded(255)));
        };
        for (int at = 0; at < exported.size(); ++at) {
            for (int i = at < prefixBytes ? 16 : 1; i > 0; --i) {
                QByteArray changed = exported;
                change(changed, at);
                QVERIFY2(outcome(changed) == invalid, changed.toHex().constData());
            }
        }
        for (int i = 0; i < 100; ++i) { // several bytes, and a file that ends elsewhere
            QByteArray changed = exported;
            change(changed, random.bounded(prefixBytes));
            for (int n = random.bounded(8); n > 0; --n)
                change(changed, prefixBytes + random.bounded(exported.size() - prefixBytes));
            changed = changed.leftJustified(128 + random.bounded(largestFile - 127), '\0', true);
            QVERIFY2(outcome(changed) == invalid, changed.toHex().constData());
        }
    }

private:
    void openData(const QString &name)
    {
        QVERIFY(Store::_instance().open(folder.filePath(name)));
        kelvra_data::SuperUserInfo info;
        info.userName = "root";
        info.password = info.answer1 = info.answer2 = info.answer3 = "468024";
        info.role = kelvra_data::SuperUserRole;
        UserData::_instance().addSuperUser(info); // refused where there is one
        QVERIFY(UserData::_instance().isSuperUser("root"));
    }

    /** "accepted", or the alerts of an import of a file of these bytes. */
    QString outcome(const QByteArray &bytes)
    {
        QFile file(chosenFile);
        const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
        file.close();
        const bool accepted = written && LoginWorker::_instance().importLoginCredentials("root");
        return (QStringList(accepted ? "accepted" : "") + std::exchange(alerts, {})).join("").trimmed();
    }

    const QTemporaryDir folder;
    QTimer reader;
    QStringList alerts;
    QByteArray exported;
};

QTEST_MAIN(TestCredentials)

#include "tst_credentials.moc"
