# Sourced by try.sh and tours.sh, with $here: Wine with a folder of its own, and the client's tour in it.

export WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
longest_tour=3600 # s; the tour itself stops a program that hangs long before

# set_up_wine FOLDER: makes it where it is not ready, and uses it from now on.
set_up_wine() {
    export WINEPREFIX="$1"
    [ ! -e "$WINEPREFIX/ready" ] || return 0
    say "Setting up Wine"
    rm -rf "$WINEPREFIX"
    timeout 300 wineboot --init >/dev/null 2>&1
    # There is no window manager: Wine's own desktop gives windows the focus.
    timeout 60 wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d kelvra /f >/dev/null
    timeout 60 wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v kelvra /d 1920x1200 /f >/dev/null
    # A crash ends the program instead of asking what to do.
    timeout 60 wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null
    # The font that the interface asks for is one of Windows'.
    timeout 60 wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v 'Microsoft YaHei' /d 'WenQuanYi Micro Hei' /f \
        >/dev/null
    touch "$WINEPREFIX/ready"
}

# take_tour PROGRAM FOLDER LOG: fails where a step has not held, and names it.
take_tour() {
    rm -rf "$2"
    status=0
    timeout $longest_tour "$here/wine.sh" "$1" --tour "$2" >"$3" 2>&1 || status=$?
    tr -d '\r' <"$3" | grep ' steps held; ' || say "The tour broke off with exit status $status (log: $3)"
    [ $status -ne 0 ] || return 0
    [ ! -f "$2/tour.txt" ] || grep -v '| ok' "$2/tour.txt" || true
    return 1
}
