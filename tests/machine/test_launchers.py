"""The launchers on a machine with all six CAD systems: installed, installed again and removed by the real
program, with COM libraries that the system's regsvr32 registers."""

import unittest

from launcher_case import ADDIN, LAUNCHERS, MANIFEST, LauncherCase
from launcher_case import creo_entry, manifest, nx_line, target_manifest
from cadsystems import (
    COM_CLASSES,
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    FOREIGN_DIRS,
    FOREIGN_ENTRY,
    PROTK_2,
    PROTK_3,
    SPACE_CLAIM_ADDINS,
)
from winemachine import INSTALL_DIR, value_of


def com_run(arguments, library):
    return [f"Command:regsvr32 {arguments} {library}", "WorkDir:" + INSTALL_DIR, "Output:"]


def tamsel_removal(year):
    users = f"C:\\Users\\All Users\\Velmora\\Tamsel\\Addins\\{year}\\NVX_2017.Addin"
    paths = (target_manifest(year), users, MANIFEST)
    return ["Tamsel Addin"] + ["Removing:" + path for path in paths]


def tamsel_install(year):
    removal = tamsel_removal(year)
    users = removal[2][len("Removing:") :]
    copies = [f"Copying:{MANIFEST} to: {to}" for to in (target_manifest(year), users)]
    return removal + copies


def expected_log(is_install):
    """The log's lines for the six launchers without their levels, which are all 0."""
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
        lines.append(f"{word} Creo Remove:{INSTALL_DIR}\\NVX_2017_Creo{release}0.dll")
    lines.append("ProE Creo")
    for path in (PROTK_2, PROTK_3):
        lines += ["Removing Ostrade from:" + path, "Writing " + path]
    if is_install:
        lines += ["Writing " + PROTK_2, "Writing " + PROTK_3]
    com("SolidWorks", "\\SolidWorks\\NVX_2017_SolidWorks.dll")
    lines.append("UGNX")
    if is_install:
        for path in (CUSTOM_DIRS_10, CUSTOM_DIRS_11):
            lines += [f"Copying {path} to {path}.bak", "Checking" + path, "Creating" + path]
    tamsel = tamsel_install if is_install else tamsel_removal
    lines += ["Tamsel"] + tamsel(2016) + tamsel(2017)
    lines += ["Tamsel Architecture"] + tamsel(2017)
    lines += ["Tamsel MEP"] + tamsel(2018)
    lines.append("SpaceClaim")
    if is_install:
        source = LAUNCHERS + "\\SpaceClaim\\NVX_2017_SpaceClaim"
        lines += [f"Copying:{source}.{s} to: {ADDIN}.{s}" for s in ("dll", "xml")]
    return lines


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
            cls.bytes[name] = {path: case.read(path) for path in cls.files[name] if not path.endswith("\\")}
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

    def test_creo_lists_the_launcher_first(self):
        for run in ("first", "second"):
            self.assertEqual(self.bytes[run][PROTK_2], creo_entry(2) + FOREIGN_ENTRY)
            self.assertEqual(self.bytes[run][PROTK_3], creo_entry(3) + FOREIGN_ENTRY)
        for path in (PROTK_2, PROTK_3):
            self.assertEqual(self.bytes["removal"][path], FOREIGN_ENTRY)

    def test_the_paths_in_creos_entry_exist(self):
        for line in creo_entry(3).decode().splitlines():
            word, _, path = line.partition(" ")
            if word == "exec_file":
                self.assertIn(path, self.files["first"])
            elif word == "text_dir":
                self.assertTrue(self.machine.path(path).is_dir())

    def test_an_old_copy_of_a_launcher_is_deleted(self):
        self.assertNotIn(INSTALL_DIR + "\\NVX_2017_Creo20.dll", self.files["first"])

    def test_com_libraries_are_registered_and_unregistered(self):
        for system, key in COM_CLASSES.items():
            library = LAUNCHERS + f"\\{system}\\NVX_2017_{system}.dll"
            for run in ("first", "second"):
                registry = self.registries[run]
                self.assertEqual(value_of(registry, key, ""), "NVX 2017 for " + system)
                server = value_of(registry, key + "\\InprocServer32", "")
                self.assertEqual(server.lower(), library.lower())
            for left in self.registries["removal"]:
                self.assertFalse(left.lower().startswith(key.lower()), left)

    def test_nx_lists_the_launcher_of_its_version(self):
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

    def test_spaceclaim_has_the_add_in(self):
        for suffix in (".dll", ".xml"):
            source = LAUNCHERS + "\\SpaceClaim\\NVX_2017_SpaceClaim" + suffix
            for run in ("first", "second"):
                self.assertEqual(self.files[run][ADDIN + suffix], self.files[run][source])
            self.assertNotIn(ADDIN + suffix, self.files["removal"])
        self.assertIn(SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\", self.files["removal"])

    def test_a_second_install_changes_no_file_of_a_cad_system(self):
        # The logs grow, and a shortcut holds the time when its program was last accessed.
        def lasting(files):
            changing = (".log", ".lnk")
            return {path: found for path, found in files.items() if not path.endswith(changing)}

        self.assertEqual(lasting(self.files["first"]), lasting(self.files["second"]))


if __name__ == "__main__":
    unittest.main()
