"""docs/administrators.md names the options that the program reads and the lines that it logs."""

import re
import unittest

from documents import ROOT, code_of, rows_of, section_of, text_of
from languages import read_languages

DOCUMENT = text_of("docs/administrators.md")
FOLDERS = ("Config/source", "Utility/source", "source/localization")
_LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')


def options_of_reader():
    """The beginnings of options that the command line's reader tells apart."""
    reader = text_of("Config/source/cfg_utilities/command_line.cpp")
    return {text for text in re.findall(r'"(-\w+)"_L1', reader)}


def texts_of_sources():
    """The texts in the sources, one that goes over several lines in one piece."""
    texts = []
    for folder in FOLDERS:
        for path in (ROOT / folder).rglob("*.cpp"):
            source = re.sub(r'"\s*\n\s*"', "", path.read_text(encoding="utf-8"))
            texts += [text.replace("\\\\", "\\") for text in _LITERAL.findall(source)]
    return texts


def is_said(phrase, texts):
    """Whether every part of a phrase stands in a text; words in capitals stand for what is filled in."""
    parts = [part.strip() for part in re.split(r"\b[A-Z]{4,}\b", phrase) if part.strip()]
    return bool(parts) and all(any(part in text for text in texts) for part in parts)


class Administrators(unittest.TestCase):
    def test_the_options_are_those_that_are_read(self):
        rows = rows_of(section_of(DOCUMENT, "Running it"))
        shown = {m.group() for row in rows for m in [re.match(r"-[A-Z]+", row[0].strip("`"))] if m}
        self.assertEqual(shown, options_of_reader())
        self.assertEqual(len(shown), 6)

    def test_what_is_said_of_a_word_is_tried(self):
        section = section_of(DOCUMENT, "Running it")
        prose = "\n".join(line for line in section.splitlines() if not line.startswith("|"))
        words = [word for word in code_of(prose) if word[0] in "-/"]
        self.assertGreater(len(words), 5)
        tried = text_of("tests/engine/tst_command_line.cpp")
        rows = set(" ".join(re.findall(r'row\("[^"]*", "((?:[^"\\]|\\.)*)"', tried)).split())
        self.assertEqual([word for word in words if word not in rows], [])

    def test_every_language_is_named(self):
        option = next(row[1] for row in rows_of(section_of(DOCUMENT, "Running it")) if row[0] == "`-Lxx-XX`")
        named = re.findall(r"[a-z]{2}-[A-Z]{2}", option.partition(";")[0])
        self.assertEqual(named, sorted(row["locale"] for row in read_languages()[1:]))

    def test_every_line_that_is_quoted_is_logged_or_a_warning(self):
        texts = texts_of_sources()
        self.assertGreater(len(texts), 500)
        quoted = []
        for heading in ("Reading a failure", "The log", "Failures that are not in the log"):
            for row in rows_of(section_of(DOCUMENT, heading)):
                quoted += code_of(row[0])
        self.assertGreater(len(quoted), 10)
        self.assertEqual([phrase for phrase in quoted if not is_said(phrase, texts)], [])


class TheChecks(unittest.TestCase):
    def test_a_phrase_is_looked_for_in_parts(self):
        texts = ["Installation error: ", " does not exist.", "%1 was not terminated"]
        self.assertTrue(is_said("Installation error: PATH does not exist.", texts))
        self.assertTrue(is_said("NAME was not terminated", texts))
        self.assertFalse(is_said("Installation fault: PATH does not exist.", texts))
        self.assertFalse(is_said("PATH", texts))


if __name__ == "__main__":
    unittest.main()
