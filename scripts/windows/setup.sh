#!/usr/bin/env bash
# Installs what building for Windows and testing under Wine takes beyond scripts/setup.sh.
set -euo pipefail
exec "$(dirname "$0")/../setup.sh" --with g++-mingw-w64-x86-64-posix wine wine64 xz-utils zip \
    nsis librsvg2-bin netpbm
