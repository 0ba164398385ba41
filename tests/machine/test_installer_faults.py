"""Set-ups that cannot do their work: they say so, and the machine is as before."""

import shutil
import unittest

from installer_case import UNINSTALL_KEY, InstallerCase
from machine_case import MachineCase
from winemachine import ENVIRONMENT_KEY, INSTALL_DIR, PROGRAM_FILES, value_of

# Its place is among the last ones of the list, that of the menu among the first.
HELD = INSTALL_DIR + "\\zh-TW\\nvxconfig.qm"
MENU = INSTALL_DIR + "\\Launchers\\UGNX\\startup\\NVX_2017.men"
LOG = INSTALL_DIR + "\\NVXConfig.log"


class FreshMachine(InstallerCase, MachineCase):
    def test_a_file_in_the_place_of_the_folder_stops_the_set_up_and_nothing_is_left(self):
        self.write(PROGRAM_FILES + "\\Velmora", b"a file")
        before = self.machine.files()
        self.assertNotEqual(self.set_up("/S", "/LANG=de-DE"), 0)
        self.assertEqual(self.machine.files(), before)
        registry = self.machine.registry()
        self.assertFalse([key for key in registry if "NVX 2017" in key or "Kelvane" in key])
        self.assertIsNone(value_of(registry, ENVIRONMENT_KEY, "OSTRADE"))
        self.machine.path(PROGRAM_FILES + "\\Velmora").unlink()

    def test_a_folder_in_the_place_of_a_file_is_kept(self):
        self.write(HELD + "\\inside.txt", b"somebody else's")
        before = self.machine.files()
        self.assertNotEqual(self.set_up("/S"), 0)
        self.assertEqual(self.machine.files(), before)
        shutil.rmtree(self.machine.path(INSTALL_DIR))


class Upgrade(InstallerCase, MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        if case.set_up("/S", "/LANG=de-DE") != 0:
            raise AssertionError("the product is not installed")
        case.write(MENU, b"of an older release")

    def state(self):
        """The files that a set-up may not have changed; the configuration of the older product ran again."""
        files = self.machine.files(INSTALL_DIR)
        for path in (LOG, INSTALL_DIR + "\\NVX Viewer\\last-start.txt"):
            files.pop(path, None)
        return files

    def test_a_file_in_use_leaves_the_older_product_whole_and_at_work(self):
        before = self.state()
        self.machine.path(LOG).unlink()
        with self.held(HELD):
            self.assertNotEqual(self.set_up("/S", "/LANG=fr-FR"), 0)
        self.assertEqual(self.state(), before)
        self.assertTrue(self.server_is_running())
        # In the language of the older product.
        self.assertTrue(self.log_lines()[-1].startswith("   0 Die Installation oder Aktualisierung"))
        registry = self.machine.registry()
        for name in ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP"):
            self.assertEqual(value_of(registry, ENVIRONMENT_KEY, name), INSTALL_DIR)
        self.assertTrue(
            value_of(registry, UNINSTALL_KEY, "UninstallString").endswith('uninstall.exe" /LANG=de-DE')
        )

    def test_what_a_killed_set_up_had_replaced_is_put_back(self):
        # It was killed when it had replaced the menu and nothing else.
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
