"""The power fails while the style file is rewritten."""

import shutil

from bench.panel import NotSeen
from bench.powercut import after_each_write, writes

FAMILIES = ("Liberation Serif", "DejaVu Sans", "Liberation Mono", "DejaVu Serif")
FILE = "widget-style.xml"


def describe(content, families):
    """Which of the rewritten files it is, by its family; else what is wrong with it."""
    found = [family for family in families if ('family="%s"' % family).encode() in content]
    whole = content.rstrip().endswith(b"</widget-style>")
    if len(found) == 1 and whole:
        return found[0]
    return "empty" if not content else "damaged"


def cut_while_rewriting(session):
    """Whenever it fails, the file is the old one or the new one, whole; and the new one once told."""
    guest, output = session.guest, session.output
    base, log = output / "disk.img.base", output / "disk.writes"
    guest.run("mkdir -p /mnt && mount -t ext4 /dev/vda /mnt")
    told = []
    for family in FAMILIES:
        said = guest.run("QT_QPA_PLATFORM=offscreen %s /mnt/%s 0 '%s' 2>/dev/null" % (
            session.settings.programs / "restyle", FILE, family))
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
