"""The packages themselves: what they contain, and that the same sources give the same packages."""

import hashlib
import json
import os
import re
import shutil
import subprocess
import tempfile
import unittest
import zipfile
from pathlib import Path

from installer_case import SET_UP
from machine_case import BUILD

PACKAGES = BUILD / "package"
INSTALLER = Path(__file__).resolve().parents[2] / "installer"


def run(*command, **environment):
    done = subprocess.run(
        command, env=os.environ | environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True
    )
    if done.returncode != 0:
        raise AssertionError(f"{command} exited with {done.returncode}: {done.stdout[-2000:]}")
    return done.stdout


class Contents(unittest.TestCase):
    def test_the_set_up_is_made_by_a_compiler_with_the_fixes_for_elevation(self):
        version = re.search(rb"Nullsoft Install System v(\d+)\.(\d+)", SET_UP.read_bytes())
        self.assertGreaterEqual(tuple(map(int, version.groups())), (3, 12))

    def test_the_zip_holds_the_programs_with_all_they_need_and_no_sample_files(self):
        (path,) = PACKAGES.glob("*.zip")
        with zipfile.ZipFile(path) as archive:
            self.assertIsNone(archive.testzip())
            names = [name for name in archive.namelist() if not name.endswith("/")]
        installed = BUILD / "installed"
        wanted = [str(file.relative_to(installed)) for file in installed.rglob("*") if file.is_file()]
        self.assertIn("NVXConfig.exe", wanted)
        self.assertEqual(sorted(names), sorted(path.stem + "/" + name for name in wanted))

    def test_the_msi_has_the_product_code_of_the_administrators_page(self):
        page = (INSTALLER.parent / "docs" / "administrators.md").read_text(encoding="utf-8")
        (package,) = PACKAGES.glob("*.msi")
        properties = run("msiinfo", "export", str(package), "Property")
        (code,) = re.findall(r"^ProductCode\t(\S+)", properties, re.MULTILINE)
        self.assertEqual(set(re.findall(r"\{[0-9A-F-]{36}\}", page)), {code})
        (upgrade,) = re.findall(r"^UpgradeCode\t(\S+)", properties, re.MULTILINE)
        self.assertEqual(upgrade, "{6A5E52A4-3F0C-5D3E-9F43-0E2B4F9F7A17}")

    def test_the_readme_lists_the_packages(self):
        readme = (INSTALLER.parent / "README.md").read_text(encoding="utf-8")
        listed = re.findall(r"^\| `(NVX-2017-\S+)` \|", readme, re.MULTILINE)
        packed = [path.name for path in PACKAGES.iterdir() if path.suffix in (".exe", ".msi", ".zip")]
        self.assertEqual(sorted(name.replace("VERSION", "17.2.0") for name in listed), sorted(packed))

    def test_the_winget_manifest_has_the_hash_and_the_product_code_of_the_msi(self):
        (package,) = PACKAGES.glob("*.msi")
        manifest = (PACKAGES / "winget" / "Velmora.NVX2017.installer.yaml").read_text(encoding="utf-8")
        (code,) = re.findall(r"^ProductCode\t(\S+)", run("msiinfo", "export", str(package), "Property"), re.M)
        digest = hashlib.sha256(package.read_bytes()).hexdigest()
        self.assertIn(f"  InstallerSha256: {digest.upper()}\n  ProductCode: '{code}'\n", manifest)
        checksum = package.with_name(package.name + ".sha256").read_text(encoding="utf-8")
        self.assertEqual(checksum.split()[0], digest)

    def test_the_bill_of_materials_names_the_libraries_with_versions_and_licences(self):
        bill = json.loads((PACKAGES / "NVX-2017-17.2.0.cdx.json").read_text())
        components = {component["name"]: component for component in bill["components"]}
        for name in ("Qt", "LibPNG", "PCRE2", "HarfBuzz-NG", "GCC", "mingw-w64", "7-Zip"):
            self.assertTrue(components[name]["version"], name)
            self.assertTrue(components[name]["licenses"], name)
        built_from = (Path(os.environ["NVX_CACHE"]) / "qt-windows" / "built-from").read_text().strip()
        self.assertTrue(built_from.endswith("Qt " + components["Qt"]["version"]))
        for file in ("product/NVXConfig.exe", "product/Qt6Core.dll", "tools/MessageTableUtility.exe"):
            self.assertRegex(components[file]["hashes"][0]["content"], "^[0-9a-f]{64}$")


class Again(unittest.TestCase):
    """Packed a second time, from files with other times."""

    def setUp(self):
        (self.staged,) = (PACKAGES / "_CPack_Packages").glob("*/External/NVX-2017-setup")
        # The checkout may have another commit by now.
        self.time = str(int((self.staged / "product" / "NVXConfig.exe").stat().st_mtime))
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def test_the_zip_is_the_same(self):
        config = str(BUILD / "CPackConfig.cmake")
        run("cpack", "-G", "ZIP", "--config", config, "-B", str(self.folder), SOURCE_DATE_EPOCH=self.time)
        (first,) = PACKAGES.glob("*.zip")
        self.assertEqual((self.folder / first.name).read_bytes(), first.read_bytes())

    def test_the_msi_is_the_same(self):
        again = self.folder / "staged"
        for name in ("product", "tools", "translators"):
            shutil.copytree(self.staged / name, again / name, copy_function=shutil.copy)
        (self.folder / "out").mkdir()
        (first,) = PACKAGES.glob("*.msi")
        run(
            "cmake",
            f"-DCPACK_TEMPORARY_DIRECTORY={again}",
            f"-DCPACK_TOPLEVEL_DIRECTORY={self.folder / 'out'}",
            f"-DMSI={self.folder / first.name}",
            f"-DNVX_SETUP_TASK={BUILD / 'installer' / 'NVXSetupTask.exe'}",
            f"-DNVX_INSTALLER_PICTURES={INSTALLER.parent / 'resource' / 'images'}",
            "-DCPACK_PACKAGE_VERSION=17.2.0",
            *("-P", str(INSTALLER / "make_msi.cmake")),
            SOURCE_DATE_EPOCH=self.time,
        )
        self.assertEqual((self.folder / first.name).read_bytes(), first.read_bytes())


