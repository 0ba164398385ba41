"""The whole product on a machine with every CAD system, installed and removed repeatedly: the steps and their
order, and what is left. NVX_CYCLES in the environment is how often; tools/soak does it twenty times."""

import os
import unittest

from launcher_case import CUSTOM_DIRS_10, CUSTOM_DIRS_11, LauncherCase
from run_steps import INSTALL_STEPS, LEFT_ELSEWHERE, REMOVAL_STEPS, steps_of
from winemachine import PROGRAM_FILES

CYCLES = int(os.environ.get("NVX_CYCLES", "4"))
# The path does not contain the release, so the guard does not end the server; the removal stops it as a
# service. Otherwise the removal would wait until the control manager noticed that the process had ended.
INSTALL_DIR = PROGRAM_FILES + "\\Velmora\\NVX"
LOG = INSTALL_DIR + "\\NVXConfig.log"
CUSTOM_DIRS = (CUSTOM_DIRS_10, CUSTOM_DIRS_11)

# What a removal leaves in the install dir.
LEFT_IN_INSTALL_DIR = [
    LOG,
    # The libraries of the chosen language count as the product's own files.
    INSTALL_DIR + "\\VelmoraApplicationFrameRes.dll",
    INSTALL_DIR + "\\VistrelResources.dll",
    # Written by the sample's viewer when it starts.
    INSTALL_DIR + "\\NVX Viewer\\last-start.txt",
]


class Cycles(LauncherCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.put_product(cls(), INSTALL_DIR)
        cls.before = cls.machine.files()
        cls.installed_lines = cls.run_once("-I", "-S", "-Len-US")
        cls.removed_lines = cls.run_once("-U", "-S", "-Len-US")
        cls.first, cls.first_registry = cls.state()
        for _ in range(CYCLES - 1):
            # A removal deletes files of the install dir that the installer brings.
            cls.put_product(cls(), INSTALL_DIR)
            cls.run_once("-I", "-S", "-Len-US")
            cls.run_once("-U", "-S", "-Len-US")
        cls.last, cls.last_registry = cls.state()

    @classmethod
    def run_once(cls, *tokens):
        """One run; returns the lines of its log."""
        code, lines = cls().configure_with_new_log(INSTALL_DIR, *tokens)
        if code != 0:
            raise AssertionError(f"{tokens} exited with {code}")
        return lines

    @classmethod
    def state(cls):
        return cls.machine.files(), cls.machine.registry()

    def test_an_install_runs_every_step_in_order(self):
        self.assertEqual(steps_of(self.installed_lines, INSTALL_STEPS), INSTALL_STEPS)

    def test_a_removal_runs_every_step_in_order(self):
        self.assertEqual(steps_of(self.removed_lines, REMOVAL_STEPS), REMOVAL_STEPS)

    def test_a_removal_leaves_only_the_listed_files(self):
        left = sorted(path for path in self.first if path not in self.before)
        self.assertEqual(left, sorted(LEFT_ELSEWHERE + LEFT_IN_INSTALL_DIR))

    def test_a_removal_restores_every_file_but_the_menus_of_nx(self):
        changed = [
            path
            for path, contents in self.first.items()
            if path in self.before and self.before[path] != contents
        ]
        self.assertEqual(sorted(changed), sorted(CUSTOM_DIRS))

    def test_the_files_after_the_last_cycle_are_those_after_the_first(self):
        # Each cycle has a log of its own, and leaves the line end before the line for NX.
        excepted = (LOG, *CUSTOM_DIRS)
        first = {path: contents for path, contents in self.first.items() if path not in excepted}
        last = {path: contents for path, contents in self.last.items() if path not in excepted}
        self.assertEqual(last, first)

    def test_each_cycle_leaves_one_empty_line_in_the_menus_of_nx(self):
        for path in CUSTOM_DIRS:
            contents = self.machine.path(path).read_bytes()
            before = self.machine.path(path + ".bak").read_bytes()
            self.assertEqual(contents, before + b"\r\n" * CYCLES)

    def test_the_registry_after_the_last_cycle_is_that_after_the_first(self):
        def ours(registry):
            return {
                key: values
                for key, values in registry.items()
                if "velmora" in key.lower() or "nvx" in key.lower() or "\\services\\" in key.lower()
            }

        self.assertEqual(ours(self.last_registry), ours(self.first_registry))
        self.assertFalse([key for key in self.last_registry if "NVX 2017 Server" in key])


if __name__ == "__main__":
    unittest.main()
