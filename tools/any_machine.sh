#!/bin/sh
# Runs the tests that look at pixels on the machines that this one is not: with other fonts and font settings, scales,
# languages, time zones, users and home folders. Prints a line a world; ends with 1 when one fails.
# Usage: any_machine.sh [--all] [BUILD_FOLDER]      --all: every test in every world, not only those
# Nothing of this machine is changed: the fonts and languages it lacks are unpacked in BUILD_FOLDER/any_machine, where
# every world leaves its log and, as "golden", the pictures that differ.
set -eu
cd "$(dirname "$0")/.."
filter='Golden.*:Lettering.*:Scene.*:PhaseStrip.*:Path.*:Stamp*:Canvas*:Pictures.*:Films.*:Seen.*:Overlays.*:Sprites*'
filter="$filter:ExportCommand.*:Pointing*:Manual*:SharingTest.*:Plot*:Window.*:Menus*:Layout*"
if [ "${1:-}" = --all ]; then filter='*'; shift; fi
build=${1:-}
for built in build/developer build/program; do [ -n "$build" ] || [ ! -x $built/zentrik_tests ] || build=$built; done
[ -n "$build" ] || { echo "There are no tests: ./test builds them." >&2; exit 2; }
build=$(cd "$build" && pwd)
tests=$build/zentrik_tests
place=$build/any_machine
rm -rf "$place/worlds"
mkdir -p "$place/packages" "$place/root" "$place/worlds"

# unpack PACKAGE...: files of Debian packages, without installing them.
unpack() {
    for package in "$@"; do
        [ ! -e "$place/packages/$package" ] || continue
        (cd "$place/packages" && apt-get -q download "$package" >log 2>&1) ||
            { cat "$place/packages/log" >&2; echo "$package cannot be fetched." >&2; exit 2; }
        dpkg-deb -x "$place/packages/$package"_*.deb "$place/root"
        : >"$place/packages/$package"
    done
}
unpack fonts-dejavu-core fonts-liberation fonts-urw-base35 fonts-noto-core locales
for locale in de_DE tr_TR; do
    [ -d "$place/locales/$locale.UTF-8" ] && continue
    mkdir -p "$place/locales"
    I18NPATH="$place/root/usr/share/i18n" localedef -i "$locale" -f UTF-8 "$place/locales/$locale.UTF-8"
done

# fonts NAME "FOLDER..." "SETTING=VALUE...": writes a configuration of fontconfig, and says where.
fonts() {
    {
        echo '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>'
        for folder in $2; do echo "<dir>$place/root/usr/share/fonts/$folder</dir>"; done
        echo "<cachedir>$place/cache</cachedir>"
        for setting in $3; do
            value=${setting#*=}
            case $value in
                true | false) value="<bool>$value</bool>" ;;
                hint* | rgb* | lcd*) value="<const>$value</const>" ;;
                *) value="<string>$value</string>" ;;
            esac
            for target in pattern font; do
                echo "<match target=\"$target\"><edit name=\"${setting%%=*}\" mode=\"assign\">$value</edit></match>"
            done
        done
        echo '</fontconfig>'
    } >"$place/$1.conf"
    echo "FONTCONFIG_FILE=$place/$1.conf"
}
dejavu=$(fonts dejavu truetype/dejavu "")
many=$(fonts many "truetype opentype" "")
nothing=$(fonts nothing "" "")

status=0
as_user=""
# world NAME VARIABLE=VALUE...: the tests there, with nothing else of this machine's settings.
world() {
    name=$1
    shift
    here="$place/worlds/$(echo "$name" | tr -c 'A-Za-z0-9\n' _)"
    mkdir -p "$here/home"
    [ -z "$as_user" ] || chown -R "$user" "$here"
    result=0
    # shellcheck disable=SC2086 # a command and its options
    (cd "$here" && exec env -i PATH="$PATH" HOME="$here/home" TMPDIR="${TMPDIR:-/tmp}" LOCPATH="$place/locales" \
        "$dejavu" "$@" timeout 900 $as_user "$tests" --gtest_filter="$filter" --gtest_brief=1) >"$here.log" 2>&1 ||
        result=$?
    report "$name" "$result" "$here.log"
}
# report NAME RESULT LOG
report() {
    if [ "$2" -eq 0 ]; then echo "ok      $1"; return; fi
    status=1
    echo "FAILED  $1, with $2:" "$(sed -n 's/^\[  FAILED  \] \([^ ]*\) (.*/\1/p' "$3" | sort -u | tr '\n' ' ')"
}

world "DejaVu alone"
world "many fonts" "$many"
for style in hintnone hintslight hintfull; do
    world "$style" "$(fonts $style truetype/dejavu "hintstyle=$style hinting=true autohint=false")"
done
world "sub-pixels, automatic hints" "$(fonts subpixel truetype "rgba=rgb lcdfilter=lcddefault autohint=true")"
world "no smoothing, bold" "$(fonts mono truetype/dejavu "antialias=false embolden=true")"
world "one font for all names" "$(fonts alias "truetype/dejavu truetype/liberation opentype" family=C059)"
for dpi in 96 144; do world "$dpi dots an inch" QT_FONT_DPI=$dpi; done
world "two pixels to one" QT_SCALE_FACTOR=2
for language in C de_DE.UTF-8 tr_TR.UTF-8; do world "language $language" LANG=$language LC_ALL=$language; done
for zone in UTC0 NPT-5:45 "EST5EDT,M3.2.0,M11.1.0" LINT-14; do world "time zone $zone" TZ=$zone; done
world "plain processor" QT_NO_CPU_FEATURE="sse3 ssse3 sse4.1 sse4.2 avx avx2 avx512f f16c bmi bmi2"
world "home is missing" HOME=/proc/nowhere
if [ "$(id -u)" -eq 0 ]; then
    user=65534
    as_user="setpriv --reuid=$user --regid=$user --clear-groups"
fi
if $as_user test -x "$tests" && $as_user test -r tests/rows.txt; then
    world "ordinary user"
    closed=$place/closed
    mkdir -p "$closed"
    chmod 555 "$closed"
    world "folders that are read-only" HOME="$closed" XDG_CONFIG_HOME="$closed" XDG_DATA_HOME="$closed" \
        XDG_CACHE_HOME="$closed" XDG_STATE_HOME="$closed" XDG_RUNTIME_DIR="$closed"
else
    echo "not run: ordinary user, read-only folders; no such user can read $PWD"
fi
as_user=""
world "no fonts at all" "$nothing"

# Without fonts the program itself says so, and runs.
here=$place/worlds/program
mkdir -p "$here"
env -i PATH="$PATH" HOME="$here" "$nothing" QT_QPA_PLATFORM=offscreen "$build/zentrik" >"$here.log" 2>&1 &
program=$!
for _ in 1 2 3 4 5 6 7 8 9 10; do
    grep -q "this system has no fonts" "$here.log" && break
    sleep 1
done
sleep 1
result=0
kill -TERM $program && wait $program || result=$?
grep -q "this system has no fonts" "$here.log" || result=1
report "the program without fonts" "$result" "$here.log"
exit $status
