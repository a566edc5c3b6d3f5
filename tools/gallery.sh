#!/bin/sh
# Makes docs/gallery.md and docs/screens/ anew: the pictures of the client's tour in English, and those that the
# screens' test takes of each one in German. A minute or three. Argument: a build folder to use instead of
# build/dev, which is built first.
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
cd "$root"
. tools/setup.sh

colors=128    # in a picture's palette; keeps docs/screens below its limit
dither=0.4    # little: it costs bytes
limit=4000000 # bytes, of docs/screens in all
screens=docs/screens
gallery=docs/gallery.md

# shellcheck disable=SC2086
install_missing $build_packages pngquant
if [ $# -eq 0 ]; then
    build dev
fi
programs=$(CDPATH='' cd -- "${1:-build/dev}/bin" && pwd)

raw=$(mktemp -d)
trap 'rm -rf "$raw"' EXIT
export QT_QPA_PLATFORM=offscreen

say "Taking the tour (English)"
"$programs/kelvra_client" --tour "$raw" >"$raw/log" || {
    grep -v '| ok$' "$raw/log"
    exit 1
}
for picture in "$raw"/[0-9][0-9]-*.png; do
    mv "$picture" "$raw/$(basename "$picture" | cut -d - -f 2-)"
done
say "Taking the screens (German)"
KELVRA_TEST_PICTURES=$raw "$programs/tst_screens" >"$raw/log" 2>&1 || {
    grep -v '^PASS' "$raw/log"
    exit 1
}

area() {
    printf '\n## %s\n' "$1" >>"$gallery"
}

# show NAME TEXT [MADE]: the picture docs/screens/NAME.png, made as MADE.png where its maker calls it otherwise
show() {
    source=$raw/${3:-$1}.png
    if [ ! -f "$source" ]; then
        say "There is no picture ${3:-$1}.png"
        exit 1
    fi
    pngquant --speed 1 --floyd=$dither --strip --force --output "$screens/$1.png" $colors "$source"
    printf '\n%s\n\n![%s](screens/%s.png)\n' "$2" "$2" "$1" >>"$gallery"
}

mkdir -p "$screens"
find "$screens" -name "*.png" ! -name "windows-*" -delete
cat >"$gallery" <<'END'
# Gallery

Every screen and its main states in English, as the client's tour (`--tour`) finds them, then the screens in German,
taken one by one: the login pages without the dialog around them, which bears the logo and the cross. Made by
`tools/gallery.sh`; the pictures have few colours, to be small.
END

area "First run"
show method-selection "The three ways to begin, while there is no user."
show method-hover "The pointer on the first way."
show default-superuser "The default superuser, filled in."
show password-shown "The password in plain text, by a click on the eye."

area "Creation of a superuser"
show create-superuser "The empty form."
show password-too-short "The rules beside the password: two are broken."
show password-good "All rules are kept; Caps Lock is on."
show passwords-differ "The confirmation is another password."
show security-questions "The three security questions."
show question-list "The list of questions."
show security-answers "The answers given."

area "Login"
show remembered-login "The last user with a remembered password."
show empty-name "A tip at the field that is wrong."
show wrong-password "A refused password."
show locked "Locked after five failures; the seconds run down."
show language-list "The seven languages."
show login-chinese "The form in Chinese."
show splash "Loading after the login."

area "Forgotten password"
show forgot-questions "The security questions of the user."
show wrong-answers "Wrong answers are refused."
show reset-password "A new password for the user."
show get-back-password "The framed dialog that gets the password back, for a user who is logged in."
show password-got-back "The password, after right answers."
show select-credentials "Choosing a file of credentials."

area "Gestures"
show gesture-too-short "A gesture of fewer than four points."
show gesture-drawn "A gesture half-way."
show gesture-login "Login by gesture, after a failure."
show gesture-refused "A wrong gesture."
show delete-gesture "Before a gesture is deleted."

area "Main window"
show main-window "The superuser's view: session, local users, audit log."
show add-user "A user is added; the passwords differ."
show remove-user "Before a user is removed."
show audit-log-sorted "The audit log in the order of the users."
show ordinary-user "The view of an ordinary user."
show cloud-user "The view of a cloud account."
show main-window-chinese "The main window in Chinese."

area "Cloud login and the simulated phone"
show phone "The phone beside the first run."
show cloud-login "A cloud account by password."
show lock-warning "The cloud counts the failures."
show pin-sent "A PIN is asked for; the phone has it."
show qr-code "A QR code to be scanned by the phone."
show qr-code-scanned "Scanned; the phone asks for an answer."
show qr-code-cancelled "Cancelled on the phone; the arrows get another code."
show no-network "The network is off."
show no-qr-code "No QR code without a network."
show account-locked "The account is locked, and can be unlocked on the phone."

area "German"
show de-method-selection "The three ways to begin." de-LoginMethodSelWt
show de-create-superuser "Creation of a superuser." de-CreateSuperUserWt
show de-password-rules "The rules of the password." de-PwdTipWt
show de-security-questions "The security questions." de-SetSecretAnswerWt
show de-login "Login of a local user." de-page
show de-create-new-user "Login before a user exists." de-page_2
show de-splash "Loading." de-SplashScreen
show de-cloud-password "Login of a cloud account by password." de-saasPwdLoginPage
show de-cloud-pin "The same by PIN." de-saasVerificationCodeLoginPage
show de-cloud-qr-code "The same by QR code, which is being fetched." de-saasScanQRCodeLoginPage
show de-gesture-login "Login by gesture." de-GestureLoginWt
show de-forgot-questions "The questions of a user who has forgotten the password." de-VerifySecretAnswerWt
show de-reset-password "A new password." de-ResetSuperUserPwdWt
show de-get-back-password "Getting back a password." de-GetbackPwdDlg
show de-add-gesture "Setting a gesture." de-AddGesturePwdDlg
show de-verify-gesture "Verifying a gesture." de-GestureVerifyDlg
show de-main-window "The main window at its smallest size." de-ClientWindow
show de-add-user "Adding a user." de-addUserDlg
show de-set-password "Setting a user's password." de-setPwdDlg
show de-alert "An alert." de-alertBox
show de-phone "The simulated phone." de-PhoneWindow

# What the README and other pages show must still be there.
for named in $(grep -oh 'docs/screens/[a-z-]*\.png' README.md); do
    [ -f "$named" ] || {
        say "README.md names $named, which is not made any more"
        exit 1
    }
done
bytes=$(cat "$screens"/*.png | wc -c)
say "$(ls "$screens" | wc -l) pictures, $bytes bytes"
[ "$bytes" -lt "$limit" ] || {
    say "That is more than $limit bytes"
    exit 1
}
