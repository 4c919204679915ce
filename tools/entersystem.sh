#!/usr/bin/env bash
# entersystem.sh [--with FOLDER] SYSTEM ARCHIVES COMMAND...
#
# Runs COMMAND in the system, in namespaces of its own as cwidget_in_namespaces makes them. The packages
# that apt fetches stay in ARCHIVES. With a FOLDER, this has the same place there as here, and what
# tests look at of the machine is there, too.
set -euo pipefail
shared=
if [ "$1" = --with ]; then
    shared=$2
    shift 2
fi
system=$1 archives=$2
shift 2

cp /etc/resolv.conf "$system/etc/resolv.conf"
# Its root is a mount point, as programs expect that mount something themselves.
mount --bind "$system" "$system"
mount --bind "$archives" "$system/var/cache/apt/archives"
mount -t proc proc "$system/proc"
mount --rbind /dev "$system/dev"
if [ -n "$shared" ]; then
    mount --rbind /sys "$system/sys"
    mount -t tmpfs -o mode=1777 tmpfs "$system/tmp"
    mkdir -p "$system$shared"
    mount --bind "$shared" "$system$shared"
fi
exec chroot "$system" env -i --chdir="${shared:-/}" ${TERM:+"TERM=$TERM"} LC_ALL=C.UTF-8 HOME=/root \
    PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"
