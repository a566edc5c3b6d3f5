#include "fakehost/FakeHost.h"
#include "host/kelvra_base/BaseTools.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"

#include <QStandardPaths>
#include <QUuid>
#include <QtTest>

#ifdef Q_OS_UNIX
#    include <csignal>
#    include <sys/resource.h>
#endif

using namespace kelvra_login;
using kelvra_worker::CloudUser;
using kelvra_worker::LocalUser;
using kelvra_worker::UserType;

namespace {

/** A worker that knows nothing of the lock yet. */
struct FreshWorker : LoginWorker
{
};

FakeHost &host = FakeHost::get();

/** What was done and announced since the last call, in order, without what was only looked up. */
QStringList deeds()
{
    return std::exchange(host.calls, {}).filter(QRegularExpression("^(?!get|is)"));
}

QList<LoginDlg *> dialogs()
{
    QList<LoginDlg *> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<LoginDlg *>(window))
            found << dialog;
    }
    return found;
}

/** A credentials file's bytes: the length in bytes, then two bytes for each "A", big ends first. */
QByteArray serialised(int characters)
{
    return QByteArray::fromHex("000000") + char(2 * characters) + QByteArray::fromHex("0041").repeated(characters);
}

} // namespace

class TestLoginWorker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qApp->installEventFilter(this);
        const auto &hub = LoginSignals::_instance();
        const auto recordEvent = [](const char *signal) {
            return [signal](int event, const QStringList &params) {
                host.record(signal, QStringList(QString::number(event)) + params);
            };
        };
        connect(&hub, &LoginSignals::signalLoginEvent, this, recordEvent("signalLoginEvent"));
        connect(&hub, &LoginSignals::signalSaasLoginEvent, this, recordEvent("signalSaasLoginEvent"));
        connect(&hub, &LoginSignals::signalLoginSuccess, this, [] { host.record("signalLoginSuccess", {}); });
    }

    void init()
    {
        host.reset();
        host.rememberUser("bob", "bobs").gesture = "345";
        host.rememberUser("ann", "pw").gesture = "012";
        host.users["ann"].attribute = 7;
        host.users["carl"].password = "carls";
        host.settings["client_login_mode"] = 1;
        host.superUser.userName = "root";
        host.superUser.password = "roots";
    }

    void cleanup() { qDeleteAll(dialogs()); }

    void firstScreen()
    {
        const auto announced = [](UserType type, const QStringList &params) {
            FreshWorker().login(type, params, true);
            return deeds().join(' ');
        };
        // The screen is there before the dialog shows.
        const QString cloud = "signalLoginEvent(0) signalSaasLoginEvent(0) show()";
        QCOMPARE(announced(CloudUser, {}), cloud);
        QCOMPARE(announced(CloudUser, {"bob"}), cloud);
        const QString last = "signalLoginEvent(6,ann) show()";
        QCOMPARE(announced(LocalUser, {}), last);
        QCOMPARE(announced(LocalUser, {""}), last);
        QCOMPARE(announced(LocalUser, {"", "bob", "x"}), last);
        QCOMPARE(announced(LocalUser, {"bob"}), QString("signalLoginEvent(6,bob) show()"));
        QCOMPARE(announced(LocalUser, {"carl"}), QString("signalLoginEvent(0) show()"));
        host.firstLogin = true;
        QCOMPARE(announced(LocalUser, {}), QString("signalLoginEvent(7) show()"));
        QCOMPARE(announced(CloudUser, {"bob"}), QString("signalLoginEvent(7) show()"));
        for (LoginDlg *dialog : dialogs()) {
            QVERIFY(dialog->isVisible() && !dialog->isModal() && !dialog->parent());
            QCOMPARE(dialog->pos(), kelvra_base::BaseTools::defaultPos(dialog));
        }
    }

    void lockSettingAndGestureDecide()
    {
        QStringList byGesture;
        for (const int lock : {-1, 0, 1}) { // -1: not to be had
            for (const QVariant &mode : {QVariant(), QVariant(0), QVariant(1), QVariant("1"), QVariant(2)}) {
                for (const char *gesture : {"", "012"}) {
                    host.lockKnown = lock >= 0;
                    host.locked = lock != 0;
                    host.settings["client_login_mode"] = mode;
                    host.users["ann"].gesture = gesture;
                    FreshWorker worker;
                    worker.login(LocalUser, {}, true);
                    QCOMPARE(worker.isLocked(), lock == 1);
                    QCOMPARE(host.callsOf({"getLockInfo"}).size(), lock < 0 ? 2 : 1); // asked again while unknown
                    if (deeds().constFirst() == "signalLoginEvent(6,ann)")
                        byGesture << QString("%1 %2 %3").arg(lock).arg(mode.typeName(), gesture);
                }
            }
        }
        QCOMPARE(byGesture, QStringList({"-1 int 012", "-1 QString 012", "0 int 012", "0 QString 012"}));
    }

    void switchingTheUserAsksNothing()
    {
        FreshWorker worker;
        QVERIFY(worker.isAutoLoginAllowed());
        host.firstLogin = true;
        worker.switchUser();
        QVERIFY(!worker.isAutoLoginAllowed());
        QCOMPARE(host.calls, QStringList({"signalLoginEvent(0)", "show()"}));
        QCOMPARE(dialogs().constFirst()->pos(), kelvra_base::BaseTools::defaultPos(dialogs().constFirst()));
    }

    void handedOverLocalLogin()
    {
        FreshWorker worker;
        worker.verifyGesture("ann", "8");
        for (const bool first : {false, true}) {
            host.firstLogin = first;
            host.users["ann"].autoLogin = first;
            host.loginSuccess = false;
            deeds();
            QElapsedTimer clock;
            clock.start();
            const QString screen = first ? "signalLoginEvent(7)" : "signalLoginEvent(6,ann)";
            for (int i = 0; i < 2; ++i) { // the second shot finds the user logged in
                worker.login(LocalUser, {"ann", "pw"}, false);
                QCOMPARE(deeds(), QStringList({screen, "show()", "verifyUserPassword(ann,pw)"}));
            }
            QTRY_VERIFY(host.loginSuccess);
            QVERIFY(clock.elapsed() >= 495);
            QTest::qWait(100);
            // Neither log nor record, environment, lock or counter: the login is on record already.
            QCOMPARE(deeds(),
                     QStringList({QString("setCurUserInfo(1,ann,pw,7,%1)").arg(first ? "true" : "false"),
                                  "setSuperUserInfo(root,roots)", "setLoginSuccess(true)", "signalLoginSuccess()"}));
            QCOMPARE(worker.failedTimes(), 1);
        }
    }

    void handedOverLoginThatIsNone()
    {
        FreshWorker worker;
        for (const UserType type : {LocalUser, CloudUser}) {
            for (const QStringList &params : {QStringList(), QStringList("ann"), {"ann", "pw", "pw"}, {"", "pw"}})
                worker.login(type, params, true);
            FreshWorker().login(type, {"ann", "pw"}, true); // gone before its shot
        }
        worker.login(LocalUser, {"ann", "wrong"}, true);
        QTest::qWait(autoLoginDelayMs + 100);
        QCOMPARE(deeds().filter(QRegularExpression("^(?!signal.*Event|show)")),
                 QStringList({"verifyUserPassword(ann,pw)", "verifyUserPassword(ann,wrong)"}));
        QCOMPARE(worker.failedTimes(), 1);
    }

    void handedOverCloudLogin()
    {
        auto worker = std::make_unique<FreshWorker>();
        QElapsedTimer clock;
        clock.start();
        for (int i = 0; i < 3; ++i)
            worker->login(CloudUser, {"139", "pw"}, true);
        QTRY_COMPARE(host.autoLogins.size(), 3);
        QVERIFY(clock.elapsed() >= 495);
        QCOMPARE(deeds().constLast(), QString("tryAutoLogin(139,pw)"));
        const auto requests = host.autoLogins;
        QVERIFY(!QUuid(requests[0].requestId).isNull() && requests[0].requestId != requests[1].requestId);

        requests[0].answer({requests[0].requestId, 2203, 0, {}}, "+139");
        QCOMPARE(deeds(), QStringList("cancelAccountAutoLogin(+139)")); // and no alert
        requests[1].answer({requests[1].requestId, 1000, 0, {}}, "ann");
        QCOMPARE(deeds(), QStringList("setCurUserInfo(2,ann,pw,7,true)") + endOfCloudLogin);
        worker.reset();
        requests[2].answer({requests[2].requestId, 1000, 0, {}}, "ann");
        QCOMPARE(host.calls, QStringList());
    }

    void success()
    {
        FreshWorker worker;
        worker.setLocked(true);
        worker.verifyPassword("ann", "wrong");
        deeds();
        worker.saasLoginSuccess("139", false);
        // The record is read once the account is adopted.
        QVERIFY(host.calls.indexOf("getUserInfo(139)") > host.calls.indexOf("addSuperUserFromSaasUser(139)"));
        QCOMPARE(deeds(),
                 QStringList({"addSuperUserFromSaasUser(139)", "setCurUserInfo(2,139,,0,false)"}) + endOfCloudLogin);
        worker.saasLoginSuccess("ann", true);
        QCOMPARE(deeds(), QStringList("setCurUserInfo(2,ann,pw,7,true)") + endOfCloudLogin);
        QVERIFY(worker.isLocked() && worker.failedTimes() == 1);

        worker.loginSuccess("ann", "typed", true);
        QCOMPARE(deeds(),
                 QStringList({"updateLoginEnvironment()", "updateUserLoginRecord(ann,true)", "updateLockInfo(false,0)",
                              "setCurUserInfo(1,ann,typed,7,true)", "setSuperUserInfo(root,roots)",
                              "setLoginSuccess(true)", "signalLoginSuccess()"}));
        QVERIFY(!worker.isLocked() && worker.failedTimes() == 0);
    }

    void failuresOfBothKindsAddUp()
    {
        FreshWorker worker;
        QVERIFY(!worker.verifyPassword("ann", "no") && !worker.verifyGesture("ann", "8"));
        QVERIFY(worker.verifyPassword("ann", "pw") && worker.verifyGesture("ann", "012"));
        QVERIFY(!worker.verifyPassword("nobody", "") && !worker.verifyGesture("nobody", "8"));
        QCOMPARE(worker.failedTimes(), 4);
        worker.setLocked(true);
        QCOMPARE(worker.failedTimes(), 4);
        worker.setLocked(false);
        QCOMPARE(worker.failedTimes(), 0);
    }

    void lockIsStored()
    {
        FreshWorker worker;
        for (const bool answer : {true, false}) {
            host.updatesSucceed = answer;
            QCOMPARE(worker.setLocked(true), answer);
            for (const int seconds : {180, 1, 0, -5})
                QCOMPARE(worker.setLockSeconds(seconds), answer);
            QVERIFY(worker.isLocked()); // what is left is only stored
            QCOMPARE(worker.setLocked(false), answer);
            QVERIFY(!worker.isLocked());
            QCOMPARE(deeds(), QStringList({"updateLockInfo(true,180)", "updateLockInfo(true,180)",
                                           "updateLockInfo(true,1)", "updateLockInfo(false,300)",
                                           "updateLockInfo(false,300)", "updateLockInfo(false,0)"}));
        }
    }

    void lockIsReadWhileUnknown()
    {
        FreshWorker worker;
        bool locked = false;
        int seconds = 5;
        host.locked = true;
        host.lockSeconds = 42;
        host.lockKnown = false;
        worker.refreshLockInfo(locked, seconds);
        QVERIFY(!locked && seconds == 5 && !worker.isLocked());
        host.lockKnown = true;
        QVERIFY(worker.isLocked());
        host.locked = false;
        QVERIFY(worker.isLocked()); // known now
        worker.refreshLockInfo(locked, seconds);
        QVERIFY(!locked && seconds == 42 && !worker.isLocked());

        FreshWorker second;
        host.locked = true;
        second.refreshLockInfo(locked, seconds);
        host.lockKnown = false;
        second.refreshLockInfo(locked, seconds);
        QVERIFY(locked && second.isLocked());
        QCOMPARE(host.callsOf({"getLockInfo"}).size(), 6);
    }

    void cloudLockAlert()
    {
        for (const int remaining : {2, 1, 0, -1})
            FreshWorker().showLockAlert({"139", 3, remaining, 1200, 30});
        const QString warning = "Current errors:3,in the next 1200 sec.,if you make another error %1 times, the "
                                "account will be locked for 30 minutes";
        const QString locked =
            "The account has been locked for 30 minutes, you can unlock by Nimbra App forgetting password";
        QCOMPARE(alerts(), QStringList({warning.arg(2), warning.arg(1), locked, locked}));
    }

    void credentials()
    {
        // Whether the file was accepted, what the data library was asked, and the alert.
        const auto import = [this](const QByteArray &content, bool valid) {
            host.credentialsValid = valid;
            writeCredentials(content);
            const QStringList accepted(FreshWorker().importLoginCredentials("root") ? "accepted" : "refused");
            return accepted + deeds().filter("check") + alerts();
        };
        const QStringList illegal{"refused", "Login credentials file is illegal"};
        const QString invalid = "Login credentials file is invalid";
        const auto check = [](const QString &text) { return "checkSuperUserCredentials(root," + text + ')'; };

        QCOMPARE(import(serialised(61) + 'x', true), illegal);  // 127
        QCOMPARE(import(serialised(126) + 'x', true), illegal); // 257
        QCOMPARE(import(serialised(62), true), QStringList({"accepted", check(QString(62, 'A'))}));
        QCOMPARE(import(serialised(126), true), QStringList({"accepted", check(QString(126, 'A'))}));
        QCOMPARE(import(serialised(62), false), QStringList({"refused", check(QString(62, 'A')), invalid}));
        QCOMPARE(import(QByteArray::fromHex("00000006004100e94e2d") + QByteArray(118, 'x'), true), // rest unread
                 QStringList({"accepted", check(QStringLiteral("Aé中"))}));
        for (const char *length : {"ffffffff", "000000fc"}) // null, and cut short
            QCOMPARE(import(QByteArray::fromHex(length) + QByteArray(124, 'x'), false),
                     QStringList({"refused", check({}), invalid}));
    }

    void noCredentialsFile()
    {
        FreshWorker worker;
        host.credentialsValid = true;
        QVERIFY(!worker.importLoginCredentials("root")); // cancelled
        QCOMPARE(host.calls, QStringList(QString("getOpenFileName(false,Select Login Credentials,%1,,false,0)")
                                             .arg(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation))));
        const QString link = folder.filePath("link");
        QVERIFY(QFile::link(folder.filePath("missing"), link));
        writeCredentials({});
        for (const QString &path : {folder.path(), folder.filePath("missing"), link, host.chosenFile}) {
            host.chosenFile = path;
            QVERIFY(!worker.importLoginCredentials("root"));
            QCOMPARE(alerts(), QStringList("Login credentials file is illegal"));
        }
