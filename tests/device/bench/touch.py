"""Fingers on the panel's touch screen."""


class Touch:
    """What the fingers do is a list of lines, sent at once, so that they keep the guest's time."""

    def __init__(self, guest, program, size):
        self._guest = guest
        guest.run("mkfifo commands answers; %s %d %d commands answers >/dev/null 2>touch.log &"
                  % ((program,) + size))
        self.device = guest.run("timeout 20 head -n 1 answers").strip()

    def do(self, *lines):
        """Does it, and gives the answers."""
        self.begin(*lines)
        return self.finish()

    def begin(self, *lines):
        """Does it while other things are done."""
        self._guest.run("printf '%s\\n' >commands" % "\\n".join(lines + ("done",)))

    def finish(self):
        """Waits until what was begun is done, and gives the answers."""
        answers = self._guest.run("timeout 60 head -n 1 answers").split()
        assert answers[-1:] == ["done"], "the touch screen does not answer"
        return answers[:-1]

    def tap(self, point, hold=60):
        """One finger, down for hold ms."""
        self.do(*tap(point, hold))

    def drag(self, start, end, steps=8):
        """One finger, from one point to another one."""
        lines = ["down 0 %d %d" % start, "sync", "wait 60"]
        for step in range(1, steps + 1):
            x, y = (a + (b - a) * step // steps for a, b in zip(start, end))
            lines += ["move 0 %d %d" % (x, y), "sync", "wait 20"]
        self.do(*lines, "up 0", "sync")


def tap(point, hold=60, slot=0):
    return ["down %d %d %d" % (slot, *point), "sync", "wait %d" % hold, "up %d" % slot, "sync"]
