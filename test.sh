#!/bin/sh
# Installs what is missing, builds everything and runs every test: ./test.sh [ctest options]
# PRESET=asan ./test.sh does it under the address and undefined behaviour sanitizers.
set -eu
cd "$(dirname "$0")"
. tools/setup.sh

preset=${PRESET:-dev}
# shellcheck disable=SC2086
install_missing $build_packages clang-format zbar-tools doxygen

say "Checking the format"
find host login client bench examples tests -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run --Werror

build "$preset"

say "Testing ($preset)"
ctest --preset "$preset" --parallel "$(nproc)" "$@"
