#!/usr/bin/env bash
# Installs what is missing, builds the library and the gallery, and runs it. Arguments go to the
# gallery, which says what to do where there is no display; with none, it writes a picture of each
# of its screens to build/shots there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/packages.sh

build=build/gallery
# shellcheck disable=SC2046
cwidget_install $(cwidget_build_packages 5) $(cwidget_run_packages 5)

log=$build/build.log
mkdir -p "$build"
if ! { cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
    -DCWIDGET_BUILD_DESIGNER=OFF &&
    cmake --build "$build"; } >"$log" 2>&1; then
    tail -n 40 "$log" >&2
    echo "The build failed; all of its output is in $log" >&2
    exit 1
fi

export FONTCONFIG_FILE=$PWD/resources/fonts.conf
gallery=$build/examples/gallery/quorlin-gallery
if [ $# -eq 0 ] && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "There is no display, so the gallery draws its screens into pictures."
    exec "$gallery" --platform offscreen --shots build/shots
fi
exec "$gallery" "$@"
