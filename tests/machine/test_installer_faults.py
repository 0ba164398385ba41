"""A set-up that fails exits with another status than 0 and restores the machine."""

import os
import shutil
import stat
import unittest

from guarded_program import GuardedProgram
from installer_case import InstallerCase
from machine_case import BUILD, LOG, PRODUCT_KEY, SCRIPTED_TOOL, UNINSTALL_KEY, MachineCase, wait_until
from winemachine import ENVIRONMENT_KEY, INSTALL_DIR, PROGRAM_FILES, value_of

OTHER_USER = 65534
EVERYONE_WRITES = 0o002
SILENT_SET_UP = ("C:\\set-up.exe", "/S")
# Exit codes of Windows: try again later; another version is already installed.
TRY_AGAIN, OTHER_VERSION = 1618, 1638
# Errors of Windows.
FILE_NOT_FOUND, ACCESS_DENIED, INVALID_PARAMETER = 2, 5, 87
# One of the last files that a set-up replaces, and one of the first.
HELD = INSTALL_DIR + "\\zh-TW\\nvxconfig.qm"
MENU = INSTALL_DIR + "\\Launchers\\UGNX\\startup\\NVX_2017.men"


def planted_link(machine, path):
    """Another user's link to a folder of theirs, in place of a junction, which Wine does not have; returns
    the folder."""
    if os.geteuid() != 0:
        raise unittest.SkipTest("Not run: only an administrator can give a link to another user")
    elsewhere = machine.path("C:\\elsewhere\\" + path.replace(":", "").replace("\\", "-"))
    elsewhere.mkdir(parents=True)
    link = machine.path(path)
    link.parent.mkdir(parents=True, exist_ok=True)
    link.symlink_to(elsewhere)
    os.chown(link, OTHER_USER, OTHER_USER, follow_symlinks=False)
    os.chown(elsewhere, OTHER_USER, OTHER_USER)
    return elsewhere


