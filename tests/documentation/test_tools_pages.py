"""What the pages say of the tools' windows, files and waiting times is what their sources hold."""

import re
import unittest

from documents import rows_of, text_of


def literals_of(call, source):
    """The texts between the parentheses or braces after a name in C++ code."""
    found = re.search(re.escape(call) + r"\s*[({](.*?)[)}];", source, re.DOTALL)
    return re.findall(r'"([^"]*)"', found.group(1)) if found else []


def seconds_of(name, source):
    """A constant of std::chrono in seconds."""
    found = re.search(rf"std::chrono::(milli)?seconds {name}\{{(\d+)\}}", source)
    return int(found.group(2)) / (1000 if found.group(1) else 1)


class ToolsPages(unittest.TestCase):
    def test_the_window_on_messages_shows_no_texts(self):
        source = text_of("source/message_table_utility/error_message_table_utility.cpp")
        headings = literals_of("texts.headings = QStringList", source)
        self.assertEqual(headings, ["Process", "Context", "Tag", "State"])
        self.assertIn(
            "shows the key and the state of each message, not its texts", text_of("docs/developers-guide.md")
        )
        self.assertIn("lists the key and the state of every message", text_of("README.md"))

    def test_the_files_that_are_compiled_are_named(self):
        source = text_of("source/localization/util_localization_tool.cpp")
        compiled = set(re.findall(r'"(\w+)\.qm"', source))
        collected = set(re.findall(r'"(\w+)\.ts"', text_of("source/localization/translation_job.cpp")))
        page = " ".join(text_of("docs/localization.md").split())
        said = re.search(r"it compiles (.*?); the names of materials, `(\w+)\.ts`, are not compiled", page)
        self.assertEqual(set(re.findall(r"`(\w+)\.ts`", said.group(1))), compiled)
        self.assertEqual({said.group(2)}, collected - compiled)

    def test_the_waiting_times_of_a_service_are_those_of_the_code(self):
        control = text_of("Config/source/service/service_controller.cpp")
        server = text_of("Config/source/service/server_service.cpp")
        stop = seconds_of("patienceAtStop", control)
        polls = int(re.search(r"int mostPolls = (\d+)", server).group(1))
        poll = polls * seconds_of("pollInterval", server)
        rows = [row[0] for row in rows_of(text_of("docs/architecture.md"))]
        (decision,) = [row for row in rows if row.startswith("Stopping a service")]
        times = [int(number) for number in re.findall(r"(\d+) seconds", decision)]
        self.assertEqual(times, [stop, poll, stop + poll, poll])


class TheChecks(unittest.TestCase):
    def test_literals(self):
        self.assertEqual(literals_of("a = List", 'a = List{tr("B"), tr("C")};'), ["B", "C"])
        self.assertEqual(literals_of("a = List", 'b = List{tr("B")};'), [])

    def test_seconds(self):
        code = "constexpr std::chrono::seconds a{20};\nconstexpr std::chrono::milliseconds b{100};"
        self.assertEqual(seconds_of("a", code), 20)
        self.assertEqual(seconds_of("b", code), 0.1)


if __name__ == "__main__":
    unittest.main()
