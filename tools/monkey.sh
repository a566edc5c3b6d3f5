#!/bin/sh
# Sends 100,000 random events for each seed at the module: tools/monkey.sh [seeds [first seed]]
set -eu
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build/dev}
cmake --preset "${PRESET:-dev}" -B "$build" >/dev/null
cmake --build "$build" --target monkey --parallel "$(nproc)" >/dev/null
export QT_QPA_PLATFORM=offscreen
first=${2:-1}
for seed in $(seq "$first" $((first + ${1:-10} - 1))); do
    "$build/bin/monkey" --seed "$seed" --events 100000
done
