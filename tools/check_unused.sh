#!/bin/sh
# Fails when a header of the program declares a function that nobody calls or names, not even a test. Overrides, operators and
# what Qt or the compiler calls by itself do not count. It reads text, not code: a name that is used for
# something else too goes unseen.
set -eu
cd "$1"
# shellcheck disable=SC2016 # awk's own
find src tests bench tools scenes -name '*.h' -o -name '*.cpp' | sort | xargs awk '
    { sub(/\/\/.*/, ""); gsub(/"([^"\\]|\\.)*"/, "\"\"") }
    # A declaration or definition: a type or a class, then the name, then the parenthesis.
    function declared(text,    name) {
        if (text !~ /^(    )?(\[\[[a-z_:]+\]\] )?[A-Za-z_][A-Za-z0-9_:<>,*& ]*[ &*:][A-Za-z_][A-Za-z0-9_]*\(/) return ""
        if (text ~ /^ *(return|else|if|for|while|switch|case|using|throw|new|delete|operator)/) return ""
        if (text ~ /operator|override|alignas/) return ""
        name = substr(text, 1, index(text, "(") - 1)
        sub(/.*[ &*:]/, "", name)
        return name
    }
    {
        name = ""
        if (FILENAME ~ /\.h$/ || $0 ~ /^[A-Za-z\[]/) name = declared($0)
        if (name != "" && FILENAME ~ /^src.*\.h$/ && !(name in where)) where[name] = FILENAME ":" FNR
        rest = $0
        if (name != "") sub("[ &*:]" name "\\(", " (", rest)
        while (match(rest, /[A-Za-z_][A-Za-z0-9_]*/)) {
            ++used[substr(rest, RSTART, RLENGTH)]
            rest = substr(rest, RSTART + RLENGTH)
        }
    }
    END {
        for (name in where)
            if (!(name in used)) { print where[name] ": nobody calls " name; bad = 1 }
        exit bad
    }'
