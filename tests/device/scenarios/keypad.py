"""A keypad under the fingers."""

from bench.panel import wait_until
from bench.touch import tap

APPLY = 0x200000A
DELETE_ALL = 0x200000C

KEYPAD = {"class": "CSoftKeyPad"}
ENTRY = {"class": "CKeyPadEdit"}


class Keypad:
    """One that is open; its keys stay where they are."""

    def __init__(self, panel):
        self._panel = panel
        panel.widget(**KEYPAD)
        self._keys = panel.widgets(**{"class": "CKeyButton"})

    def key(self, wanted):
        """Where a key is, by its code or by its text."""
        kind = "key" if isinstance(wanted, int) else "text"
        found = [key for key in self._keys if getattr(key, kind) == wanted]
        assert found, "the keypad has no key %r" % wanted
        return found[0].center

    def type(self, keys):
        """Touches one key after the other, at a fast typist's pace."""
        lines = []
        for wanted in keys:
            lines += tap(self.key(wanted), 50) + ["wait 70"]
        self._panel.touch.do(*lines)

    def text(self):
        return self._panel.widget(**ENTRY).text

    def expect(self, text):
        wait_until(lambda: self.text() == text,
                   lambda: "the keypad's entry is '%s', not '%s'" % (self.text(), text), 20)

    def apply(self):
        self._panel.touch.tap(self.key(APPLY))
        self._panel.wait_gone(**KEYPAD)


def open_keypad(panel, field):
    panel.tap(name=field)
    return Keypad(panel)
