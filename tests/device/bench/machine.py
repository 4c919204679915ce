"""The virtual machine: a panel's computer, without the panel's programs."""

import pathlib
import shutil
import subprocess
import tempfile
import time

from bench.guest import Guest
from bench.qmp import Qmp

PATIENCE = 120  # s; emulated, on a busy machine


# The guest's time is then counted in instructions, 4 ns each, however busy this machine is.
COUNTED_TIME = ("-icount", "shift=2", "-smp", "1")

# A keyboard, a mouse and a stick that are there from the beginning, named as the scenarios know them.
PLUGGED = (
    "-device", "usb-kbd,id=keyboard", "-device", "usb-mouse,id=mouse",
    "-blockdev", "driver=null-co,node-name=storage,size=1048576",
    "-device", "usb-storage,id=storage-stick,drive=storage",
)  # fmt: skip


class Machine:
    """Boots when entered as a context, and is switched off when left."""

    def __init__(self, settings, log, size=(800, 600), memory=1024, options=()):
        self._log = log
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="bench-"))
        self._process = None
        self.size = size
        self.log_folder = log.parent
        self.booted = 0.0
        self.started = 0.0
        self._command = self._command_line(settings, size, memory) + list(options)

    def _command_line(self, settings, size, memory):
        folder = self._folder
        architecture = settings.architecture
        arguments = ["console=" + architecture.console, "quiet", "panic=-1", "mitigations=off",
                     "video=Virtual-1:%dx%d-32" % size, *settings.for_init()]
        return [
            *architecture.machine, "-nodefaults", "-no-user-config", "-display", "none",
            "-no-reboot", "-smp", "2", "-m", str(memory), "-kernel", str(settings.kernel / "vmlinuz"),
            "-initrd", str(settings.initramfs), "-append", " ".join(arguments),
            *architecture.screen, "-device", "qemu-xhci,id=usb",
            "-fsdev", "local,id=host,path=/,security_model=none,readonly=on,multidevs=remap",
            "-device", "virtio-9p-pci,fsdev=host,mount_tag=host",
            "-serial", "file:%s" % self._log,
            "-chardev", "socket,id=shell,path=%s/shell,server=on,wait=off" % folder,
            "-device", "virtio-serial-pci", "-device", "virtserialport,chardev=shell,name=shell",
            "-qmp", "unix:%s/qmp,server=on,wait=off" % folder,
        ]  # fmt: skip

    def __enter__(self):
        self.switch_on()
        return self

    def switch_on(self):
        """Also again, after the power was cut: what its disk holds is what it had."""
        self._folder.mkdir(exist_ok=True)
        self.started = time.monotonic()
        errors = open(str(self._log) + ".qemu", "w")
        self._process = subprocess.Popen(self._command, stdin=subprocess.DEVNULL, stderr=errors)
        try:
            self._wait_for_sockets()
            self.qmp = Qmp(str(self._folder / "qmp"), PATIENCE)
            self.guest = Guest(str(self._folder / "shell"), PATIENCE)
            self.guest.wait_until_ready()
        except Exception:
            self.cut_power()
            raise
        self.booted = time.monotonic() - self.started

    def __exit__(self, *_):
        self.cut_power()

    def _wait_for_sockets(self):
        sockets = [self._folder / "qmp", self._folder / "shell"]
        end = time.monotonic() + 10
        while not all(path.exists() for path in sockets):
            if time.monotonic() > end or self._process.poll() is not None:
                raise RuntimeError("the machine does not start: see %s.qemu" % self._log)
            time.sleep(0.05)

    def cut_power(self):
        """Ends the machine at once: nothing in it is asked or told."""
        if self._process:
            self._process.kill()
            self._process.wait()
            self._process = None
        shutil.rmtree(self._folder, ignore_errors=True)

    def plug(self, kind, name, **properties):
        self.qmp.call("device_add", driver=kind, id=name, bus="usb.0", **properties)

    def pull(self, name):
        self.qmp.call("device_del", id=name)
        self.qmp.wait_for("DEVICE_DELETED", device=name)

    def plug_storage(self, name):
        self.qmp.call("blockdev-add", **{"driver": "null-co", "node-name": name, "size": 1 << 20})
        self.plug("usb-storage", name + "-stick", drive=name)

    def pull_storage(self, name):
        self.pull(name + "-stick")
        self.qmp.call("blockdev-del", **{"node-name": name})

    def press_key(self, code):
        for down in (True, False):
            key = {"type": "qcode", "data": code}
            event = {"type": "key", "data": {"down": down, "key": key}}
            self.qmp.call("input-send-event", events=[event])
            time.sleep(0.05)

    def dump(self, path):
        """The picture that the screen shows, in a file (PPM)."""
        self.qmp.call("screendump", filename=str(path))
