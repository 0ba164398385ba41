"""What docs/administrators.md shows is so: the excerpts come from runs like these, and its scripts roll the
product out and find the failures."""

import re
import sys
import time
import unittest
from pathlib import Path

from machine_case import BUILD, CATEGORY, SCRIPTED_TOOL, MachineCase, log_lines, warnings_of
from cadsystems import PROTK_2, PROTK_3, put_cad_systems
from winemachine import INSTALL_DIR, SERVICES, TRANSLATORS

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "documentation"))

from documents import blocks_of, text_of  # noqa: E402

ANSWER_BOX = BUILD / "tests" / "machine" / "answer_box.exe"
LOG = INSTALL_DIR + "\\NVXConfig.log"
BATCH_FILE = INSTALL_DIR + "work.bat"
SERVICE = SERVICES + "NVX 2017 Server"
SHARE = "C:\\share"
BLOCKS = blocks_of(text_of("docs/administrators.md"))
# The excerpts of the document, and the run that shows each.
RUN_OF = {
    "missing program": "without 7-Zip",
    "time-out": "hanging",
    "missing archive": "hindered",
    "unwritable folder": "hindered",
}
_STAMP = re.compile(r"^\w{3} \w{3} [ \d]?\d \d\d:\d\d:\d\d \d{4} ", re.MULTILINE)


def pieces_of(excerpt):
    """The parts of an excerpt between the lines that are left out, without their time stamps."""
    parts = re.split(r"^\.\.\.\n", _STAMP.sub("", excerpt), flags=re.MULTILINE)
    return [part.splitlines() for part in parts]


def holds(lines, pieces):
    """Whether the pieces stand in the lines, each in one and in their order."""
    start = 0
    for piece in pieces:
        places = range(start, len(lines) - len(piece) + 1)
        found = next((p for p in places if lines[p : p + len(piece)] == piece), None)
        if found is None:
            return False
        start = found + len(piece)
    return True


