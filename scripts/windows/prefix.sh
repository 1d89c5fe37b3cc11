#!/usr/bin/env bash
# Makes a fresh Wine prefix: a Windows 10 PC of its own, with its own registry and C drive. Usage: prefix.sh DIR
set -euo pipefail

[ $# -eq 1 ] || { echo "usage: prefix.sh DIR" >&2; exit 2; }
mkdir -p "$(dirname "$1")"
export WINEPREFIX=$(realpath -m "$1") WINEARCH=win64 WINEDEBUG=-all DISPLAY=
# A prefix that is in use can't go away.
if [ -d "$WINEPREFIX" ]; then
    /usr/lib/wine/wineserver --kill || true
    /usr/lib/wine/wineserver --wait || true
fi
rm -rf "$WINEPREFIX"

wine=/usr/lib/wine/wine64
# The C runtime's own dialogs and browser engines are of no use here, and asking for them takes time.
export WINEDLLOVERRIDES="mscoree=;mshtml="
"$wine" wineboot --init >/dev/null 2>&1
# A fresh prefix says that it is Windows 7; Qt 6 wants Windows 10.
"$wine" winecfg -v win10 >/dev/null 2>&1
/usr/lib/wine/wineserver --wait
[ -d "$WINEPREFIX/drive_c" ] || { echo "prefix.sh: Wine could not make $1" >&2; exit 1; }

# The user's folders are the PC's own, not links into the home folder of whoever runs this.
for folder in "$WINEPREFIX"/drive_c/users/*/*; do
    [ -L "$folder" ] && rm "$folder" && mkdir "$folder"
done
exit 0
