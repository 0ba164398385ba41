"""Replaces the figures in the documentation with those that tools/bench measured.

    write_figures.py FOLDER DOCUMENT

FOLDER contains the files "rows", "tables", "scale", "install" and "load" of one run. Only the text between
the two marks in the document is replaced.
"""

import datetime
import os
import platform
import re
import subprocess
import sys
from collections.abc import Iterable, Sequence
from pathlib import Path

BEGIN = "<!-- figures of tools/bench -->"
END = "<!-- end of the figures -->"


def first_line(*command: str) -> str:
    result = subprocess.run(
        command,
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
        env={**os.environ, "WINEDEBUG": "-all"},
        check=True,
    )
    return result.stdout.decode().splitlines()[0]


def value_in(file: str | Path, pattern: str) -> str:
    found = re.search(pattern, Path(file).read_text(), re.MULTILINE)
    if not found:
        raise ValueError(f"{file} has no line {pattern}")
    return found.group(1).strip()


def table(titles: Sequence[str], rows: Iterable[Sequence[str]]) -> list[str]:
    lines = ["| " + " | ".join(titles) + " |", "|" + "---|" * len(titles)]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return lines


def machine_lines(folder: Path) -> list[str]:
    gigabytes = int(value_in("/proc/meminfo", r"^MemTotal: *(\d+)")) / 1024 / 1024
    load = (folder / "load").read_text().split()[0]
    system = value_in("/etc/os-release", r'^PRETTY_NAME="(.*)"')
    facts = (
        ("Date", datetime.date.today().isoformat()),
        ("Processor", value_in("/proc/cpuinfo", r"^model name\s*: (.*)")),
        ("Processors used", str(len(os.sched_getaffinity(0)))),
        ("Memory", f"{gigabytes:.0f} GB"),
        ("System", f"{system}, Linux {platform.release().partition('-')[0]}"),
        ("Compiler", first_line("c++", "--version")),
        ("Qt", first_line("/usr/lib/qt6/bin/qmake", "-query", "QT_VERSION")),
        ("Wine", first_line("wine", "--version")),
        ("Load average at the start", load),
    )
    return table(("", ""), facts)


def held_lines(folder: Path) -> list[str]:
    rows = []
    for line in (folder / "rows").read_text().splitlines():
        work, peer, ours, peers, ratio, comparison, limit, held = line.split("\t")
        wanted = f"{limit} times as fast" if comparison == "faster" else f"within {limit} times"
        times = (f"{float(ours):.1f}", f"{float(peers):.1f}")
        rows.append((work, peer, *times, ratio, wanted, held))
    titles = ("Work", "Compared with", "Ours, ms", "Peer, ms", "Ratio", "Target", "")
    return table(titles, rows)


def numbers(line: str) -> list[float]:
    return [float(word) for word in line.split()]


def scale_lines(folder: Path) -> list[str]:
    """Nanoseconds per item. The message tables' program prints milliseconds for loading and saving."""
    tables = {}
    for line in (folder / "tables").read_text().splitlines():
        if re.match(r"^ *\d+ ", line):
            count, load, _, _, save, _, _, feed, again, update, update_again, _ = numbers(line)
            each = 1e6 / count
            tables[count] = [load * each, save * each, feed, again, update, update_again]
    rows = []
    for line in (folder / "scale").read_text().splitlines():
        count, *values = numbers(line)
        shown = [f"{value:.0f}" for value in tables[count] + values]
        rows.append((f"{count:,.0f}", *shown))
    titles = (
        "Items",
        "load a message table",
        "save it",
        "update a translation table",
        "again",
        "file to file",
        "again",
        "scan macros, one thread",
        "add their keys to a table",
        "read material names",
        "add them to a table",
        "again",
    )
    return table(titles, rows)


def install_lines(folder: Path) -> list[str]:
    rows = []
    for line in (folder / "install").read_text().splitlines():
        timed = re.match(r"^( *)(\S.*?) +(\d+) ms$", line)
        if timed:
            rows.append((("of it: " if timed.group(1) else "") + timed.group(2), timed.group(3)))
    return table(("A silent install", "ms"), rows)


def main(folder: Path, document: Path) -> None:
    figures = [
        *machine_lines(folder),
        "",
        "The unit is ms, or ns per message in the rows that say so.",
        "",
        *held_lines(folder),
        "",
        "Time per item, in ns:",
        "",
        *scale_lines(folder),
        "",
        *install_lines(folder),
    ]
    text = document.read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    after = rest.split(END)[1]
    document.write_text(before + BEGIN + "\n\n" + "\n".join(figures) + "\n\n" + END + after, encoding="utf-8")


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
