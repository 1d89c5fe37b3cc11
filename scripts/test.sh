#!/usr/bin/env bash
# Sets up, builds and runs every test. Arguments go to ctest: scripts/test.sh -R support
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh
cmake --preset debug --log-level=WARNING
cmake --build --preset debug
ctest --preset debug "$@"
