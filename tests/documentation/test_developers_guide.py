"""The files and commands of docs/developers-guide.md, in their order, do what the page says.

The tools are looked for on the PATH, which ctest sets.
"""

import subprocess
import tempfile
import unittest
from pathlib import Path

from documents import blocks_of, text_of


def commands_of(text):
    """The commands of a console block with the output shown below each; "> " goes on with a command."""
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
        answer = subprocess.run(
            ["bash", "-c", command],
            cwd=self.folder,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=60,
        )
        self.assertEqual(answer.stdout.decode("utf-8"), expected, command)
        self.assertEqual(answer.returncode, 0, command)

    def obey(self, block):
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
            self.fail(f"nobody knows what to do with a block '{block.what}'")

    def test_everything_on_the_page_is_so(self):
        blocks = blocks_of(text_of("docs/developers-guide.md"))
        for block in blocks:
            self.obey(block)
        kinds = [block.what for block in blocks]
        self.assertGreaterEqual(kinds.count("run"), 8)
        self.assertEqual(kinds.count("source"), 1)
        self.assertGreaterEqual(kinds.count("part of"), 2)

    def test_no_block_is_shown_without_being_tried(self):
        document = text_of("docs/developers-guide.md")
        self.assertEqual(2 * len(blocks_of(document)), document.count("```"))


class Commands(unittest.TestCase):
    def test_a_block_is_taken_apart_into_commands_and_outputs(self):
        self.assertEqual(
            commands_of("$ one\nout\n\n$ two \\\n> more\n$ three\n"),
            [["one", "out\n\n"], ["two \\\nmore", ""], ["three", ""]],
        )


if __name__ == "__main__":
    unittest.main()
