#pragma once

#include "WindowParts.h"
#include "fakehost/Brackets.h"
#include "login/frame/LoginDlg.h"
#include "login/frame/LoginSignals.h"

/** What the module's tests share. */
inline FakeHost &host = FakeHost::get();

/** The host without a record of anything, with a superuser "root". */
inline void resetHost()
{
    host.reset();
    host.users["root"].superUser = true;
    host.superUser.userName = "root";
    host.superUser.password = "roots";
}

/** Enters what the hub announces among the host's calls, so that the order of both shows. */
inline void recordHub(const QObject *context)
{
    using kelvra_login::LoginSignals;
    const auto &hub = LoginSignals::_instance();
    const auto recordEvent = [](const char *signal) {
        return [signal](int event, const QStringList &params) {
            host.record(signal, QStringList(QString::number(event)) + params);
        };
    };
    QObject::connect(&hub, &LoginSignals::signalLoginEvent, context, recordEvent("signalLoginEvent"));
    QObject::connect(&hub, &LoginSignals::signalSaasLoginEvent, context, recordEvent("signalSaasLoginEvent"));
    QObject::connect(&hub, &LoginSignals::signalLoginSuccess, context, [] { host.record("signalLoginSuccess", {}); });
    QObject::connect(&hub, &LoginSignals::signalDefaultLocalSuperUserMethodSelected, context,
                     [](const QString &name, const QString &pwd) {
                         host.record("fillIn", {name, pwd});
                     });
}

/** What was done and announced since the last call, in order, without what was only looked up. */
inline QString deeds()
{
    static const QRegularExpression noLookUp("^(?!get[A-Z]|is[A-Z]|retranslate|translate)");
    return std::exchange(host.calls, {}).filter(noLookUp).join(' ');
}

/** The end of every login's deeds. */
inline const QString endOfLogin = "setSuperUserInfo(root,roots) setLoginSuccess(true) signalLoginSuccess()";

/** What an accepted local login does: for `user` as "name,password,attribute". */
inline QString localLogin(const QString &user, const QString &autoLogin)
{
    return QString("updateLoginEnvironment() updateUserLoginRecord(%1,%3) updateLockInfo(false,0) "
                   "setCurUserInfo(1,%2,%3) %4")
        .arg(user.section(',', 0, 0), user, autoLogin, endOfLogin);
}

/** Lets the login screens show what belongs to `event`. */
inline void showScreen(int event, const QStringList &params = {})
{
    emit kelvra_login::LoginSignals::_instance().signalLoginEvent(kelvra_login::LoginEvent(event), params);
}

/** The text of the tool tip that hangs from the line edit's upper edge, if one does and the keys go there. */
inline QString tipAt(const QLineEdit *edit)
{
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const QPoint offset = window->pos() - edit->mapToGlobal(QPoint(0, 0));
        const bool hangs = window->inherits("QTipLabel") && window->isVisible();
        if (hangs && edit->hasFocus() && offset.x() < 6 && offset.y() / 24 == 0)
            return QToolTip::text();
    }
    return QString();
}

/** Whether the frame of a field says that it has the focus. */
inline bool isFramed(const QWidget *field)
{
    return field->styleSheet().contains("border:1px solid #2c7dce");
}

/** Enter as it repeats while it is held. */
inline void holdEnter(QWidget *widget)
{
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, "\r", true);
    QCoreApplication::sendEvent(widget, &held);
}

inline QList<kelvra_login::LoginDlg *> dialogs()
{
    QList<kelvra_login::LoginDlg *> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<kelvra_login::LoginDlg *>(window))
            found << dialog;
    }
    return found;
}

/** A test that has one window at a time and records the hub. */
class WindowTest : public QObject, protected WindowParts
{
protected:
    WindowTest() { recordHub(this); }

    /** What is recorded is the doing of the window once it stands. */
    void open(QWidget *opened)
    {
        delete window;
        window = opened;
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        host.calls.clear();
    }

    QWidget *root() const override { return window; }

    QPointer<QWidget> window;
};
