"""Reads the compiler's counters of what the tests executed.

coverage.py read BUILD FILE FOLDER...  reads the counters below a build folder into a file, for the sources in
                                       these folders
coverage.py table FILE                 a line for each folder, and one for all
coverage.py missed FILE FOLDER         the lines and branches below the folder that were not reached
"""

import json
import os
import subprocess
import sys
from collections import defaultdict
from collections.abc import Iterable, Iterator
from multiprocessing import Pool
from pathlib import Path, PurePosixPath
from typing import Any

# Functions that the compiler adds: they run before main, with branches for every global variable.
START_UP = ("_GLOBAL__sub_I_", "_Z41__static_initialization_and_destruction_0")

Place = tuple[int, ...] | None  # the line and column of a function


class Source:
    """How often each line of a source file was executed, and each of the two ways of its conditions.

    A condition is identified by its line and its function. A template or a constructor is compiled several
    times; the counts are added.
    """

    def __init__(self) -> None:
        self.lines: dict[int, int] = defaultdict(int)
        self.conditions: dict[tuple[int, Place, int], list[int]] = {}

    def add_line(self, number: int, count: int) -> None:
        self.lines[number] += count

    def add_conditions(self, number: int, function: Place, ways: list[int]) -> None:
        place = (number, function, len(ways))
        before = self.conditions.get(place, [0] * len(ways))
        self.conditions[place] = [one + other for one, other in zip(before, ways)]

    def add(self, other: "Source") -> None:
        for number, count in other.lines.items():
            self.add_line(number, count)
        for (number, function, _), ways in other.conditions.items():
            self.add_conditions(number, function, ways)

    def branches(self) -> dict[int, list[int]]:
        """The counts of the ways by line.

        Conditions that were not evaluated in an executed line are left out: they belong to the clean-up after
        an exception, or follow a condition that counts as not taken itself.
        """
        branches: dict[int, list[int]] = defaultdict(list)
        for (number, _, _), ways in self.conditions.items():
            for pair in zip(ways[::2], ways[1::2]):
                if any(pair) or not self.lines[number]:
                    branches[number] += pair
        return branches

    def missed_ranges(self) -> list[list[int]]:
        """The first and last line of each block that was not executed."""
        ranges: list[list[int]] = []
        is_open = False
        for number, count in sorted(self.lines.items()):
            if count == 0 and is_open:
                ranges[-1][1] = number
            elif count == 0:
                ranges.append([number, number])
            is_open = count == 0
        return ranges

    def missed_branches(self) -> Iterator[tuple[int, int, int]]:
        """(line, ways not taken, all ways) of each executed line with a way that was not taken."""
        for number, counts in sorted(self.branches().items()):
            if self.lines[number] and 0 in counts:
                yield number, counts.count(0), len(counts)


class Tally:
    """Lines and branches, and how many of them were reached."""

    def __init__(self) -> None:
        self.lines = self.lines_reached = self.branches = self.branches_reached = 0

    def add(self, source: Source) -> None:
        branches = [count for counts in source.branches().values() for count in counts]
        self.lines += len(source.lines)
        self.lines_reached += sum(1 for count in source.lines.values() if count)
        self.branches += len(branches)
        self.branches_reached += sum(1 for count in branches if count)

    def row(self, name: str) -> str:
        return (
            f"{name:38}{part(self.lines_reached, self.lines):>24}"
            f"{part(self.branches_reached, self.branches):>24}"
        )


def part(reached: int, every: int) -> str:
    return f"{reached} of {every} {100 * reached / every:6.1f} %" if every else "none"


def decisions(branches: list[dict[str, Any]], code: str) -> list[int]:
    """The counts of the two ways of each condition in a line of code.

    Left out are the two ways after each call that could throw, since this project's code does not throw;
    those of a switch, whose cases are lines; and those that the compiler adds to the initialisation of a
    static variable.
    """
    pairs = zip(branches[::2], branches[1::2])
    counts = []
    for pair in () if code.startswith(("switch ", "static ")) else pairs:
        if not any(way["throw"] for way in pair):
            counts += [way["count"] for way in pair]
    return counts


