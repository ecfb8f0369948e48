#!/bin/sh
# Asks other compilers, their levels of optimisation and another processor, under an emulator, to what bits the sample
# projects come, and compares with tests/bits/state_hashes.txt. Prints a line each; ends with 1 when one differs.
# Usage: same_bits.sh [--here]      --here: without the other processor, whose compiler and emulator are installed else
set -eu
cd "$(dirname "$0")/.."
table=tests/bits/state_hashes.txt
place=build/bits
case "${1:-}" in
    --here) tools/install_packages.sh core ;;
    "") tools/install_packages.sh core arm ;;
    *) echo "usage: same_bits.sh [--here]" >&2; exit 2 ;;
esac
mkdir -p "$place"

status=0
# compare NAME COMMAND...
compare() {
    name=$1
    shift
    if "$@" . >"$place/$name.txt" && diff "$table" "$place/$name.txt" >"$place/$name.diff"; then
        echo "ok      $name"
    else
        status=1
        echo "FAILED  $name differs in:" "$(sed -n 's/^> \(.*\),.*/\1;/p' "$place/$name.diff" | tr '\n' ' ')"
    fi
}
# build NAME COMPILER FLAGS [CMAKE_OPTION...]
build() {
    name=$1 compiler=$2 flags=$3
    shift 3
    if ! {
        cmake -S . -B "$place/$name" -G Ninja -DZENTRIK_CORE_ONLY=ON -DCMAKE_BUILD_TYPE=None \
            -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags -DNDEBUG" "$@" &&
            cmake --build "$place/$name" --target state_hashes
    } >"$place/$name.log"; then
        cat "$place/$name.log" >&2
        exit 2
    fi
}

for compiler in g++ clang++; do
    for level in 0 1 2 3; do
        build "$compiler-O$level" "$compiler" "-O$level"
        compare "$compiler-O$level" "$place/$compiler-O$level/state_hashes"
    done
done
# The C library has a sine of its own for processors that multiply and add in one.
compare plain-sine env GLIBC_TUNABLES=glibc.cpu.hwcaps=-FMA,-FMA4,-AVX2 "$place/g++-O2/state_hashes"
if [ -z "${1:-}" ]; then
    build arm64 aarch64-linux-gnu-g++ -O3 -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR=aarch64 \
        -DCMAKE_EXE_LINKER_FLAGS=-static
    compare arm64 qemu-aarch64-static "$place/arm64/state_hashes"
fi
exit $status
