#!/bin/sh
# Tries out under Wine what tools/windows/build.sh has built: tools/windows/try.sh BUILD_FOLDER PICTURE_FOLDER
# Needs a display; leaves ctest's log, the tour, and pictures of the screen.
set -eu
here=$(CDPATH="" cd -- "$(dirname -- "$0")" && pwd)
. "$here/../setup.sh"
. "$here/prefix.sh"

folder=$1
pictures=$2
mkdir -p "$pictures"
trap 'wineserver -k || true' EXIT
trap 'exit 130' INT TERM

set_up_wine "$folder/wine"
# The pointer would lie on the windows of some tests.
xdotool mousemove 1919 1199

# Each test alone, as there is one focus for all; those that have passed since the last build are not run again.
logs=$folder/tests
mkdir -p "$logs"
total=0
failed=0
for name in $(ctest --test-dir "$folder" -N | sed -n 's/^ *Test *#[0-9]*: //p'); do
    total=$((total + 1))
    log=$logs/$name.log
    if [ ! -e "$logs/$name.passed" ] || [ -n "$(find "$folder/bin" -newer "$logs/$name.passed" -name '*.[de][lx][le]')" ]; then
        rm -f "$logs/$name.passed"
        if ctest --test-dir "$folder" -R "^$name\$" -V >"$log" 2>&1; then
            touch "$logs/$name.passed"
        else
            wineserver -k || true # what it has left behind would take the focus from the next
        fi
    fi
    verdict=ok
    [ -e "$logs/$name.passed" ] || {
        verdict=FAILED
        failed=$((failed + 1))
    }
    figures=$(tr -d '\r' <"$log" | sed -n 's/^[0-9]*: Totals: \(.*\), 0 blacklisted.*/\1/p' | tail -n 1)
    printf '%-8s%-20s%s\n' $verdict "$name" "$figures"
    [ $verdict = ok ] || tr -d '\r' <"$log" | grep -E -A 3 '^[0-9]*: (FAIL!|XPASS|QFATAL)|Timeout|Exception' | head -n 40 || true
done
say "$((total - failed)) of $total test programs passed under Wine"
[ $total -gt 0 ] || failed=1

say "Taking the client's tour"
take_tour "$folder/bin/kelvra_client.exe" "$pictures/tour" "$logs/tour.log" || failed=$((failed + 1))

# What is on the screen, rather than what a window would draw: until it stands still.
say "Taking a picture of the screen"
data=$(mktemp -d)
shown=no
rm -f "$pictures/login.png"
"$here/wine.sh" "$folder/bin/kelvra_client.exe" --data-dir "$data" --no-phone >/dev/null 2>&1 &
before=
for _ in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15; do
    sleep 2
    import -window root "$pictures/screen.png"
    now=$(identify -format '%# %k' "$pictures/screen.png")
    if [ "$now" = "$before" ] && [ "${now#* }" -gt 200 ]; then
        shown=yes
        break
    fi
    before=$now
done
rm -rf "$data"
if [ $shown = yes ]; then
    convert "$pictures/screen.png" -trim +repage "$pictures/login.png"
    say "The login dialog as Windows draws it: $pictures/login.png"
else
    say "No login dialog stood still on the screen: $pictures/screen.png"
    failed=$((failed + 1))
fi
[ $failed -eq 0 ] || {
    say "$failed of what was tried out failed; it is named above"
    exit 1
}
