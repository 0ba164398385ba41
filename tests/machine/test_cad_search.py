"""The real program searches the registry of a real machine for CAD systems."""

import unittest
from pathlib import Path

from machine_case import MachineCase
from winemachine import INSTALL_DIR

CASES = Path(__file__).resolve().parents[1] / "cad" / "cases"


class CadSearch(MachineCase):
    def search_lines(self, case, *tokens):
        """The lines that a run logs about the search, with the registry of a case in tests/cad."""
        self.machine.import_script((CASES / case / "machine.reg").read_text(encoding="utf-8"))
        self.put_product()
        self.machine.path(INSTALL_DIR + "\\NVXConfig.log").unlink(missing_ok=True)
        code, lines = self.configure(INSTALL_DIR, *tokens)
        self.assertEqual(code, 0)
        start = lines.index("   0 Searching for CAD Packages")
        end = lines.index("   0 Finished searching for CAD Packages")
        self.assertLess(end, next(i for i, line in enumerate(lines) if "0 Beginning " in line))
        return lines[start + 1 : end]

    def expected(self, case):
        log = (CASES / case / "log.txt").read_text(encoding="utf-8")
        return ["   0 " + line for line in log.splitlines()]

    def test_1_a_machine_without_a_cad_system(self):
        found = self.search_lines("no_cad_system", "-I", "-S", "-Len-US")
        self.assertEqual(found, self.expected("no_cad_system"))

    def test_2_a_machine_with_every_cad_system(self):
        expected = self.expected("every_cad_system")
        self.assertEqual(self.search_lines("every_cad_system", "-I", "-S", "-Len-US"), expected)
        self.assertEqual(self.search_lines("every_cad_system", "-U", "-S", "-Len-US"), expected)

    def test_3_stopping_services_does_not_search(self):
        self.put_product()
        self.machine.path(INSTALL_DIR + "\\NVXConfig.log").unlink(missing_ok=True)
        code, lines = self.configure(INSTALL_DIR, "-ST")
        self.assertEqual(code, 0)
        self.assertIn("   0 CheckForRunningOstrade: silent=off terminate=off", lines)
        self.assertNotIn("   0 Searching for CAD Packages", lines)


if __name__ == "__main__":
    unittest.main()
