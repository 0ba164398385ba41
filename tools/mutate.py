"""Runs the tests of each pure function on small changes of it; called by tools/mutate.

A change (mutant) that no test detects survives and is printed. All work is done in a copy of the sources in
build/mutate. The tests are built there once with the native preset. Then the changed file is compiled for
each mutant, without optimisation and with precompiled includes, and linked before the library with the
unchanged file.

tools/mutate.txt lists the files, the tests of each in the order in which they are run, and the changes that
make no difference, with the reason.
"""

import argparse
import json
import os
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import time
from collections.abc import Iterable
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path
from queue import Queue
from typing import NoReturn
from xml.etree import ElementTree

from mutants import Mutant, mutants_of, mutated

ROOT = Path(__file__).resolve().parent.parent
LIST = ROOT / "tools" / "mutate.txt"
COPY = ROOT / "build" / "mutate"
BUILD = COPY / "build" / "native"  # as in a checkout, so that the compiler cache can be used
WORK = COPY / "build" / "mutants"
MEMORY = 2 << 30  # bytes that a test may use
ATTEMPTS = 3  # of a test that reached its time-out
OUTCOMES = ("killed", "timed out", "did not compile", "survived", "accepted")


def stop(complaint: str) -> NoReturn:
    sys.exit(f"error: {complaint}")


@dataclass
class Unit:
    """A source file, its tests, and the changes that make no difference: {(source, change): reason}."""

    file: str
    tests: list[str]
    accepted: dict[tuple[str, str], str] = field(default_factory=dict)


def read_list(text: str) -> list[Unit]:
    """The units of tools/mutate.txt:

    FILE: TEST TEST...
        > THE LINE OF THE SOURCE
            CHANGE because REASON
    """
    units: list[Unit] = []
    source = ""
    for number, line in enumerate(text.split("\n"), 1):
        stripped = line.strip()
        if not stripped or line.startswith("#"):
            continue
        if not line.startswith(" "):
            file, _, tests = line.partition(":")
            units.append(Unit(file, tests.split()))
        elif line.startswith("    > "):  # a change may begin like this too, with a deeper indent
            source = stripped[2:]
        else:
            change, because, reason = stripped.rpartition(" because ")
            if not because or not reason or not units:
                stop(f"{LIST}:{number}: expected a change, 'because' and a reason")
            units[-1].accepted[source, change] = reason
    return units


# --- the copy -------------------------------------------------------------------------------------------


def bring_copy_up_to_date() -> None:
    """Writes only files that differ, so that only these are built again."""
    listed = subprocess.run(
        ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
        cwd=ROOT,
        check=True,
        capture_output=True,
        text=True,
    )
    names = [name for name in listed.stdout.split("\0") if name and (ROOT / name).is_file()]
    for name in names:
        target, contents = COPY / name, (ROOT / name).read_bytes()
        if not target.is_file() or target.read_bytes() != contents:
            target.parent.mkdir(parents=True, exist_ok=True)
            target.write_bytes(contents)
            shutil.copymode(ROOT / name, target)
    wanted = {str(COPY / name) for name in names}
    for folder, subfolders, present in os.walk(COPY):
        if folder == str(COPY) and "build" in subfolders:
            subfolders.remove("build")
        for path in (os.path.join(folder, name) for name in present):
            if path not in wanted:
                os.remove(path)


def build(tests: Iterable[str]) -> dict[str, list[str]]:
    """Builds the programs that hold these tests; returns {test: [target of its program, argument...]}."""
    WORK.mkdir(parents=True, exist_ok=True)
    log = WORK / "build.log"
    fast_linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
    with open(log, "w", encoding="utf-8") as output:

        def run(command):
            done = subprocess.run(command, cwd=COPY, stdout=output, stderr=output, check=False)
            if done.returncode != 0:
                stop(f"the build of the copy failed; see {log}")

        run(["cmake", "--preset", "native", *fast_linker])
        commands: dict[str, list[str]] = {}
        for file in sorted(BUILD.rglob("CTestTestfile.cmake")):
            commands |= test_commands(file.read_text(encoding="utf-8"), BUILD)
        for test in tests:
            if test not in commands:
                stop(f"unknown test {test}")
        run(["ninja", "-C", str(BUILD), *sorted({commands[test][0] for test in tests})])
    return {test: commands[test] for test in tests}


