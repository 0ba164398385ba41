#!/usr/bin/env python3
"""Checks the form of source files where no other tool does.

    tools/source_form.py FILE...      the kind of a file follows from its ending

    every file              at most 500 lines
    C++ and Python          at most 70 lines in a function
    C++                     at most 110 characters in a line (flake8 checks those of Python)
                            no branch on the operating system outside Utility/source
    C++ headers             "#pragma once" in the first line
    tests in C++            no two rows of one name in a table

Prints each finding with its file and line, and exits with 1 if there is one.

C++ is read as clang-format leaves it: the opening brace of a function's body is alone on its line, and the
next closing brace at the same indentation ends the body.
"""

import ast
import re
import sys
from collections.abc import Iterable, Iterator
from pathlib import Path

FILE_LINES = 500
LINE_CHARACTERS = 110
FUNCTION_LINES = 70
CPP = (".cpp", ".h")
# The only code that may ask for its operating system.
PLATFORM_CODE = "Utility/source/"

_TYPE_HEAD = re.compile(r"\s*(template\s*<.*>\s*)?(class|struct|union|enum)\b")
_PLATFORM_BRANCH = re.compile(
    r"\s*#\s*(?:el)?if(?:n?def)?\b.*(?:_WIN32|_WIN64|\bWIN32\b|Q_OS_|Q_CC_|__linux__|__unix__|"
    r"__APPLE__|_MSC_VER|__MINGW)"
)
_ROWS_HEAD = re.compile(r"\s*(?:void|static void) [\w:]+_data\(\)$")
_ROW = re.compile(r'\b(?:newRow|addRow|row)\(\s*"((?:[^"\\]|\\.)*)"')

Finding = tuple[int, str]  # line, text


def findings(path: str, text: str) -> list[Finding]:
    """What is wrong with a file; `path` is relative to the root of the checkout."""
    lines = text.splitlines()
    found = []
    if len(lines) > FILE_LINES:
        found.append((FILE_LINES + 1, f"the file has {len(lines)} lines, more than {FILE_LINES}"))
    suffix = Path(path).suffix
    if suffix in CPP:
        bodies = list(cpp_bodies(lines))
        found += [*wide_lines(lines), *long_functions(bodies)]
        if suffix == ".h" and lines[:1] != ["#pragma once"]:
            found.append((1, "#pragma once is missing"))
        if not path.startswith(PLATFORM_CODE):
            found += platform_branches(lines)
        if path.startswith("tests/"):
            found += repeated_rows(lines, bodies)
    elif suffix == ".py" or text.startswith("#!/usr/bin/env python3"):
        found += long_functions(python_functions(text))
    return sorted(found)


def wide_lines(lines: list[str]) -> Iterator[Finding]:
    for number, line in enumerate(lines, 1):
        if len(line) > LINE_CHARACTERS:
            yield number, f"the line has {len(line)} characters, more than {LINE_CHARACTERS}"


def long_functions(functions: Iterable[tuple[int, int]]) -> Iterator[Finding]:
    for first, last in functions:
        if last - first + 1 > FUNCTION_LINES:
            yield first, f"the function has {last - first + 1} lines, more than {FUNCTION_LINES}"


def cpp_bodies(lines: list[str]) -> Iterator[tuple[int, int]]:
    """(first line, last line) of each function's body, braces included, counted from 1."""
    for first, line in enumerate(lines):
        if line.strip() != "{" or first == 0 or _begins_type(lines, first):
            continue
        closing = line.replace("{", "}")
        last = next((at for at in range(first + 1, len(lines)) if lines[at].startswith(closing)), None)
        if last is not None:
            yield first + 1, last + 1


def _begins_type(lines, brace):
    """Whether the brace on that line opens a class or another type, whose head may have several lines."""
    head = brace - 1
    while head > 0 and lines[head].lstrip().startswith((":", ",", "public", "private")):
        head -= 1
    return bool(_TYPE_HEAD.match(lines[head]))


def python_functions(text: str) -> Iterator[tuple[int, int]]:
    """(first line, last line) of each function, counted from 1."""
    for node in ast.walk(ast.parse(text)):
        if isinstance(node, (ast.FunctionDef, ast.AsyncFunctionDef)):
            yield node.lineno, node.end_lineno or node.lineno


def platform_branches(lines: list[str]) -> Iterator[Finding]:
    for number, line in enumerate(lines, 1):
        if _PLATFORM_BRANCH.match(line):
            yield number, "a branch on the operating system outside " + PLATFORM_CODE


def repeated_rows(lines: list[str], bodies: list[tuple[int, int]]) -> Iterator[Finding]:
    """Rows of a test's table with the literal name of an earlier row of the same table."""
    for first, last in bodies:
        if not _ROWS_HEAD.match(lines[first - 2]):
            continue
        names = set()
        body = "\n".join(lines[first - 1 : last])
        for row in _ROW.finditer(body):
            if row[1] in names:
                yield first + body.count("\n", 0, row.start()), f'the table has two rows "{row[1]}"'
            names.add(row[1])


def main(paths: list[str]) -> int:
    found = [
        f"{path}:{line}: {text}"
        for path in paths
        for line, text in findings(path, Path(path).read_text(encoding="utf-8"))
    ]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
