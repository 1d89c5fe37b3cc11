#!/usr/bin/env bash
# Renders every page of the window in its notable states, in both roles and at two scalings, to PNG files below DIR.
# Usage: scripts/gallery.sh [--language XX] DIR [PART-OF-A-NAME]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
language=en
if [ "${1:-}" = --language ]; then
    language=${2:?--language needs one of the languages in translations}
    shift 2
fi
target=$(realpath -m "${1:?usage: scripts/gallery.sh [--language XX] DIR [PART-OF-A-NAME]}")
program=${ZANDROVE_GALLERY:-$root/build/debug/bin/zandrove-gallery}

cd "$root"
scripts/setup.sh --with fonts-dejavu-core fonts-noto-cjk fonts-noto-color-emoji
if [ -z "${ZANDROVE_GALLERY:-}" ]; then
    cmake --preset debug --log-level=WARNING >/dev/null
    cmake --build --preset debug --target zandrove-gallery -- --quiet
fi

# A home with the usual folders, and settings that are nobody's.
home=$(mktemp -d -t zandrove-gallery-XXXXXX)
trap 'rm -rf "$home"' EXIT
mkdir -p "$home"/{Desktop,Documents/{Letters,Taxes,Work},Pictures/Holiday,Videos,Music,Downloads}

# A screen on which every dialog has the room that it has on a real one.
cat >"$home/screen.json" <<'JSON'
{"screens": [{"name": "gallery", "x": 0, "y": 0, "width": 2880, "height": 1800,
              "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}
JSON

for percent in 100 200; do
    mkdir -p "$target/$percent"
    env -i PATH="$PATH" HOME="$home" XDG_CONFIG_HOME="$home/.config" XDG_RUNTIME_DIR="$home" LC_ALL=C.UTF-8 \
        QT_QPA_PLATFORM="offscreen:configfile=$home/screen.json" QT_SCALE_FACTOR=$((percent / 100)) \
        QT_LOGGING_RULES='default.debug=false' \
        "$program" --language "$language" "$target/$percent" ${2:+"$2"}
done
echo "$(find "$target" -name '*.png' | wc -l) pictures in $target"
