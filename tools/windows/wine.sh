#!/bin/sh
# Runs a Windows program under Wine, as `ctest` does with each test: tools/windows/wine.sh PROGRAM [ARGUMENTS]
set -eu

WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/kelvra_login-wine}
export WINEPREFIX
export WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=}"
# Wine hands on what begins with QT_ only as WINEQT_. Qt's messages would go to a debugger otherwise, and tests would
# look in another way than the client, which sets that style.
export WINEQT_FORCE_STDERR_LOGGING=1 WINEQT_STYLE_OVERRIDE=Fusion
exec wine "$@"
