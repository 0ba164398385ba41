"""The texts, files and time-outs on the tools' pages are those in the sources."""

import re
import unittest

from documents import ROOT, blocks_of, prose_of, rows_of, text_of


def literals_of(call, source):
    """The string literals between the parentheses or braces after a name in C++ code."""
    found = re.search(re.escape(call) + r"\s*[({](.*?)[)}];", source, re.DOTALL)
    return re.findall(r'"([^"]*)"', found.group(1)) if found else []


def seconds_of(name, source):
    """A constant of std::chrono in seconds."""
    number, unit = re.search(rf"std::chrono::\w+ {name} = (\d+)(ms|s|min);", source).groups()
    return int(number) * {"ms": 0.001, "s": 1, "min": 60}[unit]


def window_sources(folder):
    """The sources of a window and of what all windows share."""
    names = [*ROOT.glob(f"source/{folder}/*.cpp"), *ROOT.glob("source/window/*.cpp")]
    return "\n".join(text_of(name) for name in names)


def keys_of(source):
    """The shortcuts in a source, such as "Ctrl+N"."""
    standard = {"Undo": "Ctrl+Z", "Find": "Ctrl+F", "Copy": "Ctrl+C"}
    keys = set(re.findall(r'QKeySequence\(u"([^"]+)"_s\)', source))
    return keys | {standard[name] for name in re.findall(r"(?<!matches\()QKeySequence::(\w+)", source)}


def actions_of(page):
    """The parts of the actions in a page, which are in italics: "Edit" and "Find" for "*Edit > Find*"."""
    italics = re.findall(r"(?<![*\w])\*([A-Z][^*\n]*)\*(?!\*)", prose_of(page))
    return [part for text in italics for part in text.split(" > ")]


class ToolsPages(unittest.TestCase):
    def test_the_columns_of_the_message_window_are_listed(self):
        source = text_of("source/message_table_utility/error_message_table_utility.cpp")
        headings = literals_of("texts.headings = QStringList", source)
        self.assertEqual(headings, ["Process", "Context", "Tag", "State"])
        self.assertIn("lists the key and the state of every message", text_of("README.md"))

    def test_the_keys_of_the_message_window_are_those_in_the_code(self):
        page = text_of("docs/message-table-utility.md")
        keys = set(re.findall(r"\b(?:(?:Ctrl|Shift|Alt)\+)+\w+|\bF\d+\b", page))
        self.assertEqual(keys, keys_of(window_sources("message_table_utility")))

    def test_the_actions_on_the_pages_of_the_windows_exist(self):
        for folder, page in (
            ("message_table_utility", "docs/message-table-utility.md"),
            ("material_name_utility", "docs/material-name-utility.md"),
        ):
            with self.subTest(page=page):
                texts = {
                    text.replace("&", "") for text in re.findall(r'\btr\("([^"]+)"', window_sources(folder))
                }
                named = actions_of(text_of(page))
                self.assertGreaterEqual(len(named), 2)
                self.assertEqual([text for text in named if text not in texts], [])

    def test_the_options_on_the_page_of_the_check_exist(self):
        page = text_of("docs/message-table-check.md")
        (help_text,) = [block.text for block in blocks_of(page) if "--help" in block.text]
        options = set(re.findall(r"--[a-z][\w-]*", help_text))
        self.assertGreaterEqual(len(options), 9)
        self.assertEqual(set(re.findall(r"--[a-z][\w-]*", prose_of(page))) - options, set())
        rules = set(re.findall(r"^  ([\w-]+) +", help_text.split("Rules:")[1], re.MULTILINE))
        commands = "\n".join(block.text for block in blocks_of(page) if block.what == "run")
        named = re.findall(r"--(?:only|without|allow) ([\w,-]+)", commands.replace(help_text, ""))
        self.assertEqual({rule for names in named for rule in names.split(",")} - rules, set())

    def test_the_compiled_files_are_listed(self):
        source = text_of("source/localization/util_localization_tool.cpp")
        compiled = set(re.findall(r'"(\w+)\.qm"', source))
        collected = set(re.findall(r'"(\w+)\.ts"', text_of("source/localization/translation_job.cpp")))
        page = " ".join(text_of("docs/localization.md").split())
        said = re.search(r"it compiles (.*?); the names of materials, `(\w+)\.ts`, are not compiled", page)
        self.assertEqual(set(re.findall(r"`(\w+)\.ts`", said.group(1))), compiled)
        self.assertEqual({said.group(2)}, collected - compiled)

    def test_the_time_outs_of_a_service_are_those_in_the_code(self):
        control = text_of("Config/source/service/service_controller.cpp")
        server = text_of("Config/source/service/server_service.cpp")
        stop = seconds_of("stopTimeout", control)
        poll = seconds_of("waitLimit", server)
        rows = [row[0] for row in rows_of(text_of("docs/architecture.md"))]
        (decision,) = [row for row in rows if row.startswith("Stopping a service")]
        times = [int(number) for number in re.findall(r"(\d+) seconds", decision)]
        self.assertEqual(times, [stop, poll, stop + poll, poll])


class ToolsPagesChecks(unittest.TestCase):
    def test_literals_are_found(self):
        self.assertEqual(literals_of("a = List", 'a = List{tr("B"), tr("C")};'), ["B", "C"])
        self.assertEqual(literals_of("a = List", 'b = List{tr("B")};'), [])

    def test_keys_are_found(self):
        self.assertEqual(
            keys_of('f(QKeySequence(u"F2"_s)); g(QKeySequence::Undo); matches(QKeySequence::Redo)'),
            {"F2", "Ctrl+Z"},
        )

    def test_actions_are_found(self):
        self.assertEqual(actions_of("**Bold** *Edit > Find...* and *Open*"), ["Edit", "Find...", "Open"])

    def test_seconds_are_read(self):
        code = "constexpr std::chrono::milliseconds a = 2min;\nconstexpr std::chrono::milliseconds b = 100ms;"
        self.assertEqual(seconds_of("a", code), 120)
        self.assertEqual(seconds_of("b", code), 0.1)


if __name__ == "__main__":
    unittest.main()
