#!/bin/sh
# The README's two commands, ./run and ./test, or others, where nothing is installed: makes a minimal Debian in a
# scratch folder, clones what is committed here into it, and runs them there. Prints how each ended and how long it
# took; ends with 1, and the end of its output, when one fails. To be run as root, when a list of packages, a font, a
# resource or an install rule changes. It takes some gigabytes of TMPDIR and the packages from where this machine has
# its own; it installs debootstrap here, and removes the folder whatever happens.
# Usage: bare_room.sh [SUITE [COMMAND...]]      a release of Debian, bookworm as usual
set -eu
cd "$(dirname "$0")/.."
suite=${1:-bookworm}
if [ $# -gt 1 ]; then shift; else set -- ./run ./test; fi
[ "$(id -u)" -eq 0 ] || { echo "Making another system takes root." >&2; exit 2; }
command -v debootstrap >/dev/null || apt-get install -q -y --no-install-recommends debootstrap >/dev/null
sources=$(apt-get indextargets --format "deb \$(REPO_URI) \$(RELEASE) \$(COMPONENT)" "Created-By: Packages" |
    awk -v suite="$suite" '$3 == suite || index($3, suite "-") == 1' | sort -u)
mirror=$(echo "$sources" | awk -v suite="$suite" '$3 == suite { print $2; exit }')
[ -n "$mirror" ] || { echo "This machine has no packages of $suite." >&2; exit 2; }

room=$(mktemp -d)
chmod 755 "$room"  # as any system's root: not all that is installed runs as root
leave() {
    trap - EXIT
    # What the commands left running in there would hold the folder.
    for process in /proc/[0-9]*; do
        [ "$(readlink "$process/root")" != "$room" ] || kill -KILL "${process#/proc/}"
    done
    umount "$room/proc" 2>/dev/null || true
    if grep -q " $room" /proc/mounts; then
        echo "Something is still mounted in $room, which stays." >&2
    else
        rm -rf --one-file-system "$room"
    fi
}
trap leave EXIT
trap 'exit 130' INT TERM HUP

echo "Making a bare $suite in $room"
debootstrap --variant=minbase "$suite" "$room" "$mirror" >"$room/made.log" 2>&1 || { tail -n 20 "$room/made.log"; exit 1; }
echo "$sources" >"$room/etc/apt/sources.list"
cp -r /etc/apt/apt.conf.d/. "$room/etc/apt/apt.conf.d/"  # how packages are reached
cp /etc/resolv.conf /etc/hosts "$room/etc/"
git clone -q . "$room/root/project"
mount -t proc proc "$room/proc"

status=0
for command; do
    begun=$(date +%s)
    result=0
    env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
        chroot "$room" /bin/sh -c "cd /root/project && $command" >"$room/command.log" 2>&1 </dev/null || result=$?
    echo "$command ended with $result after $(($(date +%s) - begun)) s"
    if [ $result -ne 0 ]; then
        status=1
        tail -n 30 "$room/command.log"
    else
        tail -n 3 "$room/command.log"
    fi
done
exit $status
