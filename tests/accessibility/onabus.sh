#!/usr/bin/env bash
# onabus.sh PROGRAM [ARGUMENT...]: runs PROGRAM on a session bus of its own with the accessibility
# bus beside it, as a desktop has it.
set -euo pipefail
if [ "${1:-}" != --inside ]; then
    XDG_RUNTIME_DIR=$(mktemp -d) # where the sockets of the buses are
    export XDG_RUNTIME_DIR
    trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
    dbus-run-session -- "$0" --inside "$@"
    exit
fi
shift
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
# Asking them starts the service of the bus, which Qt looks for when it starts itself, and the
# registry on that bus, which it tells of itself.
address=$(dbus-send --session --print-reply=literal --dest=org.a11y.Bus /org/a11y/bus \
    org.a11y.Bus.GetAddress)
dbus-send --bus="${address// /}" --print-reply --dest=org.a11y.atspi.Registry \
    /org/a11y/atspi/registry org.freedesktop.DBus.Peer.Ping >/dev/null
exec "$@"
