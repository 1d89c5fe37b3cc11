#!/usr/bin/env bash
# Sets up, builds and runs Zandrove. Without arguments two PCs are shown on this one machine; "window" starts the program
# with a window; other arguments go to the one without: scripts/run.sh receive.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
programs=$root/build/release/bin

target=zandrove-cli
if [ "${1:-}" = window ]; then
    target=zandrove
    shift
    set -- "$programs/zandrove" "$@"
elif [ $# -gt 0 ]; then
    set -- "$programs/zandrove-cli" "$@"
else
    set -- "$root/scripts/demo.sh" "$programs/zandrove-cli"
fi

# Standard output belongs to the program.
build() {
    cd "$root"
    scripts/setup.sh
    [ -x "$programs/$target" ] || echo "Building Zandrove ..."
    cmake --preset release --log-level=WARNING >/dev/null
    cmake --build --preset release --target "$target" -- --quiet
}
(build) >&2

exec "$@"
