// What the module relies on, for any host: see docs/hosting.md.

#include "host/ZCommon/MoveableDialog.h"
#include "host/ZCommon/PEWidget.h"
#include "host/ZCommon/SmoothProgress.h"
#include "host/ZCommon/ToolsCollection.h"
#include "host/ZCommon/ZLabel.h"
#include "host/ZCommon/ZLineEdit.h"
#include "host/ZCommon/ZPushButton.h"
#include "host/ZCommon/ZWidget.h"
#include "host/kelvra_base/BaseTools.h"
#include "host/kelvra_base/CapsLockToolTipHandler.h"
#include "host/kelvra_base/ComboBox.h"
#include "host/kelvra_base/CommonDialog.h"
#include "host/kelvra_base/LogoLabel.h"
#include "host/kelvra_base/PwdStrengthWt.h"
#include "host/kelvra_base/ZMessageBox.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_saas/LoginWorker.h"
#include "host/kelvra_saas/SaasErrorMsg.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "host/kelvra_worker/DictDef.h"
#include "host/kelvra_worker/SysLanguage.h"
#include "host/kelvra_worker/SystemAssistant.h"
#include "host/kelvra_worker/SystemWorker.h"
#include "host/kelvra_worker/UiSettings.h"
#include "host/kit/HostSetup.h"

#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QtTest>

using namespace kelvra_data;
using namespace kelvra_saas;
using namespace kelvra_worker;
using kelvra_contact::SystemMsg;

const QString name = "root", password = "Sesame-31", account = "10000000000"; // a number that nobody has
constexpr char folderVariable[] = "CONTRACT_KIT_FOLDER"; // is set for a second process, which finds things there

class ContractKit : public QObject
{
    Q_OBJECT

    UserData &users = UserData::_instance();
    std::unique_ptr<QTemporaryDir> folder;
    SuperUserInfo info;
    bool translated = false;

    bool restart() const { return HostSetup::close(), HostSetup::open(folder->path()); }
    bool answered(const QStringList &a) const { return users.verifySuperUserAnswers(name, a[0], a[1], a[2]); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        translated = translated || event->type() == QEvent::LanguageChange;
        return false;
    }
    /** Whether `call` blocks until what it shows is closed, while timers run. */
    static bool blocks(const std::function<void()> &call)
    {
        QTimer timer;
        bool closed = false;
        connect(&timer, &QTimer::timeout, &timer, [&closed] {
            QWidget *box = QApplication::activeModalWidget();
            closed = closed || (box && box->close());
        });
        timer.start(100);
        call();
        return closed;
    }

private slots:
    void init()
    {
        std::tie(info.userName, info.password) = std::tie(name, password);
        std::tie(info.role, info.question1, info.question2, info.question3) = std::tuple(SuperUserRole, 11, 4, 4);
        std::tie(info.answer1, info.answer2, info.answer3) = std::tuple("one two", "Zwei", "drei \xe4\xb8\x89");
        folder = std::make_unique<QTemporaryDir>();
        QVERIFY(HostSetup::open(qEnvironmentVariable(folderVariable, folder->path())));
    }
    void cleanup()
    {
        HostSetup::close();
        qunsetenv(folderVariable);
    }

    void nobodyIsThereAtFirst()
    {
        QCOMPARE(&UserData::_instance(), &users);
        QVERIFY(users.isFirstLogin() && !users.isUserExist(name) && !users.isSuperUser(name));
        QVERIFY(!users.isSuperUserExist(SuperUserRole) && users.getLastLoggedLocalUser().isEmpty());
        QVERIFY(users.getUserInfo(name).name.isEmpty() && !users.verifyUserPassword(name, password));
        QVERIFY(users.getSuperUserInfo(name).userName.isEmpty() && !users.updateUserGesture(name, "0124"));
        QVERIFY(!users.resetUserPwd(name, password) && users.generateSuperUserCredentials(name).isEmpty());
        QVERIFY(!users.isSameLoginEnvironment() && users.updateLoginEnvironment() && restart());
        QVERIFY(users.isSameLoginEnvironment() && users.isFirstLogin() && !users.userAutoLoginCtrl(name, true));
        QVERIFY(users.addSuperUserFromSaasUser(account) && restart() && users.isUserExist(account));
        QVERIFY(!users.verifyUserPassword(account, QString()));
    }

