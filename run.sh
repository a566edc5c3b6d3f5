#!/bin/sh
# Installs what is missing, builds the client and starts it: ./run.sh [client options]
set -eu
tree=$(cd "$(dirname "$0")" && pwd)
. "$tree/tools/setup.sh"

start_folder=$PWD
cd "$tree"
# shellcheck disable=SC2086
install_missing $build_packages
build release

# Relative paths in the options are meant from where the user stands.
cd "$start_folder"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    tour=$start_folder/tour
    for option in "$@"; do
        case $option in
            -h | -v | -help | --help | -version | --version | -tour* | --tour*) tour="" ;;
        esac
    done
    if [ -n "$tour" ]; then
        say "There is no display: the client takes its tour by itself; the pictures come into $tour"
        set -- "$@" --tour "$tour"
    fi
fi
exec "$tree/build/release/bin/kelvra_client" "$@"
