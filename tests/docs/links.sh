#!/usr/bin/env bash
# links.sh FOLDER: every relative link and picture of the pages in FOLDER and its docs/ leads to a file,
# and the guide's page of contents leads to every page. FOLDER is that of the sources, or the one that
# the package with the guide installs.
set -euo pipefail
cd "$1"
status=0
total=0
for page in *.md docs/*.md; do
    while IFS= read -r link; do
        total=$((total + 1))
        if [ ! -e "$(dirname "$page")/$link" ]; then
            echo "$page leads to $link, which is not there" >&2
            status=1
        fi
    done < <(grep -o '](\([^)]*\))' "$page" | sed 's/^](//; s/)$//; s/#.*//' | grep -v '^https\?:' | grep . || true)
done
for page in docs/*.md; do
    name=$(basename "$page")
    if [ "$name" != guide.md ] && ! grep -q "($name)" docs/guide.md; then
        echo "docs/guide.md does not lead to $name" >&2
        status=1
    fi
done
test "$total" -ge 30
echo "$total links"
exit $status