    void superUserIsKept()
    {
        QVERIFY(users.addSuperUser(info) && !users.addSuperUser(info) && restart());
        QVERIFY(users.isSuperUserExist(SuperUserRole) && users.isSuperUser(name) && users.isUserExist(name));
        info.userName = account;
        QVERIFY(!users.addSuperUser(info) && !users.isUserExist(account) && !users.isUserExist("Root"));
        const SuperUserInfo kept = users.getSuperUserInfo(name);
        QCOMPARE(kept.userName + kept.password + kept.answer1 + kept.answer2 + kept.answer3,
                 name + password + info.answer1 + info.answer2 + info.answer3);
        QCOMPARE((QVector<int>{kept.question1, kept.question2, kept.question3}), (QVector<int>{11, 4, 4}));
        const QStringList answers = {info.answer1, info.answer2, info.answer3};
        for (int i = 0; i < 3; ++i)
            for (const QString &other : {QString(), answers[i].toUpper(), answers[i].left(3), answers[(i + 1) % 3]})
                QVERIFY(!answered(answers.mid(0, i) + QStringList(other) + answers.mid(i + 1)));
        for (const char *other : {"", "sesame-31", "Sesame-31x", "Sesame-3", "13-emaseS"})
            QVERIFY(users.verifyUserPassword(name, password) && !users.verifyUserPassword(name, other));
        QVERIFY(users.resetUserPwd(name, "Other-52") && restart() && !users.verifyUserPassword(name, password));
        QVERIFY(users.verifyUserPassword(name, "Other-52") && SystemWorker::_instance().getSuperUserName() == name);
        QCOMPARE(users.getUserInfo(name).password, QString("Other-52")); // a remembered login takes it from here

        QVERIFY(users.updateUserGesture(name, "012345678") && users.updateUserGesture(name, "85201") && restart());
        QVERIFY(users.isUserConfigureGesture(name) && users.verifyUserGesture(name, "85201") && answered(answers));
        for (const char *other : {"", "8520", "852013", "10258", "012345678"})
            QVERIFY(!users.verifyUserGesture(name, other));
        // With the creation alone either answer would do.
        QVERIFY(users.updateUserLoginRecord(name, false) && restart() && !users.isFirstLogin());
        QVERIFY(users.deleteUserGesture(name) && !users.deleteUserGesture(name));
        QVERIFY(!users.isUserConfigureGesture(name) && !users.verifyUserGesture(name, "85201"));
    }

    void recordsLockAndCredentialsAreKept()
    {
        bool on = false;
        int seconds = 0;
        QDateTime when;
        QVERIFY((!users.getLockInfo(on, seconds) || !on) && users.addSuperUserFromSaasUser(account));
        QVERIFY(!users.isSuperUserExist(SuperUserRole) && users.addSuperUser(info)); // an account is no local user
        QVERIFY(!users.getUserLoginRecord(name, on, when) && users.updateUserLoginRecord(name, true) && restart());
        QVERIFY(users.getUserLoginRecord(name, on, when) && on && users.isUserAutoLogin(name));
        QVERIFY(when.isValid() && qAbs(when.secsTo(QDateTime::currentDateTime())) < 60); // in whichever zone
        QVERIFY(users.getLastLoggedLocalUser() == name && users.userAutoLoginCtrl(name, false));
        QVERIFY(!users.isUserAutoLogin(name) && users.getUserLoginRecord(name, on, when) && !on);
        QVERIFY(users.userAutoLoginCtrl(name, true) && restart() && users.isUserAutoLogin(name));
        for (const auto &[locked, left] : {std::pair(true, 180), {true, 7}, {false, 300}, {false, 0}}) {
            QVERIFY(users.updateLockInfo(locked, left) && restart());
            QTest::qWait(left == 7 ? 1100 : 0); // a lock stands still meanwhile
            QVERIFY(users.getLockInfo(on, seconds) && on == locked && seconds == left);
        }

        const QString text = users.generateSuperUserCredentials(name);
        QVERIFY(text.size() >= 62 && text.size() <= 126 && restart()); // 128 to 256 bytes in the file
        QVERIFY(users.checkSuperUserCredentials(name, text) && !users.checkSuperUserCredentials(account, text));
        for (int i = 0; i < text.size(); ++i)
            QVERIFY(!users.checkSuperUserCredentials(name, QString(text).replace(i, 1, text[i] == 'A' ? "B" : "A")));
        for (const QString &other : {QString(), text.chopped(1), text + "!", text + text})
            QVERIFY(!users.checkSuperUserCredentials(name, other));
        const auto own = std::exchange(folder, std::make_unique<QTemporaryDir>()); // then somebody else of that name
        info.password = info.answer1 = account;
        QVERIFY(restart() && users.addSuperUser(info) && !users.checkSuperUserCredentials(name, text));
    }

