"""The programs that a run starts are missing or fail, or one of them hangs: the run reaches its end, the log
says what happened, and the files of other programs and users survive."""

import contextlib
import shutil
import time
import unittest

from launcher_case import LauncherCase, creo_entry, nx_line
from machine_case import (
    ASK_LOGOFF,
    CLOSE_MESSAGE_BOX,
    COMPLETE,
    LOG,
    SCRIPTED_TOOL,
    log_lines,
    output_of,
    wait_until,
)
from cadsystems import CUSTOM_DIRS_10, FOREIGN_DIRS, FOREIGN_ENTRY, PROTK_2, PROTK_3
from winemachine import INSTALL_DIR, SHARED_DATA, TRANSLATORS, TUTORIALS

OVERRIDES = "HKEY_CURRENT_USER\\Software\\Wine\\DllOverrides"
WINDOWS = "C:\\windows\\"
SYSTEM = WINDOWS + "system32\\"
USERS_FILE = TUTORIALS.rpartition("\\")[0] + "\\mine.txt"

# The orders of a program that hangs until the test deletes the mark.
HANGS = "C:\\hangs"
HANG = "mark C:\\hangs\nwait C:\\hangs\nexit 1"
NOT_STARTED = ["  -2 Output:", "  -2   The program could not be started."]
ENDED = "The program was still running after 30000 ms and has been ended."

# {program: (path, its command in the log, starts in an install, starts in a removal)}
PROGRAMS = {
    "the unpacker": (INSTALL_DIR + "\\7z.exe", INSTALL_DIR + "\\7z.exe ", 3, 0),
    "the viewer's configuration": (
        INSTALL_DIR + "\\NVX Viewer\\NVXViewerConfig.exe",
        INSTALL_DIR + "\\NVX Viewer\\NVXViewerConfig.exe",
        1,
        1,
    ),
    "the Registry Editor": (WINDOWS + "regedit.exe", "regedit ", 2, 1),
    "the registration of libraries": (SYSTEM + "regsvr32.exe", "regsvr32 ", 4, 2),
}
# The log has another format for the command interpreter.
INTERPRETER = (SYSTEM + "cmd.exe", "cmd.exe /C ", 6, 11)


class ProgramCase(LauncherCase):
    """Replaces programs of a machine's Windows folder.

    Machines share the files of that folder by hard links, so a file is renamed and never written.
    """

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Without this Wine would run its built-in programs, whatever is in their place.
        for name in ("cmd.exe", "regedit.exe", "regsvr32.exe"):
            cls.machine.set_value(OVERRIDES, name, "native,builtin")

    def setUp(self):
        self.reset_files()
        shutil.rmtree(self.machine.path(INSTALL_DIR), ignore_errors=True)
        self.put_product(translators=TRANSLATORS)
        self.write(USERS_FILE, b"mine")

    @contextlib.contextmanager
    def replaced(self, windows_path, orders):
        """Replaces a program with one that follows the orders, or with none if `orders` is None."""
        path = self.machine.path(windows_path)
        aside = path.with_name(path.name + ".aside")
        script = path.with_name(path.name + ".script")
        path.rename(aside)
        try:
            if orders is not None:
                shutil.copy(SCRIPTED_TOOL, path)
                script.write_text(orders)
            yield
        finally:
            path.unlink(missing_ok=True)
            script.unlink(missing_ok=True)
            aside.rename(path)

    def start(self, mode="-I"):
        """Starts a silent run and does not wait for it."""
        self.delete_log()
        process = self.machine.start(INSTALL_DIR + "\\NVXConfig.exe", mode, "-S", "-Len-US")
        self.addCleanup(self.machine.stop)
        return process

    def start_and_wait_for_mark(self):
        """Starts an install and waits until a program of it hangs; two seconds later it must still wait."""
        process = self.start()
        wait_until("the hanging program", self.machine.path(HANGS).exists)
        time.sleep(2)
        self.assertIsNone(process.poll())
        self.assertNotIn(COMPLETE, self.lines())
        return process

    def lines(self):
        return log_lines(self.machine.path(LOG))

    def finish(self, process):
        code = process.wait(timeout=240)
        lines = self.lines()
        self.assert_complete(code, lines)
        return lines

    def assert_done(self, mode):
        """The CAD systems' files hold our entries after an install only, and their other contents always."""
        installed = mode == "-I"
        for release, path in ((2, PROTK_2), (3, PROTK_3)):
            entry = creo_entry(release) if installed else b""
            self.assertEqual(self.read(path), entry + FOREIGN_ENTRY)
        added = nx_line("\\NX10") if installed else b"\r\n"
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + added)
        self.assertEqual(self.read(USERS_FILE), b"mine")


