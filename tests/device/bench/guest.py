"""A shell in the guest, over its serial port."""

import socket


class CommandFailed(Exception):
    pass


class Guest:
    def __init__(self, path, timeout):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(timeout)
        self._socket.connect(path)
        self._stream = self._socket.makefile("rwb")

    def wait_until_ready(self):
        while self._line() != "ready":
            pass

    def _line(self):
        line = self._stream.readline()
        if not line:
            raise CommandFailed("the guest is gone")
        return line.decode(errors="replace").strip()

    def try_run(self, command):
        """The exit status and the output of a command of one line."""
        assert "\n" not in command
        self._stream.write(command.encode() + b"\n")
        self._stream.flush()
        status, size = self._line().split()
        return int(status), self._stream.read(int(size)).decode(errors="replace")

    def run(self, command):
        status, output = self.try_run(command)
        if status != 0:
            raise CommandFailed("%s\ngives %d: %s" % (command, status, output.strip()))
        return output
