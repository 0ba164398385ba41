"""Reads the scenarios: what is to be done on a machine, and what must come of it. README.md in the folder
"scenarios" describes their files. Whatever is not understood is a ScenarioError that names file and line."""

import getpass
import re
from dataclasses import dataclass, field
from pathlib import Path

from machine_case import INSTALL_DIR
from winemachine import StrPath

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
SCRIPT_HEADER = "Windows Registry Editor Version 5.00"

_WORDS_BEFORE = ("file", "folder", "without", "protected", "held", "translators", "tool")
_WORDS_AFTER = ("file", "folder", "nothing", "only")
_PATH = re.compile(r"^C:\\[^<>|?*\"/]*[^<>|?*\"/\\ ]$")
_RUN = re.compile(r"^(?:(C:\\[^>]*)> )?(-.*)$")
_PROCESS = re.compile(r"^(C:\\.*\\(?:NVX|NVXSolver|NVXServer|NVXMonitor)\.exe) (is ended|runs on)$", re.I)
_VALUE = re.compile(r'^(?:"((?:[^"\\]|\\.)*)"|(@))=(.*)$')


class ScenarioError(Exception):
    """A scenario that says something that cannot be read."""


@dataclass
class FileLine:
    """One line of files-before.txt or files-after.txt. Of contents, names and like at most one is set."""

    word: str
    path: str
    contents: bytes | None = None  # of a line with "=" or "<"
    like: str | None = None
    names: tuple[str, ...] = ()


@dataclass
class Run:
    tokens: list[str]
    folder: str | None = None  # the working folder, None where it does not matter


@dataclass
class Process:
    path: str
    is_ended: bool


@dataclass
class Expectation:
    """A value of the registry; text None for no such value, name None for the key itself."""

    key: str
    name: str | None = None
    text: str | None = None
    is_there: bool = True


