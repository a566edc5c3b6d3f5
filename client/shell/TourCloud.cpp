#include "client/shell/TourCloud.h"

#include "client/shell/TourParts.h"

#include <QRegularExpression>

namespace kelvra_client {

using namespace tour;

namespace {

constexpr int attempts = 5;     // wrong passwords until an account is locked
constexpr int stillOnMs = 1500; // for what must not change with the next status of a code

// Accounts that the simulated cloud starts with; a phone shows the first one until another is chosen.
const QString firstNumber = QStringLiteral("13800000001");
const QString firstPassword = QStringLiteral("Analytical1");
const QString secondNumber = QStringLiteral("13900000002");
const QString secondPassword = QStringLiteral("Compiler52");
const QString unknownNumber = QStringLiteral("15812345678");
const QString shortNumber = QStringLiteral("1380000000");
const QString wrongPassword = QStringLiteral("Rhododendron");

const QString number = QStringLiteral("userWt/userName");
const QString pwd = QStringLiteral("pwdWt/pwd");
const QString pin = QStringLiteral("verificationCode");

// Acts

/** What the phone's button has copied goes over what the field holds. */
Acts copyInto(const QString &copyButton, const QString &path)
{
    return click(copyButton) + fill(path, QString()) + press(Qt::Key_V, Qt::ControlModifier);
}

Acts choosePhone(int key)
{
    return click("accountBox") + press(key) + press(Qt::Key_Return);
}

Acts chooseLanguage(int key)
{
    return click("languageBox") + press(key) + press(Qt::Key_Return);
}

Acts enterPassword(const QString &password)
{
    return fill(pwd, password) + press(Qt::Key_Return);
}

// Looks

const QString passwordPage = QStringLiteral("number: {userWt/userName}, password: {pwdWt/pwd}, button: {loginBt}");
const QString codePage = QStringLiteral("number: {userWt/userName}, PIN: {verificationCode}, button: {loginBt}");
const QString pinButton = QStringLiteral("{getVerificationCodeBt}");
const QString phoneSms = QStringLiteral("phone: {smsPhone}, {smsCode}");
const QString panel = QStringLiteral("{QRCodeTitle}, refresh: {refreshBt}, phone: {codeText}");
const QString lock = QStringLiteral("phone: {accountPhone}, {accountLock}");
const QString cloudSession = session + QStringLiteral(", {currentRole}, {signInWt/autoLogin}; phone: {phoneCaption}");
const QString refused = QStringLiteral("Nimbra account login failure:");

QString passwordPageText(const QString &account, const QString &password)
{
    return QStringLiteral("number: %1, password: %2, button: Login").arg(account, password);
}

QString panelText(const QString &title, const QString &phone)
{
    return QStringLiteral("%1, refresh: not shown, phone: %2").arg(title, phone);
}

/** Of a code that is of no use any more: the refresh button, which has no text, lies over it. */
QString spentPanelText(const QString &title, const QString &phone)
{
    return QStringLiteral("%1, refresh: , phone: %2").arg(title, phone);
}

QString sessionText(const QString &account, const QString &autoLogin)
{
    return QStringLiteral("%1, Cloud account, Superuser, %2; phone: not shown").arg(account, autoLogin);
}

QString lockWarning(int errors)
{
    return QStringLiteral("Current errors:%1,in the next 600 sec.,if you make another error %2 times, the account "
                          "will be locked for 30 minutes")
        .arg(errors)
        .arg(attempts - errors);
}

const QString scanTitle = QStringLiteral("Nimbra App Code scanning login");
const QString noCode = QStringLiteral("No code on show. Choose QR Code in the login window.");
const QString codeWaits = QStringLiteral("The login window shows a code.");

// Checks

/** The seconds in "59S", -1 in any other text. */
int secondsToResend(const QString &text)
{
    static const QRegularExpression countdown(QStringLiteral("^(\\d+)S"));
    const QRegularExpressionMatch match = countdown.match(text);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

bool countsDown(const QString &seen, const QString &before)
{
    return secondsToResend(seen) >= 0 && secondsToResend(seen) < secondsToResend(before);
}

// Steps

TourStep closeAlert(const QString &lookAt, const Check &check, const QString &picture = QString())
{
    return step("press Enter", press(Qt::Key_Return), alert + "; " + lookAt, check, picture);
}

TourStep switchUser(const QString &account)
{
    return step("click \"Switch user\"", click("switchUserBt"), passwordPage + "; phone: {accountPhone}",
                is(passwordPageText(account, "nothing") + "; phone: " + firstNumber), "", noAutoLoginMs);
}

QVector<TourStep> byPassword()
{
    return {
        step("start on an empty data folder", makeRoom("label"), methods + "; phone: {phoneCaption}",
             is(methodTexts + "; phone: Nimbra phone"), "phone"),
        step("click \"Login Nimbra App User\"", click("saasUserBt"), "{localUserTab}, {saasUserTab}; " + passwordPage,
             is("Local User, Nimbra User; " + passwordPageText("nothing", "nothing")), "cloud-login"),
        step("enter ten digits and click \"Login\"",
             fill(number, shortNumber) + fill(pwd, wrongPassword) + click("loginBt"), tip,
             is("Illegal mobile phone number"), "illegal-number"),
        step("enter a number that nobody has, and a short password",
             fill(number, unknownNumber + "9") + fill(pwd, wrongPassword.left(7)) + press(Qt::Key_Return),
             "{userWt/userName}; " + tip, is(unknownNumber + "; Invalid password")),
        step("enter a longer one and press Enter", enterPassword(wrongPassword), passwordPage + "; " + alert,
             is(passwordPageText(unknownNumber, "12 hidden characters").replace("Login", "Logging in...") + "; " +
                refused + "There is no account with this mobile phone number"),
             "unknown-number"),
        closeAlert(passwordPage, is("not shown; " + passwordPageText(unknownNumber, "12 hidden characters"))),
        step("copy the number from the phone and press Enter", copyInto("copyPhoneBt", number) + press(Qt::Key_Return),
             alert, is(lockWarning(1)), "lock-warning"),
        closeAlert(passwordPage, is("not shown; " + passwordPageText(firstNumber, "12 hidden characters"))),
        step("enter the password that the phone shows and press Enter", enterPassword(firstPassword),
             alert + "; " + pinButton,
             is("It is currently a non secure terminal,Please log in as a verification code; Get PIN"),
             "non-secure-terminal"),
        closeAlert(codePage, is("not shown; number: " + firstNumber + ", PIN: nothing, button: Login")),
    };
}

QVector<TourStep> bySmsCode()
{
    return {
        step("click \"Get PIN\"", click("getVerificationCodeBt"), pinButton + "; " + alert + "; " + phoneSms,
             like("(60|59)S; Get verificaion code success, please check the verification code on your mobile phone; "
                  "phone: SMS to 13800000001, \\d{3} \\d{3}"),
             "pin-sent"),
        step("press Enter", press(Qt::Key_Return), pinButton + "; " + alert,
             [](const QString &seen, const QString &before) {
                 return countsDown(seen, before) && seen.endsWith(QLatin1String("; not shown"));
             }),
        step("wait", look, pinButton, countsDown),
        step("enter five digits and press Enter", fill(pin, "12345") + press(Qt::Key_Return), tip,
             is("Invalid verification code")),
        step("enter a wrong PIN and press Enter", fill(pin, "000000") + press(Qt::Key_Return), alert,
             is(refused + "The verification code is wrong; attempts left: 3"), "wrong-pin"),
        closeAlert(codePage, is("not shown; number: " + firstNumber + ", PIN: 000000, button: Login")),
        step("copy the PIN from the phone and click \"Login\"", copyInto("copyCodeBt", pin) + click("loginBt"),
             cloudSession, is(sessionText(firstNumber, "By hand")), "cloud-user"),
        step("click \"Simulated phone\"", click("phoneBt"), "phone: {phoneCaption}, {codeText}",
             is("phone: Nimbra phone, " + noCode)),
        step("click its cross", click("phoneCloseBt"), "phone: {phoneCaption}", is("phone: not shown")),
    };
}

QVector<TourStep> byQRCode()
{
    const QString scanned = QStringLiteral("Log in on the computer as %1? The computer waits for your answer.");
    const QString renew = QStringLiteral("%1 Click the arrows in the login window to get a new code.");
    const QString fresh = panelText(scanTitle, codeWaits);
    const Acts scan = click("scanBt");
    return {
        switchUser(firstNumber),
        step("click \"QR Code\"", click("QRCodeLogin"), panel, is(fresh), "qr-code", stillOnMs),
        step("choose 简体中文", chooseLanguage(Qt::Key_Down), "{QRCodeTitle}, {scanBt}",
             is("Nimbra App 扫码登录, 以 Ada Lovelace 扫码"), "qr-code-chinese"),
        step("choose English and scan the code", chooseLanguage(Qt::Key_Up) + scan, panel,
             is(panelText("Scanned, confirming", scanned.arg("Ada Lovelace"))), "qr-code-scanned", stillOnMs),
        step("cancel on the phone", click("cancelScanBt"), panel,
             is(spentPanelText("Scanned, cancel login", renew.arg("Cancelled."))), "qr-code-cancelled"),
        step("click the arrows", click("refreshBt"), panel, is(fresh)),
        step("let the cloud refuse the code", click("refuseBt") + click("refuseAddressBt"), panel,
             is(spentPanelText("Illegal ip", renew.arg("Refused by the cloud."))), "qr-code-refused"),
        step("click the arrows", click("refreshBt"), panel, is(fresh)),
        step("choose another account on the phone and scan the code", choosePhone(Qt::Key_Down) + scan, panel,
             is(panelText("Scanned, confirming", scanned.arg("Grace Hopper")))),
        step("choose \"Automatic Logon\" and confirm on the phone", click("autoLogin") + click("confirmScanBt"),
             cloudSession, is(sessionText(secondNumber, "Automatic")), "cloud-user-automatic"),
        quit("click \"Quit\"", click("quitBt")),
    };
}

QVector<TourStep> withoutNetwork()
{
    const QString noAnswer = QStringLiteral("The cloud service does not answer; check the network connection");
    return {
        step("start again", look, cloudSession, is(sessionText(secondNumber, "Automatic"))),
        switchUser(secondNumber),
        step("switch the network off on the phone", click("networkSwitch"), "{networkSwitch}", is("not checked")),
        step("enter the password and press Enter", enterPassword(secondPassword), passwordPage + "; " + alert,
             is(passwordPageText(secondNumber, "10 hidden characters").replace("Login", "Logging in...") +
                "; not shown"),
             "", stillOnMs),
        step("wait", look, alert, is(refused + noAnswer), "no-network"),
        closeAlert(passwordPage, is("not shown; " + passwordPageText(secondNumber, "10 hidden characters"))),
        // The animation has no text.
        step("click \"QR Code\"", click("QRCodeLogin"), "{QRCodeTitle}, animation: {waitingLabel}, " + alert,
             is(scanTitle + ", animation: , not shown"), "qr-code-requested", stillOnMs),
        step("wait", look, alert, is("Get login QR code failure:" + noAnswer)),
        closeAlert("{waitingLabel}; " + panel,
                   is("not shown; not shown; " + spentPanelText("Get QR Code Failure", noCode)), "no-qr-code"),
        step("switch the network on", click("networkSwitch"), "{networkSwitch}", is("checked")),
        step("click the arrows", click("refreshBt"), panel, is(panelText(scanTitle, codeWaits))),
        step("click \"PIN\" and get a PIN for a number that nobody has",
             click("verificationCodeLogin") + fill(number, unknownNumber) + click("getVerificationCodeBt"),
             alert + "; {smsHint}",
             like("Get verificaion code failed:invalid mobile number\\(1001\\); No message\\..*"), "invalid-number"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + pinButton, like("not shown; \\d+S")),
        step("click \"PWD\" and choose that account on the phone",
             click("passwordLogin") + fill(number, secondNumber) + choosePhone(Qt::Key_Down), lock,
             is("phone: " + secondNumber + ", not shown")),
    };
}

QVector<TourStep> lockedAccount()
{
    QVector<TourStep> steps;
    for (int errors = 1; errors < attempts; ++errors)
        steps << step("enter a wrong password and press Enter", enterPassword(wrongPassword), alert,
                      is(lockWarning(errors)))
              << step("press Enter", press(Qt::Key_Return), alert, is("not shown"));
    return steps << step("enter a wrong password and press Enter", enterPassword(wrongPassword), alert + "; " + lock,
                         like("The account has been locked for 30 minutes, you can unlock by Nimbra App forgetting "
                              "password; phone: 13900000002, Locked, (30:00|29:\\d\\d) left"),
                         "account-locked")
                 << step("press Enter", press(Qt::Key_Return), alert, is("not shown"))
                 << quit("click the cross", click("closeBt"));
}

QVector<TourStep> unlockedAccount()
{
    return {
        step("start again", look, alert,
             is("Nimbra account auto login failure:The account is locked; minutes until it is unlocked: 30"),
             "automatic-login-refused"),
        closeAlert(passwordPage, is("not shown; " + passwordPageText(secondNumber, "nothing"))),
        step("choose the account on the phone", choosePhone(Qt::Key_Down), lock,
             like("phone: 13900000002, Locked, (30:00|29:\\d\\d) left")),
        step("click \"Unlock\" on the phone", click("unlockBt"), lock, is("phone: " + secondNumber + ", not shown")),
        step("enter the password and press Enter", enterPassword(secondPassword), cloudSession,
             is(sessionText(secondNumber, "By hand"))),
        step("click \"Switch user\" and \"Local User\"", click("switchUserBt") + click("localUserTab"),
             "{localLoginBt}; {createUser}; " + passwordPage,
             is("Login; Create New User; number: not shown, password: not shown, button: not shown"), "local-tab"),
        step("click \"Nimbra User\"", click("saasUserTab"), passwordPage,
             is(passwordPageText(secondNumber, "nothing"))),
        quit("click the cross", click("closeBt")),
    };
}

} // namespace

QVector<TourStage> TourCloud::stages()
{
    const QString cloud = QStringLiteral("cloud");
    return {{cloud, byPassword() + bySmsCode() + byQRCode(), true},
            {cloud, withoutNetwork() + lockedAccount(), true},
            {cloud, unlockedAccount(), true}};
}

} // namespace kelvra_client
