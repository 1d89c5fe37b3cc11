#!/usr/bin/env bash
# Runs a cross-built Windows program under Wine, with the libraries of Qt and of the compiler at hand.
# Usage: run.sh PROGRAM.exe [ARGUMENT...]. WINEPREFIX names the PC; by default one of the build's own.
set -euo pipefail

root=$(cd "$(dirname "$0")/../.." && pwd)
: "${ZANDROVE_QT_MINGW:?must name the folder of a Qt for mingw-w64}"
export WINEPREFIX=${WINEPREFIX:-$root/build/windows/prefix} WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES="mscoree=;mshtml="
# A prefix is nobody's real PC: tests may change its settings.
export ZANDROVE_SCRATCH_PC=1

[ -d "$WINEPREFIX/drive_c" ] || "$root/scripts/windows/prefix.sh" "$WINEPREFIX"

compiler=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
windows_path() { echo "Z:${1//\//\\}"; }
WINEPATH=$(windows_path "$ZANDROVE_QT_MINGW/bin")
WINEPATH+=";$(windows_path "$(realpath "$compiler")");$(windows_path /usr/x86_64-w64-mingw32/lib)"
export WINEPATH
exec /usr/lib/wine/wine64 "$@"
