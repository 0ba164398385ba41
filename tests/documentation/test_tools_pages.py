"""The texts, files and time-outs on the tools' pages are those in the sources."""

import re
import unittest

from documents import rows_of, text_of


def literals_of(call, source):
    """The string literals between the parentheses or braces after a name in C++ code."""
    found = re.search(re.escape(call) + r"\s*[({](.*?)[)}];", source, re.DOTALL)
    return re.findall(r'"([^"]*)"', found.group(1)) if found else []


def seconds_of(name, source):
    """A constant of std::chrono in seconds."""
    number, unit = re.search(rf"std::chrono::\w+ {name} = (\d+)(ms|s|min);", source).groups()
    return int(number) * {"ms": 0.001, "s": 1, "min": 60}[unit]


class ToolsPages(unittest.TestCase):
    def test_the_columns_of_the_message_window_are_listed(self):
        source = text_of("source/message_table_utility/error_message_table_utility.cpp")
        headings = literals_of("texts.headings = QStringList", source)
        self.assertEqual(headings, ["Process", "Context", "Tag", "State"])
        self.assertIn("lists the key and the state of every message", text_of("README.md"))

    def test_the_keys_of_the_message_window_are_listed(self):
        source = text_of("source/message_table_utility/message_table_editing.cpp")
        keys = re.findall(r'QKeySequence\(u"([^"]+)"_s\)', source)
        self.assertGreaterEqual(len(keys), 5)
        rows = rows_of(text_of("docs/message-table-utility.md"))
        listed = [key for row in rows for key in re.split(", | in ", row[0])]
        self.assertEqual([key for key in keys if key not in listed and key + " or" not in listed], [])

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

    def test_seconds_are_read(self):
        code = "constexpr std::chrono::milliseconds a = 2min;\nconstexpr std::chrono::milliseconds b = 100ms;"
        self.assertEqual(seconds_of("a", code), 120)
        self.assertEqual(seconds_of("b", code), 0.1)


if __name__ == "__main__":
    unittest.main()
