"""docs/administrators.md lists the options that the program reads, and quotes lines that it logs."""

import re
import unittest

from documents import ROOT, code_of, rows_of, section_of, text_of
from languages import read_languages

DOCUMENT = text_of("docs/administrators.md")
FOLDERS = ("Config/source", "Utility/source", "source/localization")
_LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')


def options_of_reader():
    """The prefixes of options in the reader of the command line."""
    reader = text_of("Config/source/cfg_utilities/command_line.cpp")
    return {text for text in re.findall(r'"(-\w+)"_L1', reader)}


def texts_of_sources():
    """The string literals in the sources; consecutive literals are joined."""
    texts = []
    for folder in FOLDERS:
        for path in (ROOT / folder).rglob("*.cpp"):
            source = re.sub(r'"\s*\n\s*"', "", path.read_text(encoding="utf-8"))
            texts += [text.replace("\\\\", "\\") for text in _LITERAL.findall(source)]
    return texts


def is_in_sources(phrase, texts):
    """Whether each part of a phrase is in one of the texts; words in capitals are place markers."""
    parts = [part.strip() for part in re.split(r"\b[A-Z]{4,}\b", phrase) if part.strip()]
    return bool(parts) and all(any(part in text for text in texts) for part in parts)


class Administrators(unittest.TestCase):
    def test_the_listed_options_are_those_that_the_program_reads(self):
        rows = rows_of(section_of(DOCUMENT, "Running it"))
        shown = {m.group() for row in rows for m in [re.match(r"-[A-Z]+", row[0].strip("`"))] if m}
        self.assertEqual(shown, options_of_reader())
        self.assertEqual(len(shown), 6)

    def test_every_word_of_the_command_line_that_is_explained_has_a_test(self):
        section = section_of(DOCUMENT, "Running it")
        prose = "\n".join(line for line in section.splitlines() if not line.startswith("|"))
        words = [word for word in code_of(prose) if word[0] in "-/"]
        self.assertGreater(len(words), 5)
        tried = text_of("tests/engine/tst_command_line.cpp")
        rows = set(" ".join(re.findall(r'row\("[^"]*", "((?:[^"\\]|\\.)*)"', tried)).split())
        self.assertEqual([word for word in words if word not in rows], [])

    def test_every_language_is_listed(self):
        option = next(row[1] for row in rows_of(section_of(DOCUMENT, "Running it")) if row[0] == "`-Lxx-XX`")
        named = re.findall(r"[a-z]{2}-[A-Z]{2}", option.partition(";")[0])
        self.assertEqual(named, sorted(row["locale"] for row in read_languages()[1:]))

    def test_every_quoted_line_is_in_the_sources(self):
        texts = texts_of_sources()
        self.assertGreater(len(texts), 500)
        quoted = []
        for heading in ("Reading a failure", "The log", "Failures that are not in the log"):
            for row in rows_of(section_of(DOCUMENT, heading)):
                quoted += code_of(row[0])
        self.assertGreater(len(quoted), 10)
        self.assertEqual([phrase for phrase in quoted if not is_in_sources(phrase, texts)], [])


class AdministratorsChecks(unittest.TestCase):
    def test_a_phrase_is_searched_in_parts(self):
        texts = ["Installation error: ", " does not exist.", "%1 was not terminated"]
        self.assertTrue(is_in_sources("Installation error: PATH does not exist.", texts))
        self.assertTrue(is_in_sources("NAME was not terminated", texts))
        self.assertFalse(is_in_sources("Installation fault: PATH does not exist.", texts))
        self.assertFalse(is_in_sources("PATH", texts))


if __name__ == "__main__":
    unittest.main()
