#!/bin/sh
# Takes the pictures of the README and the manual anew from the real program.
set -eu
cd "$(dirname "$0")/.."
cmake --preset release >/dev/null
cmake --build --preset release --target zentrik_manual_pictures zentrik_zoo_pictures zentrik-cli
QT_QPA_PLATFORM=offscreen build/release/zentrik_manual_pictures docs/pictures
build/release/zentrik-cli export --time 6 --rate 15 --out docs/pictures/walker.gif "zoo/7 a walker.bot"
build/release/zentrik-cli plot --curve "node 1.height" --curve "node 3.height" --curve "node 5.height" --time 10 \
    --size 860x340 --out docs/pictures/plot.png zoo/oscillators.bot
# Before and after "improve".
for film in before:zoo/walker.bot after:docs/examples/better_walker.bot; do
    build/release/zentrik-cli export --time 6 --rate 4 --out "docs/pictures/walker_${film%%:*}.gif" "${film#*:}"
done
root=$PWD
mkdir -p build/zoo_pictures
cd build/zoo_pictures # where its sheets go
"$root/build/release/zentrik_zoo_pictures" "$root" "$root/docs/pictures/zoo"
