#!/bin/sh
# Checks the sources with clang-tidy (Debian packages clang-tidy and clang): tools/tidy.sh [files]
# Takes some minutes; needs a build tree with the generated headers, which it makes.
set -eu
cd "$(dirname "$0")/.."
cmake --preset dev >/dev/null
cmake --build --preset dev --parallel "$(nproc)" >/dev/null
[ $# -gt 0 ] || set -- $(find login client -name '*.cpp')
printf '%s\n' "$@" | xargs -P "$(nproc)" -n 4 clang-tidy -quiet -p build/dev
