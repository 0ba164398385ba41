"""The project's own checks for flake8 find each fault they look for, and only those."""

import ast
import unittest

from python_checks import Checks


def findings(source, filename="tools/demo.py"):
    """Returns (line, code) of each finding in a source."""
    return [(line, text.split()[0]) for line, _, text, _ in Checks(ast.parse(source), filename).run()]


class Strings(unittest.TestCase):
    def test_a_formatted_literal_is_found_in_every_file(self):
        for source in ('a = "%s" % b', 'a = "%d, %d" % (1, 2)', 'a = "{}".format(b)', 'a = ("x" "%s") % b'):
            self.assertEqual(findings(source), [(1, "NVX1")], source)
            self.assertEqual(findings(source, "tests/machine/test_cycles.py"), [(1, "NVX1")], source)

    def test_the_line_is_that_of_the_literal(self):
        self.assertEqual(findings('a = 1\nb = "%s" % a\n'), [(2, "NVX1")])

    def test_templates_bytes_numbers_and_f_strings_are_left_alone(self):
        for source in (
            "a = template % b",
            "a = template.format(b)",
            'a = b"%s" % b',
            "a = 5 % b",
            'a = f"{b}"',
        ):
            self.assertEqual(findings(source), [], source)


class Hints(unittest.TestCase):
    def test_a_public_function_without_hints_is_found(self):
        for source in (
            "def f(): pass",
            "def f(a) -> int: pass",
            "def f(a: int): pass",
            "def f(*a) -> int: pass",
            "def f(**a) -> int: pass",
            "def f(*, a) -> int: pass",
            "async def f(): pass",
        ):
            self.assertEqual(findings(source), [(1, "NVX2")], source)

    def test_a_method_and_a_constructor_without_hints_are_found(self):
        source = "class A:\n    def __init__(self, a): pass\n    @classmethod\n    def f(cls, a): pass\n"
        self.assertEqual(findings(source), [(2, "NVX2"), (4, "NVX2")])

    def test_self_and_cls_need_no_hint(self):
        source = (
            "class A:\n    def f(self, a: int) -> int: pass\n    @classmethod\n    def g(cls) -> int: pass\n"
        )
        self.assertEqual(findings(source), [])

    def test_private_and_inner_functions_need_no_hints(self):
        for source in (
            "def _f(a): pass",
            "def f() -> int:\n    def inner(a): pass",
            "class A:\n    def __str__(self): pass",
        ):
            self.assertEqual(findings(source), [], source)

    def test_tests_need_no_hints_but_what_they_share_does(self):
        source = "def f(): pass"
        self.assertEqual(findings(source, "tests/machine/test_cycles.py"), [])
        self.assertEqual(findings(source, "tests/tools/test_mutants.py"), [])
        self.assertEqual(findings(source, "tests/machine/machine_case.py"), [(1, "NVX2")])


if __name__ == "__main__":
    unittest.main()
