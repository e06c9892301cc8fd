#!/usr/bin/env bash
# Takes pictures of the main window in its views, in both languages and at four resolutions, cut to
# the window, into build/screenshots/views-DPI.  The programs must be built.
#
#   tools/take-screenshots.sh [DPI ...]      default: 96 120 144 192
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

[[ $# -gt 0 ]] || set -- 96 120 144 192
for dpi in "$@"; do
    pictures=$PWD/build/screenshots/views-$dpi
    rm -rf "$pictures" && mkdir -p "$pictures"
    tools/wine-session.sh --dpi "$dpi" tools/play-job.sh views "$pictures"
    for picture in "$pictures"/*.png; do
        convert "$picture" -trim +repage -colors 64 -strip \
            -define png:compression-level=9 PNG8:"$picture"
    done
done