def test_commands(registered: str, folder: Path) -> dict[str, list[str]]:
    """The tests in a file of CTest that are programs below the folder: {name: [target, argument...]}."""
    line = r'^add_test\((?:\[=*\[)?(\w+)(?:\]=*\])? (".*")\)$'
    commands = {}
    for name, words in re.findall(line, registered, re.MULTILINE):
        program, *arguments = shlex.split(words)
        if Path(program).is_relative_to(folder):
            commands[name] = [Path(program).relative_to(folder).as_posix(), *arguments]
    return commands


# --- one file ------------------------------------------------------------------------------------------


def compile_command(file: str) -> list[str]:
    """The compiler's call for a file of the copy, without its launcher, its input and its output."""
    entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    command = next((entry["command"] for entry in entries if entry["file"] == str(COPY / file)), None)
    if command is None:
        stop(f"{file} is not compiled in the native build")
    words = shlex.split(command)
    launcher = [at for at, word in enumerate(words) if word.endswith("ccache")]
    words = words[launcher[-1] + 1 :] if launcher else words
    for option in ("-o", "-c", "-include"):  # -include is the build's precompiled header
        while option in words:
            at = words.index(option)
            del words[at : at + 2]
    words = [word for word in words if word != "-Werror"]
    # Compiling takes most of a run, and clang reads precompiled includes twice as fast.
    return ["clang++", *words[1:], "-O0", "-g0", "-w", "-iquote", str((COPY / file).parent)]


def link_command(target: str) -> list[str]:
    """The words of the linker's call for a program."""
    last = subprocess.run(
        ["ninja", "-t", "commands", "-s", target], cwd=BUILD, check=True, capture_output=True, text=True
    ).stdout.strip()
    return [word for word in shlex.split(last) if word not in (":", "&&")]


@dataclass
class Test:
    name: str
    target: str  # the program that contains it
    arguments: list[str]  # select it in the program
    link: list[str]
    runs: list[tuple[list[str], float]] = field(default_factory=list)  # (functions, [] for all; seconds)

    def link_with(self, object_file: Path, program: Path) -> None:
        """Links the test with the object in place of the library's."""
        words = [str(program) if word == self.target else word for word in self.link]
        first = next(at for at, word in enumerate(words) if word.endswith(".a"))
        command = [*words[:first], str(object_file), *words[first:], "-Wl,--strip-debug"]
        subprocess.run(command, cwd=BUILD, check=True, stderr=subprocess.PIPE)


