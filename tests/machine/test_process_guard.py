"""The guards against running programs, tried on small programs with the guarded names."""

import shutil
import subprocess
import unittest

from guarded_program import GuardedProgram
from machine_case import BUILD, MachineCase, new_machine
from winemachine import INSTALL_DIR


class ProductGuard(MachineCase):
    def setUp(self):
        self.put_product()
        # Removes the server of an earlier test, which is one of the guarded programs.
        self.machine.run(INSTALL_DIR + "\\NVXConfig.exe", "-ST", "-S")
        self.delete_log()

    def start(self, windows_path, source, machine=None):
        program = GuardedProgram(machine or self.machine, windows_path, source)
        self.addCleanup(program.stop)
        return program

    def install(self):
        """Installs silently; returns the log's lines on ended programs."""
        code, lines = self.configure(INSTALL_DIR, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        return [line for line in lines if "terminated" in line]

    def test_a_silent_run_ends_every_program_of_the_product(self):
        programs = {
            name: self.start("C:\\Velmora\\nvx 2017 programs\\" + name, "product/" + name)
            for name in ("NVX.exe", "NVXSolver.exe", "NVXServer.exe", "NVXMonitor.exe")
        }
        self.assertEqual(
            sorted(self.install()),
            [
                "   0 NVX 2017 Job Monitor terminated",
                "   0 NVXServer terminated",
                "   0 NVXSolver terminated",
                "   0 Velmora NVX terminated",
            ],
        )
        for name, program in programs.items():
            self.assertTrue(program.was_ended_by_force(), name)

    def test_a_program_of_another_release_keeps_running(self):
        solver = self.start("C:\\Velmora\\NVX 2016\\NVXSolver.exe", "product/NVXSolver.exe")
        self.assertEqual(self.install(), [])
        solver.stop()
        self.assertFalse(solver.was_ended_by_force())

    def test_the_release_may_be_anywhere_in_the_path(self):
        server = self.start("C:\\2017\\größe 日本\\nvxserver.EXE", "product/NVXServer.exe")
        self.assertEqual(self.install(), ["   0 NVXServer terminated"])
        self.assertTrue(server.was_ended_by_force())

    def test_two_copies_are_both_ended(self):
        both = [self.start(f"C:\\NVX 2017 {i}\\NVXMonitor.exe", "product/NVXMonitor.exe") for i in range(2)]
        self.assertEqual(self.install(), ["   0 NVX 2017 Job Monitor terminated"] * 2)
        self.assertEqual([program.was_ended_by_force() for program in both], [True, True])

    def test_programs_of_another_machine_and_of_the_host_keep_running(self):
        other = new_machine("OtherMachine")
        self.addCleanup(shutil.rmtree, other.prefix)
        self.addCleanup(other.stop)
        there = self.start("C:\\NVX 2017\\NVXMonitor.exe", "product/NVXMonitor.exe", other)
        cad_there = self.start("C:\\PTC\\xtop.exe", "cad/xtop.exe", other)
        folder = BUILD / "machines" / "host NVX 2017"
        folder.mkdir(parents=True, exist_ok=True)
        self.addCleanup(shutil.rmtree, folder)
        shutil.copy("/bin/sleep", folder / "NVXServer.exe")
        on_host = subprocess.Popen([folder / "NVXServer.exe", "600"])
        self.addCleanup(on_host.wait)
        self.addCleanup(on_host.kill)

        here = self.start("C:\\NVX 2017\\NVXMonitor.exe", "product/NVXMonitor.exe")
        self.assertEqual(self.install(), ["   0 NVX 2017 Job Monitor terminated"])
        self.assertTrue(here.was_ended_by_force())
        self.assertIsNone(on_host.poll())
        for program in (there, cad_there):
            program.stop()
            self.assertFalse(program.was_ended_by_force())


class CadGuard(MachineCase):
    def test_a_silent_run_waits_for_an_answer_about_a_running_cad_system(self):
        # Without an answer the run still waits at its time-out, and has ended no program.
        install_dir = self.put_product("C:\\NVX")
        creo = GuardedProgram(self.machine, "C:\\PTC\\xtop.exe", "cad/xtop.exe")
        with self.assertRaises(subprocess.TimeoutExpired):
            self.configure(install_dir, "-I", "-S", "-Len-US", timeout=20)
        self.assertTrue(creo.was_ended_by_force())  # when the machine was stopped at the time-out
        log = self.machine.log(install_dir)
        self.assertIn("Install Path OK", log)
        self.assertNotIn("terminated", log)
        self.assertNotIn("CheckForRunningOstrade", log)


if __name__ == "__main__":
    unittest.main()
