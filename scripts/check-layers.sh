#!/usr/bin/env bash
# Holds the sources against the layers of docs/architecture.md: no include of a higher or a neighbouring layer, the
# operating system only in src/platform, no widgets below the user interface.
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"

# Floor of each folder of src/, or of a single file; a file may include its own folder and lower floors.
declare -A floor=(
    [platform]=0
    [core/common]=1
    [support]=2
    [peer]=3 [inventory]=3
    [appmigration]=4 [settings]=4
    [pipeline]=5
    [core/engine]=6
    [core/app]=7
    [ui]=8 [cli]=8
    [core/app/main.cpp]=9
)
first_floor_with_widgets=8
# Below that floor, the files that show a dialog all the same.
dialogs_below='^src/support/LinkManager\.(h|cpp)$'
# What a face of the program may include besides its own folder.
seen_by_faces='^(platform|core/common|support|core/engine|core/app|ui|cli)$'

failures=0
complain() {
    echo "$1" >&2
    failures=$((failures + 1))
}

# The entry of floor[] that a path below src/ falls under; nothing for an unknown one.
folder_of() {
    local path=$1
    until [[ -v "floor[$path]" ]]; do
        [[ $path == */* ]] || return 0
        path=${path%/*}
    done
    echo "$path"
}

widget_headers=$(qtpaths6 --query QT_INSTALL_HEADERS)/QtWidgets
[ -d "$widget_headers" ] || complain "check-layers.sh: no Qt widget headers in $widget_headers to compare with"

check_include() {
    local file=$1 line=$2 quoted=$3 name=$4
    local folder target
    folder=$(folder_of "${file#src/}")
    if [ -z "$folder" ]; then
        complain "$file: its folder has no floor in scripts/check-layers.sh"
    elif [ "$quoted" = '"' ]; then
        target=$(folder_of "$name")
        if [ -z "$target" ]; then
            case $name in *.moc | ui_*) return ;; esac
            complain "$file:$line: \"$name\" is not written from src/, or its folder has no floor"
        elif [ "$target" != "$folder" ] && [ "${floor[$target]}" -ge "${floor[$folder]}" ]; then
            complain "$file:$line: $folder must not include $target (\"$name\")"
        elif [[ $folder =~ ^(ui|cli)$ && ! $target =~ $seen_by_faces ]]; then
            complain "$file:$line: a face sees nothing behind the engine (\"$name\")"
        fi
    elif [ "${floor[$folder]}" -lt "$first_floor_with_widgets" ] && [[ ! $file =~ $dialogs_below ]]; then
        if [[ $name == QtWidgets* || -e $widget_headers/$name ]]; then
            complain "$file:$line: $folder must not include the widget header <$name>"
        fi
    fi
}

include_pattern='^[[:space:]]*#[[:space:]]*include[[:space:]]*(["<])([^">]+)[">]'
while IFS=: read -r file line text; do
    [[ $text =~ $include_pattern ]] && check_include "$file" "$line" "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
done < <(grep -rnE "$include_pattern" src --include='*.h' --include='*.cpp')

system_pattern='\b(Q_OS_[A-Z0-9]+|_WIN32|_WIN64|WIN32|__linux__)\b|include[[:space:]]*<((qt_)?[Ww]indows|winsock2?|shl(obj|wapi)|shellapi|objbase)\.h>'
while IFS=: read -r file line _; do
    complain "$file:$line: asks for the operating system; only src/platform may"
done < <(
    for folder in src tests benchmarks; do
        [ -d "$folder" ] && grep -rnE "$system_pattern" "$folder" --include='*.h' --include='*.cpp'
    done | grep -v '^src/platform/'
)

while IFS=: read -r file line _; do
    folder=$(folder_of "${file#src/}")
    [ -n "$folder" ] && [ "${floor[$folder]}" -ge "$first_floor_with_widgets" ] && continue
    complain "$file:$line: links the widget module below the user interface"
done < <(grep -rnE 'Qt6::Widgets' src --include=CMakeLists.txt || true)

[ "$failures" -eq 0 ]
