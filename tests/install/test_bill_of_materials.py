"""The bill of materials of the Linux package: its libraries with their versions and licences."""

import subprocess
import tempfile
import unittest
from pathlib import Path

from make_sbom import licences_of, linux_components


class BillOfMaterials(unittest.TestCase):
    def test_a_copyright_file_names_its_licences_once_each(self):
        text = "License: LGPL-3 or GPL-2\n\nFiles: x\nLicense: Expat \n\nLicense: LGPL-3 or GPL-2\n  Text\n"
        self.assertEqual(licences_of(text, "a.txt"), ["Expat", "LGPL-3 or GPL-2"])

    def test_free_text_is_referred_to(self):
        self.assertEqual(licences_of("This License: is free text.", "a.txt"), ["see licences/a.txt"])

    def test_a_shipped_library_has_the_version_of_its_package_and_its_licences(self):
        with tempfile.TemporaryDirectory() as folder:
            licences = Path(folder) / "licences"
            licences.mkdir()
            text = Path("/usr/share/doc/libqt6core6/copyright").read_text(encoding="utf-8")
            (licences / "libqt6core6.txt").write_text(text, encoding="utf-8")
            (found,) = linux_components(Path(folder))
        query = ["dpkg-query", "-W", "-f", "${Version}", "libqt6core6"]
        version = subprocess.run(query, check=True, capture_output=True, text=True).stdout
        self.assertEqual((found["name"], found["version"]), ("libqt6core6", version))
        names = [entry["license"]["name"] for entry in found["licenses"]]
        self.assertTrue([name for name in names if "LGPL" in name], names)


if __name__ == "__main__":
    unittest.main()
