"""Reads the scenarios, whose files scenarios/README.md describes. A ScenarioError names the file and the line
that cannot be read."""

import getpass
import re
from dataclasses import dataclass, field
from pathlib import Path

from machine_case import INSTALL_DIR
from winemachine import StrPath
from wineregistry import SCRIPT_HEADER

KNOWN_FILES = (
    "runs.txt",
    "log.txt",
    "registry-before.reg",
    "files-before.txt",
    "processes.txt",
    "locale.txt",
    "registry-after.reg",
    "files-after.txt",
)
REQUIRED_FILES = ("runs.txt", "log.txt")

_WORDS_BEFORE = ("file", "folder", "without", "protected", "held", "translators", "tool")
_WORDS_AFTER = ("file", "folder", "nothing", "only")
_PATH = re.compile(r"^C:\\[^<>|?*\"/]*[^<>|?*\"/\\ ]$")
_RUN = re.compile(r"^(?:(C:\\[^>]*)> )?(-.*)$")
_PROCESS = re.compile(r"^(C:\\.*\\(?:NVX|NVXSolver|NVXServer|NVXMonitor)\.exe) (is ended|runs on)$", re.I)
_VALUE = re.compile(r'^(?:"((?:[^"\\]|\\.)*)"|(@))=(.*)$')


class ScenarioError(Exception):
    """A scenario with a wrong file or line."""


@dataclass
class FileLine:
    """One line of files-before.txt or files-after.txt. At most one of contents, names and like is set."""

    word: str
    path: str
    contents: bytes | None = None  # after "=" or "<"
    like: str | None = None
    names: tuple[str, ...] = ()


@dataclass
class Run:
    tokens: list[str]
    folder: str | None = None  # the working folder, None for any


@dataclass
class Process:
    path: str
    is_ended: bool


@dataclass
class Expectation:
    """A value of the registry: `text` is None if it must not exist; `name` is None for the key itself."""

    key: str
    name: str | None = None
    text: str | None = None
    exists: bool = True


@dataclass
class Scenario:
    name: str
    install_dir: str = INSTALL_DIR
    locale: str = "C.UTF-8"
    steps: list[Run | FileLine] = field(default_factory=list)  # the runs, and the changes between them
    before: list[FileLine] = field(default_factory=list)
    after: list[FileLine] = field(default_factory=list)
    processes: list[Process] = field(default_factory=list)
    log: list[str] = field(default_factory=list)
    script: str = ""
    registry: list[Expectation] = field(default_factory=list)


def read_scenario(folder: StrPath) -> Scenario:
    return _Reader(Path(folder)).read()


