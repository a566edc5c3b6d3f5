#include "client/shell/TourLocalUser.h"

#include "client/shell/TourParts.h"

#include <QRegularExpression>

namespace kelvra_client {

using namespace tour;

namespace {

constexpr int maxFailures = 5;
constexpr int restartSeconds = 3; // of a lock, at most, between the last look at it and the first after a restart
const QString admin = QStringLiteral("admin");
const QString adminPassword = QStringLiteral("468024"); // the default one, as the first screen tells it
const QString ordinaryUser = QStringLiteral("operator");
const QString ordinaryPassword = QStringLiteral("Blue-harbour-7");
const QString newPassword = QStringLiteral("Grey-lantern-4");
const QString secondUser = QStringLiteral("visitor");
const QString wrongPassword = QStringLiteral("000000");
const QString lockButton = QStringLiteral("{localLoginBt}");
const QString splash = QStringLiteral("{splashScreen/progress}");
const QString refused =
    QStringLiteral("password: {localPwdWt/pwd}, alert: {alertBox/text}, splash: {splashScreen/progress}");
const QString nothingHappens = QStringLiteral("password: 6 hidden characters, alert: not shown, splash: not shown");
const QString allLanguages = QStringLiteral("rows: 7, the first: English");
const QString users = QStringLiteral("{usersTable}");
const QString byPassword = QStringLiteral("admin, Local user, by password");

/** The seconds in "Locked, Wait:%1Sec.", -1 in any other text. */
int lockSeconds(const QString &text)
{
    static const QRegularExpression locked(QStringLiteral("^Locked, Wait:(\\d+)Sec\\.$"));
    const QRegularExpressionMatch match = locked.match(text);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

bool countsDown(const QString &seen, const QString &before)
{
    return lockSeconds(seen) >= 0 && lockSeconds(seen) < lockSeconds(before);
}

bool locked(const QString &seen, const QString &)
{
    return lockSeconds(seen) >= 0;
}

bool lockGoesOn(const QString &seen, const QString &before)
{
    const int gone = lockSeconds(before) - lockSeconds(seen);
    return lockSeconds(seen) >= 0 && gone >= 0 && gone <= restartSeconds;
}

QVector<TourStep> firstLogin()
{
    const QString hover = QStringLiteral("picture of the choice: {defaultUserBt#}");
    return {
        step("start on an empty data folder", look, methods, is(methodTexts), "method-selection"),
        step("look at \"Use Default Superuser\"", look, hover, like("picture of the choice: [0-9a-f]+")),
        step("point at it", moveTo("defaultUserBt"), hover, changed, "method-hover"),
        step("click it", click("defaultUserBt"), form, is(formText(admin, "6 hidden characters")), "default-superuser"),
        step("click the eye", click("localPwdWt/pwd/QToolButton"), form, is(formText(admin, adminPassword)),
             "password-shown"),
        step("press Enter", press(Qt::Key_Return), splash, like("[5-6]\\d%"), "splash"),
        step("wait", look, splash, like("(8[5-9]|9\\d)%"), "splash-later"),
        step("wait", look, session, is(byPassword), "main-window"),
    };
}

QVector<TourStep> ordinaryUsers()
{
    const auto fillIn = [](const QString &dialog, const QString &password, const QString &confirmation) {
        return fill(dialog + "/newPwd", password) + fill(dialog + "/confirmPwd", confirmation) +
               click(dialog + "/okBt");
    };
    const QString error = QStringLiteral("{addUserDlg/error}");
    return {
        step("click \"Add user\"", click("addUserBt"), error, is("")),
        step("enter a user and two different passwords",
             fill("addUserDlg/userName", ordinaryUser) + fillIn("addUserDlg", ordinaryPassword, wrongPassword), error,
             is("The two passwords are not the same."), "add-user"),
        step("confirm the right one and click \"OK\"", fillIn("addUserDlg", ordinaryPassword, ordinaryPassword), users,
             like("rows: 1, the first: operator.*"), "user-added"),
        step("click \"Set password\"", click("setPwdBt"), "{setPwdDlg/userName}", is(ordinaryUser)),
        step("enter another password twice", fillIn("setPwdDlg", newPassword, newPassword),
             "{setPwdDlg/userName}; {auditTable}", like("not shown; .*set password / operator.*")),
        step("add another user",
             click("addUserBt") + fill("addUserDlg/userName", secondUser) +
                 fillIn("addUserDlg", ordinaryPassword, ordinaryPassword),
             users, like("rows: 2, .*")),
        step("click \"Remove\"", click("removeUserBt"), alert,
             is("Remove the user visitor? Their password and their gesture are deleted with them."), "remove-user"),
        step("click \"OK\"", click("alertBox/okBt"), users, like("rows: 1, the first: operator.*")),
        step("look at the audit log", look, "{auditTable}", like(".*remove user / visitor.*")),
        step("click its heading", click("auditTable/QHeaderView"), "{auditTable}", changed, "audit-log-sorted"),
    };
}

QVector<TourStep> switchedUser()
{
    const QString name = QStringLiteral("localUserWt/userName");
    return {
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(admin, "nothing")), "switch-user",
             noAutoLoginMs),
        step("empty the name and click \"Login\"", makeRoom(name) + fill(name, "") + click("localLoginBt"), tip,
             is("User name can not be empty or be all blank!"), "empty-name"),
        step("enter a name that nobody has and click \"Forgot?\"", fill(name, "nobody") + click("forgetPwd"), tip,
             is("User not exist!"), "unknown-user"),
        step("enter the ordinary user and click \"Login\"", fill(name, ordinaryUser) + click("localLoginBt"), tip,
             is("Password can not be empty!"), "empty-password"),
        step("click \"Gesture\"", click("gesturePwd"), alert,
             is("The current account is not configured with gesture password login"), "no-gesture"),
        step("press Enter", press(Qt::Key_Return), alert, is("not shown")),
        step("click \"Forgot?\"", click("forgetPwd"), alert,
             is("Please contact the administrator to obtain the password"), "forgot-password"),
        step("click \"OK\"", click("alertBox/okBt"), alert, is("not shown")),
        step("enter the ordinary user's password and press Enter",
             fill("localPwdWt/pwd", newPassword) + press(Qt::Key_Return), session + "; {addUserBt}",
             is("operator, Local user, by password; not shown"), "ordinary-user"),
    };
}

QVector<TourStep> automaticLogon()
{
    return {
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(ordinaryUser, "nothing"))),
        step("enter the superuser and choose \"Automatic Logon\"",
             fill("localUserWt/userName", admin) + fill("localPwdWt/pwd", adminPassword) + click("localAutoLogin"),
             form + ", automatic: {localAutoLogin}",
             is(formText(admin, "6 hidden characters") + ", automatic: checked"), "automatic-logon"),
        step("click \"Login\"", click("localLoginBt"), session, is(byPassword)),
        quit("click \"Quit\"", click("quitBt")),
    };
}

