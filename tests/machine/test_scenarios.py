"""Runs the scenarios: each folder in "scenarios" is a test with its name. scenarios/README.md describes its
files."""

import contextlib
import difflib
import os
import shutil
import unittest
from pathlib import Path

from guarded_program import GUARDED, GuardedProgram
from machine_case import BUILD, SCRIPTED_TOOL, MachineCase, log_lines, new_machine
from scenario import FileLine, Run, log_difference, read_scenario
from winemachine import TRANSLATORS_KEY, value_of

SCENARIOS = Path(__file__).resolve().parent / "scenarios"

# The endings of temporary files, which a run deletes.
TEMPORARY = ("work.bat", "FileAssociations.reg", ".nvxpart")


class Scenarios(MachineCase):
    """_add_tests adds a method for each folder. Each test has its own machine."""

    @classmethod
    def setUpClass(cls):
        """Each test makes its machine."""

    @classmethod
    def tearDownClass(cls):
        """Each test has deleted its machine."""

    def run_scenario(self, folder):
        scenario = read_scenario(folder)
        self.machine = new_machine(self._testMethodName, scenario.locale)
        self.addCleanup(shutil.rmtree, self.machine.prefix)
        self.addCleanup(self.machine.stop)
        self.marks = 0
        self.written = {}  # files of the scenario: {path: contents}
        self.prepare(scenario)
        with contextlib.ExitStack() as held:
            programs = [(p, self.start(p)) for p in scenario.processes]
            for line in scenario.before:
                self.hold(line, held)
            for step in scenario.steps:
                if isinstance(step, Run):
                    self.run_once(scenario, step)
                else:
                    self.change(step)
                    self.hold(step, held)
        for process, program in programs:
            with self.subTest(process.path):
                self.assertEqual(program.is_running(), not process.is_ended)
                program.stop()
        self.assert_log(scenario)
        # Reading the registry stops the machine.
        registry = self.machine.registry() if scenario.registry else {}
        for expectation in scenario.registry:
            with self.subTest(expectation.key, name=expectation.name):
                self.assert_registry(registry, expectation)
        self.assert_files(scenario.after)

    def prepare(self, scenario):
        self.put_product(scenario.install_dir)
        for line in scenario.before:
            self.change(line)
        if scenario.script:
            self.machine.import_script(scenario.script)

    def change(self, line: FileLine):
        """Changes the machine by a line of files-before.txt."""
        path = self.machine.path(line.path)
        if line.word == "folder":
            path.mkdir(parents=True, exist_ok=True)
        elif line.word == "without":
            self.assertTrue(path.exists(), "the product has no file " + line.path)
            shutil.rmtree(path) if path.is_dir() else path.unlink()
        elif line.word == "protected":
            path.chmod(0o444)
        elif line.word == "translators":
            shutil.copytree(BUILD / "sample" / "translators", path, dirs_exist_ok=True)
            self.machine.set_value(TRANSLATORS_KEY, "Folder", line.path)
        elif line.word == "tool":
            self.write(line.path, SCRIPTED_TOOL.read_bytes())
            self.write(line.path + ".script", line.contents)
        elif line.word == "file":
            self.write(line.path, line.contents)
            self.written[line.path] = line.contents

    def hold(self, line, held):
        if line.word == "held":
            self.marks += 1
            held.enter_context(self.held(line.path, f"C:\\mark {self.marks}"))

    def start(self, process):
        name = process.path.rpartition("\\")[2].lower()
        source = next(p for p in (GUARDED / "product").iterdir() if p.name.lower() == name)
        return GuardedProgram(self.machine, process.path, source)

    def run_once(self, scenario, run):
        program = scenario.install_dir + "\\NVXConfig.exe"
        folder = run.folder
        if folder:
            self.machine.path(folder).mkdir(parents=True, exist_ok=True)
        done = self.machine.run(program, *run.tokens, folder=folder)
        self.assertEqual(done.returncode, 0, (run.tokens, done.stdout[-2000:]))
        self.assert_no_temporary_file_is_left()

    def assert_no_temporary_file_is_left(self):
        for place, folders, names in os.walk(self.machine.path("C:\\")):
            folders[:] = [name for name in folders if name != "windows"]
            left = [name for name in names if name.endswith(TEMPORARY)]
            self.assertEqual(left, [], place)

    def assert_log(self, scenario):
        lines = log_lines(self.machine.path(scenario.install_dir + "\\NVXConfig.log"))
        difference = log_difference(scenario.log, lines)
        with self.subTest("the log"):
            if difference:
                self.fail("\n".join(difference))

    def assert_registry(self, registry, expectation):
        shown = expectation.key + ("" if expectation.name is None else ", " + (expectation.name or "@"))
        if expectation.name is None:
            key = expectation.key.lower()
            found = [path for path in registry if (path.lower() + "\\").startswith(key + "\\")]
            self.assertEqual(bool(found), expectation.exists, f"{shown}: {found}")
        else:
            found = value_of(registry, expectation.key, expectation.name)
            self.assertEqual(found, expectation.text, shown)

    def assert_files(self, after):
        named = {line.path.lower(): line for line in after}
        for path, contents in self.written.items():
            if path.lower() not in named and not must_be_deleted(path, named):
                with self.subTest(path):
                    self.assert_contents(path, contents)
        for line in after:
            with self.subTest(f"{line.word} {line.path}"):
                self.assert_file(line)

    def assert_file(self, line):
        path = self.machine.path(line.path)
        if line.word == "nothing":
            self.assertFalse(path.exists(), "exists: " + line.path)
        elif line.word == "folder":
            self.assertTrue(path.is_dir(), "is not a folder: " + line.path)
        elif line.word == "only":
            self.assertTrue(path.is_dir(), "is not a folder: " + line.path)
            self.assertEqual(sorted(p.name for p in path.iterdir()), sorted(line.names))
        elif line.like:
            self.assert_contents(line.path, self.machine.path(line.like).read_bytes())
        elif line.contents is not None:
            self.assert_contents(line.path, line.contents)
        else:
            self.assertTrue(path.is_file(), "is not a file: " + line.path)

    def assert_contents(self, windows_path, expected):
        path = self.machine.path(windows_path)
        self.assertTrue(path.is_file(), "is not a file: " + windows_path)
        found = path.read_bytes()
        if found != expected:
            difference = "\n".join(difflib.ndiff(_shown(expected), _shown(found)))
            self.fail(f"{windows_path}: - expected, + found\n{difference}")


def must_be_deleted(path, named):
    """Whether a folder that contains the file must not exist, or must contain other names only."""
    for at, character in enumerate(path):
        folder = named.get(path[:at].lower()) if character == "\\" else None
        if folder and folder.word == "nothing":
            return True
        if folder and folder.word == "only" and path[at + 1 :].partition("\\")[0] not in folder.names:
            return True
    return False


def _shown(contents):
    """The lines of a file with their invisible characters escaped."""
    return [ascii(line)[2:-1] for line in contents[:20000].splitlines(keepends=True)]


def _add_tests():
    def test_of(folder):
        return lambda case: case.run_scenario(folder)

    for folder in sorted(folder for folder in SCENARIOS.iterdir() if folder.is_dir()):
        setattr(Scenarios, "test_" + folder.name, test_of(folder))


_add_tests()

if __name__ == "__main__":
    unittest.main()
