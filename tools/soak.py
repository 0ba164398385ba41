"""Runs the fuzzers and the tests of random machines and moments in batches, for an amount or a time.

soak.py ROOT [OPTION...] [PART...]: ROOT is the folder of the sources, with the builds sanitize and windows
in it.
"""

import argparse
import contextlib
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import time
from collections.abc import Callable, Iterable, Iterator, Mapping, Sequence
from dataclasses import dataclass, field
from pathlib import Path

FUZZER_BATCH_S = 60
FULL_AMOUNTS = {"runs": 10_000_000, "kills": 1000, "machines": 200, "cycles": 20}

# The sanitizer stores a stack for each allocation, whole ones by default, which takes time if
# they are deep. The stack of a failure itself is always whole.
SHORT_STACKS = "malloc_context_size=2"
WHOLE_STACKS = "malloc_context_size=30"


@dataclass(frozen=True)
class Batch:
    """One command, and the part of the whole amount that it does at most."""

    command: list[str]
    amount: int
    environment: dict[str, str] = field(default_factory=dict)
    hint: str = ""  # how to repeat it with more output

    def description(self) -> str:
        """The shell command that repeats it, and the hint. The folder for temporary files is left
        out, because it is removed at the end of the soak."""
        variables = (f"{n}={shlex.quote(v)}" for n, v in self.environment.items() if n != "TMPDIR")
        return "\n".join([" ".join([*variables, *self.command]), *([self.hint] if self.hint else [])])


@dataclass(frozen=True)
class Part:
    """A part of the soak: `batch(number, left, seconds)` is the batch of that number when so much of the
    amount and of the time is left; `done(output)` is the amount that a batch has done by its output, None if
    that is the whole batch."""

    name: str
    unit: str
    full: int
    folder: Path
    batch: Callable[[int, int, float], Batch]
    done: Callable[[str], int | None] = lambda output: None


@dataclass(frozen=True)
class Outcome:
    """What a part has done: the amount, the seconds it took, and the log of the batch that failed."""

    name: str
    unit: str
    amount: int
    seconds: float
    failed: Path | None = None

    def line(self) -> str:
        text = f"{self.name:28} {self.amount:>12,} {self.unit} in {self.seconds:,.0f} s"
        return text + (f": failed, see {self.failed}" if self.failed else "")


def fuzzer_environment(given: Mapping[str, str], memory: Path | None) -> dict[str, str]:
    """What a fuzzer gets in addition to the given environment: short stacks of allocations, and `memory` as
    the folder for temporary files, unless the environment already says otherwise."""
    added = {}
    options = given.get("ASAN_OPTIONS", "")
    if "malloc_context_size" not in options:
        added["ASAN_OPTIONS"] = ":".join(filter(None, [options, SHORT_STACKS]))
    if memory and "TMPDIR" not in given:
        added["TMPDIR"] = str(memory)
    return added


@contextlib.contextmanager
def folder_in_memory(memory: Path) -> Iterator[Path | None]:
    """A folder in the file system `memory` until the end of the context; None if it is not writable."""
    if not os.access(memory, os.W_OK):
        yield None
        return
    with tempfile.TemporaryDirectory(prefix="nvx-soak-", dir=memory) as folder:
        yield Path(folder)


def fuzzer(
    program: Path, corpus: Path, found: Path, full: int, seed: int, environment: dict[str, str]
) -> Part:
    """The part of a libFuzzer program. New inputs go to the folder `found`, which later batches start from;
    so do crashes. `corpus` may be missing."""
    shortened = SHORT_STACKS in environment.get("ASAN_OPTIONS", "")
    hint = (
        f"The stacks of allocations are short; {WHOLE_STACKS} in ASAN_OPTIONS shows whole ones."
        if shortened
        else ""
    )

    def batch(number: int, left: int, seconds: float) -> Batch:
        limit = max(1, int(min(FUZZER_BATCH_S, seconds)))
        options = [f"-seed={seed + number}", f"-runs={left}", f"-max_total_time={limit}"]
        fixed = ["-timeout=10", "-max_len=4096", "-print_final_stats=1", f"-artifact_prefix={found}/"]
        folders = [str(found), *([str(corpus)] if corpus.is_dir() else [])]
        return Batch([str(program), *options, *fixed, *folders], left, environment, hint)

    return Part(program.name, "runs", full, found, batch, fuzzer_runs)


def fuzzer_runs(output: str) -> int:
    """The number of runs in the final statistics of a fuzzer; 0 if there are none."""
    stated = re.search(r"^stat::number_of_executed_units: (\d+)$", output, re.MULTILINE)
    return int(stated.group(1)) if stated else 0


def machine_part(
    root: Path, module: str, unit: str, full: int, size: int, variables: Callable[[int, int], dict[str, str]]
) -> Part:
    """The part of a test module of tests/machine, in batches of `size`; `variables(number, amount)` are the
    environment variables of a batch."""
    folder = root / "tests" / "machine"

    def batch(number: int, left: int, seconds: float) -> Batch:
        amount = min(size, left)
        build = {"NVX_BUILD": str(root / "build" / "windows"), "NVX_LANE": "soak"}
        command = [sys.executable, "-B", "run_lane.py", module]
        return Batch(command, amount, {**build, **variables(number, amount)})

    return Part(module.removeprefix("test_"), unit, full, folder, batch)


