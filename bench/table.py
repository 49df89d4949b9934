# SPDX-License-Identifier: MIT
"""Prints what the benchmarks measured, or how many instructions the main paths take, as a table.

    table.py FILE...             results of benchmark programs, as JSON
    table.py --counts PROGRAM    runs tovi_counts under callgrind
"""

import json
import re
import subprocess
import sys


def row(*cells):
    print("| " + " | ".join(cells) + " |")


def speed(result):
    """Whatever there is more of the faster it is, and how it reads."""
    if "bytes_per_second" in result:
        return result["bytes_per_second"], f"{result['bytes_per_second'] / 1e6:,.0f} MB/s"
    per_second = result["items_per_second"]
    text = f"{per_second:,.0f}/s" if per_second < 1e6 else f"{1e9 / per_second:.0f} ns"
    return per_second, text


def measured(files):
    rows = {}
    for file in files:
        with open(file, encoding="utf-8") as stream:
            results = json.loads(stream.read() or '{"benchmarks": []}')["benchmarks"]
        # They took turns; the table has them in the order of the programs.
        for result in sorted(results, key=lambda result: result["family_index"]):
            if result.get("error_occurred"):
                sys.exit(f"{result['name']}: {result['error_message']}")
            if result.get("aggregate_name") != "median":
                continue
            name, what = result["run_name"].split("/")[:2]
            rows.setdefault(name, {})[what] = speed(result)
    row("work", "ours", "beside it", "", "ratio")
    row("---", "---:", "---:", "---", "---:")
    for name, speeds in rows.items():
        ours, text = speeds.pop("ours")
        if not speeds:
            row(name, text, "", "", "")
        for what, (beside, beside_text) in speeds.items():
            row(name, text, beside_text, what, f"{ours / beside:.2f}")


def instructions(program, path, times):
    command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null"]
    done = subprocess.run(
        [*command, program, path, str(times)], stderr=subprocess.PIPE, text=True, check=True
    )
    return int(re.search(r"Collected : (\d+)", done.stderr)[1])


def counted(program):
    listed = subprocess.run([program], stdout=subprocess.PIPE, text=True, check=True).stdout
    row("path", "instructions", "a byte")
    row("---", "---:", "---:")
    few, many = 10, 30
    for line in listed.splitlines():
        size, path = line.split(" ", 1)
        # What is done once is in both and cancels out.
        difference = instructions(program, path, many) - instructions(program, path, few)
        each = difference / (many - few)
        row(path, f"{each:,.0f}", f"{each / int(size):.2f}" if int(size) else "")


if sys.argv[1] == "--counts":
    counted(sys.argv[2])
else:
    measured(sys.argv[1:])
