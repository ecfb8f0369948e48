#!/bin/sh
# Everything that can be said about the sources without running them.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root"
status=0
gate() {
    name=$1
    shift
    if "$@"; then echo "ok      $name"; else echo "FAILED  $name"; status=1; fi
}
formatted() {
    git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
}
scripts() {
    git ls-files '*.sh' run test .ci/run | xargs shellcheck --severity=warning
}
tools/install_packages.sh build test bench check
cmake --preset release >/dev/null
gate "format" formatted
gate "scripts" scripts
gate "includes" tools/check_includes.sh src
gate "unused functions" tools/check_unused.sh .
gate "lengths" tools/check_lengths.sh .
gate "gates stop what they must" tools/check_gates.sh "$root"
gate "headers alone" tools/check_headers.sh "$root"
gate "clang-tidy" tools/check_tidy.sh "$root"
exit $status
