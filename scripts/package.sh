#!/usr/bin/env bash
# Makes the Debian package of the release build: both programs, their translations, manual pages, menu entry and icon.
# Usage: package.sh [DIR]; the package goes to DIR, by default build/packages.
set -euo pipefail
directory=$(realpath -m "${1:-$(dirname "$0")/../build/packages}")
cd "$(dirname "$0")/.."

scripts/setup.sh --with dpkg-dev fakeroot gzip librsvg2-bin
# The same sources give the same package, whenever it is made.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || date +%s)}
export SOURCE_DATE_EPOCH
cmake --preset release --log-level=WARNING
cmake --build --preset release --target package_contents
mkdir -p "$directory"
cpack -G DEB --config build/release/CPackConfig.cmake -B build/release/package >build/release/package.log 2>&1 ||
    { cat build/release/package.log >&2; exit 1; }
rm -f "$directory"/zandrove_*.deb
mv build/release/package/zandrove_*.deb "$directory"
ls "$directory"/zandrove_*.deb
