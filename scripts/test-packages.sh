#!/usr/bin/env bash
# Installs the Debian package on a fresh system of its own, a folder that is made and thrown away, and holds it to what a
# user expects: its dependencies suffice, its menu entry opens the window, its manuals are true, removing it leaves
# nothing. Usage: test-packages.sh [DIR]; DIR has the package, by default build/packages. Needs the rights of root.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
directory=$(realpath -m "${1:-$root/build/packages}")

fail() {
    echo "test-packages.sh: $*" >&2
    exit 1
}

passed() {
    echo "  ok  $*"
}

package=$(ls "$directory"/zandrove_*.deb 2>/dev/null) || fail "no package in $directory; scripts/package.sh makes it"
if [ $$ -ne 1 ]; then
    "$root/scripts/setup.sh" --with appstream desktop-file-utils lintian man-db mandoc mmdebstrap openbox wmctrl xvfb
    [ "$(id -u)" -eq 0 ] || exec sudo "$0" "$directory"
    # What is mounted and started in there ends with it, so that the folder that is removed here has never held a mount.
    ZANDROVE_SCRATCH=$(mktemp -d -t zandrove-packages-XXXXXX)
    export ZANDROVE_SCRATCH
    trap 'rm -rf --one-file-system "$ZANDROVE_SCRATCH"' EXIT
    unshare --mount --pid --fork --kill-child --mount-proc "$0" "$directory"
    exit
fi

# The first process of its own little world from here on, which no signal ends by itself.
trap 'exit 130' INT TERM

version=$(dpkg-deb --field "$package" Version)
scratch=$ZANDROVE_SCRATCH
system=$scratch/system
mkdir "$system"

# A bare system costs half a minute and a hundred megabytes of network, so that one is kept for a week.
kept=$root/build/bare-system
bare_system() {
    local archive=$kept/$1.tar sources=() file
    for file in /etc/apt/sources.list /etc/apt/sources.list.d/debian.sources; do
        [ -s "$file" ] && sources+=("$file")
    done
    mkdir -p "$kept/archives"
    if [ -z "$(find "$archive" -mtime -7 2>/dev/null)" ]; then
        mmdebstrap --quiet --variant=apt --format=tar "$1" "$archive.new" "${sources[@]}" >"$scratch/log" 2>&1 &&
            mv "$archive.new" "$archive" || return 1
    fi
    tar --extract --file "$archive" --directory "$system" &&
        cp --dereference /etc/resolv.conf "$system/etc/resolv.conf" &&
        find "$kept/archives" -name '*.deb' -exec cp --reflink=auto -t "$system/var/cache/apt/archives" {} +
}

# The folders that a running system has; nothing of this machine's own is seen through any of them.
mount_running_folders() {
    local device
    mount -t proc proc "$system/proc"
    mount -t tmpfs -o mode=755 tmpfs "$system/dev"
    for device in "null 1 3" "zero 1 5" "full 1 7" "random 1 8" "urandom 1 9"; do
        # shellcheck disable=SC2086  # a name and two numbers
        set -- $device
        mknod -m 666 "$system/dev/$1" c "$2" "$3"
    done
    ln -s /proc/self/fd "$system/dev/fd"
    mount -t tmpfs -o mode=1777 tmpfs "$system/tmp"
    mkdir -p "$system/home/user"
    chown 1000:1000 "$system/home/user"
    # A screen that is made out here has its socket in there.
    mkdir -p -m 1777 "$system/tmp/.X11-unix" /tmp/.X11-unix
    mount --bind "$system/tmp/.X11-unix" /tmp/.X11-unix
}

on_system() {
    chroot "$system" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@" \
        </dev/null
}

# as_user COMMAND...: an ordinary user of the new system, in a network that nobody else is in.
as_user() {
    unshare --net chroot --userspec=1000:1000 "$system" env -i PATH=/usr/bin:/bin HOME=/home/user LANG=de_DE.UTF-8 \
        DISPLAY="${display:-}" "$@" </dev/null
}

install_package() {
    local codename
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    if bare_system "$codename"; then
        mount_running_folders
        cp "$package" "$system/tmp/"
        on_system apt-get -q update >"$scratch/log" 2>&1 &&
            on_system apt-get -q -y --no-install-recommends install "/tmp/${package##*/}" >>"$scratch/log" 2>&1 ||
            { cat "$scratch/log" >&2; fail "the package can't be installed on a bare $codename"; }
        find "$system/var/cache/apt/archives" -name '*.deb' -exec cp --update --reflink=auto -t "$kept/archives" {} +
        passed "installs on a bare $codename, with what it depends on and nothing else"
        return
    fi
    tail -n 3 "$scratch/log" >&2
    echo "NOT SHOWN: that the dependencies suffice. No bare $codename can be had here; this machine's own system is used." >&2
    mkdir -p "$scratch/upper" "$scratch/work"
    mount -t overlay -o "lowerdir=/,upperdir=$scratch/upper,workdir=$scratch/work" overlay "$system"
    mount_running_folders
    rm -f "$system"/etc/dpkg/dpkg.cfg.d/* # where an image says that manuals are left out
    cp "$package" "$system/tmp/"
    on_system dpkg --install "/tmp/${package##*/}" >"$scratch/log" 2>&1 || { cat "$scratch/log" >&2; fail "dpkg failed"; }
    passed "installs on a copy of this system"
}

check_package_itself() {
    lintian --allow-root --fail-on error,warning "$package" || fail "lintian finds fault with the package"
    passed "lintian has nothing to say"
}

