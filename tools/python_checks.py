"""The project's own checks for flake8, registered in setup.cfg.

NVX1    a string literal is formatted with "%" or format() instead of an f-string; named templates are allowed
NVX2    a public function or a constructor has no type hints; not checked in test_*.py
"""

import ast
from collections.abc import Iterator
from pathlib import Path


class Checks:
    name = "nvx"
    version = "1"

    def __init__(self, tree: ast.Module, filename: str) -> None:
        self._tree = tree
        self._is_test = Path(filename).name.startswith("test_")

    def run(self) -> Iterator[tuple[int, int, str, type]]:
        """Yields each finding as flake8 expects it: line, column, text and type of the check."""
        findings = [(node, "NVX1 use an f-string") for node in _formatted_literals(self._tree)]
        if not self._is_test:
            findings += [(node, f"NVX2 no type hints: {node.name}") for node in _without_hints(self._tree)]
        for node, text in findings:
            yield node.lineno, node.col_offset, text, type(self)


def _formatted_literals(tree):
    for node in ast.walk(tree):
        if isinstance(node, ast.BinOp) and isinstance(node.op, ast.Mod) and _is_text(node.left):
            yield node
        elif isinstance(node, ast.Call) and isinstance(node.func, ast.Attribute):
            if node.func.attr == "format" and _is_text(node.func.value):
                yield node


def _is_text(node):
    return isinstance(node, ast.Constant) and isinstance(node.value, str)


def _without_hints(scope):
    """Yields the public functions without hints of a module and its classes, not those inside functions."""
    for node in scope.body:
        if isinstance(node, ast.ClassDef):
            yield from _without_hints(node)
        elif isinstance(node, (ast.FunctionDef, ast.AsyncFunctionDef)):
            is_public = not node.name.startswith("_") or node.name == "__init__"
            if is_public and not _has_hints(node):
                yield node


def _has_hints(function):
    parts = function.args
    parameters = [*parts.posonlyargs, *parts.args, *parts.kwonlyargs, parts.vararg, parts.kwarg]
    named = [part for part in parameters if part and part.arg not in ("self", "cls")]
    return function.returns is not None and all(part.annotation for part in named)
