"""docs/administrators.md is right: real runs log its excerpts, and its scripts roll the product out and find
failures."""

import json
import re
import sys
import unittest
from pathlib import Path

from machine_case import (
    BUILD,
    CATEGORY,
    CLOSE_MESSAGE_BOX,
    LOG,
    PRODUCT_KEY,
    SCRIPTED_TOOL,
    SERVICE_KEY,
    TIME_STAMP,
    MachineCase,
    log_lines,
    wait_until,
    warnings_of,
)
from cadsystems import PROTK_2, PROTK_3, put_cad_systems
from winemachine import INSTALL_DIR, SHARED_DATA, TRANSLATORS

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "documentation"))

from documents import blocks_of, text_of  # noqa: E402

BATCH_FILE = INSTALL_DIR + "work.bat"
SHARE = "C:\\share"
PROGRAMS = SHARE + "\\programs"
BLOCKS = blocks_of(text_of("docs/administrators.md"))
# The run whose log contains each excerpt of the document.
RUN_OF = {
    "missing program": "without 7-Zip",
    "time-out": "hanging",
    "missing archive": "obstructed",
    "unwritable folder": "obstructed",
}
_STAMP = re.compile("^" + TIME_STAMP, re.MULTILINE)


def pieces_of(excerpt):
    """The parts of an excerpt between its lines of "...", without the time stamps."""
    parts = re.split(r"^\.\.\.\n", _STAMP.sub("", excerpt), flags=re.MULTILINE)
    return [part.splitlines() for part in parts]


