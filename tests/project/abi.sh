#!/usr/bin/env bash
# abi.sh CMAKE BUILD [--update]
#
# Compares the binary interface of the library in BUILD, which has debug information, with that of
# the last release: sizes of classes, tables of virtual functions, functions. What only comes along
# is no difference; of a private member that got another name, abidiff reports the virtual functions
# around it. With --update it writes what is compared with: at a release, before the first one where a
# change is meant, and where a report shows nothing but another name.
set -euo pipefail
cmake=$1 build=$2
dump=$(dirname "${BASH_SOURCE[0]}")/libquorlin-cwidget.so.1.abi.xz

stage=$(mktemp -d)
trap 'rm -rf "$stage" "$build/install_manifest_development.txt"' EXIT
"$cmake" --install "$build" --component development --prefix "$stage" >/dev/null

# Types that are not of the installed headers are Qt's, or private.
abidw --exported-interfaces-only --headers-dir "$stage/include" --drop-private-types \
    --no-show-locs --no-corpus-path --no-comp-dir-path \
    --out-file "$stage/new.abi" "$build/libquorlin-cwidget.so.1"
classes=$(grep -oE "class-decl name='[^']+' size-in-bits" "$stage/new.abi" | cut -d "'" -f 2 | sort -u)
for class in CPushButton CPageListWidgetItemArea KQWidgetStack QDeviceWatcher; do
    grep -qx "$class" <<<"$classes" || { echo "the library does not know its $class" >&2; exit 1; }
done

if [ "${3:-}" = --update ]; then
    xz -9 --stdout "$stage/new.abi" >"$dump"
    exit
fi

compare() {
    abidiff --no-added-syms "$@"
}

xz --decompress --stdout "$dump" >"$stage/old.abi"
if ! compare "$stage/old.abi" "$stage/new.abi"; then
    echo "The binary interface is not that of the last release. Where that is right:" >&2
    echo "  $0 $* --update" >&2
    exit 1
fi

# What the comparison says of a class that has grown.
sed "s/\(class-decl name='CPushButton' size-in-bits='\)[0-9]*/\164/" "$stage/old.abi" >"$stage/less.abi"
if compare "$stage/less.abi" "$stage/new.abi" >"$stage/report"; then
    echo "the comparison does not see that a class has grown" >&2
    exit 1
fi
grep -q "'class CPushButton" "$stage/report" || { cat "$stage/report"; exit 1; }
