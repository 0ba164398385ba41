"""The reader of the scenarios rejects what it does not understand, and compares logs."""

import tempfile
import unittest
from pathlib import Path

from scenario import ScenarioError, log_difference, read_scenario

HEADER = "Windows Registry Editor Version 5.00\n"
GOOD = {"runs.txt": "-I -S\n", "log.txt": "...\n"}


class ScenarioReader(unittest.TestCase):
    def read(self, **changes):
        """Reads a valid scenario with changed files; "_" in a name stands for "." or "-"."""
        with tempfile.TemporaryDirectory() as folder:
            files = dict(GOOD)
            for name, text in changes.items():
                stem, _, suffix = name.rpartition("_")
                files[stem.replace("_", "-") + "." + suffix] = text
            for name, text in files.items():
                if text is not None:
                    (Path(folder) / name).write_text(text, encoding="utf-8")
            return read_scenario(folder)

    def test_a_wrong_file_or_line_is_rejected(self):
        cases = {
            "no runs.txt": dict(runs_txt=None),
            "no log.txt": dict(log_txt=None),
            "no run in runs.txt": dict(runs_txt="\n# nothing\n"),
            "a run without options": dict(runs_txt="install\n"),
            "a file that no line names": dict(file_after_txt="file C:\\a\n"),
            "an unknown word": dict(files_after_txt="fil C:\\a.txt\n"),
            "a word of files-after.txt": dict(files_before_txt="nothing C:\\a.txt\n"),
            "a path without a drive": dict(files_after_txt="nothing a.txt\n"),
            "a path that ends in a backslash": dict(files_after_txt="nothing C:\\a\\\n"),
            "a missing file of contents": dict(files_after_txt="file C:\\a.txt < a.bin\n"),
            "contents for a folder": dict(files_before_txt="folder C:\\a = b\n"),
            "a file without contents": dict(files_before_txt="file C:\\a\n"),
            '"only" without names': dict(files_after_txt="only C:\\a\n"),
            "an unknown word between runs": dict(runs_txt="-I\n+ fil C:\\a = b\n"),
            "an unknown end of a process": dict(processes_txt="C:\\2017\\NVX.exe ends\n"),
            "a process that is not the product's": dict(processes_txt="C:\\xtop.exe is ended\n"),
            "no locale": dict(locale_txt="japanese\n"),
            "an unknown root of the registry": dict(
                registry_after_reg=HEADER + "[HKEY_CLASSES_ROOT\\.nvz]\n"
            ),
            "a value without a key": dict(registry_after_reg=HEADER + '"a"="b"\n'),
            "a value without quotes": dict(registry_after_reg=HEADER + "[HKEY_CURRENT_USER\\A]\na=b\n"),
            "a script without a header": dict(registry_before_reg="[HKEY_CURRENT_USER\\A]\n"),
            "expectations without a header": dict(registry_after_reg="[HKEY_CURRENT_USER\\A]\n"),
        }
        for name, changes in cases.items():
            with self.subTest(name), self.assertRaises(ScenarioError):
                self.read(**changes)

    def test_an_error_names_the_line(self):
        with self.assertRaisesRegex(ScenarioError, "files-after.txt:2: "):
            self.read(files_after_txt="folder C:\\a\nfil C:\\b\n")

    def test_every_kind_of_line_is_read(self):
        scenario = self.read(
            runs_txt="product C:\\A B\n-I -S\n+ file C:\\a b = c = d\nC:\\else where> -U -S\n",
            files_before_txt="file C:\\x.txt =\nheld C:\\x.txt\n",
            files_after_txt="only C:\\a b = x, y z\nfile C:\\x like C:\\y\nfile C:\\z < with.bin\n",
            with_bin="bytes",
            processes_txt="C:\\2017\\NVX.exe runs on\n",
            registry_after_reg=HEADER + '[HKEY_CURRENT_USER\\A]\n"b"="c\\\\d"\n@=dword:01\n"e"=-\n'
            "[-HKEY_CURRENT_USER\\B]\n",
        )
        self.assertEqual(scenario.install_dir, "C:\\A B")
        first, between, second = scenario.steps
        self.assertEqual((first.tokens, first.folder), (["-I", "-S"], None))
        self.assertEqual((between.path, between.contents), ("C:\\a b", b"c = d"))
        self.assertEqual((second.tokens, second.folder), (["-U", "-S"], "C:\\else where"))
        self.assertEqual([line.contents for line in scenario.before], [b"", None])
        self.assertEqual(scenario.after[0].names, ("x", "y z"))
        self.assertEqual(scenario.after[1].like, "C:\\y")
        self.assertEqual(scenario.after[2].contents, b"bytes")
        self.assertEqual([p.is_ended for p in scenario.processes], [False])
        self.assertEqual(
            [(e.name, e.text, e.exists) for e in scenario.registry],
            [
                (None, None, True),
                ("b", "c\\d", True),
                ("", "dword:01", True),
                ("e", None, False),
                (None, None, False),
            ],
        )


class LogDifference(unittest.TestCase):
    def test_logs_as_expected_have_no_difference(self):
        for expected, lines in (
            ("a b", "a b"),
            ("...", ""),
            ("... b", "a b"),
            ("a ...", "a b c"),
            ("a ... c", "a b c"),
            ("a ... b c", "a b x b c"),
            ("... a b ... b ...", "a x a b b"),
            ("a<...>z", "abcz"),
            ("... a ... a", "a x a"),
            ("... a", "a x a"),
        ):
            with self.subTest(expected):
                self.assertIsNone(log_difference(expected.split(), lines.split()))

    def test_other_logs_have_a_difference(self):
        for expected, lines in (
            ("a b", "a"),
            ("a b", "a b c"),
            ("b", "a b"),
            ("a ... c", "a b c d"),
            ("a b ...", "a x b"),
            ("... a b ...", "a x b"),
            ("... b ... a ...", "a b"),
            ("... a ... a", "x a"),
            ("a<...>z", "abc"),
            ("", "a"),
            ("a.c", "abc"),
            ("a.c<...>", "abcd"),
        ):
            with self.subTest(expected):
                self.assertIsNotNone(log_difference(expected.split(), lines.split()))

    def test_a_difference_shows_the_expected_and_the_logged_lines(self):
        shown = "\n".join(log_difference(["...", "a", "b", "..."], ["x", "a", "c", "d"]))
        self.assertIn("as expected a", shown)
        self.assertIn("expected    b", shown)
        self.assertIn("log         c", shown)


if __name__ == "__main__":
    unittest.main()
