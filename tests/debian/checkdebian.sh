#!/usr/bin/env bash
# checkdebian.sh SOURCE
#
# Looks at the Debian packages in SOURCE/build/packages, and installs, uses and purges them in a
# fresh system. What that needs is kept in SOURCE/build/debian. Where no such system can be made, the
# reason is printed, and the end is a good one.
set -euo pipefail
source=$1
here=$source/tests/debian
packages=$source/build/packages
kept=$source/build/debian
source "$source/tools/system.sh"

fail() {
    echo "$*" >&2
    exit 1
}

skip() {
    echo "skipped: packages in a fresh system: $*"
    exit
}

stage=$(mktemp -d)
trap 'rm -rf --one-file-system "$stage"' EXIT

echo "== lintian"
lintian --no-cfg --allow-root --fail-on error,warning "$packages"/*.changes

echo "== what the packages hold"
while read -r package file; do
    deb=$(compgen -G "$packages/${package}_*.deb") || fail "there is no package $package"
    [ -d "$stage/$package" ] || dpkg-deb --extract "$deb" "$stage/$package"
    compgen -G "$stage/$package/usr/$file" >/dev/null || fail "$package lacks $file"
done <"$here/contents.txt"

echo "== the guide's links"
"$source/tests/docs/links.sh" "$stage/libquorlin-cwidget-doc/usr/share/doc/libquorlin-cwidget-doc"

echo "== hardening"
# All addresses are bound, and then made read-only, before the first use.
programs=0
while read -r file; do
    readelf --dynamic --program-headers "$file" >"$stage/elf" 2>/dev/null || continue
    grep -q '^There are no program headers' "$stage/elf" && continue
    for sign in 'BIND_NOW|Flags:.* NOW' GNU_RELRO 'type is DYN'; do
        grep -qE "$sign" "$stage/elf" || fail "$file is not hardened: no $sign"
    done
    programs=$((programs + 1))
done < <(find "$stage" -type f -path '*/usr/*' \( -perm /1 -o -name '*.so*' \))
[ $programs -ge 5 ] || fail "only $programs programs and libraries"

system=$kept/$(cwidget_release)
archives=$kept/archives
[ -d "$system" ] || echo "== a system"
mkdir -p "$kept"
reason=$(cwidget_make_system "$system" "$archives") || skip "$reason"

echo "== in a fresh system"
status=0
cwidget_in_namespaces "$here/entersystem.sh" "$system" "$archives" "$stage" "$source" || status=$?
[ $status -ne 77 ] || exit 0
[ $status -eq 0 ] || fail "the packages do not work in a fresh system"
echo "ok"
