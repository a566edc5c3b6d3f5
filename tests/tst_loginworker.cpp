#include "TestTools.h"
#include "host/kelvra_base/BaseTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginWorker.h"

#ifdef Q_OS_UNIX
#    include <csignal>
#    include <sys/resource.h>
#    include <sys/stat.h>
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

const QString endOfCloudLogin = ' ' + endOfLogin + " setValue(client_login_mode,0)";

/** A credentials file's bytes: the length in bytes, then two bytes for each "A", big ends first. */
QByteArray serialised(int characters)
{
    return QByteArray::fromHex("000000") + char(2 * characters) + QByteArray::fromHex("0041").repeated(characters);
}

#ifdef Q_OS_UNIX
/** Unlike file permissions a limit binds the administrator too. */
template <typename Resource, typename Action>
void withLimit(Resource resource, rlim_t most, const Action &action)
{
    rlimit before{};
    getrlimit(resource, &before);
    const rlimit limited{most, before.rlim_max};
    setrlimit(resource, &limited);
    action();
    setrlimit(resource, &before);
}
#endif

} // namespace

class TestLoginWorker : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        qApp->installEventFilter(this);
        recordHub(this);
    }

    void init()
    {
        resetHost();
        host.rememberUser("bob", "bobs").gesture = "345";
        host.rememberUser("ann", "pw").gesture = "012";
        host.users["ann"].attribute = 7;
        host.users["carl"].password = "carls";
        host.settings["client_login_mode"] = 1;
        host.currentUser = "bob";
    }

    void cleanup() { qDeleteAll(dialogs()); }

    void firstScreen()
    {
        const auto announced = [](UserType type, const QStringList &params) {
            FreshWorker().login(type, params, true);
            return deeds();
        };
        // The screen is there before the dialog shows.
        const QString cloud = "signalLoginEvent(0) signalSaasLoginEvent(0) show()";
        const QString last = "signalLoginEvent(6,ann) show()";
        QCOMPARE(announced(CloudUser, {"bob"}), cloud);
        QCOMPARE(announced(LocalUser, {}), last);
        QCOMPARE(announced(LocalUser, {"", "bob", "x"}), last);
        QCOMPARE(announced(LocalUser, {"bob"}), QString("signalLoginEvent(6,bob) show()"));
        QCOMPARE(announced(LocalUser, {"carl"}), QString("signalLoginEvent(0) show()"));
        host.firstLogin = true;
        QCOMPARE(announced(LocalUser, {}), QString("signalLoginEvent(7) show()"));
        QCOMPARE(announced(CloudUser, {"bob"}), QString("signalLoginEvent(7) show()"));

        FreshWorker worker;
        worker.switchUser(); // asks nothing
        QVERIFY(!worker.isAutoLoginAllowed());
        QCOMPARE(host.calls, QStringList({"signalLoginEvent(0)", "show()"}));
        QCOMPARE(dialogs().size(), 8);
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
                    if (deeds().startsWith("signalLoginEvent(6,ann)"))
                        byGesture << QString("%1 %2 %3").arg(lock).arg(mode.typeName(), gesture);
                }
            }
        }
        QCOMPARE(byGesture, QStringList({"-1 int 012", "-1 QString 012", "0 int 012", "0 QString 012"}));
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
                QCOMPARE(deeds(), screen + " show() verifyUserPassword(ann,pw)");
            }
            QTRY_VERIFY(host.loginSuccess);
            QVERIFY(clock.elapsed() >= 495);
            QTest::qWait(100);
            // Neither log nor record, environment, lock or counter: the login is on record already.
            QCOMPARE(deeds(), QString("setCurUserInfo(1,ann,pw,7,%1) ").arg(first ? "true" : "false") + endOfLogin);
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
            worker.login(type, {"ann", "pw"}, true);
            if (type == LocalUser)
                worker.switchUser();
            else
                emit kelvra_contact::SystemMsg::_instance().signalPrepareQuitSystem();
        }
        worker.login(LocalUser, {"ann", "wrong"}, true);
        QTest::qWait(autoLoginDelayMs + 100);
        const QString others = deeds().remove(QRegularExpression("(signal\\w*Event\\([^)]*\\)|show\\(\\)) ?"));
        QCOMPARE(others,
                 QString("verifyUserPassword(ann,pw) verifyUserPassword(ann,pw) verifyUserPassword(ann,wrong)"));
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
        QVERIFY(deeds().endsWith(" tryAutoLogin(139,pw)"));
        const auto requests = host.autoLogins;
        QVERIFY(!QUuid(requests[0].requestId).isNull() && requests[0].requestId != requests[1].requestId);

        requests[0].answer({requests[0].requestId, 2203, 0, {}}, "+139");
        QCOMPARE(deeds(), QString("cancelAccountAutoLogin(+139)")); // and no alert
        requests[1].answer({requests[1].requestId, 1000, 0, {}}, "ann");
        QCOMPARE(deeds(), "setCurUserInfo(2,ann,pw,7,true)" + endOfCloudLogin);
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
        QCOMPARE(deeds(), "addSuperUserFromSaasUser(139) setCurUserInfo(2,139,,0,false)" + endOfCloudLogin);
        QVERIFY(worker.isLocked() && worker.failedTimes() == 1);

        worker.loginSuccess("ann", "typed", true);
        QCOMPARE(deeds(), localLogin("ann,typed,7", "true"));
        QVERIFY(!worker.isLocked() && worker.failedTimes() == 0);
    }

    void failuresAndLockAreKept()
    {
        FreshWorker worker;
        QVERIFY(!worker.verifyPassword("ann", "no") && !worker.verifyGesture("ann", "8"));
        QVERIFY(worker.verifyPassword("ann", "pw") && worker.verifyGesture("ann", "012"));
        QVERIFY(!worker.verifyPassword("nobody", "") && !worker.verifyGesture("nobody", "8"));
        deeds();
        for (const bool answer : {true, false}) {
            host.updatesSucceed = answer;
            QCOMPARE(worker.setLocked(true), answer);
            for (const int seconds : {180, 1, 0, -5})
                QCOMPARE(worker.setLockSeconds(seconds), answer);
            QVERIFY(worker.isLocked()); // what is left is only stored
            QCOMPARE(worker.failedTimes(), answer ? 4 : 0);
            QCOMPARE(worker.setLocked(false), answer);
            QVERIFY(!worker.isLocked() && worker.failedTimes() == 0);
            QCOMPARE(deeds(), QString("updateLockInfo(true,180) updateLockInfo(true,180) updateLockInfo(true,1) "
                                      "updateLockInfo(false,300) updateLockInfo(false,300) updateLockInfo(false,0)"));
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
        host.locked = true;
        worker.refreshLockInfo(locked, seconds);
        host.lockKnown = false;
        worker.refreshLockInfo(locked, seconds);
        QVERIFY(locked && worker.isLocked());
    }

    void cloudLockAlert()
    {
        for (const int remaining : {1, 0, -1})
            FreshWorker().showLockAlert({"139", 3, remaining, 1200, 30});
        const QString locked = " messageAlert(The account has been locked for 30 minutes, you can unlock by Nimbra App "
                               "forgetting password)";
        QCOMPARE(deeds(), "messageAlert(Current errors:3,in the next 1200 sec.,if you make another error 1 times, the "
                          "account will be locked for 30 minutes)" +
                              locked + locked);
    }

    void importedCredentials()
    {
        // Whether the file was accepted, what the data library was asked, and the alert.
        const auto import = [this](const QByteArray &content) {
            QFile file(host.chosenFile = folder.filePath("credentials"));
            const bool written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
            file.close();
            const bool accepted = written && FreshWorker().importLoginCredentials("root");
            return (accepted ? "accepted " : "refused ") + deeds();
        };
        const QString asked = "checkSuperUserCredentials(root,%1)";
        const QString refused = "messageAlert(Login credentials file is %1)";
        host.credentialsValid = true;
        QCOMPARE(import(serialised(61) + 'x'), "refused " + refused.arg("illegal"));  // 127
        QCOMPARE(import(serialised(126) + 'x'), "refused " + refused.arg("illegal")); // 257
        QCOMPARE(import(serialised(62)), "accepted " + asked.arg(QString(62, 'A')));
        QCOMPARE(import(serialised(126)), "accepted " + asked.arg(QString(126, 'A')));
        host.credentialsValid = false;
        QCOMPARE(import(QByteArray(128, '\xff')), "refused " + asked.arg("") + ' ' + refused.arg("invalid"));
        QCOMPARE(host.alerts.last().first, QString("title 1"));
        host.credentialsValid = true;
#ifdef Q_OS_UNIX
        bool accepted = true;
        withLimit(RLIMIT_NOFILE, 0, [&] { accepted = FreshWorker().importLoginCredentials("root"); });
        QVERIFY(!accepted);
        QCOMPARE(deeds(), QString("messageAlert(Failed to open login credentials file)"));
#endif
        host.chosenFile = folder.filePath("missing");
        QVERIFY(!FreshWorker().importLoginCredentials("root"));
        QCOMPARE(deeds(), refused.arg("illegal"));
        host.chosenFile.clear(); // cancelled
        QVERIFY(!FreshWorker().importLoginCredentials("root"));
        QCOMPARE(host.calls, QStringList(QString("getOpenFileName(false,Select Login Credentials,%1,,false,0)")
                                             .arg(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation))));
    }

    void exportedCredentials()
    {
        const QDir dir(folder.filePath("export"));
        QVERIFY(dir.mkpath("folder"));
        const auto written = [&dir](const QString &name) {
            LoginAccess::_instance().exportLoginCredentials(name.isEmpty() ? name : dir.filePath(name));
            return deeds();
        };
        host.credentials = QString(62, 'A');
        const QString asked = "generateSuperUserCredentials(root) ";
        const QString failed = asked + "messageAlert(Failed to export login credentials)";

        QCOMPARE(written({}), QString());
        QFile file(dir.filePath("file"));
        for (const int before : {0, 300}) { // the second time over what is there
            QVERIFY(before == 0 || file.resize(before));
            QCOMPARE(written("file"), asked + "exportLoginCredentialsLog(bob) messageAlert(Export login credentials "
                                              "success, you can get back or reset password using login credentials)");
            QCOMPARE(host.alerts.last().first, QString("title 2"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), serialised(62));
            file.close();
        }
        for (const char *name : {"folder", "missing/file"})
            QCOMPARE(written(name), failed);
        QCOMPARE(host.alerts.last().first, QString("title 1"));
#ifdef Q_OS_UNIX
        // What is no file stays; a device would serve, but nobody is to lose one to a fault.
        QCOMPARE(mkfifo(QFile::encodeName(dir.filePath("pipe")).constData(), 0600), 0);
        QCOMPARE(written("pipe"), failed);
        std::signal(SIGXFSZ, SIG_IGN); // a full disk: no file gets larger than 100 bytes
        QStringList full;
        withLimit(RLIMIT_FSIZE, 100, [&] { full << written("file") << written("new"); });
        QCOMPARE(full, QStringList({failed, failed}));
#endif
        host.credentials.clear();
        QCOMPARE(written("new"), failed);
        QCOMPARE(dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({"file", "folder"}));
        QCOMPARE(file.size(), 128);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<LoginDlg *>(watched))
            host.record("show", {});
        return QObject::eventFilter(watched, event);
    }

private:
    const QTemporaryDir folder;
};

QTEST_MAIN(TestLoginWorker)

#include "tst_loginworker.moc"
