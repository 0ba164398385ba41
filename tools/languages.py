#!/usr/bin/env python3
"""Prints columns of the table of languages in Utility/include/nvx_util/languages.h.

    languages.py [--translated] COLUMN...

One line per language, in the order of the table, with the columns separated by tabs. --translated leaves out
the language of the sources, which is the first one.
"""

import argparse
import re
import sys
from pathlib import Path

TABLE = Path(__file__).resolve().parents[1] / "Utility" / "include" / "nvx_util" / "languages.h"
REQUIRED = ("locale", "name", "translatorsCode", "installerName")


def parse_languages(header: str) -> list[dict[str, str]]:
    """The rows of the table: the last string of each column that has one. Raises ValueError for a
    header without rows and for a row that lacks a required column."""
    code = re.sub(r"//[^\n]*", "", header)
    rows: list[dict[str, str]] = []
    for row in re.split(r"\bLanguage\s*\{(?=\s*\.)", code)[1:]:
        columns = {}
        for column, value in re.findall(r"\.(\w+)\s*=((?:\"[^\"]*\"|[^\".])*)", row):
            strings = re.findall(r'"([^"]*)"', value)
            if strings:
                columns[column] = strings[-1]
        missing = [column for column in REQUIRED if not columns.get(column)]
        if missing:
            raise ValueError(f"row {len(rows) + 1} has no {' and no '.join(missing)}")
        rows.append(columns)
    if not rows:
        raise ValueError("no rows found")
    return rows


def read_languages() -> list[dict[str, str]]:
    """The rows of the project's own table."""
    return parse_languages(TABLE.read_text(encoding="utf-8"))


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--translated", action="store_true")
    parser.add_argument("columns", nargs="+", choices=REQUIRED, metavar="COLUMN")
    options = parser.parse_args()
    for row in read_languages()[options.translated :]:
        print("\t".join(row[column] for column in options.columns))
    return 0


if __name__ == "__main__":
    sys.exit(main())
