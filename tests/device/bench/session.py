"""One machine that is switched on, and the panel on it."""

import functools
import re

from bench.machine import Machine
from bench.panel import Panel
from bench.picture import read_png
from bench.touch import Touch


class Settings:
    """Where everything is on the host; its folders are the guest's, too."""

    def __init__(self, source, build, kernel, initramfs, output):
        self.source = source
        self.build = build
        self.kernel = kernel
        self.initramfs = initramfs
        self.output = output
        self.programs = build / "tests/device"
        galleries = (build / "examples/gallery").glob("quorlin-gallery*")  # with Qt 6, -qt6
        self.gallery = str(next(path for path in galleries if path.is_file()))
        self.style = source / "style/widget-style.xml"

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

    @functools.lru_cache(maxsize=None)
    def shot(self, name):
        """The picture that the gallery itself draws."""
        return read_png(self.output / "shots" / (name + ".png"))


class Session:
    def __init__(self, settings, name, **machine):
        self.settings = settings
        self.output = settings.output
        self.measurements = []
        log = settings.output / ("console-%s.txt" % name)
        self.machine = Machine(settings.kernel, settings.initramfs, log, **machine)
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
