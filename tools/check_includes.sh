#!/bin/sh
# Fails when a source file includes something its folder must not know, and when files include each other in a
# circle. The order of the folders is in docs/architecture.md; a link list alone does not hold it. $1: the
# folder of the sources.
set -eu
cd "$1"
status=0
painting='Q(Painter|PainterPath|PaintEngine|Image|ImageReader|Pixmap|Font|FontMetricsF?|Color|PointF?|LineF?|RectF?|Size|SizeF|Pen|Brush|String|StringList|Hash|Cache|List|SvgRenderer|Buffer|ByteArray|Dir|File|FileInfo|Transform|StaticText|Vector|TextStream|RawFont|GlyphRun|TextBoundaryFinder|Polygon|PolygonF)'

# A line a folder: its name, the Qt headers it may take, and the folders whose files it may include beside its
# own. A word in capitals stands for all the folders of the line that it begins.
rules() {
    cat <<'END'
basics            none
host              none      basics
model             none      basics host
MODEL                       basics host model
sim/contacts      none      MODEL
sim               none      MODEL sim/contacts
effects           none      MODEL
files             none      basics
project           none      MODEL
library           none      MODEL sim files project
display/canvas    painting  MODEL
display           painting  MODEL display/canvas
edit              none      MODEL sim effects
history           none      MODEL sim
measure           none      MODEL sim sim/contacts
web               none      MODEL sim effects project edit history measure
CORE                        MODEL sim effects files project library edit history measure
ui/commands       none      CORE
ui                none      CORE ui/commands
settings          none      MODEL project ui/commands
plot              painting  MODEL sim measure display/canvas
export            Q.*       CORE display/canvas display plot
export/pages      Q.*       CORE web display/canvas display plot export
export/films      Q.*       CORE display/canvas display plot export export/pages
SHOWN                       CORE settings display/canvas display plot export export/pages export/films
cli               Q.*       SHOWN
cli/runs          Q.*       SHOWN cli
cli/commands      Q.*       SHOWN cli cli/runs
WINDOW                      SHOWN ui/commands ui
app/keeping       .*        WINDOW
app/bars          .*        WINDOW app/keeping
app/boxes         .*        WINDOW app/keeping app/bars
app/sharing       .*        WINDOW app/keeping app/bars app/boxes
app/views         .*        WINDOW app/keeping app/bars
app/plot          .*        WINDOW app/keeping app/bars app/boxes app/sharing app/views
app/window        .*        WINDOW app/keeping app/bars app/boxes app/sharing app/views app/plot
app               .*        WINDOW app/keeping app/boxes app/window
END
}

# What each folder must not include; a main.cpp stands above all of its program.
forbidden() {
    rules | awk -v painting="$painting" '
        { name = $1
          group = name ~ /^[A-Z]+$/
          may = group ? "" : " " name " "
          for (i = group ? 2 : 3; i <= NF; ++i) may = may ($i in meant ? meant[$i] : $i " ")
          if (group) { meant[name] = may; next }
          print name, $2 == "painting" ? painting : $2, may }' |
    while read -r folder qt may; do
        grep -nE '^ *#include' "$folder"/*.h "$folder"/*.cpp 2>/dev/null | grep -v '/main\.cpp:' |
            awk -v may=" $may " -v qt="$qt" '
            match($0, /"[a-z\/]+\//) {
                name = substr($0, RSTART + 1, RLENGTH - 2)
                if (index(may, " " name " ") == 0) print
                next }
            match($0, /<(Q[A-Za-z]|Qt[A-Za-z]*\/)[^>]*>/) {
                name = substr($0, RSTART + 1, RLENGTH - 2)
                if (qt == "none" || name !~ "^(" qt ")$") print }'
    done
}

# Folders without a rule.
unruled() {
    find . -name '*.cpp' -o -name '*.h' | sed 's|^\./||; s|/[^/]*$||' | sort -u | while read -r folder; do
        rules | grep -q "^$folder " || echo "$folder"
    done
}

# Circles of files, where a header and its source count as one: what tsort cannot put into an order.
circles() {
    # shellcheck disable=SC2069 # what tsort says of circles is wanted, the order it finds is not
    grep -rE '^ *#include "' --include='*.h' --include='*.cpp' . |
        sed -nE 's|^\./([^:]*)\.(h\|cpp): *#include "([^"]*)\.h".*|\1 \3|p' | awk '$1 != $2' | sort -u |
        tsort 2>&1 >/dev/null || true
}

# say WHAT LINES
say() {
    [ -z "$2" ] || { printf '%s:\n%s\n' "$1" "$2"; status=1; }
}
say "folders that no rule names" "$(unruled)"
say "includes that the folder must not have" "$(forbidden)"
say "files that include each other in a circle" "$(circles)"
say "widgets below app" "$(grep -nE 'QtWidgets|<Q(Widget|Application|MessageBox|Dialog|Action|Menu|Label)' -r . | grep -v '^\./app/' || true)"
exit $status
