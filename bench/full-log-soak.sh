#!/usr/bin/env bash
# Soak of the whole program with a full log: the real window offscreen, fed by the frame
# simulator until 432,000 samples are logged, then paging, saving, exporting, clearing and
# logging again (bench/QtFullLogSoak.cpp says what is checked). Takes about 15 minutes at the
# default 1 ms simulator interval; not part of the test run.
#   usage: bench/full-log-soak.sh [BUILD_DIR] [SIMULATOR_INTERVAL_MS]
set -eu
build=$(readlink -f "${1:-build}")
interval=${2:-1}
cmake --build "$build" --target QtFullLogSoak >/dev/null
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
status=0
QT_QPA_PLATFORM=offscreen /usr/bin/time -v -o "$dir/time" \
  "$build/bench/QtFullLogSoak" --interval-ms "$interval" --dir "$dir" || status=$?
grep -E "Maximum resident|Elapsed \(wall" "$dir/time" | sed 's/^\s*/      /'
exit $status
