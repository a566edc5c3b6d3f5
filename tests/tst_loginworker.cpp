#include "DataFolderTest.h"
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

class TestLoginWorker : public DataFolderTest
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
        // The screen is there before the dialog shows.
        const auto announced = [](UserType type, const QStringList &params) {
            FreshWorker().login(type, params, true);
            return deeds();
        };
        const QString form = "signalLoginEvent(0) show()";
        const QString gesture = "signalLoginEvent(6,%1) show()";
        QCOMPARE(announced(CloudUser, {"bob"}), QString("signalLoginEvent(0) signalSaasLoginEvent(0) show()"));
        QCOMPARE(announced(LocalUser, {"", "bob", "x"}), gesture.arg("ann"));
        QCOMPARE(announced(LocalUser, {"bob"}), gesture.arg("bob"));
        QCOMPARE(announced(LocalUser, {"carl"}), form);
        host.locked = true;
        QCOMPARE(announced(LocalUser, {}), form);
        host.lockKnown = false;
        for (const QVariant &mode : {QVariant(1), QVariant("1"), QVariant(0), QVariant(2), QVariant()}) {
            host.settings["client_login_mode"] = mode;
            QCOMPARE(announced(LocalUser, {}), mode.toInt() == 1 ? gesture.arg("ann") : form);
        }
        host.firstLogin = true;
        for (const UserType type : {LocalUser, CloudUser})
            QCOMPARE(announced(type, {"bob"}), QString("signalLoginEvent(7) show()"));

        FreshWorker worker;
        worker.switchUser(); // asks nothing
        QVERIFY(!worker.isAutoLoginAllowed());
        QCOMPARE(host.calls.join(' '), form);
        QCOMPARE(dialogs().size(), 13);
        for (LoginDlg *dialog : dialogs()) {
            QVERIFY(dialog->isVisible() && !dialog->isModal() && !dialog->parent());
            QCOMPARE(dialog->pos(), kelvra_base::BaseTools::defaultPos(dialog));
        }
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
        for (const UserType type : {CloudUser, LocalUser}) { // the end of a client is that of every worker
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
        QVERIFY(!worker.verifyPassword("ann", "wrong") && worker.verifyPassword("ann", "pw"));
        QVERIFY(!worker.verifyGesture("ann", "8") && worker.verifyGesture("ann", "012"));
        deeds();
        worker.saasLoginSuccess("139", false);
        // The record is read once the account is adopted.
        QVERIFY(host.calls.indexOf("getUserInfo(139)") > host.calls.indexOf("addSuperUserFromSaasUser(139)"));
        QCOMPARE(deeds(), "addSuperUserFromSaasUser(139) setCurUserInfo(2,139,,0,false)" + endOfCloudLogin);
        QVERIFY(worker.isLocked() && worker.failedTimes() == 2);

        worker.loginSuccess("ann", "typed", true);
        QCOMPARE(deeds(), localLogin("ann,typed,7", "true"));
        QVERIFY(!worker.isLocked() && worker.failedTimes() == 0);
    }

    void lockIsReadWhileUnknown()
    {
        FreshWorker worker;
        bool locked = false;
        int seconds = 5;
        // What a reading of it gives, and what the worker then holds it for.
        const auto read = [&](bool known, bool stored) {
            host.lockKnown = known;
            host.locked = stored;
            host.lockSeconds = 42;
            worker.refreshLockInfo(locked, seconds);
            return QString("%1 %2 %3").arg(locked).arg(seconds).arg(worker.isLocked());
        };
        QCOMPARE(read(false, true), QString("0 5 0"));
        host.lockKnown = true;
        QVERIFY(worker.isLocked());
        host.locked = false;
        QVERIFY(worker.isLocked()); // known now
        QCOMPARE(read(true, false), QString("0 42 0"));
        QCOMPARE(read(true, true), QString("1 42 1"));
        QCOMPARE(read(false, false), QString("1 42 1"));
    }

    void importedCredentials()
    {
        // What became of a file of these bytes.
        const auto import = [this](const QByteArray &content) {
            writeFile(host.chosenFile = folder.filePath("credentials"), content);
            const QString outcome = FreshWorker().importLoginCredentials("root") ? "accepted " : "refused ";
            return outcome + deeds();
        };
        const QString accepted = "accepted checkSuperUserCredentials(root,%1)";
        const QString illegal = "refused messageAlert(Login credentials file is illegal)";
        host.credentialsValid = true;
        QCOMPARE(import(serialised(61) + 'x'), illegal);  // 127
        QCOMPARE(import(serialised(126) + 'x'), illegal); // 257
        QCOMPARE(import(serialised(62)), accepted.arg(QString(62, 'A')));
        QCOMPARE(import(serialised(126)), accepted.arg(QString(126, 'A')));
#ifdef Q_OS_UNIX
        withLimit(RLIMIT_NOFILE, 0, [] { FreshWorker().importLoginCredentials("root"); });
        QCOMPARE(deeds(), QString("messageAlert(Failed to open login credentials file)"));
#endif
        host.chosenFile.clear(); // cancelled
        QVERIFY(!FreshWorker().importLoginCredentials("root"));
        QCOMPARE(host.calls, QStringList(QString("getOpenFileName(false,Select Login Credentials,%1,,false,0)")
                                             .arg(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation))));
    }

    void exportedCredentials()
    {
        const QDir target(folder.filePath("export"));
        QVERIFY(target.mkpath("folder"));
        const auto written = [&target](const QString &name) {
            LoginAccess::_instance().exportLoginCredentials(name.isEmpty() ? name : target.filePath(name));
            return deeds();
        };
        host.credentials = QString(62, 'A');
        const QString asked = "generateSuperUserCredentials(root) ";
        const QString failed = asked + "messageAlert(Failed to export login credentials)";

        QCOMPARE(written({}), QString());
        QFile file(target.filePath("file"));
        for (const int before : {0, 300}) { // the second time over what is there
            QVERIFY(before == 0 || file.resize(before));
            QCOMPARE(written("file"), asked + "exportLoginCredentialsLog(bob) messageAlert(Export login credentials "
                                              "success, you can get back or reset password using login credentials)");
            QCOMPARE(host.alerts.last().first, QString("title 2"));
            QCOMPARE(readFile(file.fileName()), serialised(62));
        }
        for (const char *name : {"folder", "missing/file"})
            QCOMPARE(written(name), failed);
#ifdef Q_OS_UNIX
        // What is no file stays; a device would serve, but nobody is to lose one to a fault.
        QCOMPARE(mkfifo(QFile::encodeName(target.filePath("pipe")).constData(), 0600), 0);
        QCOMPARE(written("pipe"), failed);
        std::signal(SIGXFSZ, SIG_IGN); // a full disk: no file gets larger than 100 bytes
        QStringList full;
        withLimit(RLIMIT_FSIZE, 100, [&] { full << written("file") << written("new"); });
        QCOMPARE(full, QStringList({failed, failed}));
#endif
        host.credentials.clear();
        QCOMPARE(written("new"), failed);
        QCOMPARE(target.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
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
