// Sends random real events to the module with the fake host and checks after each what must always be true:
// monkey [EVENTS [SEED]]
#include "TestTools.h"
#include "VirtualClock.h"
#include "host/kelvra_contact/SystemMsg.h"
#include "host/kelvra_saas/SaasWorker.h"
#include "login/frame/LoginAccess.h"
#include "login/frame/LoginInit.h"
#include "login/frame/LoginWorker.h"

#include <csignal>

using namespace kelvra_login;
using kelvra_saas::Response;

namespace {

constexpr int traceLines = 200;
constexpr unsigned hangSeconds = 120;

quint32 seed = 1;
int events = 0;
int timeStep = 0; // the last one, in milliseconds
QStringList trace;

[[noreturn]] void fail(const QString &what)
{
    std::fprintf(stderr, "%s\nseed %u, event %d: %s\n", qPrintable(trace.join('\n')), seed, events, qPrintable(what));
    std::_Exit(1);
}

void expect(bool fact, const QString &otherwise)
{
    if (!fact)
        fail(otherwise);
}

/** What the module's calls of the host come to, and whether they may come as they do. */
struct Watch
{
    int failures = 0;
    bool locked = false, mustLock = false, loggedIn = false, cloudSaysYes = false, quit = false;
    qint64 lockEnd = 0, handedOverAt = 0;
    QString road, handedOver, previous; // how the login under way has come, who the shell sends, the last call
    QMap<QString, qint64> drawn;        // when a user's gesture was right
    QSet<QString> recovered;
    QMap<QString, int> seen; // what has come how often

    // Qt's timers may be a little late.
    static bool isRecent(qint64 when) { return now - when <= autoLoginDelayMs * 11 / 10 + timeStep; }

    static bool isRight(const QString &call, const QString &name)
    {
        const FakeHost::User user = host.users.value(name);
        return host.users.contains(name) && (call == QString("verifyUserPassword(%1,%2)").arg(name, user.password) ||
                                             call == QString("verifyUserGesture(%1,%2)").arg(name, user.gesture));
    }

    void lock(bool on, qint64 end)
    {
        expect(!on || failures >= maxFailures || (locked && end >= lockEnd), "locked for nothing or for less");
        expect(on || !locked || now >= lockEnd || previous.startsWith("updateUserLoginRecord("), "unlocked early");
        seen["locks"] += on && !locked;
        lockEnd = on && !locked ? end : lockEnd;
        failures = on || end > now ? failures : 0; // an expired lock is stored with some seconds
        locked = on;
        mustLock = mustLock && !on;
    }

    void take(const QString &call)
    {
        const QString deed = call.section('(', 0, 0);
        const QStringList said = call.section('(', 1).chopped(1).split(',');
        const QString &name = said.first();
        const bool right = isRight(call, name);
        if (deed != "translate")
            trace << "    -> " + call;
        if (deed.startsWith("verifyUser")) {
            failures += !right;
            ++seen[(right ? "right " : "wrong ") + deed];
            if (deed == "verifyUserGesture" && !locked && right)
                drawn[name] = now;
        } else if (deed == "loginSuccessLog") {
            road = said.value(1) == "0" ? "password" : "gesture";
            const bool automatic = name == host.lastLocalUser && host.users.value(name).autoLogin &&
                                   host.sameEnvironment && LoginWorker::_instance().isAutoLoginAllowed();
            expect(!locked, "login by " + road + " while locked");
            expect(road == "password" ? isRight(previous, name) : isRecent(drawn.value(name)) || automatic,
                   "nobody verified it");
        } else if (deed == "loginFailureLog") {
            mustLock = failures >= maxFailures;
        } else if (deed == "updateLockInfo") {
            lock(name == "true", now + 1000LL * said.value(1).toInt());
        } else if ((deed == "verifySuperUserAnswers" && host.answersRight) ||
                   (deed == "checkSuperUserCredentials" && host.credentialsValid)) {
            recovered << name;
        } else if (deed == "resetUserPwdLog" || deed == "getbackPwdLog" || deed == "createUserLog") {
            expect(deed == "createUserLog" || recovered.contains(name), "a password without answers or credentials");
            road = deed == "getbackPwdLog" ? road : deed;
        } else if (deed == "setCurUserInfo" && name == "2") {
            road = cloudSaysYes ? "cloud" : "";
        } else if (deed == "setCurUserInfo" && handedOver == said.value(1) && isRecent(handedOverAt)) {
            road = "shell";
        } else if (deed == "setLoginSuccess") {
            expect(!road.isEmpty() && name == "true", "logged in out of nowhere");
            expect(!loggedIn && !quit, "logged in over another login or after the end");
            ++seen[std::exchange(road, QString())];
            loggedIn = true;
        }
        previous = call;
    }
};

/** A question to the cloud. It is answered at any time, rightly or not, as often as the monkey likes. */
struct Question
{
    QString id, kind;
    std::function<void(const Response &)> answer;
    bool answered = false;
};

class Monkey
{
public:
    Monkey()
    {
        QObject::connect(&messages, &kelvra_contact::SystemMsg::signalQuitSystem, qApp, [this] { watch.quit = true; });
        expect(credentials.open() && credentials.write(QByteArray(150, 'c')) == 150 && credentials.flush(), "no file");
        setUpHost();
    }

