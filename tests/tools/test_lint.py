"""tools/lint form reports each kind of fault, in a small checkout made for the test."""

import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
MISSPELLED = "rec" + "ieve"  # split, or the spelling check would report this file
CHECKS = ("lint", "lib.sh", "source_form.py", "python_checks.py", "spelling.txt")
SETTINGS = (".clang-format", ".shellcheckrc", "pyproject.toml", "setup.cfg")
GOOD = {
    "source/good.h": "#pragma once\n\nint good();\n",
    "tools/good.py": '"""A script."""\n\n\ndef good(number: int) -> str:\n    return f"{number}"\n',
    "tools/good": '#!/usr/bin/env bash\necho "$1"\n',
    "tests/machine/test_good.py": "def good():\n    pass\n",
    # The product's own files, test inputs and translations are not checked.
    "sample/archives/bad.py": "import  os\n",
    "tests/scanner/cases/bad/source.cpp": f"int  a; // {MISSPELLED}\n",
    "resource/languages/bad.ts": f"{MISSPELLED}\n",
}
# (file, its text, part of the report)
FAULTS = (
    ("source/layout.h", "#pragma once\n\nint  a();\n", "source/layout.h:3:4: error"),
    ("source/twice.h", "int b();\n", "source/twice.h:1: #pragma once is missing"),
    ("source/system.cpp", "#ifdef _WIN32\n#endif\n", "source/system.cpp:1: a branch on the operating"),
    ("source/wide.cpp", "// " + "x" * 120 + "\n", "source/wide.cpp:1: the line has 123 characters"),
    ("CMakeLists.txt", "\n" * 501, "CMakeLists.txt:501: the file has 501 lines"),
    ("tools/long", "#!/bin/sh\n" + "\n" * 500, "tools/long:501: the file has 501 lines"),
    ("tools/layout.py", "a = {1:2}\n", "-a = {1:2}"),
    ("tools/unused.py", "import os\n", "tools/unused.py:1:1: F401"),
    ("tools/bare", "#!/usr/bin/env python3\nimport os\n", "tools/bare:2:1: F401"),
    ("tools/strings.py", 'a = "%s" % 1\n', "tools/strings.py:1:5: NVX1"),
    ("tools/hints.py", "def f(a):\n    return a\n", "tools/hints.py:1:1: NVX2"),
    ("tests/machine/shared.py", "def f():\n    pass\n", "tests/machine/shared.py:1:1: NVX2"),
    ("tools/values.py", 'a: int = "text"\n', "tools/values.py:1: error: Incompatible types"),
    ("tools/words", "#!/bin/sh\necho $1\n", "tools/words:2:6: note: Double quote"),
    ("tests/syntax.sh", "#!/bin/sh\nif\n", "tests/syntax.sh:2:1: error"),
    ("docs/page.md", f"One line.\nWe {MISSPELLED}.\n", f"docs/page.md:2: {MISSPELLED} ==> receive"),
)


class Lint(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        subprocess.run(["git", "init", "--quiet"], cwd=self.folder, check=True)
        for name in SETTINGS:
            shutil.copy(ROOT / name, self.folder / name)
        (self.folder / "tools").mkdir()
        for name in CHECKS:
            shutil.copy(ROOT / "tools" / name, self.folder / "tools" / name)
        for name, text in GOOD.items():
            self.write(name, text)

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def lint(self):
        """Returns the exit status and the output without its headings."""
        subprocess.run(["git", "add", "--all"], cwd=self.folder, check=True)
        done = subprocess.run(
            ["tools/lint", "form"],
            cwd=self.folder,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            text=True,
        )
        lines = [line for line in done.stdout.splitlines() if not line.startswith("== ")]
        return done.returncode, "\n".join(lines)

    def test_a_checkout_without_faults_passes(self):
        self.assertEqual(self.lint(), (0, ""))

    def test_each_fault_is_reported_with_its_file_and_line(self):
        for name, text, _ in FAULTS:
            self.write(name, text)
        status, output = self.lint()
        self.assertEqual(status, 1)
        for name, _, finding in FAULTS:
            with self.subTest(name):
                self.assertIn(finding, output)


if __name__ == "__main__":
    unittest.main()
