#!/usr/bin/env bash
# skipped.sh LOG: says in one line each what the tests of ctest's LOG skipped, and why. Rows of a test
# that have the same reason share a line.
set -euo pipefail
[ -f "$1" ] || exit 0
awk '
    /^[0-9]+\/[0-9]+ Testing: / { test = $3 }
    /^SKIP *: / {
        sub(/^SKIP *: */, "")
        reason = $0
        sub(/\([^)]*\)/, "()", reason) # the row
        key = test ": " reason
        if (!rows[key]++) { order[++count] = key; first[key] = test ": " $0 }
    }
    END {
        for (i = 1; i <= count; i++) {
            key = order[i]
            print "skipped: " (rows[key] == 1 ? first[key] : key " (" rows[key] " rows)")
        }
    }
' "$1"
