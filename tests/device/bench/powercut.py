"""Every moment at which the power could have been cut, by the log of a disk's writes."""

import pathlib
import shutil
import struct
import subprocess

SECTOR = 512
FLUSH = 1
DISCARD = 4


def make_disk(path, folder, size="8M"):
    """An ext4 file system with what is in a folder."""
    subprocess.run(["/usr/sbin/mke2fs", "-q", "-F", "-t", "ext4", "-d", str(folder), str(path),
                    size], check=True, stderr=subprocess.DEVNULL)


def logged_disk(path, log):
    """The options of a machine for that disk, with a log of all that is written to it."""
    log.write_bytes(b"")
    return ["-blockdev", "driver=blklogwrites,node-name=disk,file.driver=file,file.filename=%s,"
                         "log.driver=file,log.filename=%s" % (path, log),
            "-device", "virtio-blk-pci,drive=disk"]


def writes(log):
    """What was written, in order: (is a flush, position, bytes)."""
    content = log.read_bytes()
    position = SECTOR
    while position + SECTOR <= len(content):
        sector, count, flags, _ = struct.unpack_from("<QQQQ", content, position)
        position += SECTOR
        data = b"" if flags & DISCARD else content[position : position + count * SECTOR]
        position += len(data)
        if not (sector or count or flags):
            return
        yield bool(flags & FLUSH), sector * SECTOR, data


def read_file(disk, name):
    """A file of the disk as it is after the next start, when the file system has been repaired."""
    copy = pathlib.Path(str(disk) + ".repaired")
    shutil.copyfile(disk, copy)
    subprocess.run(["/usr/sbin/e2fsck", "-fy", str(copy)], stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
    found = subprocess.run(["/usr/sbin/debugfs", "-R", "cat " + name, str(copy)],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    return found.stdout


def after_each_write(disk, log, name):
    """The file's content for a cut after each write, in order; the disk is changed meanwhile."""
    with open(disk, "r+b") as image:
        for _, position, data in writes(log):
            image.seek(position)
            image.write(data)
            image.flush()
            yield read_file(disk, name)
