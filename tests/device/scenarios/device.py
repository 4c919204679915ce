"""The example device, started as its systemd unit says, by a user without privileges."""

import shlex

from bench.panel import wait_until
from scenarios.keypad import DELETE_ALL, Keypad
from scenarios.measuring import wake_ups

STATE = "/var/lib/appliance"
USER = "nobody"


def unit(session):
    """What the unit sets in [Service], by name; what comes several times, in one list."""
    settings = {}
    text = (session.settings.source / "examples/appliance/appliance.service").read_text()
    for line in text.splitlines():
        name, equals, value = line.partition("=")
        if equals and not line.startswith("#"):
            settings.setdefault(name, []).append(value)
    return settings


def start(session):
    """Does what systemd makes of the unit. What the unit calls installed is in the build folder."""
    settings = unit(session)
    assert settings["StateDirectory"] == ["appliance"] and settings["User"] == ["panel"]
    program, *arguments = shlex.split(settings["ExecStart"][0])
    assert program == "/opt/panel/bin/appliance"
    program = str(session.settings.build / "examples/appliance/appliance")
    installed = "/opt/panel/share/quorlin-cwidget/widget-style.xml"
    style = str(session.settings.style)
    arguments = [style if word == installed else word for word in arguments]
    assert style in arguments, arguments
    groups = ",".join(settings["SupplementaryGroups"][0].split())
    session.guest.run("mkdir -p %s && chown %s %s ." % (STATE, USER, STATE))
    session.panel.start(program, *arguments, prefix=" ".join(
        settings["Environment"] + ["/usr/bin/setpriv --reuid=%s --regid=nogroup --groups=%s "
                                   "--no-new-privs --inh-caps=-all" % (USER, groups)]))


def kept(session):
    return session.guest.run("cat %s/settings.ini" % STATE)


def turn_page(session):
    """Touches the arrow of the bar below the pages."""
    arrows = session.panel.widgets(parent="CPageBar")
    session.touch.tap(max(arrows, key=lambda arrow: (arrow.y, arrow.x)).center)


def choose(session, setting, entry):
    panel = session.panel
    session.touch.tap(panel.widget(**{"class": "CComboBox", "within": setting}).center)
    session.touch.tap(panel.widget(**{"class": "CPageListWidgetItem", "text": entry}).center)


def enter(session, setting, keys):
    panel = session.panel
    session.touch.tap(panel.widget(**{"class": "CLineEdit", "within": setting}).center)
    keypad = Keypad(panel)
    keypad.type([DELETE_ALL] + keys)
    keypad.apply()


def whole_device(session):
    """The example device as nobody: settings, a recipe, a dose, the service page; all is kept."""
    panel = session.panel
    panel.stop()
    start(session)
    session.keep_picture("appliance-network")
    address = {"class": "CLineEdit", "within": "network/address"}
    assert not panel.widget(**address).enabled
    choose(session, "network/mode", "Static")
    wait_until(lambda: panel.widget(**address).enabled, "the address stays locked")
    enter(session, "network/address", ["1", "0", ".", "0", ".", "0", ".", "7"])
    panel.tap(**{"class": "CCheckBox", "within": "service/shown"})
    panel.widget(name="report", text="Kept: service/shown is 1")
    turn_page(session)
    panel.widget(name="run")
    enter(session, "measurement/target", ["1", "0"])
    enter(session, "measurement/rate", ["1", "0"])
    session.keep_picture("appliance-measurement")
    panel.tap(name="run")
    panel.widget(name="report", text="Kept: service/doses is 1")
    turn_page(session)
    panel.widget(name="service/doses")
    session.keep_picture("appliance-service")
    turn_page(session)
    panel.widget(name="recipes")
    recipe = panel.widgets(**{"class": "CPageListWidgetItem"})[2]
    session.touch.tap(recipe.center)
    panel.widget(name="report", text="Kept: recipe/name is " + recipe.text)
    session.keep_picture("appliance-recipes")
    before = kept(session)
    for line in ("mode=Static", "address=10.0.0.7", "shown=1", "target=10", "doses=1",
                 "name=" + recipe.text):
        assert line in before.splitlines(), before
    session.guest.run("kill -9 $(cat pid)")
    wait_until(lambda: not panel.is_running(), "it does not end")
    start(session)
    assert panel.widget(**address).text == "10.0.0.7" and panel.widget(**address).enabled
    assert kept(session) == before


def device_is_told(session):
    """A lamp lights up for a keyboard, and nothing at all happens while nothing does."""
    panel = session.panel
    panel.stop()
    start(session)
    lamp = panel.widget(name="lamp-Keyboard")

    def shown():
        return panel.picture().part(*lamp.rect).pixels

    dark = shown()
    session.machine.plug("usb-kbd", "keyboard")
    wait_until(lambda: shown() != dark, "the lamp stays dark")
    session.machine.pull("keyboard")
    wait_until(lambda: shown() == dark, "the lamp stays lit")
    ticks, woken, seconds = wake_ups(session)
    session.measure("the example device, idle", "%.1f ms of CPU and %d wake-ups in %.1f s" % (
        ticks * 10, sum(woken), seconds))
    assert sum(woken) == 0 and ticks == 0, "it does something: %s" % woken
    panel.stop()
    session.guest.run("chown root .")
    session.start_gallery()
