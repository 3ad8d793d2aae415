#!/usr/bin/env bash
# Every public header compiles alone, as C++17 without a warning, with each compiler that is there.
cd "$(dirname "$0")/.."
public=build/linux-debug/floors/public
passed=0 failed=0 skipped=0
for compiler in g++ clang++ x86_64-w64-mingw32-g++-posix; do
    command -v $compiler >/dev/null || {
        echo "no $compiler: its part is not proven"
        skipped=$((skipped + 1))
        continue
    }
    for header in $public/brask/*.h; do
        if echo "#include <brask/$(basename "$header")>" |
            $compiler -std=c++17 -Wall -Wextra -Werror -pedantic -fsyntax-only -I$public -x c++ -; then
            passed=$((passed + 1))
        else
            echo "$compiler: $(basename "$header") does not compile alone"
            failed=$((failed + 1))
        fi
    done
done
echo "$passed passed, $failed failed, $skipped skipped"
[ $failed = 0 ]
