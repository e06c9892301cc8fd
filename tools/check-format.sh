#!/usr/bin/env bash
# Names the C++ files that clang-format would change, and fails; with --fix, changes them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mode=(--dry-run -Werror)
[[ ${1-} != --fix ]] || mode=(-i)
find app common convert converter library mainwindow palettes platform shading solidworks standin support tests resources \
    \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 -r clang-format "${mode[@]}"
