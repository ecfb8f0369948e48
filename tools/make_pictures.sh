#!/bin/sh
# Takes the pictures of the README and the manual anew from the real program.
set -eu
cd "$(dirname "$0")/.."
cmake --preset release >/dev/null
cmake --build --preset release --target zentrik_manual_pictures
QT_QPA_PLATFORM=offscreen build/release/zentrik_manual_pictures docs/pictures
