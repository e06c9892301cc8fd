#!/usr/bin/env bash
# Takes pictures of the main window in its views, in both languages and at four resolutions, cut to
# the window, into build/screenshots/views-DPI.  The programs must be built.
#
#   tools/take-screenshots.sh [DPI ...]      default: 96 120 144 192
#   tools/take-screenshots.sh --docs         takes them all, and those of the tour, into docs/images
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

docs=no
[[ ${1-} != --docs ]] || { docs=yes; shift; }
[[ $# -gt 0 ]] || set -- 96 120 144 192

play() {
    local dpi=$1 job=$2 pictures=$3
    rm -rf "$pictures" && mkdir -p "$pictures"
    tools/wine-session.sh --dpi "$dpi" tools/play-job.sh "$job" "$pictures"
}

# Cut to what is not the empty screen, and small.
shrink() {
    convert "$1" -bordercolor black -border 1 -trim +repage "${@:3}" +dither -colors 200 -strip \
        -define png:compression-level=9 PNG8:"$2"
}

for dpi in "$@"; do
    pictures=$PWD/build/screenshots/views-$dpi
    play "$dpi" views "$pictures"
    for picture in "$pictures"/*.png; do
        [[ $picture != *end-the-program* ]] || { rm "$picture"; continue; }
        shrink "$picture" "$picture"
    done
    [[ $docs == no ]] || {
        mkdir -p "docs/images/views-$dpi"
        rm -f "docs/images/views-$dpi"/*.png
        cp "$pictures"/0[2-8]-*.png "docs/images/views-$dpi/"
    }
done

if [[ $docs == yes ]]; then
    pictures=$PWD/build/screenshots/tour
    play 96 main "$pictures"
    for step in 06:1-edit 07:2-get 09:3-set 10:4-component 11:5-levels; do
        shrink "$pictures/${step%%:*}"-*.png "docs/images/tour-${step#*:}.png" -resize '900x>'
    done
    pictures=$PWD/build/screenshots/windows
    play 96 windows "$pictures"
    shrink "$pictures/14-find-like-the-active-color.png" docs/images/find-en.png \
        -gravity North -crop x420+0+0 +repage -resize '900x>'
    shrink "$pictures/01-start-the-programs.png" docs/images/empty-en.png \
        -gravity Center -crop 640x330+0+0 +repage
    views=build/screenshots/views-96
    cp "$views"/*-colors-in-large-icons.png docs/images/tour-6-colors-de.png
    cp "$views"/*-material-preview.png docs/images/tour-7-preview-de.png
    cp docs/images/views-96/06-large-editor.png docs/images/main-en.png
    cp docs/images/views-96/07-large-editor-in-German.png docs/images/main-de.png
fi
