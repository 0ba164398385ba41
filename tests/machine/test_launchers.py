"""The launchers on a machine with all six CAD systems: installed, installed again and removed by the real
program, with real COM libraries registered by the system's own tool."""

import unittest

from machine_case import SCRIPTED_TOOL, MachineCase
from cadsystems import (
    COM_CLASSES,
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    FOREIGN_DIRS,
    FOREIGN_ENTRY,
    PROTK_2,
    PROTK_3,
    SPACE_CLAIM_ADDINS,
    TAMSEL_ADDINS,
    put_cad_systems,
)
from winemachine import INSTALL_DIR, value_of

LAUNCHERS = INSTALL_DIR + "\\Launchers"
MANIFEST = LAUNCHERS + "\\Tamsel\\NVX_2017.Addin"
ADDIN = SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\NVX_2017_SpaceClaim"


def creo_entry(release, install_dir=INSTALL_DIR, encoding="ascii"):
    return (
        "name NVX 2017\r\n"
        "startup DLL\r\n"
        "exec_file {0}\\Launchers\\ProEngineer-Wildfire\\Creo{1}\\NVX_2017_Creo{1}0.dll\r\n"
        "text_dir {0}\\Text\r\n"
        "revision 20\r\n"
        "end\r\n"
    ).format(install_dir, release).encode(encoding)


def nx_line(sub_folder, install_dir=INSTALL_DIR, encoding="ascii"):
    return ("\r\n%s\\Launchers\\UGNX%s\r\n" % (install_dir, sub_folder)).encode(encoding)


def manifest(install_dir=INSTALL_DIR):
    text = (
        '<?xml version="1.0" encoding="utf-16" standalone="no"?>\n'
        "<TamselAddIns>\n"
        '<AddIn Type="Application">\n'
        "<Name>NVX 2017</Name>\n"
        "<Assembly>%s\\Launchers\\Tamsel\\NVX_2017_Tamsel2017.dll</Assembly>\n"
        "<AddInId>D678F341-A94D-43BB-AD6F-8E0E9DABA31A</AddInId>\n"
        "<VendorId>Velmora, Inc.</VendorId>\n"
        "<FullClassName>Kelvane_2017.NvxApplication</FullClassName>\n"
        "</AddIn>\n"
        "</TamselAddIns>\n"
    ) % install_dir
    return text.encode("utf-8")[: len(text)]


def target_manifest(year):
    return TAMSEL_ADDINS + "\\%d\\NVX_2017.Addin" % year


def com_run(arguments, library):
    return ["Command:regsvr32 %s %s" % (arguments, library), "WorkDir:" + INSTALL_DIR, "Output:"]


def tamsel_removal(year):
    users = "C:\\Users\\All Users\\Velmora\\Tamsel\\Addins\\%d\\NVX_2017.Addin" % year
    paths = (target_manifest(year), users, MANIFEST)
    return ["Tamsel Addin"] + ["Removing:" + path for path in paths]


def tamsel_install(year):
    removal = tamsel_removal(year)
    users = removal[2][len("Removing:") :]
    copies = ["Copying:%s to: %s" % (MANIFEST, to) for to in (target_manifest(year), users)]
    return removal + copies


def expected_log(is_install):
    """The lines of the six launchers, without their levels, which are all 0."""
    word = "Install" if is_install else "UnInstall"
    lines = []

    def com(title, library):
        path = LAUNCHERS + library
        lines.append(title)
        lines.extend(com_run("-u -s", path))
        if is_install:
            lines.extend(com_run("-s", path))

    com("Configure Brevant", "\\Brevant\\NVX_2017_Brevant.dll")
    for release in (1, 2, 3):
        lines.append("%s Creo Remove:%s\\NVX_2017_Creo%d0.dll" % (word, INSTALL_DIR, release))
    lines.append("ProE Creo")
    for path in (PROTK_2, PROTK_3):
        lines += ["Removing Ostrade from:" + path, "Writing " + path]
    if is_install:
        lines += ["Writing " + PROTK_2, "Writing " + PROTK_3]
    com("SolidWorks", "\\SolidWorks\\NVX_2017_SolidWorks.dll")
    lines.append("UGNX")
    if is_install:
        for path in (CUSTOM_DIRS_10, CUSTOM_DIRS_11):
            lines += ["Copying %s to %s.bak" % (path, path), "Checking" + path, "Creating" + path]
    tamsel = tamsel_install if is_install else tamsel_removal
    lines += ["Tamsel"] + tamsel(2016) + tamsel(2017)
    lines += ["Tamsel Architecture"] + tamsel(2017)
    lines += ["Tamsel MEP"] + tamsel(2018)
    lines.append("SpaceClaim")
    if is_install:
        source = LAUNCHERS + "\\SpaceClaim\\NVX_2017_SpaceClaim"
        lines += ["Copying:%s.%s to: %s.%s" % (source, s, ADDIN, s) for s in ("dll", "xml")]
    return lines