class Bench:
    """Compiles and tries the mutants of one file."""

    def __init__(self, unit: Unit, place: Path, commands: dict[str, list[str]]) -> None:
        self.unit = unit
        self.place = place
        self.text = (COPY / unit.file).read_text(encoding="utf-8")
        self.command = compile_command(unit.file)
        self.tests = [
            Test(name, target, arguments, link_command(target))
            for name, (target, *arguments) in ((name, commands[name]) for name in unit.tests)
        ]
        shutil.rmtree(place, ignore_errors=True)
        place.mkdir(parents=True)
        self.preamble_end = self.precompile_includes()

    def precompile_includes(self) -> int:
        """Precompiles the includes at the top of the file; returns the number of their lines."""
        lines = self.text.split("\n")
        length = 0
        while length < len(lines) and (not lines[length] or lines[length].startswith(("#include", "//"))):
            length += 1
        (self.place / "preamble.h").write_text("\n".join(lines[:length]) + "\n", encoding="utf-8")
        command = [*self.command, "-x", "c++-header", "-fpch-instantiate-templates", "preamble.h"]
        command += ["-o", "preamble.pch"]
        subprocess.run(command, cwd=self.place, check=True)
        return length

    def compile(self, text: str, folder: Path) -> bool:
        """Compiles a text under the file's name, which assertions contain; False if that fails."""
        lines = text.split("\n")
        source = folder / "mutant.cpp"
        rest = "\n".join(lines[self.preamble_end :])
        named = f'#line {self.preamble_end + 1} "{COPY / self.unit.file}"\n'
        source.write_text(named + rest, encoding="utf-8")
        object_file = folder / "mutant.o"
        command = [*self.command, "-include-pch", "preamble.pch", "-c", str(source), "-o", str(object_file)]
        done = subprocess.run(command, cwd=self.place, capture_output=True, text=True, check=False)
        return done.returncode == 0

    def outcome(self, text: str, folder: Path) -> str:
        """The outcome of a changed text: 'killed', 'timed out', 'did not compile' or 'survived'."""
        if not self.compile(text, folder):
            return "did not compile"
        for test in self.tests:
            program = folder / test.name
            test.link_with(folder / "mutant.o", program)
            command = [str(program), *test.arguments]
            for functions, seconds in test.runs:
                result, _ = run_test(command, functions, folder, seconds)
                # Some hosts end a program long before it has used its processor time.
                for _ in range(ATTEMPTS - 1):
                    if result == "timed out":
                        result, _ = run_test(command, functions, folder, seconds)
                if result != "passed":
                    return result
        return "survived"

    def try_unchanged(self, folder: Path) -> None:
        """Checks that the tests pass on the unchanged file, and measures them."""
        if not self.compile(self.text, folder):
            stop(f"{self.unit.file} does not compile unchanged")
        for test in self.tests:
            program = folder / test.name
            test.link_with(folder / "mutant.o", program)
            command = [str(program), *test.arguments]
            times = folder / "times.xml"
            result, seconds = run_test(command, ["-o", f"{times},xml"], folder, 60)
            if result != "passed":
                stop(f"{test.name} fails on the unchanged {self.unit.file}; see {times}")
            quick, slow = quick_and_slow_functions(times.read_text(encoding="utf-8"))
            test.runs = [(quick, seconds), (slow, seconds)] if quick and slow else [([], seconds)]


def quick_and_slow_functions(report: str) -> tuple[list[str], list[str]]:
    """The quick and the slow functions in a test's report; slow ones run only if the others have passed."""
    quick: list[str] = []
    slow: list[str] = []
    for function in ElementTree.fromstring(report).iter("TestFunction"):
        name = function.attrib["name"]
        if name not in ("initTestCase", "cleanupTestCase"):
            (duration,) = function.findall("Duration")
            (slow if float(duration.attrib["msecs"]) > 100 else quick).append(name)
    return quick, slow


def run_test(command: list[str], options: list[str], folder: Path, seconds: float) -> tuple[str, float]:
    """Runs a test that usually takes this many seconds of processor time; returns the result and the time it
    took.

    The time-out is in processor time, which does not depend on the load of the machine.
    """
    scratch = folder / "scratch"
    shutil.rmtree(scratch, ignore_errors=True)
    scratch.mkdir()
    limit = int(1 + 5 * seconds)

    def limits():
        os.setsid()
        resource.setrlimit(resource.RLIMIT_CPU, (limit, limit + 1))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    environment = dict(
        os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", HOME=str(scratch), TMPDIR=str(scratch)
    )
    with open(folder / "output", "wb") as output:
        started = os.times()
        test = subprocess.Popen(
            [*command, "-nocrashhandler", *options],
            cwd=scratch,
            env=environment,
            preexec_fn=limits,
            stdin=subprocess.DEVNULL,
            stdout=output,
            stderr=output,
        )
        try:
            status = test.wait(timeout=30 + 20 * limit)
        except subprocess.TimeoutExpired:
            status = -signal.SIGXCPU
        try:
            os.killpg(test.pid, signal.SIGKILL)  # including what the test has started
        except ProcessLookupError:
            pass
        test.wait()
    used = os.times()
    seconds = used.children_user + used.children_system - started.children_user - started.children_system
    if status == 0:
        return "passed", seconds
    return ("timed out" if status in (-signal.SIGXCPU, -signal.SIGKILL) else "killed"), seconds


# --- all of them -------------------------------------------------------------------------------------


