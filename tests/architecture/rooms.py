"""The rooms of the code, as docs/architecture.md lists them, and what the sources say of each other.

The table in the document is the one place where the arrows between the rooms stand: `read_rooms` reads it,
and `forbidden_includes` and `forbidden_links` hold the #include lines and the CMake files against it.
"""

import re
from collections.abc import Iterable, Iterator
from dataclasses import dataclass
from pathlib import Path

# Where #include "..." is looked for, in this order, after the file's own folder.
INCLUDE_FOLDERS = (
    "Config/source",
    "Utility/include",
    "Utility/source",
    "FileIO/include",
    "Client/source",
    "source",
)
CODE_FOLDERS = ("Utility", "FileIO", "Config", "Client", "source")

_ROW = re.compile(r"^\| \*\*(\w+)\*\* \| ([^|]*) \| ([^|]*) \| ([^|]*)\|$", re.MULTILINE)
_INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
_COMMENT = re.compile(r"#[^\n]*")
_LIBRARY = re.compile(r"\bnvx_library\(\s*(\w+)([^)]*)\)")
_PROGRAM = re.compile(r"\badd_executable\(\s*(\w+)([^)]*)\)")
_LINKS = re.compile(r"\btarget_link_libraries\(\s*(\w+)\s+PRIVATE([^)]*)\)")


@dataclass(frozen=True)
class Room:
    name: str
    patterns: tuple[str, ...]  # folders ("Client/source/") and beginnings of paths ("source/mat_*")
    knows: frozenset[str]


@dataclass(frozen=True)
class Target:
    """A library or a program, the files that it is made of and what it links."""

    name: str
    sources: tuple[str, ...]
    links: tuple[str, ...]


Rooms = dict[str, Room]
Arrow = tuple[str | None, str | None, str]  # from, to, what makes it


def read_rooms(document: str) -> Rooms:
    """{name: Room} of the document's table."""
    rooms = {}
    for name, files, _, knows in _ROW.findall(document):
        patterns = tuple(re.findall(r"`([^`]+)`", files))
        rooms[name] = Room(name, patterns, frozenset(re.findall(r"\w+", knows)))
    return rooms


def room_of(rooms: Rooms, path: str) -> str | None:
    """The name of the room that a file lies in: that of the longest pattern; None without one."""
    found = [
        (len(pattern), room.name)
        for room in rooms.values()
        for pattern in room.patterns
        if path.startswith(pattern.rstrip("*"))
    ]
    return max(found)[1] if found else None


def source_files(root: str | Path) -> list[str]:
    """The paths of the C++ files of all rooms."""
    return sorted(
        path.relative_to(root).as_posix()
        for folder in CODE_FOLDERS
        for path in (Path(root) / folder).rglob("*")
        if path.suffix in (".h", ".cpp")
    )


def includes_of(root: str | Path, path: str) -> Iterator[tuple[str, str | None]]:
    """The files of ours that a file includes: (the text between the quotes, the path or None)."""
    root = Path(root)
    for name in _INCLUDE.findall((root / path).read_text(encoding="utf-8")):
        if name.endswith(".moc"):
            continue
        folders = (Path(path).parent.as_posix(), *INCLUDE_FOLDERS)
        places = (Path(folder) / name for folder in folders)
        found = next((place.as_posix() for place in places if (root / place).is_file()), None)
        yield name, found


def arrows_of_includes(root: str | Path, rooms: Rooms) -> Iterator[Arrow]:
    """Every arrow from one room to another: (room, room, what makes it)."""
    for path in source_files(root):
        for name, found in includes_of(root, path):
            if found is None:
                continue
            yield room_of(rooms, path), room_of(rooms, found), f'{path} includes "{name}"'


def targets_of(root: str | Path) -> dict[str, Target]:
    """The libraries and programs that the CMake files of the rooms declare."""
    targets = {}
    for folder in CODE_FOLDERS:
        for file in sorted((Path(root) / folder).rglob("CMakeLists.txt")):
            text = _COMMENT.sub("", file.read_text(encoding="utf-8"))
            place = file.parent.relative_to(root).as_posix()
            linked = {name: words.split() for name, words in _LINKS.findall(text)}
            for name, words in _LIBRARY.findall(text):
                sources, links = _parts_of_library(words)
                targets[name] = Target(name, _paths(place, sources), tuple(links))
            for name, words in _PROGRAM.findall(text):
                links = linked.get(name, [])
                targets[name] = Target(name, _paths(place, words.split()), tuple(links))
    return targets


def _parts_of_library(words):
    parts: dict[str, list[str]] = {"INCLUDES": [], "SOURCES": [], "LINKS": []}
    part: list[str] = []
    for word in words.split():
        part = parts.get(word, part)
        if word not in parts:
            part.append(word)
    return parts["SOURCES"], parts["LINKS"]


def _paths(place, words):
    """A source that is picked by the operating system stands for that of each."""
    paths = []
    for word in words:
        if word.endswith(".cpp"):
            for platform in ("unix", "windows") if "${platform}" in word else ("",):
                paths.append(place + "/" + word.replace("${platform}", platform))
    return tuple(paths)


def main_room(rooms: Rooms, target: Target) -> str | None:
    """The room that most of a target's files lie in."""
    found = [room_of(rooms, source) for source in target.sources]
    return max(set(found), key=lambda room: (found.count(room), str(room)))


def arrows_of_links(rooms: Rooms, targets: dict[str, Target]) -> Iterator[Arrow]:
    for target in targets.values():
        for link in target.links:
            if link in targets:
                yield (
                    main_room(rooms, target),
                    main_room(rooms, targets[link]),
                    f"{target.name} links {link}",
                )


def forbidden(rooms: Rooms, arrows: Iterable[Arrow]) -> list[str]:
    """What the table does not allow, each with the table's word on it."""
    faults = []
    for start, end, cause in arrows:
        if start == end or (start in rooms and end in rooms[start].knows):
            continue
        allowed = ", ".join(sorted(rooms[start].knows)) if start in rooms else "nothing"
        faults.append(f"{cause}: {start} may know {allowed}, not {end}")
    return faults


def unused_arrows(rooms: Rooms, arrows: Iterable[Arrow]) -> list[tuple[str, str]]:
    """What the table allows and nothing uses: (room, room)."""
    used = {(start, end) for start, end, _ in arrows}
    return sorted(
        (room.name, known)
        for room in rooms.values()
        for known in room.knows
        if (room.name, known) not in used
    )


def circle(rooms: Rooms) -> list[str]:
    """A way along the arrows that comes back to its start; empty when there is none."""

    def search(name, way):
        if name in way:
            return way[way.index(name) :] + [name]
        for known in sorted(rooms[name].knows & rooms.keys()):
            found = search(known, way + [name])
            if found:
                return found
        return []

    for name in rooms:
        found = search(name, [])
        if found:
            return found
    return []
