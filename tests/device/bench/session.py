"""One machine that is switched on, and the panel on it."""

import base64
import functools
import pathlib
import re
import shlex

from bench.machine import Machine
from bench.panel import Panel
from bench.picture import read_png
from bench.touch import Touch


class Settings:
    """Where everything is on the host; the folders of source and build are the guest's, too.

    What else the guest has is a system, which is the host's own where that has the guest's processor.
    """

    def __init__(self, source, build, kernel, system, output, architecture):
        self.source = source
        self.build = build
        self.kernel = kernel
        self.system = system
        self.output = output
        self.architecture = architecture
        self.initramfs = output / "initramfs"
        self.shots = output / "shots"
        self.programs = build / "tests/device"
        galleries = (build / "examples/gallery").glob("quorlin-gallery*")  # with Qt 6, -qt6
        self.gallery = str(next(path for path in galleries if path.is_file()))
        self.style = source / "style/widget-style.xml"

    def is_own_system(self):
        return self.system == pathlib.Path("/")

    def for_init(self):
        """What the guest's first process is told by the kernel's command line."""
        if self.is_own_system():
            return []
        return ["bench_system=%s" % self.system, "bench_source=%s" % self.source]

    def look(self):
        """What makes a program look the same on every platform of Qt."""
        return {
            "QT_FONT_DPI": "96",
            "QT_STYLE_OVERRIDE": "fusion",
            "FONTCONFIG_FILE": str(self.source / "resources/fonts.conf"),
        }

    def environment(self, folder="/run/bench"):
        """What a program on the panel is told, as VARIABLE=VALUE."""
        return {
            "QT_QPA_PLATFORM": "linuxfb",
            "QT_QPA_FB_NO_LIBINPUT": "1",
            **self.look(),
            "QT_PLUGIN_PATH": str(self.programs / "plugins"),
            "QT_QPA_GENERIC_PLUGINS": "widgetspy:" + folder,
            "XDG_RUNTIME_DIR": folder,
            "TZ": "UTC",
        }

    def drawing(self, folder):
        """The command that has the gallery draw its own pictures."""
        variables = {"QT_QPA_PLATFORM": "offscreen", **self.look()}
        settings = ["%s=%s" % variable for variable in variables.items()]
        return ["env", *settings, self.gallery, "--shots", str(folder)]

    @functools.lru_cache(maxsize=None)
    def shot(self, name):
        """The picture that the gallery itself draws."""
        return read_png(self.shots / (name + ".png"))


class Session:
    def __init__(self, settings, name, **machine):
        self.settings = settings
        self.output = settings.output
        self.measurements = []
        log = settings.output / ("console-%s.txt" % name)
        self.machine = Machine(settings, log, **machine)
        self.panel = self.touch = self.guest = None

    def __enter__(self):
        self.machine.__enter__()
        self.guest = self.machine.guest
        self.guest.run("/lib/systemd/systemd-udevd --daemon && "
                       "udevadm trigger --action=add --subsystem-match=input "
                       "--subsystem-match=graphics && udevadm settle; chmod 0755 .")
        program = str(self.settings.programs / "touchscreen")
        self.touch = Touch(self.guest, program, self.machine.size)
        self.guest.run("udevadm settle")
        variables = self.settings.environment().items()
        environment = " ".join("%s='%s'" % variable for variable in variables)
        self.panel = Panel(self.machine, self.touch, environment)
        return self

    def __exit__(self, *_):
        self.machine.__exit__()

    # ---- the gallery

    def draw_shots(self):
        """Has the guest draw the gallery's own pictures: its processor's, to the last pixel."""
        self.guest.run(shlex.join(self.settings.drawing("shots")))
        self.settings.shots.mkdir()
        for name in self.guest.run("ls shots").split():
            picture = base64.b64decode(self.guest.run("base64 shots/" + name))
            (self.settings.shots / name).write_bytes(picture)

    def start_gallery(self, *arguments):
        self.panel.start(self.settings.gallery, "--log", *arguments)

    def show_screen(self, name):
        self.panel.tap(name="menu-" + name)
        self.panel.skip_lines()

    def clocks(self):
        """The rects of what changes by itself."""
        texts = self.panel.widgets(parent="TitleStrip")
        times = [widget.rect for widget in texts if re.match(r"\d\d:\d\d$", widget.text)]
        return times + [widget.rect for widget in self.panel.widgets(**{"class": "CClockProgress"})]

    def expect_shot(self, name):
        """Waits until the screen is, pixel by pixel, the gallery's own picture of that name."""
        self.panel.wait_for_picture(self.settings.shot(name), self.clocks(), name)

    def measure(self, name, value):
        """Keeps it for the end."""
        self.measurements.append((name, value))

    def keep_picture(self, name):
        self.panel.picture().write(self.output / (name + ".png"))
