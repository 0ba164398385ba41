"""tools/source_form.py finds each fault it looks for, and only those."""

import unittest

from source_form import FILE_LINES, FUNCTION_LINES, LINE_CHARACTERS, findings


def cpp_function(lines):
    """A C++ function of that many lines, braces included."""
    return "void f()\n{\n" + "    g();\n" * (lines - 2) + "}\n"


def python_function(lines):
    return "def f():\n" + "    g()\n" * (lines - 1)


def data_function(*rows):
    body = "".join(f"        {row};\n" for row in rows)
    return f"class tst_names\n{{\n    void names_data()\n    {{\n{body}    }}\n}};\n"


class SourceForm(unittest.TestCase):
    def lines_found(self, path, text):
        return [line for line, _ in findings(path, text)]

    def test_a_file_may_have_500_lines_and_no_more(self):
        for path in ("source/a.cpp", "tools/a.py", "tools/a", "cmake/a.cmake", "CMakeLists.txt"):
            with self.subTest(path):
                self.assertEqual(findings(path, "\n" * FILE_LINES), [])
                self.assertEqual(self.lines_found(path, "\n" * (FILE_LINES + 1)), [FILE_LINES + 1])

    def test_a_line_of_cpp_may_have_110_characters_and_no_more(self):
        line = "//" + "ß" * (LINE_CHARACTERS - 2)
        self.assertEqual(findings("source/a.cpp", f"\n{line}\n"), [])
        self.assertEqual(self.lines_found("source/a.cpp", f"\n{line}ß\n"), [2])

    def test_a_function_may_have_70_lines_and_no_more(self):
        for path, function, first in (("source/a.cpp", cpp_function, 2), ("tools/a.py", python_function, 1)):
            with self.subTest(path):
                self.assertEqual(findings(path, function(FUNCTION_LINES)), [])
                self.assertEqual(self.lines_found(path, function(FUNCTION_LINES + 1)), [first])

    def test_methods_are_functions_and_classes_are_not(self):
        method = "    void f()\n    {\n" + "        g();\n" * FUNCTION_LINES + "    }\n"
        self.assertEqual(self.lines_found("source/a.cpp", "class A\n{\n" + method + "};\n"), [4])
        members = "class A\n    : public B\n{\n" + "    int a;\n" * FUNCTION_LINES + "};\n"
        self.assertEqual(findings("source/a.cpp", members), [])

    def test_a_script_without_an_ending_is_known_by_its_first_line(self):
        script = "#!/usr/bin/env python3\n" + python_function(FUNCTION_LINES + 1)
        self.assertEqual(self.lines_found("tools/a", script), [2])

    def test_a_header_begins_with_pragma_once(self):
        self.assertEqual(findings("source/a.h", "#pragma once\n"), [])
        for text in ("", "int a();\n", "// a\n#pragma once\n"):
            self.assertEqual(self.lines_found("source/a.h", text), [1], text)

    def test_a_branch_on_the_operating_system_is_found_outside_platform_code(self):
        for line in ("#ifdef _WIN32", "#  if defined(Q_OS_WIN)", "#elif __linux__", "#ifndef _MSC_VER"):
            for path in ("source/a.cpp", "tests/a.cpp", "sample/a.cpp"):
                self.assertEqual(self.lines_found(path, f"int a;\n{line}\n"), [2], line)
            self.assertEqual(findings("Utility/source/a.cpp", f"{line}\n"), [], line)

    def test_other_directives_are_no_branch_on_the_operating_system(self):
        for line in ("#ifdef NVX_SANITIZE", "// #ifdef _WIN32", '#include "windows/window.h"'):
            self.assertEqual(findings("source/a.cpp", f"{line}\n"), [], line)

    def test_two_rows_of_one_name_are_found(self):
        rows = ('QTest::newRow("a") << 1', 'QTest::newRow("b")\n            << 2', 'row("a", 3)')
        self.assertEqual(self.lines_found("tests/a/tst_names.cpp", data_function(*rows)), [8])

    def test_rows_of_different_tables_may_share_a_name(self):
        table = data_function('QTest::newRow("a") << 1')
        self.assertEqual(findings("tests/a/tst_names.cpp", table + table), [])


if __name__ == "__main__":
    unittest.main()
