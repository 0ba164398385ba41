"""Reads the tables of an MSI, and evaluates the conditions in them."""

import functools
import re
import subprocess
from collections.abc import Iterator, Mapping
from pathlib import Path

Row = dict[str, str]

# The part of a condition: a comparison with a string, a name, an operator or a bracket.
_PART = re.compile(r'\s*(?:(\w+)\s*(~?=)\s*"([^"]*)"|(\w+)|([()]))')


def rows_of(package: Path, table: str) -> list[Row]:
    """The rows of a table, each by the names of its columns. Empty if there is no such table."""
    if table not in _output("tables", package).split():
        return []
    names, _, _, *rows = _output("export", package, table).split("\r\n")
    return [dict(zip(names.split("\t"), row.split("\t"))) for row in rows if row]


def files_of(package: Path) -> dict[str, int]:
    """{path: size} of the files, relative to the install dir or the translators' folder."""
    folders = {row["Directory"]: row for row in rows_of(package, "Directory")}
    components = {row["Component"]: row["Directory_"] for row in rows_of(package, "Component")}

    def place(folder: str) -> str:
        if folder in ("INSTALLDIR", "TRANSLATORSDIR"):
            return ""
        return place(folders[folder]["Directory_Parent"]) + folders[folder]["DefaultDir"] + "/"

    rows = rows_of(package, "File")
    return {place(components[row["Component_"]]) + row["FileName"]: int(row["FileSize"]) for row in rows}


@functools.cache
def _output(command: str, package: Path, *arguments: str) -> str:
    done = subprocess.run(["msiinfo", command, package, *arguments], check=True, capture_output=True)
    return done.stdout.decode()


def is_met(condition: str, properties: Mapping[str, str]) -> bool:
    """Whether the Windows Installer would take a condition as true with these properties; an empty one is.

    Knows what the package uses: NOT, AND, OR, brackets, a property alone, and `=` and `~=` (which ignores
    case) with a string.
    """
    parts = list(_parts_of(condition))
    result = not parts or _any(parts, properties)
    if parts:
        raise ValueError(f"not understood: {parts} in {condition}")
    return result


def _parts_of(condition: str) -> Iterator[tuple[str, ...]]:
    at = 0
    while at < len(condition):
        found = _PART.match(condition, at)
        if not found:
            raise ValueError(f"not understood: {condition[at:]}")
        yield tuple(group or "" for group in found.groups())
        at = found.end()


def _any(parts: list[tuple[str, ...]], properties: Mapping[str, str]) -> bool:
    result = _all(parts, properties)
    while parts and parts[0][3] == "OR":
        parts.pop(0)
        right = _all(parts, properties)
        result = result or right
    return result


def _all(parts: list[tuple[str, ...]], properties: Mapping[str, str]) -> bool:
    result = _one(parts, properties)
    while parts and parts[0][3] == "AND":
        parts.pop(0)
        right = _one(parts, properties)
        result = result and right
    return result


def _one(parts: list[tuple[str, ...]], properties: Mapping[str, str]) -> bool:
    name, comparison, text, word, bracket = parts.pop(0)
    if word == "NOT":
        return not _one(parts, properties)
    if bracket == "(":
        result = _any(parts, properties)
        if not parts or parts.pop(0)[4] != ")":
            raise ValueError("a bracket is not closed")
        return result
    if comparison:
        value = properties.get(name, "")
        return value.lower() == text.lower() if comparison == "~=" else value == text
    return bool(properties.get(word))
