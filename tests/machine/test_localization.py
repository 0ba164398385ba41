"""The localisation tool on a Windows machine translates sources into every language. It runs the host's
lupdate and lrelease, which work on the same files."""

import unittest

from machine_case import BUILD, MachineCase

from languages import read_languages
from localization_share import ROOT, SHARE, Translators

LOCALES = [row["locale"] for row in read_languages()[1:]]


class Localization(MachineCase):
    def translate(self, *worker_options):
        install_dir = self.put_product("C:\\Program Files\\NVX " + self._testMethodName)
        with Translators(self.machine, BUILD, install_dir, *worker_options):
            code, lines = self.configure(install_dir, "-T")
        self.assertEqual(code, 0)
        self.assertEqual(lines[-1], "   0 Localization script finishes cool")
        return lines

    def test_every_language_is_compiled_from_the_translators_files(self):
        lines = self.translate()
        cool = [line for line in lines if line.endswith(" cool")]
        self.assertEqual(
            cool,
            [
                "   0 tr1 finishes cool",
                "   0 tr2 finishes cool",
                "   0 mat finishes cool",
                "   0 job file cool",
                "   0 cbuild finishes cool",
                "   0 release finishes cool",
                "   0 Ribbon2D copied cool",
                "   0 Localization script finishes cool",
            ],
        )
        self.assertLess(lines.index("   0 job file cool"), lines.index("   0 job done"))
        for locale in LOCALES:
            for name in ("client.qm", "nvxconfig.qm", "matprop.ts", "Ribbon2D.xmal"):
                path = self.machine.path(f"{ROOT}\\Locale\\{locale}\\{name}")
                self.assertTrue(path.is_file(), path)
        german = self.machine.path(ROOT + "\\Locale\\de-DE\\client.ts").read_text(encoding="utf-8")
        self.assertIn("[deu] Flow study", german)
        compiled = self.machine.path(ROOT + "\\Locale\\de-DE\\client.qm").read_bytes()
        self.assertIn("[deu] Flow study".encode("utf-16-be"), compiled)

    def test_a_damaged_file_of_the_translators_is_rejected(self):
        lines = self.translate("--damage", "jpn/client.ts")
        damaged = SHARE + "\\pTrans\\NVX360\\jpn\\client.ts"
        self.assertIn("   1 download fails " + damaged, lines)


if __name__ == "__main__":
    unittest.main()
