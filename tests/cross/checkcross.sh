#!/usr/bin/env bash
# checkcross.sh SOURCE [--only TARGET | CTEST-ARGUMENT...]
#
# Builds everything for arm64 with the cross compiler, and runs the tests on an emulated processor, in
# a system that is kept in SOURCE/build/arm64; or builds one target, and runs nothing. Where no such
# system can be made, the reason is printed.
set -euo pipefail
source=$1
shift
here=$source/tests/cross
kept=$source/build/arm64
system=$kept/root
archives=$kept/archives
source "$source/tools/system.sh"

# What runs on the build machine: the compiler, Qt's tools come with Qt, the emulator, and what tests
# start.
packages=(cmake ninja-build g++-aarch64-linux-gnu pkg-config qemu-user-static
          fontconfig fonts-liberation fonts-dejavu-core fonts-wqy-microhei
          dbus-daemon dbus-bin at-spi2-core python3-pyatspi
          xvfb openbox xdotool x11-utils usbutils util-linux)
# What is built for the device's processor.
packages+=(qtbase5-dev:arm64 libqt5gui5:arm64 qttools5-dev:arm64)

# finish FOLDER: what makes a fresh system one that builds for arm64.
finish() {
    cwidget_in_namespaces "$source/tools/entersystem.sh" --with "$here" "$1" "$archives" \
        "$here/prepare.sh" "${packages[@]}"
}

# With other packages it is made anew.
mkdir -p "$kept"
if [ "$(cat "$kept/packages" 2>/dev/null)" != "${packages[*]}" ]; then
    rm -rf --one-file-system "$system"
fi
[ -d "$system" ] || echo "Making a system for arm64 in $system"
if ! reason=$(cwidget_make_system "$system" "$archives" finish); then
    echo "Nothing is built for arm64, which needs a Debian system of its own: $reason" >&2
    exit 2
fi
echo "${packages[*]}" >"$kept/packages"

cwidget_in_namespaces "$source/tools/entersystem.sh" --with "$source" "$system" "$archives" \
    "$here/insystem.sh" "$source" "$kept/tests" "$@"
