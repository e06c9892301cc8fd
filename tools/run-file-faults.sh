#!/usr/bin/env bash
# Runs the tests of faulty file systems inside a session of tools/wine-session.sh, with a disk of
# 256 KB and a folder that is mounted read-only.
#
#   tools/run-file-faults.sh [PROGRAM.exe] [OPTION ...]
#
#   PROGRAM   the tests (default build/windows/file_faults.exe)
#   OPTION    for the tests
#
# Where nothing may be mounted, the tests that need it say that they are skipped, and ./test counts
# them; with TNT_ALL_FAULTS=1 they fail.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly places=$root/build/file-faults
readonly disk=$places/disk readonly_folder=$places/read-only

program=$root/build/windows/file_faults.exe
[[ ${1-} != *.exe ]] || { program=$1; shift; }

cleanup() { umount "$disk" "$readonly_folder" 2>/dev/null || true; }
trap cleanup EXIT
windows_path() { printf 'Z:%s' "${1//\//\\}"; }

mkdir -p "$disk" "$readonly_folder"
cleanup
cp "$root/resources/samples/materials.tnt" "$readonly_folder"
if mount -t tmpfs -o size=256k tnt-small-disk "$disk" 2>/dev/null; then
    TNT_SMALL_DISK=$(windows_path "$disk")
    export TNT_SMALL_DISK
else
    echo "No small disk: this user may not mount one"
fi
if mount --bind "$readonly_folder" "$readonly_folder" 2>/dev/null &&
    mount -o remount,ro,bind "$readonly_folder" 2>/dev/null; then
    TNT_READ_ONLY_FOLDER=$(windows_path "$readonly_folder")
    export TNT_READ_ONLY_FOLDER
else
    echo "No read-only folder: this user may not mount one"
fi
wine "$program" "$@"
