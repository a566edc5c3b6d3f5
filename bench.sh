#!/bin/sh
# Measures what the login costs, each figure beside its yardstick in the same run: ./bench.sh [--json] [--rounds N]
# It installs what is missing, builds the release preset and needs no display: a virtual one is started for it.
# With --json standard output is one flat object; everything else goes to standard error.
set -eu
cd "$(dirname "$0")"
. tools/setup.sh

json=""
rounds=15
while [ $# -gt 0 ]; do
    case $1 in
    --json) json=1 ;;
    --rounds)
        shift
        rounds=${1:-}
        ;;
    *) rounds="" ;;
    esac
    case $rounds in
    "" | 0 | *[!0-9]*)
        echo "usage: ./bench.sh [--json] [--rounds N]" >&2
        exit 2
        ;;
    esac
    [ $# -eq 0 ] || shift
done

bin=build/release/bin
folder=$(mktemp -d)
display=""
stop() {
    [ -z "$display" ] || kill "$display" 2>/dev/null || true
    rm -rf "$folder"
}
trap stop EXIT
trap 'exit 1' INT TERM HUP

prepare() {
    # shellcheck disable=SC2086
    install_missing $build_packages xvfb
    say "Configuring (release)"
    cmake --preset release -Wno-dev >/dev/null
    say "Building (release)"
    cmake --build --preset release --parallel "$(nproc)" --target bench

    Xvfb -displayfd 3 -screen 0 1280x1024x24 -noreset -nolisten tcp 3>"$folder/display" 2>/dev/null &
    display=$!
    while [ ! -s "$folder/display" ]; do
        kill -0 "$display"
        sleep 0.1
    done
    DISPLAY=:$(cat "$folder/display")
    # Nobody's settings, caches or session have a say.
    HOME=$folder/home
    XDG_RUNTIME_DIR=$folder/run
    mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR"
    unset QT_QPA_PLATFORM QT_XCB_GL_INTEGRATION QT_STYLE_OVERRIDE QT_SCALE_FACTOR DBUS_SESSION_BUS_ADDRESS \
        XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME
    export DISPLAY HOME XDG_RUNTIME_DIR LC_ALL=C.UTF-8
}

# start NAME PROGRAM...: from the start of the process to the first paint, and its memory a second later.
start() {
    name=$1
    shift
    BENCH_SUBJECT=$name BENCH_START_NS=$(date +%s%N) QT_PLUGIN_PATH=build/release/plugins \
        QT_QPA_GENERIC_PLUGINS=watch timeout 60 "$@"
}

# The yardsticks: a dialog as Qt opens it, and one spared the loading of OpenGL, as the client spares itself.
starts() {
    start dialog "$bin/empty_dialog"
    QT_XCB_GL_INTEGRATION=none start bare_dialog "$bin/empty_dialog"
    start login "$bin/kelvra_client" --data-dir "$folder/data"
}

measure() {
    "$bin/module_bench" folder "$folder/data"
    say "Starts, openings and screens, $rounds rounds"
    starts >/dev/null # brings the files into memory
    round=0
    while [ "$round" -lt "$rounds" ]; do
        starts >>"$folder/figures"
        timeout 60 "$bin/module_bench" login "$round" >>"$folder/figures"
        timeout 60 "$bin/module_bench" screens "$round" >>"$folder/figures"
        round=$((round + 1))
    done
    say "Moves on the gesture pad"
    timeout 300 "$bin/gesture_bench" >>"$folder/figures"

    say "Timers on idle screens, 10 seconds"
    waiting=""
    for screen in dialog normal cloud_password cloud_pin gesture method create questions answers reset splash qr locked; do
        timeout 60 "$bin/module_bench" wakeups "$screen" >"$folder/wakeups_$screen" &
        waiting="$waiting $!"
    done
    for process in $waiting; do
        wait "$process"
    done
    cat "$folder"/wakeups_* >>"$folder/figures"

    strip --strip-unneeded -o "$folder/library" "$bin/libkelvra_login.so"
    echo "library_bytes $(wc -c <"$folder/library")" >>"$folder/figures"
    echo "library_unstripped_bytes $(wc -c <"$bin/libkelvra_login.so")" >>"$folder/figures"
}

# Medians of what is measured in rounds, and what follows from them: "name value" lines.
evaluate() {
    sort -k1,1 -k2,2n "$folder/figures" | awk '
        function median(last) { return (value[int((last + 1) / 2)] + value[int(last / 2) + 1]) / 2 }
        function finish() {
            if (name == "") return
            figure[name] = median(count)
            printf "%s %.10g\n", name, figure[name]
        }
        $1 != name { finish(); name = $1; count = 0 }
        { value[++count] = $2 }
        END {
            finish()
            for (name in figure) {
                if (name ~ /^screen_.*_first_ms$/ && figure[name] > first) first = figure[name]
                if (name ~ /^screen_.*_again_ms$/ && figure[name] > again) again = figure[name]
                if (name ~ /^wakeups_/ && name !~ /_(dialog|qr|locked)$/ && figure[name] > idle) idle = figure[name]
            }
            printf "startup_ratio %.2f\n", figure["startup_login_ms"] / figure["startup_dialog_ms"]
            printf "startup_bare_ratio %.2f\n", figure["startup_login_ms"] / figure["startup_bare_dialog_ms"]
            printf "login_ratio %.2f\n", figure["login_ms"] / figure["login_dialog_ms"]
            printf "gesture_ratio %.2f\n", figure["gesture_panel_us"] / figure["gesture_polyline_us"]
            printf "memory_ratio %.2f\n", figure["memory_login_kb"] / figure["memory_dialog_kb"]
            printf "memory_bare_ratio %.2f\n", figure["memory_login_kb"] / figure["memory_bare_dialog_kb"]
            printf "screen_first_ms %.2f\nscreen_again_ms %.2f\nwakeups_idle %d\n", first, again, idle
        }'
}

print_json() {
    sort "$folder/result" | awk '{ printf "%s  \"%s\": %s", (NR == 1 ? "{\n" : ",\n"), $1, $2 } END { print "\n}" }'
}

print_table() {
    awk '
        function row(what, subject, yardstick, ratio, aim, figure, limit) {
            printf "%-34s %12s %12s %7s   %-9s %s\n", what, subject, yardstick, ratio, aim,
                   limit == "" ? "" : figure <= limit ? "met" : "MISSED"
        }
        function times(name) { return sprintf("%.2f", f[name]) }
        function ms(name) { return sprintf("%.1f ms", f[name]) }
        function mb(name) { return sprintf("%.1f MB", f[name] / 1024) }
        { f[$1] = $2 }
        END {
            row("", "login", "yardstick", "ratio", "aim", 0, "")
            row("start to first paint", ms("startup_login_ms"), ms("startup_dialog_ms"), times("startup_ratio"),
                "<= 1.3", f["startup_ratio"], 1.3)
            row("  beside a dialog without OpenGL", ms("startup_login_ms"), ms("startup_bare_dialog_ms"),
                times("startup_bare_ratio"), "", 0, "")
            row("login() to first paint", ms("login_ms"), ms("login_dialog_ms"), times("login_ratio"), "<= 4",
                f["login_ratio"], 4)
            row("screen shown first (slowest)", ms("screen_first_ms"), ms("screen_plain_ms"), "", "<= 16 ms",
                f["screen_first_ms"], 16)
            row("screen shown again (slowest)", ms("screen_again_ms"), ms("screen_plain_ms"), "", "<= 4 ms",
                f["screen_again_ms"], 4)
            row("move on the gesture pad", sprintf("%.0f us", f["gesture_panel_us"]),
                sprintf("%.0f us", f["gesture_polyline_us"]), times("gesture_ratio"), "<= 1.5", f["gesture_ratio"], 1.5)
            row("resident memory", mb("memory_login_kb"), mb("memory_dialog_kb"), times("memory_ratio"), "<= 1.15",
                f["memory_ratio"], 1.15)
            row("  beside a dialog without OpenGL", mb("memory_login_kb"), mb("memory_bare_dialog_kb"),
                times("memory_bare_ratio"), "", 0, "")
            row("timers in 10 s, idle (most)", f["wakeups_idle"], f["wakeups_dialog"], "", "0", f["wakeups_idle"], 0)
            row("timers in 10 s, QR code", f["wakeups_qr"], f["wakeups_dialog"], "", "about 10", f["wakeups_qr"], 12)
            row("timers in 10 s, locked", f["wakeups_locked"], f["wakeups_dialog"], "", "about 100",
                f["wakeups_locked"], 110)
            row("library, stripped", f["library_bytes"], f["library_unstripped_bytes"], "", "<= 1.5 MB",
                f["library_bytes"], 1500000)
        }' "$folder/result"
}

if [ -n "$json" ]; then
    prepare >&2
    measure >&2
else
    prepare
    measure
fi
say "Load of the machine while it was measured: $(cut -d' ' -f1-3 /proc/loadavg), $(nproc) cores" >&2
evaluate >"$folder/result"
if [ -n "$json" ]; then print_json; else print_table; fi
