# Runs proofs and adds up what they say. Sourced by ./check.
#
# A proof prints either GoogleTest's closing lines or one line "N passed, N failed" (", N skipped" may follow).
# One that prints neither counts by its exit code; one that fails without saying so counts as one failure.

passed=0 failed=0 skipped=0 failures=()

tally_read() { # log -> "passed failed skipped"
    awk '
        /^\[  PASSED  \] [0-9]+ test/ { p += $4; seen = 1 }
        /^\[  FAILED  \] [0-9]+ test/ { f += $4; seen = 1 }
        /^\[  SKIPPED \] [0-9]+ test/ { s += $4; seen = 1 }
        /^([a-z]+: )?[0-9]+ passed, [0-9]+ failed/ {
            sub(/^[a-z]+: /, ""); gsub(/,/, "")
            p += $1; f += $3; if ($6 == "skipped") s += $5; seen = 1
        }
        END { if (seen) print p + 0, f + 0, s + 0 }' "$1"
}

tally() { # name command...
    local name=$1 log=build/log-$1.txt started=$SECONDS code counts p f s
    shift
    mkdir -p build
    "$@" >"$log" 2>&1 </dev/null
    code=$?
    counts=$(tr -d '\r' <"$log" | tally_read -)
    [ -n "$counts" ] || { [ $code = 0 ] && counts="1 0 0" || counts="0 1 0"; }
    read -r p f s <<<"$counts"
    [ $code = 0 ] || [ "$f" -gt 0 ] || f=1
    passed=$((passed + p)) failed=$((failed + f)) skipped=$((skipped + s))
    printf '%-34s %6d passed %4d failed %4d skipped  %4d s\n' "$name" "$p" "$f" "$s" $((SECONDS - started))
    [ "$f" = 0 ] && return
    failures+=("$name")
    { grep -E -A 6 'Failure|FAILED|ERROR|rror:|not ok' "$log" || tail -n 40 "$log"; } | head -n 60
    echo "All of it stands in $log."
}

# Every program of a build tree's tests.txt, started by the words that follow, if any.
tally_programs() { # preset [starter...]
    local preset=$1 program
    shift
    while read -r program; do
        [ -n "$program" ] && tally "$preset-$(basename "${program%.exe}")" "$@" "$program"
    done <"build/$preset/tests.txt"
}

build() { # preset
    local started=$SECONDS
    cmake --preset "$1" >"build/log-build-$1.txt" 2>&1 && cmake --build "build/$1" >>"build/log-build-$1.txt" 2>&1 || {
        grep -E -A8 'error|Error|FAILED' "build/log-build-$1.txt" | head -n 60
        echo "The build $1 failed; all of it stands in build/log-build-$1.txt."
        failed=$((failed + 1))
        tally_sum
    }
    printf '%-34s built %57d s\n' "$1" $((SECONDS - started))
}

# A display of our own; its name is in `display`.
start_display() {
    local pipe number
    exec {pipe}< <(exec Xvfb -displayfd 1 -screen 0 1400x900x24 -nolisten tcp 2>/dev/null)
    display_server=$!
    read -r number <&"$pipe"
    display=:$number
}

skip() {
    echo "SKIPPED, NOT PROVEN: $*"
    skipped=$((skipped + 1))
}

tally_sum() {
    [ ${#failures[@]} = 0 ] || echo "Failed: ${failures[*]}"
    if [ $skipped = 0 ]; then
        echo "$passed passed, $failed failed"
    else
        echo "$passed passed, $failed failed, $skipped skipped"
    fi
    [ $failed = 0 ]
    exit
}
