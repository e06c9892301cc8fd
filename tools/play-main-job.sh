#!/usr/bin/env bash
# Plays the main job with the built programs, inside a session of tools/wine-session.sh.
#
#   tools/play-main-job.sh PICTURE_FOLDER
set -euo pipefail
build=$(cd "$(dirname "${BASH_SOURCE[0]}")/../build/windows" && pwd)

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

exec wine "$build/main_job.exe" "$(windows_path "$build/bin")" "$(windows_path "$1")"
