#!/bin/sh
# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds the programs and makes a photo calendar of the coming year in out/: the project with its photos, a PDF for the
# print shop with cover, twelve months and back, a PNG of each page, and says what of it would print badly.
# The photos are painted at the first run, which takes a minute.
#   ./run.sh studio [OPTION...] [FILE]   builds the studio and starts it instead
set -eu
here="$PWD"
cd "$(dirname "$0")"
case "${1:-}" in
"" | studio) ;;
*)
    echo "usage: ./run.sh [studio [OPTION...] [FILE]]" >&2
    exit 2
    ;;
esac

tools/setup.sh build
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
if [ "${1:-}" = studio ]; then
    shift
    cmake --build --preset release --target mvcalendar-studio
    program="$PWD/build/release/bin/mvcalendar-studio"
    cd "$here" # where a file that is named lies
    exec "$program" "$@"
fi
cmake --build --preset release

year=$(($(date +%Y) + 1))
calendar=build/release/bin/mvcalendar
project="out/familie-$year.mvcalendar"
mkdir -p out
if [ ! -d out/fotos ]; then
    rm -rf out/fotos.neu
    tools/make_sample_fotos out/fotos.neu
    mv out/fotos.neu out/fotos
fi
$calendar new --photos out/fotos --year "$year" --country DE --region BY --page A4 --landscape --binding top --bleed 3 \
    --title "Familie Huber" --entries resources/samples/eintraege.xml -o "$project"
$calendar render --project "$project" -o "out/kalender-$year.pdf" -o "out/kalender-$year-%m.png" --dpi 150
findings=0
$calendar validate "$project" || findings=$?
[ "$findings" -ne 0 ] || echo "Nothing of it would print badly."
[ "$findings" -eq 0 ] || [ "$findings" -eq 3 ] # the list above
