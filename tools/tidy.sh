#!/bin/sh
# Builds everything with clang, its warnings as errors, and checks the sources with clang-tidy: tools/tidy.sh [files]
# Without files it checks every source that is built here, which takes about a quarter of an hour.
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
# shellcheck disable=SC2086
install_missing $build_packages clang clang-tidy

build clang
say "Building the benchmarks (clang)"
cmake --build --preset clang --target bench --parallel "$(nproc)"

# The example and the tests' foreign hosts are built against installed packages only.
[ $# -gt 0 ] || set -- $(git ls-files 'bench/*.cpp' 'client/*.cpp' 'host/*.cpp' 'login/*.cpp' 'tests/*.cpp' \
    ':!tests/package/*')
say "Checking $# sources with clang-tidy"
# clang-tidy counts the warnings of system headers on standard error, so its output shows only where it fails.
check='output=$(clang-tidy -quiet -p build/clang "$1" 2>&1) || { printf "%s\n" "$output"; exit 1; }'
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 1 sh -c "$check" sh
say "clang-tidy has nothing to remark"