def chosen_mutants(unit: Unit, text: str, lines: set[int], arguments: argparse.Namespace) -> list[Mutant]:
    found = [mutant for mutant in mutants_of(text) if not lines or mutant.line in lines]
    if arguments.sample and arguments.sample < len(found):
        found = sorted(random.Random(f"{arguments.seed}:{unit.file}").sample(found, arguments.sample))
    return found


def try_unit(
    unit: Unit, lines: set[int], arguments: argparse.Namespace, commands: dict[str, list[str]]
) -> dict[str, int]:
    """Tries the mutants of one file, several at a time; prints the survivors and returns the counts."""
    place = WORK / unit.file.replace("/", "-")
    bench = Bench(unit, place, commands)
    folders: Queue[Path] = Queue()
    for number in range(arguments.jobs):
        (place / str(number)).mkdir()
        folders.put(place / str(number))
    bench.try_unchanged(place / "0")
    known = {(mutant.source, mutant.change) for mutant in mutants_of(bench.text)}
    for source, change in unit.accepted.keys() - known:
        print(f"{unit.file}: accepted, but no such change exists: {source} [{change}]")

    def attempt(mutant):
        if (mutant.source, mutant.change) in unit.accepted:
            return "accepted"
        folder = folders.get()
        try:
            return bench.outcome(mutated(bench.text, mutant), folder)
        finally:
            folders.put(folder)

    counts = dict.fromkeys(OUTCOMES, 0)
    found = chosen_mutants(unit, bench.text, lines, arguments)
    with ThreadPoolExecutor(arguments.jobs) as pool:
        for mutant, outcome in zip(found, pool.map(attempt, found)):
            counts[outcome] += 1
            if outcome == "survived" or arguments.all:
                print(f"{unit.file}:{mutant.line}: {outcome}: {mutant.source} [{mutant.change}]", flush=True)
    shutil.rmtree(place)
    return counts


def row(name: str, counts: dict[str, int], seconds: float) -> str:
    numbers = "".join(f"{counts[outcome]:{len(outcome) + 2}}" for outcome in OUTCOMES)
    return f"{sum(counts.values()):7}{numbers}{seconds:8.0f} s  {name}"


def read_arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(
        prog="tools/mutate", description="Prints the changes of the sources that no test detects."
    )
    parser.add_argument("files", nargs="*", metavar="FILE", help="FILE or FILE:LINE of tools/mutate.txt")
    parser.add_argument("--sample", type=int, metavar="N", help="only N changes of each file")
    parser.add_argument("--seed", default="1", metavar="S", help="selects them (1)")
    parser.add_argument("--jobs", type=int, default=2, metavar="N", help="number of processes (2)")
    parser.add_argument("--all", action="store_true", help="print the outcome of every change")
    return parser.parse_args()


def chosen_units(arguments: argparse.Namespace) -> list[tuple[Unit, set[int]]]:
    """The selected units, each with its selected lines; no lines select all."""
    units = {unit.file: unit for unit in read_list(LIST.read_text(encoding="utf-8"))}
    lines: dict[str, set[int]] = {}
    for name in arguments.files or units:
        file, _, line = name.partition(":")
        if file not in units:
            stop(f"{file} is not in {LIST}")
        lines.setdefault(file, set()).update({int(line)} if line else ())
    return [(units[file], wanted) for file, wanted in lines.items()]


def main() -> None:
    arguments = read_arguments()
    chosen = chosen_units(arguments)
    bring_copy_up_to_date()
    commands = build(sorted({test for unit, _ in chosen for test in unit.tests}))
    total = dict.fromkeys(OUTCOMES, 0)
    rows = []
    begun = time.monotonic()
    for unit, lines in chosen:
        started = time.monotonic()
        counts = try_unit(unit, lines, arguments, commands)
        rows.append(row(unit.file, counts, time.monotonic() - started))
        print(rows[-1], flush=True)
        for outcome in OUTCOMES:
            total[outcome] += counts[outcome]
    print("\nmutants" + "".join(f"  {outcome}" for outcome in OUTCOMES) + "      time  file")
    print("\n".join([*rows, row("all", total, time.monotonic() - begun)]))
    sys.exit(1 if total["survived"] else 0)


if __name__ == "__main__":
    main()
