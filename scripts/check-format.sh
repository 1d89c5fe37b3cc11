#!/usr/bin/env bash
# Compares every source with .clang-format, or rewrites it with --fix. The tool's version
# is pinned: others format differently.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=(--dry-run --Werror)
[ "${1:-}" = --fix ] && mode=(-i)

tool=$(command -v clang-format-14) || {
    echo "check-format.sh: clang-format-14 is missing; scripts/setup.sh installs it" >&2
    exit 1
}
folders=()
for folder in src tests benchmarks; do
    [ -d "$folder" ] && folders+=("$folder")
done
find "${folders[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) -print0 |
    xargs -0 --no-run-if-empty "$tool" --style=file "${mode[@]}"