class Signed(unittest.TestCase):
    """Packages of a few files, packed by the same scripts, with a certificate of the test's own."""

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp()) / "with blanks"
        cls.addClassCleanup(shutil.rmtree, cls.folder.parent)
        cls.folder.mkdir()
        cls.key, cls.certificate = cls.folder.parent / "key.pem", cls.folder.parent / "certificate.pem"
        subject = ("-subj", "/CN=test", "-addext", "extendedKeyUsage=codeSigning")
        run("openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", *subject,
            "-keyout", str(cls.key), "-out", str(cls.certificate))  # fmt: skip
        cls.signed = cls.pack("signed")

    @classmethod
    def pack(cls, name, except_for="none"):
        """Packs into a folder of this name; the signing command fails for files of such a name."""
        staged, packed = cls.folder / name / "staged", cls.folder / name / "packed"
        for place, file in (
            ("product", BUILD / "installed" / "NVXConfig.exe"),
            ("product", BUILD / "installed" / "libwinpthread-1.dll"),
            ("tools", BUILD / "installed" / "UpdateErrorTable.exe"),
            ("translators", INSTALLER / "licences.txt.in"),
        ):
            (staged / place).mkdir(parents=True, exist_ok=True)
            shutil.copy(file, staged / place)
        packed.mkdir()
        script = cls.folder.parent / "sign"
        sign = f'osslsigncode sign -certs {cls.certificate} -key {cls.key} -in "$1" -out "$1.signed"'
        script.write_text(
            f'#!/bin/sh\nset -e\ncase "$1" in *{except_for}) exit 1 ;; esac\n{sign}\nmv "$1.signed" "$1"\n'
            f'echo "$1" >>"{cls.folder.parent / name}"\n'
        )
        script.chmod(0o755)
        variables = {
            "CPACK_TEMPORARY_DIRECTORY": staged,
            "CPACK_TOPLEVEL_DIRECTORY": packed,
            "CPACK_PACKAGE_NAME": "NVX",
            "CPACK_PACKAGE_VERSION": "17.2.0",
            "NVX_MSI": "NVX.msi",
            "NVX_MAKENSIS": Path(os.environ["NVX_CACHE"]) / "nsis" / "makensis",
            "NVX_SETUP_TASK": BUILD / "installer" / "NVXSetupTask.exe",
            "NVX_INSTALLER_PICTURES": INSTALLER.parent / "resource" / "images",
        }
        options = [f"-D{variable}={value}" for variable, value in variables.items()]
        for part in ("prepare_files.cmake", "make_installer.cmake"):
            run("cmake", *options, "-P", str(INSTALLER / part), NVX_SIGN=str(script), SOURCE_DATE_EPOCH="1")
        return packed

    def assert_signed(self, file):
        output = run("osslsigncode", "verify", "-CAfile", str(self.certificate), "-in", str(file))
        self.assertIn("Signature verification: ok", output)

    def test_the_programs_and_libraries_are_signed(self):
        staged = self.signed.parent / "staged"
        files = [path for path in staged.rglob("*") if path.suffix in (".exe", ".dll")]
        self.assertEqual(len(files), 3)
        for file in files:
            self.assert_signed(file)

    def test_the_set_up_program_its_uninstaller_and_its_task_are_signed(self):
        (set_up,) = self.signed.glob("*-setup.exe")
        self.assert_signed(set_up)
        unpacked = self.signed.parent / "unpacked"
        run("7zz", "x", f"-o{unpacked}", str(set_up))
        (task,) = unpacked.rglob("NVXSetupTask.exe")
        self.assert_signed(task)
        # The compiler has the uninstaller signed in a temporary file before it packs it.
        names = (self.folder.parent / "signed").read_text().splitlines()
        self.assertEqual(len([name for name in names if not name.startswith(str(self.folder))]), 1)

    def test_the_msi_and_its_task_are_signed(self):
        (package,) = self.signed.glob("*.msi")
        self.assert_signed(package)
        task = self.signed.parent / "task.exe"
        with task.open("wb") as file:
            subprocess.run(["msiinfo", "extract", package, "Binary.Task"], check=True, stdout=file)
        self.assert_signed(task)

    def test_a_command_that_fails_ends_the_packing(self):
        for number, name in enumerate(("UpdateErrorTable.exe", "NVXSetupTask.exe", "-setup.exe", ".msi")):
            with self.subTest(name), self.assertRaises(AssertionError):
                self.pack(f"failed {number}", name)


if __name__ == "__main__":
    unittest.main()