def contains(lines, pieces):
    """Whether the lines contain the pieces in their order, each without a gap."""
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
        cls.turn_screen_off()
        for name, run in (
            ("obstructed", case.run_obstructed),
            ("without service", case.run_without_service),
            ("without 7-Zip", case.run_without_seven_zip),
            ("hanging", case.run_hanging),
            ("Japanese without 7-Zip", case.run_japanese_without_seven_zip),
            ("Japanese", case.run_japanese),
            ("removed", case.remove),
            ("good", case.install),
        ):
            case.delete_log()
            case.put_product(translators=TRANSLATORS)
            run()
            cls.logs[name] = case.read(LOG)
            cls.lines[name] = log_lines(cls.machine.path(LOG))
        for block in BLOCKS:
            if block.what == "file":
                case.write(SHARE + "\\" + block.name, block.text.replace("\n", "\r\n").encode())
        installed = BUILD / "installed"
        for path in [installed / "NVXLogSummary.exe", installed / "Qt6Core.dll", *installed.glob("lib*.dll")]:
            case.write(PROGRAMS + "\\" + path.name, path.read_bytes())

    def install(self):
        self.assert_complete(*self.configure(INSTALL_DIR, "-I", "-S", "-Len-US"))

    def run_obstructed(self):
        archive = self.machine.path(INSTALL_DIR + "\\en-US\\Examples.7z")
        archive.unlink()
        batch_file = self.machine.path(BATCH_FILE)
        batch_file.mkdir()
        self.install()
        batch_file.rmdir()

    def run_without_seven_zip(self):
        self.machine.path(INSTALL_DIR + "\\7z.exe").unlink()
        self.install()

    def run_japanese(self):
        self.assertEqual(self.configure(INSTALL_DIR, "-I", "-S", "-Lja-JP")[0], 0)

    def run_japanese_without_seven_zip(self):
        self.machine.path(INSTALL_DIR + "\\7z.exe").unlink()
        self.run_japanese()

    def remove(self):
        self.assert_removed(*self.configure(INSTALL_DIR, "-U", "-S"))

    def run_hanging(self):
        self.replace_seven_zip(INSTALL_DIR, "forget\nline working\nsleep 100000")
        self.install()

    def run_without_service(self):
        """The message box stays open until the log has been read."""
        refusal = self.write(INSTALL_DIR + "\\NVXServer.exe.fails-to-register")
        mark = self.machine.path("C:\\message box")
        run = self.machine.start(INSTALL_DIR + "\\NVXConfig.exe", "-I", "-S", "-Len-US")
        closing = self.machine.start(str(CLOSE_MESSAGE_BOX), "Server Error", "C:\\message box")
        wait_until("the message box", lambda: mark.exists() or run.poll() is not None)
        type(self).lines_before_message_box = log_lines(self.machine.path(LOG))
        type(self).log_before_message_box = self.read(LOG)
        mark.unlink()
        self.assertEqual((closing.wait(timeout=60), run.wait(timeout=240)), (0, 0))
        refusal.unlink()

    def script(self, name, *arguments):
        """Runs one of the document's scripts; returns its exit code."""
        return self.machine.run("cmd.exe", "/C", SHARE + "\\" + name, *arguments, folder=SHARE).returncode

    def sum_up(self, log):
        """Runs the summary on a log; returns its exit code, the machine's line and the machine's JSON."""
        self.write("C:\\read\\CAD-017.log", log)
        program = PROGRAMS + "\\NVXLogSummary.exe"
        text = self.machine.run(program, "C:\\read\\CAD-017.log")
        with_json = self.machine.run(program, "--json", "--output", "C:\\read\\out.json", "C:\\read\\*.log")
        self.assertEqual(text.returncode, with_json.returncode)
        (machine,) = json.loads(self.read("C:\\read\\out.json"))["machines"]
        return text.returncode, text.stdout.decode("utf-8").strip(), machine

    def roll_out(self, log, set_up="exit 0", has_reports=True):
        """Runs the roll-out script; returns its exit code and the reports on the share.

        The set-up program is a scripted tool that follows the orders `set_up`; the machine has this log.
        """
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

    def test_every_excerpt_is_in_a_log(self):
        excerpts = {block.name: block.text for block in BLOCKS if block.what == "log"}
        self.assertEqual(excerpts.keys(), RUN_OF.keys())
        for name, excerpt in excerpts.items():
            with self.subTest(name):
                lines = self.lines[RUN_OF[name]]
                self.assertTrue(contains(lines, pieces_of(excerpt)), "\n".join(lines))

    def test_a_run_that_waits_at_the_servers_message_box_has_logged_the_removal_of_its_folder_last(self):
        last = next(line for line in reversed(self.lines_before_message_box) if line.startswith("   0 "))
        self.assertEqual(last, "   0  output:")
        self.assertIn("\\HPCAnalyze", "".join(self.lines_before_message_box[-5:]))

    def test_the_summary_says_which_message_box_a_run_waits_for(self):
        code, line, machine = self.sum_up(self.log_before_message_box)
        self.assertEqual((code, machine["verdict"]), (2, "waiting"))
        self.assertIn("the server is missing, or has not registered its service", line)

    def test_the_diagnostic_script_collects_what_the_log_leaves_out(self):
        (expected,) = (block.text for block in BLOCKS if block.what == "diagnostics")
        protected = self.machine.path(PROTK_3)
        protected.chmod(0o444)
        with self.held(PROTK_2):
            code = self.script("diagnose-nvx.cmd", SHARE + "\\diagnostics.txt")
        protected.chmod(0o644)
        report = self.machine.path(SHARE + "\\diagnostics.txt").read_bytes()
        self.assertEqual(code, 0)
        self.assertEqual([CATEGORY + warning for warning in warnings_of(report)], expected.splitlines())

    def test_the_diagnostic_report_of_a_good_run_is_empty(self):
        self.assertEqual(self.script("diagnose-nvx.cmd", SHARE + "\\nothing.txt"), 0)
        report = self.machine.path(SHARE + "\\nothing.txt").read_bytes()
        self.assertEqual(warnings_of(report), [])

    def test_an_excerpt_that_is_not_in_the_log_is_found(self):
        lines = ["a", "b", "c", "d"]
        self.assertTrue(contains(lines, [["a", "b"], ["d"]]))
        self.assertFalse(contains(lines, [["a", "c"]]))
        self.assertFalse(contains(lines, [["d"], ["a"]]))

    def test_the_summary_reports_no_failure_for_good_runs(self):
        for name, mode, language in (
            ("good", "install", "en-US"),
            ("Japanese", "install", "ja-JP"),
            ("removed", "remove", "en-US"),
            ("without service", "install", "en-US"),
        ):
            with self.subTest(name):
                code, line, machine = self.sum_up(self.logs[name])
                self.assertEqual(code, 0, line)
                self.assertRegex(line, rf"^ok +{mode} +{language} +[\d-]+ [\d:]+  CAD-017$")
                self.assertEqual(machine["mode"], mode)
                self.assertEqual(machine["failedSteps"], [])

    def test_the_summary_reports_failures(self):
        for name, failures in (
            ("without 7-Zip", [(-2, "the program could not be started")] * 3),
            ("Japanese without 7-Zip", [(-2, "the program could not be started")] * 3),
            ("hanging", [(-1, "the program did not end in time")]),
            ("obstructed", [(1, "Unable to create " + BATCH_FILE), (2, "exit code 2")]),
        ):
            with self.subTest(name):
                code, line, machine = self.sum_up(self.logs[name])
                self.assertEqual((code, line.split()[0]), (1, "failed"))
                reported = [
                    (step["number"], step["text"].partition(";")[0]) for step in machine["failedSteps"]
                ]
                for failure in failures:
                    self.assertIn(failure, reported)
                    reported.remove(failure)

    def test_the_summary_reads_only_the_last_run(self):
        both = self.logs["without 7-Zip"] + self.logs["good"]
        self.assertEqual(self.sum_up(both)[0], 0)

    def test_a_roll_out_reports_the_log_of_the_machine(self):
        code, reports = self.roll_out(self.logs["good"], "sleep 2000\nmark C:\\set up")
        self.assertEqual((code, reports), (0, {"log": self.logs["good"]}))
        self.assertTrue(self.exists("C:\\set up"), "the script did not wait for the set-up program")
        arguments = self.machine.path(SHARE + "\\nvx-setup.exe.arguments")
        self.assertEqual(arguments.read_text().split(), ["/S", "/LANG=de-DE"])

    def test_a_failed_roll_out_reports_the_failures(self):
        code, reports = self.roll_out(self.logs["hanging"])
        self.assertEqual(code, 1)
        self.assertEqual(reports.keys(), {"log", "failed.txt"})
        self.assertIn(b"the program did not end in time", reports["failed.txt"])
        self.assertIn(b"\n        The program was still running", reports["failed.txt"])

    def test_a_roll_out_without_the_summary_is_no_success(self):
        program = self.machine.path(PROGRAMS + "\\NVXLogSummary.exe")
        aside = program.rename(program.with_suffix(".aside"))
        code = self.roll_out(self.logs["good"])[0]
        aside.rename(program)
        self.assertEqual(code, 1)

    def test_a_roll_out_without_a_report_folder_returns_the_failure(self):
        self.assertEqual(self.roll_out(self.logs["hanging"], has_reports=False)[0], 1)
        self.assertEqual(self.roll_out(self.logs["good"], has_reports=False)[0], 0)

    def test_the_start_up_script_installs_unless_this_version_is_there(self):
        package_manager = self.write(SHARE + "\\msiexec.exe", SCRIPTED_TOOL.read_bytes())
        self.write(SHARE + "\\msiexec.exe.script", b"record\nexit 7")
        recorded = package_manager.with_name("msiexec.exe.arguments")
        self.addCleanup(package_manager.unlink)
        self.assertEqual(self.script("startup-nvx.cmd"), 7)
        self.assertIn("NVXLANG=de-DE", recorded.read_text())
        recorded.unlink()
        (script,) = (block.text for block in BLOCKS if block.name == "startup-nvx.cmd")
        (code,) = re.findall(r"set code=(\S+)", script)
        self.machine.set_value(PRODUCT_KEY, "WindowsInstaller", code)
        self.assertEqual(self.script("startup-nvx.cmd"), 0)
        self.machine.run("reg", "delete", PRODUCT_KEY, "/v", "WindowsInstaller", "/f")
        self.assertFalse(recorded.exists())

    def test_a_failing_set_up_program_is_reported(self):
        self.assertEqual(self.roll_out(self.logs["good"], "exit 5"), (2, {}))

    def test_a_missing_material_database_is_reported(self):
        database = self.machine.path(SHARED_DATA + "\\matprop.nvxmdb")
        aside = database.rename(database.with_suffix(".aside"))
        self.assertEqual(self.roll_out(self.logs["good"])[0], 1)
        aside.rename(database)

    def test_a_missing_service_is_reported(self):
        self.assertEqual(
            self.machine.run("reg", "export", SERVICE_KEY, "C:\\service.reg", "/y").returncode, 0
        )
        self.machine.run("reg", "delete", SERVICE_KEY, "/f")
        code = self.roll_out(self.logs["good"])[0]
        self.machine.run("reg", "import", "C:\\service.reg")
        self.assertEqual(code, 1)
        self.assertEqual(self.roll_out(self.logs["good"])[0], 0)

    def test_a_machine_with_a_running_cad_system_is_skipped(self):
        # Wine's own tasklist always prints an empty list.
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
