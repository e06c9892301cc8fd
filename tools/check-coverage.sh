#!/usr/bin/env bash
# Counts which lines and branches of the portable half its tests run, and fails below the limits.
# The whole table and the lines that are never run stand in build/coverage/report.txt.
#
# Branches that only an exception out of a called function takes, such as a lack of memory, are not
# counted: every call has one, and the compiler makes it, not the author.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly lines=95 branches=90 # per cent
readonly build=build/coverage report=build/coverage/report.txt

tools/build.sh coverage portable_tests
find "$build" -name '*.gcda' -delete # what an earlier run counted
"$build/portable_tests" --gtest_brief=1
gcovr --root . --object-directory "$build" -j "$(nproc)" \
    --filter '(app|common|convert|converter|library|mainwindow|palettes|shading|solidworks|standin/model|support)/' \
    --exclude-throw-branches --exclude-unreachable-branches \
    --txt "$report" --html-details "$build/report.html" --print-summary \
    --fail-under-line "$lines" --fail-under-branch "$branches"
