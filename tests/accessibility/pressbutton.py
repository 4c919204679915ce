#!/usr/bin/python3
"""Presses a button of the gallery as a screen reader or a test robot does: through AT-SPI.

usage: pressbutton.py GALLERY     with a display and an accessibility bus, as onabus.sh gives them

A button and an entry of the menu are found by their
names, and what comes of pressing them is looked up in the tree of accessible objects again.
"""

import subprocess
import sys
import time

TIMEOUT = 30  # seconds


def hear_events():
    """Lets the client's cache follow what the programs on the bus tell."""
    from gi.repository import GLib
    while GLib.MainContext.default().iteration(False):
        pass


def wait_for(what, look):
    """The first result of look() that is not None; fails when there is none in time."""
    end = time.monotonic() + TIMEOUT
    while time.monotonic() < end:
        try:
            found = look()
        except Exception:  # the tree changes while it is walked
            found = None
        if found is not None:
            return found
        hear_events()
        time.sleep(0.1)
    sys.exit("%s: not within %d seconds" % (what, TIMEOUT))


def find(root, name, role):
    """The visible object called name below root, or None."""
    import pyatspi

    def fits(accessible):
        return (accessible.name == name and accessible.getRoleName() == role and
                accessible.getState().contains(pyatspi.STATE_SHOWING))
    root.clear_cache()
    return pyatspi.findDescendant(root, fits, breadth_first=True)


def press(accessible, wanted):
    """Does the action called wanted."""
    action = accessible.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    if not action.doAction(names.index(wanted)):
        sys.exit("%s does not take its action %s" % (accessible.name, wanted))


def run(gallery):
    import pyatspi

    def application():
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        for child in desktop:
            if child is not None and child.get_process_id() == gallery.pid:
                return child
        return None

    root = wait_for("the gallery on the bus", application)
    button = wait_for("a button", lambda: find(root, "Start", "push button"))
    press(button, "Press")
    wait_for("what the button does",
             lambda: find(root, "Start pressed, click 1", "label"))
    menu = wait_for("an entry of the menu", lambda: find(root, "Text entry", "push button"))
    press(menu, "Press")
    wait_for("the title of its screen", lambda: find(root, "Text entry", "label"))
    print("ok")


def main():
    gallery = subprocess.Popen([sys.argv[1]])
    try:
        run(gallery)
    finally:
        gallery.terminate()
        gallery.wait()


if __name__ == "__main__":
    main()
