#!/bin/sh
# Feeds what the client reads, and the gesture pad, with random input, a million for each: tools/fuzz.sh [count [seed]]
set -eu
cd "$(dirname "$0")/.."
preset=${PRESET:-dev}
build=${BUILD_DIR:-build/$preset}
cmake --preset "$preset" -B "$build" >/dev/null
cmake --build "$build" --target fuzz --parallel "$(nproc)" >/dev/null
export QT_QPA_PLATFORM=offscreen LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
exec "$build/bin/fuzz" all "${1:-1000000}" "${2:-1}"