@dataclass
class Scenario:
    name: str
    install_dir: str = INSTALL_DIR
    locale: str = "C.UTF-8"
    steps: list[Run | FileLine] = field(default_factory=list)  # of Run and, between them, FileLine
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
                raise ScenarioError(f"{scenario.name}: there is no {name}")
        self._each_line("runs.txt", self._read_run)
        self._each_line("files-before.txt", lambda line: self._read_before(line, scenario.before))
        self._each_line("files-after.txt", self._read_after)
        self._each_line("processes.txt", self._read_process)
        self._each_line("locale.txt", self._read_locale)
        scenario.log = self._text("log.txt").splitlines()
        scenario.script = self._text("registry-before.reg")
        if scenario.script and scenario.script.splitlines()[0] != SCRIPT_HEADER:
            raise ScenarioError(f"{scenario.name}: registry-before.reg has another header")
        self._read_registry()
        if not any(isinstance(step, Run) for step in scenario.steps):
            raise ScenarioError(f"{scenario.name}: runs.txt names no run")
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
            raise ScenarioError("neither options nor a line with a +: " + line)
        steps.append(Run(run.group(2).split(" "), run.group(1)))

    def _read_before(self, line, target):
        found = self._file_line(line, _WORDS_BEFORE)
        if found.like or found.names:
            raise ScenarioError("only what is expected can be told so: " + line)
        if (found.word in ("file", "tool")) != (found.contents is not None):
            raise ScenarioError("'file' and 'tool' have contents, and nothing else has: " + line)
        target.append(found)

    def _read_after(self, line):
        found = self._file_line(line, _WORDS_AFTER)
        if found.word != "file" and (found.contents is not None or found.like):
            raise ScenarioError("only a file has contents: " + line)
        if (found.word == "only") != bool(found.names):
            raise ScenarioError("'only' is followed by names: " + line)
        self._scenario.after.append(found)

    def _file_line(self, line, words):
        word, _, rest = line.partition(" ")
        if word not in words:
            raise ScenarioError(f"'{word}' is none of {', '.join(words)}")
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
            raise ScenarioError("this is no path of drive C: " + path)
        return path

    def _contents(self, name):
        path = self._folder / name
        if name in KNOWN_FILES or not path.is_file():
            raise ScenarioError(f"the scenario has no file of contents '{name}'")
        self._named.add(name)
        return path.read_bytes()

    def _read_process(self, line):
        process = _PROCESS.match(line)
        if not process:
            raise ScenarioError("not a program of the product that 'is ended' or 'runs on': " + line)
        self._scenario.processes.append(Process(process.group(1), process.group(2) == "is ended"))

    def _read_locale(self, line):
        if not re.match(r"^[a-z]{2}_[A-Z]{2}\.UTF-8$", line):
            raise ScenarioError("not the name of a locale: " + line)
        self._scenario.locale = line

    def _read_registry(self):
        lines = self._text("registry-after.reg").splitlines()
        if lines and lines[0] != SCRIPT_HEADER:
            raise ScenarioError(f"{self._scenario.name}: registry-after.reg has another header")
        key = None
        for line in [line for line in lines[1:] if line]:
            stated = re.match(r"^\[(-?)((?:HKEY_LOCAL_MACHINE|HKEY_CURRENT_USER)\\.*)\]$", line)
            value = _VALUE.match(line)
            if stated:
                key = stated.group(2)
                self._scenario.registry.append(Expectation(key, is_there=not stated.group(1)))
            elif value and key:
                self._scenario.registry.append(self._value(key, value))
            else:
                raise ScenarioError(f"{self._scenario.name}: registry-after.reg: {line}")

    @staticmethod
    def _value(key, value):
        name = _unescaped(value.group(1) or "")
        text = value.group(3)
        if text == "-":
            return Expectation(key, name, is_there=False)
        quoted = re.match(r'^"(.*)"$', text)
        return Expectation(key, name, _unescaped(quoted.group(1)) if quoted else text)

    def _refuse_unknown_files(self):
        for path in sorted(self._folder.iterdir()):
            if path.name not in KNOWN_FILES and path.name not in self._named:
                raise ScenarioError(f"{self._scenario.name}: nobody names the file {path.name}")


def _unescaped(text):
    return re.sub(r"\\(.)", r"\1", text)


def log_difference(expected: list[str], lines: list[str]) -> list[str] | None:
    """Why a log is not as expected, in lines to read; None when it is. In what is expected "..." stands for
    any lines, and "<...>" in a line for any text."""
    # The lines of a block follow each other; before a free one there may be any lines.
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
        return ["the log goes on:", *("  log       " + line for line in lines[at : at + 20])]
    return None


def _find(block, lines, at, free):
    starts = range(at, len(lines) - len(block) + 1) if free else range(at, at + 1)
    return next((s for s in starts if _common(block, lines, s) == len(block)), None)


def _common(block, lines, start):
    """How many lines of the block are those of the log from a place on."""
    count = 0
    for wanted, line in zip(block, lines[start:]):
        if not _is_line(wanted, line):
            break
        count += 1
    return count


def _is_line(wanted, line):
    if "<...>" not in wanted:
        return wanted == line
    return re.fullmatch(".*".join(map(re.escape, wanted.split("<...>"))), line) is not None


def _shown_mismatch(block, lines, at, free):
    """The block beside the place of the log that is most like it."""
    starts = range(at, len(lines)) if free else range(at, at + 1)
    best = max(starts, key=lambda start: _common(block, lines, start), default=at)
    common = _common(block, lines, best)
    where = f" behind its line {at}" if at else ""
    shown = [f"these lines are not in the log{where}:"]
    shown += ["  as wanted " + line for line in block[:common]]
    shown += ["  wanted    " + line for line in block[common:]]
    if common or not free:
        shown += ["  log       " + line for line in lines[best + common : best + common + 5]]
    else:
        shown += ["the log there:"] + ["  log       " + line for line in lines[at : at + 200]]
    return shown
