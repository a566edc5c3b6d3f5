#!/bin/sh
# What a move of the mouse costs on the gesture pad, beside a bare widget that repaints one polyline:
# tools/measure-gesture.sh
set -eu
tree=$(cd "$(dirname "$0")/.." && pwd)
cd "$tree"
cmake --preset release -DKELVRA_BUILD_TESTS=ON -B build/measure >/dev/null
cmake --build build/measure --parallel "$(nproc)" --target gesture_bench
build/measure/bin/gesture_bench
