#!/usr/bin/env bash
# Runs cppcheck over the product's code; what it may say stands, with the reason, in
# .cppcheck-suppressions.  Files that have not changed are not looked at again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly known=build/cppcheck
mkdir -p "$known"
exec cppcheck --quiet --error-exitcode=1 -j "$(nproc)" --cppcheck-build-dir="$known" \
    --std=c++20 --language=c++ --platform=win64 --library=windows -I . \
    --enable=warning,style,performance,portability \
    --suppressions-list=.cppcheck-suppressions --inline-suppr \
    -DTNT_VERSION='""' '-DSTDMETHODIMP_(type)=type __stdcall' \
    --template='{file}:{line}: {severity}: {message} [{id}]' \
    app common convert converter library mainwindow palettes platform shading solidworks standin support
