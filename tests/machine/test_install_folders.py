"""Install folders with all kinds of names, on machines with several code pages."""

import unittest

from machine_case import MachineCase
from winemachine import SHARED_DATA

LONG = "C:\\" + "\\".join([f"ein ziemlich langer Ordnername {i}" for i in range(7)])


class FolderCase(MachineCase):
    def install(self, folder):
        """Installs over an earlier Python; a folder next to the install dir must survive."""
        self.put_product(folder)
        self.write(folder + "\\Python\\Lib\\old.py", b"old")
        self.write(folder + "\\Python\\DLLs\\old.dll", b"old")
        neighbour = folder.rsplit("\\", 1)[0] + "\\neighbour\\Python\\Lib\\keep.py"
        self.write(neighbour, b"keep")
        code, lines = self.configure(folder, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        self.assertTrue(self.exists(neighbour))
        self.assertTrue(self.exists(folder + "\\Python\\Lib\\nvxreport\\table.py"))
        self.assertFalse(self.exists(folder + "work.bat"))
        return lines

    def assert_configured(self, folder):
        lines = self.install(folder)
        self.assertFalse(self.exists(folder + "\\Python\\Lib\\old.py"), lines)
        self.assertFalse(self.exists(folder + "\\Python\\DLLs\\old.dll"))
        written = self.machine.path(SHARED_DATA + "\\NVX2_config.nvxcfg").read_bytes()
        first = written.decode("utf-8").splitlines()[0]
        self.assertEqual(first, "ExePath = " + folder + "\\NVX2_share")


class WesternMachine(FolderCase):
    def test_blanks_umlauts_and_special_characters_of_the_interpreter_are_allowed(self):
        for folder in (
            "C:\\Program Files (x86)\\Velmora\\NVX 2017",
            "C:\\Größe & Söhne\\NVX",
            "C:\\a b,c=d^e@f!g'h`i~j+k{l}m[n]\\NVX",
            "C:\\100% frei\\NVX",
        ):
            with self.subTest(folder):
                self.assert_configured(folder)

    def test_with_a_variable_in_the_name_only_the_removal_of_folders_fails(self):
        # The interpreter expands the variable in its command line, which nothing can prevent, and then finds
        # no batch file.
        folder = "C:\\in %TEMP%\\NVX"
        lines = self.install(folder)
        self.assertTrue(self.exists(folder + "\\Python\\Lib\\old.py"))
        removals = [line for line in lines if " output:" in line]
        # tutorials, two folders of Python, two of the server, customisation
        self.assertEqual(len(removals), 6)
        for line in removals:
            self.assertFalse(line.startswith("   0"), line)

    def test_a_name_of_more_than_200_characters_is_allowed(self):
        folder = LONG + "\\NVX"
        self.assertGreater(len(folder), 200)
        self.assert_configured(folder)

    def test_with_a_name_outside_the_code_page_only_what_needs_it_fails(self):
        folder = "C:\\日本\\NVX"
        lines = self.install(folder)
        # Folders whose names cannot be written are left alone and logged.
        self.assertTrue(self.exists(folder + "\\Python\\Lib\\old.py"))
        for name in ("DLLs", "Lib"):
            self.assertIn(
                "   1 The name of this folder cannot be written in the command interpreter's code page; "
                f"it is not removed: {folder}\\Python\\{name}",
                lines,
            )
        self.assertIn(
            "   1 Unable to create NVX2 default configuration: " + SHARED_DATA + "\\NVX2_config.nvxcfg",
            lines,
        )


class JapaneseMachine(FolderCase):
    locale = "ja_JP.UTF-8"

    def test_a_japanese_name_is_allowed(self):
        self.assert_configured("C:\\日本 ソフト\\表 NVX")


if __name__ == "__main__":
    unittest.main()
