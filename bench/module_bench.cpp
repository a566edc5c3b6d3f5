#include "FirstPaint.h"
#include "PictureDialog.h"
#include "WakeUps.h"
#include "client/kelvra_data/Store.h"
#include "client/kelvra_saas/CloudService.h"
#include "client/kelvra_saas/SaasSetup.h"
#include "client/kelvra_worker/WorkerSetup.h"
#include "client/shell/ClientStyle.h"
#include "host/kelvra_data/UserData.h"
#include "host/kelvra_data/UserRole.h"
#include "host/kelvra_saas/Response.h"
#include "host/kelvra_worker/UiSettings.h"
#include "login/frame/LoginInit.h"
#include "login/frame/LoginSignals.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QQueue>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

#include <unistd.h>

using namespace kelvra_login;
using kelvra_data::Store;
using kelvra_data::UserData;

namespace {

constexpr double nsPerMs = 1e6;
constexpr int showings = 5;    // of each screen, after the first
constexpr int pauseMs = 40;    // between two showings: what the one before has left to do
constexpr int settleMs = 1500; // until a screen that nobody touches counts as idle
constexpr int countMs = 10000; // for which its wake-ups are counted
constexpr int lockSeconds = 180;
const QString user = QStringLiteral("root");

struct Screen
{
    const char *name;
    enum Kind { Local, Cloud, Splash } kind;
    int event;
};

// A cloud page is a page of the login form, which another screen has to follow before the form can be shown again.
constexpr Screen allScreens[] = {{"normal", Screen::Local, NormalLogin},
                                 {"cloud_password", Screen::Cloud, SaasPwdLogin},
                                 {"cloud_pin", Screen::Cloud, SaasVerificationCodeLogin},
                                 {"qr", Screen::Cloud, SaasScanQRCodeLogin},
                                 {"gesture", Screen::Local, GestureLogin},
                                 {"method", Screen::Local, LoginMethodSel},
                                 {"create", Screen::Local, CreateSuperUser},
                                 {"questions", Screen::Local, SetSecretAnswer},
                                 {"answers", Screen::Local, VerifySecretAnswer},
                                 {"reset", Screen::Local, ResetSuperUserPwd},
                                 {"splash", Screen::Splash, 0}};

[[noreturn]] void fail(const char *what, const char *where)
{
    std::fprintf(stderr, "module_bench: %s (%s)\n", what, where);
    std::exit(1);
}

/** A cloud whose answers arrive as those of a network do: through a file descriptor, with no timer. */
class PipeCloud : public kelvra_saas::CloudService
{
public:
    PipeCloud()
    {
        if (pipe(ends) != 0)
            return;
        notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] { answerNext(); });
    }

    ~PipeCloud() override
    {
        notifier.reset();
        close(ends[0]);
        close(ends[1]);
    }

    void send(const kelvra_saas::CloudRequest &request, const Callback &callback) override
    {
        using namespace kelvra_saas;
        CloudAnswer answer;
        answer.id = request.id;
        answer.code = successCode;
        answer.fields = {{accountField, request.fields.value(accountField)},
                         {codeIdField, QStringLiteral("1234567890")},
                         {validitySecondsField, 300},
                         {statusField, codeWaiting}};
        waiting.enqueue([answer, callback] { callback(answer); });
        if (write(ends[1], "a", 1) != 1)
            fail("no answer", qPrintable(request.operation));
    }

private:
    void answerNext()
    {
        char byte;
        if (read(ends[0], &byte, 1) == 1)
            waiting.dequeue()();
    }

    int ends[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
    QQueue<std::function<void()>> waiting;
};

void print(const char *prefix, const char *name, const char *unit, double value)
{
    std::printf("%s%s%s %.3f\n", prefix, name, unit, value);
}

