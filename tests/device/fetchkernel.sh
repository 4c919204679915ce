#!/usr/bin/env bash
# fetchkernel.sh FOLDER: fetches Debian's current kernel package for the architecture of apt, and
# unpacks it into FOLDER without installing it: FOLDER/vmlinuz and FOLDER/lib/modules. Quick when it
# is there already.
set -euo pipefail
folder=$(mkdir -p "$1" && cd "$1" && pwd)

architecture=$(apt-config dump --format '%v%n' APT::Architecture)
package=$(apt-cache depends "linux-image-$architecture" |
    awk '$1 == "Depends:" { print $2; exit }')
[ -n "$package" ] || { echo "apt knows no kernel package" >&2; exit 1; }
version=$(apt-cache policy "$package" | awk '$1 == "Candidate:" { print $2 }')
if [ "$(cat "$folder/unpacked" 2>/dev/null)" = "$package $version" ]; then exit; fi

rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
apt-get download -qq "$package=$version"
# Of the modules, only the kinds that a panel's computer could use.
dpkg-deb --fsys-tarfile "$package"_*.deb |
    tar -x --wildcards --exclude='*/drivers/net/*' --exclude='*/drivers/media/*' \
        --exclude='*/sound/*' --exclude='*/drm/amd/*' --exclude='*/drm/i915/*' \
        --exclude='*/drm/nouveau/*' --exclude='*/drm/radeon/*' './boot/vmlinuz-*' './lib/modules/*'
mv boot/vmlinuz-* vmlinuz
rm -rf boot "$package"_*.deb
PATH=$PATH:/usr/sbin:/sbin depmod -b "$folder" "$(ls lib/modules)"
echo "$package $version" >unpacked