class FreshMachine(InstallerCase, MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.turn_screen_off()

    def assert_set_up_fails(self, *options, left=()):
        """The set-up fails, and leaves no entry and no file of the product except these."""
        self.assertNotEqual(self.set_up("/S", *options), 0)
        files = [path for path in self.machine.files(PROGRAM_FILES) if "Velmora" in path]
        self.assertEqual(sorted(files), sorted(left))
        registry = self.machine.registry()
        self.assertIsNone(value_of(registry, UNINSTALL_KEY, "UninstallString"))
        self.assertIsNone(value_of(registry, ENVIRONMENT_KEY, "OSTRADE"))

    def test_a_configuration_without_a_library_is_a_failed_set_up(self):
        libraries = "HKEY_CURRENT_USER\\Software\\Wine\\AppDefaults\\NVXConfig.exe\\DllOverrides"
        self.machine.set_value(libraries, "libstdc++-6", "")
        self.assert_set_up_fails()
        self.machine.run("reg", "delete", libraries, "/f")

    def test_a_configuration_that_waits_for_a_user_is_ended_and_a_failed_set_up(self):
        # Then it shows a message box.
        refusal = self.write(INSTALL_DIR + "\\NVXServer.exe.fails-to-register")
        # A language without a name is English.
        self.assert_set_up_fails("/LANG=", "/TIMEOUT=40", left=[LOG, INSTALL_DIR + "\\" + refusal.name])
        self.assertIn("   0 Command Line:NVXConfig.exe -I -S -Len-US", self.log_lines())
        self.assertEqual(self.machine.programs("NVXConfig.exe"), {})
        shutil.rmtree(self.machine.path(PROGRAM_FILES + "\\Velmora"))

    def test_while_a_cad_system_runs_nothing_is_started(self):
        cad_system = GuardedProgram(self.machine, "C:\\PTC\\xtop.exe", "cad/xtop.exe")
        self.assertEqual(self.exit_code_of(*SILENT_SET_UP), TRY_AGAIN)
        cad_system.stop()
        self.assertFalse(self.exists(INSTALL_DIR))

    def test_over_a_product_of_the_windows_installer_nothing_is_installed(self):
        self.machine.set_value(PRODUCT_KEY, "WindowsInstaller", "{00000000-0000-0000-0000-000000000000}")
        self.assertEqual(self.exit_code_of(*SILENT_SET_UP), OTHER_VERSION)
        self.machine.run("reg", "delete", PRODUCT_KEY, "/f")
        self.assertFalse(self.exists(INSTALL_DIR))

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

    def test_a_folder_to_which_another_users_link_leads_is_refused(self):
        elsewhere = planted_link(self.machine, "C:\\apps")
        self.assertNotEqual(self.set_up("/S", "/D=C:\\apps\\NVX"), 0)
        self.assertEqual(list(elsewhere.iterdir()), [])
        self.machine.path("C:\\apps").unlink()


class Task(MachineCase):
    """The task that set-up program and MSI run before they put the first file into the install folder, and
    the one that runs the configuration."""

    def run_task(self, *arguments):
        shutil.copy(BUILD / "installer" / "NVXSetupTask.exe", self.machine.path("C:\\task.exe"))
        return self.machine.run("C:\\task.exe", *arguments).returncode

    def reserve(self, folder):
        return self.run_task("reserve", folder)

    def mode(self, path):
        return stat.S_IMODE(self.machine.path(path).stat().st_mode)

    def test_a_missing_folder_is_made_with_those_above_it(self):
        self.assertEqual(self.reserve("C:\\new\\inner\\NVX"), 0)
        for path in ("C:\\new", "C:\\new\\inner", "C:\\new\\inner\\NVX"):
            self.assertEqual(self.mode(path) & EVERYONE_WRITES, 0, path)

    def test_an_existing_folder_is_taken_over_with_its_contents(self):
        for path in ("C:\\open\\NVX", "C:\\open\\NVX\\inner"):
            self.machine.path(path).mkdir(parents=True)
            self.machine.path(path).chmod(0o777)
        file = self.write("C:\\open\\NVX\\inner\\file", b"text")
        file.chmod(0o777)
        self.machine.path("C:\\open").chmod(0o755)
        self.assertEqual(self.reserve("C:\\open\\NVX\\."), 0)
        for path in ("C:\\open\\NVX", "C:\\open\\NVX\\inner", "C:\\open\\NVX\\inner\\file"):
            self.assertEqual(self.mode(path) & EVERYONE_WRITES, 0, path)
        self.assertEqual(file.read_bytes(), b"text")

    def test_a_link_of_another_user_is_refused(self):
        elsewhere = planted_link(self.machine, "C:\\linked")
        self.assertEqual(self.reserve("C:\\linked\\NVX"), ACCESS_DENIED)
        self.assertEqual(list(elsewhere.iterdir()), [])

    def test_a_link_of_an_administrator_is_followed(self):
        elsewhere = self.machine.path("C:\\aside\\inner")
        elsewhere.mkdir(parents=True)
        self.machine.path("C:\\own").symlink_to(elsewhere)
        self.assertEqual(self.reserve("C:\\own\\NVX"), 0)
        self.assertEqual([path.name for path in elsewhere.iterdir()], ["NVX"])

    def test_a_link_in_the_folder_is_not_followed(self):
        elsewhere = planted_link(self.machine, "C:\\kept\\NVX\\link")
        elsewhere.chmod(0o777)
        self.assertEqual(self.reserve("C:\\kept\\NVX"), 0)
        self.assertEqual(stat.S_IMODE(elsewhere.stat().st_mode), 0o777)

    def test_a_whole_drive_is_refused(self):
        before = self.mode("C:\\")
        for drive in ("C:\\", "C:\\."):
            self.assertEqual(self.reserve(drive), INVALID_PARAMETER)
        self.assertEqual(self.mode("C:\\"), before)

    def test_a_file_in_the_place_of_a_folder_is_an_error(self):
        self.write("C:\\place", b"a file")
        self.assertNotEqual(self.reserve("C:\\place\\NVX"), 0)
        self.assertNotEqual(self.reserve("C:\\place"), 0)
        self.assertEqual(self.read("C:\\place"), b"a file")

    def test_without_the_servers_program_no_installation_is_started(self):
        folder = "C:\\no server"
        self.write(folder + "\\NVXConfig.exe", SCRIPTED_TOOL.read_bytes())
        self.write(folder + "\\NVXConfig.exe.script", b"record")
        recorded = self.machine.path(folder + "\\NVXConfig.exe.arguments")
        self.assertEqual(self.run_task("configure", folder, "60", "-I", "-S"), FILE_NOT_FOUND)
        self.assertFalse(recorded.exists())
        # A removal does not need it.
        self.assertEqual(self.run_task("configure", folder, "60", "-U", "-S"), 0)
        self.assertEqual(recorded.read_text().split(), ["-U", "-S"])


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

    def test_a_second_set_up_quits_while_the_first_continues(self):
        first = self.machine.start(*SILENT_SET_UP)
        work = self.machine.path(INSTALL_DIR) / "setup in progress"
        wait_until("the first set-up to begin", work.exists)
        self.assertEqual(self.exit_code_of(*SILENT_SET_UP), TRY_AGAIN)
        self.assertEqual(first.wait(900), 0)
        self.assertTrue(self.server_is_running())
        self.machine.path(MENU).write_bytes(b"of an older release")

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
