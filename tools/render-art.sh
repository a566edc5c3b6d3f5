#!/bin/sh
# Renders the SVG sources of both resource trees to the PNGs and the GIF that are compiled in.
set -eu

if ! command -v rsvg-convert >/dev/null 2>&1 || ! command -v convert >/dev/null 2>&1; then
    echo "render-art.sh: rsvg-convert or convert is missing; install Debian's librsvg2-bin and imagemagick" >&2
    exit 1
fi

root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)

# One turn of a second, 24 frames of 0.04 s; each is drawn for itself, so the one before must go.
render_waiting() {
    frames=$(mktemp -d)
    for angle in $(seq -w 0 15 345); do
        sed "s/rotate(0 /rotate($angle /" "$1" | rsvg-convert --output "$frames/$angle.png"
    done
    convert -dispose Background -delay 4 -loop 0 "$frames"/*.png \
        -channel A -threshold 50% +channel +dither -colors 48 "$2"
    rm -r "$frames"
}

# The size written in an SVG's root is the size of its PNG; the application icon has two.
render_tree() {
    tree=$1
    count=0
    mkdir -p "$root/$tree/images"
    for svg in "$root/$tree"/art/*.svg; do
        name=$(basename "$svg" .svg)
        if [ "$name" = app_icon ]; then
            for size in 64 256; do
                rsvg-convert --width "$size" --height "$size" \
                    --output "$root/$tree/images/${name}_$size.png" "$svg"
                count=$((count + 1))
            done
        elif [ "$name" = waiting ]; then
            render_waiting "$svg" "$root/$tree/images/$name.gif"
            count=$((count + 1))
        else
            rsvg-convert --output "$root/$tree/images/$name.png" "$svg"
            count=$((count + 1))
        fi
    done
    bytes=$(cat "$root/$tree"/images/* | wc -c)
    echo "$tree: $count images rendered, $bytes bytes"
}

render_tree login/resources
render_tree client/resources
