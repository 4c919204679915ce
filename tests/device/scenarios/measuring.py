"""How fast, how much: what is printed at the end."""

import time

from scenarios.keypad import DELETE_ALL, open_keypad

TOUCHES = 15
IDLE = 10  # s
MINUTE_WAKES = 3  # the timer's, perhaps a moment early and once again, and the painting's


def first_frame(session):
    """From switching on to the first picture, and from the program's start to it."""
    width = session.machine.size[0]
    session.panel.stop()
    session.guest.try_run("cat /dev/zero >/dev/fb0")  # until it is full
    session.touch.begin("watch 0 0 %d 4 60000" % width)
    session.start_gallery()
    taken = int(session.touch.finish()[0])
    assert taken > 0, "there is no picture"
    session.measure("program start to first frame", "%.2f s" % (taken / 1e6))
    session.measure("boot to the agent", "%.1f s" % session.machine.booted)
    session.measure("boot to first frame", "%.1f s" % (session.machine.booted + taken / 1e6))


def touch_to_pixel(session):
    """From a touch on a key to its changed picture in the frame buffer."""
    session.show_screen("entry")
    keypad = open_keypad(session.panel, "entry-Decimal")
    keypad.type([DELETE_ALL])
    times = []
    for number in range(TOUCHES):
        x, y = keypad.key(str(number % 9 + 1))
        rect = "%d %d 60 30" % (x - 30, y - 15)
        answer = session.touch.do("wait 300", "down 0 %d %d" % (x, y), "watch %s 3000" % rect,
                                  "wait 40", "up 0", "sync")
        times.append(int(answer[0]))
    keypad.apply()
    assert min(times) > 0, "a touch changes no pixel: %s" % times
    times.sort()
    session.measure("touch to changed pixel", "%.1f ms (median of %d; %.1f to %.1f ms)" % (
        times[TOUCHES // 2] / 1e3, TOUCHES, times[0] / 1e3, times[-1] / 1e3))


def memory(session):
    """What the panel keeps resident."""
    words = session.guest.run("grep -E 'VmRSS|RssAnon|VmHWM' /proc/$(cat pid)/status").split()
    kilobytes = {words[i].rstrip(":"): int(words[i + 1]) for i in range(0, len(words), 3)}
    assert kilobytes["VmRSS"] < 100 * 1024, kilobytes
    session.measure("resident memory", "%.1f MiB, of it %.1f MiB its own; at most %.1f MiB" % (
        kilobytes["VmRSS"] / 1024, kilobytes["RssAnon"] / 1024, kilobytes["VmHWM"] / 1024))


def activity(session):
    """Ticks of the processor (10 ms) and voluntary waits of each thread, so far."""
    guest = session.guest
    ticks = guest.run("cut -d' ' -f14,15 /proc/$(cat pid)/stat").split()
    waits = guest.run("grep -h ^voluntary /proc/$(cat pid)/task/*/status").split()[1::2]
    return sum(map(int, ticks)), [int(number) for number in waits]


def wake_ups(session):
    """Ticks and waits by thread while nobody does anything, and how long that was."""
    time.sleep(2)
    started = time.monotonic()
    ticks, waits = activity(session)
    time.sleep(IDLE)
    more_ticks, more_waits = activity(session)
    woken = [after - before for before, after in zip(waits, more_waits)]
    return more_ticks - ticks, woken, time.monotonic() - started


def idle(session):
    """Nobody touches the gallery: what still wakes it is the time of day, once a minute."""
    session.show_screen("controls")
    ticks, woken, seconds = wake_ups(session)
    session.measure("the gallery, idle", "%.1f ms of CPU and %d wake-ups in %.1f s" % (
        ticks * 10, sum(woken), seconds))
    assert sum(woken) <= MINUTE_WAKES, "it does something: %s" % woken


def frame_rate(session):
    """What runs, runs: a progress bar every 80 ms, and the clocks beside it."""
    session.show_screen("progress")
    panel = session.panel
    bars = panel.widgets(**{"class": "CProgressBar"})
    button = panel.tap(name="run")
    bar = min(bars, key=lambda bar: abs(bar.center[1] - button.center[1]))
    frames = int(session.touch.do("count %d %d %d %d 4000" % bar.rect)[0])
    panel.tap(name="run")
    assert frames >= 20, "%d frames in 4 s" % frames
    session.measure("a progress bar stepped every 80 ms", "%.1f frames a second" % (frames / 4))
    clock = panel.widget(**{"class": "CClockProgress"})
    frames = int(session.touch.do("count %d %d %d %d 4000" % clock.rect)[0])
    assert frames > 0, "the clock stands still"
    session.measure("the busy clock", "%.1f frames a second" % (frames / 4))
