"""The modules that docs/architecture.md lists, and the dependencies found in the sources.

The document's table is the only place where the dependencies are defined. `read_modules` reads it, and
`forbidden` checks the #include lines and the CMake files against it.
"""

import re
from collections.abc import Iterable, Iterator
from dataclasses import dataclass
from pathlib import Path

# The folders searched for #include "...", in this order, after the file's own folder.
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
class Module:
    name: str
    folders: tuple[str, ...]  # such as "Client/source/"
    uses: frozenset[str]


@dataclass(frozen=True)
class Target:
    """A library or a program, its source files and the libraries it links."""

    name: str
    sources: tuple[str, ...]
    links: tuple[str, ...]


Modules = dict[str, Module]
Dependency = tuple[str | None, str | None, str]  # from, to, cause


def read_modules(document: str) -> Modules:
    """{name: Module} of the document's table."""
    modules = {}
    for name, files, _, uses in _ROW.findall(document):
        folders = tuple(re.findall(r"`([^`]+)`", files))
        modules[name] = Module(name, folders, frozenset(re.findall(r"\w+", uses)))
    return modules


def module_of(modules: Modules, path: str) -> str | None:
    """The name of the module with the longest folder that contains the file, or None."""
    found = [
        (len(folder), module.name)
        for module in modules.values()
        for folder in module.folders
        if path.startswith(folder)
    ]
    return max(found)[1] if found else None


def source_files(root: str | Path) -> list[str]:
    """The paths of the C++ files of all modules."""
    return sorted(
        path.relative_to(root).as_posix()
        for folder in CODE_FOLDERS
        for path in (Path(root) / folder).rglob("*")
        if path.suffix in (".h", ".cpp")
    )


def includes_of(root: str | Path, path: str) -> Iterator[tuple[str, str | None]]:
    """The project's files that a file includes: (text between the quotes, path or None)."""
    root = Path(root)
    for name in _INCLUDE.findall((root / path).read_text(encoding="utf-8")):
        if name.endswith(".moc"):
            continue
        folders = (Path(path).parent.as_posix(), *INCLUDE_FOLDERS)
        places = (Path(folder) / name for folder in folders)
        found = next((place.as_posix() for place in places if (root / place).is_file()), None)
        yield name, found


def dependencies_of_includes(root: str | Path, modules: Modules) -> Iterator[Dependency]:
    """Every include across modules: (module, module, cause)."""
    for path in source_files(root):
        for name, found in includes_of(root, path):
            if found is None:
                continue
            yield module_of(modules, path), module_of(modules, found), f'{path} includes "{name}"'


def targets_of(root: str | Path) -> dict[str, Target]:
    """The libraries and programs that the CMake files of the modules declare."""
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
    """A source chosen by operating system counts once for each system."""
    paths = []
    for word in words:
        if word.endswith(".cpp"):
            for platform in ("unix", "windows") if "${platform}" in word else ("",):
                paths.append(place + "/" + word.replace("${platform}", platform))
    return tuple(paths)


def main_module(modules: Modules, target: Target) -> str | None:
    """The module that contains most of a target's files."""
    found = [module_of(modules, source) for source in target.sources]
    return max(set(found), key=lambda module: (found.count(module), str(module)))


def dependencies_of_links(modules: Modules, targets: dict[str, Target]) -> Iterator[Dependency]:
    for target in targets.values():
        for link in target.links:
            if link in targets:
                yield (
                    main_module(modules, target),
                    main_module(modules, targets[link]),
                    f"{target.name} links {link}",
                )


def forbidden(modules: Modules, dependencies: Iterable[Dependency]) -> list[str]:
    """The dependencies that the table does not allow, each with what it allows instead."""
    violations = []
    for start, end, cause in dependencies:
        if start == end or (start in modules and end in modules[start].uses):
            continue
        allowed = ", ".join(sorted(modules[start].uses)) if start in modules else "nothing"
        violations.append(f"{cause}: {start} may use {allowed}, not {end}")
    return violations


def unused_dependencies(modules: Modules, dependencies: Iterable[Dependency]) -> list[tuple[str, str]]:
    """Dependencies that the table allows and no source has: (module, module)."""
    present = {(start, end) for start, end, _ in dependencies}
    return sorted(
        (module.name, used)
        for module in modules.values()
        for used in module.uses
        if (module.name, used) not in present
    )


def cycle(modules: Modules) -> list[str]:
    """A cycle in the dependencies, as the names along it; empty if there is none."""

    def search(name, path):
        if name in path:
            return path[path.index(name) :] + [name]
        for used in sorted(modules[name].uses & modules.keys()):
            found = search(used, path + [name])
            if found:
                return found
        return []

    for name in modules:
        found = search(name, [])
        if found:
            return found
    return []