class AdministratorsGuide(MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.logs = {}
        cls.lines = {}
        case = cls()
        put_cad_systems(cls.machine)
        # A box needs no screen; what closes it looks for it as another program of the machine does.
        cls.machine.set_value("HKEY_CURRENT_USER\\Software\\Wine\\Drivers", "Graphics", "null")
        cls.machine.stop()
        for name, run in (
            ("hindered", case.run_hindered),
            ("without service", case.run_without_service),
            ("without 7-Zip", case.run_without_seven_zip),
            ("hanging", case.run_hanging),
            ("good", case.install),
        ):
            cls.machine.path(LOG).unlink(missing_ok=True)
            case.put_product(translators=TRANSLATORS)
            run()
            cls.logs[name] = cls.machine.path(LOG).read_bytes()
            cls.lines[name] = log_lines(cls.machine.path(LOG))
        for block in BLOCKS:
            if block.what == "file":
                case.write(SHARE + "\\" + block.name, block.text.replace("\n", "\r\n").encode())

    def install(self):
        self.assert_complete(*self.configure(INSTALL_DIR, "-I", "-S", "-Len-US"))

    def run_hindered(self):
        archive = self.machine.path(INSTALL_DIR + "\\en-US\\Examples.7z")
        archive.unlink()
        batch_file = self.machine.path(BATCH_FILE)
        batch_file.mkdir()
        self.install()
        batch_file.rmdir()

    def run_without_seven_zip(self):
        self.machine.path(INSTALL_DIR + "\\7z.exe").unlink()
        self.install()

    def run_hanging(self):
        self.replace_seven_zip(INSTALL_DIR, "forget\nline working\nsleep 100000")
        self.install()

    def run_without_service(self):
        """The box waits for somebody: here it is closed when the log has been read."""
        refusal = self.write(INSTALL_DIR + "\\NVXServer.exe.fails-to-register")
        mark = self.machine.path("C:\\box")
        run = self.machine.start(INSTALL_DIR + "\\NVXConfig.exe", "-I", "-S", "-Len-US")
        answering = self.machine.start(str(ANSWER_BOX), "Server Error", "C:\\box")
        deadline = time.monotonic() + 120
        while not mark.exists() and time.monotonic() < deadline and run.poll() is None:
            time.sleep(0.1)
        type(self).lines_before_the_box = log_lines(self.machine.path(LOG))
        mark.unlink()
        self.assertEqual((answering.wait(timeout=60), run.wait(timeout=240)), (0, 0))
        refusal.unlink()

    def script(self, name, *arguments):
        """Runs one of the document's scripts; answers its exit code."""
        return self.machine.run("cmd.exe", "/C", SHARE + "\\" + name, *arguments, folder=SHARE).returncode

    def read_log(self, log):
        """What the script for reading logs says of a log: its exit code and its report, if there is one."""
        self.write("C:\\read\\some.log", log)
        self.write("C:\\read\\report.txt", b"of an earlier run")
        code = self.script("read-log.cmd", "C:\\read\\some.log", "C:\\read\\report.txt")
        report = self.machine.path("C:\\read\\report.txt")
        return code, report.read_text(encoding="utf-8") if report.exists() else None

    def roll_out(self, log, set_up="exit 0", has_reports=True):
        """Runs the script for a roll-out beside a set-up that leaves this log and obeys the orders; returns
        the exit code and the reports on the share."""
        self.write(SHARE + "\\nvx-setup.exe", SCRIPTED_TOOL.read_bytes())
        self.write(SHARE + "\\nvx-setup.exe.script", ("record\n" + set_up).encode())
        for path in self.machine.path(SHARE).glob("nvx-setup.exe.arguments"):
            path.unlink()
        reports = self.machine.path(SHARE + "\\reports")
        reports.mkdir(exist_ok=True)
        for path in reports.iterdir():
            path.unlink()
        if not has_reports:
            reports.rmdir()
        self.write(LOG, log)
        code = self.script("install-nvx.cmd")
        if not has_reports:
            self.assertFalse(reports.exists())
            return code, {}
        return code, {path.name.partition(".")[2]: path.read_bytes() for path in reports.iterdir()}

    def test_every_excerpt_is_from_a_log(self):
        excerpts = {block.name: block.text for block in BLOCKS if block.what == "log"}
        self.assertEqual(excerpts.keys(), RUN_OF.keys())
        for name, excerpt in excerpts.items():
            with self.subTest(name):
                lines = self.lines[RUN_OF[name]]
                self.assertTrue(holds(lines, pieces_of(excerpt)), "\n".join(lines))

    def test_a_run_that_waits_for_the_servers_box_has_removed_its_folder_last(self):
        last = next(line for line in reversed(self.lines_before_the_box) if line.startswith("   0 "))
        self.assertEqual(last, "   0  output:")
        self.assertIn("\\HPCAnalyze", "".join(self.lines_before_the_box[-5:]))

    def test_the_log_of_a_run_without_a_service_is_read_as_a_good_one(self):
        self.assertEqual(self.read_log(self.logs["without service"]), (0, None))

    def test_what_the_log_leaves_out_is_collected_by_the_script(self):
        (expected,) = (block.text for block in BLOCKS if block.what == "diagnostics")
        protected = self.machine.path(PROTK_3)
        protected.chmod(0o444)
        with self.held(PROTK_2):
            code = self.script("diagnose-nvx.cmd", SHARE + "\\diagnostics.txt")
        protected.chmod(0o644)
        report = self.machine.path(SHARE + "\\diagnostics.txt").read_bytes()
        self.assertEqual(code, 0)
        self.assertEqual([CATEGORY + warning for warning in warnings_of(report)], expected.splitlines())

    def test_the_report_of_a_good_run_is_empty(self):
        self.assertEqual(self.script("diagnose-nvx.cmd", SHARE + "\\nothing.txt"), 0)
        report = self.machine.path(SHARE + "\\nothing.txt").read_bytes()
        self.assertEqual(warnings_of(report), [])

    def test_an_excerpt_that_is_not_in_the_log_is_noticed(self):
        lines = ["a", "b", "c", "d"]
        self.assertTrue(holds(lines, [["a", "b"], ["d"]]))
        self.assertFalse(holds(lines, [["a", "c"]]))
        self.assertFalse(holds(lines, [["d"], ["a"]]))

    def test_the_log_of_a_good_run_is_read_as_one(self):
        self.assertEqual(self.read_log(self.logs["good"]), (0, None))

    def test_failures_are_found_in_a_log(self):
        for name, told in (
            ("without 7-Zip", ["A program ended with -2:", "-2 The program could not be started."]),
            ("hanging", ["A program ended with -1:", "-1 The program was still running after"]),
            ("hindered", ["A program ended with 2:", "1 Unable to create " + BATCH_FILE]),
        ):
            with self.subTest(name):
                code, report = self.read_log(self.logs[name])
                self.assertEqual(code, 1)
                for text in told:
                    self.assertIn(text, report)

    def test_only_the_last_run_of_a_log_counts(self):
        both = self.logs["without 7-Zip"] + self.logs["good"]
        self.assertEqual(self.read_log(both), (0, None))

    def test_a_roll_out_leaves_the_log_of_the_machine(self):
        code, reports = self.roll_out(self.logs["good"], "sleep 2000\nmark C:\\set up")
        self.assertEqual((code, reports), (0, {"log": self.logs["good"]}))
        self.assertTrue(self.exists("C:\\set up"), "the script has not waited")
        arguments = self.machine.path(SHARE + "\\nvx-setup.exe.arguments")
        self.assertEqual(arguments.read_text().split(), ["/S", "/LANG=de-DE"])

    def test_a_roll_out_that_went_wrong_leaves_what_did(self):
        code, reports = self.roll_out(self.logs["hanging"])
        self.assertEqual(code, 1)
        self.assertEqual(reports.keys(), {"log", "failed.txt"})
        self.assertIn(b"-1 The program was still running", reports["failed.txt"])

    def test_a_roll_out_tells_a_failure_without_a_folder_for_reports(self):
        self.assertEqual(self.roll_out(self.logs["hanging"], has_reports=False)[0], 1)
        self.assertEqual(self.roll_out(self.logs["good"], has_reports=False)[0], 0)

    def test_a_set_up_that_fails_is_told(self):
        self.assertEqual(self.roll_out(self.logs["good"], "exit 5"), (2, {}))

    def test_a_machine_without_the_material_database_is_told(self):
        database = self.machine.path("C:\\ProgramData\\Velmora\\NVX 2017\\matprop.nvxmdb")
        aside = database.rename(database.with_suffix(".aside"))
        self.assertEqual(self.roll_out(self.logs["good"])[0], 1)
        aside.rename(database)

    def test_a_machine_without_the_service_is_told(self):
        self.assertEqual(self.machine.run("reg", "export", SERVICE, "C:\\service.reg", "/y").returncode, 0)
        self.machine.run("reg", "delete", SERVICE, "/f")
        code = self.roll_out(self.logs["good"])[0]
        self.machine.run("reg", "import", "C:\\service.reg")
        self.assertEqual(code, 1)
        self.assertEqual(self.roll_out(self.logs["good"])[0], 0)

    def test_a_machine_on_which_a_cad_system_runs_is_left_alone(self):
        # Wine's own list of programs is always empty.
        lists_programs = self.write(SHARE + "\\tasklist.exe", SCRIPTED_TOOL.read_bytes())
        for image, code in (("msedge.exe", 0), ("SLDWORKS.exe", 3), ("edge.exe", 3)):
            with self.subTest(image):
                orders = f'line "System","4"\nline "{image}","1234","Console","1","98,304 K"\n'
                lists_programs.with_name("tasklist.exe.script").write_text(orders)
                self.assertEqual(self.roll_out(self.logs["good"])[0], code)
                started = self.exists(SHARE + "\\nvx-setup.exe.arguments")
                self.assertEqual(started, code == 0)
        lists_programs.unlink()


if __name__ == "__main__":
    unittest.main()