class LauncherCase(MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        put_cad_systems(cls.machine)

    def run_with(self, option, install_dir=INSTALL_DIR):
        """One run of the program; answers the lines of its log."""
        self.machine.path(install_dir + "\\NVXConfig.log").unlink(missing_ok=True)
        code, lines = self.configure(install_dir, option, "-S", "-Len-US")
        self.assert_complete(code, lines)
        return lines

    def read(self, path):
        return self.machine.path(path).read_bytes()

    def reset_files(self):
        """Makes the shared files those of a machine without the product."""
        for path in (PROTK_2, PROTK_3, CUSTOM_DIRS_10, CUSTOM_DIRS_11):
            file = self.machine.path(path)
            file.chmod(0o644)
            file.write_bytes(FOREIGN_DIRS if "custom_dirs" in path else FOREIGN_ENTRY)
            file.with_name(file.name + ".bak").unlink(missing_ok=True)


class AllSystems(LauncherCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        case.put_product()
        case.write(INSTALL_DIR + "\\NVX_2017_Creo20.dll", b"an old copy")
        cls.logs, cls.files, cls.bytes, cls.registries = {}, {}, {}, {}
        for name, option in (("first", "-I"), ("second", "-I"), ("removal", "-U")):
            cls.logs[name] = case.run_with(option)
            cls.files[name] = cls.machine.files()
            cls.bytes[name] = {
                path: case.read(path) for path in cls.files[name] if not path.endswith("\\")
            }
            cls.registries[name] = cls.machine.registry()

    def launcher_lines(self, run):
        lines = self.logs[run]
        expected_count = len(expected_log(run != "removal"))
        start = lines.index("   0 Configure Brevant")
        return lines[start : start + expected_count]

    def test_an_install_is_logged_line_for_line(self):
        expected = ["   0 " + line for line in expected_log(is_install=True)]
        self.assertEqual(self.launcher_lines("first"), expected)

    def test_a_removal_is_logged_line_for_line(self):
        expected = ["   0 " + line for line in expected_log(is_install=False)]
        self.assertEqual(self.launcher_lines("removal"), expected)

    def test_creo_finds_the_launcher_before_the_others(self):
        for run in ("first", "second"):
            self.assertEqual(self.bytes[run][PROTK_2], creo_entry(2) + FOREIGN_ENTRY)
            self.assertEqual(self.bytes[run][PROTK_3], creo_entry(3) + FOREIGN_ENTRY)
        for path in (PROTK_2, PROTK_3):
            self.assertEqual(self.bytes["removal"][path], FOREIGN_ENTRY)

    def test_what_the_entry_names_is_there(self):
        for line in creo_entry(3).decode().splitlines():
            word, _, path = line.partition(" ")
            if word == "exec_file":
                self.assertIn(path, self.files["first"])
            elif word == "text_dir":
                self.assertTrue(self.machine.path(path).is_dir())

    def test_an_old_copy_of_a_launcher_is_swept(self):
        self.assertNotIn(INSTALL_DIR + "\\NVX_2017_Creo20.dll", self.files["first"])

    def test_com_libraries_are_registered_and_unregistered(self):
        for system, key in COM_CLASSES.items():
            library = LAUNCHERS + "\\%s\\NVX_2017_%s.dll" % (system, system)
            for run in ("first", "second"):
                registry = self.registries[run]
                self.assertEqual(value_of(registry, key, ""), "NVX 2017 for " + system)
                server = value_of(registry, key + "\\InprocServer32", "")
                self.assertEqual(server.lower(), library.lower())
            for left in self.registries["removal"]:
                self.assertFalse(left.lower().startswith(key.lower()), left)

    def test_nx_finds_the_launcher_of_its_version(self):
        for run in ("first", "second"):
            self.assertEqual(self.bytes[run][CUSTOM_DIRS_10], FOREIGN_DIRS + nx_line("\\NX10"))
            self.assertEqual(self.bytes[run][CUSTOM_DIRS_11], FOREIGN_DIRS + nx_line(""))
        for path in (CUSTOM_DIRS_10, CUSTOM_DIRS_11):
            for run in ("first", "second", "removal"):
                self.assertEqual(self.bytes[run][path + ".bak"], FOREIGN_DIRS)
            self.assertEqual(self.bytes["removal"][path], FOREIGN_DIRS + b"\r\n")

    def test_each_year_of_tamsel_has_its_manifest(self):
        for run in ("first", "second"):
            for year in (2016, 2017, 2018):
                self.assertEqual(self.bytes[run][target_manifest(year)], manifest())
            self.assertEqual(self.bytes[run][MANIFEST], manifest())
        left = [path for path in self.files["removal"] if path.endswith("NVX_2017.Addin")]
        self.assertEqual(left, [])

    def test_space_claim_has_the_addin(self):
        for suffix in (".dll", ".xml"):
            source = LAUNCHERS + "\\SpaceClaim\\NVX_2017_SpaceClaim" + suffix
            for run in ("first", "second"):
                self.assertEqual(self.files[run][ADDIN + suffix], self.files[run][source])
            self.assertNotIn(ADDIN + suffix, self.files["removal"])
        self.assertIn(SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\", self.files["removal"])

    def test_a_second_install_changes_no_file_of_a_cad_system(self):
        def without_log(files):
            return {path: found for path, found in files.items() if not path.endswith(".log")}

        self.assertEqual(without_log(self.files["first"]), without_log(self.files["second"]))


class FilesOfOthers(LauncherCase):
    def setUp(self):
        self.reset_files()
        self.put_product()

    def assert_alone(self, path):
        """No other file is left beside it that we have made on the way."""
        folder = self.machine.path(path).parent
        names = [f.name for f in folder.iterdir() if not f.name.endswith(".bak")]
        self.assertEqual(names, [path.rsplit("\\", 1)[1]])

    def test_a_file_that_another_program_holds_is_passed_over(self):
        with self.held(PROTK_2), self.held(CUSTOM_DIRS_10, "C:\\held too"):
            lines = self.run_with("-I")
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)
        self.assertEqual(self.read(PROTK_3), creo_entry(3) + FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_11), FOREIGN_DIRS + nx_line(""))
        self.assertIn("   1 Unable to read " + PROTK_2, lines)
        self.assertIn("   1 Unable to read " + CUSTOM_DIRS_10, lines)
        self.assert_alone(PROTK_2)
        self.assert_alone(CUSTOM_DIRS_10)

    def test_a_file_that_another_program_holds_survives_the_removal(self):
        self.run_with("-I")
        with self.held(PROTK_2), self.held(CUSTOM_DIRS_10, "C:\\held too"):
            self.run_with("-U")
        self.assertEqual(self.read(PROTK_2), creo_entry(2) + FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS + nx_line("\\NX10"))
        self.run_with("-U")
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)

    def test_a_write_protected_file_is_passed_over(self):
        for path in (PROTK_2, CUSTOM_DIRS_10):
            self.machine.path(path).chmod(0o444)
        lines = self.run_with("-I")
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)
        self.assertIn("   1 Unable to write " + PROTK_2, lines)
        self.assertIn("   1 Unable to write " + CUSTOM_DIRS_10, lines)
        self.assertEqual(self.machine.path(PROTK_2).stat().st_mode & 0o777, 0o444)
        self.assert_alone(PROTK_2)
        self.assert_alone(CUSTOM_DIRS_10)

    def test_a_marker_of_an_older_release_keeps_creo_as_it_is(self):
        contents = FOREIGN_ENTRY + b"text_dir $OSTRADE2017\\Text\r\nend\r\n"
        self.machine.path(PROTK_2).write_bytes(contents)
        lines = self.run_with("-I")
        self.assertEqual(self.read(PROTK_2), contents)
        self.assertIn("   0 Ostrade 2017 already exists, do nothing", lines)

    def test_missing_launchers_stop_nothing(self):
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


class PlantedPrograms(LauncherCase):
    def test_libraries_are_registered_by_the_systems_own_tool(self):
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


class InstallFolders(LauncherCase):
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
                "   1 The system's code page cannot write the name of the install folder, the launcher "
                "is not entered into " + path,
                lines,
            )
        self.run_with("-U", folder)
        self.assertEqual(self.read(PROTK_2), FOREIGN_ENTRY)
        self.assertEqual(self.read(CUSTOM_DIRS_10), FOREIGN_DIRS)


class JapaneseMachine(LauncherCase):
    locale = "ja_JP.UTF-8"

    def setUp(self):
        self.reset_files()

    def test_a_japanese_name(self):
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

    def test_a_byte_that_begins_a_character_does_not_hide_the_line_behind_it(self):
        folder = "C:\\日本\\NVX"
        self.put_product(folder)
        contents = FOREIGN_DIRS + b"C:\\\x83"
        self.machine.path(CUSTOM_DIRS_11).write_bytes(contents)
        for _ in range(2):
            self.run_with("-I", folder)
            self.assertEqual(self.read(CUSTOM_DIRS_11), contents + nx_line("", folder, "cp932"))


if __name__ == "__main__":
    unittest.main()
