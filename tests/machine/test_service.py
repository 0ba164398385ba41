"""The product's server as a service of a real machine: installed, installed again, stopped and removed, also
when the server does not behave."""

import re
import time
import unittest

from machine_case import MachineCase
from winemachine import SHARED_DATA, value_of

FOLDER = "C:\\Program Files (x86)\\Größe & Söhne"
NAME = "NVX 2017 Server"
KEY = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\" + NAME
ANALYZE = SHARED_DATA + "\\Analyze"
SERVER_LOG = ANALYZE + "\\solver_manager.log"


def told_of_the_server(lines):
    told = [line for line in lines if "Mertle" not in line]
    return [line for line in told if line.endswith("Stopping Services") or "erver" in line]


class Service(MachineCase):
    def setUp(self):
        self.put_product(FOLDER)
        self.machine.path(FOLDER + "\\NVXConfig.log").unlink(missing_ok=True)

    def tearDown(self):
        for ending in ("refuses-to-stop", "hangs-at-stop"):
            self.machine.path(FOLDER + "\\NVXServer.exe." + ending).unlink(missing_ok=True)
        self.run_with("-U")
        self.assertFalse(self.is_registered())

    def run_with(self, mode):
        """Runs the program without a window; answers what it said of the server."""
        self.machine.path(FOLDER + "\\NVXConfig.log").unlink(missing_ok=True)
        code, lines = self.configure(FOLDER, mode, "-S", "-Len-US")
        self.assertEqual(code, 0)
        return told_of_the_server(lines)

    def tell_server(self, ending):
        self.write(FOLDER + "\\NVXServer.exe." + ending)

    def is_running(self):
        return NAME in self.machine.run("net", "start").stdout.decode("utf-8", "replace")

    def is_registered(self):
        return any(key.lower() == KEY.lower() for key in self.machine.registry())

    def test_an_install_registers_and_starts_the_server(self):
        self.write(ANALYZE + "\\solver_manager.cfg", b"of an earlier version")
        self.assertEqual(
            self.run_with("-I"),
            [
                "   0 uninstallServer ",
                "   0 uninstallServer - could not stop service",
                "   0 uninstallServer - service was not installed",
            ],
        )
        self.assertTrue(self.is_running())
        self.assertEqual(self.machine.path(ANALYZE + "\\solver_manager.cfg").read_bytes(), b"")
        registry = self.machine.registry()
        self.assertEqual(value_of(registry, KEY, "ImagePath"), f'"{FOLDER}\\NVXServer.exe"')
        self.assertEqual(value_of(registry, KEY, "Description"), "Sample server: registered by itself.")
        self.assertEqual(value_of(registry, KEY, "ObjectName"), "LocalSystem")

    def test_a_running_server_is_stopped_deleted_registered_and_started_again(self):
        self.run_with("-I")
        self.write(ANALYZE + "\\of the old server.txt")
        self.assertEqual(self.run_with("-I"), ["   0 uninstallServer "])
        self.assertTrue(self.is_running())
        self.assertTrue(self.exists(SERVER_LOG))
        self.assertFalse(self.exists(ANALYZE + "\\of the old server.txt"))

    def test_a_stopped_server_is_registered_and_started_again(self):
        self.run_with("-I")
        self.machine.stop()  # the server is not one that starts with the machine
        self.assertFalse(self.is_running())
        self.assertEqual(
            self.run_with("-I"),
            ["   0 uninstallServer ", "   0 uninstallServer - could not stop service"],
        )
        self.assertTrue(self.is_running())

    def test_a_server_whose_process_was_ended_is_registered_again_without_a_wait(self):
        self.run_with("-I")
        self.machine.run("taskkill", "/f", "/im", "NVXServer.exe")
        beginning, not_stopped = "uninstallServer ", "uninstallServer - could not stop service"
        self.assertEqual(self.run_with("-I"), ["   0 " + beginning, "   0 " + not_stopped])
        self.assertTrue(self.is_running())
        # The control manager may take it for running for ever; ten seconds is what it would be given.
        log = self.machine.log(FOLDER)
        removal = re.search(f"^(.{{24}})    0 {not_stopped}\n(.{{24}})    0 Command:", log, re.MULTILINE)
        asked, gone = (time.mktime(time.strptime(stamp)) for stamp in removal.groups())
        self.assertLess(gone - asked, 9)

    def test_an_uninstall_removes_the_service_and_its_folders(self):
        self.run_with("-I")
        self.write(FOLDER + "\\HPCAnalyze\\sub\\job.txt")
        self.assertEqual(self.run_with("-U"), ["   0 uninstallServer "])
        self.assertFalse(self.is_running())
        self.assertFalse(self.exists(ANALYZE))
        self.assertFalse(self.exists(FOLDER + "\\HPCAnalyze"))
        self.assertFalse(self.is_registered())

    def test_an_uninstall_of_what_was_never_installed_removes_the_folders(self):
        self.write(ANALYZE + "\\solver_manager.log")
        self.write(FOLDER + "\\HPCAnalyze\\job.txt")
        self.assertEqual(
            self.run_with("-U"),
            [
                "   0 uninstallServer ",
                "   0 uninstallServer - could not stop service",
                "   0 uninstallServer - service was not installed",
            ],
        )
        self.assertFalse(self.exists(ANALYZE))
        self.assertFalse(self.exists(FOLDER + "\\HPCAnalyze"))

    def test_stop_services_removes_the_service(self):
        self.run_with("-I")
        self.assertEqual(self.run_with("-ST"), ["   0 Stopping Services", "   0 uninstallServer "])
        self.assertFalse(self.is_registered())
        # Nobody runs the server any more, so an installer can replace it.
        self.machine.path(FOLDER + "\\NVXServer.exe").write_bytes(b"")

    def test_a_server_that_refuses_to_stop_is_ended(self):
        self.tell_server("refuses-to-stop")
        self.run_with("-I")
        self.assertEqual(
            self.run_with("-I"),
            [
                "   0 uninstallServer ",
                "   0 uninstallServer - could not stop service",
                "   0 NVXServer terminated",
            ],
        )
        self.assertTrue(self.is_running())
        self.run_with("-U")
        self.assertFalse(self.is_registered())

    def test_a_server_that_hangs_at_the_stop_is_ended(self):
        self.tell_server("hangs-at-stop")
        self.run_with("-I")
        self.machine.path(FOLDER + "\\NVXConfig.log").unlink()
        code, lines, warnings = self.diagnose(FOLDER, "-I", "-S", "-Len-US")
        self.assertEqual(code, 0)
        self.assertEqual(told_of_the_server(lines), ["   0 uninstallServer ", "   0 NVXServer terminated"])
        self.assertEqual(warnings, ["The server has not stopped in time and is ended"])
        self.assertTrue(self.is_running())


if __name__ == "__main__":
    unittest.main()