    void workerKeepsWhoIsIn()
    {
        auto &worker = SystemWorker::_instance();
        auto &settings = UiSettings::_instance();
        if (qEnvironmentVariableIsSet(folderVariable)) {
            QVERIFY(!users.isFirstLogin() && worker.lastLoggedUserType() == CloudUser);
            QVERIFY(settings.getValue("client_login_mode").toInt() == 1);
            return;
        }
        QVERIFY(worker.lastLoggedUserType() == LocalUser && !settings.getValue("client_login_mode").isValid());
        QVERIFY(!worker.isLoginSuccess() && worker.getCurUserName().isEmpty());
        QVERIFY(users.isFirstLogin() && users.addSuperUserFromSaasUser(account));
        worker.setCurUserInfo(CloudUser, account, QString(), 0, false);
        settings.setValue("client_login_mode", 1);
        worker.setLoginSuccess(true);
        QVERIFY(worker.isLoginSuccess() && worker.lastLoggedUserType() == CloudUser && !users.isFirstLogin());
        worker.setCurUserInfo(LocalUser, name, password, 0, false);
        worker.setLoginSuccess(false);
        QVERIFY(!worker.isLoginSuccess() && worker.lastLoggedUserType() == LocalUser &&
                worker.getCurUserName() == name);
        worker.setLastLoggedInUserType(CloudUser);
        HostSetup::close();
        qputenv(folderVariable, folder->path().toLocal8Bit());
        QCOMPARE(QProcess::execute(qApp->applicationFilePath(), {QTest::currentTestFunction()}), 0);
    }

    void everyLanguageHasItsTexts()
    {
        auto &language = SysLanguage::_instance();
        const QMap<int, QString> names = language.getLanguageNames();
        QVERIFY(names.contains(language.getLanguage()) && !names.values().contains(QString()));
        QSet<QString> wordings;
        for (const int id : names.keys()) {
            QWidget window;
            window.installEventFilter(this);
            translated = id == language.getLanguage();
            language.setLanguage(Language(id), false);
            QTRY_VERIFY(translated);
            language.setLanguage(Language(-1), false); // is not known
            QCOMPARE(int(language.getLanguage()), id);
            auto &texts = DictDef::_instance();
            texts.retranslate();
            for (int title = 0; title < 3; ++title)
                QVERIFY(!texts.alertTitle(DictDef::AlertTitle(title)).isEmpty());
            const QMap<int, QString> questions = texts.securityQuestions();
            wordings << questions.first();
            QVERIFY(questions.size() >= 9 && questions.firstKey() >= 0 && questions.lastKey() <= 11);
            QVERIFY(!questions.values().contains(QString()) && !saasErrorMsg(-1, -1).isEmpty());
        }
        QVERIFY(names.size() == 1 || wordings.size() > 1);
    }

