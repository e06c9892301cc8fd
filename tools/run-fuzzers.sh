#!/usr/bin/env bash
# Runs every fuzz target on its kept corpus and goes on from there for a number of seconds each; ends
# with "N passed, N failed".  What a target finds is left below build/fuzz/findings.
#
#   tools/run-fuzzers.sh SECONDS
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly seconds=$1 findings=$PWD/build/fuzz/findings
passed=0 failed=0
mkdir -p "$findings"
for source in tests/fuzz/*Fuzz.cpp; do
    name=$(basename "$source" .cpp)
    grown=build/fuzz/grown/$name
    mkdir -p "$grown"
    if "build/fuzz/$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix="$findings/$name-" "$grown" "tests/fuzz/corpus/$name" \
        >"build/fuzz/$name.log" 2>&1; then
        passed=$((passed + 1))
        echo "ok      $name: $(grep -E '^Done' "build/fuzz/$name.log")"
    else
        failed=$((failed + 1))
        echo "FAILED  $name"
        tail -n 40 "build/fuzz/$name.log"
    fi
done
echo "$passed passed, $failed failed"
[[ $failed -eq 0 ]]
