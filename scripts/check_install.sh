#!/usr/bin/env bash
# Installs a build tree into a folder and builds hosts against that folder alone; one of them is run.
#   check_install.sh BUILD_TREE [STARTER...]
set -eu
cd "$(dirname "$0")/.."
tree=$PWD/$1
shift
prefix=$tree/installed
hosts=$tree/installed-hosts
rm -rf "$prefix" "$hosts"
cmake --install "$tree" --prefix "$prefix"
cached() { sed -n "s/^$1:[A-Z]*=//p" "$tree/CMakeCache.txt"; }
options=()
[ "$(cached BRASK_SANITIZE)" != ON ] || options+=(-DCMAKE_CXX_FLAGS=-fsanitize=address,undefined)
[ -z "$(cached CMAKE_TOOLCHAIN_FILE)" ] || options+=(-DCMAKE_TOOLCHAIN_FILE="$(realpath "$(cached CMAKE_TOOLCHAIN_FILE)")")
cmake -G Ninja -S tests/install -B "$hosts" -Dbrask_DIR="$prefix/lib/cmake/brask" "${options[@]}"
cmake --build "$hosts"
program=$hosts/version
[ -e "$program" ] || program+=.exe
WINEPATH=$prefix/bin "$@" "$program"