class ExternalPrograms(ProgramCase):
    def replace_programs(self, orders, expected):
        """Installs and removes with the programs replaced; the log must have the expected lines for each
        start."""
        for mode, column in (("-I", 2), ("-U", 3)):
            self.put_product(translators=TRANSLATORS)
            with contextlib.ExitStack() as replaced:
                for path, *_ in PROGRAMS.values():
                    replaced.enter_context(self.replaced(path, orders))
                lines = self.run_with(mode)
            for name, row in PROGRAMS.items():
                with self.subTest(name, mode=mode):
                    logged = [
                        lines[i + 2 : i + 2 + len(expected)]
                        for i, line in enumerate(lines)
                        if line.startswith("   0 Command:" + row[1])
                    ]
                    self.assertEqual(logged, [expected] * row[column])
            self.assert_done(mode)

    def test_missing_programs_are_logged(self):
        self.replace_programs(None, NOT_STARTED)

    def test_the_output_and_exit_codes_of_failing_programs_are_logged(self):
        self.replace_programs("line it is broken\nexit 7", ["   7 Output:", "   7   it is broken"])

    def outputs_of_the_interpreter(self, lines):
        start = "   0 Command:" + INTERPRETER[1]
        return [lines[i + 1] for i, line in enumerate(lines) if line.startswith(start)]

    def test_without_the_command_interpreter_the_folders_stay(self):
        old = self.write(INSTALL_DIR + "\\Python\\Lib\\old.py", b"old")
        with self.replaced(INTERPRETER[0], None):
            for mode, starts in (("-I", INTERPRETER[2]), ("-U", INTERPRETER[3])):
                lines = self.run_with(mode)
                self.assertEqual(self.outputs_of_the_interpreter(lines), ["  -2  output:"] * starts)
                self.assert_done(mode)
        self.assertTrue(old.exists())
        self.assertFalse(self.exists(INSTALL_DIR + "work.bat"))
        self.run_with("-U")
        self.assertFalse(self.exists(INSTALL_DIR + "\\Python"))

    def test_the_output_and_exit_code_of_a_failing_command_interpreter_are_logged(self):
        with self.replaced(INTERPRETER[0], "line access denied\nexit 5"):
            lines = self.run_with("-I")
        outputs = self.outputs_of_the_interpreter(lines)
        self.assertEqual(outputs, ["   5  output:access denied"] * INTERPRETER[2])
        self.assert_done("-I")

    def test_the_command_interpreter_ignores_the_users_commands(self):
        # Without /D it would first run those that the user has put into the registry.
        with self.replaced(INTERPRETER[0], "record"):
            self.run_with("-I")
            recorded = self.machine.path(INTERPRETER[0] + ".arguments")
            self.addCleanup(recorded.unlink)
            self.assertEqual(recorded.read_text().splitlines()[:2], ["/D", "/C"])

    def test_a_hanging_program_is_ended_after_30_seconds(self):
        # test_faults.py has the unpacker's case. Each program hangs at its first start only.
        rows = {name: row[:2] for name, row in PROGRAMS.items() if name != "the unpacker"}
        rows["the command interpreter"] = INTERPRETER[:2]
        for name, (path, command) in rows.items():
            with self.subTest(name):
                with self.replaced(path, "forget\nline working\nsleep 100000"):
                    lines = self.run_with("-I")
                if path == INTERPRETER[0]:
                    self.assertEqual(self.outputs_of_the_interpreter(lines)[0], "  -1  output:working")
                else:
                    self.assertEqual(
                        output_of(lines, command), ["  -1 Output:", "  -1   working", "  -1   " + ENDED]
                    )
                self.assert_done("-I")
                self.reset_files()

    def test_the_run_waits_for_an_unpacker_without_a_time_out(self):
        # Unpacking Python and the Mertle Server has no time-out: the run waits until the program ends.
        for archive in ("python26_x64", "NVX_MertleServer"):
            with self.subTest(archive):
                orders = f"only-for {archive}\n{HANG}"
                with self.replaced(INSTALL_DIR + "\\7z.exe", orders):
                    process = self.start_and_wait_for_mark()
                    self.assertTrue(self.lines()[-1].startswith("   0 WorkDir:"), self.lines()[-1])
                    self.machine.path(HANGS).unlink()
                    lines = self.finish(process)
                at = next(i for i, line in enumerate(lines) if archive + ".7z -y" in line)
                self.assertEqual(lines[at + 2], "   1 Output:")
                self.assert_done("-I")
                self.reset_files()

    def test_a_second_run_waits_until_the_first_has_ended(self):
        # The second one does not open the log before.
        with self.replaced(INSTALL_DIR + "\\7z.exe", f"only-for python26_x64\nforget\n{HANG}"):
            first = self.start_and_wait_for_mark()
            started = self.lines()
            second = self.machine.start(INSTALL_DIR + "\\NVXConfig.exe", "-U", "-S", "-Len-US")
            time.sleep(3)
            self.assertIsNone(second.poll())
            self.assertEqual(self.lines(), started)
            self.machine.path(HANGS).unlink()
            self.assertEqual(first.wait(240), 0)
            self.assertEqual(second.wait(240), 0)
        lines = self.lines()
        banner = max(i for i, line in enumerate(lines) if line.endswith("=" * 77))
        self.assertEqual(lines[banner - 2], COMPLETE)
        self.assertEqual(
            lines[banner + 2], "   0 Another run was in progress; this one has waited for its end"
        )
        self.assertTrue(lines[banner + 3].endswith(" -U -S -Len-US"))
        self.assert_removed(0, lines[banner:])
        self.assert_done("-U")


