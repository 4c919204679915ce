#!/usr/bin/env bash
# onabus.sh [--x] PROGRAM [ARGUMENT...]: runs PROGRAM on a session bus of its own with the
# accessibility bus beside it, as a desktop has it; with --x on an X server of its own, too.
set -euo pipefail
if [ "${1:-}" = --inside ]; then
    shift
    export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
    # Asking them starts the service of the bus, which Qt looks for when it starts itself, and the
    # registry on that bus, which it tells of itself.
    address=$(dbus-send --session --print-reply=literal --dest=org.a11y.Bus /org/a11y/bus \
        org.a11y.Bus.GetAddress)
    dbus-send --bus="${address// /}" --print-reply --dest=org.a11y.atspi.Registry \
        /org/a11y/atspi/registry org.freedesktop.DBus.Peer.Ping >/dev/null
    # A root window that names the bus is what Qt 5 needs: the address that it asks the service for
    # may come after it has spoken to the registry, once and in vain.
    if [ -n "${ON_A_BUS_X:-}" ] && ! xprop -root AT_SPI_BUS | grep -q unix:; then
        echo "onabus.sh: the root window does not name the accessibility bus" >&2
        exit 1
    fi
    exec "$@"
fi

folder=$(mktemp -d)
server=
end() {
    if [ -n "$server" ]; then kill "$server"; fi
    rm -rf "$folder"
}
trap end EXIT
export XDG_RUNTIME_DIR=$folder # where the sockets of the buses are
if [ "${1:-}" = --x ]; then
    shift
    mkfifo "$folder/display"
    # Without -noreset it forgets its root window's properties when its last client has gone.
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$folder/display" 2>/dev/null &
    server=$!
    read -r display <"$folder/display"
    export DISPLAY=:$display ON_A_BUS_X=1 QT_QPA_PLATFORM=xcb QT_XCB_GL_INTEGRATION=none
fi
# The bus and its services are born with the display.
dbus-run-session -- "$0" --inside "$@"
