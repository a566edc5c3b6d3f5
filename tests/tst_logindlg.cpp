#include "TestTools.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "login/frame/LoginInit.h"
#include "login/frame/LoginWorker.h"
#include "login/frame/SplashScreen.h"

#ifdef Q_OS_UNIX
#    include <sys/stat.h>
#endif

using namespace kelvra_login;
using kelvra_contact::SystemMsg;

using Happening = std::function<void()>;
Q_DECLARE_METATYPE(Happening)

namespace {

const QRect track(40, 423, 780, 7);

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

bool alike(const QImage &image, const QPoint &at, const QColor &colour)
{
    const QColor found = image.pixelColor(at);
    return qAbs(found.red() - colour.red()) + qAbs(found.green() - colour.green()) < 8;
}

} // namespace

class TestLoginDlg : public WindowTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        LoginInit::_instance(); // enters the screens
        qApp->installEventFilter(this);
        const auto recordState = [this](const char *signal) {
            return [this, signal] { host.record(signal, {window && window->isVisible() ? "shown" : "hidden"}); };
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
        auto *dialog = new LoginDlg(nullptr);
        connect(dialog, &QDialog::rejected, this, [] { host.record("rejected", {}); });
        open(dialog);
    }

    void cleanup() { qDeleteAll(dialogs()); }

    void looks()
    {
        QVERIFY(window->minimumSize() == QSize(860, 500) && window->maximumSize() == QSize(860, 500));
        QCOMPARE(int(window->windowFlags()) & 0xe000, 0xe000);
        child("logo")->resize(10, 10); // the client's picture is not here
        QVERIFY(window->childAt(34, 20) == child("logo") && window->childAt(33, 19) != child("logo"));
        QCOMPARE(child("closeBt")->geometry(), QRect(831, 15, 14, 14));
        QVERIFY(child("closeBt")->property("common_close_bt_style1").toBool());
        QCOMPARE(stack()->geometry(), window->rect());
        const QPoint before = window->pos();
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, {200, 450});
        QTest::mouseMove(window->windowHandle(), {230, 470});
        QCOMPARE(window->pos(), before + QPoint(30, 20));
    }

    void everyWayQuitsOnce()
    {
        const QStringList ways{"close button", "close", "Escape", "Escape in a field", "Escape on the splash screen"};
        for (const QString &by : ways) {
            init();
            showScreen(NormalLogin);
            if (by.startsWith("Escape on"))
                stack()->setCurrentIndex(1);
            if (by == "close button")
                QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, {838, 22});
            else if (by == "close")
                window->close();
            else
                QTest::keyClick(by == "Escape in a field" ? edit("localUserWt") : window.data(), Qt::Key_Escape);
            QVERIFY2(!window->isVisible(), qPrintable(by));
            window->close();
            emit msg->signalDgwAbnormal({});
            emit msg->signalClientRepeatedStart();
            emit LoginSignals::_instance().signalLoginSuccess();
            QCOMPARE(host.callsOf({"prepareQuit", "quit", "rejected", "success"}), quitOnce);
            QVERIFY(!window->isVisible());
        }
    }

    void abnormalNotice()
    {
        host.whileMessageBoxIsOpen = [this] { emit msg->signalDgwAbnormal({}); };
        emit msg->signalDgwAbnormal("broken");
        QCOMPARE(host.calls, QStringList("warning(kelvra_login__LoginDlg,broken,1,false)") + quitOnce);

        init();
        host.whileMessageBoxIsOpen = [this] { delete window; };
        emit msg->signalDgwAbnormal("broken");
        QVERIFY(!window);
    }

    void fatalMessageQuitsOnceWhateverBecomesOfTheDialog_data()
    {
        QTest::addColumn<Happening>("whileItIsOpen");
        QTest::newRow("deleted") << Happening([this] { delete window; });
        QTest::newRow("closed and deleted") << Happening([this] {
            window->close();
            delete window;
        });
        QTest::newRow("loaded") << Happening([this] {
            emit msg->signalSystemInitProgress(100);
            QTRY_VERIFY(!window);
        });
    }

    void fatalMessageQuitsOnceWhateverBecomesOfTheDialog()
    {
        QFETCH(Happening, whileItIsOpen);
        host.whileMessageBoxIsOpen = whileItIsOpen;
        emit msg->signalDgwAbnormal("broken");
        QCOMPARE(host.callsOf({"prepareQuit", "quit"}).size(), 2);
    }

    void dialogMayDieOfWhatItAnnounces_data()
    {
        QTest::addColumn<QByteArray>("announcement");
        QTest::addColumn<QStringList>("announced");
        QTest::newRow("loading begins") << QByteArray(SIGNAL(signalLoginSuccess()))
                                        << QStringList({"success(shown)", "progress(50)"});
        QTest::newRow("loading is half done")
            << QByteArray(SIGNAL(signalSystemInitProgress(int))) << QStringList({"success(shown)", "progress(50)"});
        QTest::newRow("loading ends") << QByteArray(SIGNAL(signalSystemInitFinished()))
                                      << QStringList({"success(shown)", "progress(50)", "finished(hidden)"});
        QTest::newRow("the client will quit")
            << QByteArray(SIGNAL(signalPrepareQuitSystem()))
            << QStringList({"success(shown)", "progress(50)", "prepareQuit(shown)", "quit(hidden)"});
        QTest::newRow("the client quits")
            << QByteArray(SIGNAL(signalQuitSystem()))
            << QStringList({"success(shown)", "progress(50)", "prepareQuit(shown)", "quit(shown)"});
    }

    void dialogMayDieOfWhatItAnnounces()
    {
        QFETCH(QByteArray, announcement);
        QFETCH(QStringList, announced);
        const auto connection = connect(msg, announcement.constData(), this, SLOT(deleteWindow()));
        emit LoginSignals::_instance().signalLoginSuccess();
        if (window && announced.last().startsWith("finished"))
            window->findChild<SplashScreen *>()->slotSmoothProgress(100);
        else if (window)
            window->close();
        disconnect(connection);
        QVERIFY(!window);
        QCOMPARE(host.callsOf({"success", "progress", "finished", "prepareQuit", "quit"}), announced);
    }

    void dialogMayDieOfALoginWhileItIsBuilt()
    {
        delete window;
        host.lastUserType = kelvra_worker::CloudUser;
        host.customization.cloudLoginEnabled = true;
        host.whileCloudIsAsked = [] {
            const auto asked = host.autoLogins.last();
            asked.answer({asked.requestId, kelvra_saas::successCode, 0, {}}, asked.account);
        };
        QObject context;
        connect(msg, &SystemMsg::signalLoginSuccess, &context, [] { qDeleteAll(dialogs()); });
        LoginInit::_instance().login(kelvra_worker::CloudUser, {}, true);
        QVERIFY(dialogs().isEmpty());
        QVERIFY(host.loginSuccess);
    }

    void repeatedStartBringsTheDialogBack()
    {
        window->showMinimized();
        emit msg->signalClientRepeatedStart();
        QVERIFY(!window->isMinimized() && window->isVisible());
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        emit msg->signalClientRepeatedStart();
        QTRY_COMPARE(QApplication::activeWindow(), window.data());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void loading()
    {
        emit LoginSignals::_instance().signalLoginSuccess();
        QCOMPARE(host.calls, QStringList({"signalLoginSuccess()", "success(shown)", "progress(50)"}));
        QVERIFY(isShown("splashScreen") && !isShown("logo"));
        QTRY_COMPARE(text("progress"), QString("50%"));
        emit msg->signalSystemInitProgress(-20);
        QTRY_COMPARE(text("progress"), QString("0%"));
        emit msg->signalSystemInitProgress(300);
        QTRY_VERIFY(!window);
        QCOMPARE(host.calls.mid(3), QStringList({"progress(-20)", "progress(300)", "finished(hidden)"}));

        init();
        emit msg->signalSystemInitProgress(100); // the first report may be the last
        QTRY_VERIFY(!window);
        QCOMPARE(host.calls, QStringList({"progress(100)", "finished(hidden)"}));
    }

    void splash()
    {
        host.customization.loadingImagePath = folder.filePath("loading.png"); // not there yet
        host.customization.customLoadingImageEnabled = true;
        QCOMPARE(difference(SplashScreen().grab().toImage(), builtIn()), track);
        QVERIFY(plain({4, 4}, Qt::black).save(host.customization.loadingImagePath));
        host.customization.customLoadingImageEnabled = false;
        QCOMPARE(difference(SplashScreen().grab().toImage(), builtIn()), track);
        host.customization.customLoadingImageEnabled = true;
        SplashScreen splash;
        const QImage empty = splash.grab().toImage();
        QCOMPARE(difference(empty, plain({860, 500}, Qt::black)), track);
        const QColor colour("#202a3f");
        QVERIFY(empty.pixelColor(700, 426) == colour && empty.pixelColor(40, 423) != colour); // rounded

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
            if (head.key() > 1) // all of it is under the glow
                QVERIFY(alike(image, {43, 426}, "#0f8bfd") && alike(image, bar.center(), "#10c1fd"));
        }
    }

    void customPictureThatCannotBeShown_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("size");
        QTest::newRow("no picture") << QByteArray("<html>") << 6;
        QTest::newRow("empty") << QByteArray() << 0;
        QTest::newRow("too large") << onePixel() << 50'000'000;
    }

    void customPictureThatCannotBeShown()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, size);
        QFile file(useCustomPicture(content));
        QVERIFY(file.resize(size));
        QCOMPARE(difference(SplashScreen().grab().toImage(), builtIn()), track);
    }

    void customPictureIsTakenAtConstruction()
    {
        const QString path = useCustomPicture(onePixel());
        SplashScreen splash;
        QVERIFY(QFile::remove(path));
        QCOMPARE(difference(splash.grab().toImage(), plain({860, 500}, Qt::black)), track);
    }

