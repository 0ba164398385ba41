"""The whole product on a machine with every CAD system: installed and removed, again and again. What the
steps are and in which order, and what stays."""

import getpass
import unittest

from launcher_case import (
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    SPACE_CLAIM_ADDINS,
    TAMSEL_ADDINS,
    LauncherCase,
)
from machine_case import COMPLETE
from winemachine import PROGRAM_FILES, SHARED_DATA, TUTORIALS

CYCLES = 20
# The guard leaves a server of this path alone, which does not name the release: a removal stops it as a
# service is stopped, instead of waiting until the machine notices that its process has been ended.
INSTALL_DIR = PROGRAM_FILES + "\\Velmora\\NVX"
LOG = INSTALL_DIR + "\\NVXConfig.log"
USER_DATA = "C:\\users\\" + getpass.getuser() + "\\AppData\\Roaming\\Velmora\\NVX 2017"
CUSTOM_DIRS = (CUSTOM_DIRS_10, CUSTOM_DIRS_11)

# The line with which each step begins, in the order of the run.
INSTALL = [
    "   0 Beginning Install",
    "! Processors: ",
    "   0 Install Tutorials",
    "   0 Install Python (locally for NVX)",
    "   0 Install Mertle Server",
    "   0 Created NVX2 default configuration: ",
    "   0 Registry paths",
    "   0 Running NVX 3D-ViewerConfig.",
    "   0 Create file associations",
    "   0 uninstallServer ",
    "   0 Desktop=",
    "   0 Configure Brevant",
    "   0 Install Creo Remove:",
    "   0 ProE Creo",
    "   0 SolidWorks",
    "   0 UGNX",
    "   0 Tamsel",
    "   0 SpaceClaim",
    "   0 Processing NVX_flags.txt",
    "   0 Checking material database",
    COMPLETE,
]
REMOVAL = [
    "   0 Beginning UnInstall",
    "! Processors: ",
    "   0 UnInstall Tutorials",
    "   0 UnInstall Python (locally for NVX)",
    "   0 UnInstall Mertle Server",
    "   0 Registry paths",
    "   0 Running NVX 3D-ViewerConfig.",
    "   0 Create file associations",
    "   0 uninstallServer ",
    "   0 Desktop=",
    "   0 Configure Brevant",
    "   0 UnInstall Creo Remove:",
    "   0 ProE Creo",
    "   0 SolidWorks",
    "   0 UGNX",
    "   0 Tamsel",
    "   0 SpaceClaim",
    "   0 Processing NVX_flags.txt",
    "   0 Checking material database",
    COMPLETE,
]

# What a removal leaves outside of the install dir: files that belong to the user, and folders that others may
# use too.
LEFT_ELSEWHERE = [
    SHARED_DATA + "\\NVX2_config.nvxcfg",
    SHARED_DATA + "\\HPCAnalyze\\",
    USER_DATA + "\\",
    TUTORIALS.rpartition("\\")[0] + "\\",
    CUSTOM_DIRS_10 + ".bak",
    CUSTOM_DIRS_11 + ".bak",
    SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\",
    *(TAMSEL_ADDINS + f"\\{year}\\" for year in (2016, 2017, 2018)),
]
# And within it.
LEFT_IN_INSTALL_DIR = [
    LOG,
    # The libraries of the chosen language, which lie in the install dir as the product's own files do.
    INSTALL_DIR + "\\VelmoraApplicationFrameRes.dll",
    INSTALL_DIR + "\\VistrelResources.dll",
    # The sample's viewer notes how it was started.
    INSTALL_DIR + "\\NVX Viewer\\last-start.txt",
]


def steps_of(lines, beginnings):
    """The first line of each step, as its beginning, in the order of the log from the run's first line on."""
    run = lines[lines.index(beginnings[0]) :]
    found = []
    for line in run:
        for beginning in beginnings:
            if line.startswith(beginning) and beginning not in found:
                found.append(beginning)
    return found


class Cycles(LauncherCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.put_product(cls(), INSTALL_DIR)
        cls.before = cls.machine.files()
        cls.installed_lines = cls.run_alone("-I", "-S", "-Len-US")
        cls.installed = cls.machine.files()
        cls.removed_lines = cls.run_alone("-U", "-S", "-Len-US")
        cls.first, cls.first_registry = cls.state()
        for _ in range(CYCLES - 1):
            cls.put_product_again()
            cls.run_alone("-I", "-S", "-Len-US")
            cls.run_alone("-U", "-S", "-Len-US")
        cls.last, cls.last_registry = cls.state()

    @classmethod
    def put_product_again(cls):
        """Brings the files back that a removal takes from the install dir, as the installer does."""
        cls.put_product(cls(), INSTALL_DIR)

    @classmethod
    def run_alone(cls, *tokens):
        """One run with a log of its own; answers its lines."""
        cls.machine.path(LOG).unlink(missing_ok=True)
        code, lines = cls.configure(cls(), INSTALL_DIR, *tokens)
        if code != 0:
            raise AssertionError(f"exit status {code}")
        return lines

    @classmethod
    def state(cls):
        return cls.machine.files(), cls.machine.registry()

    def test_an_install_runs_every_step_in_its_order(self):
        self.assertEqual(steps_of(self.installed_lines, INSTALL), INSTALL)

    def test_a_removal_runs_every_step_in_its_order(self):
        self.assertEqual(steps_of(self.removed_lines, REMOVAL), REMOVAL)

    def test_nothing_is_left_but_what_is_meant_to_stay(self):
        left = sorted(path for path in self.first if path not in self.before)
        self.assertEqual(left, sorted(LEFT_ELSEWHERE + LEFT_IN_INSTALL_DIR))

    def test_only_the_menus_of_nx_are_not_as_before(self):
        changed = [
            path
            for path, contents in self.first.items()
            if path in self.before and self.before[path] != contents
        ]
        self.assertEqual(sorted(changed), sorted(CUSTOM_DIRS))

    def test_twenty_cycles_end_with_the_files_of_the_first(self):
        # The log tells of its own run, and the line for NX begins with a line end that stays each time.
        excepted = (LOG, *CUSTOM_DIRS)
        first = {path: contents for path, contents in self.first.items() if path not in excepted}
        last = {path: contents for path, contents in self.last.items() if path not in excepted}
        self.assertEqual(last, first)

    def test_each_cycle_leaves_one_empty_line_in_the_menus_of_nx(self):
        for path in CUSTOM_DIRS:
            contents = self.machine.path(path).read_bytes()
            before = self.machine.path(path + ".bak").read_bytes()
            self.assertEqual(contents, before + b"\r\n" * CYCLES)

    def test_twenty_cycles_end_with_the_registry_of_the_first(self):
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