    void run(int wanted)
    {
        while (events < wanted)
            step();
        closeAll();
        std::printf("seed %u: %d events", seed, events);
        for (const QString &thing : watch.seen.keys())
            std::printf(", %d %s", watch.seen[thing], qPrintable(thing));
        std::puts("");
    }

private:
    using Parts = QVector<QPointer<QWidget>>;

    int below(int limit) { return int(random.bounded(quint32(limit))); }
    bool chance(int percent) { return below(100) < percent; }
    template <typename List>
    auto pick(const List &list)
    {
        return list.at(below(list.size()));
    }
    QString pick(const char *words) { return pick(QString(words).split(' ')); }

    /** Does one event and checks what has come of it. */
    template <typename Event>
    void once(const QString &name, const Event &event)
    {
        trace = trace.mid(qMax(0, trace.size() - traceLines)) << QString::number(events) + QString(depth, '>') + name;
        if (++events % 1000 == 0)
            alarm(hangSeconds);
        event();
        pass(5, 5);
    }

    void pass(int milliseconds, int longestStep)
    {
        while (milliseconds > 0) {
            timeStep = qMin(milliseconds, longestStep);
            milliseconds -= timeStep;
            now += timeStep;
            QCoreApplication::processEvents();
            check();
        }
    }

    void step()
    {
        QMap<WId, QWidget *> shown; // in the order that they were made in
        for (LoginDlg *dialog : dialogs()) {
            if (dialog->isVisible())
                shown[dialog->winId()] = dialog;
        }
        top = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : QApplication::activeModalWidget();
        if (!top && !shown.isEmpty())
            top = pick(shown.values());
        if (depth < 2 && chance(20))
            host.whileAlertIsOpen = host.whileFileDialogIsOpen = host.whileMessageBoxIsOpen = [this] { nest(true, 4); };
        if (watch.quit || shown.isEmpty() ? chance(30) : below(300) == 0)
            openLogin(!watch.quit && chance(20));
        else if (chance(30) || waiting || watch.quit || !top)
            happen();
        else
            act();
    }

    /** Steps while something is open that keeps its caller waiting; an alert takes all input. */
    void nest(bool alert, int steps)
    {
        const auto before = std::make_pair(waiting, top);
        waiting = waiting || alert;
        ++depth;
        for (check(); steps > 0; --steps)
            step();
        --depth;
        std::tie(waiting, top) = before;
    }

