#!/bin/sh
# Time from process start to the first painted login, on a data folder that exists already, beside an empty Qt
# dialog of the same size. Needs a display (Xvfb will do): tools/measure-startup.sh [runs]
set -eu
tree=$(cd "$(dirname "$0")/.." && pwd)
runs=${1:-20}
cd "$tree"
cmake --preset release -DKELVRA_BUILD_TESTS=ON -B build/measure >/dev/null
cmake --build build/measure --parallel "$(nproc)" --target kelvra_client empty_dialog firstpaint

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export QT_PLUGIN_PATH="$tree/build/measure/plugins"
export QT_QPA_GENERIC_PLUGINS=firstpaint

measure() {
    FIRST_PAINT_START_NS=$(date +%s%N) "$@" 2>/dev/null
}

measure build/measure/bin/kelvra_client --data-dir "$folder/data" >/dev/null
measure build/measure/bin/empty_dialog >/dev/null
run=0
while [ "$run" -lt "$runs" ]; do
    measure build/measure/bin/empty_dialog >>"$folder/empty"
    measure build/measure/bin/kelvra_client --data-dir "$folder/data" >>"$folder/login"
    run=$((run + 1))
done

median() {
    sort -n "$1" | awk '{ value[NR] = $1 } END { print (value[int((NR + 1) / 2)] + value[int(NR / 2) + 1]) / 2 }'
}
empty=$(median "$folder/empty")
login=$(median "$folder/login")
echo "first paint, median of $runs: empty dialog $empty ms, login $login ms, ratio $(echo "$empty $login" | awk '{ printf "%.2f", $2 / $1 }')"
