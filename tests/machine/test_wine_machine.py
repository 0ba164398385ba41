"""The test machines themselves: a program always runs, whatever the machine's server was doing before, and
what it wrote is there afterwards."""

import contextlib
import os
import shutil
import signal
import subprocess
import sys
import threading
import time
import unittest
from pathlib import Path
from unittest import mock

from machine_case import SCRIPTED_TOOL, new_machine, wait_until
import winemachine
from winemachine import TIME_ZONE_KEY, TIME_ZONES, Machine, MachineError
from wineregistry import is_below, script_of, value_of

TOOLS = Path(winemachine.__file__).parent
KEY = "HKEY_CURRENT_USER\\Software\\Tried"
HEADER = "Windows Registry Editor Version 5.00\n\n"


class WineMachine(unittest.TestCase):
    def setUp(self):
        self.machine = new_machine(self.id())
        self.addCleanup(shutil.rmtree, self.machine.prefix)
        self.addCleanup(self.end_programs)
        self.addCleanup(self.machine.stop)

    def end_programs(self):
        """Ends the programs that are left when a test has killed or suspended the server."""
        for program in self.machine.programs():
            with contextlib.suppress(ProcessLookupError):
                os.kill(program, signal.SIGKILL)

    @contextlib.contextmanager
    def foreign_server(self, *options):
        """A server of the machine that `Machine` did not start."""
        command = ["wineserver", "--foreground", *options]
        environment = self.machine.environment()
        server = subprocess.Popen(
            command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )
        try:
            wait_until("the server", lambda: server.poll() is not None or winemachine._is_listening(server))
            yield server
        finally:
            if server.poll() is None:
                server.kill()
            server.wait()

    def value(self, name):
        return value_of(self.machine.registry(), KEY, name)

    def test_a_program_that_connects_to_an_ending_server_is_not_dropped(self):
        with self.foreign_server("-p3") as server:
            command = ["wine", "cmd", "/c", "exit"]
            with self.machine.program_settings():
                environment = self.machine.environment()
                # The machine's services inherit its output, and would keep a pipe open.
                subprocess.run(
                    command,
                    env=environment,
                    check=True,
                    stdout=subprocess.DEVNULL,
                    stderr=subprocess.DEVNULL,
                )
            time.sleep(2)
            # The server is suspended at its time-out; a program that connects now would be dropped.
            os.kill(server.pid, signal.SIGSTOP)
            resume = threading.Timer(3, os.kill, (server.pid, signal.SIGCONT))
            resume.start()
            self.machine.set_value(KEY, "kept", "x")
            resume.join()
        self.assertEqual(self.value("kept"), "x")

    def test_the_server_of_a_deleted_folder_with_the_same_inode_serves_no_other_machine(self):
        # A moved folder keeps its inode; the server continues with the registry that it has read.
        moved = Machine(str(self.machine.prefix) + " moved")
        with self.foreign_server("-p") as server:
            os.rename(self.machine.prefix, moved.prefix)
            self.addCleanup(os.rename, moved.prefix, self.machine.prefix)
            self.addCleanup(moved.stop)
            moved.start_up()
            self.assertIsNotNone(server.poll())
            self.assertIsNone(moved._server.poll())

    def test_a_server_that_finds_another_at_its_socket_has_not_started(self):
        with self.foreign_server("-p") as server:
            self.assertTrue(winemachine._is_listening(server))
            # A second server that has just changed to the folder of the socket.
            newcomer = subprocess.Popen(["sleep", "60"], cwd=f"/proc/{server.pid}/cwd")
            try:
                self.assertFalse(winemachine._is_listening(newcomer))
            finally:
                newcomer.kill()
                newcomer.wait()

    def test_the_registry_survives_any_pause_between_programs(self):
        for number, pause in enumerate((0, 0.4, 0.5, 3.2)):
            time.sleep(pause)
            self.machine.set_value(KEY, str(number), "x")
        registry = self.machine.registry()
        self.assertEqual([value_of(registry, KEY, str(number)) for number in range(4)], ["x"] * 4)

    def start_by_wine_run(self, program):
        (self.machine.prefix / ".ready").touch()
        return subprocess.Popen(
            [TOOLS / "wine-run", program],
            env={**os.environ, "WINEPREFIX": str(self.machine.prefix)},
            stdout=subprocess.DEVNULL,
        )

    def test_the_addresses_of_programs_are_not_random(self):
        # A random address may take the page that each program needs.
        ADDR_NO_RANDOMIZE = 0x0040000
        shutil.copy(SCRIPTED_TOOL, self.machine.path("C:\\tool.exe"))
        self.machine.path("C:\\tool.exe.script").write_text("mark C:\\runs\nwait C:\\runs")
        runs = self.machine.path("C:\\runs")
        for start in (self.machine.start, self.start_by_wine_run):
            with self.subTest(start.__name__):
                process = start("C:\\tool.exe")
                wait_until("the program", lambda: runs.exists() or process.poll() is not None)
                programs = self.machine.programs()
                personalities = {
                    command: int(Path(f"/proc/{pid}/personality").read_text(), 16)
                    for pid, command in programs.items()
                    if "wineserver" not in command and "wine-run" not in command
                }
                runs.unlink()
                process.wait(60)
                self.machine.stop()
                self.assertIn("C:\\windows\\system32\\services.exe", "".join(personalities))
                random = [name for name, value in personalities.items() if not value & ADDR_NO_RANDOMIZE]
                self.assertEqual(random, [])

    def test_a_dropped_program_is_reported(self):
        message = "Protocol error:0020: partial read 3"
        self.machine.start_up()
        self.machine._server_errors.write(message.encode())
        with self.assertRaisesRegex(MachineError, message):
            self.machine.stop()

    def test_every_value_of_a_script_is_imported(self):
        names = [f"value {number}" for number in range(200)]
        values = {name: '"größe\\" 日本 0' for name in names}
        odd_key = KEY + "\\größe [日本]"
        for state in ("stopped", "running"):
            with self.subTest(state):
                if state == "running":
                    self.machine.start_up()
                self.machine.import_script(script_of({KEY: values, odd_key + state: values}))
                self.machine.import_script(f'{HEADER}[{KEY.upper()}]\n"{state}"=dword:00000011\n')
                # What a stopped machine has in its files, its server has read.
                self.machine.start_up()
                registry = self.machine.registry()
                self.assertEqual(registry[KEY].items() & values.items(), values.items())
                self.assertEqual(registry[odd_key + state], values)
                self.assertEqual(value_of(registry, KEY, state), "dword:00000011")
                self.machine.import_script(f"{HEADER}[-{KEY}]\n")
                self.assertIsNone(value_of(self.machine.registry(), KEY, names[0]))

    def test_a_script_that_is_not_imported_is_reported(self):
        with self.assertRaises(MachineError):
            self.machine.import_script(f'[{KEY}]\n"no header"="x"\n')

    def test_a_program_is_named_and_ended_at_its_timeout(self):
        shutil.copy(SCRIPTED_TOOL, self.machine.path("C:\\tool.exe"))
        self.machine.path("C:\\tool.exe.script").write_text("sleep 100000")
        with self.assertRaises(subprocess.TimeoutExpired) as caught:
            self.machine.run("C:\\tool.exe", timeout=3)
        self.assertIn("C:\\tool.exe", "".join(caught.exception.__notes__))
        self.assertEqual(self.machine.programs(), {})

    def test_a_killed_server_is_reported(self):
        self.machine.start_up()
        self.machine._server.kill()
        self.machine._server.wait()
        with self.assertRaises(MachineError):
            self.machine.run("cmd", "/c", "exit")
        with self.assertRaises(MachineError):
            self.machine.stop()

    def test_a_machine_that_cannot_run_a_program_has_not_started(self):
        failed = subprocess.CompletedProcess([], 1, stdout=b"")
        with mock.patch.object(Machine, "run", return_value=failed):
            with self.assertRaises(MachineError):
                self.machine.start_up()

    def test_a_server_saves_the_registry_and_ends_with_its_parent_process(self):
        script = (
            "import os, sys; sys.path.insert(0, sys.argv[1]); from winemachine import Machine\n"
            "machine = Machine(sys.argv[2]); machine.set_value(sys.argv[3], 'kept', 'x')\n"
            "os._exit(0)"
        )
        command = [sys.executable, "-B", "-c", script, TOOLS, self.machine.prefix, KEY]
        subprocess.run(command, check=True)
        wait_until("the programs to end", lambda: not self.machine.programs(), 60)
        self.assertEqual(self.machine.programs(), {})
        self.assertEqual(self.value("kept"), "x")

    def test_a_new_machine_has_the_time_zone_of_the_host_only(self):
        registry = self.machine.registry()
        zones = {key[len(TIME_ZONES) :].split("\\")[0] for key in registry if is_below(key, TIME_ZONES)}
        self.assertEqual(zones, {value_of(registry, TIME_ZONE_KEY, "TimeZoneKeyName")})

    def test_a_program_of_windows_is_started_by_its_path(self):
        # By its name alone it would be started by another program of Windows.
        for name, path in (
            ("cmd", "C:\\windows\\system32\\cmd.exe"),
            ("reg.exe", "C:\\windows\\system32\\reg.exe"),
            ("regedit", "C:\\windows\\regedit.exe"),
            ("C:\\a folder\\cmd", "C:\\a folder\\cmd"),
            ("no program of windows", "no program of windows"),
        ):
            with self.subTest(name):
                self.assertEqual(self.machine.full_name(name), path)
        self.assertEqual(self.machine.run("cmd", "/c", "exit 3").returncode, 3)


if __name__ == "__main__":
    unittest.main()
