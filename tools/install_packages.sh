#!/bin/sh
# Installs what this machine lacks of the packages that are listed: install_packages.sh LIST...
# LIST names a file packages_LIST.txt.
set -eu
cd "$(dirname "$0")"
missing=""
for list in "$@"; do
    for package in $(grep -v '^#' "packages_$list.txt"); do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
            missing="$missing $package"
    done
done
[ -n "$missing" ] || exit 0

echo "Installing:$missing"
as_root=""
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Run as root, or install sudo." >&2; exit 1; }
    as_root="sudo"
fi
$as_root apt-get update -q
# shellcheck disable=SC2086 # the list is meant to be split
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
