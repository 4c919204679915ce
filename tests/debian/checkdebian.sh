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

[ "$(id -u)" -eq 0 ] || skip "only root can make one"
unshare --mount true 2>"$stage/log" || skip "no mount namespace: $(tail -n 1 "$stage/log")"

# The same release as this system's, from the same sources.
release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Identifier: Packages' 'Origin: Debian' | sort -u >"$stage/sources"
mirror=$(awk -v release="$release" '$3 == release { print $2; exit }' "$stage/sources")
[ -n "$mirror" ] || skip "apt knows no mirror for $release"

system=$kept/$release
archives=$kept/archives
mkdir -p "$archives/partial"
if [ ! -d "$system" ]; then
    echo "== a system"
    rm -rf --one-file-system "$system.new"
    if ! debootstrap --variant=minbase --cache-dir="$archives" "$release" "$system.new" "$mirror" \
        >"$stage/log" 2>&1; then
        rm -rf --one-file-system "$system.new"
        skip "debootstrap: $(tail -n 1 "$stage/log")"
    fi
    cp "$stage/sources" "$system.new/etc/apt/sources.list"
    # As for this system's apt; and nothing needs to outlive a cut of the power.
    apt-config dump | grep -E '^Acquire::(Check-|http::Proxy|https::Proxy|Retries)' \
        >"$system.new/etc/apt/apt.conf.d/90test" || true
    echo force-unsafe-io >"$system.new/etc/dpkg/dpkg.cfg.d/test"
    mv "$system.new" "$system"
fi

echo "== in a fresh system"
# In a mount namespace, so that nothing stays mounted whatever happens.
status=0
unshare --mount --pid --fork --kill-child "$here/entersystem.sh" "$system" "$archives" "$stage" \
    "$source" || status=$?
[ $status -ne 77 ] || exit 0
[ $status -eq 0 ] || fail "the packages do not work in a fresh system"
echo "ok"
