#!/usr/bin/env bash
# Shows the whole road on one machine: two PCs as two namespaces joined by a virtual cable, each with a name and a home
# of its own, find each other, pair and move two folders. Usage: scripts/demo.sh PROGRAM
set -euo pipefail
program=$(realpath "${1:?usage: scripts/demo.sh PROGRAM}")

explain_two_machines() {
    cat >&2 <<TEXT
This machine lets nobody but root make network namespaces, so two PCs cannot be shown on it.

On two machines of one network:
  on the New PC:  scripts/run.sh receive                            (shows a code)
  on the Old PC:  scripts/run.sh send --to CODE --folder DIRECTORY
TEXT
    exit 1
}

if [ "$(id -u)" -ne 0 ]; then
    if [ -n "${ZANDROVE_USER_NAMESPACE:-}" ] || ! unshare --user --map-root-user --net --uts true 2>/dev/null; then
        explain_two_machines
    fi
    export ZANDROVE_USER_NAMESPACE=1
    exec unshare --user --map-root-user "$0" "$program"
fi
unshare --net --uts true 2>/dev/null || explain_two_machines

scratch=$(mktemp -d -t zandrove-demo-XXXXXX)
started=()
clean_up() {
    trap '' INT TERM
    for process in "${started[@]}"; do
        kill -KILL "$process" 2>/dev/null || true
    done
    rm -rf "$scratch"
}
trap clean_up EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# Makes a PC of that name and sets `made` to the process that keeps its namespaces alive. It ends with this script.
make_pc() {
    local name=$1 ready
    mkdir -p "$scratch/$name/home" "$scratch/$name/tmp"
    # shellcheck disable=SC2016  # for the inner shell
    exec {ready}< <(exec setpriv --pdeathsig KILL unshare --net --uts \
        sh -c 'hostname "$0" && ip link set lo up && echo ready && exec sleep infinity' "$name")
    made=$!
    started+=("$made")
    read -r -u "$ready" _ || { echo "The namespaces of $name could not be made." >&2; exit 1; }
}

# on PC-PROCESS NAME COMMAND...: runs a command on a PC.
on() {
    local pid=$1 name=$2
    shift 2
    env HOME="$scratch/$name/home" XDG_CONFIG_HOME="$scratch/$name/home/.config" TMPDIR="$scratch/$name/tmp" \
        LC_ALL=C.UTF-8 nsenter --target "$pid" --net --uts -- setpriv --pdeathsig KILL -- "$@"
}

make_sample_tree() {
    local home=$scratch/OldBox/home index
    mkdir -p "$home/Documents/Letters" "$home/Family album/Größe 写真/deep/er"
    for index in $(seq 1 200); do
        head -c $((index * 41)) /dev/urandom >"$home/Documents/Letters/letter $index.txt"
    done
    head -c 524288 /dev/urandom >"$home/Family album/Größe 写真/exactly one chunk.bin"
    head -c 40000000 /dev/urandom >"$home/Family album/Größe 写真/deep/er/film.bin"
    : >"$home/Family album/empty.txt"
}

files_in() {
    find "$@" -type f | wc -l
}

compare() {
    if ! diff -r "$1" "$2"; then
        echo "  $1 and its copy differ." >&2
        return 1
    fi
    echo "  ${1#"$scratch/"}  ->  ${2#"$scratch/"}: $(files_in "$2") files, identical"
}

make_pc OldBox && old=$made
make_pc NewBox && new=$made
on "$old" OldBox ip link add cable type veth peer name cable netns "$new"
on "$old" OldBox ip address add 192.168.77.1/24 broadcast + dev cable
on "$new" NewBox ip address add 192.168.77.2/24 broadcast + dev cable
on "$old" OldBox ip link set cable up
on "$new" NewBox ip link set cable up
until on "$old" OldBox ip link show up dev cable | grep -q 'state UP' &&
    on "$new" NewBox ip link show up dev cable | grep -q 'state UP'; do
    sleep 0.05
done
make_sample_tree
letters=$scratch/OldBox/home/Documents/Letters
album="$scratch/OldBox/home/Family album"

echo "Two PCs on this machine, OldBox and NewBox, joined by a virtual cable."
echo "OldBox moves two folders with $(files_in "$letters" "$album") files to NewBox."
echo
echo "  NewBox\$ zandrove-cli receive --yes --once"
echo "  OldBox\$ zandrove-cli send --to NewBox --folder ~/Documents/Letters --folder ~/'Family album'"
echo

on "$new" NewBox "$program" receive --yes --once --timeout 60 </dev/null > >(sed -u 's/^/  NewBox | /') 2>&1 &
receiver=$!
started+=("$receiver")
sent=0 received=0
on "$old" OldBox "$program" send --to NewBox --folder "$letters" --folder "$album" --timeout 60 </dev/null \
    > >(sed -u 's/^/  OldBox | /') 2>&1 || sent=$?
wait "$receiver" || received=$?

echo
echo "Exit codes: OldBox $sent, NewBox $received."
[ "$sent" -eq 0 ] && [ "$received" -eq 0 ]
compare "$letters" "$scratch/NewBox/home/Documents/Letters"
compare "$album" "$scratch/NewBox/home/Downloads/Zandrove/Family album"