    void happen()
    {
        const int what = below(60);
        if (what < 20 && !questions.isEmpty())
            answer(questions[below(questions.size())]);
        else if (what < 40)
            once("time", [this] { pass(1 + below(chance(20) ? 3000 : 200), 50); });
        else if (what < 42)
            once("language", [this] { brackets.reset(brackets ? nullptr : new Brackets); });
        else if (what < 43)
            once("gateway", [this] { emit messages.signalDgwAbnormal(chance(50) ? "broken" : ""); });
        else if (what < 46)
            once("started again", [this] { emit messages.signalClientRepeatedStart(); });
        else if (what < 51)
            once("resend", [this] { emit resend.signalGetVerificationCodeRemainingSecs(below(61)); });
        else if (what < 52)
            once("lock time", [this] { pass(1000 * lockSecondsOnFailure + 2000, 50000); });
        else if (what < 53 && depth == 0)
            once("errand", [this] { errand(); });
        else
            once("progress", [this] {
                emit messages.signalSystemInitProgress(watch.loggedIn ? 100 : below(130) - 10);
                pass(watch.loggedIn ? 1500 : 20, 20);
            });
    }

    void act()
    {
        const int what = below(70);
        const Parts fields = visible("LineEdit$");
        const Parts parts = visible("Button|MethodBt|CheckBox|ComboBox|LinkLabel|List");
        const Parts dots = visible("GesturePoint");
        if (what < 25 && dots.size() == 9)
            draw(dots);
        else if (what < 35 && !parts.isEmpty())
            click(pick(parts));
        else if (what < 38)
            stroke({anywhere(top), anywhere(top), anywhere(top)});
        else if (what < 48 && !fields.isEmpty())
            fillIn(fields);
        else if (what < 54 && !fields.isEmpty())
            type(pick(fields), pick("root roots anna 13912345678 123456 x"));
        else if (what < 56)
            once("clipboard", [this] { QGuiApplication::clipboard()->setText(pick("root anna 123456")); });
        else
            key(below(200) == 0
                    ? "Esc"
                    : pick("Tab Shift+Backtab Return Num+Enter Backspace Del Shift+Left Home Down Space "
                           "Ctrl+A Ctrl+C Ctrl+V Ctrl+V Ctrl+X Ctrl+Z Alt+L Alt+F8 Alt+1 Alt+2 Alt+3 CapsLock"));
    }

    Parts visible(const char *classes)
    {
        Parts found;
        for (QWidget *widget : top->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->isEnabled() && (widget->objectName() != "closeBt" || chance(5)) &&
                QString(widget->metaObject()->className()).contains(QRegularExpression(classes)))
                found << widget;
        }
        return found;
    }

    QPoint anywhere(const QWidget *widget)
    {
        return widget->mapTo(widget->window(), QPoint(below(widget->width()), below(widget->height())));
    }

    void click(const QWidget *widget)
    {
        trace << "    at " + widget->objectName();
        stroke({anywhere(widget)});
    }

    void stroke(const QVector<QPoint> &way)
    {
        const QPointer<QWidget> window = top->window();
        const auto mouse = [&](QTest::MouseAction action, const QPoint &at) {
            once(QString("mouse %1 at %2,%3").arg(action).arg(at.x()).arg(at.y()), [&] {
                if (window && window->isVisible())
                    QTest::mouseEvent(action, window->windowHandle(), Qt::LeftButton, {}, at);
            });
        };
        mouse(QTest::MousePress, way.first());
        for (const QPoint &point : way)
            mouse(QTest::MouseMove, point + QPoint(1, 1)); // a move to where the mouse is already would be none
        mouse(QTest::MouseRelease, way.last());
        if (way.size() == 1 && chance(5))
            mouse(QTest::MouseDClick, way.first());
    }

    void draw(const Parts &dots)
    {
        QVector<QPoint> way;
        QPoint last;
        for (const QChar digit : chance(40) ? QString("0124") : QString::number(1000 + below(7000)).replace('9', '8')) {
            const QPoint dot = dots.value(digit.digitValue())->geometry().center();
            way << dots.first()->parentWidget()->mapTo(top, way.isEmpty() ? dot : dot + (dot - last) / 10); // past it
            last = dot;
        }
        stroke(way);
        if (chance(60))
            once("time", [this] { pass(autoLoginDelayMs + 100, 50); });
    }

