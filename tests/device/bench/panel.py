"""A program on the panel: started and ended, looked at, touched."""

import json
import time

from bench.picture import difference, read_ppm

PATIENCE = 60  # s
PAUSE = 0.1


class NotSeen(Exception):
    """What was waited for did not come."""


def wait_until(condition, what, patience=PATIENCE):
    """Waits until the condition gives something, and gives that."""
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise NotSeen(what() if callable(what) else what)
        time.sleep(PAUSE)


class Widget:
    def __init__(self, description):
        self.name = self.text = self.parent = ""
        self.__dict__.update(description)
        self.description = description

    @property
    def rect(self):
        return self.x, self.y, self.width, self.height

    @property
    def center(self):
        return self.x + self.width // 2, self.y + self.height // 2

    def matches(self, wanted):
        return all(self.description.get(key) == value for key, value in wanted.items())


class Panel:
    """A program of the build folder, on the frame buffer."""

    def __init__(self, machine, touch, environment):
        self.machine = machine
        self.guest = machine.guest
        self.touch = touch
        self._environment = environment
        self._read = 0
        self._asked = 1000

    def start(self, program, *arguments, prefix=""):
        """Starts it, by the command prefix when one is given, and waits until it answers."""
        self._read = 0
        words = " ".join("'%s'" % word for word in (program,) + arguments)
        self.guest.run("rm -f ask; env %s %s %s >log 2>&1 & echo $! >pid" % (
            self._environment, prefix, words))
        wait_until(self._is_asked_or_gone, "the program does not start")
        wait_until(lambda: any(w.window for w in self.widgets()), "no window is shown")

    def _is_asked_or_gone(self):
        if not self.is_running():
            raise NotSeen("the program has ended:\n" + self.log())
        return self.guest.try_run("test -p ask")[0] == 0

    def is_running(self):
        return self.guest.try_run("kill -0 $(cat pid)")[0] == 0

    def stop(self):
        """Ends it as the system does."""
        self.guest.try_run("kill $(cat pid)")
        wait_until(lambda: not self.is_running(), "the program does not end")

    def log(self):
        return self.guest.run("cat log")

    def next_line(self, text):
        """Waits for the next line that it prints and that holds the text."""

        def search():
            lines = self.log().splitlines()
            for number in range(self._read, len(lines)):
                if text in lines[number]:
                    self._read = number + 1
                    return lines[number]
            return None

        return wait_until(search, lambda: "'%s' is not printed, but:\n%s" % (text, self.log()))

    def lines_so_far(self):
        """Those printed since the last one that was waited for."""
        return self.log().splitlines()[self._read :]

    def skip_lines(self):
        self._read = len(self.log().splitlines())

    # ---- what it shows

    def widgets(self, **wanted):
        self._asked += 1
        answer = self.guest.run("rm -f %d; echo %d >ask; timeout 30 sh -c 'until test -f %d; do "
                                "sleep 0.02; done' && cat %d" % ((self._asked,) * 4))
        found = [Widget(description) for description in json.loads(answer)]
        return [widget for widget in found if widget.matches(wanted)]

    def has(self, **wanted):
        return bool(self.widgets(**wanted))

    def widget(self, **wanted):
        """Waits for a widget that is like that."""

        def search():
            return self.widgets(**wanted)

        return wait_until(search, "there is no widget with %s" % wanted)[0]

    def wait_gone(self, **wanted):
        wait_until(lambda: not self.has(**wanted), "there is still a widget with %s" % wanted)

    def picture(self):
        path = self.machine.log_folder / "screen.ppm"
        self.machine.dump(path)
        picture = read_ppm(path)
        path.unlink()
        return picture

    def wait_for_picture(self, expected, ignored=(), name=None):
        """Waits until the screen shows it, but for the ignored rects."""
        wanted = expected.without(ignored)
        shown = []

        def compare():
            shown[:] = [self.picture()]
            part = shown[0].part(0, 0, *(
                min(shown[0].width, wanted.width), min(shown[0].height, wanted.height)))
            return part.without(ignored).pixels == wanted.pixels

        try:
            wait_until(compare, lambda: difference(shown[0].without(ignored), wanted), 15)
        finally:
            if name:
                shown[0].write(self.machine.log_folder / (name + ".png"))

    # ---- what a finger does

    def tap(self, **wanted):
        widget = self.widget(**wanted)
        self.touch.tap(widget.center)
        return widget
