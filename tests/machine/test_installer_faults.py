"""A set-up that fails exits with another status than 0 and restores the machine."""

import shutil
import unittest

from installer_case import InstallerCase
from machine_case import LOG, UNINSTALL_KEY, MachineCase
from winemachine import ENVIRONMENT_KEY, INSTALL_DIR, PROGRAM_FILES, value_of

# One of the last files that a set-up replaces, and one of the first.
HELD = INSTALL_DIR + "\\zh-TW\\nvxconfig.qm"
MENU = INSTALL_DIR + "\\Launchers\\UGNX\\startup\\NVX_2017.men"


class FreshMachine(InstallerCase, MachineCase):
    def test_with_a_file_in_the_place_of_the_folder_nothing_is_installed(self):
        self.write(PROGRAM_FILES + "\\Velmora", b"a file")
        before = self.machine.files()
        self.assertNotEqual(self.set_up("/S", "/LANG=de-DE"), 0)
        self.assertEqual(self.machine.files(), before)
        registry = self.machine.registry()
        self.assertFalse([key for key in registry if "NVX 2017" in key or "Kelvane" in key])
        self.assertIsNone(value_of(registry, ENVIRONMENT_KEY, "OSTRADE"))
        self.machine.path(PROGRAM_FILES + "\\Velmora").unlink()

    def test_a_folder_in_the_place_of_a_file_survives(self):
        self.write(HELD + "\\inside.txt", b"of others")
        before = self.machine.files()
        self.assertNotEqual(self.set_up("/S"), 0)
        self.assertEqual(self.machine.files(), before)
        shutil.rmtree(self.machine.path(PROGRAM_FILES + "\\Velmora"))


class Upgrade(InstallerCase, MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        if case.set_up("/S", "/LANG=de-DE") != 0:
            raise AssertionError("the set-up program failed")
        case.write(MENU, b"of an older release")

    def state(self):
        """The files that a failed set-up must restore, without those that the configuration writes again."""
        files = self.machine.files(INSTALL_DIR)
        for path in (LOG, INSTALL_DIR + "\\NVX Viewer\\last-start.txt"):
            files.pop(path, None)
        return files

    def test_with_a_file_in_use_the_older_product_stays_whole_and_keeps_running(self):
        before = self.state()
        self.machine.path(LOG).unlink()
        with self.held(HELD):
            self.assertNotEqual(self.set_up("/S", "/LANG=fr-FR"), 0)
        self.assertEqual(self.state(), before)
        self.assertTrue(self.server_is_running())
        # The configuration ran again in the language of the older product.
        self.assertTrue(self.log_lines()[-1].startswith("   0 Die Installation oder Aktualisierung"))
        registry = self.machine.registry()
        for name in ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP"):
            self.assertEqual(value_of(registry, ENVIRONMENT_KEY, name), INSTALL_DIR)
        self.assertTrue(
            value_of(registry, UNINSTALL_KEY, "UninstallString").endswith('uninstall.exe" /LANG=de-DE')
        )

    def test_files_that_a_killed_set_up_had_replaced_are_restored(self):
        # Killed after it had replaced the menu only.
        work = self.machine.path(INSTALL_DIR) / "setup in progress"
        shutil.copytree(self.machine.path(INSTALL_DIR), work / "new")
        menu = MENU[len(INSTALL_DIR) + 1 :].replace("\\", "/")
        (work / "new" / menu).unlink()
        (work / "old" / menu).parent.mkdir(parents=True)
        (work / "old" / menu).write_bytes(b"of the product before")
        (work / "replacing").touch()
        with self.held(HELD):
            self.assertNotEqual(self.set_up("/S"), 0)
        self.assertEqual(self.machine.path(MENU).read_bytes(), b"of the product before")
        self.machine.path(MENU).write_bytes(b"of an older release")


if __name__ == "__main__":
    unittest.main()
