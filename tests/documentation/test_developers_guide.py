"""The files and commands of the pages below, run in order, have the results on the page.

The tools are on the PATH, which ctest sets.
"""

import subprocess
import tempfile
import unittest
from pathlib import Path

from documents import blocks_of, text_of

GUIDE = "docs/developers-guide.md"
CHECK = "docs/message-table-check.md"
SUMMARY = "docs/log-summary.md"


def commands_of(text):
    """[command, output] for each command of a console block; "> " continues a command."""
    commands = []
    for line in text.splitlines():
        if line.startswith("$ "):
            commands.append([line[2:], ""])
        elif line.startswith("> "):
            commands[-1][0] += "\n" + line[2:]
        else:
            commands[-1][1] += line + "\n"
    return commands


class DevelopersGuide(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_command(self, command, expected):
        done = subprocess.run(
            ["bash", "-c", command],
            cwd=self.folder,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=60,
        )
        self.assertEqual(done.stdout.decode("utf-8"), expected, command)
        self.assertEqual(done.returncode, 0, command)

    def follow(self, block):
        path = self.folder / block.name
        if block.what == "file":
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(block.text, encoding="utf-8")
        elif block.what == "part of":
            self.assertIn(block.text, path.read_text(encoding="utf-8"))
        elif block.what == "source":
            self.assertEqual(block.text, text_of(block.name))
        elif block.what == "run":
            for command, output in commands_of(block.text):
                self.run_command(command, output)
        else:
            self.fail(f"unknown kind of block: '{block.what}'")

    def follow_page(self, page):
        """Follows all blocks of the page, and returns their kinds."""
        blocks = blocks_of(text_of(page))
        for block in blocks:
            self.follow(block)
        return [block.what for block in blocks]

    def test_every_block_of_the_guide_is_right(self):
        kinds = self.follow_page(GUIDE)
        self.assertGreaterEqual(kinds.count("run"), 8)
        self.assertEqual(kinds.count("source"), 1)
        self.assertGreaterEqual(kinds.count("part of"), 2)

    def test_every_block_on_the_page_of_the_check_is_right(self):
        kinds = self.follow_page(CHECK)
        self.assertGreaterEqual(kinds.count("run"), 6)
        self.assertEqual(kinds.count("file"), 2)

    def test_every_block_on_the_page_of_the_log_summary_is_right(self):
        kinds = self.follow_page(SUMMARY)
        self.assertEqual((kinds.count("run"), kinds.count("file")), (4, 3))

    def test_every_block_is_tried(self):
        for page in (GUIDE, CHECK, SUMMARY):
            document = text_of(page)
            self.assertEqual(2 * len(blocks_of(document)), document.count("```"))


class DevelopersGuideChecks(unittest.TestCase):
    def test_a_block_is_split_into_commands_and_outputs(self):
        self.assertEqual(
            commands_of("$ one\nout\n\n$ two \\\n> more\n$ three\n"),
            [["one", "out\n\n"], ["two \\\nmore", ""], ["three", ""]],
        )


if __name__ == "__main__":
    unittest.main()
