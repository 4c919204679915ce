#!/usr/bin/env bash
# Installs what is missing, builds the library and the gallery, and runs it. Arguments go to the
# gallery, which says what to do where there is no display; with none, it writes a picture of each
# of its screens to build/shots there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/packages.sh
source tools/build.sh

build=build/gallery
# shellcheck disable=SC2046
cwidget_install $(cwidget_build_packages 5) $(cwidget_run_packages 5)

cwidget_build "$build" "" -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
    -DCWIDGET_BUILD_DESIGNER=OFF

export FONTCONFIG_FILE=$PWD/resources/fonts.conf
gallery=$build/examples/gallery/quorlin-gallery
if [ $# -eq 0 ] && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "There is no display, so the gallery draws its screens into pictures."
    "$gallery" --platform offscreen --shots build/shots
    echo "The pictures are in build/shots."
else
    "$gallery" "$@"
    echo "The gallery has ended."
fi
