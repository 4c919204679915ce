#!/usr/bin/env bash
# readme.sh SOURCE: runs the commands of README.md, to the letter, in a clean copy of the tree. Left
# out is ./test.sh, of which this is a part. What is installed goes to a folder of its own.
set -euo pipefail
source=$1

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/tree"
tar -C "$source" --exclude=./build --exclude=./.git -cf - . | tar -C "$work/tree" -xf -
cd "$work/tree"
unset QT_QPA_PLATFORM DISPLAY WAYLAND_DISPLAY FONTCONFIG_FILE
export DESTDIR=$work/stage

awk '/^```sh$/ { inside = 1; next } /^```$/ { inside = 0 } inside' README.md |
    grep -v '^\./test\.sh' >commands
test "$(grep -c . commands)" -ge 4
bash -eux commands >log 2>&1 || { tail -n 40 log; exit 1; }

test -s build/shots/controls.png
test -s "$DESTDIR/opt/panel/share/quorlin-cwidget/widget-style.xml"
test -n "$(find "$DESTDIR/opt/panel" -name libquorlin-cwidget.so.1)"
test -x "$DESTDIR/opt/panel/bin/cwidget-style"
echo "ok"
