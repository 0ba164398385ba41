"""A silent installation, a second one over it, and the removal, with the real program and real archives."""

import re
import unittest

from machine_case import COMPLETE, LOG, SHORTCUT, USER_KEY, MachineCase
from winemachine import (
    ENVIRONMENT_KEY,
    INSTALL_DIR,
    SHARED_DATA,
    TRANSLATORS,
    TUTORIALS,
    value_of,
)

MERTLE = TRANSLATORS + "\\NVX_MertleServer"
BANNER = "   0 " + "=" * 77


def titles(lines, beginnings):
    """For each line that begins with one of the beginnings, that beginning."""
    return [b for line in lines for b in beginnings if line.startswith(b)]


class SilentInstall(MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        case.put_product(translators=TRANSLATORS)
        for name in ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP", "OSTRADE2016DIR"):
            cls.machine.set_value(ENVIRONMENT_KEY, name, INSTALL_DIR)
        case.write(TUTORIALS + "\\from an update.txt", b"old")
        case.write(INSTALL_DIR + "\\Python\\Lib\\old\\gone.py", b"old")
        case.write(INSTALL_DIR + "\\Python\\Ostrade\\NVX\\results.pyc", b"old")
        case.write(INSTALL_DIR + "\\Python\\mine.txt", b"mine")

        cls.first = case.configure(INSTALL_DIR, "-I", "-S", "-Lde-DE")
        cls.first_files = cls.machine.files()
        cls.first_registry = cls.machine.registry()
        cls.second = case.configure(INSTALL_DIR, "-I", "-S", "-Lde-DE")
        cls.second_files = cls.machine.files()
        cls.removal = case.configure(INSTALL_DIR, "-U", "-S", "-Lde-DE")
        cls.removal_files = cls.machine.files()
        cls.removal_registry = cls.machine.registry()

    def text_at(self, windows_path):
        return self.machine.path(windows_path).read_text(encoding="utf-8")

    def test_the_runs_exit_with_0(self):
        for code, lines in (self.first, self.second, self.removal):
            self.assertEqual(code, 0)
        self.assertTrue(self.first[1][-1].startswith("   0 "))

    def test_the_start_is_logged_in_order(self):
        order = [
            BANNER,
            "   0 Program startup - NVX 2017 DIR== " + INSTALL_DIR,
            "   0 Command Line:",
            "   0 Validating Installation Path Velmora NVX 2017 DIR=" + INSTALL_DIR,
            "   0 Install Path OK " + INSTALL_DIR,
            "   0 user dir=",
            "   2 Install Language de-DE",
            "   0 Language de-DE",
            "   0 Install Language: de-DE",
            "   0 ChangeLanguage = en-US",
            "   0 ChangeLanguage = de-DE",
        ]
        self.assertEqual(titles(self.first[1], order), order)

    def test_the_steps_are_logged_in_the_users_language(self):
        for line in (
            "   0 Installation der Tutorials",
            "   0 Installation von Python (lokal für NVX)",
            "   0 Installation von Mertle Server",
        ):
            self.assertIn(line, self.first[1])
        self.assertNotIn(COMPLETE, self.first[1])

    def test_the_archives_are_unpacked_and_old_files_deleted(self):
        for path in (
            TUTORIALS + "\\First steps\\01 Pipe bend.txt",
            TUTORIALS + "\\Äußere Strömung\\Tragflügel.txt",
            INSTALL_DIR + "\\Python\\Lib\\nvxreport\\table.py",
            INSTALL_DIR + "\\Python\\DLLs\\readme.txt",
            INSTALL_DIR + "\\Python\\Ostrade\\NVX\\results.py",
            MERTLE + "\\server\\settings.txt",
            MERTLE + "\\NVX_MertleServer.7z",
        ):
            self.assertIn(path, self.first_files)
        for path in (
            TUTORIALS + "\\from an update.txt",
            INSTALL_DIR + "\\Python\\Lib\\old\\gone.py",
            INSTALL_DIR + "\\Python\\Ostrade\\NVX\\results.pyc",
        ):
            self.assertNotIn(path, self.first_files)
        self.assertIn(INSTALL_DIR + "\\Python\\mine.txt", self.first_files)

    def test_no_batch_file_is_left(self):
        left = [path for path in self.removal_files if path.endswith("work.bat")]
        self.assertEqual(left, [])

    def test_the_files_of_the_language_are_installed(self):
        for name in ("VistrelResources.dll", "VelmoraApplicationFrameRes.dll"):
            self.assertEqual(
                self.first_files[INSTALL_DIR + "\\" + name],
                self.first_files[INSTALL_DIR + "\\de-DE\\" + name],
            )
        self.assertNotIn(INSTALL_DIR + "\\matprop.new", self.first_files)
        self.assertEqual(value_of(self.first_registry, USER_KEY, "Locale"), "de-DE")

    def test_the_parallel_configuration_matches_the_machine(self):
        lines = dict(
            line.split(" = ") for line in self.text_at(SHARED_DATA + "\\NVX2_config.nvxcfg").splitlines()
        )
        self.assertEqual(lines["ExePath"], INSTALL_DIR + "\\NVX2_share")
        self.assertEqual(lines["AnalyzePath"], SHARED_DATA + "\\HPCAnalyze")
        self.assertGreaterEqual(int(lines["NumberOfThreads"]), 1)
        self.assertEqual(abs(int(lines["Mpi"])), int(lines["NumberOfThreads"]))
        self.assertGreaterEqual(int(lines["SocketsPerNode"]), 1)
        self.assertEqual(list(lines), ["ExePath", "AnalyzePath", "NumberOfThreads", "Mpi", "SocketsPerNode"])

    def test_an_install_leaves_the_machine_variables_alone(self):
        for name in ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP", "OSTRADE2016DIR"):
            self.assertEqual(value_of(self.first_registry, ENVIRONMENT_KEY, name), INSTALL_DIR)

    def test_the_processor_line_has_no_time_stamp(self):
        bare = [line for line in self.first[1] if re.match(r"^! .*: \d+, .*: \d+$", line)]
        self.assertEqual(len(bare), 1, self.first[1])

    def test_a_second_install_equals_the_first(self):
        # The log grows, and a shortcut holds the time when its program was last accessed.
        changing = (LOG, SHORTCUT)
        self.assertEqual(self.first_files.keys(), self.second_files.keys())
        for path, found in self.first_files.items():
            if path not in changing:
                self.assertEqual(found, self.second_files[path], path)

    def test_both_runs_are_in_the_log(self):
        self.assertEqual(self.second[1].count(BANNER), 2)
        self.assertEqual(self.second[1][: len(self.first[1])], self.first[1])

    def test_the_shortcut_exists_until_the_removal(self):
        self.assertIn(SHORTCUT, self.second_files)
        self.assertNotIn(SHORTCUT, self.removal_files)

    def test_removal_leaves_only_the_configuration_and_the_log(self):
        self.assertNotIn(INSTALL_DIR + "\\Python\\mine.txt", self.removal_files)
        for path in self.removal_files:
            self.assertFalse(path.startswith(TUTORIALS), path)
            self.assertFalse(path.startswith(INSTALL_DIR + "\\Python"), path)
            self.assertFalse(path.startswith(MERTLE), path)
        # These stay.
        self.assertIn(SHARED_DATA + "\\NVX2_config.nvxcfg", self.removal_files)
        self.assertIn(SHARED_DATA + "\\HPCAnalyze\\", self.removal_files)
        self.assertIn(LOG, self.removal_files)
        self.assertNotIn(SHARED_DATA + "\\NVX_flags.txt", self.removal_files)

    def test_removal_deletes_the_variables_of_this_release_only(self):
        for name in ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP"):
            self.assertIsNone(value_of(self.removal_registry, ENVIRONMENT_KEY, name))
        self.assertEqual(value_of(self.removal_registry, ENVIRONMENT_KEY, "OSTRADE2016DIR"), INSTALL_DIR)


class EnglishInstall(MachineCase):
    def test_the_log_is_in_the_order_of_the_run(self):
        self.put_product(translators=TRANSLATORS)
        code, lines = self.configure(INSTALL_DIR, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        order = [
            "   2 Install Language en-US",
            "   0 Install Language: en-US",
            "   0 ChangeLanguage = en-US",
            "   0 Remove: " + SHARED_DATA + "\\Sorvane",
            "   0 Install Sorvane",
            "   0 COPY:",
            "   0 Remove:C:",
            "   0 Beginning Install",
            "! Processors: ",
            "   0 Install Tutorials",
            "   0 Installing Tutorials",
            "   0 Command:" + INSTALL_DIR + "\\7z.exe x " + INSTALL_DIR + "\\en-US\\Examples.7z",
            "   0 Install Python (locally for NVX)",
            "   0 Installing Python",
            "   0 Command:" + INSTALL_DIR + "\\7z.exe x " + INSTALL_DIR + "\\Python\\python26_x64",
            "   0 Install Mertle Server",
            "   0 Installing Mertle Server",
            "   0 Command:" + INSTALL_DIR + "\\7z.exe x " + MERTLE,
            "   0 Created NVX2 default configuration: " + SHARED_DATA + "\\NVX2_config.nvxcfg",
            "   0 Created NVX2 analyze folder: " + SHARED_DATA + "\\HPCAnalyze",
            "   0 Registry paths",
            "   0 Updating language registry uninstall currently is:",
            "   0 Running NVX 3D-ViewerConfig.",
            "   0 Command:" + INSTALL_DIR + "\\NVX Viewer\\NVXViewerConfig.exe -i",
            "   0 Create file associations",
            "   0 " + INSTALL_DIR + "\\FileAssociations.reg",
            "   0 uninstallServer - could not stop service",
            "   0 uninstallServer - service was not installed",
            "   0 Desktop=",
            "   0 Create shortcut ",
            "   0 Processing NVX_flags.txt",
            "   0 Checking material database",
            "   0 Copy: " + INSTALL_DIR + "\\matprop.mdb to: " + SHARED_DATA + "\\matprop.nvxmdb",
            COMPLETE,
        ]
        self.assertEqual(titles(lines, order), order)
        self.assertEqual(lines.count("   0   Everything is Ok"), 3)


if __name__ == "__main__":
    unittest.main()
