# SPDX-License-Identifier: MIT
"""A host in Python on the flat face, with the standard library alone.

    first_call.py LIBRARY ADDRESS PORT [LEVEL]
"""

import ctypes
import os
import sys

END = b"interfaceEnd"


def loaded(path):
    """The library. Its log goes beside this program: by default it lies where the interpreter does."""
    library = ctypes.CDLL(path)
    own_folder = os.path.dirname(os.path.abspath(__file__))
    library.tovi_set_log_folder(os.fsencode(os.path.join(own_folder, "log")))
    return library


class Sign:
    """One controller. Texts go out as UTF-8, reports come back as GBK."""

    def __init__(self, library, address, port):
        self._library = library
        self._address = address.encode("ascii")
        self._port = ctypes.c_ushort(port)

    def status(self, function, *arguments):
        """Calls a function that answers "success" or "failed"; the text is the library's own."""
        call = getattr(self._library, function)
        call.restype = ctypes.c_char_p
        return call(self._address, self._port, *arguments).decode("ascii")

    def report(self, function, *arguments):
        """Calls a function that gives a report, which is ours to release."""
        call = getattr(self._library, function)
        call.restype = ctypes.c_void_p  # not c_char_p, which would lose the pointer
        pointer = ctypes.c_void_p(call(self._address, self._port, *arguments))
        if not pointer:
            raise MemoryError(function)
        try:
            report = ctypes.string_at(pointer)
        finally:
            self._library.deleteArry(ctypes.byref(pointer))
        # Cut as bytes: half a character at the end of a controller's text takes the next one along.
        return report.removesuffix(END).decode("gbk", errors="replace")


def main(library, address, port, level="80"):
    sign = Sign(loaded(library), address, int(port))
    done = sign.status("setBrightness", ctypes.c_int(int(level)))
    print("setBrightness:", done)

    print("getDeviceName:", sign.report("getDeviceName"))
    print("setDeviceName:", sign.status("setDeviceName", "限速80".encode("utf-8")))
    name = sign.report("getDeviceName")
    print("getDeviceName:", name)

    status = sign.report("getDeviceType")
    print(status.replace("\r\n", "\n"), end="")
    return 0 if done == "success" and name == "限速80" and f"屏幕亮度:{level}\r\n" in status else 1


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
