"""Silent runs that are killed at any instant: the files of CAD systems and users are whole at once, and the
same run started again ends as one that nobody disturbed.

NVX_SEED in the environment repeats the instants of an earlier run; the seed is printed.
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
from machine_case import BUILD, LANE
from machine_state import MachineState
from cadsystems import COM_CLASSES
from test_cycles import INSTALL, INSTALL_DIR, LOG, REMOVAL, steps_of
from winemachine import ENVIRONMENT_KEY, SHARED_DATA, TRANSLATORS

KILLS = 25  # of an install, and as many of a removal
KILLS_BEFORE_REMOVAL = 6
LONGEST_DELAY_S = 0.08
IDLE_S = 3
SHORTCUT = "C:\\users\\Public\\Desktop\\Velmora NVX 2017.lnk"
MATERIALS = SHARED_DATA + "\\matprop.nvxmdb"
FLAGS = SHARED_DATA + "\\NVX_flags.txt"
# What others own or users keep: whole at every instant.
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
# Programs that a run starts; they go on when it is killed.
STARTED = ("7z.exe", "cmd.exe", "regedit.exe", "regsvr32.exe", "NVXViewerConfig.exe", "NVXServer.exe -i")
TEXT = b"prepared by the administrator\r\n" * 200


class Undisturbed:
    """How a run ends that nobody disturbs: its log, and what is on the machine."""

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
        # The installer's folder of prepared files holds flags that must never arrive in part.
        cls.machine.set_value(ENVIRONMENT_KEY, "OSTRADE2017TEMP", "C:\\prepared")
        case.write("C:\\prepared\\NVX_flags.txt", TEXT)
        case.write(SHARED_DATA + "\\mine.txt", b"mine")
        cls.kept = BUILD / "machines" / ("KilledRunsKept." + LANE)
        cls.bare = MachineState(cls.machine, cls.kept / "bare")
        cls.bare_files = cls.machine.files()
        cls.install = case.undisturbed("-I")
        cls.installed = MachineState(cls.machine, cls.kept / "installed")
        cls.removal = case.undisturbed("-U")

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        shutil.rmtree(cls.kept)

    def undisturbed(self, mode):
        code, lines = self.configure(INSTALL_DIR, mode, "-S", "-Len-US")
        lines = last_run(lines)
        self.assert_complete(code, lines)
        registry = ours(self.machine.registry())
        return Undisturbed(lines, self.comparable_files(), registry)

    def comparable_files(self):
        """The files of the machine. The log tells of each run, and a shortcut holds when its program was
        looked at last."""
        files = {p: h for p, h in self.machine.files().items() if p != LOG and "\\Temp\\" not in p}
        if SHORTCUT in files:
            files[SHORTCUT] = ""
        return files

    def kill_at(self, mode, line, delay):
        """Starts a run and kills it when its log has so many lines, and a moment later. False when it had
        come to its end by then."""
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
        """Nobody starts a run again in the same second. A program that was just being started is never let
        go, and would stay for ever; it is ended."""
        seen = {}
        while True:
            running = self.machine.programs(*STARTED)
            for pid in running:
                work, since = seen.get(pid, (None, 0))
                now = time.monotonic()
                if work != processor_time(pid):
                    seen[pid] = (processor_time(pid), now)
                elif now - since > IDLE_S:
                    end_process(pid)
            if not running:
                return
            time.sleep(0.1)

    def assert_whole(self, before, after):
        """Each shared file is as before the run or as after one that nobody disturbed, or is not there if
        it was not before or is not after."""
        files = self.machine.files()
        for path in SHARED_FILES:
            self.assertIn(files.get(path), (before.get(path), after.get(path)), path)
        self.assertEqual(files[SHARED_DATA + "\\mine.txt"], self.bare_files[SHARED_DATA + "\\mine.txt"])

    def kill_and_run_again(self, state, first, again, kills):
        """Kills the run `first` at instants spread over its length, from that state of the machine each
        time, and runs `again` to its end; answers how many were killed under way."""
        expected = self.install if again == "-I" else self.removal
        beginnings = INSTALL if again == "-I" else REMOVAL
        disturbed = self.install if first == "-I" else self.removal
        chance = random.Random(f"{self.seed} {first} {again}")
        under_way = 0
        for number in range(kills):
            line = int((number + chance.random()) * len(disturbed.lines) / kills)
            delay = chance.uniform(0, LONGEST_DELAY_S)
            with self.subTest(seed=self.seed, kill=number, line=line, delay=delay):
                state.bring_back()
                before = self.machine.files()
                under_way += self.kill_at(first, line, delay)
                self.assert_whole(before, disturbed.files)
                self.wait_for_started_programs()
                code, lines = self.configure(INSTALL_DIR, again, "-S", "-Len-US")
                lines = last_run(lines)
                self.assert_complete(code, lines)
                self.assertEqual(steps_of(lines, beginnings), beginnings)
                self.assertFalse([entry for entry in lines if entry.startswith("   1 ")])
                registry = ours(self.machine.registry())
                self.assertEqual(self.comparable_files(), expected.files)
                self.assertEqual(registry, expected.registry)
        return under_way

    def test_a_killed_install_is_mended_by_the_next(self):
        under_way = self.kill_and_run_again(self.bare, "-I", "-I", KILLS)
        self.assertGreaterEqual(under_way, KILLS * 3 // 4)

    def test_a_killed_removal_is_mended_by_the_next(self):
        under_way = self.kill_and_run_again(self.installed, "-U", "-U", KILLS)
        self.assertGreaterEqual(under_way, KILLS * 3 // 4)

    def test_an_install_that_was_killed_can_be_removed(self):
        chance = random.Random(f"{self.seed} removed")
        for number in range(KILLS_BEFORE_REMOVAL):
            line = int((number + chance.random()) * len(self.install.lines) / KILLS_BEFORE_REMOVAL)
            with self.subTest(seed=self.seed, kill=number, line=line):
                self.bare.bring_back()
                self.kill_at("-I", line, chance.uniform(0, LONGEST_DELAY_S))
                self.wait_for_started_programs()
                code, lines = self.configure(INSTALL_DIR, "-U", "-S", "-Len-US")
                self.assert_removed(code, last_run(lines))
                left = {path for path in self.comparable_files() if path not in self.bare_files}
                self.assertLessEqual(left, set(self.removal.files))

    def test_an_install_brings_what_is_compared(self):
        # What the comparisons above rest on.
        for path in (*SHARED_FILES, SHORTCUT, ADDIN + ".dll", target_manifest(2017)):
            self.assertIn(path, self.install.files)
        self.assertEqual(self.install.files[FLAGS], self.install.files["C:\\prepared\\NVX_flags.txt"])
        for key in COM_CLASSES.values():
            self.assertTrue([k for k in self.install.registry if k.lower().startswith(key.lower())])
            self.assertFalse([k for k in self.removal.registry if k.lower().startswith(key.lower())])
        self.assertTrue([k for k in self.install.registry if k.endswith("\\NVX 2017 Server")])


def ours(registry):
    """The part of a registry that a run has to do with."""
    return {key: values for key, values in registry.items() if OUR_KEYS.search(key)}


def last_run(lines):
    """The lines of the last run of a log, from the line of "=" on."""
    banner = "   0 " + "=" * 77
    return lines[len(lines) - 1 - lines[::-1].index(banner) :]


def end_process(pid):
    try:
        os.kill(pid, signal.SIGKILL)
    except ProcessLookupError:
        pass  # it was faster


def processor_time(pid):
    """What a process has used, in ticks of the clock; None when it is gone."""
    try:
        values = Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    except OSError:
        return None
    return int(values[11]) + int(values[12])


def line_count(path):
    return path.read_bytes().count(b"\n") if path.exists() else 0


if __name__ == "__main__":
    unittest.main()
