#!/bin/sh
# Sends 100,000 random events at the login module for each seed, up to the first that fails: tools/monkey.sh [seed ...]
set -eu
cd "$(dirname "$0")/.."
preset=${PRESET:-dev}
build=${BUILD_DIR:-build/$preset}
cmake --preset "$preset" -B "$build" >/dev/null
cmake --build "$build" --target monkey --parallel "$(nproc)" >/dev/null
export QT_QPA_PLATFORM=offscreen LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
[ $# -gt 0 ] || set -- 1 2 3 4 5 6 7 8 9 10
for seed; do
    "$build/bin/monkey" "${EVENTS:-100000}" "$seed"
done
