"""Keyboards, mice and storage that come and go, for real, and the kernel's word for it."""

import time

from bench.panel import wait_until
from scenarios.keypad import DELETE_ALL, KEYPAD, open_keypad

KINDS = ("Keyboard", "Mouse", "USB storage")
STORM = 1500


def registry(session):
    """What the devices screen says of each kind: whether it is attached."""
    if not session.panel.has(text="Keyboard"):
        session.show_screen("devices")
    session.panel.widget(text="USB storage")
    labels = session.panel.widgets(**{"class": "CLabel"})
    rows = {label.text: label for label in labels if label.text in KINDS}
    states = [label for label in labels if label.text in ("attached", "not attached")]
    result = []
    for kind in KINDS:
        row = rows[kind]
        state = min(states, key=lambda label: abs(label.center[1] - row.center[1]))
        result.append(state.text == "attached")
    return tuple(result)


def expect_registry(session, *wanted):
    wait_until(lambda: registry(session) == wanted,
               lambda: "attached are %s, not %s" % (registry(session), wanted))


def signs(session):
    """The pictures of the device signs in the title."""
    picture = session.panel.picture()
    found = sorted(session.panel.widgets(**{"class": "DeviceSign"}), key=lambda sign: sign.x)
    return [picture.part(*sign.rect).pixels for sign in found]


def plug_keyboard(session):
    """Plugs one, and waits until the kernel knows it: it never tells of one that is gone before."""
    session.machine.plug("usb-kbd", "keyboard")
    session.guest.run("timeout 30 sh -c 'until grep -q Keyboard /sys/class/input/*/name; do "
                      "sleep 0.02; done'")


def keyboard_comes_and_goes(session):
    """A plugged keyboard lights its sign and types into the field; without it, the keypad is back."""
    machine, panel = session.machine, session.panel
    session.show_screen("entry")
    dark = signs(session)
    machine.plug("usb-kbd", "keyboard")
    changed = lambda: [a != b for a, b in zip(dark, signs(session))]  # noqa: E731
    wait_until(lambda: any(changed()), "no sign lights up")
    assert sum(changed()) == 1, "signs that changed: %s" % changed()
    session.keep_picture("keyboard-plugged")
    field = panel.tap(name="entry-Decimal")
    time.sleep(1)
    assert not panel.has(**KEYPAD), "the keypad opens all the same"
    for key in ("end", "backspace", "7", "8"):
        machine.press_key(key)
    wanted = field.text[:-1] + "78"
    wait_until(lambda: panel.widget(name=field.name).text == wanted,
               lambda: "the field says '%s'" % panel.widget(name=field.name).text, 20)
    session.keep_picture("keyboard-typed")
    machine.pull("keyboard")
    wait_until(lambda: not any(changed()), "the sign stays lit")
    keypad = open_keypad(panel, "entry-Decimal")
    keypad.type([DELETE_ALL, "4", "2"])
    keypad.expect("42")
    keypad.apply()


def found_at_the_start(session):
    """What is plugged before the program starts is found by the real lsusb."""
    expect_registry(session, True, True, True)
    session.keep_picture("found-at-the-start")
    session.show_screen("entry")
    session.panel.tap(name="entry-Decimal")
    time.sleep(1)
    assert not session.panel.has(**KEYPAD), "the keypad opens all the same"


def mouse_and_storage_stay_noted(session):
    """Pulled later, mouse and storage stay noted as they were; plugged later, they are not noted."""
    machine = session.machine
    session.show_screen("devices")
    machine.pull("keyboard")
    machine.pull("mouse")
    machine.pull_storage("storage")
    expect_registry(session, False, True, True)
    session.panel.stop()
    session.start_gallery("--screen", "devices")
    expect_registry(session, False, False, False)
    machine.plug("usb-mouse", "mouse")
    machine.plug_storage("storage")
    machine.plug("usb-kbd", "keyboard")  # what comes last is noted: the others came before
    expect_registry(session, True, False, False)
    session.keep_picture("plugged-later")
    machine.pull("mouse")
    machine.pull_storage("storage")
    machine.pull("keyboard")
    expect_registry(session, False, False, False)


def resources(session):
    """The files that the program has open, and its threads."""
    counts = session.guest.run("for of in fd task; do "
                               "ls /proc/$(cat pid)/$of 2>/dev/null | wc -l; done")
    return [int(count) for count in counts.split()]


def is_quiet(session):
    """Whether the devices screen is told of nothing for a moment."""

    def texts():
        return [label.text for label in session.panel.widgets(**{"class": "CLabel"})]

    before = texts()
    time.sleep(0.5)
    return texts() == before


def twenty_plugs(session):
    """Twenty keyboards one after the other: the last word counts, and nothing is left behind."""
    machine = session.machine
    session.show_screen("devices")
    before = resources(session)
    for _ in range(20):
        plug_keyboard(session)
        machine.pull("keyboard")
    wait_until(lambda: is_quiet(session), "the notifications do not end")
    machine.plug("usb-kbd", "keyboard")
    expect_registry(session, True, False, False)
    machine.pull("keyboard")
    expect_registry(session, False, False, False)
    wait_until(lambda: resources(session) == before,
               lambda: "open files and threads: %s, before %s" % (resources(session), before), 20)


def storm_under_a_keypad(session):
    """The kernel's storm while a keypad is open: it types on, and the registry is right after it."""
    session.show_screen("entry")
    guest = session.guest
    keypad = open_keypad(session.panel, "entry-Decimal")
    keypad.type([DELETE_ALL])
    guest.run("udevadm control --exit")
    guest.run("(i=0; while [ $i -lt %d ]; do echo add >uevent; echo remove >uevent; i=$((i + 2)); "
              "done; echo >/run/bench/stormed) >/dev/null 2>&1 &".replace(
                  ">uevent", ">/sys/class/mem/null/uevent") % STORM)
    keypad.type(["1", "2", "3"])
    keypad.expect("123")
    still = guest.try_run("test -e stormed")[0] != 0
    guest.run("timeout 60 sh -c 'until test -e stormed; do sleep 0.1; done'; rm stormed")
    keypad.type(["4", "5"])
    keypad.expect("12345")
    keypad.apply()
    session.panel.next_line("Entered: 12345")
    guest.run("/lib/systemd/systemd-udevd --daemon")
    session.machine.plug("usb-kbd", "keyboard")
    expect_registry(session, True, False, False)
    session.machine.pull("keyboard")
    expect_registry(session, False, False, False)
    session.measure("notifications while a keypad was typed on",
                    "%d%s" % (STORM, "" if still else ", over before the typing was"))


def nobody_forges(session):
    """The kernel refuses an unprivileged process that plays the kernel; root's word would count."""
    guest = session.guest
    expect_registry(session, False, False, False)
    forge = "%s $(cat pid)" % (session.settings.programs / "forge")
    said = guest.run("/usr/bin/setpriv --reuid=nobody --regid=nogroup --clear-groups " + forge)
    refused = ["process: Operation not permitted", "group: Operation not permitted"]
    assert said.splitlines() == refused, said
    assert registry(session) == (False, False, False)
    assert "sent" in guest.run(forge)
    expect_registry(session, True, False, False)  # so the forgery itself was a good one
    session.keep_picture("forged-by-root")
    plug_keyboard(session)
    session.machine.pull("keyboard")
    expect_registry(session, False, False, False)
