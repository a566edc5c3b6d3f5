#!/bin/sh
# Gives damaged input to whatever reads files or strokes: tools/fuzz.sh [inputs for each target [seed]]
set -eu
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build/dev}
cmake --preset "${PRESET:-dev}" -B "$build" >/dev/null
cmake --build "$build" --target fuzz --parallel "$(nproc)" >/dev/null
export QT_QPA_PLATFORM=offscreen
for target in credentials customisation accounts key gesture; do
    "$build/bin/fuzz" "$target" "${1:-1000000}" "${2:-1}"
done
