#!/bin/sh
# Installs a build into a scratch folder, packs it, and asks every validator that is at hand.
# Usage: installed.sh BUILD_FOLDER. Ends with 77 where a validator is missing and all else is well.
set -eu
build=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
status=0
fail() { echo "FAILED: $*" >&2; status=1; }
# have PROGRAM PACKAGE
have() {
    command -v "$1" >/dev/null && return
    echo "wants the package $2"
    [ "$status" -ne 0 ] || status=77
    false
}
have dpkg-shlibdeps dpkg-dev || exit $status

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$scratch/packed" >"$scratch/log" 2>&1 || { cat "$scratch/log"; exit 1; }
DESTDIR="$scratch/root" cmake --install "$build" --prefix /usr >"$scratch/log" 2>&1 || { cat "$scratch/log"; exit 1; }
usr="$scratch/root/usr"
id=example.zentrik.Zentrik

for file in bin/zentrik share/zentrik/zoo/bridge.bot share/zentrik/sprites/ant.svg share/doc/zentrik/manual.md \
    share/doc/zentrik/pictures/window.png share/doc/zentrik/copyright share/man/man1/zentrik.1.gz \
    bin/zentrik-cli share/man/man1/zentrik-cli.1.gz share/bash-completion/completions/zentrik-cli \
    share/thumbnailers/zentrik.thumbnailer \
    share/icons/hicolor/scalable/mimetypes/application-x-zentrik-project.svg; do
    [ -s "$usr/$file" ] || fail "$file is not installed"
done
for size in 16 24 32 48 64 128 256; do
    for icon in apps/$id mimetypes/application-x-zentrik-project; do
        # Width and height stand in bytes 17 to 24 of a PNG file.
        drawn=$(od -An -j16 -N8 -tx1 "$usr/share/icons/hicolor/${size}x$size/$icon.png" | tr -d ' ')
        [ "$drawn" = "$(printf '%08x%08x' $size $size)" ] || fail "$icon.png is not of size $size"
    done
done

if have desktop-file-validate desktop-file-utils; then
    said=$(desktop-file-validate "$usr/share/applications/$id.desktop" 2>&1) || true
    [ -z "$said" ] || fail "the desktop entry: $said"
fi
if have appstreamcli appstream; then
    said=$(appstreamcli validate --no-net "$usr/share/metainfo/$id.metainfo.xml") || fail "the metainfo: $said"
fi
if have mandoc mandoc; then
    for page in zentrik zentrik-cli; do
        zcat "$usr/share/man/man1/$page.1.gz" | MANPATH="$usr/share/man" mandoc -T lint -W style || fail "the man page of $page"
    done
fi
# The thumbnailer's line, as a desktop runs it.
line=$(sed -n 's/^Exec=zentrik-cli//p' "$usr/share/thumbnailers/zentrik.thumbnailer" |
    sed "s|%s|128|; s|%o|$scratch/thumbnail|; s|%i|$usr/share/zentrik/zoo/bridge.bot|")
# shellcheck disable=SC2086 # words
"$usr/bin/zentrik-cli" $line || fail "the thumbnailer"
side=$(od -An -j16 -N4 -tx1 "$scratch/thumbnail" | tr -d ' ')
[ "$side" = 00000080 ] || fail "the thumbnail is $side wide"
if have update-mime-database shared-mime-info; then
    cp -r "$usr/share/mime" "$scratch/mime"
    XDG_DATA_DIRS=$scratch update-mime-database "$scratch/mime" || fail "the file type"
    grep -q '^60:application/x-zentrik-project:\*.bot$' "$scratch/mime/globs2" || fail "no file type for *.bot"
fi

package=$(echo "$scratch"/packed/*.deb)
size=$(wc -c <"$package")
[ "$size" -lt 5000000 ] || fail "the package has $size bytes"
dpkg-deb -x "$package" "$scratch/unpacked"
(cd "$usr" && find . -type f | sort) >"$scratch/installed"
(cd "$scratch/unpacked/usr" && find . -type f | sort) >"$scratch/in_package"
diff "$scratch/installed" "$scratch/in_package" || fail "the package holds other files"
dpkg-deb -f "$package" Depends | grep -q libqt6widgets6 || fail "the package does not know what it depends on"
if have lintian lintian; then
    # No archive has been asked for a place.
    lintian --allow-root --suppress-tags initial-upload-closes-no-bugs --fail-on error,warning "$package" || fail "lintian"
fi
exit $status
