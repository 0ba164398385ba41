""".ci/run runs the commands of the README and nothing else."""

import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from documents import ROOT, section_of, text_of

SECTION = "Two commands"
RUNNER = (".ci/run", "tools/readme-commands", "tools/lib.sh")
README = """# A project

## Before

    tools/not-this-one      of another section

## Two commands

Text before the block:

%s

Text after it.

    tools/nor-this-one      a later block

## After

    tools/nor-that-one
"""


def block_of(document):
    """The lines of the section's first indented block."""
    found = re.search(r"(?:^    .*\n)+", section_of(document, SECTION), re.MULTILINE)
    return found.group().splitlines()


class Checkout:
    """A checkout with the scripts that run the commands, its own README and its own commands."""

    def __init__(self, folder, block):
        self.folder = folder
        for name in RUNNER:
            (folder / name).parent.mkdir(exist_ok=True)
            shutil.copy(ROOT / name, folder / name)
        (folder / "README.md").write_text(README % block, encoding="utf-8")
        (folder / ".gitignore").write_text("/ran\n", encoding="utf-8")

    def add(self, name, *lines):
        """Adds a command that records its arguments and its working folder."""
        note = f'echo "{name} $* in $PWD" | tee -a "{self.folder}/ran"'
        path = self.folder / name
        path.write_text("\n".join(["#!/bin/sh", note, *lines, ""]), encoding="utf-8")
        path.chmod(0o755)

    def run(self):
        for command in (["init", "-q"], ["add", "-A"], ["commit", "-q", "-m", "Begin"]):
            identity = ["-c", "user.name=A", "-c", "user.email=a@example.com"]
            subprocess.run(["git", *identity, *command], cwd=self.folder, check=True)
        return subprocess.run(
            [self.folder / ".ci" / "run"],
            cwd="/",
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            encoding="utf-8",
            check=False,
        )

    def ran(self):
        """The commands that ran, in order."""
        path = self.folder / "ran"
        return path.read_text(encoding="utf-8").splitlines() if path.exists() else []


class CiRun(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name).resolve()

    def checkout(self, *lines):
        return Checkout(self.folder, "\n".join("    " + line for line in lines))

    def test_the_commands_run_in_order_in_the_checkout(self):
        checkout = self.checkout(
            "tools/second --all -- -U      what it does, which goes on",
            "                              in another line",
            "tools/first",
        )
        # A command that reads its input does not read the list of commands.
        checkout.add("tools/second", "cat")
        checkout.add("tools/first")
        done = checkout.run()
        self.assertEqual(done.returncode, 0, done.stderr)
        expected = [f"tools/second --all -- -U in {self.folder}", f"tools/first  in {self.folder}"]
        self.assertEqual(checkout.ran(), expected)
        for line in expected:
            self.assertIn(line, done.stdout.splitlines())
        self.assertRegex(done.stdout, r"(?m)^== README: tools/second --all -- -U took \d+ s$")

    def test_the_run_ends_at_the_first_command_that_fails(self):
        checkout = self.checkout("tools/first", "tools/fails", "tools/last")
        checkout.add("tools/first")
        checkout.add("tools/fails", "exit 3")
        checkout.add("tools/last")
        done = checkout.run()
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("error: 'tools/fails' ended with exit status 3", done.stderr)
        self.assertEqual([line.split()[0] for line in checkout.ran()], ["tools/first", "tools/fails"])

    def test_a_missing_command_fails(self):
        done = self.checkout("tools/nowhere").run()
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("'tools/nowhere' ended with exit status 127", done.stderr)

    def test_a_changed_work_tree_fails(self):
        for change in ("echo more >>README.md", "touch left-over"):
            with self.subTest(change), tempfile.TemporaryDirectory() as scratch:
                checkout = Checkout(Path(scratch).resolve(), "    tools/changes")
                checkout.add("tools/changes", change)
                done = checkout.run()
                self.assertNotEqual(done.returncode, 0)
                self.assertIn("have changed the work tree", done.stderr)
                self.assertIn(change.split()[-1].lstrip(">"), done.stderr)

    def test_a_block_without_commands_fails(self):
        for block in ("", "                indented further"):
            with self.subTest(block), tempfile.TemporaryDirectory() as scratch:
                readme = README.split("## After")[0].replace("    tools/nor-this-one      a later block", "")
                checkout = Checkout(Path(scratch).resolve(), block)
                (checkout.folder / "README.md").write_text(readme % block, encoding="utf-8")
                done = checkout.run()
                self.assertNotEqual(done.returncode, 0)
                self.assertIn("has no command", done.stderr)


class ReadmeCommands(unittest.TestCase):
    def test_the_commands_are_those_of_the_readmes_block(self):
        block = block_of(text_of("README.md"))
        expected = [re.split(r"\s{2,}", line.strip())[0] for line in block if not line.startswith(" " * 5)]
        done = subprocess.run([ROOT / "tools/readme-commands"], stdout=subprocess.PIPE, check=True)
        commands = done.stdout.decode().splitlines()
        self.assertEqual(commands, expected)
        self.assertEqual(commands[:2], ["tools/demo", "tools/test"])

    def test_the_commands_are_programs_of_this_checkout(self):
        done = subprocess.run([ROOT / "tools/readme-commands"], stdout=subprocess.PIPE, check=True)
        for command in done.stdout.decode().splitlines():
            self.assertTrue((ROOT / command.split()[0]).stat().st_mode & 0o111, command)


if __name__ == "__main__":
    unittest.main()
