#!/usr/bin/env bash
# Every source file is as clang-format leaves it.
cd "$(dirname "$0")/.."
passed=0 failed=0
while read -r file; do
    if clang-format --dry-run -Werror "$file" 2>/dev/null; then
        passed=$((passed + 1))
    else
        echo "not formatted: $file"
        failed=$((failed + 1))
    fi
done < <(git -c safe.directory="$PWD" ls-files '*.h' '*.cpp')
[ $passed -gt 0 ] || failed=$((failed + 1)) # no file was read at all
echo "$passed passed, $failed failed"
[ $failed = 0 ]
