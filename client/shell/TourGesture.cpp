#include "client/shell/TourGesture.h"

#include "client/shell/TourParts.h"

namespace kelvra_client {

using namespace tour;

namespace {

const QString admin = QStringLiteral("admin");
const QString wrongPassword = QStringLiteral("000000");
const QString gesture = QStringLiteral("03678");
const QString newGesture = QStringLiteral("048526"); // crosses a dot that it has used
const QString tooShort = QStringLiteral("678");
const QString wrongGesture = QStringLiteral("6420");

// Looks

const QString pad = QStringLiteral("pad: {gesturePanel~}");
const QString ready = QStringLiteral("pad: grey");
const QString drawn = QStringLiteral("pad: blue");
const QString refused = QStringLiteral("pad: red");
const QString closed = QStringLiteral("pad: not shown");
const QString prompt = QStringLiteral("{prompt}; ") + pad;
const QString first = QStringLiteral("First input gesture; ");
const QString second = QStringLiteral("Second input gesture; ");
const QString state = QStringLiteral("{gestureState}, button: {setOwnGestureBt}; ");
const QString isSet = QStringLiteral("set, button: Change; ");
const QString isNotSet = QStringLiteral("not set, button: Set; ");
const QString note = QStringLiteral("{signInNote}; ");
const QString verified = QStringLiteral("The gesture password has been verified.; ");
const QString notVerified = QStringLiteral("The gesture password was not verified.; ");
const QString audit = QStringLiteral("{auditTable}");
const QString automatic = QStringLiteral("{autoLoginSwitch}, {autoLogin}");
const QString page = QStringLiteral("{kelvra_login::GestureLoginWt/userName}, automatic: "
                                    "{kelvra_login::GestureLoginWt/autoLogin}, {errorLabel}; ") +
                     pad;
const QString lockButton = QStringLiteral("{localLoginBt}");
const QString lockPattern = QStringLiteral("Locked, Wait:1[78]\\dSec\\.");
const QString byPassword = QStringLiteral("admin, Local user, by password");
const QString byGesture = QStringLiteral("admin, Local user, by gesture");

QString pageText(const QString &automaticBox, int failures, const QString &padText)
{
    constexpr int maxFailures = 5;
    const QString failed =
        QStringLiteral("Failed:%1 times, Remaining:%2 times").arg(failures).arg(maxFailures - failures);
    return QStringLiteral("admin, automatic: %1, %2; %3")
        .arg(automaticBox, failures == 0 ? QString() : failed, padText);
}

QString gestureError(int failures)
{
    return QStringLiteral("gesture error, a maximum of 5 failures are allowed, now failed %1 times").arg(failures);
}

QString passwordError(int failures)
{
    return QStringLiteral("user name or user password error, a maximum of 5 failures are allowed, now failed %1 times")
        .arg(failures);
}

// Stages

QVector<TourStep> firstGesture()
{
    return {
        step("start on another empty data folder", look, "{defaultUserBt/title}", is("Use Default Superuser")),
        step("log in as the default superuser", click("defaultUserBt") + click("localLoginBt"), session,
             is(byPassword)),
        step("look at the gesture password", look, state + pad, is(isNotSet + closed)),
        step("click \"Verify\"", click("verifyGestureBt"), state + pad, is(isNotSet + closed), "", nothingMs),
        step("click \"Set\"", click("setOwnGestureBt"), prompt, is(first + ready)),
        step("draw through three dots", draw(tooShort), alert + "; " + prompt,
             is("The gesture password is too simple,you should connect at least 4 points; "
                "Too simple gesture:at least 4 points; " +
                refused),
             "gesture-too-short"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + prompt, is("not shown; " + first + ready)),
        step("draw through five", draw(gesture), prompt, is(first + drawn), "gesture-drawn"),
        step("wait", look, prompt, is(second + ready)),
        step("draw another one", draw(wrongGesture), alert + "; " + pad,
             is("The gesture passwords entered twice are inconsistent; " + refused), "gestures-differ"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + prompt, is("not shown; " + first + ready)),
    };
}

QVector<TourStep> drawTwice(const QString &chosen, const QString &picture = QString())
{
    return {
        step("draw a gesture", draw(chosen), prompt, is(second + ready)),
        step("draw it again", draw(chosen), prompt, is("Successfully set gesture password; " + ready), picture),
    };
}

QVector<TourStep> verification()
{
    return {
        step("wait", look, state + pad + "; " + audit, like(isSet + closed + "; .* / add gesture / admin /"),
             "gesture-set"),
        step("click \"Verify\"", click("verifyGestureBt"), pad, is(ready)),
        step("draw another one", draw(wrongGesture), pad, is(refused), "gesture-not-verified"),
        step("wait", look, pad, is(ready)),
        step("draw the right one", draw(gesture), note + pad, is(verified + closed)),
        step("click \"Verify\" again", click("verifyGestureBt"), pad, is(ready)),
        step("press Escape", press(Qt::Key_Escape), note + pad, is(notVerified + closed)),
        step("choose \"Automatic login\"", click("autoLoginSwitch"), automatic, is("checked, Automatic")),
    };
}

/** A failure of the dialog before is counted here. */
QVector<TourStep> loginByGesture()
{
    const QString automaticBox = QStringLiteral("checked");
    return {
        step("click \"Switch user\"", click("switchUserBt"), form, is(formText(admin, "nothing"))),
        step("click \"Gesture\"", click("gesturePwd"), page, is(pageText(automaticBox, 1, ready)), "gesture-login"),
        step("draw another gesture", draw(wrongGesture), alert + "; " + pad, is(gestureError(2) + "; " + refused),
             "gesture-refused"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + page,
             is("not shown; " + pageText(automaticBox, 2, ready))),
        step("draw the right one", draw(gesture), session + "; " + automatic, is(byGesture + "; checked, Automatic"),
             "logged-in-by-gesture"),
        quit("click \"Quit\"", click("quitBt")),
    };
}

QVector<TourStep> automaticLogin()
{
    return {
        step("start again", look, page, is(pageText("checked", 0, ready)), "automatic-gesture-login"),
        step("wait", look, session, is(byGesture)),
        step("choose against \"Automatic login\"", click("autoLoginSwitch"), automatic, is("not checked, By hand")),
    };
}

QVector<TourStep> replacedGesture()
{
    return QVector<TourStep>{
               step("click \"Delete\"", click("deleteOwnGestureBt"), alert,
                    is("Delete your gesture password? You then log in with your password only."), "delete-gesture"),
               step("press Escape", press(Qt::Key_Escape), alert + "; " + state, is("not shown; " + isSet)),
               step("click \"Delete\" and \"OK\"", click("deleteOwnGestureBt") + click("alertBox/okBt"),
                    state + note + audit,
                    like(isNotSet + "The gesture password has been deleted.; .* / delete gesture / admin /")),
               step("click \"Set\"", click("setOwnGestureBt"), prompt, is(first + ready)),
           } +
           drawTwice(newGesture, "gesture-accepted") +
           QVector<TourStep>{
               step("wait", look, state + pad, is(isSet + closed)),
               quit("click \"Quit\"", click("quitBt")),
           };
}

/** Gestures and passwords in turn. */
QVector<TourStep> failures()
{
    const QString off = QStringLiteral("not checked");
    const auto drawWrong = [off](const QString &did, const QString &wrong, int failed) {
        return QVector<TourStep>{step(did, draw(wrong), alert, is(gestureError(failed))),
                                 step("press Enter", press(Qt::Key_Return), alert + "; " + page,
                                      is("not shown; " + pageText(off, failed, ready)))};
    };
    const auto enterWrong = [](int failed) {
        return QVector<TourStep>{step("enter a wrong password and press Enter",
                                      fill("localPwdWt/pwd", wrongPassword) + press(Qt::Key_Return), alert,
                                      is(passwordError(failed))),
                                 step("press Enter", press(Qt::Key_Return), alert, is("not shown"))};
    };
    return QVector<TourStep>{step("start again", look, page, is(pageText(off, 0, ready)), "", noAutoLoginMs)} +
           drawWrong("draw the former gesture", gesture, 1) +
           QVector<TourStep>{step("click \"Pwd Login\"", click("pwdLogin"), form, is(formText(admin, "nothing")))} +
           enterWrong(2) + enterWrong(3) +
           QVector<TourStep>{
               step("click \"Gesture\"", click("gesturePwd"), page, is(pageText(off, 3, ready)), "failures-shared")} +
           drawWrong("draw through three dots", tooShort, 4);
}

QVector<TourStep> lock()
{
    return {
        step("draw a wrong gesture", draw(wrongGesture), alert + "; " + pad + "; " + lockButton,
             like(gestureError(5) + "; " + closed + "; " + lockPattern), "fifth-failure-by-gesture"),
        step("press Enter", press(Qt::Key_Return), alert + "; " + lockButton, like("not shown; " + lockPattern)),
        step("wait", look, lockButton, like("Locked, Wait:17\\dSec\\."), "locked-by-gesture"),
        step("click \"Gesture\"", click("gesturePwd"), alert + "; " + pad + "; " + lockButton,
             like("not shown; " + closed + "; " + lockPattern), "", nothingMs),
        quit("click the cross", click("closeBt")),
    };
}

QVector<TourStep> restartWhileLocked()
{
    return {
        step("start again", look, pad + "; " + lockButton, like(closed + "; " + lockPattern)),
        quit("press Escape", press(Qt::Key_Escape)),
    };
}

} // namespace

QVector<TourStage> TourGesture::stages()
{
    const QString folder = QStringLiteral("gesture");
    return {{folder, firstGesture() + drawTwice(gesture) + verification() + loginByGesture()},
            {folder, automaticLogin() + replacedGesture()},
            {folder, failures() + lock()},
            {folder, restartWhileLocked()}};
}

} // namespace kelvra_client
