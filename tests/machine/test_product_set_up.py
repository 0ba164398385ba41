"""The product's registration on the machine: file types, registry values, the uninstall entry, the viewer's
configuration and the shortcut, written by the system's own Registry Editor and shell."""

import shutil
import unittest

from machine_case import DESKTOP, PRODUCT_KEY, SHORTCUT, UNINSTALL_KEY, USER_KEY, MachineCase, output_of
from shell_link import read_link
from winemachine import INSTALL_DIR, PROGRAM_FILES, SHARED_DATA, value_of

CLASSES = "HKEY_LOCAL_MACHINE\\Software\\Classes\\"
EXPLORER = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\"
VERSION_KEY = PRODUCT_KEY + "\\17.2"
CENTER_KEY = USER_KEY + "\\WebServices\\CommunicationCenter"
SHELL_FOLDERS = (
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders"
)
SCRIPT = "\\FileAssociations.reg"
TYPES = {".nvxst": "nvxst.ico", ".nvz": "nvz.ico", ".tpl": "nvxtpl.ico", ".nvxpkg": "nvxpkg.ico"}
OPENED = (".nvxst", ".nvz")  # by the product
LINK_NAME = SHORTCUT.removeprefix(DESKTOP)


def keys_below(registry, key):
    """The paths of a key and of all keys below it, relative to the key."""
    beginning = key.lower()
    return sorted(
        path[len(key) :]
        for path in registry
        if path.lower() == beginning or path.lower().startswith(beginning + "\\")
    )


def default_value(registry, key):
    return value_of(registry, key, "")


class SetUpCase(MachineCase):
    def install(self, folder, *tokens):
        code, lines = self.configure(folder, "-I", "-S", *(tokens or ("-Len-US",)))
        self.assert_complete(code, lines)
        return lines

    def uninstall(self, folder):
        code, lines = self.configure(folder, "-U", "-S", "-Len-US")
        self.assert_complete(code, lines)
        return lines

    def assert_types_point_at(self, registry, folder):
        for extension, icon in TYPES.items():
            name = "NVX2017" + extension
            self.assertEqual(default_value(registry, CLASSES + extension), name)
            # The class is a sub-key too; the registry file lists only its sub-key.
            self.assertIn("\\" + name + "\\ShellNew", keys_below(registry, CLASSES + extension))
            self.assertEqual(default_value(registry, CLASSES + name), "NVX 2017")
            self.assertEqual(
                default_value(registry, CLASSES + name + "\\DefaultIcon"),
                f'"{folder}\\{icon}"',
            )
            shell = CLASSES + name + "\\shell"
            if extension in OPENED:
                self.assertEqual(default_value(registry, shell), "Open")
                self.assertEqual(default_value(registry, shell + "\\Open"), "NVX 2017")
                self.assertEqual(
                    default_value(registry, shell + "\\Open\\command"),
                    f'"{folder}\\NVX.exe" "%1"',
                )
            else:
                self.assertIsNone(default_value(registry, shell))
                self.assertEqual(keys_below(registry, shell + "\\Open"), [])

    def read_shortcut(self, code_page="cp1252"):
        return read_link(self.read(SHORTCUT), code_page)

    def viewer_start(self, folder):
        """The working folder and the arguments of the last start of the viewer's program."""
        record = self.machine.path(folder + "\\NVX Viewer\\last-start.txt")
        return record.read_text(encoding="utf-8").splitlines()