    void cloudAnswersOnceLaterAndHere()
    {
        QStringList answers;
        const auto note = [&](const QString &id, bool mayWork = false) {
            return [&answers, id, mayWork](const Response &response, const auto &...) {
                const bool fits =
                    response.code == successCode ? mayWork : !saasErrorMsg(response.code, response.subCode).isEmpty();
                answers << response.requestId + (fits && QThread::currentThread() == qApp->thread() ? id : "?");
            };
        };
        const auto named = [&](const Response &response, const QString &whose) {
            note(whose == account ? response.requestId : "whose")(response);
        };
        auto &cloud = LoginWorker::_instance();
        QVERIFY(cloud.getRecentlyLoggedInAccount().isEmpty() && !cloud.cancelAccountAutoLogin(account));
        cloud.getVerificationCode({"0", account}, note("0", true)); // may keep to itself who is known
        cloud.login({"1", account, password, {}}, note("1"));
        cloud.getLoginQRCode("2", [&](const auto &response, const LoginQRCodeInfo &code) {
            note("2", !code.id.isEmpty() && !code.image.isEmpty() && code.validitySeconds > 0)(response);
        });
        cloud.checkLoginQRCodeStatus("3", "none", note("3", true));
        cloud.checkLoginQRCodeResult("4", "none", note("4"));
        cloud.getAccountAfterScanQRCode("5", note("5"));
        cloud.tryAutoLogin("6", account, named);
        cloud.tryAutoLogin("7", account, password, named);
        cloud.login({"8", account, {}, "123456", "VERIFY_CODE"}, note("8"));
        QVERIFY(answers.isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(answers.size() >= 9, 30000);
        QTest::qWait(500); // nothing comes twice
        answers.sort();
        QCOMPARE(answers.join(""), QString("001122334455667788"));

        // The countdown, by seconds: none comes after 0.
        auto &countdown = SaasWorker::_instance();
        QSignalSpy spy(&countdown, &SaasWorker::signalGetVerificationCodeRemainingSecs);
        countdown.resetVerificationCodeRemainingSecs(2);
        QCOMPARE(countdown.getVerificationCodeRemainingSecs(), 2);
        QTRY_VERIFY(!spy.isEmpty() && spy.last()[0] == 0);
        QTest::qWait(1200);
        QVERIFY(spy.last()[0] == 0 && spy.size() <= 3 && countdown.getVerificationCodeRemainingSecs() == 0);
        countdown.resetVerificationCodeRemainingSecs(1); // it runs more than once
        spy.clear();
        QTRY_VERIFY(!spy.isEmpty() && spy.last()[0] == 0);
    }

    void widgets()
    {
        QVERIFY(blocks([] { SystemAssistant::_instance().messageAlert("title", "text"); }));
        QVERIFY(blocks([] { kelvra_base::ZMessageBox::warning(nullptr, "text", kelvra_base::OkButton, false); }));
        QSignalSpy message(&SystemMsg::_instance(), &SystemMsg::signalDgwAbnormal);
        emit SystemMsg::_instance().signalDgwAbnormal(name);
        QVERIFY(message.value(0).value(0) == name);

        ZCOMMON::MoveableDialog dialog(nullptr, "title", Qt::red);
        ZCOMMON::ZWidget panel(&dialog);
        ZCOMMON::PEWidget styled(&panel);
        ZCOMMON::ZLineEdit edit(&dialog);
        ZCOMMON::ZPushButton button(&dialog);
        const kelvra_base::CapsLockToolTipHandler capsLock(&dialog, &edit, &panel);
        QSignalSpy focus(&edit, &ZCOMMON::ZLineEdit::signalFocusEvent);
        dialog.resize(300, 200);
        panel.resize(dialog.size());
        styled.setGeometry(100, 100, 50, 50);
        dialog.setDefaultPos({40, 30});
        dialog.show(), QApplication::setActiveWindow(&dialog); // there may be no window manager to do it
        QVERIFY(QTest::qWaitForWindowExposed(&dialog) && dialog.pos() == QPoint(40, 30));
        QTest::mousePress(dialog.windowHandle(), Qt::LeftButton, {}, {120, 120}); // on both panels
        QTest::mouseMove(dialog.windowHandle(), {150, 140});
        QTRY_COMPARE(dialog.pos(), QPoint(70, 50));
        QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton, {}, {120, 120});
        edit.setFocus();
        QTest::keyClicks(&edit, "aB");
        edit.clearFocus();
        button.setEnabled(false);
        QVERIFY(focus.size() >= 2 && focus[focus.size() - 2][0] == true && focus.last()[0] == false);

        ZCOMMON::ZLabel label(&dialog);
        label.setText(QString(200, 'x'));
        label.resize(60, 20);
        label.show();
        QTRY_VERIFY(label.minimumSizeHint().width() < 60 && label.toolTip() == QString(200, 'x'));
        const QRect place(kelvra_base::BaseTools::defaultPos(&dialog), dialog.size()),
            screen = dialog.screen()->geometry();
        QVERIFY(screen.contains(place) && qAbs(place.center().x() - screen.center().x()) < dialog.width() / 2);
        QVERIFY(!kelvra_base::LogoLabel(&dialog).size().isEmpty() && !button.isEnabled() && edit.text() == "aB");

        kelvra_base::CommonDialog common(nullptr, 0, 1);
        common.show();
        common.slotCloseBtClicked();
        QVERIFY(!common.isVisible() && common.result() == QDialog::Rejected);
        QVERIFY(kelvra_base::ComboBox().getListWt() && ZCOMMON::ToolsCollection::reverseString("abc") == "cba");
        QCOMPARE(kelvra_base::PwdStrengthWt().setPwd(QString()), ZCOMMON::PwdLengthIllegal);
        QVERIFY(kelvra_base::PwdStrengthWt().setPwd("Sesame-3159") > ZCOMMON::PwdTooSimple);
        ZCOMMON::SmoothProgress progress;
        QSignalSpy steps(&progress, &ZCOMMON::SmoothProgress::signalProgress);
        progress.setCurrentProgress(50);
        QVERIFY(steps.isEmpty());
        QTRY_VERIFY(!steps.isEmpty() && steps.last()[0] == 50);
        progress.setCurrentProgress(100);
        QTRY_COMPARE(steps.last()[0].toInt(), 100);
    }
};

QTEST_MAIN(ContractKit)

#include "ContractKit.moc"
