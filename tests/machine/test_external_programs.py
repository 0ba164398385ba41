"""Each program that a run starts, in turn missing, failing or hanging: the run comes to its end, the log
says what happened, and nothing that is not the product's is lost."""

import contextlib
import shutil
import time
import unittest

from launcher_case import LauncherCase, creo_entry, nx_line
from machine_case import BUILD, COMPLETE, SCRIPTED_TOOL, log_lines, output_of
from cadsystems import CUSTOM_DIRS_10, FOREIGN_DIRS, FOREIGN_ENTRY, PROTK_2, PROTK_3
from winemachine import INSTALL_DIR, SHARED_DATA, TRANSLATORS, TUTORIALS

ANSWER_BOX = BUILD / "tests" / "machine" / "answer_box.exe"
LOG = INSTALL_DIR + "\\NVXConfig.log"
OVERRIDES = "HKEY_CURRENT_USER\\Software\\Wine\\DllOverrides"
WINDOWS = "C:\\windows\\"
SYSTEM = WINDOWS + "system32\\"
MINE = TUTORIALS.rpartition("\\")[0] + "\\mine.txt"

# A program that hangs until the mark is taken away, which is how the tests end it.
HANGS = "C:\\hangs"
HANG = "mark C:\\hangs\nwait C:\\hangs\nexit 1"
NOT_STARTED = ["  -2 Output:", "  -2   The program could not be started."]
ENDED = "The program was still running after 30000 ms and has been ended."

# Each program: where it lies, how the log names it, and how often an install and a removal start it.
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
# The command interpreter's line is of another form.
INTERPRETER = (SYSTEM + "cmd.exe", "cmd.exe /C ", 6, 11)