class InstallAndRemove(SetUpCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        case.put_product()
        cls.put_an_earlier_product(case)
        cls.first = case.configure(INSTALL_DIR, "-I", "-S", "-Lde-DE")
        cls.link = case.read_shortcut()
        cls.viewer = case.viewer_start(INSTALL_DIR)
        cls.first_registry = cls.machine.registry()
        cls.first_files = cls.machine.files()
        case.configure(INSTALL_DIR, "-I", "-S", "-Lde-DE")
        cls.second_registry = cls.machine.registry()
        cls.removal = case.configure(INSTALL_DIR, "-U", "-S", "-Len-US")
        cls.removal_viewer = case.viewer_start(INSTALL_DIR)
        cls.removal_registry = cls.machine.registry()

    @classmethod
    def put_an_earlier_product(cls, case):
        machine = cls.machine
        for extension in TYPES:
            machine.set_value(CLASSES + extension + "\\Old\\Deep", "a", "old")
            machine.set_value(CLASSES + "NVX2017" + extension + "\\shell\\Print", "a", "old")
            machine.set_value(EXPLORER + "FileExts\\" + extension + "\\UserChoice", "ProgId", "x")
            machine.set_value(EXPLORER + "RecentDocs\\" + extension, "0", "x")
        machine.set_value(UNINSTALL_KEY, "UninstallPath", '"C:\\Set Up\\setup.exe" /LANG=en-US /X')
        machine.set_value(UNINSTALL_KEY, "UninstallString", "old")
        machine.set_value(USER_KEY + "\\Lumara\\Deep", "a", "old")
        case.write(SHORTCUT, b"an old link")
        case.write(INSTALL_DIR + "\\WebServices\\Deep\\a.txt", b"old")
        case.write(INSTALL_DIR + "\\Lumara.log", b"old")

    def test_the_runs_exit_with_0(self):
        self.assertEqual((self.first[0], self.removal[0]), (0, 0))

    def test_the_file_types_get_their_classes_icons_and_commands(self):
        self.assert_types_point_at(self.second_registry, INSTALL_DIR)

    def test_old_entries_of_the_types_that_the_product_opens_are_deleted(self):
        for extension in OPENED:
            self.assertEqual(keys_below(self.first_registry, CLASSES + extension + "\\Old"), [])
            for place in ("FileExts\\", "RecentDocs\\"):
                self.assertEqual(keys_below(self.first_registry, EXPLORER + place + extension), [])
        for extension in (".nvxst", ".nvz", ".tpl"):
            self.assertEqual(
                keys_below(self.first_registry, f"{CLASSES}NVX2017{extension}\\shell\\Print"), []
            )

    def test_the_users_choices_for_the_other_types_survive(self):
        for extension in (".tpl", ".nvxpkg"):
            for registry in (self.first_registry, self.removal_registry):
                choice = EXPLORER + "FileExts\\" + extension + "\\UserChoice"
                self.assertEqual(value_of(registry, choice, "ProgId"), "x")
                self.assertEqual(value_of(registry, EXPLORER + "RecentDocs\\" + extension, "0"), "x")
                self.assertEqual(value_of(registry, CLASSES + extension + "\\Old\\Deep", "a"), "old")
        print_key = CLASSES + "NVX2017.nvxpkg\\shell\\Print"
        self.assertEqual(value_of(self.removal_registry, print_key, "a"), "old")

    def test_the_registry_editor_runs_twice_and_no_script_is_left(self):
        command = "   0 Command:regedit -s " + INSTALL_DIR + SCRIPT
        self.assertEqual(self.first[1].count(command), 2)
        self.assertEqual(self.removal[1].count(command), 2 + 2 + 1)
        self.assertIn("   0 " + INSTALL_DIR + SCRIPT, self.first[1])
        self.assertNotIn(INSTALL_DIR + SCRIPT, self.first_files)
        self.assertFalse(self.exists(INSTALL_DIR + SCRIPT))

    def test_the_products_registry_values_are_written(self):
        registry = self.first_registry
        self.assertEqual(value_of(registry, PRODUCT_KEY, "CurrentVersion"), "17.2")
        self.assertEqual(
            dict(registry[self.spelled(registry, VERSION_KEY)]),
            {
                "AnalyzeDirectory": SHARED_DATA + "\\Analyze",
                "InstallationDirectory": INSTALL_DIR,
                "Locale": "de-DE",
                "master": self.master(registry),
                "release": "2017",
                "productline": "KORVA",
            },
        )

    def master(self, registry):
        windows32 = "HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion"
        return "Win64" if keys_below(registry, windows32) else "Win32"

    def spelled(self, registry, key):
        """A key as the registry spells it."""
        return next(path for path in registry if path.lower() == key.lower())

    def test_the_users_notification_centre_is_switched_off(self):
        registry = self.first_registry
        services = USER_KEY + "\\WebServices"
        self.assertEqual(value_of(registry, services, "CountryCode"), "DE")
        self.assertEqual(
            dict(registry[self.spelled(registry, CENTER_KEY)]),
            {
                "PollingFrequency": "dword:ffffffff",
                "LastUpdateTimeLoWord": f"dword:{1329242409:08x}",
                "LastUpdateTimeHiWord": "dword:00000000",
                "OutOfBoxWizardCompletedStep": "dword:00000003",
                "DataState": "dword:00000000",
                "EnableBubbleNotification": "dword:00000000",
            },
        )

    def test_the_uninstall_entry_has_the_users_language(self):
        for name in ("UninstallPath", "UninstallString"):
            self.assertEqual(
                value_of(self.first_registry, UNINSTALL_KEY, name),
                '"C:\\Set Up\\setup.exe" /LANG=de-DE',
            )

    def test_the_viewer_is_configured_by_an_install_and_a_removal(self):
        self.assertEqual(self.viewer, [INSTALL_DIR, "-i"])
        self.assertEqual(self.removal_viewer, [INSTALL_DIR])
        program = INSTALL_DIR + "\\NVX Viewer\\NVXViewerConfig.exe"
        self.assertEqual(
            output_of(self.first[1], program),
            ["   0 Output:", "   0   The viewer is configured."],
        )

    def test_the_shortcut_starts_the_product_in_its_folder(self):
        self.assertEqual(self.link["target"], INSTALL_DIR + "\\NVX.exe")
        self.assertEqual(self.link["description"], "Velmora NVX 2017")
        self.assertEqual(self.link["work_folder"], INSTALL_DIR)
        self.assertEqual(self.link.get("arguments", ""), "")
        self.assertEqual(self.link.get("icon", ""), "")
        made = [line for line in self.first[1] if line.endswith(SHORTCUT + " erfolgreich")]
        self.assertEqual(len(made), 1, self.first[1])

    def test_a_second_install_changes_nothing(self):
        ours = (CLASSES + ".", CLASSES + "NVX2017", PRODUCT_KEY, USER_KEY, UNINSTALL_KEY, EXPLORER)

        def part(registry):
            return {key: values for key, values in registry.items() if key.startswith(ours)}

        self.assertEqual(part(self.first_registry), part(self.second_registry))

    def test_removal_deletes_the_file_types(self):
        registry = self.removal_registry
        for extension in OPENED:
            self.assertEqual(keys_below(registry, CLASSES + extension), [])
        for extension in (".nvxst", ".nvz", ".tpl"):
            self.assertEqual(keys_below(registry, CLASSES + "NVX2017" + extension), [])
        self.assertEqual(default_value(registry, CLASSES + ".nvxpkg"), "NVX2017.nvxpkg")
        self.assertEqual(default_value(registry, CLASSES + "NVX2017.nvxpkg"), "NVX 2017")

    def test_removal_deletes_the_users_groups_and_keeps_the_products_key(self):
        registry = self.removal_registry
        for group in ("\\WebServices", "\\Lumara"):
            self.assertEqual(keys_below(registry, USER_KEY + group), [])
        self.assertEqual(value_of(registry, USER_KEY, "Locale"), "en-US")
        self.assertEqual(value_of(registry, PRODUCT_KEY, "CurrentVersion"), "17.2")
        self.assertEqual(value_of(registry, VERSION_KEY, "InstallationDirectory"), INSTALL_DIR)

    def test_removal_deletes_the_shortcut(self):
        self.assertFalse(self.exists(SHORTCUT))

    def test_removal_deletes_the_notification_centres_folder_and_keeps_its_log(self):
        self.assertFalse(self.exists(INSTALL_DIR + "\\WebServices"))
        self.assertTrue(self.exists(INSTALL_DIR + "\\Lumara.log"))


class WesternFolders(SetUpCase):
    def test_blanks_umlauts_and_special_characters_are_allowed(self):
        for folder in (
            PROGRAM_FILES + " (x86)\\Velmora\\NVX 2017",
            "C:\\Größe & Söhne\\NVX",
            "C:\\100%1 frei [a] = 'b', {c}\\NVX",
        ):
            with self.subTest(folder):
                self.put_product(folder)
                self.install(folder)
                link = self.read_shortcut()
                self.assertEqual(link["target"], folder + "\\NVX.exe")
                self.assertEqual(link["work_folder"], folder)
                self.assertEqual(self.viewer_start(folder), [folder, "-i"])
                registry = self.machine.registry()
                self.assert_types_point_at(registry, folder)
                self.assertEqual(value_of(registry, VERSION_KEY, "InstallationDirectory"), folder)

    def test_a_name_outside_the_code_page_is_never_written_wrong(self):
        folder = "C:\\日本\\NVX"
        self.put_product("C:\\NVX")
        self.install("C:\\NVX")
        self.put_product(folder)
        lines = self.install(folder)
        self.assertIn(
            "   1 The folder's path cannot be written in the system's code page; no files are associated "
            "with the product: " + folder,
            lines,
        )
        self.assertEqual(self.read_shortcut()["work_folder"], folder)
        registry = self.machine.registry()
        # The file types of the older install are deleted: they would start what is no longer configured.
        for extension in OPENED:
            self.assertEqual(keys_below(registry, CLASSES + extension), [])
        self.assertEqual(value_of(registry, VERSION_KEY, "InstallationDirectory"), folder)


class JapaneseFolders(SetUpCase):
    locale = "ja_JP.UTF-8"

    def test_a_japanese_name_is_allowed(self):
        # In this code page the second byte of the last folder's first character is a backslash.
        folder = "C:\\日本 ソフト\\表 NVX"
        self.put_product(folder)
        self.install(folder)
        link = self.read_shortcut(code_page="cp932")
        self.assertEqual(link["target"], folder + "\\NVX.exe")
        self.assertEqual(link["work_folder"], folder)
        self.assert_types_point_at(self.machine.registry(), folder)


class Faults(SetUpCase):
    folder = "C:\\NVX"

    def setUp(self):
        self.put_product(self.folder)
        self.delete_log(self.folder)

    def failure_line(self, lines):
        return next(line for line in lines if "Create shortcut " in line)

    def test_a_missing_registry_editor_is_logged(self):
        windows = self.machine.prefix / "drive_c" / "windows"
        programs = [windows / "regedit.exe", windows / "system32" / "regedit.exe"]
        saved = [(program, program.read_bytes()) for program in programs if program.exists()]
        self.assertTrue(saved)
        for program, _ in saved:
            program.unlink()  # the template has another link to the file
        lines = self.install(self.folder)
        for program, contents in saved:
            program.write_bytes(contents)
        self.assertEqual(
            output_of(lines, "regedit"),
            ["  -2 Output:", "  -2   The program could not be started."],
        )
        self.assertFalse(self.exists(self.folder + SCRIPT))

    def test_without_a_script_the_registry_editor_is_not_started(self):
        self.write(self.folder + SCRIPT + "\\in the way.txt")
        code, lines, warnings = self.diagnose(self.folder, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        shutil.rmtree(self.machine.path(self.folder + SCRIPT))
        self.assert_no_failure_logged(lines)
        self.assertEqual(warnings, ["Unable to create " + self.folder + SCRIPT] * 2)
        self.assertFalse(any("Command:regedit" in line for line in lines))

    def test_an_old_script_is_not_imported(self):
        self.write(
            self.folder + SCRIPT,
            b'REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\Planted]\n"a"="b"\n',
        ).chmod(0o444)
        self.install(self.folder)
        self.assertFalse(self.exists(self.folder + SCRIPT))
        registry = self.machine.registry()
        self.assertEqual(keys_below(registry, "HKEY_CURRENT_USER\\Software\\Planted"), [])

    def test_without_a_desktop_folder_there_is_no_shortcut(self):
        desktop = self.machine.path(DESKTOP)
        desktop.rename(desktop.with_name("Gone"))
        self.write("C:" + LINK_NAME, b"not ours")
        lines = self.install(self.folder) + self.uninstall(self.folder)
        desktop.with_name("Gone").rename(desktop)
        self.assertIn("   0 Desktop=", lines)
        self.assertIn("   1 The shared desktop folder was not found; no shortcut was created", lines)
        self.assertEqual(self.machine.path("C:" + LINK_NAME).read_bytes(), b"not ours")

    def test_a_shortcut_path_of_over_260_characters_is_reported(self):
        desktop = "C:\\" + "\\".join([f"a long desktop folder {i}" for i in range(10)])
        self.assertTrue(len(desktop) < 260 < len(desktop + LINK_NAME), len(desktop))
        self.machine.path(desktop).mkdir(parents=True)
        self.machine.set_value(SHELL_FOLDERS, "Common Desktop", desktop)
        lines = self.install(self.folder)
        self.machine.set_value(SHELL_FOLDERS, "Common Desktop", DESKTOP)
        self.assertIn("   0 Desktop=" + desktop, lines)
        self.assertIn("   1 This text is too long for a shortcut: " + desktop + LINK_NAME, lines)
        self.assertIn("-2147024690 Create shortcut " + desktop + LINK_NAME + " Failed", lines)
        self.assertEqual(list(self.machine.path(desktop).iterdir()), [])

    def test_a_shortcut_that_cannot_be_written_is_logged_with_the_shells_result(self):
        link = self.machine.path(SHORTCUT)
        link.unlink(missing_ok=True)
        link.mkdir()
        lines = self.install(self.folder)
        link.rmdir()
        self.assertIn("   1 Unable to remove " + SHORTCUT, lines)
        self.assertRegex(self.failure_line(lines), r"^-\d+ Create shortcut .* Failed$")

    def test_a_run_continues_when_a_key_cannot_be_written(self):
        # A link to a missing key can be neither opened nor created.
        self.machine.stop()
        registry = self.machine.prefix / "system.reg"
        saved = registry.read_bytes()
        registry.write_bytes(
            saved
            + b"\n[Software\\\\Velmora\\\\NVX] 1700000000\n#link\n"
            + b'"SymbolicLinkValue"=str(6):"\\\\REGISTRY\\\\Machine\\\\Nowhere\\\\Missing"\n'
        )
        code, lines, warnings = self.diagnose(self.folder, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        self.machine.stop()
        registry.write_bytes(saved)
        self.assert_no_failure_logged(lines)
        self.assertEqual(len(warnings), 7, warnings)
        self.assertEqual(warnings[0], "The registry refuses the value CurrentVersion of " + PRODUCT_KEY)
        self.assertIn("   0 Running NVX 3D-ViewerConfig.", lines)

    def test_a_shortcut_to_a_program_that_is_gone_is_removed(self):
        self.install(self.folder)
        self.machine.path(self.folder + "\\NVX.exe").unlink()
        self.assertTrue(self.exists(SHORTCUT))
        self.uninstall(self.folder)
        self.assertFalse(self.exists(SHORTCUT))

    def test_a_run_continues_without_the_viewer_and_the_icons(self):
        shutil.rmtree(self.machine.path(self.folder + "\\NVX Viewer"))
        for icon in TYPES.values():
            self.machine.path(self.folder + "\\" + icon).unlink()
        lines = self.install(self.folder)
        self.assertEqual(
            output_of(lines, self.folder + "\\NVX Viewer\\NVXViewerConfig.exe"),
            ["  -2 Output:", "  -2   The program could not be started."],
        )


if __name__ == "__main__":
    unittest.main()
