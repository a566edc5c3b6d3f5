#!/bin/sh
# Builds everything for 64-bit Windows on a Debian machine and tries it out under Wine: tools/windows/build.sh
# A second start goes on where the first one stopped. Qt for Windows, which takes half an hour, is kept for other trees
# in $KELVRA_WINDOWS (by default ~/.cache/kelvra_login/windows); the rest is in build/windows, or $BUILD_DIR.
set -eu
cd "$(dirname "$0")/../.."
. tools/setup.sh
. tools/windows/toolkit.sh

jobs=${JOBS:-$(nproc)}
toolkit=${KELVRA_WINDOWS:-${XDG_CACHE_HOME:-$HOME/.cache}/kelvra_login/windows}
folder=${BUILD_DIR:-build/windows}

# shellcheck disable=SC2086
install_missing $build_packages $toolkit_packages wine wine64 fonts-wine xvfb xauth xdotool imagemagick
build_toolkit

say "Building the client and the tests for Windows"
linguist=$(dirname "$(dpkg -L qttools5-dev | grep '/Qt5LinguistToolsConfig.cmake$')")
cmake -S . -B "$folder" -G Ninja -DCMAKE_TOOLCHAIN_FILE=cmake/windows-mingw.cmake "-DKELVRA_WINDOWS=$toolkit" \
    "-DQt5LinguistTools_DIR=$linguist" -DCMAKE_BUILD_TYPE=Release -DKELVRA_WERROR=ON -Wno-dev >/dev/null
cmake --build "$folder" --parallel "$jobs"
folder=$(CDPATH='' cd -- "$folder" && pwd)

# What the programs need lies beside them.
runtime=$(dirname "$("$compiler-g++-posix" -print-file-name=libstdc++-6.dll)")
cp -u "$toolkit"/qt/bin/*.dll "$toolkit"/libraries/bin/*.dll "$runtime/libstdc++-6.dll" "$runtime/libgcc_s_seh-1.dll" \
    "$("$compiler-g++-posix" -print-file-name=libwinpthread-1.dll)" "$folder/bin"
mkdir -p "$folder/bin/platforms"
for kind in platforms/qwindows platforms/qminimal sqldrivers/qsqlite styles/qwindowsvistastyle imageformats/qgif imageformats/qico; do
    mkdir -p "$folder/bin/$(dirname $kind)"
    cp -u "$toolkit/qt/plugins/$kind.dll" "$folder/bin/$kind.dll"
done

say "Checking what the module exports"
tools/windows/exports.sh "$folder/bin/kelvra_login.dll" >"$folder/exports.txt" || {
    tail -n 3 "$folder/exports.txt"
    exit 1
}
tail -n 1 "$folder/exports.txt"

say "Packing"
rm -rf "$folder/packages"
(cd "$folder" && cpack -B packages >cpack.log 2>&1) || {
    tail -n 20 "$folder/cpack.log"
    exit 1
}
rm -rf "$folder/packages/_CPack_Packages"
ls -l "$folder"/packages/*.zip

say "Trying it out under Wine"
exec xvfb-run --auto-servernum --server-args="-screen 0 1920x1200x24" tools/windows/try.sh "$folder" "$folder/pictures"
