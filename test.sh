#!/bin/sh
# SPDX-License-Identifier: LGPL-2.1-or-later
# Builds everything with warnings as errors and runs every test. Arguments go to ctest: ./test.sh -R MvCalendar
set -eu
cd "$(dirname "$0")"

tools/setup.sh test
[ -f build/dev/build.ninja ] || cmake --preset dev >/dev/null
cmake --build --preset dev
cmake --build --preset dev --target all_verify_interface_header_sets # each public header stands on its own
ctest --preset dev "$@"
