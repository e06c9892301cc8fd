#!/usr/bin/env bash
# Writes tests/golden/transcripts anew: what the program does now, step by step, where a test compares
# that; the calls of each SolidWorks operation above all.  Whether it is what is meant, the difference
# to what was there before tells: look at it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tools/build.sh native portable_tests
rm -f tests/golden/transcripts/*.txt
TNT_WRITE_TRANSCRIPTS=1 build/native/portable_tests --gtest_brief=1
git diff --stat -- tests/golden/transcripts