/** Users and a login on record, as a client leaves them that has been used. */
void fillFolder(const QString &folder)
{
    QString error;
    if (!Store::_instance().open(folder, &error))
        fail("no data folder", qPrintable(error));
    auto &data = UserData::_instance();
    kelvra_data::SuperUserInfo info;
    info.userName = user;
    info.password = QStringLiteral("468024");
    info.role = kelvra_data::SuperUserRole;
    info.question2 = 1;
    info.question3 = 2;
    info.answer1 = info.answer2 = info.answer3 = info.password;
    if (!data.addSuperUser(info) || !data.updateUserGesture(user, QStringLiteral("01258")) ||
        !data.updateUserLoginRecord(user, false))
        fail("no user", qPrintable(folder));
}

/** Lets the program go on, as a user does who looks at the screen. */
void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/** Counts the paints of whatever is on the screen. */
class Paints : public QObject
{
public:
    Paints() { qApp->installEventFilter(this); }
    int taken() { return std::exchange(count, 0); }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }

private:
    int count = 0;
};

class Measurement
{
public:
    explicit Measurement(const QString &folder)
    {
        kelvra_worker::WorkerSetup::setDataFolder(folder);
        fillFolder(folder);
        kelvra_saas::SaasSetup::setService(&cloud);
        kelvra_client::ClientStyle::install(*qApp);
        kelvra_base::ModuleInitialization &module = LoginInit::_instance();
        module.moduleInit();
        module.init();
    }

    ~Measurement()
    {
        closeLogin();
        kelvra_saas::SaasSetup::close();
        Store::_instance().close();
    }

    /** Login and yardstick in turns; who comes first changes with the round. */
    void login(int round)
    {
        // The program has shown windows before, or the first of the two would pay for that.
        (void)showDialog();
        (void)openLogin(false);
        closeLogin();
        for (int showing = 0; showing < 2 * showings; ++showing) {
            // Pictures that the one before has loaded are no help.
            QPixmapCache::clear();
            pause(pauseMs);
            if ((showing + round) % 2 == 0) {
                print("", "login", "_ms", openLogin(false));
                closeLogin();
            } else {
                print("login_", "dialog", "_ms", showDialog());
            }
        }
    }

    /** First and further showings of every screen but the one that the dialog opens on, which the round decides. */
    void screens(int round)
    {
        const bool onGesture = round % 2 != 0;
        openLogin(onGesture);
        for (int showing = 0; showing <= showings; ++showing) {
            for (const Screen &screen : allScreens) {
                const bool opening =
                    screen.kind == Screen::Local && screen.event == (onGesture ? GestureLogin : NormalLogin);
                if (!opening && screen.kind != Screen::Splash)
                    print("screen_", screen.name, showing == 0 ? "_first_ms" : "_again_ms", show(screen));
            }
        }
        print("screen_", "splash", "_first_ms", show(find(QStringLiteral("splash"))));
        closeLogin();
        plainDialog();
    }

    void wakeUps(const QString &name)
    {
        // The caret's blink is no business of the module's.
        QApplication::setCursorFlashTime(0);
        std::unique_ptr<PictureDialog> dialog;
        if (name == QLatin1String("dialog")) {
            dialog = std::make_unique<PictureDialog>();
            dialog->show();
        } else {
            if (name == QLatin1String("locked"))
                UserData::_instance().updateLockInfo(true, lockSeconds);
            openLogin(false);
            if (name != QLatin1String("locked"))
                go(find(name));
        }
        pause(settleMs);
        WakeUps counter;
        int sum = 0;
        const QMap<QByteArray, int> timers = counter.count(countMs);
        for (auto timer = timers.begin(); timer != timers.end(); ++timer) {
            std::fprintf(stderr, "%s: %s %d\n", qPrintable(name), timer.key().data(), timer.value());
            sum += timer.value();
        }
        std::printf("wakeups_%s %d\nturns_%s %d\n", qPrintable(name), sum, qPrintable(name), counter.turns() - 1);
    }

private:
    /** Milliseconds until the dialog that the module opens is painted. */
    double openLogin(bool onGesture)
    {
        kelvra_worker::UiSettings::_instance().setValue(QStringLiteral("client_login_mode"), onGesture ? 1 : 0);
        firstPaint.expectNext();
        const qint64 start = FirstPaint::now();
        LoginInit::_instance().login(kelvra_worker::LocalUser, {}, false);
        firstPaint.wait();
        return double(firstPaint.paintedAt() - start) / nsPerMs;
    }

