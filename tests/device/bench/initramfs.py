"""The guest's first file system: busybox, the kernel's modules, and our init."""

import gzip
import os
import pathlib
import stat

GUEST = pathlib.Path(__file__).resolve().parent.parent / "guest"

# What every guest loads, beside its screen's module and what these depend on.
MODULES = """
virtio_pci virtio_blk virtio_console 9p 9pnet_virtio overlay crc32c_generic ext4
xhci_pci usbhid hid_generic evdev uinput usb_storage sd_mod
""".split()


class Archive:
    """An archive as the kernel reads it (cpio, "newc")."""

    def __init__(self):
        self._bytes = bytearray()
        self._count = 0

    def add(self, name, content=b"", mode=stat.S_IFREG | 0o644, device=(0, 0)):
        self._count += 1
        numbers = (self._count, mode, 0, 0, 1, 0, len(content), 0, 0, *device, len(name) + 1, 0)
        header = "070701" + "".join("%08X" % number for number in numbers)
        self._append(header.encode() + name.encode() + b"\0")
        self._append(content)

    def _append(self, piece):
        self._bytes += piece
        self._bytes += b"\0" * (-len(self._bytes) % 4)

    def finish(self):
        self.add("TRAILER!!!", mode=0)
        return bytes(self._bytes)


def modules_in_order(folder, release, modules):
    """The files of the modules and of what they depend on, each behind what it needs."""
    dependencies = {}
    for line in (folder / "lib/modules" / release / "modules.dep").read_text().splitlines():
        file, _, needed = line.partition(":")
        dependencies[file] = needed.split()
    files = {pathlib.Path(file).name.split(".")[0].replace("-", "_"): file for file in dependencies}
    builtin = (folder / "lib/modules" / release / "modules.builtin").read_text().replace("-", "_")
    order = []
    for module in modules:
        if module not in files and "/%s.ko" % module in builtin:
            continue
        file = files[module]
        order += [needed for needed in reversed(dependencies[file]) if needed not in order]
        if file not in order:
            order.append(file)
    return order


def build(kernel, system, screen_module, target):
    """Writes the initramfs for the kernel in one folder, with the busybox of the system in another."""
    release = os.listdir(kernel / "lib/modules")[0]
    archive = Archive()
    for folder in ("bin", "dev", "modules"):
        archive.add(folder, mode=stat.S_IFDIR | 0o755)
    archive.add("dev/console", mode=stat.S_IFCHR | 0o600, device=(5, 1))
    busybox = (system / "bin/busybox").read_bytes()
    archive.add("bin/busybox", busybox, stat.S_IFREG | 0o755)
    archive.add("init", (GUEST / "init").read_bytes(), stat.S_IFREG | 0o755)
    archive.add("agent", (GUEST / "agent").read_bytes(), stat.S_IFREG | 0o755)
    order = modules_in_order(kernel, release, MODULES + [screen_module])
    for file in order:
        content = (kernel / "lib/modules" / release / file).read_bytes()
        archive.add("modules/" + pathlib.Path(file).name, content)
    names = "\n".join(pathlib.Path(file).name for file in order)
    archive.add("modules/order", names.encode())
    target.write_bytes(gzip.compress(archive.finish(), compresslevel=1))
