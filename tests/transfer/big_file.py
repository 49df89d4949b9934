# SPDX-License-Identifier: MIT
"""Sends a large file through tovi to tovisim: it must arrive whole, and the sender must stay small.

    big_file.py TOVI TOVISIM MEGABYTES
"""

import hashlib
import os
import resource
import subprocess
import sys
import tempfile
import time

MEGABYTE = 1024 * 1024
# A process that sends ten bytes takes about this much; the chunk buffers come on top of it.
ALLOWED_RESIDENT = 24 * MEGABYTE


def make_file(path, megabytes):
    digest = hashlib.sha256()
    with open(path, "wb") as file:
        for _ in range(megabytes):
            piece = os.urandom(MEGABYTE)
            digest.update(piece)
            file.write(piece)
    return digest.hexdigest()


def digest_of(path):
    digest = hashlib.sha256()
    with open(path, "rb") as file:
        while piece := file.read(MEGABYTE):
            digest.update(piece)
    return digest.hexdigest()


def start_simulator(tovisim, folder):
    port_file = os.path.join(folder, "port")
    state = os.path.join(folder, "state")
    os.mkdir(state)
    simulator = subprocess.Popen(
        [tovisim, "--listen", "127.0.0.1:0", "--port-file", port_file, "--state", state, "--quiet"],
        stdout=subprocess.DEVNULL,
    )
    while not os.path.exists(port_file):
        assert simulator.poll() is None, "tovisim did not start"
        time.sleep(0.02)
    with open(port_file, encoding="ascii") as file:
        return simulator, file.read().strip(), state


def stored_file(state, name):
    for folder, _, files in os.walk(state):
        if name in files:
            return os.path.join(folder, name)
    raise AssertionError(f"{name} was not stored")


def main(tovi, tovisim, megabytes):
    with tempfile.TemporaryDirectory() as folder:
        source = os.path.join(folder, "large file 限速.bin")
        digest = make_file(source, int(megabytes))
        simulator, port, state = start_simulator(tovisim, folder)
        try:
            began = time.monotonic()
            subprocess.run([tovi, f"127.0.0.1:{port}", "send-file", source, "large.bin"], check=True)
            seconds = time.monotonic() - began
            resident = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss * 1024
            assert digest_of(stored_file(state, "large.bin")) == digest, "it arrived altered"
        finally:
            simulator.terminate()
            simulator.wait()
        print(f"{megabytes} MB in {seconds:.1f} s, sender's peak {resident / MEGABYTE:.1f} MB")
        assert resident <= ALLOWED_RESIDENT, "the sender does not stay small"


if __name__ == "__main__":
    main(*sys.argv[1:])
