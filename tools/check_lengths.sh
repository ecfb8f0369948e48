#!/bin/sh
# Fails when a function is longer than 50 lines and the line above it does not begin with "// Long:" and a
# reason.
set -eu
cd "$1"
# shellcheck disable=SC2016 # awk's own
find src bench tools -name "*.h" -o -name "*.cpp" | sort | xargs awk '
    FNR == 1 { start = 0; before = "" }
    /^[A-Za-z\[].*\) (const )?(override )?\{$/ || /^    .*\) (const )?\{$/ && !start && /^    [A-Za-z]/ {
        start = FNR; first = $0; excused = before ~ /^ *\/\/ Long: ./; indent = match($0, /[^ ]/) - 1
    }
    start && /^ *\}/ && match($0, /[^ ]/) - 1 == indent {
        if (FNR - start > 50 && !excused) { print FILENAME ":" start ": " FNR - start " lines: " first; bad = 1 }
        start = 0
    }
    { before = $0 }
    END { exit bad }'
