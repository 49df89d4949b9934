# SPDX-License-Identifier: MIT
"""Runs the code of the documents: what is Python as it stands, against a controller. What is C# stands in
the example, which is compiled and run.

    documents.py LIBRARY ADDRESS PORT
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent


def blocks(page, language):
    text = (ROOT / page).read_text(encoding="utf-8")
    found = re.findall(rf"^```{language}\n(.*?)^```", text, re.MULTILINE | re.DOTALL)
    assert found, f"no {language} in {page}"
    return found


def main(library, address, port):
    example = "".join(p.read_text(encoding="utf-8") for p in ROOT.glob("examples/csharp/*.cs"))
    for block in blocks("docs/flat-interface.md", "csharp"):
        assert block in example, block

    here = {
        "libtovisdk.so": library,
        "/var/log/signs": "sign_log",
        "127.0.0.1": address,
        "192.168.1.10": address,
        "5005": port,
    }
    for page in ("README.md", "docs/flat-interface.md"):
        names = {}
        for block in blocks(page, "python"):
            for written, meant in here.items():
                block = block.replace(written, meant)
            names["done"] = b"success"
            exec(block, names)
            assert names["done"] == b"success", block
    assert list(Path("sign_log").glob("tovisdk_*.txt")), "no log"


if __name__ == "__main__":
    main(*sys.argv[1:])
