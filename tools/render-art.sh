#!/bin/sh
# Renders the SVG sources of both resource trees to the PNGs and the GIF that are compiled in. With words given, only
# the sources named by one of them: tools/render-art.sh user_n user_h
set -eu

for tool in rsvg-convert convert zopflipng; do
    if ! command -v $tool >/dev/null 2>&1; then
        echo "render-art.sh: $tool is missing; install Debian's librsvg2-bin, imagemagick and zopfli" >&2
        exit 1
    fi
done

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

# render_png ZOOM SVG PNG [LEVELS]: with LEVELS, of so many shades per colour only, which takes a quarter fewer bytes
render_png() {
    raw=$(mktemp)
    rsvg-convert --zoom "$1" --output "$raw" "$2"
    if [ $# -gt 3 ]; then
        convert "$raw" +dither -posterize "$4" "PNG24:$raw"
    fi
    zopflipng -y "$raw" "$3" >/dev/null
    rm "$raw"
    count=$((count + 1))
}

# The size written in an SVG's root is the size of its PNG, and beside it stands one of twice the size for dense
# screens. The backgrounds have one and a half times theirs only, as they are most of all the bytes, and the
# application icon has sizes of its own.
render() {
    svg=$1
    images=$2
    name=$(basename "$svg" .svg)
    case $name in
    app_icon)
        render_png 1 "$svg" "$images/${name}_64.png"
        render_png 4 "$svg" "$images/${name}_256.png"
        # That of the program on Windows.
        convert "$images/${name}_256.png" \( -clone 0 -resize 48x48 \) \( -clone 0 -resize 32x32 \) \
            \( -clone 0 -resize 16x16 \) "$images/$name.ico"
        ;;
    waiting)
        render_waiting "$svg" "$images/$name.gif"
        count=$((count + 1))
        ;;
    img_bg_loading)
        # Seen for seconds and full of shapes: coarser shades do not show in it.
        render_png 1.5 "$svg" "$images/$name.png" 128
        ;;
    gesture_*)
        # Twice the dot's size, and scaled down to what a screen needs by the dot itself.
        render_png 1 "$svg" "$images/$name.png"
        ;;
    img_bg_*)
        render_png 1.5 "$svg" "$images/$name.png"
        ;;
    *)
        render_png 1 "$svg" "$images/$name.png"
        render_png 2 "$svg" "$images/$name@2x.png"
        ;;
    esac
}

render_tree() {
    tree=$1
    shift
    count=0
    mkdir -p "$root/$tree/images"
    for svg in "$root/$tree"/art/*.svg; do
        case " ${*:-$(basename "$svg" .svg)} " in
        *" $(basename "$svg" .svg) "*) render "$svg" "$root/$tree/images" ;;
        esac
    done
    bytes=$(cat "$root/$tree"/images/* | wc -c)
    echo "$tree: $count images rendered, $bytes bytes"
}

render_tree login/resources "$@"
render_tree client/resources "$@"
