#!/bin/sh
# Takes the client's tour again and again under Wine while the machine is busy, and fails where a step has not held:
# tools/windows/tours.sh BUILD_FOLDER [COUNT [LOAD [AT_ONCE]]]
# LOAD processes (4) each keep a core busy while COUNT tours (20) are taken, AT_ONCE (1) at the same time. Each of these
# has a screen and a Wine folder of its own. Pictures and logs are in BUILD_FOLDER/tours.
set -eu
here=$(CDPATH="" cd -- "$(dirname -- "$0")" && pwd)

folder=$(CDPATH="" cd -- "$1" && pwd)
count=${2:-20}
load=${3:-4}
at_once=${4:-1}
tours=$folder/tours

# The script starts itself once for each screen: tours.sh BUILD_FOLDER COUNT LOAD AT_ONCE NUMBER
if [ $# -eq 5 ]; then
    . "$here/../setup.sh"
    . "$here/prefix.sh"
    number=$5
    set_up_wine "$folder/wine-$number"
    trap 'wineserver -k || true' EXIT
    trap 'exit 130' INT TERM
    while [ "$number" -le "$count" ]; do
        if take_tour "$folder/bin/kelvra_client.exe" "$tours/$number" "$tours/$number.log" >"$tours/$number.verdict"; then
            touch "$tours/$number.held"
        fi
        sed "s/^/$number: /" "$tours/$number.verdict"
        wineserver -k || true # what a tour has left behind would take the focus from the next
        number=$((number + at_once))
    done
    exit
fi

. "$here/../setup.sh"
rm -rf "$tours"
mkdir -p "$tours"
busy=""
trap 'kill $busy 2>/dev/null || true' EXIT
trap 'exit 130' INT TERM
for _ in $(seq "$load"); do
    (while :; do :; done) &
    busy="$busy $!"
done

say "$count tours, $at_once at a time, beside a load of $load"
screens=""
for screen in $(seq "$at_once"); do
    xvfb-run --server-num=$((100 * screen)) --auto-servernum --server-args="-screen 0 1920x1200x24" \
        "$0" "$folder" "$count" "$load" "$at_once" "$screen" &
    screens="$screens $!"
done
for screen in $screens; do
    wait "$screen" || true
done

# Of a stage that broke off each step says so: counted once for a tour.
tours_with() {
    find "$tours" -name tour.txt -exec grep -l "$1" {} + | wc -l
}
held=$(find "$tours" -name '*.held' | wc -l)
say "$held of $count tours held; $(tours_with 'the program crashed') with a crash, $(tours_with 'the program hung') with a hang"
[ "$held" -eq "$count" ]
