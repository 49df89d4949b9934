# SPDX-License-Identifier: MIT
"""What scripts/write-tables and scripts/check-comments find, and what they leave alone."""

import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent


def run(script, *arguments):
    """Exit status and everything that is printed."""
    command = [sys.executable, str(script), *map(str, arguments)]
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    return done.returncode, done.stdout


class ScriptTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)


class WriteTables(ScriptTest):
    def setUp(self):
        super().setUp()
        self.script = self.folder / "scripts/write-tables"
        for name in ("scripts", "docs", "src/wire", "include"):
            shutil.copytree(ROOT / name, self.folder / name)
        for name in ("README.md", "CMakeLists.txt"):
            shutil.copy(ROOT / name, self.folder)

    def change(self, name, old, new):
        path = self.folder / name
        text = path.read_text(encoding="utf-8")
        self.assertEqual(text.count(old), 1, f"{old} in {name}")
        path.write_text(text.replace(old, new), encoding="utf-8")

    def test_what_is_behind_is_shown_and_then_written(self):
        in_document = ("docs/protocol.md", "| `setPower` | 0x05 |", "| `setPower` | 0x04 |")
        in_table = ("src/wire/command_table.h", '"setFont", 0xD2, 0xD2', '"setFont",\n 0xD2, kNoReply')
        in_comment = ("include/tovisdk/flat.h", "Status. Restarts the controller.", "Always. Ends | starts.")
        in_build = ("CMakeLists.txt", '"Build the tests" ${PROJECT_IS_TOP_LEVEL}', '"Build tests" OFF')
        for change in (in_document, in_table, in_comment, in_build):
            self.change(*change)
        before = [path.read_text(encoding="utf-8") for path in sorted(self.folder.glob("docs/*"))]

        status, shown = run(self.script, "--check")
        self.assertEqual(status, 1)
        self.assertIn("-| `setPower` | 0x04 | 0x06 | 100 | - |", shown)
        self.assertIn("+| `setPower` | 0x05 | 0x06 | 100 | - |", shown)
        self.assertIn("+| `setFont` | 0xD2 | none | none | 0 to 1024 |", shown)
        self.assertIn("+| `restartDevice` | - | always | Ends \\| starts. |", shown)
        self.assertIn("+| `TOVISDK_TESTS` | off | Build tests |", shown)
        after = [path.read_text(encoding="utf-8") for path in sorted(self.folder.glob("docs/*"))]
        self.assertEqual(after, before)

        self.assertEqual(run(self.script)[0], 0)
        self.assertEqual(run(self.script, "--check"), (0, ""))

    def test_comments_of_groups_reach_as_far_as_the_group(self):
        declaration = 'TOVISDK_API {}(const char* ip, unsigned short port{});'
        lines = [
            "/// Status. Of the whole theme.",
            "/// @{",
            "/// None.",
            "/// @{",
            declaration.format("const char* second", ""),
            "/// Value: A number.",
            "///",
            "/// Further words.",
            declaration.format("char*\n    first", ", unsigned char\n    a, const char* b"),
            "/// @}",
            "/// @}",
        ]
        header = self.folder / "include/tovisdk/flat.h"
        header.write_text("\n".join(lines), encoding="utf-8")
        self.assertEqual(run(self.script)[0], 0)
        document = (self.folder / "docs/flat-interface.md").read_text(encoding="utf-8")
        rows = [line for line in document.splitlines() if line.startswith(("| `first`", "| `second`"))]
        self.assertEqual(
            rows,
            [
                "| `first` | byte a, text b | value | A number. |",
                "| `second` | - | none | not implemented |",
            ],
        )

        header.write_text("\n".join([*lines, declaration.format("char* third", "")]), encoding="utf-8")
        status, shown = run(self.script)
        self.assertEqual(status, 1)
        self.assertIn("third", shown)

    def test_a_table_without_a_place_is_refused(self):
        self.change("docs/flat-interface.md", "<!-- table: flat -->", "")
        status, shown = run(self.script)
        self.assertEqual(status, 1)
        self.assertIn("flat", shown)


