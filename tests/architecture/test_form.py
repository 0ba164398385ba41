"""What holds for every source: where the operating system may be told, and how long a file may be."""

import re
import subprocess
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LONGEST = 500
# Only these know which operating system they are on; a case is input of a test, not code.
KNOW_THEIR_SYSTEM = ("Utility/source/", "sample/")
_BRANCH = re.compile(
    r"^\s*#\s*(?:el)?if(?:n?def)?\b.*(?:_WIN32|_WIN64|\bWIN32\b|Q_OS_|Q_CC_|__linux__|__unix__|"
    r"__APPLE__|_MSC_VER|__MINGW)",
    re.MULTILINE,
)
_CASE = re.compile(r"^tests/[^/]+/cases/")


def tracked(*patterns):
    """The files of the project with one of these endings; those that a test takes for input left out."""
    answer = subprocess.run(
        ["git", "ls-files", "-co", "--exclude-standard", "--", *patterns],
        cwd=ROOT,
        stdout=subprocess.PIPE,
        check=True,
    )
    names = sorted(set(answer.stdout.decode().splitlines()))
    return [name for name in names if not _CASE.match(name) and (ROOT / name).is_file()]


def has_branch(text):
    return bool(_BRANCH.search(text))


class Form(unittest.TestCase):
    def text_of(self, name):
        return (ROOT / name).read_text(encoding="utf-8")

    def test_only_its_own_modules_ask_for_the_operating_system(self):
        files = [n for n in tracked("*.cpp", "*.h") if not n.startswith(KNOW_THEIR_SYSTEM)]
        self.assertGreater(len(files), 300)
        self.assertEqual([name for name in files if has_branch(self.text_of(name))], [])

    def test_branches_on_the_operating_system_are_recognised(self):
        for line in ("#ifdef _WIN32", "#  if defined(Q_OS_WIN)", "#elif __linux__", "#ifndef _WIN32"):
            self.assertTrue(has_branch("int a;\n" + line + "\n"), line)
        for line in ("#ifdef NVX_SANITIZE", "// #ifdef _WIN32", '#include "windows/window.h"'):
            self.assertFalse(has_branch(line + "\n"), line)

    def test_no_source_is_longer_than_500_lines(self):
        files = tracked("*.cpp", "*.h", "*.py", "*.sh", "*.cmake", "*CMakeLists.txt", "tools/*")
        self.assertGreater(len(files), 400)
        long = {name: self.text_of(name).count("\n") for name in files}
        self.assertEqual({n: lines for n, lines in long.items() if lines > LONGEST}, {})


if __name__ == "__main__":
    unittest.main()
