#!/usr/bin/env bash
# messages.sh SOURCE: every message that the library prints has a row in docs/troubleshooting.md.
set -euo pipefail
cd "$1"

# The texts as they stand in the sources: arguments of qDebug and qWarning, and the constants that
# are printed with "%s". What is put in while running ends the part that is looked for.
messages=$(cat style/*.cpp widgets/*.cpp pages/*.cpp parm/*.cpp keypad/*.cpp hotplug/*.cpp |
    sed -n 's/^const char [a-z][A-Za-z]*Failed\[\] = "\(.*\)";$/\1/p
            s/.*\(qDebug\|qWarning\|qCritical\)("\(.*\)"[,)].*/\2/p' |
    sed 's/\\"/"/g; s/%s$//; s/^%s//; s/^"\[%u\]: //; s/%d.*//; s/ %s.*//; s/(*$//' | grep -v '^"*$' | sort -u)
test "$(wc -l <<<"$messages")" -ge 8
status=0
while IFS= read -r message; do
    if ! grep -qF -- "$message" docs/troubleshooting.md; then
        echo "docs/troubleshooting.md has no row for: $message" >&2
        status=1
    fi
done <<<"$messages"
echo "$messages"
exit $status