    void key(const QString &name, const QString &text = {})
    {
        once("key " + name, [&] {
            const int code = QKeySequence(name)[0], modifiers = code & int(Qt::KeyboardModifierMask);
            for (const auto event : {QEvent::KeyPress, QEvent::KeyRelease}) {
                if (QWindow *window = QGuiApplication::focusWindow())
                    qt_handleKeyEvent(window, event, code - modifiers, Qt::KeyboardModifiers(modifiers), text);
            }
        });
    }

    void type(const QPointer<QWidget> &field, const QString &text)
    {
        if (!field || !field->isVisible())
            return;
        click(field);
        key("Ctrl+A");
        for (const QChar c : text)
            key(c, c);
    }

    /** Each field with what belongs there, right or nearly, and Return. */
    void fillIn(const Parts &fields)
    {
        const QString name = pick("root anna");
        const QMap<QString, QString> fitting{{"localUserWt", name},
                                             {"localPwdWt", name + (chance(15) ? "s" : "x")},
                                             {"userWt", pick("13912345678 boss")}};
        for (const QPointer<QWidget> &field : fields) {
            const QString place = field ? field->parent()->objectName() : QString();
            type(field, fitting.value(place, place.endsWith("wdWt") ? "Passw0rd1" : "123456"));
        }
        QWidget *focus = QApplication::focusWidget();
        if (focus && chance(10))
            once("held Return", [&] { holdEnter(focus); });
        key("Return", "\r");
    }

    void answer(Question &question)
    {
        const bool heard = chance(85) || question.kind.startsWith("getAccount"); // whose answers need no id
        const bool first = heard && !std::exchange(question.answered, question.answered || heard);
        const Response response{heard ? question.id : "", pick("1000 1000 2203 2204 2229 2231 9").toInt(), 8, {}};
        watch.cloudSaysYes = first && !question.kind.startsWith("getV") && response.code == kelvra_saas::successCode;
        once(QString("%1 %2 %3").arg(question.kind).arg(response.code).arg(first),
             [reply = question.answer, response] { reply(response); });
        watch.cloudSaysYes = false;
    }

    /** What a client asks of the module for the user who is in, whose dialog stays open for a while. */
    void errand()
    {
        QTimer::singleShot(0, qApp, [this] {
            const QPointer<QWidget> dialog = QApplication::activeModalWidget();
            nest(false, 30);
            delete dialog;
        });
        LoginAccess::_instance().gestureVerify(top);
    }

    /** Another login dialog: after a new start, after a switch of users, or beside the one that is there. */
    void openLogin(bool beside)
    {
        const bool switched = beside || (!watch.quit && chance(50));
        if (!switched && !watch.quit)
            once("end", [this] { emit messages.signalPrepareQuitSystem(); });
        if (!beside)
            closeAll();
        watch.quit = false;
        bool locked = false;
        int seconds = 0;
        LoginWorker::_instance().refreshLockInfo(locked, seconds); // as a new start does
        const QString name = switched || locked || chance(70) ? "" : pick("root anna");
        const QStringList handed = name.isEmpty() ? QStringList() : QStringList{name, name + pick("s x")};
        watch.handedOver = handed.value(1).endsWith('s') ? name : "";
        watch.handedOverAt = now;
        host.loginSuccess = watch.loggedIn = false;
        once(switched ? "switch user" : "login " + handed.join(' '), [&] {
            auto &init = LoginInit::_instance();
            const auto type = chance(70) ? kelvra_worker::LocalUser : kelvra_worker::CloudUser;
            switched ? init.switchUser() : init.login(type, handed, chance(70));
        });
    }

