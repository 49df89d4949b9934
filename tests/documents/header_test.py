# SPDX-License-Identifier: MIT
"""What the comments of the object face say of codes and lengths is what the table of commands says."""

import re
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent


def comments():
    """The comment above each method, in lower case and on one line."""
    found = {}
    comment = ""
    for line in (ROOT / "include/tovisdk/tovi_traffic.h").read_text(encoding="utf-8").splitlines():
        line = line.strip()
        method = re.search(r"(\w+)\(", line)
        if line.startswith("///"):
            comment += line[3:].lower()
            continue
        if method and comment:
            found[method[1]] = found.get(method[1], "") + comment
        comment = ""
    return found


def rows():
    """(method, how its codes are told, how long its text may be), from the table that the code writes."""
    text = (ROOT / "docs/protocol.md").read_text(encoding="utf-8")
    for method, request, reply, text in re.findall(r"\| `(\w+)` \| (\S+) \| (\S+) \| \S+ \| (.*) \|", text):
        request, reply = request.lower(), reply.lower()
        codes = (f"reply {reply}" if request == "none" else
                 f"command and reply {request}" if reply == request else
                 f"command {request}, no reply" if reply == "none" else
                 f"command {request}, reply {reply}")
        yield method, codes, text.replace("0 to", "at most") + " bytes" if text != "-" else None


def documented_by(method):
    """Steps stand with the methods that take them."""
    if method == "getDetectErrorPointData":
        return "getDetectErrorPointInfo"
    return "sendFile" if method.startswith("sendFile") or method == "recvFileOverRsp" else method


class Header(unittest.TestCase):
    def test_tells_what_the_table_says(self):
        told = comments()
        self.assertGreater(len(told), 100)
        known = set()
        for method, codes, length in rows():
            comment = told[documented_by(method)]
            known |= {codes, codes.split(",")[0]}
            self.assertIn(codes, comment, method)
            limit = re.search(r"the text,[^.;]*?((at most|\d+ to) \d+ bytes)", comment)
            self.assertEqual(limit and limit[1], length, method)
        self.assertGreater(len(known), 100)
        for method, comment in told.items():
            for code in re.finditer(r"command (and reply )?0x[0-9a-f]+(, reply 0x[0-9a-f]+|, no reply)?", comment):
                self.assertIn(code[0], known, method)


if __name__ == "__main__":
    unittest.main()
