#include "DataFolderTest.h"

#include "client/kelvra_saas/SaasSetup.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"

#include <QLabel>
#include <QPainter>
#include <QProcess>

using namespace kelvra_saas;

const QString ada = "13800000001", password = "Analytical1", otherPassword = "Analytical2";

/** The cloud library through its contract, on a simulated cloud that answers at once and whose clock the test sets. */
class TestSaas : public DataFolderTest
{
    Q_OBJECT

    std::unique_ptr<CloudSimulation> cloud;
    CloudSimulation::Settings settings;
    QDateTime now;
    QStringList sealed; ///< what has been given to be sealed
    // The answers since the last call, and what the last of them held.
    int answers = 0;
    Response response;
    std::tuple<LoginErrorInfo, LoginQRCodeInfo, int, QString> rest;

    auto noting()
    {
        return [this](const Response &given, const auto &...others) {
            ++answers;
            response = given;
            ((std::get<std::decay_t<decltype(others)>>(rest) = others), ...);
        };
    }

    /** Takes a step; what comes of it: the code of an answer, else 1 where it could be done. */
    int take(const QString &step, const QString &phone)
    {
        const QString id = QUuid::createUuid().toString(), qr = std::get<LoginQRCodeInfo>(rest).id;
        LoginWorker &worker = LoginWorker::_instance();
        const auto logIn = [&](const char *type, const QString &pwd, const QString &code) {
            worker.login({id, phone, pwd, code, type}, noting());
        };
        const QHash<QString, std::function<void()>> calls = {
            {"pwd", [&] { logIn("PASSWORD", password, QString()); }},
            {"badpwd", [&] { logIn("PASSWORD", otherPassword, QString()); }},
            {"sms", [&] { logIn("VERIFY_CODE", QString(), cloud->messages().value(0).code); }},
            {"oldsms", [&] { logIn("VERIFY_CODE", QString(), cloud->messages().value(1).code); }},
            {"badsms", [&] { logIn("VERIFY_CODE", QString(), "12345x"); }},
            {"send",
             [&] {
                 worker.getVerificationCode({id, phone}, noting());
             }},
            {"auto", [&] { worker.tryAutoLogin(id, phone, noting()); }},
            {"handed", [&] { worker.tryAutoLogin(id, phone, password, noting()); }},
            {"qr", [&] { worker.getLoginQRCode(id, noting()); }},
            {"status", [&] { worker.checkLoginQRCodeStatus(id, qr, noting()); }},
            {"result", [&] { worker.checkLoginQRCodeResult(id, qr, noting()); }},
            {"account", [&] { worker.getAccountAfterScanQRCode(id, noting()); }}};
        const QHash<QString, std::function<bool()>> actions = {
            {"restart", [&] { return restart(), true; }},
            {"move", [&] { return QFile::remove(at("cloud_client.json")) && (restart(), true); }},
            {"cancelauto", [&] { return worker.cancelAccountAutoLogin(phone); }},
            {"unlock", [&] { return cloud->unlock(phone); }},
            {"off", [&] { return cloud->setNetworkOn(false), !cloud->isNetworkOn(); }},
            {"on", [&] { return cloud->setNetworkOn(true), cloud->isNetworkOn(); }},
            {"shown", [&] { return cloud->codeOnShow().id == qr; }},
            {"scan", [&] { return cloud->scanCode(qr, phone); }},
            {"confirm", [&] { return cloud->confirmScan(qr); }},
            {"cancel", [&] { return cloud->cancelScan(qr); }},
            {"reject", [&] { return cloud->rejectScan(qr, 2006); }},
            {"rejectip", [&] { return cloud->rejectScan(qr, 2007); }}};
        if (actions.contains(step))
            return actions[step]();
        answers = 0;
        calls[step]();
        if (answers > 0 || !QTest::qWaitFor([&] { return answers > 0; }) || response.requestId != id)
            return -1;
        return step == "status" && response.code == 1000 ? std::get<int>(rest) : response.code;
    }

    /** Steps like "badpwd:2231/4" (that code, and 4 attempts or minutes left), "scan@13800000001:0", "+60" seconds. */
    void play(const QString &steps)
    {
        const QRegularExpression shape("^([a-z]+)@?(\\d*):?(\\d*)/?(\\d*)$");
        for (const QString &step : steps.split(' ')) {
            now = now.addSecs(step.toInt()); // 0 for all but those seconds
            if (step.startsWith('+'))
                continue;
            const QStringList parts = shape.match(step).capturedTexts();
            const QString phone = parts.value(2).isEmpty() ? ada : parts[2];
            const int expected = parts.value(3).isEmpty() ? 1 : parts[3].toInt(), left = parts.value(4).toInt();
            const int result = take(parts.value(1), phone);
            QVERIFY2(result == expected, qPrintable(QString("%1 gave %2").arg(step).arg(result)));
            if (left == 0)
                continue;
            QCOMPARE(response.subCode, left);
            QVERIFY(saasErrorMsg(expected, left).contains(QString::number(left)));
            const LoginErrorInfo info = std::get<LoginErrorInfo>(rest);
            const bool locked = expected < 2205;
            QCOMPARE((QVector<int>{info.errorCount, info.remainingAttempts, info.periodSeconds, info.lockMinutes}),
                     (locked ? QVector<int>{5, 0, 600, left} : QVector<int>{5 - left, left, 600, 30}));
        }
    }

