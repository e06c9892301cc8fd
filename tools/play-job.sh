#!/usr/bin/env bash
# Plays one job with the built programs, or with those of another folder, inside a session of
# tools/wine-session.sh.
#
#   tools/play-job.sh JOB PICTURE_FOLDER [PROGRAM_FOLDER]
#
#   JOB     a name of the table in tests/e2e/main.cpp
set -euo pipefail
build=$(cd "$(dirname "${BASH_SOURCE[0]}")/../build/windows" && pwd)
readonly programs=${3-$build/bin}

windows_path() { printf 'Z:%s' "${1//\//\\}"; }

exec wine "$build/play_job.exe" "$1" "$(windows_path "$programs")" "$(windows_path "$2")"
