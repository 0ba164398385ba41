"""The mutants that are made of a source file, the list of files, and the commands of the tests."""

import tempfile
import unittest
from pathlib import Path

from mutants import mask, mutants_of, mutated
from mutate import LIST, ROOT, read_list, run_test, test_commands


def function(*statements):
    """A source file with one function of these lines."""
    return "void f()\n{\n" + "".join(f"    {line}\n" for line in statements) + "}\n"


def changes(*statements):
    return [mutant.change for mutant in mutants_of(function(*statements))]


def lines_made(*statements):
    """For each mutant, the lines of the function joined by blanks."""
    text = function(*statements)
    made = [mutated(text, mutant).split("\n")[2:-2] for mutant in mutants_of(text)]
    return [" ".join(line.strip() for line in lines) for lines in made]


class Mutants(unittest.TestCase):
    def test_each_line_has_the_expected_mutants(self):
        rows = {
            "a comparison": ("auto b = x < y;", ["auto b = x <= y;"]),
            "equality": ("auto b = x == y;", ["auto b = x != y;"]),
            "logic": ("auto b = x && y;", ["auto b = x || y;"]),
            "a dropped not": ("auto b = !x;", ["auto b = x;"]),
            "arithmetic": ("auto b = x - y;", ["auto b = x + y;"]),
            "a number": ("auto b = x[7];", ["auto b = x[8];"]),
            "a number with a suffix": ("auto b = 1u;", ["auto b = 2u;"]),
            "a hexadecimal number": ("auto b = 0x7F;", ["auto b = 0x80;"]),
            "a boolean": ("auto b = true;", ["auto b = false;"]),
            "a string": ('auto b = "day";', ['auto b = "eay";']),
            "a string after an escape": (r'auto b = "\nz";', [r'auto b = "\ny";']),
            "a string after a place marker": ('auto b = "%1a";', ['auto b = "%1b";']),
            "a character": ("auto b = 'x';", ["auto b = 'y';"]),
            "a raw string": ('auto b = R"(a"b)";', ['auto b = R"(b"b)";']),
            "a condition by itself": ("if (x)", ["if (!(x))"]),
            "a choice": (
                "auto b = x ? y : z;",
                ["auto b = x && false ? y : z;", "auto b = x || true ? y : z;"],
            ),
            "a step": ("const auto b = ++x;", ["const auto b = --x;"]),
            "a statement": ("call(x);", [";"]),
            "a returned value": ("return x;", ["return {};"]),
            "a returned default value": ("return {};", []),
            "a declaration": ("const QString text;", []),
            "brackets of a template": ("auto b = c<int>(x);", []),
            "a reference that moves": ("auto &&b = c(x);", []),
            "joined strings": ('auto b = x + "%1";', []),
            "joined UTF-16 strings": ('auto b = u"%1"_s + x + u"%2"_s;', []),
            "joined Latin-1 strings": ('auto b = "%1"_L1 + x;', []),
            "a comment": ("auto b = c; // x < y, 1, true", []),
            "a directive": ("#define b 1 < 2", []),
            "a branch for another platform": ("#if x\n#else\n    auto b = x < 1;\n#endif", []),
            "reserved memory": ("m_texts.reserve(x + 1);", []),
            "an assertion": ("NVX_ASSERT(x < y, unit);", []),
            "an escape alone": (r'auto b = "\n";', []),
        }
        for name, (line, expected) in rows.items():
            with self.subTest(name):
                self.assertEqual(sorted(lines_made(line)), sorted(expected))

    def test_an_operator_in_a_literal_is_not_changed(self):
        self.assertNotIn("< to <=", changes('auto b = "x < y";'))
        self.assertNotIn("< to <=", changes('auto b = "\\" < y";'))
        self.assertNotIn("< to <=", changes('auto b = R"x(" < )" < )x";'))

    def test_masking_keeps_every_position(self):
        text = 'a \'b\' /* c\n d */ "e\\"" // f\n#g\n1\'000 R"h(i\n)h" j\n'
        masked, _ = mask(text)
        self.assertEqual(len(masked), len(text))
        for place, char in enumerate(masked):
            self.assertIn(char, (text[place], " ", "\x01"))
        self.assertIn("1'000", masked)
        self.assertNotRegex(masked, "[bcdefghi]")

    def test_consecutive_statements_are_exchanged(self):
        self.assertIn("b(); a();", lines_made("a();", "b();"))

    def test_a_declaration_is_not_moved_after_its_use(self):
        self.assertNotIn("change places with the next statement", changes("int x = y();", "call(x);"))
        self.assertIn("change places with the next statement", changes("int x = y();", "call();"))

    def test_independent_assignments_are_not_exchanged(self):
        swapped = "change places with the next statement"
        self.assertNotIn(swapped, changes("a.b = x;", "a.c = y(z);"))
        self.assertIn(swapped, changes("a.b = x;", "a.c = a.b;"))
        self.assertIn(swapped, changes("a.b = x;", "a.b += y;"))
        self.assertIn(swapped, changes("a = read();", "b = read();"))

    def test_a_statement_after_a_condition_is_not_exchanged(self):
        self.assertNotIn("change places with the next statement", changes("if (x)", "    a();", "b();"))

    def test_the_result_of_a_boolean_function_is_negated(self):
        boolean = "bool f()\n{\n    return g();\n}\n"
        self.assertIn("return the contrary", [mutant.change for mutant in mutants_of(boolean)])
        self.assertNotIn("return the contrary", changes("return g();"))
        text = boolean + "int h()\n{\n    return g();\n}\n"
        self.assertEqual([mutant.change for mutant in mutants_of(text)].count("return the contrary"), 1)

    def test_a_mutant_has_its_line(self):
        mutant = mutants_of(function("a;", "const auto b = x < y;"))[-1]
        self.assertEqual((mutant.line, mutant.source), (4, "const auto b = x < y;"))