QVector<TourStep> rememberedLogin()
{
    return {
        step("start again", look, form + ", automatic: {localAutoLogin}",
             is(formText(admin, "16 placeholder characters") + ", automatic: checked"), "remembered-login"),
        step("wait", look, session, is(byPassword)),
        step("put the window away and start the program once more", minimize("currentUser") + startAgain(),
             "second start: {second start}; first one: {currentUser}",
             is("second start: exit status 0; first one: admin")),
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(admin, "nothing")), "", noAutoLoginMs),
        step("enter the password without \"Automatic Logon\" and press Enter",
             fill("localPwdWt/pwd", adminPassword) + press(Qt::Key_Return), session, is(byPassword)),
        quit("click \"Quit\"", click("quitBt")),
    };
}

QVector<TourStep> wrongPasswords()
{
    QVector<TourStep> steps{step("start again", look, form, is(formText(admin, "nothing")), "", noAutoLoginMs)};
    for (int failure = 1; failure <= maxFailures; ++failure) {
        const QString text = QStringLiteral("user name or user password error, a maximum of 5 failures are allowed, "
                                            "now failed %1 times")
                                 .arg(failure);
        const QString picture = failure == 1 ? "wrong-password" : failure == maxFailures ? "fifth-failure" : "";
        steps << step("enter a wrong password and press Enter",
                      fill("localPwdWt/pwd", wrongPassword) + press(Qt::Key_Return), alert, is(text), picture)
              << step("press Enter", press(Qt::Key_Return), alert, is("not shown"));
    }
    const Acts tryLogin = fill("localPwdWt/pwd", adminPassword) + press(Qt::Key_Return) + click("localLoginBt");
    return steps << step("look at the button", look, lockButton, locked, "locked")
                 << step("wait", look, lockButton, countsDown)
                 << step("enter the right password, press Enter and click the button", tryLogin, refused,
                         is(nothingHappens), "", nothingMs)
                 << step("look at the button", look, lockButton, locked) << quit("press Escape", press(Qt::Key_Escape));
}

QVector<TourStep> restartWhileLocked()
{
    return {
        step("start again", look, lockButton, lockGoesOn, "still-locked"),
        step("enter the right password and press Enter", fill("localPwdWt/pwd", adminPassword) + press(Qt::Key_Return),
             refused, is(nothingHappens), "", nothingMs),
        quit("click the cross", click("closeBt")),
    };
}

QVector<TourStep> otherLanguage()
{
    return {
        step("start on another empty data folder", look, methods, is(methodTexts)),
        step("click the language box", makeRoom("languageBox") + click("languageBox"), list, is(allLanguages),
             "language-list"),
        step("choose 简体中文 with the keys", press(Qt::Key_Down) + press(Qt::Key_Return), methods,
             is("欢迎登录; 使用默认超级用户; 创建新的超级用户; 使用 Nimbra App 账号登录"), "method-selection-chinese"),
        step("click the first choice", click("defaultUserBt"), form,
             is("name: admin, password: 6 hidden characters, button: 登录"), "login-chinese"),
        step("click \"登录\"", click("localLoginBt"), splash, like("[5-6]\\d%"), "splash-chinese"),
        step("wait", look, session, like("admin, 本地用户.*"), "main-window-chinese"),
        step("open the language box", click("languageBox"), list, is(allLanguages)),
        step("choose English with the keys", press(Qt::Key_Up) + press(Qt::Key_Return), session, is(byPassword)),
        quit("click \"Quit\"", click("quitBt")),
    };
}

} // namespace

QVector<TourStage> TourLocalUser::stages()
{
    const QString first = QStringLiteral("first");
    const QString second = QStringLiteral("second");
    return {{first, firstLogin() + ordinaryUsers() + switchedUser() + automaticLogon()},
            {first, rememberedLogin()},
            {first, wrongPasswords()},
            {first, restartWhileLocked()},
            {second, otherLanguage()}};
}

} // namespace kelvra_client