    void closeLogin()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        const auto dialog = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->inherits("kelvra_login::LoginDlg");
        });
        if (dialog != windows.end())
            delete *dialog;
    }

    double showDialog()
    {
        firstPaint.expectNext();
        const qint64 start = FirstPaint::now();
        PictureDialog dialog;
        dialog.show();
        firstPaint.wait();
        return double(firstPaint.paintedAt() - start) / nsPerMs;
    }

    /** Milliseconds until everything is painted that `change` has brought about. */
    template <typename Change>
    double timeOf(const char *name, const Change &change)
    {
        pause(pauseMs);
        paints.taken();
        QElapsedTimer timer;
        timer.start();
        change();
        QCoreApplication::sendPostedEvents(); // layout, then painting
        const double ms = double(timer.nsecsElapsed()) / nsPerMs;
        if (paints.taken() == 0)
            fail("nothing was painted", name);
        return ms;
    }

    static void go(const Screen &screen)
    {
        auto &hub = LoginSignals::_instance();
        if (screen.kind == Screen::Splash)
            emit hub.signalLoginSuccess();
        else if (screen.kind == Screen::Cloud)
            emit hub.signalSaasLoginEvent(SaasLoginEvent(screen.event), {});
        else
            emit hub.signalLoginEvent(LoginEvent(screen.event), {user});
    }

    double show(const Screen &screen)
    {
        if (screen.kind == Screen::Cloud)
            emit LoginSignals::_instance().signalLoginEvent(NormalLogin, {});
        return timeOf(screen.name, [&screen] { go(screen); });
    }

    /** The yardstick of the screens: painting the picture alone. */
    void plainDialog()
    {
        PictureDialog dialog;
        firstPaint.expectNext();
        dialog.show();
        firstPaint.wait();
        for (int showing = 0; showing < showings; ++showing)
            print("screen_", "plain", "_ms", timeOf("plain", [&dialog] { dialog.repaint(); }));
    }

    static const Screen &find(const QString &name)
    {
        for (const Screen &screen : allScreens) {
            if (name == QLatin1String(screen.name))
                return screen;
        }
        fail("no such screen", qPrintable(name));
    }

    PipeCloud cloud;
    FirstPaint firstPaint;
    Paints paints;
};

} // namespace

/**
 * The module in a running program, with the client's libraries:
 *   module_bench folder DIR    makes a data folder that a client has been used with
 *   module_bench login N       opening the login beside an empty dialog, in round N
 *   module_bench screens N     first and further showings of each screen
 *   module_bench wakeups NAME  timers that go off while nobody touches that screen, "locked" or the empty "dialog"
 */
int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    qputenv("QT_XCB_GL_INTEGRATION", "none"); // as the client has it
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString mode = arguments.value(1);
    const QString argument = arguments.value(2);
    if (mode == QLatin1String("folder")) {
        fillFolder(argument);
        Store::_instance().close();
        return 0;
    }
    const QTemporaryDir folder;
    Measurement measurement(folder.filePath(QStringLiteral("data")));
    if (mode == QLatin1String("login"))
        measurement.login(argument.toInt());
    else if (mode == QLatin1String("screens"))
        measurement.screens(argument.toInt());
    else if (mode == QLatin1String("wakeups"))
        measurement.wakeUps(argument);
    else
        fail("no such mode", qPrintable(mode));
    return 0;
}
