# SPDX-License-Identifier: MIT
"""What scripts/write-tables finds and writes."""

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
        in_comment = ("include/tovisdk/flat.h", "Status. Plays a playlist.", "Always. Plays | stops.")
        in_build = ("CMakeLists.txt", '"Build the tests" ${PROJECT_IS_TOP_LEVEL}', '"Build tests" OFF')
        for change in (in_document, in_table, in_comment, in_build):
            self.change(*change)
        before = [path.read_text(encoding="utf-8") for path in sorted(self.folder.glob("docs/*"))]

        status, shown = run(self.script, "--check")
        self.assertEqual(status, 1)
        self.assertIn("-| `setPower` | 0x04 | 0x06 | 100 | - |", shown)
        self.assertIn("+| `setPower` | 0x05 | 0x06 | 100 | - |", shown)
        self.assertIn("+| `setFont` | 0xD2 | none | none | 0 to 1024 |", shown)
        self.assertIn("+| `playListById` | int id | always | Plays \\| stops. |", shown)
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


if __name__ == "__main__":
    unittest.main()
