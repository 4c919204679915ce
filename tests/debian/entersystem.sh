#!/usr/bin/env bash
# entersystem.sh SYSTEM ARCHIVES STAGE SOURCE
#
# Runs in namespaces of its own: lays a layer for changes over SYSTEM and goes there. The packages
# that apt fetches stay in ARCHIVES.
set -euo pipefail
system=$1 archives=$2 stage=$3 source=$4
root=$stage/root

mkdir "$stage/changes" "$stage/work" "$root"
mount -t overlay overlay -o "lowerdir=$system,upperdir=$stage/changes,workdir=$stage/work" "$root" \
    2>/dev/null || cp -a "$system/." "$root"
mkdir "$root/test"
cp "$source"/build/packages/*.deb "$root/test"
rm -f "$root"/test/*-dbgsym_*.deb
cp -r "$source/tests/package/consumer" "$source"/tests/debian/{insystem,traces}.sh "$root/test"
exec "$source/tools/entersystem.sh" "$root" "$archives" bash /test/insystem.sh
