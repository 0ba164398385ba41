"""What the MSI declares, read from its tables: also what Wine's Windows Installer does not do."""

import re
import shutil
import subprocess
import tempfile
import unittest
import uuid
import zipfile
from pathlib import Path

from installer_case import SET_UP, is_tool
from machine_case import BUILD
from msi_package import files_of, is_met, rows_of
from test_msi import PACKAGE, make_older

# Kinds of actions: run as the system at its turn, instead of as the user at once; when something is undone.
AS_SYSTEM, WHEN_UNDONE = 0x400 + 0x800, 0x100
RUNS_PROGRAM = 2
ASSIGNS_PROPERTY = "51"
# Of a feature: the user interface does not let anybody leave it out.
UI_DISALLOW_ABSENT = 16
ICON = Path(__file__).resolve().parents[2] / "resource" / "images" / "program.ico"
SEVEN_ZIP_LICENCE = ["licences/7-Zip/LGPL-2.1", "licences/7-Zip/copyright"]

# What the Windows Installer sets, by what it does.
FIRST = {"Privileged": "1"}
UPGRADE = {**FIRST, "WIX_UPGRADE_DETECTED": "{...}"}
REPAIR = {**FIRST, "Installed": "00:00:00"}
WITHOUT_TOOLS = {**REPAIR, "REMOVE": "DeveloperTools"}
REMOVAL = {**REPAIR, "REMOVE": "ALL"}
REMOVAL_BY_UPGRADE = {**REMOVAL, "UPGRADINGPRODUCTCODE": "{...}"}


def tasks(properties, undoing=False):
    """The tasks that run, or that would be undone after a failure, in their order."""
    actions = {row["Action"]: row for row in rows_of(PACKAGE, "CustomAction")}
    sequence = sorted(rows_of(PACKAGE, "InstallExecuteSequence"), key=lambda row: int(row["Sequence"] or 0))
    return [
        row["Action"]
        for row in sequence
        if row["Action"] in actions
        and int(actions[row["Action"]]["Type"]) & 0x3F == RUNS_PROGRAM
        and bool(int(actions[row["Action"]]["Type"]) & WHEN_UNDONE) == undoing
        and is_met(row["Condition"], properties)
    ]


