"""Libraries that somebody without administrator rights has left on the machine: the configuration, which runs
with those rights, loads none of them."""

import shutil
import unittest

from machine_case import BUILD, MachineCase, wait_until
from winemachine import INSTALL_DIR, PROGRAM_FILES

PLANTED = "C:\\planted"
USERS_ENVIRONMENT = "HKEY_CURRENT_USER\\Environment"


class PlantedLibraries(MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls().put_product()

    def plant(self, kind, windows_path):
        """Leaves a library; returns the path of the file that it makes when it is loaded."""
        path = self.write(windows_path)
        shutil.copy(BUILD / "tests" / "machine" / "planted" / f"planted_{kind}.dll", path)
        self.addCleanup(path.unlink, missing_ok=True)
        loaded = path.with_name(path.name + ".loaded")
        self.addCleanup(loaded.unlink, missing_ok=True)
        return loaded

    def set_variables(self, variables):
        """Sets variables of the user's environment, which every program of the user gets."""
        for name, value in variables.items():
            self.machine.set_value(USERS_ENVIRONMENT, name, value)
            self.addCleanup(self.machine.run, "reg", "delete", USERS_ENVIRONMENT, "/v", name, "/f")

    def assert_not_loaded(self, loaded, **options):
        code, lines = self.configure_with_new_log(INSTALL_DIR, "-ST", "-Len-US", timeout=120, **options)
        self.assertFalse(loaded.exists())
        self.assertEqual(code, 0)
        self.assertIn("   0 Stopping Services", lines)

    def test_a_folder_of_plugins_in_the_environment_is_ignored(self):
        for kind, variables in (
            ("styles", {"QT_PLUGIN_PATH": PLANTED}),
            ("styles", {"qt_plugin_path": PLANTED}),
            ("generic", {"QT_PLUGIN_PATH": PLANTED, "QT_QPA_GENERIC_PLUGINS": "planted"}),
            ("platforms", {"QT_PLUGIN_PATH": PLANTED, "QT_QPA_PLATFORM": "planted;windows"}),
            (
                "platforms",
                {
                    "QT_QPA_PLATFORM_PLUGIN_PATH": PLANTED + "\\platforms",
                    "QT_QPA_PLATFORM": "planted;windows",
                },
            ),
        ):
            with self.subTest(kind, variables=variables):
                self.set_variables(variables)
                try:
                    self.assert_not_loaded(self.plant(kind, f"{PLANTED}\\{kind}\\planted.dll"))
                finally:
                    self.doCleanups()

    def test_a_folder_of_plugins_on_the_command_line_is_ignored(self):
        loaded = self.plant("platforms", PLANTED + "\\platforms\\planted.dll")
        self.delete_log()
        # A message box asks about the options, which are not ours, after Qt has read them.
        self.machine.start(
            INSTALL_DIR + "\\NVXConfig.exe",
            *("-platformpluginpath", PLANTED + "\\platforms", "-platform", "planted;windows"),
        )
        self.addCleanup(self.machine.stop)
        log = self.machine.path(INSTALL_DIR + "\\NVXConfig.log")
        wait_until("the start", lambda: log.exists() and b"Command Line:" in log.read_bytes())
        self.assertFalse(loaded.exists())

    def test_qts_library_in_the_parent_folder_does_not_move_the_plugins_there(self):
        self.write(PROGRAM_FILES + "\\Velmora\\lib\\libQt6Core.a")
        self.assert_not_loaded(
            self.plant("styles", PROGRAM_FILES + "\\Velmora\\plugins\\styles\\planted.dll")
        )

    def test_no_library_is_searched_in_the_path_or_the_working_folder(self):
        # With this variable Qt asks the system for a library that it does not ship.
        self.set_variables({"QT_LOAD_TESTABILITY": "1", "PATH": PLANTED})
        loaded = self.plant("library", PLANTED + "\\qttestability.dll")
        self.assert_not_loaded(loaded)
        self.assert_not_loaded(loaded, folder=PLANTED)


if __name__ == "__main__":
    unittest.main()