    void setUpHost()
    {
        host.users.clear();
        host.firstLogin = chance(10);
        if (!host.firstLogin) {
            host.rememberUser("anna", "annas").gesture = host.rememberUser("root", "roots").gesture = "0124";
            host.users["root"].superUser = true;
            host.lastLocalUser = pick("root anna");
            host.users[host.lastLocalUser].autoLogin = chance(30);
        }
        host.superUser.userName = "root";
        host.lastUserType = chance(50) ? kelvra_worker::CloudUser : kelvra_worker::LocalUser;
        host.settings["client_login_mode"] = below(2);
        host.chosenFile = chance(50) ? credentials.fileName() : QString();
        for (bool *fact :
             {&host.customization.cloudLoginEnabled, &host.sameEnvironment, &host.answersRight, &host.credentialsValid})
            *fact = chance(60);
    }

    void closeAll()
    {
        ++watch.seen["dialogs"];
        once("close", [this] {
            qDeleteAll(dialogs());
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            for (const QWidget *left : QApplication::allWidgets())
                expect(depth > 0 || left->inherits("QTipLabel") || left->windowType() == Qt::Desktop,
                       QString("%1 %2 outlives its dialog").arg(left->metaObject()->className(), left->objectName()));
            watch.recovered.clear();
            setUpHost();
        });
    }

    void check()
    {
        QStringList pages = host.callsOf({"login", "getVerificationCode", "getAccountAfterScanQRCode"});
        for (const QString &call : std::exchange(host.calls, {}))
            watch.take(call);
        const auto ask = [this](auto &calls, const QString &kind, const auto &...rest) {
            for (const auto &call : std::exchange(calls, {}))
                questions.append({call.requestId, kind, [=](const Response &reply) { call.answer(reply, rest...); }});
        };
        for (const auto &call : std::exchange(host.cloudCalls, {}))
            questions.append({call.requestId, pages.takeFirst(), call.callback});
        ask(host.autoLogins, "automatic login", QString("13912345678"));
        ask(host.qrCodeRequests, "QR code", kelvra_saas::LoginQRCodeInfo{"id", "image", below(90)});
        ask(host.qrCodeStatusQueries, "status", 2001 + below(8));
        ask(host.qrCodeResultQueries, "result");
        questions = questions.mid(qMax(0, questions.size() - 20));

        auto &worker = LoginWorker::_instance();
        expect(worker.failedTimes() == watch.failures, QString("%1 failures").arg(watch.failures));
        expect(!watch.mustLock, "no lock after the last failure");
        expect(host.loginSuccess == watch.loggedIn, "the login flag is wrong");
        expect(watch.quit || (worker.isLocked() == host.locked && host.locked == watch.locked), "the lock is wrong");
        for (const LoginDlg *dialog : dialogs()) {
            for (const auto *stack : dialog->findChildren<QStackedWidget *>()) {
                if (stack->isVisible())
                    checkPages(stack);
            }
        }
    }

    void checkPages(const QStackedWidget *stack)
    {
        int shown = 0;
        for (int page = 0; page < stack->count(); ++page)
            shown += stack->widget(page)->isVisible();
        expect(shown == 1, QString("%1 pages on show in %2").arg(shown).arg(stack->parent()->objectName()));
        if (events % 500 != 0)
            return;
        const QImage image = stack->currentWidget()->grab().toImage();
        QImage plain = image;
        plain.fill(image.pixelColor(0, 0));
        expect(image != plain, stack->currentWidget()->objectName() + " is blank");
    }

    QRandomGenerator random{seed};
    kelvra_contact::SystemMsg &messages = kelvra_contact::SystemMsg::_instance();
    kelvra_saas::SaasWorker &resend = kelvra_saas::SaasWorker::_instance();
    QTemporaryFile credentials;
    std::unique_ptr<Brackets> brackets;
    Watch watch;
    QVector<Question> questions;
    QPointer<QWidget> top; // takes the input
    int depth = 0;
    bool waiting = false;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    seed = app.arguments().value(2, "1").toUInt();
    for (const int number : {SIGSEGV, SIGABRT, SIGFPE, SIGALRM})
        std::signal(number, [](int signal) { fail(QString("signal %1").arg(signal)); });
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
        expect(text.startsWith("This plugin does not support"), "Qt says: " + text);
    });
    Monkey().run(app.arguments().value(1, "100000").toInt());
}
