"""Faults of the machine and of the programs that a run starts: the run reaches its end, logs what happened,
and preserves the files of other programs and users."""

import shutil
import unittest

from machine_case import SCRIPTED_TOOL, MachineCase, output_of
from winemachine import SHARED_DATA, TUTORIALS


class ProgramOutput(MachineCase):
    def run_with(self, folder, orders):
        """Installs with a 7z.exe that follows the orders; returns the log's lines on its first run."""
        self.put_product(folder)
        self.replace_seven_zip(folder, orders)
        code, lines = self.configure(folder, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        return output_of(lines, folder + "\\7z.exe")

    def test_only_21_of_40_lines_are_logged(self):
        logged = self.run_with("C:\\lines", "lines 40")
        self.assertEqual(logged, ["   0 Output:"] + [f"   0   {i}" for i in range(1, 22)])

    def test_a_line_of_1000_bytes_is_logged_in_pieces(self):
        logged = self.run_with("C:\\bytes", "bytes 1000")
        self.assertEqual([len(line) - len("   0   ") for line in logged[1:]], [255, 255, 255, 235])

    def test_exit_code_255_is_logged_as_the_level(self):
        logged = self.run_with("C:\\code", "line last words\nexit 255")
        self.assertEqual(logged, [" 255 Output:", " 255   last words"])

    def test_exit_codes_from_0x80000000_up_are_logged_as_the_level_too(self):
        for name, number, level in (
            ("access denied", 0x80070005, "-2147024891"),
            ("a library is missing", 0xC0000135, "-1073741515"),
            ("a fault", 0xC0000005, "-1073741819"),
            ("the largest", 0xFFFFFFFF, "  -1"),
        ):
            with self.subTest(name):
                orders = f"line last words\nexit {number - 2**32}"
                logged = self.run_with("C:\\codes", orders)
                self.assertEqual(logged, [level + " Output:", level + "   last words"])
                self.machine.path("C:\\codes\\NVXConfig.log").unlink()

    def test_a_line_that_is_not_valid_text_is_logged(self):
        logged = self.run_with("C:\\raw", "raw 610080ff81fe7a\nline \nline next")
        self.assertEqual(len(logged), 3)
        self.assertTrue(logged[1].startswith("   0   a") and logged[1].endswith("z"), logged[1])
        self.assertEqual(logged[2], "   0   next")

    def test_standard_error_is_logged_too(self):
        self.assertIn("   0   wrong", self.run_with("C:\\error", "error wrong"))

    def test_a_program_that_reads_its_input_gets_an_end_of_file(self):
        self.assertEqual(self.run_with("C:\\asks", "read"), ["   0 Output:", "   0   read 0"])

    def test_a_missing_program_is_logged(self):
        self.put_product("C:\\missing")
        self.machine.path("C:\\missing\\7z.exe").unlink()
        code, lines = self.configure("C:\\missing", "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        self.assertEqual(
            output_of(lines, "C:\\missing\\7z.exe"),
            ["  -2 Output:", "  -2   The program could not be started."],
        )

    def test_the_unpackers_own_report_of_a_missing_archive_is_logged(self):
        self.put_product("C:\\archive")
        self.machine.path("C:\\archive\\en-US\\Examples.7z").unlink()
        code, lines = self.configure("C:\\archive", "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        logged = output_of(lines, "C:\\archive\\7z.exe")
        self.assertTrue(logged[0].endswith("Output:") and not logged[0].startswith("   0"), logged)
        self.assertTrue(any("ERROR" in line for line in logged), logged)

    def test_a_hanging_program_is_ended_at_its_time_out(self):
        # Only unpacking the tutorials has a time-out, so the program hangs at its first start only.
        self.put_product("C:\\hangs")
        self.replace_seven_zip("C:\\hangs", "forget\nline working\nsleep 100000")
        code, lines = self.configure("C:\\hangs", "-I", "-S", "-Len-US", timeout=120)
        self.assert_complete(code, lines)
        self.assertEqual(
            output_of(lines, "C:\\hangs\\7z.exe"),
            [
                "  -1 Output:",
                "  -1   working",
                "  -1   The program was still running after 30000 ms and has been ended.",
            ],
        )


class Folders(MachineCase):
    def setUp(self):
        self.put_product("C:\\NVX")
        self.delete_log("C:\\NVX")

    def install(self):
        code, lines = self.configure("C:\\NVX", "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        return lines

    def test_a_folder_with_a_write_protected_file_is_removed(self):
        protected = self.write("C:\\NVX\\Python\\Lib\\sub\\protected.py", b"old")
        protected.chmod(0o444)
        self.install()
        self.assertFalse(protected.exists())

    def test_a_folder_with_names_of_other_alphabets_is_removed(self):
        old = self.write("C:\\NVX\\Python\\Lib\\日本 größe\\Файл.py", b"old")
        self.install()
        self.assertFalse(old.exists())

    def test_a_run_continues_when_a_file_is_in_the_place_of_a_folder(self):
        shutil.rmtree(self.machine.path("C:\\NVX\\Python\\DLLs"), ignore_errors=True)
        self.write("C:\\NVX\\Python\\DLLs", b"a file")
        lines = self.install()
        self.assertTrue(self.exists("C:\\NVX\\Python\\Lib\\nvxreport\\table.py"))
        self.assertTrue(any("\\Python\\DLLs" in line for line in lines))

    def test_a_missing_folder_is_no_error(self):
        shutil.rmtree(self.machine.path(TUTORIALS), ignore_errors=True)
        self.install()
        self.assertTrue(self.exists(TUTORIALS + "\\First steps\\02 Heat sink.txt"))

    def test_every_line_of_the_log_ends_in_cr_lf(self):
        self.install()
        log = self.machine.path("C:\\NVX\\NVXConfig.log").read_bytes()
        # The command interpreter prints an empty line and the command.
        self.assertTrue(b" output:\r\nC:\\NVX>rmdir " in log)
        self.assertEqual(log.count(b"\r\r\n"), 0)
        self.assertEqual(log.count(b"\n"), log.count(b"\r\n"))

    def test_without_a_log_the_run_does_everything_else(self):
        self.write("C:\\no log\\keep.txt")
        self.put_product("C:\\no log")
        self.machine.path("C:\\no log\\NVXConfig.log").mkdir()
        code, lines = self.configure("C:\\no log", "-I", "-S", "-Len-US")
        self.assertEqual((code, lines), (0, []))
        self.assertTrue(self.exists("C:\\no log\\Python\\Lib\\nvxreport\\table.py"))
        self.assertEqual(list(self.machine.path("C:\\no log\\NVXConfig.log").iterdir()), [])

    def test_a_configuration_that_cannot_be_saved_is_logged(self):
        configuration = SHARED_DATA + "\\NVX2_config.nvxcfg"
        self.machine.path(configuration).unlink(missing_ok=True)
        self.machine.path(configuration).mkdir(parents=True)
        lines = self.install()
        self.machine.path(configuration).rmdir()
        self.assertIn("   1 Unable to create NVX2 default configuration: " + configuration, lines)
        self.assertIn("   0 Created NVX2 analyze folder: " + SHARED_DATA + "\\HPCAnalyze", lines)

    def test_a_flags_file_with_text_survives_the_removal(self):
        flags = SHARED_DATA + "\\NVX_flags.txt"
        self.write(flags, b"mine\r\n")
        self.install()
        code, lines = self.configure("C:\\NVX", "-U", "-S", "-Len-US")
        self.assert_removed(code, lines)
        self.assertIn("   0 NVX_flags.txt has changed, not removing", lines)
        self.assertEqual(self.machine.path(flags).read_bytes(), b"mine\r\n")
        self.write(flags, b" \r\n\t")
        code, lines = self.configure("C:\\NVX", "-U", "-S", "-Len-US")
        self.assert_removed(code, lines)
        self.assertIn("   0 NVX_flags.txt has not changed", lines)
        self.assertFalse(self.exists(flags))


class SystemPrograms(MachineCase):
    def test_programs_planted_under_their_names_are_not_started(self):
        folder = "C:\\planted"
        self.put_product(folder)
        self.replace_seven_zip(folder, "exit 0")
        for place in (folder, "C:\\", "C:\\elsewhere"):
            for name in ("cmd.exe", "regedit.exe", "regsvr32.exe", "cmd", "cmd.bat"):
                program = self.write(place + "\\" + name, SCRIPTED_TOOL.read_bytes())
                program.with_name(name + ".script").write_text("mark C:\\started")
        self.write(folder + "\\Python\\Lib\\old.py", b"old")
        code, lines = self.configure(
            folder,
            "-I",
            "-S",
            "-Len-US",
            folder="C:\\elsewhere",
            WINEPATH="C:\\elsewhere",
            COMSPEC="C:\\elsewhere\\cmd.exe",
        )
        self.assert_complete(code, lines)
        self.assertFalse(self.exists("C:\\started"))
        self.assertFalse(self.exists(folder + "\\Python\\Lib\\old.py"))


if __name__ == "__main__":
    unittest.main()
