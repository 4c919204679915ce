"""A machine with little memory."""

from scenarios.touching import every_screen


def little_memory(session):
    """With 128 MiB, of which the kernel leaves less than 80, each screen is as it should be."""
    every_screen(session)
    guest = session.guest
    assert not guest.run("dmesg | grep -i 'out of memory' || true"), "something was killed"
    words = guest.run("grep -E 'MemTotal|MemAvailable' /proc/meminfo").split()
    session.measure("memory that a machine of 128 MiB has left", "%.1f of %.1f MiB" % (
        int(words[4]) / 1024, int(words[1]) / 1024))