class ProgramCase(LauncherCase):
    """A machine of its own, whose Windows folder is changed file by file: it is shared with others by hard
    links, so that a file is taken away and another one put in its place, never written."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Otherwise the machine would run its own system programs whatever lies in their place.
        for name in ("cmd.exe", "regedit.exe", "regsvr32.exe"):
            cls.machine.set_value(OVERRIDES, name, "native,builtin")

    def setUp(self):
        self.reset_files()
        shutil.rmtree(self.machine.path(INSTALL_DIR), ignore_errors=True)
        self.put_product(translators=TRANSLATORS)
        self.write(MINE, b"mine")

    @contextlib.contextmanager
    def replaced(self, windows_path, orders):
        """In the place of a program there is another one that does what the orders say; without orders,
        none."""
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
        """Starts a silent run that is not waited for."""
        self.machine.path(LOG).unlink(missing_ok=True)
        process = self.machine.start(INSTALL_DIR + "\\NVXConfig.exe", mode, "-S", "-Len-US")
        self.addCleanup(self.machine.stop)
        return process

    def wait_for(self, what, condition):
        deadline = time.monotonic() + 240
        while not condition():
            self.assertLess(time.monotonic(), deadline, "waited in vain for " + what)
            time.sleep(0.05)

    def start_and_wait_for_mark(self):
        """Starts an install that comes to a program which makes the mark and hangs; it must still wait
        later."""
        process = self.start()
        self.wait_for("the hanging program", self.machine.path(HANGS).exists)
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
        """What the CAD systems share holds our entries after an install, and what was in it before at all
        times."""
        installed = mode == "-I"
        for release, path in ((2, PROTK_2), (3, PROTK_3)):
            entry = creo_entry(release) if installed else b""
            self.assertEqual(self.read(path), entry + FOREIGN_ENTRY)
        added = nx_line("\\NX10") if installed else b"\r\n"
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + added)
        self.assertEqual(self.read(MINE), b"mine")


class ExternalPrograms(ProgramCase):
    def each_program(self, orders, expected):
        """Installs and removes with each program replaced; every start of it must be told as expected."""
        for name, (path, command, installs, removals) in PROGRAMS.items():
            for mode, starts in (("-I", installs), ("-U", removals)):
                with self.subTest(name, mode=mode):
                    self.put_product(translators=TRANSLATORS)
                    with self.replaced(path, orders):
                        lines = self.run_with(mode)
                    told = [
                        lines[i + 2 : i + 2 + len(expected)]
                        for i, line in enumerate(lines)
                        if line.startswith("   0 Command:" + command)
                    ]
                    self.assertEqual(told, [expected] * starts)
                    self.assert_done(mode)
            self.reset_files()

    def test_a_missing_program_is_told(self):
        self.each_program(None, NOT_STARTED)

    def test_a_failing_program_is_told(self):
        self.each_program("line it is broken\nexit 7", ["   7 Output:", "   7   it is broken"])

    def outputs_of_the_interpreter(self, lines):
        start = "   0 Command:" + INTERPRETER[1]
        return [lines[i + 1] for i, line in enumerate(lines) if line.startswith(start)]

    def test_a_missing_command_interpreter_leaves_the_folders(self):
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

    def test_a_failing_command_interpreter_is_told(self):
        with self.replaced(INTERPRETER[0], "line access denied\nexit 5"):
            lines = self.run_with("-I")
        outputs = self.outputs_of_the_interpreter(lines)
        self.assertEqual(outputs, ["   5  output:access denied"] * INTERPRETER[2])
        self.assert_done("-I")

    def test_a_hanging_program_is_ended_after_30_seconds(self):
        # The unpacker's case stands in test_faults.py. The program hangs at its first start and at no other.
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

    def test_a_hanging_unpacker_without_a_time_out_is_waited_for(self):
        # Python and the Mertle Server are unpacked without a limit: the run waits until somebody ends the
        # program.
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


class Server(ProgramCase):
    """The server's program. Where it cannot be registered a silent run shows a box too, and waits."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        # Boxes need no screen: what they are closed with looks for them as another program of the machine
        # does.
        cls.machine.set_value("HKEY_CURRENT_USER\\Software\\Wine\\Drivers", "Graphics", "null")
        cls.machine.stop()

    def answered(self, process, title):
        """Waits for the box and closes it; answers the lines of the log when it was up and of the whole
        run."""
        mark = self.machine.path("C:\\box")
        mark.unlink(missing_ok=True)
        answering = self.machine.start(str(ANSWER_BOX), title, "C:\\box")
        self.wait_for("the box", lambda: mark.exists() or answering.poll() is not None)
        before = self.lines()
        mark.unlink(missing_ok=True)
        self.assertEqual(answering.wait(60), 0)
        return before, self.finish(process)

    def is_registered(self):
        return any("\\Services\\NVX 2017 Server" in key for key in self.machine.registry())

    def test_a_missing_server_is_told_in_a_box(self):
        self.machine.path(INSTALL_DIR + "\\NVXServer.exe").unlink()
        text = (
            "   1 Unable to find server executable; "
            f"Check_ Installation Directory path:{INSTALL_DIR}\\NVXServer.exe"
        )
        before, lines = self.answered(self.start(), "NVX Configuration Utility")
        self.assertNotIn(COMPLETE, before)
        self.assertNotIn(text, before)  # the line follows the box
        self.assertIn(text, lines)
        self.assert_done("-I")
        self.assertFalse(self.is_registered())

    def test_a_server_that_fails_to_register_is_told_in_a_box(self):
        self.write(INSTALL_DIR + "\\NVXServer.exe.fails-to-register")
        before, lines = self.answered(self.start(), "Server Error")
        self.assertNotIn(COMPLETE, before)
        self.assert_not_logged(lines)
        self.assert_done("-I")
        self.assertFalse(self.is_registered())

    def test_a_server_that_hangs_at_its_registration_is_told_in_a_box_when_it_is_ended(self):
        # The limit of two minutes is tried elsewhere.
        with self.replaced(INSTALL_DIR + "\\NVXServer.exe", HANG):
            process = self.start_and_wait_for_mark()
            self.machine.path(HANGS).unlink()
            _, lines = self.answered(process, "Server Error")
        self.assert_not_logged(lines)
        self.assert_done("-I")

    def test_a_server_that_registers_nothing_stops_nothing(self):
        with self.replaced(INSTALL_DIR + "\\NVXServer.exe", "exit 0"):
            lines, warnings = self.diagnose_with("-I")
        self.assert_not_logged(lines)
        self.assertEqual(warnings, ["The server has been registered, but could not be started"])
        self.assert_done("-I")
        self.assertFalse(self.is_registered())

    def test_a_removal_needs_no_server(self):
        self.run_with("-I")
        self.machine.path(INSTALL_DIR + "\\NVXServer.exe").rename(self.machine.path("C:\\server.exe"))
        lines = self.run_with("-U")
        self.assertFalse([line for line in lines if line.startswith("   1 ")])
        self.assert_done("-U")
        self.assertFalse(self.is_registered())
        self.assertFalse(self.exists(SHARED_DATA + "\\Analyze"))


if __name__ == "__main__":
    unittest.main()
