#!/usr/bin/env bash
# Starts Qt Designer with the plugin and a form of the examples on an X server of its own, and writes
# a picture of its window for the guide.
#
#   tools/designer-shot.sh [PICTURE]    docs/images/designer.png by default
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/packages.sh
picture=$(realpath -m "${1:-docs/images/designer.png}")
# shellcheck disable=SC2046
cwidget_install $(cwidget_build_packages 5) $(cwidget_run_packages 5) \
    $(cwidget_designer_packages 5) xvfb openbox xdotool x11-apps netpbm

build=build/designer
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
    -DCWIDGET_BUILD_EXAMPLES=OFF -DCWIDGET_BUILD_DESIGNER=ON >/dev/null
cmake --build "$build" --target cwidget_designer >/dev/null

home=$(mktemp -d)
started=()
cleanup() {
    for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done
    wait
    rm -rf "$home"
}
trap cleanup EXIT

mkfifo "$home/display"
Xvfb -displayfd 3 -screen 0 1400x900x24 -nolisten tcp 3>"$home/display" 2>/dev/null &
started+=($!)
read -r display <"$home/display"
export DISPLAY=:$display HOME=$home XDG_CONFIG_HOME=$home XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=xcb
export FONTCONFIG_FILE=$PWD/resources/fonts.conf QT_XCB_GL_INTEGRATION=none LC_ALL=C.UTF-8
export QUORLIN_CWIDGET_STYLE=$PWD/style/widget-style.xml QT_PLUGIN_PATH=$PWD/$build/plugins
openbox --sm-disable 2>/dev/null &
started+=($!)

# One window, large enough for all of its docks.
mkdir -p "$home/QtProject"
printf '[Designer]\nUI\\currentMode=1\n' >"$home/QtProject/Designer.conf"
/usr/lib/qt5/bin/designer examples/designed-panel/designedpanel.ui &
started+=($!)
window=$(xdotool search --sync --onlyvisible --name 'Designer' | tail -n 1)
xdotool windowmove --sync "$window" 0 0 windowsize --sync "$window" 1400 880
sleep 3 # Designer lays its docks out in several steps
# The library's group at the end of the widget box, and the properties of a button of the form.
xdotool mousemove 120 500 click --repeat 60 --delay 20 5
xdotool mousemove 357 304 click 1
sleep 4
xdotool mousemove 1120 500 click --repeat 80 --delay 20 5
sleep 4
xwd -silent -id "$window" -out "$home/window.xwd"
xwdtopnm "$home/window.xwd" 2>/dev/null | pnmtopng -compression=9 >"$home/window.png" 2>/dev/null
mv "$home/window.png" "$picture"
echo "$picture"
