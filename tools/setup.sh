#!/usr/bin/env bash
# Installs through apt what this machine lacks; silent when nothing is missing.
#
#   tools/setup.sh [--list] SET
#
#   run        what building and running the programs needs
#   package    what making the packages needs
#   native     what the tests of the portable half and the quick checks need
#   test       what all tests need
#   --list     only names the packages of the set
set -euo pipefail

readonly build=(cmake ninja-build googletest libcli11-dev python3)
readonly windows_build=("${build[@]}" g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64)
readonly session=(
    wine wine64 locales                                      # running Windows programs
    xvfb openbox                                             # on a screen of its own
    libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1
    fonts-open-sans fonts-liberation fonts-wine
)
readonly native=(
    "${build[@]}" g++
    clang-format cppcheck librsvg2-bin fonts-open-sans       # checks; icons and banners
)

list=no
[[ ${1-} != --list ]] || { list=yes; shift; }
case ${1-} in
run) packages=("${windows_build[@]}" "${session[@]}") ;;
package) packages=("${windows_build[@]}" nsis) ;;
native) packages=("${native[@]}") ;;
test)
    packages=("${native[@]}" "${windows_build[@]}" "${session[@]}" nsis
        clang-tidy gcovr                                     # checks, coverage
        clang libclang-rt-14-dev)                            # fuzz targets, second compiler
    ;;
*) echo "usage: tools/setup.sh [--list] run | package | native | test" >&2; exit 2 ;;
esac
mapfile -t packages < <(printf '%s\n' "${packages[@]}" | sort -u)
[[ $list == no ]] || { printf '%s\n' "${packages[@]}"; exit 0; }

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

echo "Installing ${#missing[@]} packages: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" apt-get install -qq -y --no-install-recommends "${missing[@]}" >/dev/null
