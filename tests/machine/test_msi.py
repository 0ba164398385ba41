"""The package for the Windows Installer, run without a window: what it installs, how it configures the
product, and what a removal leaves.

What Wine's msiexec does not do, and is therefore not tested: a repair by the option /fa ends at once; and
UPGRADINGPRODUCTCODE is not set while an older version is removed, so that an upgrade also removes the
configuration and then makes it again.
"""

import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from guarded_program import GuardedProgram
from installer_case import InstallerCase, is_tool
from launcher_case import LauncherCase
from cadsystems import PROTK_2
from machine_case import BUILD, LOG, PRODUCT_KEY, SHORTCUT, UNINSTALL_KEY, MachineCase
from run_steps import LEFT_ELSEWHERE
from winemachine import (
    ENVIRONMENT_KEY,
    INSTALL_DIR,
    PROGRAM_FILES,
    Registry,
    TRANSLATORS,
    TRANSLATORS_KEY,
    TUTORIALS,
    value_of,
)

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "documentation"))

from documents import blocks_of, text_of  # noqa: E402

PACKAGE = BUILD / "package" / "NVX-2017-17.2.0-x64.msi"
ROOT = Path(__file__).resolve().parents[2]
ENTRIES = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\{"
FOREIGN = INSTALL_DIR + "\\my notes.txt"
SOLVER = INSTALL_DIR + "\\NVXSolver.exe"
TOOL = INSTALL_DIR + "\\MessageTableUtility.exe"
# Exit codes of Windows, of which Wine passes on the lowest 8 bits: the installation failed; another version.
FAILED, OTHER_VERSION = 1603 & 255, 1638


def make_older(path: Path) -> None:
    """Makes a package of version 17.1 with the programs of this one."""
    installer = ROOT / "installer"
    staged = path.parent / "older"
    for name in ("product", "translators"):
        shutil.copytree(BUILD / "sample" / name, staged / name)
    for file in (file for file in (BUILD / "installed").rglob("*") if file.is_file()):
        there = staged / ("tools" if is_tool(file) else "product") / file.relative_to(BUILD / "installed")
        there.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(file, there)
    subprocess.run(
        [
            sys.executable,
            installer / "make_msi.py",
            *(staged, "17.1.0", BUILD / "installer" / "NVXSetupTask.exe"),
            *(ROOT / "resource" / "images" / "program.ico", path),
        ],
        check=True,
        capture_output=True,
    )
    shutil.rmtree(staged)


def entry_keys(registry: Registry) -> list[str]:
    """The keys of the product in the list of programs."""
    keys = [key for key in registry if key.startswith(ENTRIES)]
    return [key for key in keys if value_of(registry, key, "DisplayName") == "Velmora NVX 2017"]


class MsiCase(InstallerCase):
    @classmethod
    def setUpClass(cls) -> None:
        super().setUpClass()
        shutil.copy(PACKAGE, cls.machine.path("C:\\nvx.msi"))

    def msi(self, *options: str) -> int:
        return self.machine.run("msiexec", *options, "/qn", timeout=900).returncode

    @staticmethod
    def entries(registry: Registry) -> list[str | None]:
        """The versions of the product in the list of programs."""
        return [value_of(registry, key, "DisplayVersion") for key in entry_keys(registry)]


class Package(MsiCase, LauncherCase):
    """Version 17.1 installed in German with the tools, replaced by this version without them, repaired, with
    the tools added, and removed."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        make_older(cls.machine.path("C:\\older.msi"))
        case.write(FOREIGN, b"mine")
        cls.before = cls.machine.files()
        codes = [case.msi("/i", "C:\\older.msi", "NVXLANG=de-DE", "ADDLOCAL=DeveloperTools")]
        cls.older = cls.machine.files()
        cls.older_registry = cls.machine.registry()

        case.delete_log()
        codes.append(case.msi("/i", "C:\\nvx.msi", "ADDLOCAL=Product", "/l*v", "C:\\upgrade.log"))
        cls.running = case.server_is_running()
        cls.has_log = case.exists("C:\\upgrade.log")
        cls.installed = cls.machine.files()
        cls.registry = cls.machine.registry()
        cls.lines = case.log_lines()

        cls.check_result = case.check()
        case.machine.path(SHORTCUT).rename(case.machine.path("C:\\shortcut"))
        cls.spoilt_check = case.check()
        case.machine.path("C:\\shortcut").rename(case.machine.path(SHORTCUT))

        cls.downgrade = case.msi("/i", "C:\\older.msi")
        cls.set_up_code = case.exit_code_of("C:\\set-up.exe", "/S")
        case.machine.path(SOLVER).unlink()
        codes.append(case.msi("/i", "C:\\nvx.msi", "REINSTALL=ALL", "REINSTALLMODE=amus"))
        cls.repaired = cls.machine.files()
        codes.append(case.msi("/i", "C:\\nvx.msi", "ADDLOCAL=DeveloperTools"))
        cls.with_tools = cls.machine.files()

        case.delete_log()
        cls.running_before_removal = case.server_is_running()
        codes.append(case.msi("/x", "C:\\nvx.msi"))
        cls.codes = codes
        cls.removed = cls.machine.files()
        cls.removed_registry = cls.machine.registry()
        cls.removal_lines = case.log_lines()

    def check(self):
        """The exit code and the output of the script that the administrators' page has for it."""
        blocks = blocks_of(text_of("docs/administrators.md"))
        (script,) = (block.text for block in blocks if block.name == "check-nvx.cmd")
        self.write("C:\\check-nvx.cmd", script.replace("\n", "\r\n").encode())
        done = self.machine.run("cmd", "/c", "C:\\check-nvx.cmd")
        self.machine.path("C:\\check-nvx.cmd").unlink()
        return done.returncode, done.stdout.decode().splitlines()

    def test_the_check_finds_what_is_missing_on_a_machine(self):
        self.assertEqual(self.check_result, (0, []))
        self.assertEqual(self.spoilt_check, (1, ["missing: " + SHORTCUT]))

    def test_every_call_of_the_windows_installer_succeeds(self):
        self.assertEqual(self.codes, [0] * 5)

    def test_the_same_files_as_by_the_set_up_are_installed_without_the_tools(self):
        for place, folder in (
            (INSTALL_DIR, BUILD / "sample" / "product"),
            (INSTALL_DIR, BUILD / "installed"),
            (TRANSLATORS, BUILD / "sample" / "translators"),
        ):
            for path in (path for path in folder.rglob("*") if path.is_file()):
                there = place + "\\" + str(path.relative_to(folder)).replace("/", "\\")
                self.assertEqual(there in self.installed, not is_tool(path), there)
                self.assertIn(there, self.with_tools)

    def test_the_product_is_configured_in_the_language_of_the_property(self):
        self.assertEqual(value_of(self.older_registry, PRODUCT_KEY + "\\17.2", "Locale"), "de-DE")
        self.assertIn(TUTORIALS + "\\First steps\\01 Pipe bend.txt", self.older)
        self.assertIn(TRANSLATORS + "\\NVX_MertleServer\\server\\settings.txt", self.older)
        self.assertIn(SHORTCUT, self.older)
        self.assertNotEqual(self.older[PROTK_2], self.before[PROTK_2])

    def test_an_upgrade_keeps_the_language_and_leaves_one_entry(self):
        self.assertEqual(self.entries(self.older_registry), ["17.1.0"])
        self.assertEqual(self.entries(self.registry), ["17.2.0"])
        self.assertIn("   0 Command Line:NVXConfig.exe -ST -S -Lde-DE", self.lines)
        self.assertIn("   0 Command Line:NVXConfig.exe -I -S -Lde-DE", self.lines)
        self.assertTrue(self.running, "\n".join(self.lines))
        self.assertTrue(self.has_log)

    def test_the_environment_and_the_registry_name_the_folders(self):
        for name in ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP"):
            self.assertEqual(value_of(self.registry, ENVIRONMENT_KEY, name), INSTALL_DIR)
        self.assertEqual(value_of(self.registry, TRANSLATORS_KEY, "Folder"), TRANSLATORS)
        (entry,) = entry_keys(self.registry)
        for name, value in (
            ("Publisher", "Velmora"),
            ("InstallLocation", INSTALL_DIR + "\\"),
            ("HelpLink", "https://help.velmora.example/"),
        ):
            self.assertEqual(value_of(self.registry, entry, name), value)

    def test_an_older_package_is_refused(self):
        self.assertEqual(self.downgrade, FAILED)

    def test_the_set_up_program_does_nothing_over_the_package(self):
        self.assertEqual(self.set_up_code, OTHER_VERSION)

    def test_a_repair_restores_a_deleted_file(self):
        self.assertEqual(self.repaired[SOLVER], self.installed[SOLVER])

    def test_the_tools_are_a_feature_of_their_own_that_brings_the_product(self):
        for file in (TOOL, SOLVER):
            self.assertIn(file, self.older)
        self.assertNotIn(TOOL, self.installed)
        self.assertIn(TOOL, self.with_tools)

    def test_a_removal_while_the_server_runs_leaves_only_the_listed_files(self):
        self.assertTrue(self.running_before_removal)
        self.assertIn("   0 Command Line:NVXConfig.exe -U -S -Lde-DE", self.removal_lines)
        left = sorted(path for path in self.removed if path not in self.before and "Temp" not in path)
        self.assertEqual([path for path in left if "upgrade.log" not in path], sorted([*LEFT_ELSEWHERE, LOG]))
        self.assertEqual(self.removed[FOREIGN], self.before[FOREIGN])

    def test_a_removal_deletes_everything_that_the_package_wrote_to_the_registry(self):
        self.assertIsNone(value_of(self.removed_registry, ENVIRONMENT_KEY, "OSTRADE"))
        self.assertIsNone(value_of(self.removed_registry, PRODUCT_KEY, "WindowsInstaller"))
        self.assertEqual(self.entries(self.removed_registry), [])
        for key in self.removed_registry:
            self.assertNotIn("Kelvane", key)
            self.assertNotIn("NVX 2017 Server", key)


class Faults(MsiCase, MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.turn_screen_off()

    def assert_refused(self, *properties):
        self.assertNotEqual(self.msi("/i", "C:\\nvx.msi", *properties), 0)
        left = [path for path in self.machine.files(PROGRAM_FILES) if "Velmora" in path]
        registry = self.machine.registry()
        self.assertEqual(self.entries(registry), [])
        self.assertIsNone(value_of(registry, ENVIRONMENT_KEY, "OSTRADE"))
        return left

    def test_a_configuration_that_waits_for_a_user_is_ended_and_undone(self):
        refusal = self.write(INSTALL_DIR + "\\NVXServer.exe.fails-to-register")
        left = self.assert_refused("NVXTIMEOUT=40")
        self.assertEqual(self.machine.programs("NVXConfig.exe"), {})
        self.assertIn("   0 Command Line:NVXConfig.exe -U -S", self.log_lines())
        self.assertNotIn(SOLVER, left)
        self.assertFalse(self.exists(SHORTCUT))
        refusal.unlink()
        shutil.rmtree(self.machine.path(PROGRAM_FILES + "\\Velmora"))

    def test_while_a_cad_system_runs_nothing_is_installed(self):
        cad_system = GuardedProgram(self.machine, "C:\\PTC\\xtop.exe", "cad/xtop.exe")
        self.assertNotEqual(self.msi("/i", "C:\\nvx.msi"), 0)
        cad_system.stop()
        self.assertFalse(self.exists(INSTALL_DIR))

    def test_over_a_product_of_the_set_up_program_nothing_is_installed(self):
        self.machine.set_value(UNINSTALL_KEY, "UninstallString", '"C:\\NVX\\uninstall.exe"')
        self.assertEqual(self.assert_refused(), [])
        self.machine.run("reg", "delete", UNINSTALL_KEY, "/f")


if __name__ == "__main__":
    unittest.main()
