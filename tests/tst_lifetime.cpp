// Widgets of the module that die while others still tell them things.
#include "TestTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "login/cloud/QRCodeLoginPanel.h"
#include "login/cloud/SaasPwdLoginWt.h"
#include "login/cloud/SaasScanQRCodeLoginWt.h"
#include "login/cloud/SaasVerificationCodeLoginWt.h"
#include "login/frame/Screens.h"
#include "login/gesture/AddGesturePwdDlg.h"
#include "login/gesture/GestureLoginWt.h"
#include "login/gesture/GestureVerifyDlg.h"
#include "login/local/LoginWt.h"
#include "login/local/NormalLoginWt.h"
#include "login/superuser/CreateSuperUserWt.h"
#include "login/superuser/GetbackPwdDlg.h"
#include "login/superuser/LoginMethodSelWt.h"
#include "login/superuser/ResetSuperUserPwdWt.h"
#include "login/superuser/SetSecretAnswerWt.h"
#include "login/superuser/VerifySecretAnswerWt.h"

using namespace kelvra_login;

using Make = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Make)

namespace {

template <typename Window>
QWidget *make()
{
    return new Window(nullptr);
}

template <typename Page>
QWidget *makeForUser()
{
    return new Page("root", nullptr);
}

template <typename Window>
Make makeWith(LoginEvent event)
{
    return [event] {
        auto *window = new Window(nullptr);
        showScreen(event, {"root"});
        return window;
    };
}

/** The window and what in it the keyboard gets to. */
QWidgetList focusTakers(QWidget *window)
{
    QWidgetList found{window};
    for (auto *widget : window->findChildren<QWidget *>()) {
        if (widget->focusPolicy() != Qt::NoFocus)
            found << widget;
    }
    return found;
}

/** Has all pages shown that `child` is on. */
void turnTo(QWidget *child)
{
    for (QWidget *page = child; !page->isWindow(); page = page->parentWidget()) {
        if (auto *stack = qobject_cast<QStackedWidget *>(page->parentWidget()))
            stack->setCurrentWidget(page);
    }
}

/** Everything that a host or another screen can tell the module at any time. */
void tellEverything()
{
    auto &hub = LoginSignals::_instance();
    auto &msg = kelvra_contact::SystemMsg::_instance();
    emit hub.signalLoginEvent(NormalLogin, {});
    emit hub.signalSaasLoginEvent(SaasVerificationCodeLogin, {});
    emit hub.signalPwdStrength(ZCOMMON::PwdStrength(1), true, {});
    emit hub.signalLockLoginByGesture();
    emit hub.signalSaasAccountEditingFinished(nullptr, "13800000001");
    emit hub.signalDefaultLocalSuperUserMethodSelected("admin", "468024");
    emit msg.signalSystemInitProgress(10);
    emit msg.signalClientRepeatedStart();
    emit msg.signalDgwAbnormal({});
    emit msg.signalPrepareQuitSystem();
    emit kelvra_saas::SaasWorker::_instance().signalGetVerificationCodeRemainingSecs(7);
    emit hub.signalLoginSuccess();
    for (const auto &asked : qAsConst(host.qrCodeRequests))
        asked.answer({asked.requestId, kelvra_saas::successCode, 0, {}}, {"code", {}, 60});
    for (const auto &asked : qAsConst(host.autoLogins))
        asked.answer({asked.requestId, kelvra_saas::successCode, 0, {}}, asked.account);
}

} // namespace

class TestLifetime : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { enterScreens(); }

    void init()
    {
        resetHost();
        host.lastLocalUser = "root";
        host.customization.cloudLoginEnabled = true;
    }

    void deathWithTheFocusReachesNobody_data()
    {
        QTest::addColumn<Make>("makeWindow");
        QTest::newRow("NormalLoginWt") << Make(make<NormalLoginWt>);
        QTest::newRow("SaasPwdLoginWt") << Make(make<SaasPwdLoginWt>);
        QTest::newRow("SaasVerificationCodeLoginWt") << Make(make<SaasVerificationCodeLoginWt>);
        QTest::newRow("SaasScanQRCodeLoginWt") << Make(make<SaasScanQRCodeLoginWt>);
        QTest::newRow("QRCodeLoginPanel") << Make(make<QRCodeLoginPanel>);
        QTest::newRow("LoginMethodSelWt") << Make(make<LoginMethodSelWt>);
        QTest::newRow("CreateSuperUserWt") << Make(make<CreateSuperUserWt>);
        QTest::newRow("SetSecretAnswerWt") << Make(make<SetSecretAnswerWt>);
        QTest::newRow("ResetSuperUserPwdWt") << Make(makeForUser<ResetSuperUserPwdWt>);
        QTest::newRow("VerifySecretAnswerWt") << Make(makeForUser<VerifySecretAnswerWt>);
        QTest::newRow("GestureLoginWt") << Make(make<GestureLoginWt>);
        QTest::newRow("AddGesturePwdDlg") << Make(make<AddGesturePwdDlg>);
        QTest::newRow("GestureVerifyDlg") << Make(make<GestureVerifyDlg>);
        QTest::newRow("GetbackPwdDlg") << Make(make<GetbackPwdDlg>);
        for (const auto event : {NormalLogin, CreateSuperUser, SetSecretAnswer, ResetSuperUserPwd, VerifySecretAnswer,
                                 GestureLogin, LoginMethodSel}) {
            QTest::addRow("LoginWt, event %d", event) << makeWith<LoginWt>(event);
            QTest::addRow("LoginDlg, event %d", event) << makeWith<LoginDlg>(event);
        }
    }

    void deathWithTheFocusReachesNobody()
    {
        QFETCH(Make, makeWindow);
        for (int i = 0, count = 1; i < count; ++i) {
            std::unique_ptr<QWidget> window(makeWindow());
            window->show();
            QVERIFY(QTest::qWaitForWindowActive(window.get()));
            const QWidgetList takers = focusTakers(window.get());
            count = takers.size();
            turnTo(takers[i]);
            takers[i]->setFocus();
            QCOMPARE(takers[i]->hasFocus(), takers[i]->isVisible() && takers[i]->isEnabled());
            QObject context;
            connect(qApp, &QApplication::focusChanged, &context, &tellEverything);
            window.reset();
            QVERIFY(!QApplication::focusWidget());
        }
    }

    void everyConnectionEndsWithItsForm_data()
    {
        QTest::addColumn<QString>("file");
        for (QDirIterator files(KELVRA_LOGIN_SOURCES, {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
             files.hasNext();) {
            files.next();
            QTest::newRow(qPrintable(files.fileName())) << files.filePath();
        }
    }

    void everyConnectionEndsWithItsForm()
    {
        QFETCH(QString, file);
        QFile source(file);
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QString text = source.readAll();
        static const QRegularExpression passesTheFormBy("(?<![hH]andlers\\.)\\bconnect\\(|\\bsingleShot\\(");
        const QString fault = text.contains("#include \"ui_") ? passesTheFormBy.match(text).captured() : QString();
        QCOMPARE(fault, QString());
    }
};

QTEST_MAIN(TestLifetime)

#include "tst_lifetime.moc"