    void restart()
    {
        SaasSetup::close();
        cloud = std::make_unique<CloudSimulation>(settings);
        const auto seal = [this](const QString &text) { return sealed += text, "sealed" + text.toUtf8().toHex(); };
        SaasSetup::setSealing(seal, [](const QByteArray &data, QString *text) {
            *text = QByteArray::fromHex(data.mid(6));
            return data.startsWith("sealed");
        });
        SaasSetup::setDataFolder(at());
        SaasSetup::setService(cloud.get());
        QCOMPARE(SaasSetup::simulation(), cloud.get());
    }

private slots:
    void init()
    {
        dir = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(at()));
        now = QDateTime({2024, 2, 29}, {23, 50}, Qt::UTC);
        settings = {at(), 42, [this] { return now; }, 0, 0, 50};
        answers = 0;
        restart();
    }

    void rules()
    {
        const QVector<QPair<const char *, QString>> rows = {
            {"errors are forgotten", "badpwd:2231/4 +600 badpwd:2231/3 restart badpwd:2231/2 +601 badpwd:2231/4"},
            {"errors lock", "send:1000 badpwd:2231/4 badsms:2205/3 restart badpwd:2231/2 badpwd:2231/1 badpwd:2203/30 "
                            "pwd:2203/30 restart +1741 sms:2204/1 pwd:2203/1 handed:2203 send:2204 "
                            "pwd@13900000002:2231/4 +58 pwd:2203/1 +1 pwd:2229 badpwd:2231/4"},
            {"codes lock", "send:1000 badsms:2205/4 badsms:2205/3 badsms:2205/2 badsms:2205/1 badsms:2204/30 unlock "
                           "unlock@13700000009:0 sms:1000 badpwd:2231/4"},
            {"a login forgets errors", "badpwd:2231/4 badpwd:2231/3 pwd:2229 badpwd:2231/2 send:1000 sms:1000 "
                                       "badpwd:2231/4"},
            {"terminals", "pwd:2229 handed:2229 send:1000 sms:1000 restart pwd:1000 handed:1000 move pwd:2229"},
            {"unknown", "pwd@13700000009:2202 send@13700000009:1001 sms@13700000009:2203 send@138:1001"},
            {"sms", "badsms:2206 send:1000 send:1000 oldsms:2205/4 sms@13900000002:2206 +299 sms:1000 sms:2206 "
                    "send:1000 +300 sms:2206"},
            {"scan", "account:2213 qr:1000 shown status:2001 confirm:0 scan@13700000009:0 scan scan@13900000002:0 "
                     "status:2002 result:2211 confirm cancel:0 status:2004 result:1000 shown:0 result:2212 status:2003 "
                     "pwd:2229 account:1000 account:2213 pwd:1000 auto:1000"},
            {"scan is for one question", "qr:1000 scan confirm result:1000 off account:1101 on account:1000 "
                                         "account:2213 qr:1000 scan confirm result:1000 +120 account:2213"},
            {"scan refused", "qr:1000 cancel:0 scan cancel confirm:0 status:2005 qr:1000 reject scan:0 status:2006 "
                             "qr:1000 scan rejectip status:2007 result:2211"},
            {"scan too late", "qr:1000 scan confirm +119 status:2004 shown +1 status:2003 result:2212 shown:0"},
            {"network", "off send:1101 qr:1101 on send:1000"},
            {"automatic login", "auto:2221 send:1000 sms:1000 auto:1000 restart auto:1000 cancelauto cancelauto:0 "
                                "auto:2221 pwd:1000 auto:1000 move auto:2221"}};
        for (const auto &[name, steps] : rows) {
            init();
            play(steps);
            QVERIFY2(!QTest::currentTestFailed(), name);
        }
    }

    void secretsStayUnwritten()
    {
        play("send:1000 sms:1000");
        const CloudSms sms = cloud->messages().first();
        QVERIFY(QRegularExpression("^\\d{6}$").match(sms.code).hasMatch() && sms.text.contains(sms.code));
        restart();
        const QString token = sealed.last().section('\n', 1);
        QVERIFY(token.size() >= 32 && SaasSetup::isAutoLoginStored(ada));
        QCOMPARE(LoginWorker::_instance().getRecentlyLoggedInAccount(), ada);
        const auto files = contents(at());
        QCOMPARE(files.size(), 3);
        for (const QByteArray &file : files)
            QVERIFY(!file.contains(token.toUtf8()) &&
                    (isWindows || (file.split(' ')[0].toInt() & 0xff) == 0)); // the owner's
        const QString accounts = at("cloud_accounts.ini");
        writeFile(accounts, readFile(accounts).replace(password.toUtf8(), otherPassword.toUtf8()));
        play("auto:2222 badpwd:1000 auto:1000");
        SaasSetup::setSealing({}, {});
        play("badpwd:1000 auto:1000 restart auto:2221");
        for (const QString &file : {at("cloud_client.json"), at("cloud_service.json")}) {
            writeFile(file, "{\"terminal\":");
            play("restart badpwd:2229");
            QCOMPARE(readFile(file + ".damaged"), QByteArray("{\"terminal\":"));
        }
    }

    void changeOfTheAccountsShowsWhateverItsTime()
    {
        const QString path = at("cloud_accounts.ini");
        const QByteArray changed = readFile(path).replace(password.toUtf8(), otherPassword.toUtf8());
        const QDateTime written = QFileInfo(path).lastModified();
        QTRY_VERIFY(written.msecsTo(QDateTime::currentDateTime()) > 3000); // by then its times are trusted
        play("badpwd:2231/4");
        QFile file(path);
        QVERIFY(file.open(QFile::ReadWrite));
        QCOMPARE(file.write(changed), file.size());
        QVERIFY(isWindows || (file.flush() && file.setFileTime(written, QFile::FileModificationTime)));
        file.close();
        play("badpwd:2229");
    }

    void answersAreLateLostOrDropped()
    {
        LoginWorker &worker = LoginWorker::_instance();
        QElapsedTimer timer;
        timer.start();
        worker.getVerificationCode({"1", ada}, noting());
        play("off on"); // a call under way is lost, whatever comes after
        QTRY_COMPARE(answers, 1);
        QVERIFY(timer.elapsed() >= 45 && response.code == 1101 && cloud->messages().isEmpty());

        const auto call = [&] { worker.tryAutoLogin({}, ada, noting()), worker.getLoginQRCode({}, noting()); };
        const QVector<std::function<void()>> changes = {
            [&] { SaasSetup::setDataFolder(at()); },
            [&] { SaasSetup::setService(nullptr), call(), SaasSetup::setService(cloud.get()); },
            [&] { restart(), worker.getLoginQRCode({}, nullptr); }};
        for (const auto &change : changes) {
            call();
            change();
            play("send:1000");
            QCOMPARE(answers, 1);
        }
    }

    void scannerReadsThePicture()
    {
        if (isWindows)
            QSKIP("There is no zbarimg.");
        play("qr:1000");
        const LoginQRCodeInfo qr = std::get<LoginQRCodeInfo>(rest);
        const QImage sent = QImage::fromData(QByteArray::fromBase64(qr.image.section(',', 1).toLatin1()));
        QImage framed = sent.convertToFormat(QImage::Format_RGB32);
        QPainter painter(&framed);
        painter.setPen(QPen(Qt::white, 2 * 4 * 4)); // half of it within: four modules of four pixels
        painter.drawRect(framed.rect());
        painter.end();
        for (const int side : {178, 220}) {
            QLabel label;
            label.setFixedSize(side, side);
            label.setText(QString("<img src=\"%1\" width=\"%2\" heigh=\"%2\" />").arg(qr.image).arg(side));
            const QImage shown = label.grab().toImage();
            // Sharp in the login form, with a quiet zone.
            QVERIFY(side == 220 || shown.convertToFormat(framed.format()) == framed);
            QVERIFY(shown.save(dir->filePath("shown.png")));
            QProcess scanner;
            scanner.start("zbarimg", {"--quiet", "--raw", dir->filePath("shown.png")});
            QVERIFY2(scanner.waitForFinished(), qPrintable("zbarimg: " + scanner.errorString()));
            QCOMPARE(scanner.readAll().trimmed(), "nimbra://login?code=" + qr.id.toUtf8());
        }
    }

    void brokenAccountsFile()
    {
        const QString file = at("cloud_accounts.ini");
        const QByteArray good = readFile(file), head = "[13800000001]\n";
        QString error;
        const auto isRefused = [&](const QByteArray &data, const QString &words) {
            writeFile(file, data);
            return !cloud->reloadAccounts(&error) && error.contains(words) &&
                   error.contains(QDir::toNativeSeparators(file));
        };
        QVERIFY(isRefused("", "no account") && isRefused("\xff", "text") && isRefused(head, ada));
        QVERIFY(isRefused("name=x", "Line 1") && isRefused("[1380]", "Line 1") && isRefused(head + head, "Line 2"));
        QVERIFY(isRefused(head + "name=x\nname=y", "Line 3") && isRefused(head + "pasword=Analytical1", "Line 2"));
        QVERIFY(isRefused(head + "Analytical1", "Line 2") && isRefused(head + "password=two words", "Line 2"));
        QVERIFY(isRefused(head + "; x\npassword=short", "Line 3"));
        play("send:1000 restart send:1102 pwd:1102"); // the accounts from before, then none
        writeFile(file, good);
        play("send:1000");
        QVERIFY(cloud->accounts().size() > 1 && readFile(file) == good);
        QVERIFY(QFile::remove(file) && cloud->reloadAccounts(nullptr) && readFile(file) == good);
    }
};

QTEST_MAIN(TestSaas)

#include "tst_saas.moc"
