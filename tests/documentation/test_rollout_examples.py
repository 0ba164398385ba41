"""The examples for management tools in docs/administrators.md name the package that is built, and the winget
manifest follows the rules of its schema 1.6.0."""

import re
import sys
import unittest

from documents import ROOT, blocks_of, text_of

sys.path.insert(0, str(ROOT / "installer"))

from make_msi import guid  # noqa: E402
from make_winget import NOWHERE, manifests  # noqa: E402

DOCUMENT = text_of("docs/administrators.md")
VERSION = re.search(r"project\(\s*\w+\s+VERSION ([\d.]+)", text_of("CMakeLists.txt")).group(1)
PACKAGE = f"NVX-2017-{VERSION}-x64.msi"
MANIFESTS = manifests(VERSION, PACKAGE, "0123456789abcdef" * 4, "https://downloads.velmora.example/nvx/")
CODE = "{" + guid("product " + VERSION) + "}"

_ANY = r".{1,512}"
_IDENTIFIER = r'[^.\s\\/:*?"<>|]{1,32}(\.[^.\s\\/:*?"<>|]{1,32}){1,7}'
_LOCALE = r"[a-zA-Z]{2,3}(-[a-zA-Z]{1,8})*"
_COMMON = {"PackageIdentifier": _IDENTIFIER, "PackageVersion": r"[^\\/:*?\"<>|]{1,128}"}
_COMMON["ManifestVersion"] = r"1\.6\.0"
# The fields of the three files that we use, and the form of their values; all others are refused.
REQUIRED = {
    "version": {**_COMMON, "ManifestType": "version", "DefaultLocale": _LOCALE},
    "defaultLocale": {
        **_COMMON,
        "ManifestType": "defaultLocale",
        "PackageLocale": _LOCALE,
        "Publisher": r".{2,256}",
        "PackageName": r".{2,256}",
        "License": r".{3,512}",
        "ShortDescription": r".{3,256}",
    },
    "installer": {
        **_COMMON,
        "ManifestType": "installer",
        "Installers/Architecture": "x86|x64|arm|arm64|neutral",
        "Installers/InstallerUrl": r"https://.{1,2000}",
        "Installers/InstallerSha256": "[A-Fa-f0-9]{64}",
        "InstallerType": "msix|msi|appx|exe|zip|inno|nullsoft|wix|burn|pwa|portable",
    },
}
OPTIONAL = {
    "Scope": "user|machine",
    "InstallModes": "interactive|silent|silentWithProgress",
    "InstallerSwitches/Custom": _ANY,
    "InstallerSwitches/InstallLocation": _ANY,
    "ExpectedReturnCodes/InstallerReturnCode": r"-?[1-9]\d{0,9}",
    "ExpectedReturnCodes/ReturnResponse": "packageInUse|installInProgress|fileInUse|contactSupport|custom",
    "UpgradeBehavior": "install|uninstallPrevious",
    "ElevationRequirement": "elevationRequired|elevationProhibited|elevatesSelf",
    "Installers/ProductCode": r".{1,255}",
}


def fields_of(manifest):
    """{path: value} of a file with one level of lists or objects; an item without a name has the path of its
    list."""
    fields, parent = {}, ""
    for line in manifest.splitlines():
        name, _, value = line.lstrip("- ").partition(": ")
        value = value.strip().strip("'\"") if value.startswith("'") else value.strip()
        if not line.startswith((" ", "-")):
            parent = name.rstrip(":")
        if line.endswith(":"):
            continue
        path = parent if not value or name == parent else f"{parent}/{name}"
        fields[path] = value or name
    return fields


def faults_of(manifest):
    """What the rules do not allow in a manifest."""
    fields = fields_of(manifest)
    required = REQUIRED.get(fields.get("ManifestType"))
    if not required:
        return ["ManifestType"]
    optional = OPTIONAL if fields["ManifestType"] == "installer" else {}
    missing = [name for name in required if name not in fields]
    rules = {**optional, **required}
    wrong = [name for name, value in fields.items() if not re.fullmatch(rules.get(name, r"(?!)"), value)]
    return missing + wrong


class RolloutExamples(unittest.TestCase):
    def test_every_example_names_the_product_code_of_the_package(self):
        codes = re.findall(r"\{[0-9A-F-]{36}\}", DOCUMENT)
        self.assertGreater(len(codes), 5)
        self.assertEqual(set(codes), {CODE})

    def test_every_example_names_the_package_of_this_version(self):
        packages = set(re.findall(r"NVX-2017-[\d.]+-x64\.msi", DOCUMENT))
        self.assertEqual(packages, {PACKAGE})

    def test_the_winget_manifest_follows_its_schema(self):
        kinds = set()
        for name, text in MANIFESTS.items():
            with self.subTest(name):
                self.assertEqual(faults_of(text), [])
                fields = fields_of(text)
                kinds.add(fields["ManifestType"])
                self.assertEqual(fields["PackageVersion"], VERSION)
                self.assertTrue(name.startswith(fields["PackageIdentifier"] + "."))
        self.assertEqual(kinds, set(REQUIRED))

    def test_the_document_shows_the_manifest_that_is_written_next_to_the_packages(self):
        shown = {block.name: block.text for block in blocks_of(DOCUMENT) if block.name.endswith(".yaml")}
        name = "Velmora.NVX2017.installer.yaml"
        self.assertEqual(shown, {name: manifests(VERSION, PACKAGE, "...")[name]})

    def test_the_winget_manifest_has_the_address_of_the_package_if_it_is_known(self):
        name = "Velmora.NVX2017.installer.yaml"
        address = fields_of(MANIFESTS[name])["Installers/InstallerUrl"]
        self.assertEqual(address, "https://downloads.velmora.example/nvx/" + PACKAGE)
        without = fields_of(manifests(VERSION, PACKAGE, "0" * 64)[name])["Installers/InstallerUrl"]
        self.assertTrue(without.startswith(f"{NOWHERE}/{PACKAGE} # to be replaced"), without)


class RolloutExamplesChecks(unittest.TestCase):
    MANIFEST = MANIFESTS["Velmora.NVX2017.installer.yaml"]

    def test_a_wrong_field_is_found(self):
        for right, wrong, fault in (
            ("x64", "x46", "Installers/Architecture"),
            ("Scope: machine", "Scope: all", "Scope"),
            ("https:", "file:", "Installers/InstallerUrl"),
            ("0123", "012g", "Installers/InstallerSha256"),
            ("- silent", "- quiet", "InstallModes"),
            ("UpgradeBehavior", "UpgradeBehaviour", "UpgradeBehaviour"),
            ("PackageVersion: 17.2.0\n", "", "PackageVersion"),
        ):
            with self.subTest(fault):
                self.assertIn(right, self.MANIFEST)
                self.assertEqual(faults_of(self.MANIFEST.replace(right, wrong, 1)), [fault])


if __name__ == "__main__":
    unittest.main()