#ifdef Q_OS_UNIX
    void customPictureThatIsAPipeDoesNotHang()
    {
        const QString path = useCustomPicture({});
        QVERIFY(QFile::remove(path));
        QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
        QCOMPARE(difference(SplashScreen().grab().toImage(), builtIn()), track);
    }
#endif

    void moduleEntry()
    {
        const QString sheet = qApp->styleSheet();
        QCOMPARE(sheet.count("login_userItem_wt"), 1);
        static_cast<kelvra_base::ModuleInitialization &>(LoginInit::_instance()).init();
        QCOMPARE(qApp->styleSheet(), sheet);

        painted = false;
        LoginInit::_instance().login(kelvra_worker::LocalUser, {}, true);
        QVERIFY(std::exchange(painted, false) && LoginWorker::_instance().isAutoLoginAllowed());
        LoginInit::_instance().switchUser();
        QVERIFY(painted && !LoginWorker::_instance().isAutoLoginAllowed());
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        painted = painted || (event->type() == QEvent::Paint && watched->objectName() == "loginWt");
        return QObject::eventFilter(watched, event);
    }

private slots:
    void deleteWindow()
    {
        delete window;
    }

private:
    static QImage builtIn()
    {
        return QImage(":/login_images/images/img_bg_loading.png")
            .scaled(860, 500, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

    static QByteArray onePixel()
    {
        QBuffer file;
        plain({1, 1}, Qt::black).save(&file, "png");
        return file.data();
    }

    /** Has the host name a file of that content for its loading picture; returns the file's path. */
    QString useCustomPicture(const QByteArray &content) const
    {
        QFile file(folder.filePath("custom.png"));
        if (!file.open(QFile::WriteOnly) || file.write(content) != content.size())
            qFatal("no picture file");
        host.customization.customLoadingImageEnabled = true;
        return host.customization.loadingImagePath = file.fileName();
    }

    QStackedWidget *stack() const
    {
        return child<QStackedWidget>("stackedWidget");
    } // the outermost is found first

    SystemMsg *const msg = &SystemMsg::_instance();
    const QStringList quitOnce{"prepareQuit(shown)", "quit(shown)", "rejected()"};
    const QTemporaryDir folder;
    bool painted = false;
};

QTEST_MAIN(TestLoginDlg)

#include "tst_logindlg.moc"