def all_parts(root: Path, seed: int, full: Mapping[str, int], memory: Path | None = None) -> list[Part]:
    """All parts: each fuzzer that is built, with its temporary files in `memory`, then those on Windows
    machines."""
    fuzzers = sorted((root / "build" / "sanitize" / "fuzz").glob("fuzz_*[a-z]"))
    corpus, found = root / "fuzz" / "corpus", root / "build" / "soak"
    environment = fuzzer_environment(os.environ, memory)
    parts = [
        fuzzer(program, corpus / program.name, found / program.name, full["runs"], seed, environment)
        for program in fuzzers
        if program.is_file()
    ]

    def kills(number: int, amount: int) -> dict[str, str]:
        return {"NVX_SEED": str(seed + number), "NVX_KILLS": str(amount)}

    def machines(number: int, amount: int) -> dict[str, str]:
        return {"NVX_SEED": str(seed + 8 * number), "NVX_MACHINES": str(amount)}

    def cycles(number: int, amount: int) -> dict[str, str]:
        return {"NVX_CYCLES": str(amount)}

    return [
        *parts,
        machine_part(root, "test_killed_runs", "instants", full["kills"], 50, kills),
        machine_part(root, "test_random_machines", "machines", full["machines"], 8, machines),
        machine_part(root, "test_cycles", "cycles", full["cycles"], full["cycles"], cycles),
    ]


def run_part(part: Part, seconds: float, logs: Path) -> Outcome:
    """Runs batches until the part's amount is reached, the time is over or a batch fails."""
    part.folder.mkdir(parents=True, exist_ok=True)
    started = time.monotonic()
    amount = number = 0
    while amount < part.full:
        left_s = seconds - (time.monotonic() - started)
        if number and left_s <= 0:
            break
        batch = part.batch(number, part.full - amount, left_s)
        done = subprocess.run(
            batch.command,
            cwd=part.folder,
            env={**os.environ, **batch.environment},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
        )
        output = done.stdout.decode(errors="replace")
        counted = part.done(output)
        amount += batch.amount if counted is None and done.returncode == 0 else counted or 0
        number += 1
        if done.returncode != 0 or counted == 0:
            log = logs / f"{part.name}.{number}.log"
            log.write_text(batch.description() + "\n" + output)
            return Outcome(part.name, part.unit, amount, time.monotonic() - started, log)
    return Outcome(part.name, part.unit, amount, time.monotonic() - started)


def run_parts(parts: Sequence[Part], seconds: float, logs: Path) -> Iterable[Outcome]:
    """Runs the parts one after the other; each gets an equal share of the time that is left."""
    end = time.monotonic() + seconds
    for number, part in enumerate(parts):
        share = max(0.0, end - time.monotonic()) / (len(parts) - number)
        yield run_part(part, share, logs)


def read_arguments(arguments: Sequence[str]) -> argparse.Namespace:
    parser = argparse.ArgumentParser(
        prog="tools/soak",
        description="Runs the fuzzers and the tests of random machines and moments.",
    )
    parser.add_argument(
        "parts", nargs="*", metavar="PART", help="a fuzzer, killed_runs, random_machines or cycles"
    )
    parser.add_argument("--seed", type=int, default=int(time.time()), help="repeats an earlier soak")
    parser.add_argument("--minutes", type=float, default=float("inf"), help="the time for all parts together")
    for unit, amount in FULL_AMOUNTS.items():
        parser.add_argument(
            f"--{unit}", type=int, default=amount, help=f"at most so many; {amount:,} by default"
        )
    return parser.parse_intermixed_args(arguments)


def main(root: Path, arguments: Sequence[str], memory: Path = Path("/dev/shm")) -> int:
    """Temporary files of the fuzzers go to the file system `memory`, if possible."""
    options = read_arguments(arguments)
    with folder_in_memory(memory) as folder:
        return run_soak(root, options, folder)


def run_soak(root: Path, options: argparse.Namespace, memory: Path | None) -> int:
    full = {unit: getattr(options, unit) for unit in FULL_AMOUNTS}
    parts = all_parts(root, options.seed, full, memory)
    unknown = set(options.parts) - {part.name for part in parts}
    if unknown:
        print(f"error: no part {', '.join(sorted(unknown))}; there are:", file=sys.stderr)
        print(" ".join(part.name for part in parts), file=sys.stderr)
        return 2
    chosen = [part for part in parts if not options.parts or part.name in options.parts]
    logs = root / "build" / "soak"
    shutil.rmtree(logs, ignore_errors=True)
    logs.mkdir(parents=True)
    print(f"seed {options.seed}", flush=True)
    failed = False
    for outcome in run_parts(chosen, options.minutes * 60, logs):
        print(outcome.line(), flush=True)
        failed = failed or outcome.failed is not None
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]), sys.argv[2:]))
