#!/usr/bin/env bash
# Makes the portable zip for Windows from a cross-build: the programs with all that they need beside the system.
# Usage: package.sh [DIR]; the zip goes to DIR, by default build/packages. ZANDROVE_QT_MINGW names the folder of a Qt for
# mingw-w64.
set -euo pipefail
directory=$(realpath -m "${1:-$(dirname "$0")/../../build/packages}")
cd "$(dirname "$0")/../.."

: "${ZANDROVE_QT_MINGW:?must name the folder of a Qt for mingw-w64; scripts/windows/build-qt.sh makes one}"
scripts/setup.sh
scripts/windows/setup.sh
cmake --preset windows --log-level=WARNING
cmake --build --preset windows
mkdir -p "$directory"
cpack -G ZIP --config build/windows/CPackConfig.cmake -B build/windows/package >build/windows/package.log 2>&1 ||
    { cat build/windows/package.log >&2; exit 1; }
mv build/windows/package/Zandrove-*.zip "$directory"
ls "$directory"/Zandrove-*-windows-x64.zip
