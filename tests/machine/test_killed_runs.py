"""Silent runs that are killed at a random moment: the files of CAD systems and users are whole at once, and
the same run started again ends like an undisturbed one.

The seed is printed; NVX_SEED in the environment repeats the moments of an earlier run. NVX_KILLS is how
many runs are killed; tools/soak kills a thousand.
"""

import os
import random
import re
import shutil
import signal
import time
import unittest
from pathlib import Path

from launcher_case import (
    ADDIN,
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    PROTK_2,
    PROTK_3,
    LauncherCase,
    target_manifest,
)
from machine_case import BUILD, LANE, SHORTCUT
from machine_state import MachineState, comparable_files
from run_steps import INSTALL_STEPS, REMOVAL_STEPS, steps_of
from cadsystems import COM_CLASSES
from winemachine import ENVIRONMENT_KEY, PROGRAM_FILES, SHARED_DATA, TRANSLATORS

# As in test_cycles.py, a path without the release: the guard does not end the server.
INSTALL_DIR = PROGRAM_FILES + "\\Velmora\\NVX"
LOG = INSTALL_DIR + "\\NVXConfig.log"
ALL_KILLS = int(os.environ.get("NVX_KILLS", "14"))
# Of installs that are removed next, and of removals and installs that are repeated.
KILLS_BEFORE_REMOVAL = max(1, ALL_KILLS // 7)
REMOVAL_KILLS = max(1, (ALL_KILLS - KILLS_BEFORE_REMOVAL) // 2)
INSTALL_KILLS = max(1, ALL_KILLS - KILLS_BEFORE_REMOVAL - REMOVAL_KILLS)
MAX_DELAY_S = 0.08
IDLE_S = 3
MATERIALS = SHARED_DATA + "\\matprop.nvxmdb"
FLAGS = SHARED_DATA + "\\NVX_flags.txt"
# Files of CAD systems and users: whole at every moment.
SHARED_FILES = (
    PROTK_2,
    PROTK_3,
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    CUSTOM_DIRS_10 + ".bak",
    CUSTOM_DIRS_11 + ".bak",
    MATERIALS,
    SHARED_DATA + "\\NVX2_config.nvxcfg",
    FLAGS,
)
OUR_KEYS = re.compile(
    "|".join(
        (
            *("velmora", "nvx", r"\\\.tpl", r"\\\.nvz", r"\\services\\"),
            *map(re.escape, (*COM_CLASSES.values(), ENVIRONMENT_KEY)),
        )
    ),
    re.IGNORECASE,
)
# Programs that a run starts; they continue when it is killed.
STARTED = ("7z.exe", "cmd.exe", "regedit.exe", "regsvr32.exe", "NVXViewerConfig.exe", "NVXServer.exe -i")
TEXT = b"prepared by the administrator\r\n" * 200


class Undisturbed:
    """The end of an undisturbed run: its log, and the machine's files and registry."""

    def __init__(self, lines, files, registry):
        self.lines, self.files, self.registry = lines, files, registry


class KilledRuns(LauncherCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.seed = int(os.environ.get("NVX_SEED", time.time_ns() % 1000000))
        print(f"NVX_SEED={cls.seed}", flush=True)
        case = cls()
        case.put_product(INSTALL_DIR, TRANSLATORS)
        # The installer's folder of prepared files has a flags file, which must never be copied in part.
        cls.machine.set_value(ENVIRONMENT_KEY, "OSTRADE2017TEMP", "C:\\prepared")
        case.write("C:\\prepared\\NVX_flags.txt", TEXT)
        case.write(SHARED_DATA + "\\mine.txt", b"mine")
        cls.saved = BUILD / "machines" / ("KilledRuns saved." + LANE)
        cls.bare = MachineState(cls.machine, cls.saved / "bare")
        cls.bare_files = cls.machine.files()
        cls.install = case.undisturbed("-I")
        cls.installed = MachineState(cls.machine, cls.saved / "installed")
        cls.removal = case.undisturbed("-U")

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        shutil.rmtree(cls.saved)

    def undisturbed(self, mode):
        code, lines = self.configure(INSTALL_DIR, mode, "-S", "-Len-US")
        lines = last_run(lines)
        self.assert_complete(code, lines)
        registry = ours(self.machine.registry())
        return Undisturbed(lines, self.lasting_files(), registry)

    def lasting_files(self):
        files = comparable_files(self.machine, LOG)
        return {path: contents for path, contents in files.items() if "\\Temp\\" not in path}

    def kill_at(self, mode, line, delay):
        """Starts a run and kills it `delay` seconds after its log has that many lines; False if it ended
        before."""
        log = self.machine.path(LOG)
        before = line_count(log)
        process = self.machine.start(INSTALL_DIR + "\\NVXConfig.exe", mode, "-S", "-Len-US")
        size = None
        while process.poll() is None:
            grown = log.stat().st_size if log.exists() else 0
            if grown != size and line_count(log) - before >= line:
                break
            size = grown
            time.sleep(0.001)
        time.sleep(delay)
        process.kill()
        return process.wait(timeout=60) == -signal.SIGKILL

    def wait_for_started_programs(self):
        """Waits until the programs that a killed run started have ended.

        A program that was just being started when the run was killed hangs for ever, so it is ended.
        """
        seen = {}
        while True:
            running = self.machine.programs(*STARTED)
            for pid in running:
                used, since = seen.get(pid, (None, 0))
                now = time.monotonic()
                if used != processor_time(pid):
                    seen[pid] = (processor_time(pid), now)
                elif now - since > IDLE_S:
                    end_process(pid)
            if not running:
                return
            time.sleep(0.1)

    def assert_whole(self, before, after):
        """Each shared file is as before the run or as after an undisturbed run; it may be missing if it is
        missing in one of these."""
        files = self.machine.files()
        for path in SHARED_FILES:
            self.assertIn(files.get(path), (before.get(path), after.get(path)), path)
        self.assertEqual(files[SHARED_DATA + "\\mine.txt"], self.bare_files[SHARED_DATA + "\\mine.txt"])

    def kill_and_run_again(self, state, first, again, kills):
        """Kills the run `first` at moments spread over its length, each time from the same state of the
        machine, and then runs `again` to its end. Returns how many runs were killed before their end."""
        expected = self.install if again == "-I" else self.removal
        steps = INSTALL_STEPS if again == "-I" else REMOVAL_STEPS
        disturbed = self.install if first == "-I" else self.removal
        chance = random.Random(f"{self.seed} {first} {again}")
        killed = 0
        for number in range(kills):
            line = int((number + chance.random()) * len(disturbed.lines) / kills)
            delay = chance.uniform(0, MAX_DELAY_S)
            with self.subTest(seed=self.seed, kill=number, line=line, delay=delay):
                state.restore()
                before = self.machine.files()
                killed += self.kill_at(first, line, delay)
                self.assert_whole(before, disturbed.files)
                self.wait_for_started_programs()
                code, lines = self.configure(INSTALL_DIR, again, "-S", "-Len-US")
                lines = last_run(lines)
                self.assert_complete(code, lines)
                self.assertEqual(steps_of(lines, steps), steps)
                self.assert_no_failure_logged(lines)
                registry = ours(self.machine.registry())
                self.assertEqual(self.lasting_files(), expected.files)
                self.assertEqual(registry, expected.registry)
        return killed

    def test_the_next_install_repairs_a_killed_one(self):
        killed = self.kill_and_run_again(self.bare, "-I", "-I", INSTALL_KILLS)
        self.assertGreaterEqual(killed, INSTALL_KILLS * 3 // 4)

    def test_the_next_removal_repairs_a_killed_one(self):
        killed = self.kill_and_run_again(self.installed, "-U", "-U", REMOVAL_KILLS)
        self.assertGreaterEqual(killed, REMOVAL_KILLS * 3 // 4)

    def test_a_killed_install_can_be_removed(self):
        chance = random.Random(f"{self.seed} removed")
        for number in range(KILLS_BEFORE_REMOVAL):
            line = int((number + chance.random()) * len(self.install.lines) / KILLS_BEFORE_REMOVAL)
            with self.subTest(seed=self.seed, kill=number, line=line):
                self.bare.restore()
                self.kill_at("-I", line, chance.uniform(0, MAX_DELAY_S))
                self.wait_for_started_programs()
                code, lines = self.configure(INSTALL_DIR, "-U", "-S", "-Len-US")
                self.assert_removed(code, last_run(lines))
                left = {path for path in self.lasting_files() if path not in self.bare_files}
                self.assertLessEqual(left, with_parents(self.removal.files))

    def test_an_install_has_everything_that_the_other_tests_compare(self):
        for path in (*SHARED_FILES, SHORTCUT, ADDIN + ".dll", target_manifest(2017)):
            self.assertIn(path, self.install.files)
        self.assertEqual(self.install.files[FLAGS], self.install.files["C:\\prepared\\NVX_flags.txt"])
        for key in COM_CLASSES.values():
            self.assertTrue([k for k in self.install.registry if k.lower().startswith(key.lower())])
            self.assertFalse([k for k in self.removal.registry if k.lower().startswith(key.lower())])
        self.assertTrue([k for k in self.install.registry if k.endswith("\\NVX 2017 Server")])


def ours(registry):
    """The part of a registry that a run may change."""
    return {key: values for key, values in registry.items() if OUR_KEYS.search(key)}


def last_run(lines):
    """The lines of the last run in a log, which begin with a line of "="."""
    banner = "   0 " + "=" * 77
    return lines[len(lines) - 1 - lines[::-1].index(banner) :]


def with_parents(files):
    """These paths and every folder above them. A run that is killed while it creates a path leaves the first
    of its folders, empty."""
    paths = set(files)
    for path in files:
        parts = path.rstrip("\\").split("\\")
        paths.update("\\".join(parts[:count]) + "\\" for count in range(1, len(parts)))
    return paths


def end_process(pid):
    try:
        os.kill(pid, signal.SIGKILL)
    except ProcessLookupError:
        pass  # it has ended by itself


def processor_time(pid):
    """The processor time of a process in clock ticks; None if it has ended."""
    try:
        values = Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    except OSError:
        return None
    return int(values[11]) + int(values[12])


def line_count(path):
    return path.read_bytes().count(b"\n") if path.exists() else 0


if __name__ == "__main__":
    unittest.main()
