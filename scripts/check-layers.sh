#!/usr/bin/env bash
# Holds the sources against the layers of docs/architecture.md: no include or link of a higher or a neighbouring layer,
# the operating system only in src/platform, no widgets below the user interface.
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"

# Floor of each folder of src/, or of a single file; a file may include its own folder and lower floors.
declare -A floor=(
    [platform]=0
    [core/common]=1
    [support]=2
    [peer]=3 [inventory]=3
    [appmigration]=4 [settings]=4 [diagnosis]=4
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
seen_by_faces='^(platform|core/common|support|diagnosis|core/engine|core/app|ui|cli)$'

failures=0
complain() {
    echo "$1" >&2
    failures=$((failures + 1))
}

# A library whose CMakeLists.txt stands in another folder than its sources.
declare -A made_elsewhere=([zandrove_links]=support [zandrove]=core/app/main.cpp)
# The folders that may know the system, those of the tests for src/platform and for the PCs that they simulate included.
knows_the_system='^(src|tests)/platform/|^tests/([^/]+/)?(generic|windows)/'

# Sets `folder` to the entry of floor[] that a path below src/ falls under, to nothing for an unknown one.
find_folder() {
    folder=$1
    until [[ -v "floor[$folder]" ]]; do
        [[ $folder == */* ]] || { folder=; return 0; }
        folder=${folder%/*}
    done
}

# Complains of it where `own` must not use `other`, both entries of floor[].
compare() {
    local place=$1 own=$2 other=$3 verb=$4 what=$5
    if [ "$other" != "$own" ] && [ "${floor[$other]}" -ge "${floor[$own]}" ]; then
        complain "$place: $own must not $verb $other ($what)"
    elif [[ $own =~ ^(ui|cli)$ && ! $other =~ $seen_by_faces ]]; then
        complain "$place: a face sees nothing behind the engine ($what)"
    fi
}

code() {
    local folder
    for folder in src tests benchmarks; do
        [ -d "$folder" ] && grep -rnE "$1" "$folder" --include='*.h' --include='*.cpp' || true
    done
}

# --- includes: "layer/Header.h" of this project, <QHeader> of Qt, <header> of standard C++, and no other form
declare -A headers
while read -r name; do headers[$name]=1; done < <(find src tests benchmarks -name '*.h' -printf '%P\n%f\n')
widget_headers=$(qtpaths6 --query QT_INSTALL_HEADERS)/QtWidgets
[ -d "$widget_headers" ] || complain "check-layers.sh: no Qt widget headers in $widget_headers to compare with"

check_include() {
    local file=$1 place=$2 quoted=$3 name=$4 own folder
    if [ "$quoted" = '<' ]; then
        if [[ ! $name =~ ^(Q[A-Za-z0-9]+(/Q[A-Za-z0-9]+)?|[a-z_]+)$ && ! $file =~ $knows_the_system ]]; then
            complain "$place: <$name> is neither of Qt nor of standard C++; systems are for src/platform"
        fi
    elif [[ $file != src/* && ! -v "headers[$name]" && $name != *.moc && ! $file =~ $knows_the_system ]]; then
        complain "$place: \"$name\" is no header of this project"
    fi
    [[ $file == src/* ]] || return 0
    find_folder "${file#src/}"
    own=$folder
    if [ -z "$own" ]; then
        complain "$file: its folder has no floor in scripts/check-layers.sh"
    elif [ "$quoted" = '"' ]; then
        find_folder "$name"
        if [[ -n $folder && $name != *..* ]]; then
            compare "$place" "$own" "$folder" include "\"$name\""
        elif [[ $name != *.moc && $name != ui_* ]]; then
            complain "$place: \"$name\" is not written from src/, or its folder has no floor"
        fi
    elif [ "${floor[$own]}" -lt "$first_floor_with_widgets" ] && [[ ! $file =~ $dialogs_below ]]; then
        if [[ $name == QtWidgets* || -e $widget_headers/$name ]]; then
            complain "$place: $own must not include the widget header <$name>"
        fi
    fi
}

include_pattern='^[[:space:]]*#[[:space:]]*include[[:space:]]*(["<])([^">]+)[">]'
while IFS=: read -r file line text; do
    if [[ $text =~ $include_pattern ]]; then
        check_include "$file" "$file:$line" "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
    else
        complain "$file:$line: an include in a form that can't be read here"
    fi
done < <(code '^[[:space:]]*#[[:space:]]*(include|import)|(%:|\?\?=)[[:space:]]*include|__has_include')

compilers='__(unix|linux|gnu_linux|APPLE|MACH|MINGW|CYGWIN|MSYS|ANDROID|[A-Za-z]+BSD)[A-Z0-9a-z]*(__)?'
system_names="\\b(Q_OS_[A-Z0-9]+|_?WIN(32|64)|_MSC_VER|$compilers)\\b"
system_names+="|QOperatingSystemVersion|QSysInfo::(kernel|product)"

# --- the operating system: no conditional compilation at all, and none of the names that compilers and Qt give systems
while IFS=: read -r file line _; do
    [[ $file =~ $knows_the_system ]] || complain "$file:$line: asks for the operating system; only src/platform may"
done < <({
    code '^[[:space:]]*#[[:space:]]*(el)?if' | grep -vE '__SANITIZE_[A-Z]+__|QT_VERSION' || true
    code "$system_names"
} | sort -u)

# --- links: each call of CMake belongs to the target that it names first, else to its folder
declare -A made_in
while IFS=: read -r file target; do
    find_folder "${file#src/}"
    made_in[$target]=${made_elsewhere[$target]:-$folder}
done < <(grep -roE '(zandrove_library|add_library|add_executable)\([[:space:]]*[a-z_-]+' src --include=CMakeLists.txt |
    sed -E 's/:.*\([[:space:]]*/:/')

while read -r file first names; do
    find_folder "${file#src/}"
    own=${made_in[$first]:-$folder}
    for name in $names; do
        if [ "$name" = Qt6::Widgets ]; then
            [[ $first == zandrove_links || -z $own || ${floor[$own]} -ge $first_floor_with_widgets ]] ||
                complain "$file: $first links the widget module below the user interface"
        elif [[ -v "made_in[$name]" && -n $own ]]; then
            compare "$file" "$own" "${made_in[$name]}" link "$name"
        elif [[ $name =~ ^zandrove_ && ! $name =~ ^zandrove_(options|icons|translations)$ ]]; then
            complain "$file: $name is no library of a layer"
        fi
    done
done < <(find src -name CMakeLists.txt -exec awk -v RS=')' '
    {
        gsub(/#[^\n]*/, "")
        if ($0 ~ /^[ \n]*message\(/) next
        sub(/^[^(]*\(/, "")
        sub(/^[ \n]+/, "")
        calls = match($0, /^zandrove[a-z_-]*/) ? "" : " -"
        while (match($0, /zandrove[a-z_-]*|Qt6::Widgets/)) {
            calls = calls " " substr($0, RSTART, RLENGTH)
            $0 = substr($0, RSTART + RLENGTH)
        }
        if (calls != "" && calls != " -") print FILENAME calls
    }' {} +)

[ "$failures" -eq 0 ]