def read_unit(arguments: tuple[Path, Path, list[Path]]) -> dict[str, Source]:
    """The sources of one compiled unit by their paths relative to the root."""
    notes, root, folders = arguments
    gcov = ["gcov", "--json-format", "--stdout", "--branch-probabilities", notes.name]
    done = subprocess.run(gcov, cwd=notes.parent, capture_output=True, check=True, text=True)
    unit = json.loads(done.stdout)
    sources = {}
    for file in unit["files"]:
        path = Path(os.path.normpath(os.path.join(unit["current_working_directory"], file["file"])))
        if path.exists() and any(folder in path.parents for folder in folders):
            sources[str(path.relative_to(root))] = read_source(path, file)
    return sources


def read_source(path: Path, file: dict[str, Any]) -> Source:
    source = Source()
    code = path.read_text(encoding="utf-8").splitlines()
    places = {
        function["name"]: (function["start_line"], function["start_column"]) for function in file["functions"]
    }
    for line in file["lines"]:
        name = line.get("function_name", "")
        number = line["line_number"]
        text = code[number - 1].strip()
        # The end of a block only has the clean-up of its variables.
        if name.startswith(START_UP) or text in ("{", "}", "};"):
            continue
        source.add_line(number, line["count"])
        ways = decisions(line["branches"], text)
        if ways:
            source.add_conditions(number, places.get(name), ways)
    return source


def read(build: str, target: str, folders: Iterable[str]) -> None:
    root = Path(__file__).resolve().parent.parent
    units = [
        (notes.resolve(), root, [root / folder for folder in folders])
        for notes in Path(build).rglob("*.gcno")
        if "_autogen" not in str(notes)
    ]
    sources: dict[str, Source] = defaultdict(Source)
    with Pool() as pool:
        for unit in pool.imap_unordered(read_unit, units, chunksize=8):
            for path, source in unit.items():
                sources[path].add(source)
    store(sources, target)


def store(sources: dict[str, Source], target: str) -> None:
    content = {
        path: {"lines": sorted(source.lines.items()), "conditions": sorted(source.conditions.items())}
        for path, source in sorted(sources.items())
    }
    with open(target, "w", encoding="utf-8") as file:
        json.dump(content, file)


def stored(path: str) -> dict[str, Source]:
    sources = {}
    with open(path, encoding="utf-8") as file:
        for name, content in json.load(file).items():
            source = sources[name] = Source()
            for number, count in content["lines"]:
                source.add_line(number, count)
            for (number, function, _), ways in content["conditions"]:
                source.add_conditions(number, tuple(function), ways)
    return sources


def print_table(sources: dict[str, Source]) -> None:
    folders: dict[str, Tally] = defaultdict(Tally)
    total = Tally()
    for path, source in sources.items():
        folders[str(PurePosixPath(path).parent)].add(source)
        total.add(source)
    print(f"{'folder':38}{'lines':>24}{'branches':>24}")
    for name, tally in sorted(folders.items()):
        print(tally.row(name))
    print(total.row("all"))


def print_missed(sources: dict[str, Source], folder: str) -> bool:
    """Returns whether a source below the folder was counted."""
    wanted = PurePosixPath(folder)
    below = [path for path in sorted(sources) if PurePosixPath(path).is_relative_to(wanted)]
    for path in below:
        for first, last in sources[path].missed_ranges():
            print(f"{path}:{first}" + (f"-{last}" if last != first else ""))
        for number, missed, every in sources[path].missed_branches():
            print(f"{path}:{number} {missed} of {every} branches")
    return bool(below)


def main(order: str, *arguments: str) -> None:
    if order == "read":
        read(arguments[0], arguments[1], arguments[2:])
    elif order == "table":
        print_table(stored(arguments[0]))
    elif not print_missed(stored(arguments[0]), arguments[1]):
        sys.exit(f"error: no source below {arguments[1]} was counted")


if __name__ == "__main__":
    main(*sys.argv[1:])
