#!/usr/bin/env bash
# skipped.sh LOG: says in one line each what the tests of ctest's LOG skipped, and why.
set -euo pipefail
[ -f "$1" ] || exit 0
awk '
    /^[0-9]+\/[0-9]+ Testing: / { test = $3 }
    /^SKIP *: / { sub(/^SKIP *: */, ""); print "skipped: " test ": " $0 }
' "$1"