#ifdef Q_OS_UNIX
        writeCredentials(serialised(62));
        rlimit files{};
        getrlimit(RLIMIT_NOFILE, &files);
        const rlimit none{0, files.rlim_max}; // unlike file permissions it binds the administrator too
        setrlimit(RLIMIT_NOFILE, &none);
        const bool imported = worker.importLoginCredentials("root");
        setrlimit(RLIMIT_NOFILE, &files);
        QVERIFY(!imported);
        QCOMPARE(alerts(), QStringList("Failed to open login credentials file"));
#endif
        QCOMPARE(host.callsOf({"checkSuperUserCredentials"}), QStringList());
    }

    void exportedCredentials()
    {
        const QTemporaryDir target;
        const QDir dir(target.path());
        const auto written = [&dir](const QString &name) {
            LoginAccess::_instance().exportLoginCredentials(name.isEmpty() ? name : dir.filePath(name));
            return deeds().join(' ');
        };
        const auto content = [&dir] {
            QFile file(dir.filePath("file"));
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        host.currentUser = "ann";
        host.credentials = QStringLiteral("Aé中") + QString(59, 'A');
        const QByteArray bytes = QByteArray::fromHex("0000007c004100e94e2d") + QByteArray::fromHex("0041").repeated(59);
        const QString asked = "generateSuperUserCredentials(root) ";
        const QString failure = "Failed to export login credentials";
        const QString failed = asked + "messageAlert(" + failure + ')';

        QCOMPARE(written({}), QString());
        for (int i = 0; i < 2; ++i) { // the second time over what is there
            QCOMPARE(written("file"), asked + "exportLoginCredentialsLog(ann) messageAlert(Export login credentials "
                                              "success, you can get back or reset password using login credentials)");
            QCOMPARE(content(), bytes);
            QVERIFY(QFile::resize(dir.filePath("file"), 300));
        }
        QCOMPARE(host.alerts.takeLast().first, QString("title 2"));
        host.alerts.clear();
        QVERIFY(dir.mkdir("folder"));
        for (const char *name : {"folder", "missing/file", "/dev/full"})
            QCOMPARE(written(name), failed);
        QCOMPARE(alerts(), QStringList({failure, failure, failure}));
#ifdef Q_OS_UNIX
        std::signal(SIGXFSZ, SIG_IGN); // a full disk: no file gets larger than 100 bytes
        rlimit size{};
        getrlimit(RLIMIT_FSIZE, &size);
        const rlimit small{100, size.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const QStringList full{written("file"), written("new")};
        setrlimit(RLIMIT_FSIZE, &size);
        QCOMPARE(full, QStringList({failed, failed}));
#endif
        host.credentials.clear();
        QCOMPARE(written("new"), failed);
        QCOMPARE(dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({"file", "folder"}));
        QCOMPARE(content().left(bytes.size()), bytes);
    }

    void defaultSuperUser()
    {
        const kelvra_data::SuperUserInfo info = FreshWorker().defaultSuperUserInfo();
        const QStringList texts{info.userName, info.password, info.answer1,    info.answer2,
                                info.answer3,  info.remark,   info.displayName};
        QCOMPARE(texts, QStringList({"admin", "468024", "468024", "468024", "468024", "", ""}));
        const QList<int> numbers{info.role, info.id, info.question1, info.question2, info.question3};
        QCOMPARE(numbers, QList<int>({0, -1, 0, 1, 2}));
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<LoginDlg *>(watched))
            host.record("show", {});
        return QObject::eventFilter(watched, event);
    }

private:
    void writeCredentials(const QByteArray &content)
    {
        host.chosenFile = folder.filePath("credentials");
        QFile file(host.chosenFile);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    /** The alerts since the last call; each stands under the title of a warning. */
    static QStringList alerts()
    {
        QStringList texts;
        for (const auto &alert : std::exchange(host.alerts, {}))
            texts << (alert.first == "title 1" ? alert.second : alert.first);
        return texts;
    }

    const QStringList endOfCloudLogin{"setSuperUserInfo(root,roots)", "setLoginSuccess(true)", "signalLoginSuccess()",
                                      "setValue(client_login_mode,0)"};
    const QTemporaryDir folder;
};

QTEST_MAIN(TestLoginWorker)

#include "tst_loginworker.moc"