check_command() {
    local said missing
    said=$(as_user zandrove-cli --version)
    [ "$said" = "zandrove-cli ${version%-*}" ] || fail "zandrove-cli --version says: $said"
    said=$(as_user zandrove-cli --verbose --version 2>&1)
    grep -q 'Translation file: "/usr/lib/zandrove/translations/Zandrove_de.qm"' <<<"$said" ||
        fail "translations are looked for elsewhere: $said"
    passed "zandrove-cli --version, and where translations are looked for"

    [ -d "$root/translations" ] || return 0
    grep -q 'Translation loaded successfully: "de"' <<<"$said" || fail "a translation can't be loaded: $said"
    missing=$(comm -23 <(cd "$root/translations" && ls Zandrove_*.ts | sed 's/ts$/qm/' | sort) \
        <(ls "$system/usr/lib/zandrove/translations" | sort))
    [ -z "$missing" ] || fail "translations that are not in the package: $missing"
    passed "every translation is there"
}

# The options that a text speaks of, each once.
options_in() {
    grep -oE -e '--[a-z]+(-[a-z]+)*' | sort -u
}

check_manuals() {
    local page name text
    for page in "$system"/usr/share/man/man1/zandrove*.1.gz; do
        name=$(basename "$page" .1.gz)
        [ -x "$system/usr/bin/$name" ] || fail "a manual of a program that there is not: $name"
        zcat "$page" >"$scratch/$name.1"
        mandoc -T lint -W warning "$scratch/$name.1" || fail "mandoc finds fault with the manual of $name"
        text=$(MANPATH=$system/usr/share/man MANWIDTH=100 LC_ALL=C.UTF-8 man --warnings 1 "$name" 2>"$scratch/log" | col -b)
        [ ! -s "$scratch/log" ] || fail "the manual of $name: $(cat "$scratch/log")"
        grep -q "$name" <<<"$text" || fail "the manual of $name does not render"
    done
    local said
    said=$(for command in "" receive send discover diagnose scan; do as_user env LANG=C zandrove-cli $command --help; done)
    diff <(options_in <<<"$said") <(zcat "$system/usr/share/man/man1/zandrove-cli.1.gz" | sed -n 's/Fl -/--/gp' | options_in) ||
        fail "the manual of zandrove-cli (>) and its --help (<) speak of different options"
    passed "manuals render, and know the options that there are"
}

check_firewall_names() {
    local profile=$system/etc/ufw/applications.d/zandrove service=$system/usr/lib/firewalld/services/zandrove.xml
    grep -qxF 'ports=52024/tcp|52025/udp' "$profile" && on_system dpkg --status zandrove | grep -qF "${profile#"$system"}" ||
        fail "no application profile for ufw that a user may change"
    [ "$(grep -oE '(tcp|udp)" port="[0-9]+' "$service" | tr '\n' ' ')" = 'tcp" port="52024 udp" port="52025 ' ] ||
        fail "no service for firewalld"
    passed "ufw and firewalld know the ports by name"
}

check_desktop_files() {
    entry=$(ls "$system"/usr/share/applications/*.zandrove.desktop 2>/dev/null) || fail "no menu entry"
    desktop-file-validate "$entry" || fail "the menu entry is not valid"
    appstreamcli validate --no-net "$system"/usr/share/metainfo/*.zandrove.metainfo.xml >"$scratch/log" 2>&1 ||
        { cat "$scratch/log" >&2; fail "the AppStream metadata is not valid"; }
    local icon
    icon=$(sed -n 's/^Icon=//p' "$entry")
    [ -e "$system/usr/share/icons/hicolor/scalable/apps/$icon.svg" ] &&
        [ -e "$system/usr/share/icons/hicolor/48x48/apps/$icon.png" ] || fail "the menu entry's icon is missing"
    passed "menu entry, icon and AppStream metadata are valid"
}

windows() {
    DISPLAY=$display wmctrl -l 2>/dev/null
}

# Starts the program as a click on its menu entry does, waits for its window, and closes that as its user would.
check_window() {
    local number program tries
    exec {number}< <(exec Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -ac 3>&1 >/dev/null 2>&1)
    read -r -t 30 -u "$number" display || fail "no screen for the window"
    display=:$display
    DISPLAY=$display openbox --sm-disable >/dev/null 2>&1 &
    as_user sh -c "exec $(sed -n 's/^Exec=//p' "$entry")" >"$scratch/log" 2>&1 &
    program=$!
    for ((tries = 0; tries < 300; ++tries)); do
        kill -0 "$program" 2>/dev/null || { cat "$scratch/log" >&2; fail "the program ended before its window stood"; }
        [[ $(windows) == *Zandrove* ]] && break
        sleep 0.1
    done
    [[ $(windows) == *Zandrove* ]] || { cat "$scratch/log" >&2; fail "no window within 30 seconds"; }
    DISPLAY=$display wmctrl -c Zandrove
    timeout 30 tail --pid="$program" -f /dev/null || fail "the program does not end with its window"
    wait "$program" || fail "the program ended with exit code $?: $(cat "$scratch/log")"
    passed "the menu entry's command opens the window, and the program ends with it"
}

check_removal() {
    local owned path
    owned=$(on_system dpkg --listfiles zandrove)
    on_system dpkg --purge zandrove >"$scratch/log" 2>&1 || { cat "$scratch/log" >&2; fail "the package can't be removed"; }
    while read -r path; do
        [ ! -e "$system$path" ] || [ "$path" = /. ] || on_system dpkg --search "$path" >/dev/null 2>&1 ||
            fail "left behind: $path"
    done <<<"$owned"
    path=$(find "$system"/{etc,opt,usr,var/lib} -xdev -iname '*zandrove*')
    [ -z "$path" ] || fail "left behind: $path"
    passed "removing it leaves nothing"
}

echo "Testing ${package##*/}"
check_package_itself
install_package
check_command
check_manuals
check_firewall_names
check_desktop_files
check_window
check_removal