FULL = "/// @param level words up to the edge of what a line may hold, which is a hundred columns in all:"

# Each with the lines that end early.
COMMENTS = {
    "a word left alone, the old continuation behind it": ([FULL, "/// an", "///        error"], [2]),
    "the same without hanging indentation": ([FULL, "/// an", "/// error is logged"], [2]),
    "a word that ends a sentence": ([FULL, "/// logged.", "///        Every later call fails"], [2]),
    "inside a class": ([f"  {FULL[:98]}", "  /// an", "  ///     error"], [2]),
    "an ordinary comment": (["// Some words that go", "// on although there was room."], [1]),
    "hanging indentation of full lines": ([FULL[:-1] + ",", "///        going on there", "int f();"], []),
    "the end of a paragraph": ([FULL, "/// is refused.", "/// Nothing is sent."], []),
    "a little room": (["/// " + "words " * 13, "/// go on"], []),
    "titles": (["/// @file", "/// What it is.", "///", "/// @name Keys", "/// A key is"], []),
    "tags": (["/// It does", "/// @return what it did"], []),
    "a list": (["/// It is", "/// - one", "/// - two", "/// 1. three"], []),
    "a table": (["//   list  = entries", "//   entry = a number", "//   brief = 1 byte"], []),
    "columns": (["// des  8 characters", "// aes  16 of them"], []),
    "a word too long for the line": (["/// See", "/// " + "word" * 24], []),
    "an example": (["/// ```", "/// call", "/// another", "/// ```"], []),
    "what follows a colon": (["/// As in:", "///     call", "int f();"], []),
}


class CheckComments(ScriptTest):
    script = ROOT / "scripts/check-comments"

    def file(self, name, *lines):
        path = self.folder / name
        path.write_text("\n".join([*lines, ""]), encoding="utf-8")
        return path

    def test_lines_that_end_early(self):
        for what, (lines, early) in COMMENTS.items():
            with self.subTest(what):
                path = self.file("any.h", "// SPDX-License-Identifier: MIT", *lines)
                expected = [f"{path}:{line + 1}" for line in early]
                status, shown = run(self.script, path)
                self.assertEqual([line.split(": ")[0] for line in shown.splitlines()], expected)
                self.assertEqual(status, 1 if early else 0)

    def test_licences(self):
        cpp, other = "// SPDX-License-Identifier: MIT", "# SPDX-License-Identifier: MIT"
        files = {
            "a.h": (["#pragma once"], [cpp, "#pragma once"]),
            "a.cs": (["// A host."], [cpp, "// A host."]),
            "CMakeLists.txt": (["project(a)"], [other, "project(a)"]),
            "script": (["#!/bin/sh", "exit"], ["#!/bin/sh", other, "exit"]),
            "a.csproj": (["<?xml?>", "<P/>"], ["<?xml?>", f"<!-- {cpp[3:]} -->", "<P/>"]),
        }
        for name, (before, after) in files.items():
            with self.subTest(name):
                path = self.file(name, *before)
                self.assertEqual(run(self.script, path)[0], 1)
                self.assertEqual(run(self.script, "--add", path)[0], 0)
                self.assertEqual(path.read_text(encoding="utf-8").splitlines(), after)
                self.assertEqual(run(self.script, "--add", path), (0, ""))

        misplaced = self.file("b.h", "#pragma once", cpp)
        self.assertEqual(run(self.script, "--add", misplaced)[0], 1)
        self.assertEqual(misplaced.read_text(encoding="utf-8").splitlines(), ["#pragma once", cpp])
        self.assertEqual(run(self.script, self.file("text.md", "Words"))[0], 0)


if __name__ == "__main__":
    unittest.main()