class Conditions(unittest.TestCase):
    def test_the_evaluator_knows_the_operators_and_their_order(self):
        properties = {"A": "1", "REMOVE": "all"}
        for condition, expected in (
            ("", True),
            ("A", True),
            ("NOT A", False),
            ("B", False),
            ("NOT A OR A", True),
            ("B AND A OR A", True),
            ("B AND (A OR A)", False),
            ('REMOVE="ALL"', False),
            ('REMOVE~="ALL" AND NOT B', True),
        ):
            with self.subTest(condition):
                self.assertIs(is_met(condition, properties), expected)
        for condition in ("A <> 1", "(A", "A B"):
            with self.subTest(condition), self.assertRaises(ValueError):
                is_met(condition, properties)

    def test_a_removal_during_an_upgrade_leaves_the_configuration_and_the_users_materials(self):
        self.assertEqual(tasks(REMOVAL_BY_UPGRADE), ["StopServer"])
        self.assertEqual(tasks(REMOVAL), ["CheckMachine", "StopServer", "Unconfigure", "Unregister"])

    def test_an_upgrade_configures_the_product_as_a_repair_does(self):
        self.assertEqual(tasks(UPGRADE), ["CheckMachine", "Reserve", "Register", "Configure"])
        self.assertEqual(tasks(REPAIR), ["CheckMachine", "StopServer", "Reserve", "Register", "Configure"])

    def test_a_removal_of_the_tools_alone_configures_the_product_again(self):
        self.assertEqual(tasks(WITHOUT_TOOLS), tasks(REPAIR))

    def test_a_first_installation_that_fails_is_undone(self):
        self.assertEqual(tasks(FIRST), ["CheckMachine", "Reserve", "Register", "ConfigureFirst"])
        self.assertEqual(tasks(FIRST, undoing=True), ["UndoRegister", "UndoConfigure"])

    def test_a_repair_or_an_upgrade_that_fails_configures_the_older_product_again(self):
        self.assertEqual(tasks(REPAIR, undoing=True), ["UndoStopServer"])
        self.assertEqual(tasks(REMOVAL_BY_UPGRADE, undoing=True), ["UndoStopServer"])

    def test_the_package_is_refused_without_rights_over_the_set_ups_product_and_over_a_newer_version(self):
        conditions = [row["Condition"] for row in rows_of(PACKAGE, "LaunchCondition")]
        for properties, refused in (
            (FIRST, False),
            (UPGRADE, False),
            ({}, True),
            ({**FIRST, "NVXSETUP": "C:\\NVX\\uninstall.exe"}, True),
            ({**REPAIR, "NVXSETUP": "C:\\NVX\\uninstall.exe"}, False),
            ({**FIRST, "WIX_DOWNGRADE_DETECTED": "{...}"}, True),
        ):
            with self.subTest(properties):
                met = [is_met(condition, properties) for condition in conditions]
                self.assertEqual(not all(met), refused)

    def test_the_entry_in_the_list_of_programs_has_an_icon_of_the_package(self):
        properties = {row["Property"]: row["Value"] for row in rows_of(PACKAGE, "Property")}
        extract = ["msiinfo", "extract", PACKAGE, "Icon." + properties["ARPPRODUCTICON"]]
        icon = subprocess.run(extract, check=True, capture_output=True).stdout
        self.assertEqual(icon, ICON.read_bytes())

    def test_what_changes_the_machine_runs_as_the_system(self):
        for row in rows_of(PACKAGE, "CustomAction"):
            kind = int(row["Type"])
            if kind & 0x3F == RUNS_PROGRAM and row["Action"] != "CheckMachine":
                self.assertEqual(kind & AS_SYSTEM, AS_SYSTEM, row["Action"])

    def test_the_install_folder_is_the_administrators_before_the_first_file_is_in_it(self):
        places = {row["Action"]: int(row["Sequence"]) for row in rows_of(PACKAGE, "InstallExecuteSequence")}
        targets = {row["Action"]: row["Target"] for row in rows_of(PACKAGE, "CustomAction")}
        self.assertEqual(targets["Reserve"], 'reserve "[INSTALLDIR]."')
        self.assertLess(places["InstallInitialize"], places["Reserve"])
        self.assertLess(places["Reserve"], places["InstallFiles"])


class Features(unittest.TestCase):
    def assigned(self, properties):
        """The properties after the actions that set one."""
        actions = {row["Action"]: row for row in rows_of(PACKAGE, "CustomAction")}
        result = dict(properties)
        for row in sorted(rows_of(PACKAGE, "InstallExecuteSequence"), key=lambda row: int(row["Sequence"])):
            action = actions.get(row["Action"], {"Type": "0"})
            if action["Type"] == ASSIGNS_PROPERTY and is_met(row["Condition"], result):
                result[action["Source"]] = action["Target"]
        return result

    def test_the_product_is_installed_whichever_feature_is_named(self):
        for named, features in (
            ("DeveloperTools", "Product,DeveloperTools"),
            ("Product", "Product"),
            ("Product,DeveloperTools", "Product,DeveloperTools"),
            ("ALL", "ALL"),
        ):
            for properties in (FIRST, UPGRADE):
                with self.subTest(named):
                    self.assertEqual(self.assigned({**properties, "ADDLOCAL": named})["ADDLOCAL"], features)
        self.assertNotIn("ADDLOCAL", self.assigned(FIRST))

    def test_the_tools_are_left_out_unless_they_are_named(self):
        properties = {row["Property"]: row["Value"] for row in rows_of(PACKAGE, "Property")}
        level = properties.get("INSTALLLEVEL", "1")
        for row in rows_of(PACKAGE, "Feature"):
            self.assertEqual(int(row["Level"]) <= int(level), row["Feature"] == "Product", row["Feature"])

    def test_the_product_is_not_removed_without_its_tools(self):
        self.assertEqual(self.assigned({**REPAIR, "REMOVE": "Product"})["REMOVE"], "ALL")
        self.assertEqual(self.assigned(WITHOUT_TOOLS)["REMOVE"], "DeveloperTools")
        features = {row["Feature"]: row for row in rows_of(PACKAGE, "Feature")}
        self.assertEqual(features["DeveloperTools"]["Feature_Parent"], "Product")
        self.assertTrue(int(features["Product"]["Attributes"]) & UI_DISALLOW_ABSENT)

    def test_features_are_chosen_before_the_installer_reads_the_choice(self):
        places = {row["Action"]: int(row["Sequence"]) for row in rows_of(PACKAGE, "InstallExecuteSequence")}
        for action in ("AddProduct", "RemoveTools"):
            self.assertLess(places[action], places["CostInitialize"])


