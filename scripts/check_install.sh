#!/usr/bin/env bash
# Installs a build tree into a folder and builds the smallest host against that folder alone.
#   check_install.sh BUILD_TREE
set -eu
cd "$(dirname "$0")/.."
tree=$1
prefix=$tree/installed
rm -rf "$prefix"
cmake --install "$tree" --prefix "$prefix"
flags=$(sed -n 's/^BRASK_SANITIZE:BOOL=ON$/-fsanitize=address,undefined/p' "$tree/CMakeCache.txt")
g++ -std=c++17 -Wall -Wextra -Werror $flags -I"$prefix/include" examples/hello/main.cpp -o "$tree/hello-installed" \
    "$prefix/lib/Lib_Brask.so" "$prefix/lib/Lib_Fenn.so" -Wl,-rpath,"$PWD/$prefix/lib"
echo "1 passed, 0 failed"
