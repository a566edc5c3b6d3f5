#include "fakehost/FakeHost.h"
#include "host/kelvra_worker/DictDef.h"
#include "login/frame/LoginSignals.h"
#include "login/superuser/LoginMethodBt.h"
#include "login/superuser/LoginMethodSelWt.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTranslator>
#include <QVBoxLayout>
#include <QtTest>

using namespace kelvra_login;

namespace {

const QString notAvailable = QStringLiteral("Local default superuser is not available");

class Brackets : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString("[%1]").arg(text);
    }
};

QStringList texts(const LoginMethodBt &button)
{
    return {button.findChild<QLabel *>("title")->text(), button.findChild<QLabel *>("detail")->text()};
}

} // namespace

class TestMethodSel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // Among the host's calls, so that the order of both shows.
        const LoginSignals &hub = LoginSignals::_instance();
        connect(&hub, &LoginSignals::signalLoginEvent, this, [this](LoginEvent event, const QStringList &params) {
            host.record("signalLoginEvent", QStringList(QString::number(event)) + params);
        });
        connect(&hub, &LoginSignals::signalSaasLoginEvent, this, [this](SaasLoginEvent event) {
            host.record("signalSaasLoginEvent", {QString::number(event)});
        });
        connect(&hub, &LoginSignals::signalDefaultLocalSuperUserMethodSelected, this,
                [this](const QString &userName, const QString &pwd) {
                    host.record("signalDefaultLocalSuperUserMethodSelected", {userName, pwd});
                });
    }

    void init()
    {
        host.reset();
        host.customization.cloudLoginEnabled = true;
        open();
    }

    void cleanup() { page.reset(); }

    void texts_data()
    {
        QTest::addColumn<int>("method");
        QTest::addColumn<QStringList>("shown");
        const QStringList cloud = {"Login Nimbra App User", "Login via phone number or scan QR code"};
        QTest::newRow("default") << 0
                                 << QStringList{"Use Default Superuser", "User:admin Password:468024, low security"};
        QTest::newRow("new") << 1
                             << QStringList{"Create New Superuser", "Customize user and password, high security"};
        QTest::newRow("cloud") << 2 << cloud;
        QTest::newRow("other") << 7 << cloud;
    }

    void texts()
    {
        QFETCH(int, method);
        QFETCH(QStringList, shown);
        LoginMethodBt bt;
        bt.setMethod(method);
        QCOMPARE(::texts(bt), shown);
        QCOMPARE(bt.objectName(), QStringLiteral("kelvra_login__LoginMethodBt"));
        QCOMPARE(bt.layout()->contentsMargins(), QMargins(58, 0, 32, 0));
        const QSignalSpy clicked(&bt, &LoginMethodBt::signalClicked);
        QTest::mouseClick(&bt, Qt::LeftButton);
        QCOMPARE(QList<QVariantList>(clicked), QList<QVariantList>({{method}}));
        if (method < 3)
            QCOMPARE(::texts(*buttons().at(method)), shown);
    }

    void cloudRule()
    {
        const int top = button("defaultUserBt")->y();
        QCOMPARE(column()->contentsMargins(), QMargins(0, 0, 0, 0));
        QVERIFY(button("saasUserBt")->isVisible());
        host.customization.cloudLoginEnabled = false;
        open();
        QCOMPARE(column()->contentsMargins(), QMargins(0, 54, 0, 0));
        QCOMPARE(button("defaultUserBt")->y(), top + 54);
        QVERIFY(button("defaultUserBt")->isVisible() && button("newUserBt")->isVisible());
        QVERIFY(!button("saasUserBt")->isVisible());
    }

    void buttonsLook()
    {
        QCOMPARE(page->findChild<QLabel *>("label")->text(), QStringLiteral("Welcome to login"));
        int y = 0;
        for (LoginMethodBt *bt : buttons()) {
            QCOMPARE(bt->size(), QSize(275, 54));
            QVERIFY(y == 0 || bt->y() == y + 54 + 26);
            y = bt->y();
            QTest::mouseMove(page.get(), QPoint(1, 1));
            const QImage normal = bt->grab().toImage();
            QTest::mouseMove(bt);
            QVERIFY(bt->grab().toImage() != normal);
            QTest::mouseClick(bt, Qt::LeftButton);
            QVERIFY(!bt->hasFocus());
        }
        for (LoginMethodBt *bt : buttons()) { // three pictures, not one
            for (LoginMethodBt *other : buttons())
                QVERIFY(bt == other || picture(bt) != picture(other));
        }
        QTest::keyClick(page.get(), Qt::Key_Tab);
        QVERIFY(!qobject_cast<LoginMethodBt *>(page->focusWidget()));
    }

    void choices_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("default") << "defaultUserBt"
                                 << QStringList{"addSuperUser(admin)", "signalLoginEvent(0,admin,468024)",
                                                "signalDefaultLocalSuperUserMethodSelected(admin,468024)",
                                                "updateLoginEnvironment()"};
        QTest::newRow("new") << "newUserBt" << QStringList{"signalLoginEvent(2)", "updateLoginEnvironment()"};
        QTest::newRow("cloud") << "saasUserBt"
                               << QStringList{"signalLoginEvent(0)", "signalSaasLoginEvent(0)",
                                              "setLastLoggedInUserType(2)", "updateLoginEnvironment()"};
    }

    void choices()
    {
        QFETCH(QString, name);
        QTest::mouseClick(button(name), Qt::LeftButton);
        QTEST(host.calls, "calls");
    }

    void defaultSuperUserRecord()
    {
        QTest::mouseClick(button("defaultUserBt"), Qt::LeftButton);
        const kelvra_data::SuperUserInfo &added = host.addedSuperUser;
        QCOMPARE(QStringList({added.userName, added.password, added.displayName, added.remark, added.answer1,
                              added.answer2, added.answer3}),
                 QStringList({"admin", "468024", "", "", "468024", "468024", "468024"}));
        QCOMPARE(QList<int>({added.role, added.id, added.question1, added.question2, added.question3}),
                 QList<int>({0, -1, 0, 1, 2}));
    }

    void refusedDefaultSuperUser()
    {
        const QStringList refused = {"addSuperUser(admin)", "messageAlert(" + notAvailable + ")",
                                     "updateLoginEnvironment()"};
        host.addSuperUserSucceeds = false;
        QTest::mouseClick(button("defaultUserBt"), Qt::LeftButton);
        QCOMPARE(host.calls, refused);
        const auto &dictionary = kelvra_worker::DictDef::_instance();
        QCOMPARE(host.alerts.first().first, dictionary.alertTitle(kelvra_worker::DictDef::WarningTitle));
        QTest::mouseClick(button("defaultUserBt"), Qt::LeftButton);
        QCOMPARE(host.calls, refused + refused);

        host.calls.clear();
        host.addSuperUserSucceeds = true;
        QTest::mouseClick(button("defaultUserBt"), Qt::LeftButton);
        QCOMPARE(host.calls.size(), 4);

        host.calls.clear();
        host.addSuperUserSucceeds = false;
        host.whileAlertIsOpen = [this] { page.reset(); };
        QTest::mouseClick(button("defaultUserBt"), Qt::LeftButton);
        QVERIFY(!page);
        QCOMPARE(host.calls, refused);
    }

    void languageChange()
    {
        const QStringList before = ::texts(*button("newUserBt"));
        Brackets brackets;
        QVERIFY(QCoreApplication::installTranslator(&brackets));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(::texts(*button("newUserBt")), QStringList({"[" + before[0] + "]", "[" + before[1] + "]"}));
        QCOMPARE(::texts(*button("defaultUserBt")).first(), QStringLiteral("[Use Default Superuser]"));
        QCOMPARE(::texts(*button("saasUserBt")).first(), QStringLiteral("[Login Nimbra App User]"));
        QCOMPARE(page->findChild<QLabel *>("label")->text(), QStringLiteral("[Welcome to login]"));
        QVERIFY(QCoreApplication::removeTranslator(&brackets));
        QCoreApplication::sendPostedEvents();
        QCOMPARE(::texts(*button("newUserBt")), before);
    }

private:
    void open()
    {
        page = std::make_unique<LoginMethodSelWt>(nullptr);
        QCOMPARE(page->size(), QSize(302, 685));
        page->show();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
    }

    LoginMethodBt *button(const QString &name) const { return page->findChild<LoginMethodBt *>(name); }
    QList<LoginMethodBt *> buttons() const
    {
        return {button("defaultUserBt"), button("newUserBt"), button("saasUserBt")};
    }

    QLayout *column() const
    {
        return page->findChild<QLayout *>("verticalLayout_2")->findChild<QLayout *>("verticalLayout");
    }

    // The left end, where a button has no text.
    static QImage picture(LoginMethodBt *bt) { return bt->grab(QRect(0, 0, 50, bt->height())).toImage(); }

    FakeHost &host = FakeHost::get();
    std::unique_ptr<LoginMethodSelWt> page;
};

QTEST_MAIN(TestMethodSel)

#include "tst_methodsel.moc"
