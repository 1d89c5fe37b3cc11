#!/usr/bin/env bash
# Cross-builds and packs for Windows, and tests under Wine: the unit tests, and whole transfers between two Windows PCs,
# between Windows and Linux, and of the packed program. ZANDROVE_QT_MINGW names the folder of a Qt for mingw-w64. Arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

: "${ZANDROVE_QT_MINGW:?must name the folder of a Qt for mingw-w64; scripts/windows/build-qt.sh makes one}"
scripts/setup.sh

# The Linux half of a mixed pair.
cmake --preset debug --log-level=WARNING
cmake --build --preset debug --target zandrove-cli

scripts/windows/package.sh build/packages

# A PC for the unit tests, and one that the end-to-end tests copy.
scripts/windows/prefix.sh build/windows/prefix
scripts/windows/prefix.sh build/windows/template

ctest --preset windows "$@"
