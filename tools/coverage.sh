#!/usr/bin/env bash
# coverage.sh BUILD: how much of the library the tests have run that were run in this build folder,
# which is one of CWIDGET_COVERAGE; fails below 98 % of the lines.
#
# Branches that only an exception takes do not count. What was not run is listed in coverage.txt in
# the build folder.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."

least=98
sources=(--root . --object-directory "$build"
         --filter 'style/' --filter 'widgets/' --filter 'pages/' --filter 'parm/' --filter 'keypad/'
         --filter 'hotplug/' --filter 'accessibility/'
         --exclude-throw-branches --exclude-unreachable-branches)
gcovr "${sources[@]}" --txt "$build/coverage.txt" --json-summary "$build/coverage.json" \
    "$build/CMakeFiles/cwidget.dir"
python3 - "$build/coverage.json" "$least" <<'END'
import json, sys
sums = json.load(open(sys.argv[1]))
lines, least = sums["line_percent"], float(sys.argv[2])
print("coverage of the library: %.1f %% of %d lines, %.1f %% of %d branches" % (
    lines, sums["line_total"], sums["branch_percent"], sums["branch_total"]))
if lines < least:
    print("coverage: less than %g %% of the lines" % least)
    sys.exit(1)
END
