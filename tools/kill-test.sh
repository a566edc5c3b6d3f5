#!/bin/sh
# Kills a client at random moments while it writes, and looks what is left: tools/kill-test.sh [times [seed]]
set -eu
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build/dev}
cmake --preset "${PRESET:-dev}" -B "$build" >/dev/null
cmake --build "$build" --target killed --parallel "$(nproc)" >/dev/null
exec "$build/bin/killed" "${1:-300}" ${2+"$2"}
