#!/bin/sh
# Fails when a gate passes what it is there to stop: a fault for each is planted in a copy of the sources.
# $1: the project.
set -eu
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for folder in src tests bench tools scenes; do cp -r "$1/$folder" "$scratch"; done
header=$scratch/src/model/planted.h source=$scratch/src/model/planted.cpp
status=0

# stopped NAME GATE...: the gate must fail with the fault, which is then taken out again.
stopped() {
    name=$1
    shift
    if "$@" >/dev/null 2>&1; then echo "passes $name"; status=1; fi
    rm -f "$header" "$source"
}

printf '#pragma once\nnamespace zentrik {\nvoid neverCalledByAnybody();\n}\n' >"$header"
stopped "a procedure that nobody calls" "$1/tools/check_unused.sh" "$scratch"
printf '#pragma once\nstruct Planted {\n    int neverReadByAnybody() const { return 1; }\n};\n' >"$header"
stopped "a member that nobody calls" "$1/tools/check_unused.sh" "$scratch"

lines=$(seq 31 | sed 's/.*/    ++i;/')
printf 'void planted(int i) {\n%s\n}\n' "$lines" >"$source"
stopped "a long function" "$1/tools/check_lengths.sh" "$scratch"
printf 'struct Planted {\n    void planted(int i) {\n%s\n    }\n};\n' "$(echo "$lines" | sed 's/^/    /')" >"$source"
stopped "a long member" "$1/tools/check_lengths.sh" "$scratch"

printf 'int planted(int i,\n            int j) {\n%s\n    return i + j;\n}\n' "$lines" >"$source"
stopped "a long function whose head takes two lines" "$1/tools/check_lengths.sh" "$scratch"

echo '#include "ui/menus.h"' >"$source"
stopped "an include upwards" "$1/tools/check_includes.sh" "$scratch/src"
printf '#pragma once\n#include "model/records.h"\n' >"$header"
sed -i '1a #include "model/planted.h"' "$scratch/src/model/records.h"
stopped "a circle of files" "$1/tools/check_includes.sh" "$scratch/src"
cp "$1/src/model/records.h" "$scratch/src/model/records.h"
mkdir "$scratch/src/planted" && cp "$1/src/model/records.h" "$scratch/src/planted"
stopped "a folder that no rule names" "$1/tools/check_includes.sh" "$scratch/src"
rm -r "$scratch/src/planted"
echo '#include <QString>' >"$source"
stopped "Qt where there is none" "$1/tools/check_includes.sh" "$scratch/src"

"$1/tools/check_unused.sh" "$scratch" && "$1/tools/check_lengths.sh" "$scratch" &&
    "$1/tools/check_includes.sh" "$scratch/src" || status=1
exit $status
