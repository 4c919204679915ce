#!/usr/bin/env bash
# checksystem.sh SOURCE
#
# What is said where no Debian system can be made, where packages are not as they are to be or leave
# something behind, and where nothing can be built for another processor. Functions stand for the
# programs that would make a system.
set -euo pipefail
source=$1

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
mkdir "$stage/project"
cp -r "$source/tools" "$stage/project"
mkdir -p "$stage"/project/tests/docs
cp -r "$source"/tests/{debian,cross} "$stage/project/tests"
printf '#!/bin/sh\n[ "${STUB_FAILS:-}" != links.sh ]\n' >"$stage/project/tests/docs/links.sh"
chmod +x "$stage/project/tests/docs/links.sh"
export STUB_LOG=$stage/stub.log

failures=0
# check STATUS TEXT COMMAND...: the command ends with the status, and says the line.
check() {
    local wanted=$1 text=$2 status=0
    shift 2
    : >"$STUB_LOG"
    ("$@") >"$stage/output" 2>&1 || status=$?
    if [ $status -ne "$wanted" ] || ! grep -qxF -- "$text" "$stage/output"; then
        echo "$*: ends with $status instead of $wanted, or does not say '$text':" >&2
        sed 's/^/    /' "$stage/output" >&2
        failures=$((failures + 1))
    fi
}

complain() {
    echo "$*" >&2
    failures=$((failures + 1))
}

# ---- the programs

id() { echo "${STUB_ID:-0}"; }
# Namespaces are those of the caller; in a system nothing is run, and all ends with STUB_INSYSTEM.
unshare() {
    if [ "${STUB_FAILS:-}" = unshare ]; then
        echo "unshare: unshare failed: Operation not permitted" >&2
        return 1
    fi
    while [ "${1#--}" != "$1" ]; do shift; done
    case $1 in
        */entersystem.sh)
            echo "$*" >>"$STUB_LOG"
            if [ -n "${STUB_SAYS:-}" ]; then echo "$STUB_SAYS"; fi
            return "${STUB_INSYSTEM:-0}"
            ;;
    esac
    "$@"
}
debootstrap() {
    echo "debootstrap $*" >>"$STUB_LOG"
    local folder=${*: -2:1}
    mkdir -p "$folder"/etc/{apt/apt.conf.d,dpkg/dpkg.cfg.d}
    echo "I: Retrieving InRelease"
    if [ "${STUB_FAILS:-}" = debootstrap ]; then
        echo "E: Failed getting release file"
        return 1
    fi
}
apt-get() {
    if [ "${STUB_FAILS:-}" != apt-get ]; then
        echo "deb http://mirror.invalid/debian/ $(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release) main"
    fi
}
apt-config() { echo 'Acquire::Retries "3";'; }
export -f id unshare debootstrap apt-get apt-config

# ---- tools/system.sh

# make FOLDER [COMMAND...]
make() {
    local folder=$1
    shift
    # shellcheck source=/dev/null
    source "$stage/project/tools/system.sh"
    cwidget_make_system "$stage/$folder" "$stage/archives" "$@"
}
finish() {
    echo "finishes $1" >>"$STUB_LOG"
    touch "$1/finished"
}
break_off() { echo "something"; echo "no packages for arm64"; return 100; }

STUB_ID=1000 check 1 "only root can make one: run this as root or with sudo" make none
STUB_FAILS=unshare check 1 "no mount namespace: unshare: unshare failed: Operation not permitted" make none
STUB_FAILS=apt-get check 1 "apt knows no mirror for $(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)" make none
STUB_FAILS=debootstrap check 1 "debootstrap: E: Failed getting release file" make none
check 1 "no packages for arm64" make none break_off
if compgen -G "$stage/none" || compgen -G "$stage/none.new"; then complain "half of a system stays"; fi

: >"$STUB_LOG"
make whole finish
[ -f "$stage/whole/finished" ] || complain "the system is not finished"
grep -q mirror.invalid "$stage/whole/etc/apt/sources.list" || complain "the system has no sources"
grep -q Retries "$stage/whole/etc/apt/apt.conf.d/90test" || complain "the system's apt is set otherwise"
: >"$STUB_LOG"
make whole finish
[ ! -s "$STUB_LOG" ] || complain "the system is made again"

mkdir "$stage/path"
for program in awk cat grep ls mkdir rm sed sort tail; do
    ln -s "$(type -P "$program")" "$stage/path/$program"
done
without_debootstrap() {
    unset -f debootstrap
    PATH=$stage/path make none
}
check 1 "debootstrap is missing: apt-get install debootstrap" without_debootstrap

# ---- tests/debian/checkdebian.sh

packages=$stage/project/build/packages
mkdir -p "$packages"
touch "$packages/quorlin.changes"
cut -d ' ' -f 1 "$source/tests/debian/contents.txt" | sort -u | while read -r package; do
    touch "$packages/${package}_1_amd64.deb"
