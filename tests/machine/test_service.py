"""The product's server as a service on a real machine: installed, installed again, stopped and removed, also
when the server refuses to stop or hangs."""

import re
import time
import unittest

from machine_case import SERVICE_KEY, MachineCase
from winemachine import SHARED_DATA, value_of

FOLDER = "C:\\Program Files (x86)\\Größe & Söhne"
ANALYZE = SHARED_DATA + "\\Analyze"
SERVER_LOG = ANALYZE + "\\solver_manager.log"


def lines_on_the_server(lines):
    lines = [line for line in lines if "Mertle" not in line]
    return [line for line in lines if line.endswith("Stopping Services") or "erver" in line]


class Service(MachineCase):
    def setUp(self):
        self.put_product(FOLDER)
        self.delete_log(FOLDER)

    def tearDown(self):
        for ending in ("refuses-to-stop", "hangs-at-stop"):
            self.machine.path(FOLDER + "\\NVXServer.exe." + ending).unlink(missing_ok=True)
        self.run_with("-U")
        self.assertFalse(self.server_is_registered())

    def run_with(self, mode):
        """Runs NVXConfig.exe silently; returns the log's lines on the server."""
        code, lines = self.configure_with_new_log(FOLDER, mode, "-S", "-Len-US")
        self.assertEqual(code, 0)
        return lines_on_the_server(lines)

    def make_server(self, behaviour):
        """Makes the server misbehave; see sample/programs/server.cpp."""
        self.write(FOLDER + "\\NVXServer.exe." + behaviour)

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
        self.assertTrue(self.server_is_running())
        self.assertTrue(self.server_is_registered())
        self.assertEqual(self.read(ANALYZE + "\\solver_manager.cfg"), b"")
        registry = self.machine.registry()
        self.assertEqual(value_of(registry, SERVICE_KEY, "ImagePath"), f'"{FOLDER}\\NVXServer.exe"')
        self.assertEqual(
            value_of(registry, SERVICE_KEY, "Description"), "Sample server: registered by itself."
        )
        self.assertEqual(value_of(registry, SERVICE_KEY, "ObjectName"), "LocalSystem")

    def test_a_running_server_is_stopped_deleted_registered_and_started_again(self):
        self.run_with("-I")
        self.write(ANALYZE + "\\of the old server.txt")
        self.assertEqual(self.run_with("-I"), ["   0 uninstallServer "])
        self.assertTrue(self.server_is_running())
        self.assertTrue(self.exists(SERVER_LOG))
        self.assertFalse(self.exists(ANALYZE + "\\of the old server.txt"))

    def test_a_stopped_server_is_registered_and_started_again(self):
        self.run_with("-I")
        self.machine.stop()  # the service does not start with the machine
        self.assertFalse(self.server_is_running())
        self.assertEqual(
            self.run_with("-I"),
            ["   0 uninstallServer ", "   0 uninstallServer - could not stop service"],
        )
        self.assertTrue(self.server_is_running())

    def test_a_server_whose_process_was_ended_is_registered_again_at_once(self):
        self.run_with("-I")
        self.machine.run("taskkill", "/f", "/im", "NVXServer.exe")
        beginning, not_stopped = "uninstallServer ", "uninstallServer - could not stop service"
        self.assertEqual(self.run_with("-I"), ["   0 " + beginning, "   0 " + not_stopped])
        self.assertTrue(self.server_is_running())
        # The control manager may report it as running for ever; waiting for that would take ten seconds.
        log = self.machine.log(FOLDER)
        removal = re.search(f"^(.{{24}})    0 {not_stopped}\n(.{{24}})    0 Command:", log, re.MULTILINE)
        stopping, removed = (time.mktime(time.strptime(stamp)) for stamp in removal.groups())
        self.assertLess(removed - stopping, 9)

    def test_an_uninstall_removes_the_service_and_its_folders(self):
        self.run_with("-I")
        self.write(FOLDER + "\\HPCAnalyze\\sub\\job.txt")
        self.assertEqual(self.run_with("-U"), ["   0 uninstallServer "])
        self.assertFalse(self.server_is_running())
        self.assertFalse(self.exists(ANALYZE))
        self.assertFalse(self.exists(FOLDER + "\\HPCAnalyze"))
        self.assertFalse(self.server_is_registered())

    def test_an_uninstall_without_a_service_removes_the_folders(self):
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
        self.assertFalse(self.server_is_registered())
        # The program does not run any more, so an installer can replace it.
        self.machine.path(FOLDER + "\\NVXServer.exe").write_bytes(b"")

    def test_a_server_that_refuses_to_stop_is_ended(self):
        self.make_server("refuses-to-stop")
        self.run_with("-I")
        self.assertEqual(
            self.run_with("-I"),
            [
                "   0 uninstallServer ",
                "   0 uninstallServer - could not stop service",
                "   0 NVXServer terminated",
            ],
        )
        self.assertTrue(self.server_is_running())
        self.run_with("-U")
        self.assertFalse(self.server_is_registered())

    def test_a_server_that_hangs_while_stopping_is_ended(self):
        self.make_server("hangs-at-stop")
        self.run_with("-I")
        self.delete_log(FOLDER)
        code, lines, warnings = self.diagnose(FOLDER, "-I", "-S", "-Len-US")
        self.assertEqual(code, 0)
        self.assertEqual(lines_on_the_server(lines), ["   0 uninstallServer ", "   0 NVXServer terminated"])
        self.assertEqual(warnings, ["The server did not stop in time; its process is ended"])
        self.assertTrue(self.server_is_running())


if __name__ == "__main__":
    unittest.main()