class _Reader:
    def __init__(self, folder: Path) -> None:
        self._folder = folder
        self._named: set[str] = set()
        self._scenario = Scenario(folder.name)

    def read(self) -> Scenario:
        scenario = self._scenario
        for name in REQUIRED_FILES:
            if not (self._folder / name).is_file():
                raise ScenarioError(f"{scenario.name}: {name} is missing")
        self._each_line("runs.txt", self._read_run)
        self._each_line("files-before.txt", lambda line: self._read_before(line, scenario.before))
        self._each_line("files-after.txt", self._read_after)
        self._each_line("processes.txt", self._read_process)
        self._each_line("locale.txt", self._read_locale)
        scenario.log = self._text("log.txt").splitlines()
        scenario.script = self._text("registry-before.reg")
        if scenario.script and scenario.script.splitlines()[0] != SCRIPT_HEADER:
            raise ScenarioError(f"{scenario.name}: registry-before.reg has a wrong header")
        self._read_registry()
        if not any(isinstance(step, Run) for step in scenario.steps):
            raise ScenarioError(f"{scenario.name}: runs.txt has no run")
        self._refuse_unknown_files()
        return scenario

    def _text(self, name):
        path = self._folder / name
        text = path.read_text(encoding="utf-8") if path.exists() else ""
        return text.replace("{user}", getpass.getuser())

    def _each_line(self, name, read_line):
        for number, line in enumerate(self._text(name).splitlines(), 1):
            if not line.strip() or line.startswith("#"):
                continue
            try:
                read_line(line)
            except ScenarioError as error:
                raise ScenarioError(f"{self._scenario.name}/{name}:{number}: {error}")

    def _read_run(self, line):
        steps = self._scenario.steps
        if line.startswith("+ "):
            self._read_before(line[2:], steps)
            return
        if line.startswith("product ") and not steps:
            self._scenario.install_dir = self._checked_path(line[len("product ") :])
            return
        run = _RUN.match(line)
        if not run:
            raise ScenarioError("expected options, or a line with a +: " + line)
        steps.append(Run(run.group(2).split(" "), run.group(1)))

    def _read_before(self, line, target):
        found = self._file_line(line, _WORDS_BEFORE)
        if found.like or found.names:
            raise ScenarioError("'like' and names are for files-after.txt only: " + line)
        if (found.word in ("file", "tool")) != (found.contents is not None):
            raise ScenarioError(
                "contents are required for 'file' and 'tool', and allowed for these only: " + line
            )
        target.append(found)

    def _read_after(self, line):
        found = self._file_line(line, _WORDS_AFTER)
        if found.word != "file" and (found.contents is not None or found.like):
            raise ScenarioError("contents are allowed for 'file' only: " + line)
        if (found.word == "only") != bool(found.names):
            raise ScenarioError("names are required for 'only', and allowed for it only: " + line)
        self._scenario.after.append(found)

    def _file_line(self, line, words):
        word, _, rest = line.partition(" ")
        if word not in words:
            raise ScenarioError(f"'{word}' is not one of {', '.join(words)}")
        if word == "only":
            path, _, names = rest.partition(" = ")
            return FileLine(word, self._checked_path(path), names=tuple(filter(None, names.split(", "))))
        parts = re.match(r"^(.*?)(?: (=|<|like)(?: (.*))?)?$", rest)
        if not parts:
            raise ScenarioError("not a path: " + rest)
        found = FileLine(word, self._checked_path(parts.group(1)))
        sign, operand = parts.group(2), parts.group(3) or ""
        if sign == "=":
            found.contents = operand.encode("utf-8")
        elif sign == "<":
            found.contents = self._contents(operand)
        elif sign == "like":
            found.like = self._checked_path(operand)
        return found

    @staticmethod
    def _checked_path(path):
        if not _PATH.match(path):
            raise ScenarioError("not a path on drive C: " + path)
        return path

    def _contents(self, name):
        path = self._folder / name
        if name in KNOWN_FILES or not path.is_file():
            raise ScenarioError(f"the scenario has no file '{name}' with contents")
        self._named.add(name)
        return path.read_bytes()

    def _read_process(self, line):
        process = _PROCESS.match(line)
        if not process:
            raise ScenarioError("expected a program of the product, and 'is ended' or 'runs on': " + line)
        self._scenario.processes.append(Process(process.group(1), process.group(2) == "is ended"))

    def _read_locale(self, line):
        if not re.match(r"^[a-z]{2}_[A-Z]{2}\.UTF-8$", line):
            raise ScenarioError("not a locale: " + line)
        self._scenario.locale = line

    def _read_registry(self):
        lines = self._text("registry-after.reg").splitlines()
        if lines and lines[0] != SCRIPT_HEADER:
            raise ScenarioError(f"{self._scenario.name}: registry-after.reg has a wrong header")
        key = None
        for line in [line for line in lines[1:] if line]:
            key_line = re.match(r"^\[(-?)((?:HKEY_LOCAL_MACHINE|HKEY_CURRENT_USER)\\.*)\]$", line)
            value = _VALUE.match(line)
            if key_line:
                key = key_line.group(2)
                self._scenario.registry.append(Expectation(key, exists=not key_line.group(1)))
            elif value and key:
                self._scenario.registry.append(self._value(key, value))
            else:
                raise ScenarioError(f"{self._scenario.name}: registry-after.reg: {line}")

    @staticmethod
    def _value(key, value):
        name = _unescaped(value.group(1) or "")
        text = value.group(3)
        if text == "-":
            return Expectation(key, name, exists=False)
        quoted = re.match(r'^"(.*)"$', text)
        return Expectation(key, name, _unescaped(quoted.group(1)) if quoted else text)

    def _refuse_unknown_files(self):
        for path in sorted(self._folder.iterdir()):
            if path.name not in KNOWN_FILES and path.name not in self._named:
                raise ScenarioError(f"{self._scenario.name}: no line names the file {path.name}")


def _unescaped(text):
    return re.sub(r"\\(.)", r"\1", text)


def log_difference(expected: list[str], lines: list[str]) -> list[str] | None:
    """A description of the first difference, None if there is none.

    In `expected` a line "..." stands for any lines, and "<...>" in a line for any text.
    """
    # Blocks of consecutive lines; any lines may precede a free block.
    blocks: list[list[str]] = [[]]
    is_free = [False]
    for line in expected:
        if line == "...":
            blocks.append([])
            is_free.append(True)
        else:
            blocks[-1].append(line)
    ends_free = bool(expected) and expected[-1] == "..."
    at = 0
    for number, (block, free) in enumerate(zip(blocks, is_free)):
        is_last = number == len(blocks) - 1
        if is_last and not ends_free and free:
            at = max(at, len(lines) - len(block))
            free = False
        start = _find(block, lines, at, free)
        if start is None:
            return _shown_mismatch(block, lines, at, free)
        at = start + len(block)
    if not ends_free and at < len(lines):
        return ["the log has more lines:", *("  log         " + line for line in lines[at : at + 20])]
    return None


def _find(block, lines, at, free):
    starts = range(at, len(lines) - len(block) + 1) if free else range(at, at + 1)
    return next((s for s in starts if _common(block, lines, s) == len(block)), None)


def _common(block, lines, start):
    """The number of lines at the start of the block that match the log from `start`."""
    count = 0
    for expected, line in zip(block, lines[start:]):
        if not _matches(expected, line):
            break
        count += 1
    return count


def _matches(expected, line):
    return re.fullmatch(".*".join(map(re.escape, expected.split("<...>"))), line) is not None


def _shown_mismatch(block, lines, at, free):
    """The block and the lines of the log that are most similar to it."""
    starts = range(at, len(lines)) if free else range(at, at + 1)
    best = max(starts, key=lambda start: _common(block, lines, start), default=at)
    common = _common(block, lines, best)
    where = f" after its line {at}" if at else ""
    shown = [f"these lines are not in the log{where}:"]
    shown += ["  as expected " + line for line in block[:common]]
    shown += ["  expected    " + line for line in block[common:]]
    if common or not free:
        shown += ["  log         " + line for line in lines[best + common : best + common + 5]]
    else:
        shown += ["the log:"] + ["  log         " + line for line in lines[at : at + 200]]
    return shown
