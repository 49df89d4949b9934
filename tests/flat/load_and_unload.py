# SPDX-License-Identifier: MIT
"""Loads and unloads the library many times, with an exchange each time, and looks at what stays.

    load_and_unload.py LIBRARY ADDRESS PORT
"""

import _ctypes
import ctypes
import os
import sys

WARM_UP, ROUNDS = 50, 1000
ALLOWED_GROWTH = 1024 * 1024  # the interpreter's own unrest; a path of 4 KiB per round is four times that


def resident():
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def is_loaded(library):
    with open("/proc/self/maps", encoding="utf-8") as file:
        return os.path.realpath(library) in file.read()


def one_round(library, address, port):
    handle = ctypes.CDLL(library)
    handle.tovi_set_log_folder(b"/nonexistent/folder")
    handle.getSn.restype = ctypes.c_void_p
    text = ctypes.c_void_p(handle.getSn(address, port))
    assert ctypes.string_at(text.value).endswith(b"interfaceEnd"), "no report"
    handle.deleteArry(ctypes.byref(text))
    _ctypes.dlclose(handle._handle)


def main(library, address, port):
    descriptors = len(os.listdir("/proc/self/fd"))
    for _ in range(WARM_UP):
        one_round(library, address.encode(), int(port))
    before = resident()
    for _ in range(ROUNDS):
        one_round(library, address.encode(), int(port))
    growth = resident() - before
    print(f"{ROUNDS} rounds, {growth} bytes more, still loaded: {is_loaded(library)}")
    assert len(os.listdir("/proc/self/fd")) == descriptors, "descriptors are left"
    assert not is_loaded(library), "the library stays loaded"
    assert growth <= ALLOWED_GROWTH, "memory is left"


if __name__ == "__main__":
    main(*sys.argv[1:])
