"""Fingers: what the panel shows, and what it makes of touches."""

import time

from bench.panel import wait_until
from bench.touch import tap
from scenarios.keypad import DELETE_ALL, Keypad, open_keypad

# Keypad by keypad: the gallery's picture, the keys, and what is entered.
KEYPADS = (
    # field          shot               keys                                       entered
    ("General",     "keypad-general", ["Shift", "h", "e", "y", "SPACE", "Symbol", "q"], "Hey !"),
    ("Hexadecimal", "keypad-hex",     ["1", "F", "-", "A"],                        "1FA"),
    ("Binary",      "keypad-binary",  ["1", "0", "2", "1"],                        "101"),
    ("Decimal",     "keypad-decimal", ["4", "2", "+/-"],                           "-42"),
    ("Floating",    "keypad-float",   ["3", ".", "5"],                             "3.5"),
)  # fmt: skip


def every_screen(session):
    """Each screen of the menu equals the gallery's own picture of it, in every pixel."""
    menu = [widget.name for widget in session.panel.widgets() if widget.name.startswith("menu-")]
    assert len(menu) >= 8, "the menu is %s" % menu
    for name in sorted(menu):
        screen = name.partition("-")[2]
        session.show_screen(screen)
        session.expect_shot(screen)


def every_keypad(session):
    """A touched field opens its keypad; what is typed arrives with Apply."""
    for field, shot, keys, entered in KEYPADS:
        session.show_screen("entry")
        keypad = open_keypad(session.panel, "entry-" + field)
        session.expect_shot(shot)
        keypad.type([DELETE_ALL] + keys)
        keypad.expect(entered)
        session.keep_picture(shot + "-typed")
        keypad.apply()
        session.panel.next_line("Entered: " + entered)
        assert session.panel.widget(name="entry-" + field).text == entered


def range_is_kept(session):
    """A value beyond the range becomes the bound, and only the next Apply takes it."""
    session.show_screen("entry")
    keypad = open_keypad(session.panel, "range-Decimal")
    keypad.type([DELETE_ALL, "9", "8", "7"])
    keypad.expect("987")
    session.touch.tap(keypad.key("Apply"))
    keypad.expect("120")
    keypad.apply()
    session.panel.next_line("Entered: 120")


def two_fingers(session):
    """Of two fingers only one types, the one that came first; neither gets stuck."""
    keypad = new_decimal(session)
    first, second = keypad.key("1"), keypad.key("5")
    session.touch.do("down 0 %d %d" % first, "down 1 %d %d" % second, "sync", "wait 80",
                     "up 1", "sync", "wait 40", "up 0", "sync")
    wait_until(lambda: keypad.text() in ("1", "5"), "neither finger types, or both do")
    keypad.type([DELETE_ALL])
    session.touch.do("down 0 %d %d" % first, "sync", "wait 60", "down 1 %d %d" % second, "sync",
                     "wait 60", "up 0", "sync", "wait 60", "up 1", "sync")
    keypad.expect("1")
    keypad.type(["5"])
    keypad.expect("15")
    keypad.apply()


def slides_off(session):
    """A finger that slides from one key to another types the first; off a button, nothing."""
    keypad = new_decimal(session)
    session.touch.drag(keypad.key("1"), keypad.key("9"))
    keypad.expect("1")
    keypad.type(["2"])
    keypad.expect("12")
    keypad.apply()
    button = session.panel.widget(name="menu-lists")
    session.touch.drag(button.center, (button.x + 400, button.y + 8))
    time.sleep(0.5)
    assert session.panel.has(name="entry-Decimal"), "the screen has changed"


def quick_and_long(session):
    """Two quick touches of a key are two digits; a long one is one."""
    keypad = new_decimal(session)
    point = keypad.key("7")
    session.touch.do(*tap(point, 30), "wait 40", *tap(point, 30))
    keypad.expect("77")
    session.touch.tap(keypad.key("8"), hold=2500)
    keypad.expect("778")
    keypad.apply()


def new_decimal(session):
    """An empty decimal keypad."""
    session.show_screen("entry")
    keypad = open_keypad(session.panel, "entry-Decimal")
    keypad.type([DELETE_ALL])
    keypad.expect("")
    return keypad


def list_is_paged(session):
    """The open list is the gallery's own picture; its arrow turns the page, a row is chosen."""
    session.show_screen("lists")
    panel = session.panel
    before = panel.widget(name="recipes").text
    panel.tap(name="recipes")
    session.expect_shot("list-open")
    rows = {"class": "CPageListWidgetItem"}
    shown = [row.text for row in panel.widgets(**rows)]
    arrows = sorted(panel.widgets(parent="CPageBar"), key=lambda arrow: arrow.x)
    session.touch.tap(arrows[-1].center)
    turned = panel.widgets(**rows)
    assert turned and turned[0].text not in shown, "the page is still that of %s" % shown
    session.keep_picture("list-paged")
    chosen = turned[1]
    session.touch.tap(chosen.center)
    panel.next_line("Chosen: " + chosen.text)
    assert chosen.text != before and panel.widget(name="recipes").text == chosen.text


def parameter_is_changed(session):
    """A parameter's value is touched, typed anew, and told; a choice is made from its list."""
    session.show_screen("parameters")
    panel = session.panel
    field = panel.widget(**{"class": "CLineEdit", "within": "Port"})
    session.touch.tap(field.center)
    keypad = Keypad(panel)
    keypad.type([DELETE_ALL, "9", "0", "9", "0"])
    keypad.apply()
    panel.next_line("Port: 9090")
    session.touch.tap(panel.widget(**{"class": "CComboBox", "within": "Mode"}).center)
    session.touch.tap(panel.widget(**{"class": "CPageListWidgetItem", "text": "Off"}).center)
    panel.next_line("Mode: entry 2")
    session.keep_picture("parameters-changed")
