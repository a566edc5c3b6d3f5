#!/bin/sh
# What is installed, used as a stranger does: package.sh BUILD_FOLDER SOURCE_FOLDER
# The installed tree is moved, a host is built against it out of the tree, and the module once more without the client,
# against libraries of another package's name.
set -eu
build=$1
source=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
trap 'exit 1' INT TERM HUP

fail() {
    echo "package: $*" >&2
    exit 1
}

# Quiet unless it fails.
run() {
    "$@" >"$folder/log" 2>&1 || {
        cat "$folder/log" >&2
        fail "failed: $*"
    }
}

# configured NAME OPTION...: somebody's project in the scratch folder, with what is installed there and another host.
configured() {
    name=$1
    shift
    run cmake -S "$folder/$name" -B "$folder/$name-build" -G Ninja "-Dother_host_DIR=$folder/other_host" \
        "-Dother_host_LIBRARY_DIR=$folder/whole/$libraries" "$@"
    run cmake --build "$folder/$name-build"
}

export QT_QPA_PLATFORM=offscreen
cp -r "$source/examples/minimal_host" "$source/tests/package/other_host" "$source/tests/package/shell" "$folder"
ln -s "$source" "$folder/module"

run cmake --install "$build" --prefix "$folder/first"
mv "$folder/first" "$folder/whole"
libraries=$(cd "$folder/whole" && dirname "$(find . -name libkelvra_login.so)")
"$folder/whole/bin/kelvra_client" --version | grep -q '^kelvra_client [0-9]' || fail "the installed client does not start"

configured minimal_host "-DCMAKE_PREFIX_PATH=$folder/whole"
run "$folder/minimal_host-build/minimal_host" "$folder/data" "$folder/login.png"
size=$(wc -c <"$folder/login.png")
[ "$size" -gt 100000 ] || fail "the login of the example has no pictures: $size bytes of PNG"
run "$folder/minimal_host-build/contract" everyLanguageHasItsTexts

configured module -DCMAKE_BUILD_TYPE=None -DKELVRA_BUILD_CLIENT=OFF -DKELVRA_HOST_PACKAGE=other_host \
    -DKELVRA_HOST_LIBRARIES=other_host::libraries
run cmake --install "$folder/module-build" --prefix "$folder/alone"
[ ! -e "$folder/alone/bin" ] || fail "the module alone brings a program along"
configured shell "-DCMAKE_PREFIX_PATH=$folder/alone"
# The libraries of a host lie beside the module, or where the loader looks.
run env "LD_LIBRARY_PATH=$folder/whole/$libraries" "$folder/shell-build/shell"
