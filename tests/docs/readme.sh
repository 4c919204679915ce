#!/usr/bin/env bash
# readme.sh SOURCE: runs the commands of README.md, to the letter, in a clean copy of the tree, and
# those of its section "Use" in a folder with the program that stands there. Left out is ./test.sh,
# of which this is a part. Then those of docs/device.md, in the same tree. In a mount namespace, whose
# /opt is a folder of this test.
set -euo pipefail
source=$1

if [ -z "${README_WORK:-}" ]; then
    README_WORK=$(mktemp -d)
    export README_WORK
    trap 'rm -rf "$README_WORK"' EXIT
    namespace=(unshare --mount)
    if [ "$(id -u)" -ne 0 ]; then namespace+=(--map-root-user); fi
    if ! "${namespace[@]}" true 2>"$README_WORK/log"; then
        echo "SKIP: there is no mount namespace for /opt: $(tail -n 1 "$README_WORK/log")"
        exit 77
    fi
    "${namespace[@]}" "$0" "$source"
    exit
fi

mkdir "$README_WORK"/{opt,tree,application}
mkdir -m 700 "$README_WORK/application/runtime"
mount --bind "$README_WORK/opt" /opt
unset QT_QPA_PLATFORM DISPLAY WAYLAND_DISPLAY FONTCONFIG_FILE

# blocks LANGUAGE: what a page marks as that, on standard input.
blocks() {
    awk -v fence="^\`\`\`$1\$" '$0 ~ fence { inside = 1; next } /^```$/ { inside = 0 } inside'
}

# run FILE: the commands in it.
run() {
    bash -eux "$1" >log 2>&1 || { tail -n 40 log; exit 1; }
}

echo "== install"
tar -C "$source" --exclude=./build --exclude=./.git -cf - . | tar -C "$README_WORK/tree" -xf -
cd "$README_WORK/tree"
sed '/^## Use$/,$d' README.md | blocks sh | grep -v '^\./test\.sh' >commands
test "$(grep -c . commands)" -ge 4
run commands

test -s build/shots/controls.png
test -s /opt/panel/share/quorlin-cwidget/widget-style.xml
test -f /opt/panel/lib/libquorlin-cwidget.so.1
test -x /opt/panel/bin/cwidget-style

echo "== use"
cd "$README_WORK/application"
sed -n '/^## Use$/,/^## Read/p' "$source/README.md" >page
blocks cpp <page >main.cpp
blocks cmake <page >CMakeLists.txt
blocks sh <page >commands
# A panel runs until it is closed: that it still runs, and says nothing, is what is wanted of it.
cat >>commands <<'END'
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$PWD/runtime
for program in "env -u LD_LIBRARY_PATH build/panel" ./panel; do
    status=0
    timeout 2 $program >said 2>&1 || status=$?
    test $status -eq 124
    test ! -s said || { cat said; exit 1; }
done
END
test "$(grep -c . commands)" -ge 10
run commands
grep -q /opt/panel/share/quorlin-cwidget/widget-style.xml panel

echo "== device"
cd "$README_WORK/tree"
# No user and no service is made here: their programs say that they were called, and the unit goes to
# another folder.
mkdir "$README_WORK/units" stubs
for program in useradd systemctl; do
    printf '#!/bin/sh\necho "%s $*" >>"%s/called"\n' "$program" "$README_WORK" >"stubs/$program"
    chmod +x "stubs/$program"
done
blocks sh <docs/device.md | sed "s#/etc/systemd/system/#$README_WORK/units/#" >commands
test "$(grep -c . commands)" -ge 7
PATH=$PWD/stubs:$PATH run commands
diff - "$README_WORK/called" <<'END'
useradd --system --user-group panel
systemctl enable --now appliance.service
END
# The unit starts what is installed; the platform is another one here.
{
    sed -n 's/^Environment=QT_QPA_PLATFORM=.*/export QT_QPA_PLATFORM=offscreen/p
            s/^Environment=\(LD_.*\)/export \1/p
            s/^ExecStart=/timeout 2 /p' "$README_WORK/units/appliance.service" |
        sed "s#/var/lib/appliance#$README_WORK#"
    echo 'test $? -eq 124'
} >start
test "$(grep -c . start)" -eq 4
bash -ux start
echo "ok"
