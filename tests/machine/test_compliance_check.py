"""The administrators' script that looks for what a run promises, on a good machine and on spoilt ones."""

import shutil
import sys
import unittest
from pathlib import Path

from launcher_case import ADDIN, LauncherCase, target_manifest
from cadsystems import CUSTOM_DIRS_10, FOREIGN_DIRS, FOREIGN_ENTRY, PROTK_2, PROTK_3
from machine_case import SERVICE_KEY, SHORTCUT
from winemachine import INSTALL_DIR, SHARED_DATA

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "documentation"))

from documents import blocks_of, text_of  # noqa: E402

SCRIPT = "C:\\check-nvx.cmd"
FILE_TYPE = "HKEY_LOCAL_MACHINE\\Software\\Classes\\.nvxst"


class ComplianceCheck(LauncherCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        case.put_product()
        (script,) = (
            block.text for block in blocks_of(text_of("docs/administrators.md")) if block.name == SCRIPT[3:]
        )
        case.write(SCRIPT, script.replace("\n", "\r\n").encode())
        case.run_with("-I")

    def check(self):
        """The exit code and the lines of the script."""
        done = self.machine.run("cmd", "/c", SCRIPT)
        return done.returncode, done.stdout.decode().splitlines()

    def test_nothing_is_missing_on_a_good_machine(self):
        self.assertEqual(self.check(), (0, []))

    def test_each_missing_file_is_named(self):
        for path in (
            INSTALL_DIR + "\\NVXConfig.exe",
            INSTALL_DIR + "\\NVXServer.exe",
            INSTALL_DIR + "\\Launchers",
            SHARED_DATA + "\\matprop.nvxmdb",
            SHORTCUT,
            ADDIN + ".dll",
            target_manifest(2017),
        ):
            with self.subTest(path):
                there, aside = self.machine.path(path), self.machine.path("C:\\aside")
                shutil.move(there, aside)
                code, (line,) = self.check()
                shutil.move(aside, there)
                self.assertEqual((code, line.lower()), (1, ("missing: " + path).lower()))

    def test_each_missing_key_is_named(self):
        for key in (SERVICE_KEY, FILE_TYPE):
            with self.subTest(key):
                self.machine.run("reg", "export", key, "C:\\key.reg", "/y")
                self.machine.run("reg", "delete", key, "/f")
                code, (line,) = self.check()
                self.machine.run("reg", "import", "C:\\key.reg")
                short = key.replace("HKEY_LOCAL_MACHINE", "HKLM")
                self.assertEqual((code, line.lower()), (1, ("missing: " + short).lower()))

    def test_each_file_of_a_cad_system_without_the_launcher_is_named(self):
        for path, contents in (
            (PROTK_2, FOREIGN_ENTRY),
            (PROTK_3, FOREIGN_ENTRY),
            (CUSTOM_DIRS_10, FOREIGN_DIRS),
        ):
            with self.subTest(path):
                good = self.read(path)
                self.write(path, contents)
                code, lines = self.check()
                self.write(path, good)
                self.assertEqual(code, 1)
                self.assertEqual({line.lower() for line in lines}, {("without a launcher: " + path).lower()})


if __name__ == "__main__":
    unittest.main()
