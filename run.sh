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
exec "$tree/build/release/bin/kelvra_client" "$@"
