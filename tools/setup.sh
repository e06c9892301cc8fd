#!/usr/bin/env bash
# Installs through apt what building and testing need and this machine lacks; silent when nothing
# is missing.
set -euo pipefail

packages=(
    g++ cmake ninja-build googletest                         # native build and tests
    g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64     # build for Windows
    wine wine64 locales                                      # running it
    xvfb openbox                                             # on a screen of its own
    libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1
    fonts-open-sans fonts-liberation fonts-wine
    clang-format clang-tidy python3 librsvg2-bin             # checks
    clang libclang-rt-14-dev                                 # fuzz targets, second compiler
    cppcheck gcovr                                           # more checks, test coverage
    nsis                                                     # installer
)

installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null |
    sed -n 's/^installed //p' || true)
missing=()
for package in "${packages[@]}"; do
    grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

if ! command -v apt-get >/dev/null; then
    echo "setup: please install the equivalents of: ${missing[*]}" >&2
    exit 1
fi
as_root=(env DEBIAN_FRONTEND=noninteractive)
[[ $EUID -eq 0 ]] || as_root=(sudo "${as_root[@]}")

echo "Installing ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -qq -y --no-install-recommends "${missing[@]}" >/dev/null
