#!/bin/sh
# Fails when a source file includes something its folder must not know. The order of the folders is
# in docs/architecture.md; a link list alone does not hold it.
set -eu
cd "$1"
status=0

# allow FOLDER QT_PATTERN FOLDERS...: what files of FOLDER may include.
allow() {
    folder=$1 qt=$2
    shift 2
    own=$(echo "$*" | tr ' ' '|')
    bad=$(grep -nE '^ *#include' "$folder"/*.h "$folder"/*.cpp 2>/dev/null | awk -v own="$own" -v qt="$qt" '
        match($0, /"[a-z]+\//) { name = substr($0, RSTART + 1, RLENGTH - 2)
            if (name !~ "^(" own ")$") print; next }
        match($0, /<(Q[A-Za-z]|Qt[A-Za-z]*\/)[^>]*>/) { name = substr($0, RSTART + 1, RLENGTH - 2)
            if (qt == "none" || name !~ "^(" qt ")$") print }')
    [ -z "$bad" ] || { echo "$folder includes what it must not:"; echo "$bad"; status=1; }
}

allow model none model
allow sim none model sim
allow effects none model effects
allow project none model project
allow display 'Q(Painter|PainterPath|PaintEngine|Image|ImageReader|Pixmap|Font|FontMetricsF?|Color|PointF?|LineF?|RectF?|Size|SizeF|Pen|Brush|String|StringList|Hash|Cache|List|SvgRenderer|Buffer|ByteArray|Dir|File|FileInfo|Transform|StaticText|Vector|TextStream|RawFont|GlyphRun|TextBoundaryFinder|Polygon|PolygonF)' model display
allow edit none model sim effects edit
allow history none model sim history
allow measure none model sim measure
allow ui none model sim effects project edit history ui
allow export 'Q.*' model sim effects project measure display export
allow cli 'Q.*' model sim effects project display edit history measure export cli
allow app '.*' model sim effects project display edit history measure export ui app

# Only what is painted may know painting, and headers of display stay free of widgets.
if grep -nE 'QtWidgets|<Q(Widget|Application|MessageBox|Dialog|Action|Menu|Label)' -r model sim effects project display edit history measure export cli ui; then
    echo "widgets below app"; status=1
fi
exit $status
