"""The version, icons and manifests of the programs, which Windows reads and shows."""

import unittest
import xml.etree.ElementTree as ElementTree

from machine_case import BUILD
from program_file import (
    CONSOLE,
    DYNAMIC_BASE,
    GROUP_ICON,
    HIGH_ENTROPY,
    ICON,
    MANIFEST,
    NO_EXECUTION,
    WINDOWED,
    ProgramFile,
)

# Programs without a window.
CONSOLE_PROGRAMS = {"MessageTableCheck.exe", "NVXLogSummary.exe", "UpdateErrorTable.exe"}
ADMINISTRATORS_PROGRAMS = {"NVXConfig.exe"}
ICON_SIZES = [16, 20, 24, 32, 40, 48, 64, 128, 256]


def each_program(check):
    """Makes a test that runs the check on every shipped program."""

    def test(self):
        for name, program in sorted(self.programs.items()):
            with self.subTest(program=name):
                check(self, name, program)

    return test


class ProgramFiles(unittest.TestCase):
    def setUp(self):
        self.programs = {path.name: ProgramFile(path) for path in (BUILD / "installed").glob("*.exe")}
        self.assertIn("NVXConfig.exe", self.programs)

    def manifest(self, program):
        ((name, text),) = program.resources(MANIFEST)
        self.assertEqual(name, 1)
        return ElementTree.fromstring(text)

    def setting(self, program, name):
        return [item.text for item in self.manifest(program).iter() if item.tag.endswith("}" + name)]

    def test_all_programs_and_libraries_allow_the_defences_of_windows(self):
        wanted = HIGH_ENTROPY | DYNAMIC_BASE | NO_EXECUTION
        files = [path for path in (BUILD / "installed").rglob("*") if path.suffix in (".exe", ".dll")]
        self.assertIn("Qt6Core.dll", [path.name for path in files])
        for path in [*files, BUILD / "installer" / "NVXSetupTask.exe"]:
            with self.subTest(file=path.name):
                self.assertEqual(ProgramFile(path).defences & wanted, wanted)

    @each_program
    def test_the_stack_is_protected(self, name, program):
        # The text of the compiler's library, which is linked only into a program that calls it.
        self.assertIn(b"stack smashing detected", program.bytes)

    def test_the_stack_of_qt_is_protected(self):
        libraries = ["Qt6Core.dll", "Qt6Gui.dll", "Qt6Widgets.dll", "platforms/qwindows.dll"]
        for name in libraries:
            with self.subTest(library=name):
                self.assertGreater(ProgramFile(BUILD / "installed" / name).calls("__stack_chk_fail"), 100)

    @each_program
    def test_the_version_block_is_complete(self, name, program):
        numbers, texts = program.version()
        self.assertEqual(numbers, ["17.2.0.0", "17.2.0.0"])
        self.assertEqual(texts["CompanyName"], "Velmora")
        self.assertEqual(texts["ProductName"], "NVX 2017")
        self.assertEqual(texts["ProductVersion"], "2017")
        self.assertEqual(texts["FileVersion"], "17.2.0")
        self.assertEqual(texts["OriginalFilename"], name)
        self.assertTrue(texts["FileDescription"].startswith(("NVX ", "Message ", "Material ")))

    @each_program
    def test_only_the_configuration_asks_for_administrator_rights(self, name, program):
        (level,) = [
            item.get("level")
            for item in self.manifest(program).iter()
            if item.tag.endswith("}requestedExecutionLevel")
        ]
        wanted = "requireAdministrator" if name in ADMINISTRATORS_PROGRAMS else "asInvoker"
        self.assertEqual(level, wanted)

    @each_program
    def test_a_program_scales_with_each_screen_and_allows_long_paths(self, _, program):
        self.assertEqual(self.setting(program, "dpiAwareness"), ["PerMonitorV2, PerMonitor"])
        self.assertEqual(self.setting(program, "dpiAware"), ["true/pm"])
        self.assertEqual(self.setting(program, "longPathAware"), ["true"])

    @each_program
    def test_8_bit_text_stays_in_the_machines_code_page(self, _, program):
        self.assertEqual(self.setting(program, "activeCodePage"), [])

    @each_program
    def test_a_program_uses_the_systems_look(self, _, program):
        assemblies = [
            (item.get("name"), item.get("version"))
            for item in self.manifest(program).iter()
            if item.tag.endswith("}assemblyIdentity")
        ]
        self.assertIn(("Microsoft.Windows.Common-Controls", "6.0.0.0"), assemblies)

    @each_program
    def test_the_icon_that_qt_loads_has_every_size(self, _, program):
        ((name, group),) = program.resources(GROUP_ICON)
        self.assertEqual(name, "IDI_ICON1")
        sizes = [group[6 + 14 * i] or 256 for i in range(group[4])]
        self.assertEqual(sizes, ICON_SIZES)
        self.assertEqual(len(program.resources(ICON)), len(ICON_SIZES))

    @each_program
    def test_only_a_program_without_a_window_opens_a_console(self, name, program):
        self.assertEqual(program.kind, CONSOLE if name in CONSOLE_PROGRAMS else WINDOWED)


if __name__ == "__main__":
    unittest.main()
