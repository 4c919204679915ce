#!/usr/bin/env bash
# commands.sh SOURCE TOOL STEP...
#
# Runs the commands that the guide marks as "sh", page by page, in a folder that holds a copy of
# the library's style file, with cwidget-style and the tutorial's programs in the path.
set -euo pipefail
source=$1 tool=$2
shift 2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/bin"
ln -s "$tool" "$work/bin/cwidget-style"
# A panel runs until it is closed: that it still runs after a second is what is wanted of it.
for program in "$@"; do
    printf '#!/bin/sh\ntimeout 1 "%s" "$@"\ntest $? -eq 124\n' "$program" \
        >"$work/bin/$(basename "$program")"
    chmod +x "$work/bin/$(basename "$program")"
done
export PATH=$work/bin:$PATH

total=0
for page in "$source"/docs/*.md; do
    if [ "$(basename "$page")" = device.md ]; then continue; fi # readme.sh runs those
    mkdir "$work/$(basename "$page" .md)"
    cd "$work/$(basename "$page" .md)"
    cp "$source/style/widget-style.xml" .
    chmod u+w widget-style.xml
    awk '/^```sh$/ { inside = 1; next } /^```$/ { inside = 0 } inside' "$page" >commands
    count=$(grep -c . commands || true)
    [ "$count" -eq 0 ] && continue
    echo "== $page"
    bash -eux commands
    total=$((total + count))
done
test "$total" -ge 5
echo "$total commands run"
