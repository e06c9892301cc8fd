#!/usr/bin/env bash
# Starts the stand-in for SolidWorks and the program, inside a session of tools/wine-session.sh,
# with a library that is loaded at the start.  Returns when the program has been closed.
#
#   tools/start-programs.sh PROGRAM_FOLDER LIBRARY
set -euo pipefail

readonly programs=$1 library=$2

wine reg add 'HKCU\SOFTWARE\Chromixs\TNT4SWX' /v DefaultColorFile \
    /d "Z:${library//\//\\}" /f >/dev/null
wine "$programs/swx_standin.exe" &
wine "$programs/tnt4swx.exe"
