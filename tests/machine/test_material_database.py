"""The users' material database on a real machine: no run loses or replaces it; only a removal of the product
deletes it."""

import unittest

from machine_case import USER_DATA, MachineCase
from winemachine import SHARED_DATA

FOLDER = "C:\\Program Files\\Velmora\\Größe"
SHIPPED = FOLDER + "\\matprop.mdb"
WORKING = SHARED_DATA + "\\matprop.nvxmdb"
PREVIOUS = SHARED_DATA + "\\Materials 2016.nvxmdb"
MINE = b"what the users have added\0\r\n" * 5000
CHECKING = "   0 Checking material database"


class MaterialDatabase(MachineCase):
    def setUp(self):
        self.put_product(FOLDER)
        self.shipped = self.machine.path(SHIPPED).read_bytes()
        for path in (WORKING, PREVIOUS):
            file = self.machine.path(path)
            if file.exists():
                file.chmod(0o644)
                file.unlink()

    def run_with(self, *tokens, **environment):
        """Runs NVXConfig.exe; returns the lines of this run's log."""
        code, lines = self.configure_with_new_log(FOLDER, *tokens, **environment)
        self.assertEqual(code, 0)
        self.assertFalse(self.exists(WORKING + ".nvxpart"))
        self.assertFalse(self.exists(PREVIOUS + ".nvxpart"))
        return lines

    def install(self, **environment):
        return self.run_with("-I", "-S", "-Len-US", **environment)

    def test_a_first_install_copies_the_shipped_database(self):
        lines = self.install()
        self.assertEqual(self.read(WORKING), self.shipped)
        at = lines.index(CHECKING)
        self.assertEqual(lines[at + 1], f"   0 Copy: {SHIPPED} to: {WORKING}")

    def test_the_users_database_survives_installs_in_any_language(self):
        self.install()
        self.write(WORKING, MINE)
        self.write(SHIPPED, b"shipped anew")
        for options in (
            ("-I", "-S", "-Len-US"),
            ("-I", "-S", "-Lde-DE"),
            ("-I", "-S", "-Lja-JP"),
            ("-I", "-S", "-L"),
            ("-ST",),
        ):
            with self.subTest(options):
                lines = self.run_with(*options)
                self.assertEqual(self.read(WORKING), MINE)
                self.assertFalse([line for line in lines if WORKING in line])

    def test_a_write_protected_database_survives(self):
        self.write(WORKING, MINE).chmod(0o444)
        self.install()
        self.assertEqual(self.read(WORKING), MINE)

    def test_a_database_that_another_program_has_open_survives(self):
        self.write(WORKING, MINE)
        with self.held(WORKING):
            self.install()
        self.assertEqual(self.read(WORKING), MINE)

    def test_a_shipped_database_that_another_program_has_open_is_not_copied_in_part(self):
        with self.held(SHIPPED):
            lines = self.install()
        self.assertIn(f"   0 Copy: {SHIPPED} to: {WORKING}", lines)
        self.assertFalse(self.exists(WORKING))
        self.install()
        self.assertEqual(self.read(WORKING), self.shipped)

    def test_a_missing_shipped_database_is_logged_and_the_users_survives(self):
        self.write(WORKING, MINE)
        self.machine.path(SHIPPED).unlink()
        lines = self.install()
        at = lines.index(CHECKING)
        self.assertEqual(
            lines[at + 1 : at + 3],
            [
                "   0 Installation error matprop.mdb does not exist?",
                f"   0 Installation error: {SHIPPED} does not exist.",
            ],
        )
        self.assertEqual(self.read(WORKING), MINE)

    def test_the_database_of_the_previous_release_is_copied_once(self):
        self.write("C:\\NVX 2016\\matprop.mdb", b"of 2016")
        lines = self.install(OSTRADE2016DIR="C:\\NVX 2016")
        self.assertEqual(self.read(PREVIOUS), b"of 2016")
        self.assertFalse([line for line in lines if "Materials 2016" in line or "NVX 2016" in line])
        self.write("C:\\NVX 2016\\matprop.mdb", b"newer")
        self.install(OSTRADE2016DIR="C:\\NVX 2016")
        self.assertEqual(self.read(PREVIOUS), b"of 2016")

    def test_nothing_is_copied_from_a_previous_release_that_does_not_exist(self):
        self.write(WORKING, MINE)
        for folder in ("C:\\nowhere", "Z:\\nowhere\\at all", "no folder at all"):
            with self.subTest(folder):
                lines = self.install(OSTRADE2016DIR=folder)
                self.assertFalse(self.exists(PREVIOUS))
                self.assertFalse([line for line in lines if "Materials 2016" in line or "NVX 2016" in line])
                self.assertEqual(self.read(WORKING), MINE)

    def test_a_removal_deletes_the_database_and_old_files_and_nothing_else(self):
        self.install()
        self.write(WORKING, MINE).chmod(0o444)
        self.write(PREVIOUS, b"mine of 2016")
        self.write(FOLDER + "\\A.NEW.TXT")
        self.write(FOLDER + "\\systeminfo2012.xml")
        self.write(FOLDER + "\\Launchers\\sub\\launcher.txt")
        self.write(FOLDER + "\\plugins\\Reports\\report.pyc")
        self.write(FOLDER + "\\plugins\\Reports\\report.py")
        self.write(SHARED_DATA + "\\values.DAT")
        lines = self.run_with("-U", "-S", "-Len-US")
        at = lines.index(CHECKING)
        self.assertEqual(
            lines[at + 1 : at + 3],
            [
                "   0 Remove: " + FOLDER + "\\matprop.new",
                "   0 Remove: " + FOLDER + "\\matprop.nvxmdb",
            ],
        )
        for path in (
            WORKING,
            FOLDER + "\\matprop.new",
            FOLDER + "\\A.NEW.TXT",
            FOLDER + "\\Launchers",
            FOLDER + "\\plugins\\Reports\\report.pyc",
            SHARED_DATA + "\\values.DAT",
        ):
            self.assertFalse(self.exists(path), path)
        self.assertEqual(self.read(PREVIOUS), b"mine of 2016")
        self.assertEqual(self.read(SHIPPED), self.shipped)
        self.assertTrue(self.exists(FOLDER + "\\systeminfo2012.xml"))
        self.assertTrue(self.exists(FOLDER + "\\plugins\\Reports\\report.py"))
        self.assertEqual(lines[-2], "   0 Remove: Report .pyc files")

    def test_installs_and_removals_delete_the_customisation(self):
        self.install()
        for mode in ("-I", "-U"):
            with self.subTest(mode):
                self.write(SHARED_DATA + "\\Sorvane\\sub\\ribbon.txt")
                for name in ("qat.st", "ribbon2D.st", "flagset.usr", "own.st"):
                    self.write(f"{USER_DATA}\\{name}")
                self.run_with(mode, "-S", "-Lde-DE")
                self.assertFalse(self.exists(SHARED_DATA + "\\Sorvane"))
                for name in ("qat.st", "ribbon2D.st", "flagset.usr"):
                    self.assertFalse(self.exists(f"{USER_DATA}\\{name}"), name)
                self.assertTrue(self.exists(USER_DATA + "\\own.st"))


if __name__ == "__main__":
    unittest.main()
