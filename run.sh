#!/bin/sh
# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds the programs and prints a calendar of the coming year into out/: a PDF of twelve pages and a PNG of each.
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
mkdir -p out
set -- --year "$year" --country DE --region BY --page A4 --landscape --entries resources/samples/eintraege.xml
build/release/bin/mvcalendar render "$@" -o "out/kalender-$year.pdf" -o "out/kalender-$year-%m.png" --dpi 150
