"""The set-up program names the CAD systems that must not run, the same ones as the configuration."""

import re
import unittest
from itertools import pairwise
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def guarded_systems() -> list[str]:
    """The names of the systems in the order of the configuration's question, without blanks."""
    text = (ROOT / "Config/source/cad/cad_systems.cpp").read_text(encoding="utf-8")
    program = r'GuardedProgram{"[^"]+"_L1, "([^"]+)"_L1, (\d+)}'
    # A system with a launcher goes by its label, the last word of it: "Pro/ENGINEER Creo".
    launcher = (
        r'QT_TRANSLATE_NOOP\("FeaturePage", "(?:[^" ]+ )?([^" ]+)"\),\s*\.gridRow = \d+,\s*\.program = '
        + program
    )
    labels = {name: label for label, name, _ in re.findall(launcher, text)}
    places = {int(place): labels.get(name, name) for name, place in re.findall(program, text)}
    return [places[place] for place in sorted(places)]


def messages() -> dict[str, list[str]]:
    """{language: the set-up program's messages}"""
    text = (ROOT / "installer/messages.nsh").read_text(encoding="utf-8")
    blocks = re.findall(r"^!insertmacro Messages (\w+) \\\n((?:    .*\n)+)", text, re.MULTILINE)
    return {language: re.findall(r'"(.*)"', lines) for language, lines in blocks}


def listed(systems: list[str], message: str) -> bool:
    """Whether a message lists these systems, in this order and no others."""
    message = message.replace(" ", "")
    places = [message.find(name) for name in systems]
    if -1 in places:
        return False
    ends = [place + len(name) for place, name in zip(places, systems)]
    # Between two names there is a comma or the word for "and".
    return all(0 < start - end <= 3 for end, (_, start) in zip(ends, pairwise(places)))


class SetUpMessages(unittest.TestCase):
    def test_every_language_lists_the_systems_of_the_configurations_question(self):
        systems = guarded_systems()
        self.assertEqual(systems[:2], ["Creo", "SolidWorks"])
        self.assertGreater(len(messages()), 8)
        for language, texts in messages().items():
            with self.subTest(language):
                self.assertTrue(listed(systems, texts[1]), texts[1])

    def test_english_lists_no_other_system(self):
        found = re.search("Close (.*) first", messages()["ENGLISH"][1])
        self.assertEqual(
            re.split(", | and ", found.group(1).replace("Solid Edge", "SolidEdge")), guarded_systems()
        )

    def test_a_system_that_is_missing_added_or_in_another_place_is_found(self):
        message = "Close Creo, NX and Solid Edge first."
        self.assertTrue(listed(["Creo", "NX", "SolidEdge"], message))
        for systems in (["Creo", "NX", "Tamsel"], ["Creo", "SolidEdge"], ["NX", "Creo", "SolidEdge"]):
            self.assertFalse(listed(systems, message), systems)


if __name__ == "__main__":
    unittest.main()