class Identifiers(unittest.TestCase):
    """The Windows Installer repairs and replaces by these; a changed one leaves files behind."""

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        make_older(cls.folder / "older.msi")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def components(self, package):
        return {row["Component"]: row["ComponentId"] for row in rows_of(package, "Component")}

    def properties(self, package):
        return {row["Property"]: row["Value"] for row in rows_of(package, "Property")}

    def test_every_component_has_an_identifier_of_its_own(self):
        identifiers = list(self.components(PACKAGE).values())
        self.assertGreater(len(identifiers), 100)
        self.assertEqual(len(set(identifiers)), len(identifiers))
        for text in identifiers:
            self.assertEqual(f"{{{uuid.UUID(text)}}}".upper(), text)

    def test_the_components_are_the_same_in_every_version(self):
        older, newer = self.components(self.folder / "older.msi"), self.components(PACKAGE)
        self.assertGreater(len(older), 100)
        self.assertEqual({name: newer.get(name) for name in older}, older)
        older, newer = self.properties(self.folder / "older.msi"), self.properties(PACKAGE)
        self.assertEqual(older["UpgradeCode"], newer["UpgradeCode"])
        self.assertNotEqual(older["ProductCode"], newer["ProductCode"])

    def test_the_components_are_the_same_in_every_build(self):
        components = self.components(PACKAGE).values()
        for name, identifier in (
            ("NVXConfig.exe", "{42685D39-803B-5171-A83F-114B0C8A1101}"),
            ("NVXServer.exe", "{B424A8B2-4B9B-5F9D-8713-AC8287D0B119}"),
            ("Qt6Core.dll", "{B4BFEF22-3064-5119-BC1B-D7A0B8B71C6E}"),
            ("UpdateErrorTable.exe", "{02E7A36E-83D7-5F90-8607-D12EEA416E6A}"),
            ("the note in the registry", "{DB112145-9F27-53E0-96B5-90D4FCD3DBAF}"),
        ):
            with self.subTest(name):
                self.assertIn(identifier, components)


class Files(unittest.TestCase):
    """The ZIP, the set-up program and the MSI are packed from one list of files."""

    def test_the_set_up_program_and_the_msi_hold_the_same_files(self):
        listing = subprocess.run(
            ["7zz", "l", "-slt", SET_UP], check=True, capture_output=True
        ).stdout.decode()
        unpacked = re.findall(
            r"^Path = \$_\d+_/setup in progress/new/(.*)\nSize = (\d+)", listing, re.MULTILINE
        )
        self.assertEqual({path: int(size) for path, size in unpacked}, files_of(PACKAGE))

    def test_the_msi_holds_the_files_of_the_zip_and_of_the_sample_product(self):
        (path,) = PACKAGE.parent.glob("*.zip")
        with zipfile.ZipFile(path) as archive:
            files = {item.filename.partition("/")[2]: item.file_size for item in archive.infolist()}
        files = {name: size for name, size in files.items() if name and not name.endswith("/")}
        self.assertIn("NVXConfig.exe", files)
        for folder in ("product", "translators"):
            place = BUILD / "sample" / folder
            found = [path for path in place.rglob("*") if path.is_file()]
            self.assertTrue(found)
            files |= {path.relative_to(place).as_posix(): path.stat().st_size for path in found}
        packed = files_of(PACKAGE)
        # The licence of 7-Zip belongs to the sample product.
        self.assertEqual(sorted(set(packed) - set(files)), SEVEN_ZIP_LICENCE)
        self.assertEqual(sorted(set(files) - set(packed)), [])

    def test_the_developers_tools_are_the_files_of_their_feature(self):
        feature = {row["Component_"]: row["Feature_"] for row in rows_of(PACKAGE, "FeatureComponents")}
        for row in rows_of(PACKAGE, "File"):
            tool = is_tool(Path(row["FileName"]))
            self.assertEqual(feature[row["Component_"]] == "DeveloperTools", tool, row["FileName"])


if __name__ == "__main__":
    unittest.main()
