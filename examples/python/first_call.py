# SPDX-License-Identifier: MIT
"""A host in Python on the flat face, with the standard library alone.

    first_call.py LIBRARY ADDRESS PORT [LEVEL]
"""

import ctypes
import sys


class Sign:
    """One controller. Texts go out as UTF-8, reports come back as GBK."""

    def __init__(self, library, address, port):
        self._library = ctypes.CDLL(library)
        self._address = address.encode("ascii")
        self._port = ctypes.c_ushort(port)

    def status(self, function, *arguments):
        """Calls a function that answers "success" or "failed"; the text is the library's own."""
        call = getattr(self._library, function)
        call.restype = ctypes.c_char_p
        return call(self._address, self._port, *arguments).decode("ascii")

    def report(self, function, *arguments):
        """Calls a function whose text is ours: decodes it and gives it back."""
        call = getattr(self._library, function)
        call.restype = ctypes.c_void_p  # not c_char_p, which would lose the pointer
        pointer = ctypes.c_void_p(call(self._address, self._port, *arguments))
        if not pointer:
            raise MemoryError(function)
        try:
            return ctypes.string_at(pointer.value).decode("gbk")
        finally:
            self._library.deleteArry(ctypes.byref(pointer))


def main(library, address, port, level="80"):
    sign = Sign(library, address, int(port))
    done = sign.status("setBrightness", ctypes.c_int(int(level)))
    print("setBrightness:", done)
    print("setDeviceName:", sign.status("setDeviceName", "限速80".encode("utf-8")))
    name = sign.report("getDeviceName").removesuffix("interfaceEnd")
    print("getDeviceName:", name)
    status = sign.report("getDeviceType")
    print(status.replace("\r\n", "\n").removesuffix("interfaceEnd"), end="")
    return 0 if done == "success" and name == "限速80" and f"屏幕亮度:{level}\r\n" in status else 1


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
