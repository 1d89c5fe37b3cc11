#!/usr/bin/env bash
# Installs what Debian 12 (or a relative) must bring to build, test and run Zandrove. Silent and quick when all is there.
# With arguments "--with PACKAGE..." those as well.
set -euo pipefail

packages=(
    g++ cmake ninja-build ccache git
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
    clang-format-14
    python3 iproute2 nftables util-linux rsync
)

if [ "${1:-}" = --with ]; then
    packages+=("${@:2}")
fi

fail() {
    echo "setup.sh: $*" >&2
    exit 1
}

command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
    fail "this system has no apt; install by hand what these Debian packages hold: ${packages[*]}"

installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null || true)
missing=()
for package in "${packages[@]}"; do
    grep -qxF "installed $package" <<<"$installed" || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=(env DEBIAN_FRONTEND=noninteractive)
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "missing: ${missing[*]}; run scripts/setup.sh as root, or install sudo"
    if [ -t 0 ]; then
        as_root=(sudo "${as_root[@]}")
    else
        as_root=(sudo -n "${as_root[@]}")
    fi
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt() {
    "${as_root[@]}" apt-get -y -q -o DPkg::Lock::Timeout=300 "$@" </dev/null >>"$log" 2>&1
}

echo "Installing ${missing[*]} ..."
# A source that cannot be refreshed is no matter when the packages can be had all the same.
apt update || true
apt install --no-install-recommends "${missing[@]}" ||
    fail "could not install ${missing[*]}: $(grep -E '^(E:|sudo:)' "$log" | tail -n 1)"
