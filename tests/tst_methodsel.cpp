#include "fakehost/Brackets.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/LoginSignals.h"
#include "login/superuser/LoginMethodBt.h"
#include "login/superuser/LoginMethodSelWt.h"

#include <QLabel>
#include <QLayout>
#include <QtTest>

using namespace kelvra_login;
using kelvra_worker::DictDef;

namespace {

FakeHost &host = FakeHost::get();

QString texts(const LoginMethodBt *button)
{
    return button->findChild<QLabel *>("title")->text() + '|' + button->findChild<QLabel *>("detail")->text();
}

} // namespace

class TestMethodSel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Among the host's calls, so that the order of both shows.
        const auto &hub = LoginSignals::_instance();
        connect(&hub, &LoginSignals::signalLoginEvent, this, [](LoginEvent event, const QStringList &params) {
            host.record("signalLoginEvent", QStringList(QString::number(event)) + params);
        });
        connect(&hub, &LoginSignals::signalSaasLoginEvent, this,
                [](SaasLoginEvent event) { host.record("signalSaasLoginEvent", {QString::number(event)}); });
        connect(&hub, &LoginSignals::signalDefaultLocalSuperUserMethodSelected, this,
                [](const QString &userName, const QString &pwd) {
                    host.record("fillIn", {userName, pwd});
                });
    }

    void init()
    {
        host.reset();
        host.customization.cloudLoginEnabled = true;
        open();
    }

    void cleanup() { page.reset(); }

    void textsOfTheMethods()
    {
        const QString cloud = "Login Nimbra App User|Login via phone number or scan QR code";
        QCOMPARE(texts(defaultUserBt()), QString("Use Default Superuser|User:admin Password:468024, low security"));
        QCOMPARE(texts(newUserBt()), QString("Create New Superuser|Customize user and password, high security"));
        QCOMPARE(texts(saasUserBt()), cloud);
        newUserBt()->setMethod(7);
        QCOMPARE(texts(newUserBt()), cloud);
        const QSignalSpy clicked(newUserBt(), &LoginMethodBt::signalClicked);
        QTest::mouseClick(newUserBt(), Qt::LeftButton);
        QCOMPARE(clicked.value(0), QVariantList{7});
    }

    void textsFollowTheLanguage()
    {
        const Brackets brackets;
        QCOMPARE(texts(defaultUserBt()), QString("[Use Default Superuser]|[User:admin Password:468024, low security]"));
        QCOMPARE(texts(newUserBt()), QString("[Create New Superuser]|[Customize user and password, high security]"));
        QCOMPARE(texts(saasUserBt()), QString("[Login Nimbra App User]|[Login via phone number or scan QR code]"));
        QCOMPARE(page->findChild<QLabel *>("label")->text(), QString("[Welcome to login]"));
    }

    void buttonsWithoutCloudLoginSitLower()
    {
        const auto margins = [this] {
            return page->findChild<QLayout *>("verticalLayout_2")
                ->findChild<QLayout *>("verticalLayout")
                ->contentsMargins();
        };
        const int top = defaultUserBt()->y();
        QCOMPARE(margins(), QMargins(0, 0, 0, 0));
        QVERIFY(saasUserBt()->isVisible());
        host.customization.cloudLoginEnabled = false;
        open();
        QCOMPARE(margins(), QMargins(0, 54, 0, 0));
        QCOMPARE(defaultUserBt()->y(), top + 54);
        QCOMPARE(newUserBt()->y(), top + 54 + 80);
        QVERIFY(defaultUserBt()->isVisible() && newUserBt()->isVisible() && !saasUserBt()->isVisible());
    }

    void buttonsShowPictures()
    {
        QList<QImage> pictures;
        for (LoginMethodBt *button : {defaultUserBt(), newUserBt(), saasUserBt()}) {
            QCOMPARE(button->size(), QSize(275, 54));
            for (QWidget *pointedAt : {static_cast<QWidget *>(page.get()), static_cast<QWidget *>(button)}) {
                QTest::mouseMove(pointedAt, pointedAt == button ? QPoint() : QPoint(1, 1));
                const QImage picture = button->grab(QRect(0, 0, 50, 54)).toImage(); // left of the texts
                QVERIFY(!pictures.contains(picture));
                pictures << picture;
            }
            QTest::mouseClick(button, Qt::LeftButton);
            QTest::keyClick(page.get(), Qt::Key_Tab);
            QVERIFY(!button->hasFocus());
        }
    }

    void choices()
    {
        QCOMPARE(choose(newUserBt()), QString("signalLoginEvent(2) updateLoginEnvironment()"));
        QCOMPARE(choose(saasUserBt()), QString("signalLoginEvent(0) signalSaasLoginEvent(0) "
                                               "setLastLoggedInUserType(2) updateLoginEnvironment()"));
        QCOMPARE(choose(defaultUserBt()), QString("addSuperUser(admin) signalLoginEvent(0,admin,468024) "
                                                  "fillIn(admin,468024) updateLoginEnvironment()"));
        const auto &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.userName, added.password, added.answer1, added.answer2, added.answer3}),
                 QStringList({"admin", "468024", "468024", "468024", "468024"}));
        QVERIFY(added.displayName.isEmpty() && added.remark.isEmpty());
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 0, 1, 2}));
    }

    void refusedDefaultSuperUser()
    {
        const QString refused = "addSuperUser(admin) messageAlert(Local default superuser is not available) "
                                "updateLoginEnvironment()";
        host.addSuperUserSucceeds = false;
        QCOMPARE(choose(defaultUserBt()), refused);
        QCOMPARE(host.alerts.first().first, DictDef::_instance().alertTitle(DictDef::WarningTitle));
        QCOMPARE(choose(defaultUserBt()), refused);
        host.addSuperUserSucceeds = true;
        QVERIFY(choose(defaultUserBt()).contains("fillIn(admin,468024)"));

        host.addSuperUserSucceeds = false;
        host.whileAlertIsOpen = [this] { page.reset(); };
        QCOMPARE(choose(defaultUserBt()), refused);
        QVERIFY(!page);
    }

private:
    void open()
    {
        page = std::make_unique<LoginMethodSelWt>(nullptr);
        page->show();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
    }

    LoginMethodBt *defaultUserBt() const { return page->findChild<LoginMethodBt *>("defaultUserBt"); }
    LoginMethodBt *newUserBt() const { return page->findChild<LoginMethodBt *>("newUserBt"); }
    LoginMethodBt *saasUserBt() const { return page->findChild<LoginMethodBt *>("saasUserBt"); }

    static QString choose(LoginMethodBt *button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        return std::exchange(host.calls, {}).join(' ');
    }

    std::unique_ptr<LoginMethodSelWt> page;
};

QTEST_MAIN(TestMethodSel)

#include "tst_methodsel.moc"
