"""Which changes of a source file are tried, and how the list of files is read."""

import tempfile
import unittest
from pathlib import Path

from mutants import mask, mutants_of, mutated
from mutate import read_list, run_test, test_commands


def function(*statements):
    """A source file of one function with these lines in it."""
    return "void f()\n{\n" + "".join(f"    {line}\n" for line in statements) + "}\n"


def changes(*statements):
    return [mutant.change for mutant in mutants_of(function(*statements))]


def lines_made(*statements):
    """What becomes of the function's lines, a text for each mutant."""
    text = function(*statements)
    made = [mutated(text, mutant).split("\n")[2:-2] for mutant in mutants_of(text)]
    return [" ".join(line.strip() for line in lines) for lines in made]


class TestMutants(unittest.TestCase):
    def test_changes_of_one_line(self):
        rows = {
            "a comparison": ("auto b = x < y;", ["auto b = x <= y;"]),
            "equality": ("auto b = x == y;", ["auto b = x != y;"]),
            "logic": ("auto b = x && y;", ["auto b = x || y;"]),
            "a dropped not": ("auto b = !x;", ["auto b = x;"]),
            "arithmetic": ("auto b = x - y;", ["auto b = x + y;"]),
            "a number": ("auto b = x[7];", ["auto b = x[8];"]),
            "a number with a suffix": ("auto b = 1u;", ["auto b = 2u;"]),
            "a hexadecimal number": ("auto b = 0x7F;", ["auto b = 0x80;"]),
            "a truth": ("auto b = true;", ["auto b = false;"]),
            "a text": ('auto b = "day";', ['auto b = "eay";']),
            "a text behind an escape": (r'auto b = "\nz";', [r'auto b = "\ny";']),
            "a text behind a place marker": ('auto b = "%1a";', ['auto b = "%1b";']),
            "a character": ("auto b = 'x';", ["auto b = 'y';"]),
            "a raw text": ('auto b = R"(a"b)";', ['auto b = R"(b"b)";']),
            "a condition by itself": ("if (x)", ["if (!(x))"]),
            "a choice": (
                "auto b = x ? y : z;",
                ["auto b = x && false ? y : z;", "auto b = x || true ? y : z;"],
            ),
            "a step": ("const auto b = ++x;", ["const auto b = --x;"]),
            "a statement": ("call(x);", [";"]),
            "a returned value": ("return x;", ["return {};"]),
            "nothing returned": ("return {};", []),
            "a declaration": ("const QString text;", []),
            "brackets of a template": ("auto b = c<int>(x);", []),
            "a reference that moves": ("auto &&b = c(x);", []),
            "joined texts": ('auto b = x + "%1";', []),
            "a comment": ("auto b = c; // x < y, 1, true", []),
            "a directive": ("#define b 1 < 2", []),
            "another machine's branch": ("#if x\n#else\n    auto b = x < 1;\n#endif", []),
            "room made beforehand": ("m_texts.reserve(x + 1);", []),
            "an assertion": ("NVX_ASSERT(x < y, unit);", []),
            "an escape alone": (r'auto b = "\n";', []),
        }
        for name, (line, expected) in rows.items():
            with self.subTest(name):
                self.assertEqual(sorted(lines_made(line)), sorted(expected))

    def test_an_operator_in_a_literal_is_none(self):
        self.assertNotIn("< to <=", changes('auto b = "x < y";'))
        self.assertNotIn("< to <=", changes('auto b = "\\" < y";'))
        self.assertNotIn("< to <=", changes('auto b = R"x(" < )" < )x";'))

    def test_masking_keeps_every_place(self):
        text = 'a \'b\' /* c\n d */ "e\\"" // f\n#g\n1\'000 R"h(i\n)h" j\n'
        masked, _ = mask(text)
        self.assertEqual(len(masked), len(text))
        for place, char in enumerate(masked):
            self.assertIn(char, (text[place], " ", "\x01"))
        self.assertIn("1'000", masked)
        self.assertNotRegex(masked, "[bcdefghi]")

    def test_neighbours_change_places(self):
        self.assertIn("b(); a();", lines_made("a();", "b();"))

    def test_a_declaration_stays_before_what_uses_it(self):
        self.assertNotIn("change places with the next statement", changes("int x = y();", "call(x);"))
        self.assertIn("change places with the next statement", changes("int x = y();", "call();"))

    def test_assignments_that_have_nothing_to_do_with_each_other_stay(self):
        swapped = "change places with the next statement"
        self.assertNotIn(swapped, changes("a.b = x;", "a.c = y(z);"))
        self.assertIn(swapped, changes("a.b = x;", "a.c = a.b;"))
        self.assertIn(swapped, changes("a.b = x;", "a.b += y;"))
        self.assertIn(swapped, changes("a = read();", "b = read();"))

    def test_a_guarded_statement_does_not_leave_its_guard(self):
        self.assertNotIn("change places with the next statement", changes("if (x)", "    a();", "b();"))

    def test_a_function_that_answers_yes_or_no_answers_the_contrary(self):
        answering = "bool f()\n{\n    return g();\n}\n"
        self.assertIn("return the contrary", [mutant.change for mutant in mutants_of(answering)])
        self.assertNotIn("return the contrary", changes("return g();"))
        behind = answering + "int h()\n{\n    return g();\n}\n"
        self.assertEqual([mutant.change for mutant in mutants_of(behind)].count("return the contrary"), 1)

    def test_a_mutant_tells_its_line(self):
        mutant = mutants_of(function("a;", "const auto b = x < y;"))[-1]
        self.assertEqual((mutant.line, mutant.source), (4, "const auto b = x < y;"))


class TestList(unittest.TestCase):
    def test_files_tests_and_what_makes_no_difference(self):
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

    def test_what_is_accepted_needs_a_reason(self):
        for text in ("a.cpp: tst_a\n    > x\n        < to <=\n", "    > x\n        < to <= because y\n"):
            with self.subTest(text), self.assertRaises(SystemExit):
                read_list(text)


class TestTests(unittest.TestCase):
    def test_the_program_of_a_test_and_its_arguments(self):
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

    def test_the_class_comes_before_the_options(self):
        script = 'test "$0 $*" = "tst_a -nocrashhandler first"'
        with tempfile.TemporaryDirectory() as folder:
            result, _ = run_test(["sh", "-c", script, "tst_a"], ["first"], Path(folder), 1)
        self.assertEqual(result, "passed")


if __name__ == "__main__":
    unittest.main()
