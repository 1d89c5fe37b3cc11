#!/usr/bin/env bash
# Makes the zip and the installer for Windows from a cross-build: the programs with all that they need beside the system.
# Usage: package.sh [DIR]; both go to DIR, by default build/packages.
# ZANDROVE_QT_MINGW names the folder of a Qt for mingw-w64.
set -euo pipefail
directory=$(realpath -m "${1:-$(dirname "$0")/../../build/packages}")
cd "$(dirname "$0")/../.."

: "${ZANDROVE_QT_MINGW:?must name the folder of a Qt for mingw-w64; scripts/windows/build-qt.sh makes one}"
scripts/setup.sh
scripts/windows/setup.sh
cmake --preset windows --log-level=WARNING
cmake --build --preset windows

stage=build/windows/stage
work=build/windows/package
rm -rf "$stage" "$work"
mkdir -p "$directory" "$work"
quietly() {
    "$@" >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
}
quietly cmake --install build/windows --prefix "$PWD/$stage" --strip

quietly cpack -G ZIP --config build/windows/CPackConfig.cmake -B "$work"
archive=$(basename "$work"/Zandrove-*.zip)

# The uninstaller removes what was installed by name, and nothing else.
{
    find "$stage" -type f -printf 'Delete "$INSTDIR/%P"\n'
    find "$stage" -mindepth 1 -depth -type d -printf 'RMDir "$INSTDIR/%P"\n'
} | tr / '\\' >"$work/uninstall-files.nsh"
rsvg-convert --background-color=white packaging/windows/side.svg | pngtopnm | ppmtobmp -bpp 24 -quiet >"$work/side.bmp"
cp build/windows/packaging/build.nsh "$work"
options=(-DWORK="$PWD/$work" -DOUTPUT="$PWD/$work/${archive%.zip}-setup.exe")
[ -e "$stage/zandrove.exe" ] && options+=(-DWINDOW)
quietly makensis -INPUTCHARSET UTF8 -WX -V2 "${options[@]}" packaging/windows/installer.nsi

rm -f "$directory"/Zandrove-*-windows-x64.zip "$directory"/Zandrove-*-windows-x64-setup.exe
mv "$work"/Zandrove-*.zip "$work"/Zandrove-*-setup.exe "$directory"
ls "$directory"/Zandrove-*-windows-x64*
