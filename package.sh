#!/usr/bin/env bash
# Installs what is missing and builds the Debian packages into build/packages, unless they are there
# already, of the same sources.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/packages.sh
source tools/build.sh

# shellcheck disable=SC2046
cwidget_install $(cwidget_package_packages)

sources() {
    tar --exclude=./build --exclude='./build-*' --exclude=./.git "$@" -cf - .
}

packages=build/packages
sum=$(sources --sort=name --mtime=@0 --owner=0 --group=0 --numeric-owner | sha256sum)
if [ "$(cat "$packages/sources.sha256" 2>/dev/null)" != "$sum" ]; then
    # In a copy of the tree: dpkg-buildpackage writes into the sources and beside them.
    stage=build/package-tree
    tree=$stage/quorlin-cwidget
    log=$stage/build.log
    rm -rf "$stage" "$packages"
    mkdir -p "$tree" "$packages"
    sources | tar -xf - -C "$tree"

    echo "Building the packages"
    : >"$log"
    cwidget_quietly "$log" env --chdir="$tree" dpkg-buildpackage -us -uc -b
    mv "$stage"/*.deb "$stage"/*.buildinfo "$stage"/*.changes "$packages"
    rm -rf "$tree"
    echo "$sum" >"$packages/sources.sha256"
fi
echo "The packages are in $packages:"
find "$packages" -name '*.deb' ! -name '*-dbgsym_*' -printf '  %f\n' | sort
