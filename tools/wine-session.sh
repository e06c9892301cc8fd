#!/usr/bin/env bash
# Runs a command in a Windows environment of its own: a fresh Wine prefix, a virtual screen with a
# window manager, a Windows process that keeps Wine's services alive between programs, and a home
# folder that nobody else uses.  All of it lies below build/wine and is removed at the end, also
# after a failure or Ctrl+C.  The prefix is copied from a template that is made once.
#
#   tools/wine-session.sh [--dpi 144] [--locale de_DE] [--user-display] COMMAND [ARGUMENT ...]
#
#   --dpi N          dots per inch of the screen as Windows programs see it (default 96)
#   --locale NAME    language and code page of Windows programs, as in de_DE, ru_RU, ja_JP
#   --user-display   the screen in DISPLAY instead of a virtual one
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly folder=$root/build/wine
readonly defaults=$root/tools/wine-defaults.reg
readonly screen=1280x1024x24

dpi=96 locale_name='' own_display=yes
while [[ ${1-} == --* ]]; do
    case $1 in
    --dpi) dpi=$2; shift 2 ;;
    --locale) locale_name=$2; shift 2 ;;
    --user-display) own_display=no; shift ;;
    *) echo "wine-session: unknown option $1" >&2; exit 2 ;;
    esac
done
[[ $# -gt 0 ]] || { echo "wine-session: no command given" >&2; exit 2; }

# Under the locale "C" Wine cannot make files with an umlaut in their name.
export LANG=C.UTF-8 WINEARCH=win64 WINEDEBUG=-all
unset LC_ALL LC_CTYPE
# No entries in the desktop's menus, no download of a browser or a .NET replacement.
export WINEDLLOVERRIDES='winemenubuilder.exe,mscoree,mshtml='

mkdir -p "$folder"
for stale in "$folder"/session-*; do
    if [[ -d $stale ]] && ! grep -qs wine-session "/proc/${stale##*-}/cmdline"; then
        WINEPREFIX=$stale/prefix wineserver -k 2>/dev/null || true
        rm -rf "$stale"
    fi
done

readonly session=$folder/session-$$
display_pid='' command_pid=''

# shellcheck disable=SC2317 # reached through the traps
clean_up() {
    trap '' INT TERM HUP
    trap - EXIT
    set +e
    [[ -z $command_pid ]] || kill "$command_pid" 2>/dev/null
    if [[ -d ${WINEPREFIX-} ]]; then
        wineserver -k
        timeout 60 wineserver -w
    fi
    [[ -z $display_pid ]] || kill "$display_pid" 2>/dev/null
    wait
    rm -rf "$session"
} >/dev/null 2>&1
trap clean_up EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# shellcheck disable=SC2030,SC2031 # the subshell's environment is meant to end with it
make_template() {
    local template=$1 unfinished=$1.$$
    echo "Making a Windows environment, once; this takes half a minute" >&2
    rm -rf "$folder"/template-*/ # of another Wine, or never finished
    mkdir -p "$unfinished/home"
    (
        export HOME=$unfinished/home WINEPREFIX=$unfinished/prefix
        unset DISPLAY WAYLAND_DISPLAY
        made=0
        wineboot -i && wine winecfg -v win10 && wine reg import "$defaults" || made=$?
        wineserver -k
        wineserver -w
        # Documents, Desktop and so on are folders of the prefix, not of the person at the machine.
        find "$WINEPREFIX/drive_c/users" -type l -exec sh -c 'rm "$1"; mkdir "$1"' sh {} \;
        exit "$made"
    ) </dev/null >"$folder/template.log" 2>&1 && mv "$unfinished" "$template"
}

template_of_this_wine() {
    local template
    template=$folder/template-$({ wine --version; cat "$defaults"; } | sha256sum | cut -c1-12)
    exec 9>"$folder/template.lock"
    flock 9
    [[ -d $template ]] || make_template "$template" || { cat "$folder/template.log" >&2; exit 1; }
    exec 9>&-
    echo "$template"
}

# Links instead of copies, except for the registry, which Wine rewrites in place.
make_prefix() {
    local template
    template=$(template_of_this_wine)
    mkdir -p "$session/home"
    cp -al "$template/prefix" "$session/prefix"
    local hive
    for hive in system user userdef; do
        cp --remove-destination "$template/prefix/$hive.reg" "$session/prefix/$hive.reg"
    done
    sed -i "s/^\"LogPixels\"=dword:.*/\"LogPixels\"=dword:$(printf %08x "$dpi")/" \
        "$session/prefix/user.reg" "$session/prefix/system.reg"
}

use_locale() {
    local locales=$folder/locales
    mkdir -p "$locales"
    [[ -d $locales/$1.UTF-8 ]] || localedef -i "$1" -f UTF-8 "$locales/$1.UTF-8"
    export LOCPATH=$locales LANG=$1.UTF-8
}

# The server picks a free number itself, so that sessions never meet; it ends with this script.
start_display() {
    mkfifo "$session/display"
    setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 "$screen" -nolisten tcp \
        3<>"$session/display" </dev/null >/dev/null 2>&1 &
    display_pid=$!
    local number
    read -r -t 60 number <>"$session/display" || { echo "wine-session: no Xvfb" >&2; exit 1; }
    export DISPLAY=:$number
    unset XAUTHORITY WAYLAND_DISPLAY
    openbox --sm-disable </dev/null >/dev/null 2>&1 &
}

# A command prompt that waits for input until this script ends.
start_keeper() {
    mkfifo "$session/keeper"
    exec 8<>"$session/keeper"
    wine cmd.exe <"$session/keeper" >/dev/null 2>&1 8>&- &
    # What Wine starts beside the first program that looks at the desktop has that one's output: it
    # must not be the command's, which would never come to an end.
    wine rundll32.exe user32.dll,GetDesktopWindow </dev/null >/dev/null 2>&1 8>&-
}

mkdir "$session"
make_prefix
[[ -z $locale_name ]] || use_locale "$locale_name"
if [[ $own_display == no ]]; then
    # shellcheck disable=SC2031
    export XAUTHORITY=${XAUTHORITY-$HOME/.Xauthority}
fi
# shellcheck disable=SC2031
export HOME=$session/home WINEPREFIX=$session/prefix
[[ $own_display == no ]] || start_display
start_keeper

"$@" <&0 8>&- &
command_pid=$!
status=0
wait "$command_pid" || status=$?
command_pid=''
exit "$status"
