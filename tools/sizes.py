#!/usr/bin/env python3
"""Names files of more than 500 lines, lines of more than 110 characters and functions of more than 70 lines.

    tools/sizes.py FILE...      sources in C++ and Python, told apart by their endings

C++ is read as clang-format leaves it: the brace that opens a function's body stands alone on its line, and
the one that closes it is the next at the same indentation.
"""

import ast
import re
import sys
from collections.abc import Iterator
from pathlib import Path

FILE_LINES = 500
LINE_CHARACTERS = 110
FUNCTION_LINES = 70

TYPE_HEAD = re.compile(r"\s*(template\s*<.*>\s*)?(class|struct|union|enum)\b")


def begins_type(lines: list[str], brace: int) -> bool:
    """Whether the brace on that line belongs to a class or the like, whose head may be of several lines."""
    head = brace - 1
    while head > 0 and lines[head].lstrip().startswith((":", ",", "public", "private")):
        head -= 1
    return bool(TYPE_HEAD.match(lines[head]))


def cpp_functions(lines: list[str]) -> Iterator[tuple[int, int]]:
    """(first line, last line) of the functions' bodies, braces included, counted from 1."""
    for first, line in enumerate(lines):
        if line.strip() != "{" or first == 0 or begins_type(lines, first):
            continue
        closing = line.replace("{", "}")
        last = next((at for at in range(first + 1, len(lines)) if lines[at].startswith(closing)), None)
        if last is not None:
            yield first + 1, last + 1


def python_functions(text: str) -> Iterator[tuple[int, int]]:
    for node in ast.walk(ast.parse(text)):
        if isinstance(node, (ast.FunctionDef, ast.AsyncFunctionDef)):
            yield node.lineno, node.end_lineno or node.lineno


def complaints(path: Path) -> Iterator[str]:
    text = path.read_text(encoding="utf-8")
    lines = text.splitlines()
    if len(lines) > FILE_LINES:
        yield f"{path}: {len(lines)} lines, more than {FILE_LINES}"
    for number, line in enumerate(lines, 1):
        if len(line) > LINE_CHARACTERS:
            yield f"{path}:{number}: {len(line)} characters, more than {LINE_CHARACTERS}"
    for first, last in python_functions(text) if path.suffix == ".py" else cpp_functions(lines):
        if last - first + 1 > FUNCTION_LINES:
            yield f"{path}:{first}: a function of {last - first + 1} lines, more than {FUNCTION_LINES}"


def main() -> int:
    found = [complaint for name in sys.argv[1:] for complaint in complaints(Path(name))]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
