#include "fakehost/FakeHost.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginInit.h"
#include "login/frame/LoginSignals.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/SplashScreen.h"
#include "login/local/ScreenTable.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QtTest>

using namespace kelvra_login;
using kelvra_contact::SystemMsg;

namespace {

FakeHost &host = FakeHost::get();
const QColor trackColour("#202a3f");

/** A page whose Enter clicks its second button; it leaves the key to whoever is above. */
class EnterPage : public QWidget
{
public:
    explicit EnterPage(QWidget *parent)
        : QWidget(parent)
    {
        for (const char *name : {"otherBt", "mainBt"}) {
            main = new QPushButton(this);
            connect(main, &QPushButton::clicked, this, [name] { host.record(name, {}); });
        }
        (new QLineEdit(this))->setObjectName("edit");
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            emit main->clicked();
        QWidget::keyPressEvent(event);
    }

private:
    QPushButton *main = nullptr;
};

QImage plain(const QSize &size, const QColor &colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

/** The smallest rectangle that holds what differs above the splash screen's labels. */
QRect difference(const QImage &one, const QImage &other)
{
    QRect found;
    for (int y = 0; y < qMin(445, one.height()); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

bool alike(const QColor &one, const QColor &other)
{
    return qAbs(one.red() - other.red()) < 8 && qAbs(one.green() - other.green()) < 8 &&
           qAbs(one.blue() - other.blue()) < 8;
}

} // namespace

class TestLoginDlg : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        LoginInit::_instance(); // enters the screens
        ScreenTable::enter(CreateSuperUser,
                           {[](const QStringList &, QWidget *parent) { return new EnterPage(parent); }, {}});
        qApp->installEventFilter(this);
        const auto recordState = [this](const char *signal) {
            return [this, signal] { host.record(signal, {dialog && dialog->isVisible() ? "shown" : "hidden"}); };
        };
        connect(msg, &SystemMsg::signalLoginSuccess, this, recordState("success"));
        connect(msg, &SystemMsg::signalSystemInitFinished, this, recordState("finished"));
        connect(msg, &SystemMsg::signalPrepareQuitSystem, this, recordState("prepareQuit"));
        connect(msg, &SystemMsg::signalQuitSystem, this, recordState("quit"));
        connect(msg, &SystemMsg::signalSystemInitProgress, this,
                [](int progress) { host.record("progress", {QString::number(progress)}); });
    }

    void init()
    {
        LoginWorker::_instance().setLocked(false);
        host.reset();
        dialog = new LoginDlg(nullptr);
        connect(dialog, &QDialog::rejected, this, [] { host.record("rejected", {}); });
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog));
    }

    void cleanup()
    {
        QList<QPointer<QWidget>> windows; // some go with the dialog that owns them
        for (QWidget *window : QApplication::topLevelWidgets())
            windows << window;
        for (const QPointer<QWidget> &window : windows)
            delete qobject_cast<LoginDlg *>(window);
    }

    void looks()
    {
        QCOMPARE(dialog->objectName(), QString("kelvra_login__LoginDlg"));
        QVERIFY(dialog->minimumSize() == QSize(860, 500) && dialog->maximumSize() == QSize(860, 500));
        QCOMPARE(int(dialog->windowFlags()) & 0xe000, 0xe000);
        auto *closeBt = dialog->findChild<QPushButton *>("closeBt");
        QCOMPARE(closeBt->geometry(), QRect(831, 15, 14, 14));
        QVERIFY(!closeBt->isDefault() && !closeBt->autoDefault() && closeBt->focusPolicy() == Qt::NoFocus);
        QVERIFY(closeBt->property("common_close_bt_style1").toBool());
        auto *logo = child<QLabel>("logo");
        QCOMPARE(logo->pos(), QPoint(34, 20));
        logo->resize(10, 10); // the client's picture is not here
        QVERIFY(dialog->childAt(838, 22) == closeBt && dialog->childAt(38, 24) == logo);
        QCOMPARE(stack()->geometry(), dialog->rect());
        QCOMPARE(stack()->currentWidget()->objectName(), QString("loginWt"));
    }

    void percentOutlivesTheLanguage()
    {
        QCOMPARE(child<QLabel>("label")->text() + child<QLabel>("progress")->text(),
                 QString("System Data Loading...0%"));
        dialog->findChild<SplashScreen *>()->slotSmoothProgress(37);
        QEvent change(QEvent::LanguageChange);
        QApplication::sendEvent(dialog, &change);
        QCOMPARE(child<QLabel>("progress")->text(), QString("37%"));
    }

    void quitting_data()
    {
        QTest::addColumn<QString>("by");
        for (const char *by : {"close button", "close", "Escape", "Escape in a field", "Escape on the splash screen"})
            QTest::newRow(by) << by;
    }

    void quitting()
    {
        QFETCH(QString, by);
        show(CreateSuperUser);
        if (by.startsWith("Escape on"))
            stack()->setCurrentIndex(1);
        if (by == "close button")
            QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, {838, 22});
        else if (by == "close")
            dialog->close();
        else
            QTest::keyClick(by == "Escape in a field" ? child<QWidget>("edit") : dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        dialog->close();
        emit msg->signalDgwAbnormal({});
        emit msg->signalClientRepeatedStart();
        emit LoginSignals::_instance().signalLoginSuccess();
        QCOMPARE(host.callsOf({"prepareQuit", "quit", "rejected", "success"}), quitOnce);
        QVERIFY(!dialog->isVisible());
    }

    void enterClicksThePageOnly()
    {
        dialog->hide();
        show(CreateSuperUser);
        dialog->show(); // now a dialog marks a default button
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        child<QLineEdit>("edit")->setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            host.calls.clear();
            QTest::keyClick(dialog->windowHandle(), key);
            QCOMPARE(host.calls, QStringList("mainBt()"));
        }
        show(NormalLogin);
        child<QWidget>("localUserWt")->findChild<QLineEdit *>()->setText("ann");
        auto *pwd = child<QWidget>("localPwdWt")->findChild<QLineEdit *>();
        pwd->setText("wrong");
        pwd->setFocus();
        host.calls.clear();
        QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
        QCOMPARE(host.callsOf({"verifyUserPassword", "mainBt", "otherBt", "prepareQuit"}),
                 QStringList("verifyUserPassword(ann,wrong)"));
    }

    void abnormalNotice()
    {
        host.whileMessageBoxIsOpen = [this] { emit msg->signalDgwAbnormal({}); };
        emit msg->signalDgwAbnormal("broken");
        QCOMPARE(host.calls, QStringList("warning(kelvra_login__LoginDlg,broken,1,false)") + quitOnce);
        delete dialog;

        init();
        emit msg->signalDgwAbnormal({});
        QCOMPARE(host.calls, quitOnce);
        delete dialog;

        init();
        host.whileMessageBoxIsOpen = [this] { delete dialog; };
        emit msg->signalDgwAbnormal("broken");
        QVERIFY(!dialog);
    }

    void repeatedStartBringsTheDialogBack()
    {
        dialog->showMinimized();
        emit msg->signalClientRepeatedStart();
        QVERIFY(!dialog->isMinimized() && dialog->isVisible());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        emit msg->signalClientRepeatedStart();
        QTRY_COMPARE(QApplication::activeWindow(), dialog.data());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void loading()
    {
        emit LoginSignals::_instance().signalLoginSuccess();
        QCOMPARE(host.calls, QStringList({"success(shown)", "progress(50)"}));
        QCOMPARE(stack()->currentWidget()->objectName(), QString("splashScreen"));
        QVERIFY(!child<QLabel>("logo")->isVisible());
        QTRY_COMPARE(child<QLabel>("progress")->text(), QString("50%"));
        emit msg->signalSystemInitProgress(-20);
        QTRY_COMPARE(child<QLabel>("progress")->text(), QString("0%"));
        emit msg->signalSystemInitProgress(300);
        QTRY_VERIFY(!dialog);
        QCOMPARE(host.calls.mid(2), QStringList({"progress(-20)", "progress(300)", "finished(hidden)"}));

        init();
        emit msg->signalSystemInitProgress(100); // the first report may be the last
        QTRY_VERIFY(!dialog);
        QCOMPARE(host.calls, QStringList({"progress(100)", "finished(hidden)"}));
    }

    void splashBar()
    {
        useLoadingImage(plain({4, 4}, Qt::black), true);
        SplashScreen splash;
        const QImage empty = splash.grab().toImage();
        QCOMPARE(difference(empty, plain({860, 500}, Qt::black)), QRect(40, 423, 780, 7));
        QCOMPARE(empty.pixelColor(700, 426), trackColour);
        QVERIFY(empty.pixelColor(40, 423) != trackColour); // rounded

        const QPixmap light(":/login_images/images/img_light.png");
        QImage glow = plain(light.size(), Qt::black);
        QPainter(&glow).drawPixmap(0, 0, light);
        const QRect glowRect = difference(glow, plain(light.size(), Qt::black));
        const QMap<int, int> heads{{1, 47}, {37, 328}, {50, 430}, {100, 820}}; // 47.8 and 328.6 are cut
        for (auto head = heads.begin(); head != heads.end(); ++head) {
            splash.slotSmoothProgress(head.key());
            const QImage image = splash.grab().toImage();
            const QRect bar(40, 423, *head - 40, 7);
            QCOMPARE(difference(image, empty), bar | glowRect.translated(*head - 18, 410));
            if (head.key() == 1)
                continue; // all of it is under the glow
            QVERIFY(alike(image.pixelColor(43, 426), "#0f8bfd"));
            QVERIFY(alike(image.pixelColor(bar.center()), "#10c1fd"));
            // Under the glow: the bar's bright end before the head, what was there before behind it. The lower row
            // shines less.
            for (const int offset : {-3, 2}) {
                QImage pixel = plain({1, 1}, offset < 0 ? "#12f8fd" : empty.pixelColor(*head + offset, 428));
                QPainter(&pixel).drawPixmap(-18 - offset, 410 - 428, light);
                QVERIFY(alike(image.pixelColor(*head + offset, 428), pixel.pixelColor(0, 0)));
            }
        }
    }

    void splashBackground()
    {
        QImage halves = plain({2, 1}, Qt::red);
        halves.setPixelColor(1, 0, Qt::blue);
        useLoadingImage(halves, true);
        const QImage custom = SplashScreen().grab().toImage();
        QVERIFY(custom.pixelColor(2, 2) == Qt::red && custom.pixelColor(857, 497) == Qt::blue);

        const QImage builtIn(":/login_images/images/img_bg_loading.png");
        const QRect track(40, 423, 780, 7);
        useLoadingImage(halves, false);
        QCOMPARE(difference(SplashScreen().grab().toImage(), builtIn), track);
        host.customization.customLoadingImageEnabled = true;
        for (const QString &path : {folder.filePath("missing.png"), folder.path(), QString()}) {
            host.customization.loadingImagePath = path;
            QCOMPARE(difference(SplashScreen().grab().toImage(), builtIn), track);
        }
    }

    void dragging()
    {
        const QPoint before = dialog->pos();
        QTest::mousePress(dialog->windowHandle(), Qt::LeftButton, {}, {200, 450});
        QTest::mouseMove(dialog->windowHandle(), {230, 470});
        QTest::mouseRelease(dialog->windowHandle(), Qt::LeftButton, {}, {200, 450});
        QCOMPARE(dialog->pos(), before + QPoint(30, 20));
    }

    void moduleEntry()
    {
        const QString sheet = qApp->styleSheet();
        QCOMPARE(sheet.count("login_userItem_wt"), 1);
        kelvra_base::ModuleInitialization &module = LoginInit::_instance();
        module.moduleInit();
        module.init();
        module.recoveryToInitialState();
        QCOMPARE(qApp->styleSheet(), sheet);

        for (const bool switching : {false, true}) {
            cleanup();
            painted = false;
            if (switching)
                LoginInit::_instance().switchUser();
            else
                LoginInit::_instance().login(kelvra_worker::LocalUser, {}, true);
            QVERIFY(painted);
            QCOMPARE(LoginWorker::_instance().isAutoLoginAllowed(), !switching);
        }
        QCOMPARE(host.callsOf({"verifyUserPassword", "tryAutoLogin"}), QStringList());
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || (event->type() == QEvent::Paint && watched->objectName() == "loginWt");
        return QObject::eventFilter(watched, event);
    }

private:
    template <typename Widget>
    Widget *child(const QString &name) const
    {
        return dialog->findChild<Widget *>(name);
    }
    QStackedWidget *stack() const { return child<QStackedWidget>("stackedWidget"); } // the outermost is found first
    static void show(LoginEvent event) { emit LoginSignals::_instance().signalLoginEvent(event, {}); }

    void useLoadingImage(const QImage &image, bool enabled) const
    {
        host.customization.customLoadingImageEnabled = enabled;
        host.customization.loadingImagePath = folder.filePath("loading.png");
        QVERIFY(image.save(host.customization.loadingImagePath));
    }

    SystemMsg *const msg = &SystemMsg::_instance();
    const QStringList quitOnce{"prepareQuit(shown)", "quit(shown)", "rejected()"};
    const QTemporaryDir folder;
    QPointer<LoginDlg> dialog;
    bool painted = false;
};

QTEST_MAIN(TestLoginDlg)

#include "tst_logindlg.moc"
