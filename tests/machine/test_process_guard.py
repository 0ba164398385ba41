"""The guards against running programs, with programs that run: small ones under the guarded names."""

import shutil
import subprocess
import time
import unittest

from machine_case import BUILD, MachineCase
from winemachine import INSTALL_DIR, Machine, make_template

GUARDED = BUILD / "sample" / "guarded"


class Program:
    """A guarded program that runs on a machine under a name of ours."""

    def __init__(self, machine, windows_path, source):
        self.path = machine.path(windows_path)
        self.path.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(GUARDED / source, self.path)
        self._running = self.path.with_name(self.path.name + ".running")
        self._running.unlink(missing_ok=True)
        self._process = machine.start(windows_path)
        deadline = time.monotonic() + 60
        while not self._running.exists():
            if time.monotonic() > deadline or self._process.poll() is not None:
                raise RuntimeError("did not start: " + windows_path)
            time.sleep(0.05)

    def is_running(self):
        return self._process.poll() is None

    def was_ended_by_force(self):
        """Waits for its end; one that ended of itself has cleaned up behind it."""
        self._process.wait(timeout=30)
        return self._running.exists()

    def stop(self):
        """Tells it to end if it still runs."""
        if self.is_running():
            self.path.with_name(self.path.name + ".stop").touch()
        self._process.wait(timeout=30)


class ProductGuard(MachineCase):
    def setUp(self):
        self.put_product()
        # The server of an earlier install is one of the product's programs.
        self.machine.run(INSTALL_DIR + "\\NVXConfig.exe", "-ST", "-S")
        self.machine.path(INSTALL_DIR + "\\NVXConfig.log").unlink(missing_ok=True)

    def start(self, windows_path, source, machine=None):
        program = Program(machine or self.machine, windows_path, source)
        self.addCleanup(program.stop)
        return program

    def install(self):
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

    def test_another_release_runs_on(self):
        solver = self.start("C:\\Velmora\\NVX 2016\\NVXSolver.exe", "product/NVXSolver.exe")
        self.assertEqual(self.install(), [])
        solver.stop()
        self.assertFalse(solver.was_ended_by_force())

    def test_the_release_may_stand_anywhere_in_the_path(self):
        server = self.start("C:\\2017\\größe 日本\\nvxserver.EXE", "product/NVXServer.exe")
        self.assertEqual(self.install(), ["   0 NVXServer terminated"])
        self.assertTrue(server.was_ended_by_force())

    def test_two_copies_are_both_ended(self):
        both = [self.start(f"C:\\NVX 2017 {i}\\NVXMonitor.exe", "product/NVXMonitor.exe") for i in range(2)]
        self.assertEqual(self.install(), ["   0 NVX 2017 Job Monitor terminated"] * 2)
        self.assertEqual([program.was_ended_by_force() for program in both], [True, True])

    def test_programs_of_another_machine_and_of_the_host_are_not_seen(self):
        other = Machine.create(BUILD / "machines" / "OtherMachine", make_template(BUILD / "wine-template"))
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
    def test_a_silent_run_asks_about_a_cad_system_and_waits_for_the_answer(self):
        # Nobody answers: the run must still be waiting, with nothing done and nothing ended.
        install_dir = self.put_product("C:\\NVX")
        creo = Program(self.machine, "C:\\PTC\\xtop.exe", "cad/xtop.exe")
        with self.assertRaises(subprocess.TimeoutExpired):
            self.configure(install_dir, "-I", "-S", "-Len-US", timeout=20)
        self.assertTrue(creo.was_ended_by_force())  # by the machine's stop at the time-out
        log = self.machine.log(install_dir)
        self.assertIn("Install Path OK", log)
        self.assertNotIn("terminated", log)
        self.assertNotIn("CheckForRunningOstrade", log)


if __name__ == "__main__":
    unittest.main()
