# SPDX-License-Identifier: MIT
"""Every frame in docs/protocol.md is escaped as frames are and has the right checksum."""

import re
from pathlib import Path

PAGE = Path(__file__).resolve().parent.parent.parent / "docs/protocol.md"


def shifted(value):
    for _ in range(8):
        value = value >> 1 ^ (0x8408 if value & 1 else 0)
    return value


TABLE = [0x019C if index == 0x89 else shifted(index) for index in range(256)]


def checksum(data):
    value = 0xFFFF
    for byte in data:
        value = value >> 8 ^ TABLE[(value ^ byte) & 0xFF]
    return value.to_bytes(2, "little")


frames = re.findall(r"AA FF FF(?: [0-9A-F]{2})+", PAGE.read_text(encoding="utf-8"))
assert len(frames) > 20, frames
for text in frames:
    frame = bytes.fromhex(text)
    body = rb"(?:[^\xAA\xCC\xEE]|\xEE[\x0A\x0C\x0E])*"
    assert re.fullmatch(rb"\xAA\xFF\xFF." + body + rb"\xCC..", frame, re.DOTALL), text
    assert frame[-2:] == checksum(frame[:-2]), text
