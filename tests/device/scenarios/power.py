"""The power fails while the style file is rewritten."""

import shutil
import time

from bench.panel import NotSeen
from bench.powercut import after_each_write, read_file, writes

FAMILIES = ("Liberation Serif", "DejaVu Sans", "Liberation Mono", "DejaVu Serif")
FILE = "widget-style.xml"
CUTS = (1.0, 2.3)  # s after the first rewritten file
MOUNT = "mkdir -p /mnt && { mountpoint -q /mnt || mount -t ext4 /dev/vda /mnt; }"


def describe(content, families):
    """Which of the rewritten files it is, by its family; else what is wrong with it."""
    found = [family for family in families if ('family="%s"' % family).encode() in content]
    whole = content.rstrip().endswith(b"</widget-style>")
    if len(found) == 1 and whole:
        return found[0]
    return "empty" if not content else "damaged"


def restyle(session, pause, families=FAMILIES):
    """The command that rewrites the file on the disk for one family after the other."""
    return "QT_QPA_PLATFORM=offscreen %s /mnt/%s %d %s 2>/dev/null" % (
        session.settings.programs / "restyle", FILE, pause,
        " ".join("'%s'" % family for family in families))


def cut_while_rewriting(session):
    """Whenever it fails, the file is the old one or the new one, whole; and the new one once told."""
    guest, output = session.guest, session.output
    base, log = output / "disk.img.base", output / "disk.writes"
    guest.run(MOUNT)
    told = []
    for family in FAMILIES:
        said = guest.run(restyle(session, 0, [family]))
        assert said.strip() == family + " written", said
        told.append((sum(1 for _ in writes(log)), family))
    guest.run("sync")
    disk = output / "disk.img.cut"
    shutil.copyfile(base, disk)
    states = [describe(state, ("Arial",) + FAMILIES) for state in after_each_write(disk, log, FILE)]
    seen = []
    for state in states:
        if not seen or state != seen[-1]:
            seen.append(state)
    durable = sum(states[number - 1] == family for number, family in told)
    session.measure("power cuts while the style file is rewritten", "%d moments: %s" % (
        len(states), ", then ".join(seen)))
    session.measure("rewritten files that are there once told", "%d of %d" % (durable, len(told)))
    if seen != ["Arial"] + list(FAMILIES):
        raise NotSeen("the file goes through %s" % seen)
    assert durable == len(told), "what was told is not on the disk yet"


def cut_for_real(session):
    """The machine loses its power while it rewrites the file as fast as it can, and again."""
    machine, disk = session.machine, session.output / "disk.img"
    written = []
    machine.guest.run(MOUNT)
    for moment in CUTS:
        guest = machine.guest
        guest.run(restyle(session, 1) + " >restyled &")
        guest.run("timeout 60 sh -c 'until grep -q written restyled; do sleep 0.05; done'")
        time.sleep(moment)
        written.append(len(guest.run("cat restyled").splitlines()))
        machine.cut_power()
        left = describe(read_file(disk, FILE), FAMILIES)  # what a repair of the file system leaves
        machine.switch_on()
        machine.guest.run(MOUNT)  # what the kernel makes of it by itself
        found = machine.guest.run("cat /mnt/" + FILE).encode()
        assert left == describe(found, FAMILIES) and left in FAMILIES, left
        said = machine.guest.run(restyle(session, 0))
        assert said.count(" written") == len(FAMILIES), said
    session.measure("power cuts for real", "%d, whole each time, after %s rewritten files" % (
        len(CUTS), " and ".join(map(str, written))))
