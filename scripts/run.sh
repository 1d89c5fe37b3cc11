#!/usr/bin/env bash
# Sets up, builds and runs Zandrove. Arguments go to the program: scripts/run.sh receive. Without arguments two PCs are
# shown on this one machine.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
program=$root/build/release/bin/zandrove-cli

# Standard output belongs to the program.
build() {
    cd "$root"
    scripts/setup.sh
    [ -x "$program" ] || echo "Building Zandrove ..."
    cmake --preset release --log-level=WARNING >/dev/null
    cmake --build --preset release --target zandrove-cli -- --quiet
}
(build) >&2

if [ $# -gt 0 ]; then
    exec "$program" "$@"
fi
exec "$root/scripts/demo.sh" "$program"
