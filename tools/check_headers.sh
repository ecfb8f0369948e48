#!/bin/sh
# Fails when a header does not compile alone. $1: the project; its release build must be configured.
set -eu
cd "$1"
flags=$(sed -n 's/.*"command": "\(.*frm_main\.cpp\.o.*\)".*/\1/p' build/release/compile_commands.json | head -n 1 |
    tr ' ' '\n' | sed -n '/^-D/p;/^-I/p;/^-isystem$/{N;s/\n/ /;p;};/^-std/p' | sed 's/\\"/"/g' | tr '\n' ' ')
export flags
# shellcheck disable=SC2016 # the inner shell's own
find src tests bench tools scenes -name '*.h' | sort | xargs -P 2 -n 8 sh -c '
    for header; do
        # shellcheck disable=SC2086 # several flags
        printf "#include \"%s\"\n" "$PWD/$header" |
            c++ $flags -DZENTRIK_SOURCE_DIR=\"\" -fPIC -Isrc -Itests -I. -Itools -fsyntax-only -x c++ - ||
            { echo "$header does not compile alone"; exit 255; }
    done' sh
