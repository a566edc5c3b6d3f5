#!/bin/sh
# Starts the client on virtual screens under openbox, under xfwm4 and without a window manager, and measures where its
# windows stand: tools/placement.sh [starts]. 5 starts on each of the four screens, the default, are 20 under each window
# manager and take a few minutes. PROGRAM: a built client to use instead of build/dev, which is built first; VERBOSE=1
# prints the windows of each start that fails.
#
# Each start opens an alert. In odd starts the client cannot write customize.ini: the alert comes with the login, before
# the window manager has placed the login. In even starts a cloud login is refused.
set -eu
root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)

# width x height in device pixels, scale factor
screens="1280x1024@1 1024x768@1 1600x900@1.5 1920x1080@2"
managers="openbox xfwm4 none"
login_title="LoginDlg"
deadline=600 # looks at the windows, 0.1 s apart, until a start has failed
calm=5       # looks in a row that show the same

windows() {
    xdotool search --onlyvisible --class '^kelvra_client$' getwindowname %@ getwindowgeometry --shell %@ 2>/dev/null
}

# The windows of the client, once there are as many as the argument says, and nothing moves any more.
settled_windows() {
    last="" same=0 looks=0
    while [ $looks -lt $deadline ]; do
        now=$(windows) || now=""
        if [ "$now" = "$last" ] && [ "$(printf '%s\n' "$now" | grep -c '^WINDOW=')" -ge "$1" ]; then
            same=$((same + 1))
            [ $same -lt $calm ] || break
        else
            same=0
        fi
        last=$now looks=$((looks + 1))
        sleep 0.1
    done
    printf '%s\n' "$last"
}

# Reads the windows; prints: missing, overlaps, off screen, alert off centre (each 0 or 1).
judge() {
    awk -v screen="$1" -v login="$login_title" '
        BEGIN { split(screen, size, /[x@]/) }
        /^WINDOW=/ { ++n; next }
        /^(X|Y|WIDTH|HEIGHT|SCREEN)=/ { split($0, field, "="); value[n, field[1]] = field[2]; next }
        { name[++names] = $0 }
        function right(i) { return value[i, "X"] + value[i, "WIDTH"] }
        function bottom(i) { return value[i, "Y"] + value[i, "HEIGHT"] }
        function beyond(a, b) { return a > b + 2 || b > a + 2 }
        END {
            for (i = 1; i <= n; ++i) {
                if (name[i] == login) l = i
                else if (name[i] ~ /phone/) others[++count] = i
                else a = i
                off = off || value[i, "X"] < 0 || value[i, "Y"] < 0 || right(i) > size[1] || bottom(i) > size[2]
            }
            if (!l || !a || !count) { print 1, 0, 0, 0; exit }
            middle = value[l, "X"] + value[l, "WIDTH"] / 2
            for (k = 1; k <= count; ++k) {
                o = others[k]
                overlap = overlap || (value[o, "X"] < right(l) && right(o) > middle &&
                                      value[o, "Y"] < bottom(l) && bottom(o) > value[l, "Y"])
            }
            centre = beyond(value[a, "X"] + value[a, "WIDTH"] / 2, middle) ||
                     beyond(value[a, "Y"] + value[a, "HEIGHT"] / 2, value[l, "Y"] + value[l, "HEIGHT"] / 2)
            print 0, overlap + 0, off + 0, centre + 0
        }'
}

# Whether a window other than login and alert has the focus: 0 or 1.
focus_elsewhere() {
    focused=$(xdotool getwindowfocus getwindowname 2>/dev/null) || focused=""
    case $focused in
        *phone*) echo 1 ;;
        *) echo 0 ;;
    esac
}

