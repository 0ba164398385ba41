"""The set-up program, run without a window: what it installs, how it configures the product, and what a
removal leaves. test_installer_faults.py has its failures."""

import unittest
from pathlib import Path

from installer_case import InstallerCase, hash_of, is_tool
from launcher_case import ADDIN, LauncherCase, target_manifest
from cadsystems import COM_CLASSES, PROTK_2
from machine_case import BUILD, LOG, PRODUCT_KEY, SHORTCUT, UNINSTALL_KEY, MachineCase
from run_steps import LEFT_ELSEWHERE
from winemachine import (
    ENVIRONMENT_KEY,
    INSTALL_DIR,
    SHARED_DATA,
    TRANSLATORS,
    TRANSLATORS_KEY,
    TUTORIALS,
    value_of,
)

VARIABLES = ("OSTRADE", "OSTRADE2017DIR", "OSTRADE2017TEMP")
VERSION_KEY = PRODUCT_KEY + "\\17.2"
# Files of others in the product's folders.
FOREIGN = [INSTALL_DIR + "\\my notes.txt", INSTALL_DIR + "\\licences\\Qt\\mine.txt"]
MATERIALS = SHARED_DATA + "\\matprop.nvxmdb"
MENU = INSTALL_DIR + "\\Launchers\\UGNX\\startup\\NVX_2017.men"