class ListOfFiles(unittest.TestCase):
    def test_files_tests_and_accepted_changes_are_read(self):
        first, second = read_list(
            "# a comment\na.cpp: tst_a tst_b\n"
            "    > if (a < b) // because\n"
            "        > to >= because they never meet\n        drop ! because of c\n"
            "\nb.cpp: tst_b\n"
        )
        self.assertEqual((first.file, first.tests), ("a.cpp", ["tst_a", "tst_b"]))
        line = "if (a < b) // because"
        self.assertEqual(first.accepted, {(line, "> to >="): "they never meet", (line, "drop !"): "of c"})
        self.assertEqual((second.file, second.tests, second.accepted), ("b.cpp", ["tst_b"], {}))

    def test_every_listed_file_and_test_exists(self):
        units = read_list(LIST.read_text(encoding="utf-8"))
        self.assertEqual([unit.file for unit in units if not (ROOT / unit.file).is_file()], [])
        classes = {path.stem for path in (ROOT / "tests").glob("*/tst_*.cpp")}
        self.assertEqual({test for unit in units for test in unit.tests} - classes, set())

    def test_an_accepted_change_needs_a_reason(self):
        for text in ("a.cpp: tst_a\n    > x\n        < to <=\n", "    > x\n        < to <= because y\n"):
            with self.subTest(text), self.assertRaises(SystemExit):
                read_list(text)


class TestCommands(unittest.TestCase):
    def test_the_program_and_the_arguments_of_a_test_are_found(self):
        registered = (
            'add_test([=[tst_a]=] "/build/tests/cad/cad_tests" "tst_a")\n'
            'set_tests_properties([=[tst_a]=] PROPERTIES ENVIRONMENT "A=1")\n'
            'add_test(tst_b "/build/tests/cad/tst_b")\n'
            'add_test(test_c "/usr/bin/python3" "-B" "-m" "unittest" "test_c")\n'
        )
        self.assertEqual(
            test_commands(registered, "/build"),
            {"tst_a": ["tests/cad/cad_tests", "tst_a"], "tst_b": ["tests/cad/tst_b"]},
        )

    def test_the_class_precedes_the_options(self):
        script = 'test "$0 $*" = "tst_a -nocrashhandler first"'
        with tempfile.TemporaryDirectory() as folder:
            result, _ = run_test(["sh", "-c", script, "tst_a"], ["first"], Path(folder), 1)
        self.assertEqual(result, "passed")


if __name__ == "__main__":
    unittest.main()
