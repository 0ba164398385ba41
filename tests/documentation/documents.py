"""Reads the blocks, links, headings and tables of the documents, for their tests."""

import re
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DOCUMENTS = sorted(
    path for path in [*ROOT.glob("*.md"), *ROOT.glob("docs/*.md")] if path.name != "CHANGELOG.md"
)

_BLOCK = re.compile(r"^<!-- (?P<remark>[^\n]*) -->\n```\w*\n(?P<text>.*?)^```$", re.DOTALL | re.MULTILINE)
_FENCED = re.compile(r"^```.*?^```$", re.DOTALL | re.MULTILINE)
_LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
_CODE = re.compile(r"`([^`\n]+)`")


@dataclass(frozen=True)
class Block:
    """A fenced block with the remark before it: its kind, and a name."""

    what: str
    name: str
    text: str


def text_of(path: str | Path) -> str:
    return (ROOT / path).read_text(encoding="utf-8")


def blocks_of(document: str) -> list[Block]:
    """The blocks with a remark, in order: "<!-- WHAT: NAME -->" or "<!-- WHAT -->"."""
    blocks = []
    for match in _BLOCK.finditer(document):
        what, _, name = match["remark"].partition(": ")
        blocks.append(Block(what, name, match["text"]))
    return blocks


def prose_of(document: str) -> str:
    """The document without its fenced blocks."""
    return _FENCED.sub("", document)


def links_of(document: str) -> list[str]:
    """The targets of a document's links and pictures."""
    return _LINK.findall(prose_of(document))


def code_of(document: str) -> list[str]:
    """The text between back quotes in the prose."""
    return _CODE.findall(prose_of(document))


def anchors_of(document: str) -> set[str]:
    """The anchors of a document's headings."""
    anchors = set()
    for heading in re.findall(r"^#+ (.*)$", prose_of(document), re.MULTILINE):
        name = re.sub(r"[^\w\- ]", "", heading.lower())
        anchors.add(name.replace(" ", "-"))
    return anchors


def section_of(document: str, heading: str) -> str:
    """The text below a heading, up to the next heading of its level; KeyError if the heading is missing."""
    parts = re.split(r"^## (.*)$", document, flags=re.MULTILINE)
    return dict(zip(parts[1::2], parts[2::2]))[heading]


def rows_of(text: str) -> list[list[str]]:
    """The cells of all rows of the tables in a text, without their headings."""
    lines = text.splitlines()
    rows = []
    for place, line in enumerate(lines):
        below = lines[place + 1] if place + 1 < len(lines) else ""
        if not line.startswith("|") or _is_rule(line) or _is_rule(below):
            continue
        rows.append([cell.strip() for cell in line.strip().strip("|").split("|")])
    return rows


def _is_rule(line):
    return bool(re.match(r"^\|[-| ]+\|$", line))
