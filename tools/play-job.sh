#!/usr/bin/env bash
# Plays one job with the built programs, or with those of another folder, inside a session of
# tools/wine-session.sh.
#
#   tools/play-job.sh JOB [PICTURE_FOLDER [PROGRAM_FOLDER]]
#
#   JOB              a name of the table in tests/e2e/main.cpp
#   PICTURE_FOLDER   default: build/screenshots/JOB, emptied before
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly build=$root/build/windows
readonly job=$1 pictures=${2-$root/build/screenshots/$1} programs=${3-$build/bin}

if [[ $# -eq 1 ]]; then
    rm -rf "$pictures"
    mkdir -p "$pictures"
fi
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

exec wine "$build/play_job.exe" "$job" "$(windows_path "$programs")" "$(windows_path "$pictures")"