# at X Y: the pointer to a place in the login, in pixels of the scale factor. The login is read from $seen.
at() {
    printf '%s\n' "$seen" | awk -v x="$1" -v y="$2" -v scale="${screen#*@}" -v login="$login_title" '
        /^WINDOW=/ { ++n }
        /^X=/ { left[n] = substr($0, 3) }
        /^Y=/ { top[n] = substr($0, 3) }
        !/=/ { if ($0 == login) l = names + 1; ++names }
        END { printf "mousemove %d %d", left[l] + x * scale, top[l] + y * scale }'
}

# Has the cloud refuse a login: first run, "Login Nimbra App User", a number that nobody has.
raise_alert() {
    # shellcheck disable=SC2046
    xdotool $(at 672 319) click 1 sleep 0.3 $(at 700 183) click 1 sleep 0.1 type 15812345678
    # shellcheck disable=SC2046
    xdotool $(at 680 229) click 1 sleep 0.1 type rhododendron
    xdotool key Return
}

start_manager() {
    [ "$1" != none ] || return 0
    "$1" >/dev/null 2>&1 &
    looks=0
    until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
        looks=$((looks + 1))
        if [ $looks -ge $deadline ]; then
            echo "$1 does not start." >&2
            exit 1
        fi
        sleep 0.1
    done
}

# One start: leaves what there is in $seen and what is wrong with it in $found. Arguments: its number, program.
start() {
    folder=$(mktemp -d)
    mkdir -m 700 "$folder/data"
    [ $(($1 % 2)) -eq 0 ] || ln -s /nonexistent/customize.ini "$folder/data/customize.ini"
    QT_SCALE_FACTOR=${screen#*@} "$2" --data-dir "$folder/data" --language 0 >"$folder/log" 2>&1 &
    client=$!
    if [ $(($1 % 2)) -eq 0 ]; then
        seen=$(settled_windows 2)
        [ "$manager" != none ] || xdotool search --name "^$login_title\$" windowfocus
        raise_alert
    fi
    seen=$(settled_windows 3)
    found="$(printf '%s\n' "$seen" | judge "$screen") $(focus_elsewhere)"
    kill $client 2>/dev/null || true
    wait $client 2>/dev/null || true
    rm -rf "$folder"
}

# On the virtual screen: one row of the table. Arguments: window manager, screen, starts, program.
row() {
    manager=$1 screen=$2
    start_manager "$manager"
    sums="0 0 0 0 0" number=0
    while [ $number -lt "$3" ]; do
        number=$((number + 1))
        start $number "$4"
        if [ "$found" != "0 0 0 0 0" ] && [ -n "${VERBOSE:-}" ]; then
            printf '%s\n%s\n' "$manager $screen start $number: $found" "$seen" >&2
        fi
        sums=$(echo "$sums $found" | awk '{ print $1 + $6, $2 + $7, $3 + $8, $4 + $9, $5 + $10 }')
    done
    echo "$manager $screen $3 $sums" >&3
}

if [ "${1:-}" = row ]; then
    shift
    row "$@"
    exit
fi

cd "$root"
. tools/setup.sh
# shellcheck disable=SC2086
install_missing $build_packages openbox xfwm4 dbus-daemon xvfb xauth xdotool x11-utils
if [ -z "${PROGRAM:-}" ]; then
    build dev >&2
    PROGRAM=$root/build/dev/bin/kelvra_client
fi
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_SCALE_FACTOR

printf '| window manager | screen@scale | starts | windows missing | overlaps | off screen | alert off centre | phone took focus |\n'
printf '|---|---|---|---|---|---|---|---|\n'
failed=0
for screen in $screens; do
    for manager in $managers; do
        result=$(xvfb-run -a -s "-screen 0 ${screen%@*}x24 -noreset" dbus-run-session -- \
            "$root/tools/placement.sh" row "$manager" "$screen" "${1:-5}" "$PROGRAM" 3>&1 >/dev/null)
        printf '| %s |\n' "$(echo "$result" | sed 's/ / | /g')"
        case $result in
            *" 0 0 0 0 0") ;;
            *) failed=1 ;;
        esac
    done
done
exit $failed
