"""The machine's side door: plugs, keys and pictures, by QEMU's own protocol."""

import json
import socket


class QmpError(Exception):
    pass


class Qmp:
    def __init__(self, path, timeout):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(timeout)
        self._socket.connect(path)
        self._stream = self._socket.makefile("rw", encoding="utf-8", newline="\n")
        self._events = []
        self._read()
        self.call("qmp_capabilities")

    def _read(self):
        line = self._stream.readline()
        if not line:
            raise QmpError("the machine is gone")
        return json.loads(line)

    def call(self, command, **arguments):
        """What the machine answers; what it tells in between is kept for wait_for."""
        message = {"execute": command, "arguments": arguments}
        self._stream.write(json.dumps(message) + "\n")
        self._stream.flush()
        while True:
            answer = self._read()
            if "event" in answer:
                self._events.append(answer)
            elif "error" in answer:
                raise QmpError("%s: %s" % (command, answer["error"]["desc"]))
            else:
                return answer["return"]

    def wait_for(self, event, **data):
        """Waits until the machine tells of an event with this data."""
        while True:
            while self._events:
                told = self._events.pop(0)
                if told["event"] == event and data.items() <= told.get("data", {}).items():
                    return told
            self._events.append(self._read())

    def close(self):
        self._stream.close()
        self._socket.close()
