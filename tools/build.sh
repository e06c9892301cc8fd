#!/usr/bin/env bash
# Configures a CMake preset when that is needed, and builds what changed.
#
#   tools/build.sh PRESET [TARGET ...]     without targets: everything
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly preset=$1
shift
readonly ninja_file=build/$preset/build.ninja
if [[ ! -f $ninja_file || CMakePresets.json -nt $ninja_file ]]; then
    cmake --preset "$preset" --log-level=NOTICE >/dev/null
fi
exec cmake --build --preset "$preset" ${1+--target "$@"}
