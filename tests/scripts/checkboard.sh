#!/usr/bin/env bash
# checkboard.sh SOURCE
#
# What tests/device/fetchboard.sh makes of the packages that it fetches, and what it and fetchkernel.sh
# do without a network. Functions stand for apt and for what opens a package.
set -euo pipefail
source=$1

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
mkdir "$stage/here" "$stage/system"
cp "$source/tests/device/fetchboard.sh" "$stage/here"
# shellcheck disable=SC2016
printf '#!/bin/sh\necho "fetchkernel.sh $*" >>"$STUB_LOG"\n' >"$stage/here/fetchkernel.sh"
chmod +x "$stage/here/fetchkernel.sh"
export STUB_LOG=$stage/stub.log PACKAGE=$stage/package

# There is one package, with a program and the lists of users and groups.
mkdir -p "$PACKAGE"/{bin,etc/fonts/conf.d,usr/share/base-passwd}
touch "$PACKAGE/bin/program"
echo "nobody:*:65534:" >"$PACKAGE/usr/share/base-passwd/passwd.master"
echo "video:*:44:" >"$PACKAGE/usr/share/base-passwd/group.master"
apt-get() {
    if [ "${STUB_FAILS:-}" = "$1" ]; then
        echo "E: no network for $1" >&2
        return 100
    fi
    echo "apt-get $* for $(sed -n 's/^APT::Architecture "\(.*\)";/\1/p' "$APT_CONFIG")" >>"$STUB_LOG"
    if [ "$1" = install ]; then touch cache/archives/package.deb; fi
}
apt-config() { echo arm64; }
apt-cache() {
    case $1 in
        depends) echo "  Depends: linux-image-6-arm64" ;;
        policy) echo "  Candidate: 6.1" ;;
    esac
}
dpkg-deb() { tar -c -C "$PACKAGE" .; }
systemd-hwdb() { echo "systemd-hwdb $*" >>"$STUB_LOG"; }
export -f apt-get apt-config apt-cache dpkg-deb systemd-hwdb

failures=0
complain() {
    echo "$*" >&2
    sed 's/^/    /' "$stage/output" "$STUB_LOG" >&2
    failures=$((failures + 1))
}

# fetch STATUS: fetches the board, which ends so.
fetch() {
    local status=0
    : >"$STUB_LOG"
    "$stage/here/fetchboard.sh" "$stage/system" "$stage/board" >"$stage/output" 2>&1 || status=$?
    [ $status -eq "$1" ] || complain "it ends with $status instead of $1"
}

for command in update install; do
    STUB_FAILS=$command fetch 100
    [ "$(tail -n 1 "$stage/output")" = "E: no network for $command" ] || complain "it gives no reason"
done

if STUB_FAILS=download "$source/tests/device/fetchkernel.sh" "$stage/kernel" >"$stage/output" 2>&1; then
    complain "there is a kernel without a network"
fi
[ "$(tail -n 1 "$stage/output")" = "E: no network for download" ] || complain "no reason for no kernel"

fetch 0
root=$stage/board/root
grep -q "^apt-get install .*--download-only .*udev.* for arm64$" "$STUB_LOG" || complain "no packages"
grep -qxF "fetchkernel.sh $stage/board/kernel" "$STUB_LOG" || complain "no kernel"
grep -qxF "systemd-hwdb --root=$root --usr update" "$STUB_LOG" || complain "no words for lsusb"
[ -L "$root/etc/fonts/conf.d/10-hinting-slight.conf" ] || complain "letters are drawn otherwise"
[ -L "$root/bin" ] || complain "a package has replaced the link of a folder"
[ -f "$root/usr/bin/program" ] || complain "there is no program"
grep -q "^nobody:" "$root/etc/passwd" || complain "there is no user nobody"
for group in video input; do
    grep -q "^$group:" "$root/etc/group" || complain "there is no group $group"
done

fetch 0
[ ! -s "$STUB_LOG" ] || complain "it fetches again what is there"

[ $failures -eq 0 ] || exit 1
echo "ok"
