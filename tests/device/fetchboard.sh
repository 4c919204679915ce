#!/usr/bin/env bash
# fetchboard.sh SYSTEM FOLDER: fetches what a board for arm64 starts with, as the apt of SYSTEM has
# it: a kernel into FOLDER/kernel, and into FOLDER/root a system of packages with all that these
# depend on. They are unpacked and not installed, since nothing of them runs here: what installing
# them would do beyond that, and the bench needs, is done by set_up. Quick when all is there already.
set -euo pipefail
system=$(cd "$1" && pwd)
folder=$(mkdir -p "$2" && cd "$2" && pwd)
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

packages=(base-files base-passwd busybox-static coreutils dash grep udev usbutils util-linux
          libqt5gui5 libqt5widgets5 libqt5xml5 fontconfig fonts-liberation fonts-dejavu-core)

# An apt for arm64 that has nothing installed.
configure_apt() {
    mkdir -p "$folder/cache/archives/partial"
    : >"$folder/status"
    cat >"$folder/apt.conf" <<-END
	Dir "$system";
	Dir::State::status "$folder/status";
	Dir::Cache "$folder/cache";
	APT::Architecture "arm64";
	APT::Architectures { "arm64"; "amd64"; };
	APT::Sandbox::User "root";
	APT::Update::Error-Mode "any";
	END
    export APT_CONFIG=$folder/apt.conf
}

unpack() {
    local name package
    mkdir -p root/usr
    for name in bin lib sbin; do
        mkdir "root/usr/$name"
        ln -s "usr/$name" "root/$name"
    done
    for package in cache/archives/*.deb; do
        dpkg-deb --fsys-tarfile "$package" | tar -x --keep-directory-symlink -C root
    done
}

# Users and groups, how letters are drawn, and the words of lsusb.
set_up() {
    cp root/usr/share/base-passwd/passwd.master root/etc/passwd
    cp root/usr/share/base-passwd/group.master root/etc/group
    echo "input:x:101:" >>root/etc/group
    ln -s /usr/share/fontconfig/conf.avail/{10-hinting-slight,70-no-bitmaps}.conf \
        root/etc/fonts/conf.d
    systemd-hwdb --root="$folder/root" --usr update
}

if [ "$(cat "$folder/packages" 2>/dev/null)" = "${packages[*]}" ]; then exit; fi
rm -rf "$folder"
mkdir -p "$folder"
cd "$folder"
configure_apt
apt-get update -qq
"$here/fetchkernel.sh" "$folder/kernel"
apt-get install -y -qq --no-install-recommends --download-only "${packages[@]}" >/dev/null
unpack
set_up
rm -rf cache
echo "${packages[*]}" >packages
