#!/bin/sh
# Fails when a function is longer than 30 lines, unless it is a constructor or the line above it begins with
# "// Long:" and a reason.
set -eu
cd "$1"
# shellcheck disable=SC2016 # awk's own
find src bench tools -name "*.h" -o -name "*.cpp" | sort | xargs awk '
    FNR == 1 { start = head = 0; before = "" }
    # The head of a function may go over several lines.
    !start && !head && /^(    )?[A-Za-z\[~][^;={}]*\(/ && !/[;}]$/ {
        head = FNR; first = $0; indent = match($0, /[^ ]/) - 1
        excused = before ~ /^ *\/\/ Long: ./ || first ~ /^ *(explicit )?([A-Za-z]+::)?([A-Za-z]+)\(/ &&
            first !~ /^ *(void|if|for|while|return|switch|TEST)/
        if (first ~ /^ *(if|for|while|switch|return|else|namespace|using)[ (]/) head = 0
    }
    head && /\{$/ { start = head; head = 0 }
    head && (/;$/ || /\}$/ || FNR - head > 12) { head = 0 }
    start && /^ *\}/ && match($0, /[^ ]/) - 1 == indent {
        if (FNR - start > 30 && !excused) { print FILENAME ":" start ": " FNR - start " lines: " first; bad = 1 }
        start = 0
    }
    { before = $0 }
    END { exit bad }'