class Installer(InstallerCase, LauncherCase):
    """Installed in German, changed to Japanese by the product, installed again, and removed."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        for path in FOREIGN:
            case.write(path, b"mine")
        cls.before = cls.machine.files()

        cls.code = case.set_up("/S", "/LANG=de-DE", "/LOG=C:\\set-up.log")
        cls.running = case.server_is_running()
        cls.installed = cls.machine.files()
        cls.registry = cls.machine.registry()
        cls.lines = case.log_lines()

        case.configure(INSTALL_DIR, "-I", "-S", "-Lja-JP", timeout=900)
        cls.japanese_registry = cls.machine.registry()

        case.write(MATERIALS, b"the user's materials")
        case.write(MENU, b"of an older release")
        case.machine.path(LOG).unlink()
        cls.set_up_log = case.read("C:\\set-up.log").decode("utf-16").splitlines()
        cls.second_code = case.set_up("/S", "/NONSENSE", "/TOOLS")
        cls.second_running = case.server_is_running()
        cls.second = cls.machine.files()
        cls.second_registry = cls.machine.registry()
        cls.second_lines = case.log_lines()

        case.machine.path(LOG).unlink()
        case.remove(cls.command_of(cls.second_registry))
        cls.removed = cls.machine.files()
        cls.removed_registry = cls.machine.registry()
        cls.removal_lines = case.log_lines()

    @staticmethod
    def command_of(registry):
        return value_of(registry, UNINSTALL_KEY, "UninstallString")

    def test_both_set_ups_exit_with_0(self):
        self.assertEqual((self.code, self.second_code), (0, 0))

    def test_every_file_of_the_sample_and_the_programs_is_installed(self):
        for place, folder in (
            (INSTALL_DIR, BUILD / "sample" / "product"),
            (INSTALL_DIR, BUILD / "installed"),
            (TRANSLATORS, BUILD / "sample" / "translators"),
        ):
            files = [path for path in folder.rglob("*") if path.is_file()]
            self.assertTrue(files)
            for path in files:
                there = place + "\\" + str(path.relative_to(folder)).replace("/", "\\")
                self.assertEqual(there in self.installed, not is_tool(path), there)
                self.assertIn(there, self.second)

    def test_the_log_has_the_runs_and_their_exit_codes(self):
        texts = [line.split("  ", 1)[1] for line in self.set_up_log]
        self.assertTrue(texts[0].endswith("set-up.exe /S /LANG=de-DE /LOG=C:\\set-up.log"), texts[0])
        run = next(i for i, text in enumerate(texts) if text.endswith("NVXConfig.exe -I -S -Lde-DE"))
        self.assertEqual(texts[run + 1], "NVXConfig.exe: 0")

    def test_7_zip_has_its_own_licence(self):
        folder = INSTALL_DIR + "\\licences\\7-Zip\\"
        names = [path.removeprefix(folder) for path in self.installed if path.startswith(folder)]
        self.assertEqual(sorted(names), ["LGPL-2.1", "copyright"])
        self.assertIn(b"Upstream-Name: 7-Zip", Path("/usr/share/doc/7zip/copyright").read_bytes())
        self.assertEqual(
            self.installed[folder + "copyright"],
            hash_of(Path("/usr/share/doc/7zip/copyright").read_bytes()),
        )

    def test_no_temporary_file_is_left(self):
        for files in (self.installed, self.second, self.removed):
            self.assertEqual([path for path in files if "setup in progress" in path], [])

    def test_the_product_is_configured_in_the_installers_language(self):
        self.assertIn("   0 Command Line:NVXConfig.exe -I -S -Lde-DE", self.lines)
        self.assertIn("   0 Installation der Tutorials", self.lines)
        self.assertEqual(value_of(self.registry, VERSION_KEY, "Locale"), "de-DE")
        for name in ("VistrelResources.dll", "VelmoraApplicationFrameRes.dll"):
            self.assertEqual(
                self.installed[INSTALL_DIR + "\\" + name],
                self.installed[INSTALL_DIR + "\\de-DE\\" + name],
            )
        self.assertIn(TUTORIALS + "\\First steps\\01 Pipe bend.txt", self.installed)
        self.assertIn(TRANSLATORS + "\\NVX_MertleServer\\server\\settings.txt", self.installed)
        self.assertIn(SHORTCUT, self.installed)

    def test_the_server_runs(self):
        self.assertTrue(self.running, "\n".join(self.lines))
        self.assertTrue(self.second_running, "\n".join(self.second_lines))

    def test_the_launchers_are_in_the_cad_systems(self):
        for path in (ADDIN + ".xml", target_manifest(2017)):
            self.assertIn(path, self.installed)
            self.assertNotIn(path, self.removed)
        for key in COM_CLASSES.values():
            self.assertIsNotNone(value_of(self.registry, key + "\\InprocServer32", ""))
            self.assertIsNone(value_of(self.removed_registry, key + "\\InprocServer32", ""))
        self.assertNotEqual(self.installed[PROTK_2], self.before[PROTK_2])
        self.assertEqual(self.removed[PROTK_2], self.before[PROTK_2])

    def test_the_environment_and_the_registry_name_the_install_folder(self):
        for name in VARIABLES:
            self.assertEqual(value_of(self.registry, ENVIRONMENT_KEY, name), INSTALL_DIR)
            self.assertEqual(value_of(self.second_registry, ENVIRONMENT_KEY, name), INSTALL_DIR)
        self.assertEqual(value_of(self.registry, TRANSLATORS_KEY, "Folder"), TRANSLATORS)

    def test_the_uninstall_entry_is_complete(self):
        def value(name):
            return value_of(self.registry, UNINSTALL_KEY, name)

        self.assertEqual(value("DisplayName"), "Velmora NVX 2017")
        self.assertEqual(value("DisplayVersion"), "17.2.0")
        self.assertEqual(value("InstallLocation"), INSTALL_DIR)
        command = f'"{INSTALL_DIR}\\uninstall.exe" /LANG=de-DE'
        self.assertEqual((value("UninstallString"), value("UninstallPath")), (command, command))
        self.assertEqual(value("QuietUninstallString"), f'"{INSTALL_DIR}\\uninstall.exe" /S')
        size = int(value("EstimatedSize").removeprefix("dword:"), 16)
        self.assertTrue(20_000 < size < 200_000, size)

    def test_the_product_changes_the_language_of_the_uninstall_command(self):
        found = "   0 Sprache im Deinstallationseintrag der Registrierung, bisher:"
        self.assertIn(found + self.command_of(self.registry), self.lines)
        for name in ("UninstallString", "UninstallPath"):
            self.assertEqual(
                value_of(self.japanese_registry, UNINSTALL_KEY, name),
                f'"{INSTALL_DIR}\\uninstall.exe" /LANG=ja-JP',
            )

    def test_a_second_set_up_keeps_the_language_of_the_product(self):
        self.assertIn("   0 Command Line:NVXConfig.exe -ST -S -Lja-JP", self.second_lines)
        self.assertIn("   0 Command Line:NVXConfig.exe -I -S -Lja-JP", self.second_lines)
        self.assertEqual(value_of(self.second_registry, VERSION_KEY, "Locale"), "ja-JP")

    def test_a_second_set_up_replaces_its_files_and_keeps_the_users(self):
        self.assertEqual(self.second[MENU], self.installed[MENU])
        self.assertEqual(self.second[MATERIALS], hash_of(b"the user's materials"))
        second = [path for path in self.second if path.startswith(INSTALL_DIR)]
        first = [path for path in self.installed if path.startswith(INSTALL_DIR)]
        tools = [path for path in (BUILD / "installed").rglob("*") if path.is_file() and is_tool(path)]
        added = [str(path.relative_to(BUILD / "installed")).replace("/", "\\") for path in tools]
        added = [INSTALL_DIR + "\\" + path for path in (*added, "ja\\ZorvRes.dll")]
        self.assertEqual(sorted(second), sorted([*first, *added]))

    def test_a_removal_deletes_the_files_of_the_japanese_language(self):
        text = INSTALL_DIR + "\\ja\\ZorvRes.dll"
        self.assertIn(text, self.second)
        self.assertNotIn(text, self.removed)

    def test_the_removal_runs_the_products_removal(self):
        self.assertIn("   0 Command Line:NVXConfig.exe -U -S -Lja-JP", self.removal_lines)

    def test_a_removal_leaves_only_the_listed_files(self):
        # Windows deletes the copy of the uninstaller at its next start.
        left = sorted(path for path in self.removed if path not in self.before and "\\Temp\\~nsu" not in path)
        left = [path for path in left if not path.endswith("set-up.log")]
        self.assertEqual(left, sorted([*LEFT_ELSEWHERE, LOG]))

    def test_files_of_others_survive(self):
        for path in FOREIGN:
            self.assertEqual(self.removed.get(path), self.before[path], path)

    def test_a_removal_deletes_everything_that_the_set_up_wrote_to_the_registry(self):
        for name in VARIABLES:
            self.assertIsNone(value_of(self.removed_registry, ENVIRONMENT_KEY, name))
        for key in self.removed_registry:
            self.assertNotIn("Uninstall\\NVX 2017", key)
            self.assertNotIn("Kelvane", key)
            self.assertNotIn("NVX 2017 Server", key)


class OtherPlaces(InstallerCase, MachineCase):
    """Installed in another folder, with a part of a language's name, and removed."""

    # Words of it look like options.
    FOLDER = "C:\\CAD -U -X größe\\NVX"
    TRANSLATORS = "C:\\Translators"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        case.write(cls.TRANSLATORS + "\\other server.txt", b"of others")
        cls.machine.set_value(TRANSLATORS_KEY, "Folder", cls.TRANSLATORS)
        # The last option takes the rest of the command line, without quotes.
        cls.code = case.set_up("/S", "/LANG=de", *("/D=" + cls.FOLDER).split())
        cls.registry = cls.machine.registry()
        cls.lines = case.log_lines(cls.FOLDER)
        cls.translators = cls.machine.files(cls.TRANSLATORS)
        case.remove(value_of(cls.registry, UNINSTALL_KEY, "UninstallString"))

    def test_a_folder_name_that_looks_like_options_is_allowed(self):
        self.assertEqual(self.code, 0)
        self.assertEqual(value_of(self.registry, ENVIRONMENT_KEY, "OSTRADE"), self.FOLDER)
        self.assertEqual(value_of(self.registry, VERSION_KEY, "InstallationDirectory"), self.FOLDER)
        self.assertEqual(list(self.machine.files(self.FOLDER)), [self.FOLDER + "\\NVXConfig.log"])

    def test_a_part_of_a_languages_name_installs_english(self):
        self.assertIn("   0 Command Line:NVXConfig.exe -I -S -Len-US", self.lines)

    def test_an_existing_folder_of_the_translators_is_used_and_kept(self):
        self.assertIn(self.TRANSLATORS + "\\NVX_MertleServer\\server\\settings.txt", self.translators)
        left = list(self.machine.files(self.TRANSLATORS))
        self.assertEqual(left, [self.TRANSLATORS + "\\other server.txt"])
        registry = self.machine.registry()
        self.assertEqual(value_of(registry, TRANSLATORS_KEY, "Folder"), self.TRANSLATORS)


if __name__ == "__main__":
    unittest.main()
