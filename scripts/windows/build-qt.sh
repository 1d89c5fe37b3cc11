#!/usr/bin/env bash
# Builds Qt for 64-bit Windows with mingw-w64 from Debian's own source packages, as shared libraries: qt6-base, and
# qt6-svg where its source can be had. About 12 minutes on two cores.
# Usage: build-qt.sh PREFIX, then set ZANDROVE_QT_MINGW to PREFIX.
set -euo pipefail

[ $# -eq 1 ] || { echo "usage: build-qt.sh PREFIX" >&2; exit 2; }
root=$(cd "$(dirname "$0")/../.." && pwd)
prefix=$(realpath -m "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

"$root/scripts/setup.sh" --with g++-mingw-w64-x86-64-posix qt6-base-dev qt6-base-dev-tools dpkg-dev ca-certificates

# Source packages from where the machine has its binary ones; the machine's own lists stay as they are.
apt_options=()
prepare_sources() {
    mkdir -p "$work/lists/partial" "$work/sources.d"
    local file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
        [ -f "$file" ] || continue
        case $file in
            *.list) sed -nE 's/^deb( |\t)/deb-src\1/p' "$file" >"$work/sources.d/$(basename "$file")" ;;
            *.sources) sed -E 's/^Types:.*/Types: deb-src/' "$file" >"$work/sources.d/$(basename "$file")" ;;
        esac
    done
    apt_options=(-o "Dir::Etc::SourceList=-" -o "Dir::Etc::SourceParts=$work/sources.d"
        -o "Dir::State::Lists=$work/lists" -o "APT::Sandbox::User=root")
    # A vendor without sources is no matter when the packages can be had all the same.
    apt-get "${apt_options[@]}" -q update || true
}

# fetch PACKAGE: unpacks its source below the work folder; fails where it can't be had.
fetch() {
    (cd "$work" && apt-get "${apt_options[@]}" -q source --download-only "$1" && dpkg-source -x "$1"_*.dsc "$1")
}

cat >"$work/toolchain.cmake" <<'CMAKE'
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
CMAKE

# build MODULE OPTION...: configures, builds and installs an unpacked source into the prefix.
build() {
    local module=$1
    shift
    cmake -S "$work/$module" -B "$work/build-$module" -G Ninja \
        -DCMAKE_TOOLCHAIN_FILE="$work/toolchain.cmake" -DCMAKE_FIND_ROOT_PATH="$prefix;/usr/x86_64-w64-mingw32" \
        -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_BUILD_TYPE=Release \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
        -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF "$@"
    cmake --build "$work/build-$module"
    cmake --install "$work/build-$module"
}

prepare_sources
fetch qt6-base
features=()
for off in sql dbus opengl vulkan printsupport openssl schannel tabletevent icu glib zstd brotli pkg_config \
    system_zlib system_pcre2 system_png system_jpeg system_freetype system_harfbuzz system_doubleconversion; do
    features+=("-DFEATURE_$off=OFF")
done
build qt6-base -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DINPUT_opengl=no "${features[@]}"

if fetch qt6-svg; then
    build qt6-svg
else
    echo "build-qt.sh: the source of qt6-svg can't be had here; the window program will be left out of the build" >&2
fi
echo "Qt for Windows is in $prefix"
