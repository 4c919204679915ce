#!/usr/bin/env bash
# Draws the pictures of README.md and the guide anew: screens of the gallery, and the sheet of all
# pictures. Run it after a change of the artwork or of the gallery's screens.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/packages.sh

# shellcheck disable=SC2046
cwidget_install $(cwidget_build_packages 5) $(cwidget_run_packages 5)
build=build/gallery
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
cmake --build "$build" --target quorlin-gallery translations artwork >/dev/null

export FONTCONFIG_FILE=$PWD/resources/fonts.conf QT_QPA_PLATFORM=offscreen
shots=$(mktemp -d)
trap 'rm -rf "$shots"' EXIT
"$build/examples/gallery/quorlin-gallery" --shots "$shots" >/dev/null 2>&1
"$build/resources/artwork/artwork" "$shots/pictures" --contact-sheet docs/images/contact-sheet.png >/dev/null

# The picture of each page, and the screen that it is.
while read -r picture screen; do
    cp "$shots/$screen.png" "docs/images/$picture.png"
    echo "docs/images/$picture.png"
done <<END
gallery         controls
keypad-general  keypad-general
list-open       list-open
parameters      parameters
devices         devices
theme           theme
END
