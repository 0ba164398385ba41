"""The launchers when something is wrong: CAD systems' files that are open or write-protected, install folders
whose names cannot be written, planted programs."""

import unittest

from launcher_case import ADDIN, LAUNCHERS, LauncherCase
from launcher_case import creo_entry, manifest, nx_line, target_manifest
from machine_case import SCRIPTED_TOOL
from cadsystems import (
    COM_CLASSES,
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    FOREIGN_DIRS,
    FOREIGN_ENTRY,
    PROTK_2,
    PROTK_3,
)
from winemachine import INSTALL_DIR, value_of


class CadSystemsFiles(LauncherCase):
    def setUp(self):
        self.reset_files()
        self.put_product()

    def assert_alone(self, path):
        """No temporary file is left next to the file."""
        folder = self.machine.path(path).parent
        names = [f.name for f in folder.iterdir() if not f.name.endswith(".bak")]
        self.assertEqual(names, [path.rsplit("\\", 1)[1]])

    def test_a_file_that_another_program_has_open_is_skipped(self):
        with self.held(PROTK_2), self.held(CUSTOM_DIRS_10, "C:\\held too"):
            lines, warnings = self.diagnose_with("-I")
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)
        self.assertEqual(self.read(PROTK_3), creo_entry(3) + FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_11), FOREIGN_DIRS + nx_line(""))
        self.assert_no_failure_logged(lines)
        # Creo's file is read for the removal and for the new entry, NX's for the backup and for the new line.
        unread = ["Unable to read " + path for path in (PROTK_2, CUSTOM_DIRS_10) for _ in range(2)]
        self.assertEqual(sorted(warnings), sorted(unread))
        self.assert_alone(PROTK_2)
        self.assert_alone(CUSTOM_DIRS_10)

    def test_a_file_that_another_program_has_open_survives_the_removal(self):
        self.run_with("-I")
        with self.held(PROTK_2), self.held(CUSTOM_DIRS_10, "C:\\held too"):
            self.run_with("-U")
        self.assertEqual(self.read(PROTK_2), creo_entry(2) + FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + nx_line("\\NX10"))
        self.run_with("-U")
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)

    def test_a_write_protected_file_is_skipped(self):
        for path in (PROTK_2, CUSTOM_DIRS_10):
            self.machine.path(path).chmod(0o444)
        lines, warnings = self.diagnose_with("-I")
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)
        self.assert_no_failure_logged(lines)
        self.assertEqual(warnings, ["Unable to write " + path for path in (PROTK_2, CUSTOM_DIRS_10)])
        self.assertEqual(self.machine.path(PROTK_2).stat().st_mode & 0o777, 0o444)
        self.assert_alone(PROTK_2)
        self.assert_alone(CUSTOM_DIRS_10)

    def test_with_the_marker_of_an_older_release_creos_file_stays_unchanged(self):
        contents = FOREIGN_ENTRY + b"text_dir $OSTRADE2017\\Text\r\nend\r\n"
        self.machine.path(PROTK_2).write_bytes(contents)
        lines = self.run_with("-I")
        self.assertEqual(self.read(PROTK_2), contents)
        self.assertIn("   0 Ostrade 2017 already exists, do nothing", lines)

    def test_a_run_continues_without_the_launchers_files(self):
        for name in ("Brevant\\NVX_2017_Brevant.dll", "SpaceClaim\\NVX_2017_SpaceClaim.dll"):
            self.machine.path(LAUNCHERS + "\\" + name).unlink()
        lines = self.run_with("-I")
        start = lines.index("   0 Configure Brevant")
        outputs = [line for line in lines[start : start + 7] if line.endswith("Output:")]
        self.assertEqual(len(outputs), 2)
        for line in outputs:
            self.assertFalse(line.startswith("   0"), line)
        self.assertTrue(self.exists(ADDIN + ".xml"))
        self.assertFalse(self.exists(ADDIN + ".dll"))


class PlantedRegsvr32(LauncherCase):
    def test_it_is_not_started_in_place_of_the_systems(self):
        self.put_product()
        for place in (INSTALL_DIR, "C:\\elsewhere"):
            for name in ("regsvr32", "regsvr32.exe", "regsvr32.bat"):
                program = self.write(place + "\\" + name, SCRIPTED_TOOL.read_bytes())
                program.with_name(name + ".script").write_text("mark C:\\started")
        code, lines = self.configure(
            INSTALL_DIR,
            "-I",
            "-S",
            "-Len-US",
            folder="C:\\elsewhere",
            WINEPATH="C:\\elsewhere",
        )
        self.assert_complete(code, lines)
        self.assertFalse(self.exists("C:\\started"))
        registry = self.machine.registry()
        for key in COM_CLASSES.values():
            self.assertIsNotNone(value_of(registry, key + "\\InprocServer32", ""))


class LauncherFolders(LauncherCase):
    def setUp(self):
        self.reset_files()

    def install(self, folder):
        self.put_product(folder)
        return self.run_with("-I", folder)

    def test_a_name_with_umlauts_is_written_in_the_code_page(self):
        folder = "C:\\Größe & Söhne\\NVX"
        self.install(folder)
        self.assertIn(creo_entry(2, folder, "cp1252"), self.read(PROTK_2))
        self.assertIn(nx_line("\\NX10", folder, "cp1252"), self.read(CUSTOM_DIRS_10))
        self.assertEqual(self.read(target_manifest(2017)), manifest(folder))
        self.run_with("-U", folder)
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + b"\r\n")

    def test_a_name_that_the_code_page_lacks_is_logged_and_never_written_wrong(self):
        folder = "C:\\日本\\NVX"
        lines = self.install(folder)
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)
        for path in (PROTK_2, CUSTOM_DIRS_10):
            self.assertIn(
                "   1 The install folder's path cannot be written in the system's code page; the launcher "
                "is not added to " + path,
                lines,
            )
        self.run_with("-U", folder)
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)


class JapaneseLaunchers(LauncherCase):
    locale = "ja_JP.UTF-8"

    def setUp(self):
        self.reset_files()

    def test_a_japanese_name_is_written_in_the_code_page(self):
        folder = "C:\\日本 ソフト\\表 NVX"
        self.put_product(folder)
        self.run_with("-I", folder)
        self.run_with("-I", folder)
        self.assertEqual(self.read(PROTK_2), creo_entry(2, folder, "cp932") + FOREIGN_ENTRY)
        line = nx_line("\\NX10", folder, "cp932")
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + line)
        self.run_with("-U", folder)
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + b"\r\n")

    def test_a_fragment_is_measured_in_characters_of_the_code_page(self):
        self.put_product()
        four, five = (text.encode("cp932") + b"end\r\n" for text in ("表計算ソ", "表計算ソフ"))
        self.machine.path(PROTK_2).write_bytes(four + FOREIGN_ENTRY + five)
        self.run_with("-I")
        self.assertEqual(self.read(PROTK_2), creo_entry(2) + FOREIGN_ENTRY + five)

    def test_an_incomplete_character_does_not_hide_the_line_after_it(self):
        folder = "C:\\日本\\NVX"
        self.put_product(folder)
        contents = FOREIGN_DIRS + b"C:\\\x83"
        self.machine.path(CUSTOM_DIRS_11).write_bytes(contents)
        for _ in range(2):
            self.run_with("-I", folder)
            self.assertEqual(self.read(CUSTOM_DIRS_11), contents + nx_line("", folder, "cp932"))


if __name__ == "__main__":
    unittest.main()