done
lintian() { [ "${STUB_FAILS:-}" != lintian ]; }
# What the list asks for, but for the file of STUB_LACKS.
dpkg-deb() {
    local package file
    package=$(basename "$2")
    while read -r file; do
        file=$3/usr/${file//\*/any}
        mkdir -p "$(dirname "$file")"
        [ "$(basename "$file")" = "${STUB_LACKS:-}" ] || install -m 755 /dev/null "$file"
    done < <(awk -v package="${package%%_*}" '$1 == package { print $2 }' "$CONTENTS")
}
readelf() { printf '%s\n' "${STUB_FLAGS:-Flags: BIND_NOW}" GNU_RELRO 'type is DYN'; }
export -f lintian dpkg-deb readelf
export CONTENTS=$source/tests/debian/contents.txt

debian() {
    rm -rf "$stage/project/build/debian"
    "$stage/project/tests/debian/checkdebian.sh" "$stage/project"
}
skipped="skipped: packages in a fresh system:"
check 0 "ok" debian
grep -q "entersystem.sh $stage/project/build/debian/" "$STUB_LOG" || complain "no system is entered"
STUB_ID=1000 check 0 "$skipped only root can make one: run this as root or with sudo" debian
STUB_FAILS=debootstrap check 0 "$skipped debootstrap: E: Failed getting release file" debian
if grep -q entersystem "$STUB_LOG"; then complain "a system that is not there is entered"; fi
STUB_INSYSTEM=77 STUB_SAYS="$skipped apt-get update: E: no network" \
    check 0 "$skipped apt-get update: E: no network" debian
STUB_INSYSTEM=1 check 1 "the packages do not work in a fresh system" debian
STUB_FAILS=lintian check 1 "== lintian" debian
STUB_FAILS=links.sh check 1 "== the guide's links" debian
STUB_LACKS=CPushButton check 1 "libquorlin-cwidget-dev lacks include/quorlin-cwidget/CPushButton" debian
STUB_FLAGS=none debian >"$stage/output" 2>&1 && complain "a program that is not hardened passes"
grep -q 'is not hardened: no BIND_NOW' "$stage/output" || complain "it is not said what is not hardened"
rm "$packages"/quorlin-cwidget-tools_*.deb
check 1 "there is no package quorlin-cwidget-tools" debian

# ---- what packages leave behind

left() {
    # shellcheck source=/dev/null
    source "$source/tests/debian/traces.sh"
    traces_left "$stage/before" "$stage/after" '*quorlin*'
}
dpkg-query() {
    printf '%s\n' "libquorlin-cwidget1 not-installed" "${STUB_KNOWN:-quorlin-gallery not-installed}"
}
# shellcheck source=/dev/null
source "$source/tests/debian/traces.sh"
mkdir -p "$stage/root"/{etc,proc,usr/share/quorlin-cwidget,var/lib/dpkg}
traces_paths "$stage/root" >"$stage/before"
touch "$stage/root/proc/self" "$stage/root/var/lib/dpkg/status"
traces_paths "$stage/root" >"$stage/after"
left >"$stage/output" || complain "nothing is left, and that does not pass: $(cat "$stage/output")"
STUB_KNOWN="quorlin-cwidget-tools config-files" \
    check 1 "dpkg still knows quorlin-cwidget-tools config-files" left
touch "$stage/root/etc/quorlin.conf"
traces_paths "$stage/root" >"$stage/after"
check 1 "> $stage/root/etc/quorlin.conf" left
check 1 "this differs from before the installation: 2a3" left

# ---- tests/cross

cross() {
    rm -rf "$stage/project/build/arm64"
    "$stage/project/tests/cross/checkcross.sh" "$stage/project" -R label
}
missing="Nothing is built for arm64, which needs a Debian system of its own:"
STUB_ID=1000 check 2 "$missing only root can make one: run this as root or with sudo" cross
STUB_FAILS=debootstrap check 2 "$missing debootstrap: E: Failed getting release file" cross
STUB_INSYSTEM=8 STUB_SAYS="apt has no packages for arm64" \
    check 2 "$missing apt has no packages for arm64" cross
check 0 "Making a system for arm64 in $stage/project/build/arm64/root" cross
grep -q "insystem.sh $stage/project $stage/project/build/arm64/tests -R label" "$STUB_LOG" ||
    complain "the tests do not run"

# Each test that is left out there is one, and has a reason.
total=0
while read -r name reason; do
    total=$((total + 1))
    [ -n "$reason" ] || complain "skipped.txt does not say why $name is skipped"
    grep -qE "(NAME |[a-z_]*test\(|package_test\()$name( |\)|\$)" "$source"/tests/*/CMakeLists.txt ||
        complain "skipped.txt names $name, which is no test"
done < <(grep '^[^#]' "$source/tests/cross/skipped.txt")
[ "$total" -gt 0 ] || complain "skipped.txt names no test"

[ $failures -eq 0 ] || exit 1
echo "ok"
