#!/bin/sh
# Renders the SVG sources of both resource trees to the PNGs that are compiled in.
set -eu

if ! command -v rsvg-convert >/dev/null 2>&1; then
    echo "render-art.sh: rsvg-convert is missing; install Debian's package librsvg2-bin" >&2
    exit 1
fi

root=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)

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
        else
            rsvg-convert --output "$root/$tree/images/$name.png" "$svg"
            count=$((count + 1))
        fi
    done
    bytes=$(cat "$root/$tree"/images/*.png | wc -c)
    echo "$tree: $count images rendered, $bytes bytes of PNG"
}

render_tree login/resources
render_tree client/resources
