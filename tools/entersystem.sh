#!/usr/bin/env bash
# entersystem.sh SYSTEM ARCHIVES COMMAND...
#
# Runs COMMAND in the system, in namespaces of its own as cwidget_in_namespaces makes them. The packages
# that apt fetches stay in ARCHIVES.
set -euo pipefail
system=$1 archives=$2
shift 2

cp /etc/resolv.conf "$system/etc/resolv.conf"
mount --bind "$archives" "$system/var/cache/apt/archives"
mount -t proc proc "$system/proc"
mount --rbind /dev "$system/dev"
exec chroot "$system" env -i LC_ALL=C.UTF-8 HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin "$@"
