#!/usr/bin/env bash
# Holds the includes of every source file against the floors: a folder may include only what is listed for it,
# beside the standard headers. The system's own headers belong to the rooms named for them, and nobody else may
# ask on which system he runs.
cd "$(dirname "$0")/.."

# folder: what its files may include in quotes (as "folder/...") and of <brask/...>. Files of the same folder
# are always allowed.
rules() {
    cat <<'RULES'
machine
text
raster       machine
platform     raster text
fenn         raster text platform brask/fenn.h brask/fenn_host.h brask/platform.h brask/export.h
include      brask/
foundation   machine text include brask/
controls     foundation text brask/
items        controls foundation text brask/
color        controls foundation text brask/
console      controls foundation text brask/
browser      controls foundation text brask/
popup        controls foundation text items color console browser brask/
examples     brask/
RULES
}

# What the controls may never see: the drawing layer's extras and what is behind the platform's header.
hidden='brask/fenn_host\.h|brask/portable|platform/portable|fenn/|raster/'
system='windows\.h|SDL|ft2build|freetype|fontconfig|raqm|X11'

passed=0 failed=0
complain() {
    echo "$*"
    bad=1
}

includes() { sed -nE 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"]([^>"]+)[>"].*/\1/p' "$1"; }

allowed() { # folder include
    local folder=$1 include=$2 word
    [[ $include != */* ]] && return 0
    for word in $folder $(rules | awk -v f="$folder" '$1 == f { $1 = ""; print }'); do
        [[ $word == */* ]] && { [[ $include == "$word"* ]] && return 0; }
        [[ $include == "$word"/* ]] && return 0
    done
    # A header of a sub-folder of one's own room, and the system's own folders.
    [ -e "$(dirname "$file")/$include" ] && return 0
    [[ $include =~ ^(sys|SDL2|X11|freetype|fontconfig)/ ]]
}

while read -r file; do
    bad=
    folder=${file%%/*}
    for include in $(includes "$file"); do
        allowed "$folder" "$include" || complain "$file: may not include $include"
        case $folder in
        foundation | controls | items | color | console | browser | popup | include)
            [[ $include =~ $hidden ]] && complain "$file: $include is behind a seam"
            ;;
        esac
        case $folder in
        platform | fenn) ;;
        *) [[ $include =~ $system ]] && complain "$file: $include belongs to platform/ or fenn/" ;;
        esac
    done
    case $file in
    platform/* | fenn/* | include/brask/export.h) ;;
    *) grep -nE '^[[:space:]]*#[[:space:]]*(if|elif).*\b(_WIN32|WIN32|__linux__|__unix__)\b' "$file" |
        while read -r line; do echo "$file:$line: asks which system it runs on"; done | grep . && bad=1 ;;
    esac
    if [ -n "$bad" ]; then failed=$((failed + 1)); else passed=$((passed + 1)); fi
done < <(git -c safe.directory="$PWD" ls-files text raster platform fenn include foundation controls items color console browser popup examples |
    grep -E '\.(h|cpp)$')
# A tree that belongs to somebody else, or is none of git's, must not pass unread.
[ $passed -gt 0 ] || failed=$((failed + 1))
echo "$passed passed, $failed failed"
[ $failed = 0 ]
