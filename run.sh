#!/bin/sh
# Builds the programs and prints a calendar of the coming year into out/: a PDF of twelve pages and a PNG of each.
set -eu
cd "$(dirname "$0")"

tools/setup.sh build
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
cmake --build --preset release

year=$(($(date +%Y) + 1))
mkdir -p out
set -- --year "$year" --country DE --region BY --page A4 --landscape --entries resources/samples/eintraege.xml
build/release/bin/mvcalendar render "$@" -o "out/kalender-$year.pdf" -o "out/kalender-$year-%m.png" --dpi 150
