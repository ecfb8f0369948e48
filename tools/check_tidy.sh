#!/bin/sh
# Runs clang-tidy with the checks of .clang-tidy over the sources. $1: the project; its release build must be
# configured.
set -eu
cd "$1/src"
find . -name '*.cpp' | sort | xargs -P 2 -n 4 clang-tidy -p ../build/release --quiet \
    --extra-arg=-Wno-unknown-warning-option