class Server(ProgramCase):
    """The server's program. If it cannot be registered, even a silent run shows a message box and waits."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.turn_screen_off()

    def close_message_box(self, process, title):
        """Waits for the message box and closes it; returns the log's lines while it was shown and at the
        end."""
        mark = self.machine.path("C:\\message box")
        mark.unlink(missing_ok=True)
        closing = self.machine.start(str(CLOSE_MESSAGE_BOX), title, "C:\\message box")
        wait_until("the message box", lambda: mark.exists() or closing.poll() is not None)
        before = self.lines()
        mark.unlink(missing_ok=True)
        self.assertEqual(closing.wait(60), 0)
        return before, self.finish(process)

    def test_a_missing_server_is_reported_in_a_message_box(self):
        self.machine.path(INSTALL_DIR + "\\NVXServer.exe").unlink()
        text = (
            "   1 Unable to find server executable; "
            f"Check_ Installation Directory path:{INSTALL_DIR}\\NVXServer.exe"
        )
        before, lines = self.close_message_box(self.start(), "NVX Configuration Utility")
        self.assertNotIn(COMPLETE, before)
        self.assertNotIn(text, before)  # logged after the message box
        self.assertIn(text, lines)
        self.assert_done("-I")
        self.assertFalse(self.server_is_registered())

    def test_a_server_that_fails_to_register_is_reported_in_a_message_box(self):
        self.write(INSTALL_DIR + "\\NVXServer.exe.fails-to-register")
        before, lines = self.close_message_box(self.start(), "Server Error")
        self.assertNotIn(COMPLETE, before)
        self.assert_no_failure_logged(lines)
        self.assert_done("-I")
        self.assertFalse(self.server_is_registered())

    def test_a_server_that_hangs_at_its_registration_is_reported_in_a_message_box_once_it_has_ended(self):
        # tests/service has the time-out of two minutes.
        with self.replaced(INSTALL_DIR + "\\NVXServer.exe", HANG):
            process = self.start_and_wait_for_mark()
            self.machine.path(HANGS).unlink()
            _, lines = self.close_message_box(process, "Server Error")
        self.assert_no_failure_logged(lines)
        self.assert_done("-I")

    def test_a_run_continues_after_a_server_that_registers_nothing(self):
        with self.replaced(INSTALL_DIR + "\\NVXServer.exe", "exit 0"):
            lines, warnings = self.diagnose_with("-I")
        self.assert_no_failure_logged(lines)
        self.assertEqual(warnings, ["The server has been registered, but could not be started"])
        self.assert_done("-I")
        self.assertFalse(self.server_is_registered())

    def test_a_removal_needs_no_server_program(self):
        self.run_with("-I")
        self.machine.path(INSTALL_DIR + "\\NVXServer.exe").rename(self.machine.path("C:\\server.exe"))
        lines = self.run_with("-U")
        self.assert_no_failure_logged(lines)
        self.assert_done("-U")
        self.assertFalse(self.server_is_registered())
        self.assertFalse(self.exists(SHARED_DATA + "\\Analyze"))


class Logoff(ProgramCase):
    """A run blocks the thread of its windows, so what refuses the logoff has a thread of its own."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.turn_screen_off()

    def ask(self):
        return self.machine.run(str(ASK_LOGOFF), "NVX Configuration Utility").returncode

    def test_the_user_cannot_sign_out_during_a_run(self):
        with self.replaced(INSTALL_DIR + "\\7z.exe", f"only-for python26_x64\n{HANG}"):
            process = self.start_and_wait_for_mark()
            self.assertEqual(self.ask(), 0)
            self.machine.path(HANGS).unlink()
            self.finish(process)
        self.assertEqual(self.ask(), 1)


if __name__ == "__main__":
    unittest.main()
