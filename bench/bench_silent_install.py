"""Measures a silent install, compared with the same external programs started from one batch file, on a
Windows machine with CAD systems and archives of realistic size.

    bench_silent_install.py BUILD_FOLDER

BUILD_FOLDER is the Windows build, with its targets installed_configuration and sample_product built. Prints
the medians of five alternating runs: of an install, of only its programs, and of an install over a running
server; then the parts of an install, according to its log.
"""

import re
import shutil
import statistics
import sys
import threading
import time
from collections.abc import Callable
from pathlib import Path

from product_archives import make_archives

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))

from cadsystems import put_cad_systems  # noqa: E402
from winemachine import (  # noqa: E402
    INSTALL_DIR,
    SHARED_DATA,
    TRANSLATORS,
    TUTORIALS,
    Machine,
    make_template,
)

PYTHON = INSTALL_DIR + "\\Python"
MERTLE = TRANSLATORS + "\\NVX_MertleServer"
SERVER = "NVX 2017 Server"
SCRIPT = INSTALL_DIR + "\\FileAssociations.reg"
LOG = INSTALL_DIR + "\\NVXConfig.log"
COMPLETE = "The installation or update is complete."
RUNS = 5


def batch_file() -> str:
    """The commands of an installation in their order. The service control manager, which also starts the
    server, is not a program, so the batch file does not call it."""

    def remove(folder):
        return f'cmd.exe /C ""C:\\remove.bat" "{folder}""'

    def unpack(archive, folder):
        return f'"{INSTALL_DIR}\\7z.exe" x "{archive}" -y "-o{folder}"'

    def register(system):
        library = f'"{INSTALL_DIR}\\Launchers\\{system}\\NVX_2017_{system}.dll"'
        return ["regsvr32 -u -s " + library, "regsvr32 -s " + library]

    lines = [
        remove(SHARED_DATA + "\\Sorvane"),
        remove(TUTORIALS),
        unpack(INSTALL_DIR + "\\en-US\\Examples.7z", TUTORIALS),
        remove(PYTHON + "\\DLLs"),
        remove(PYTHON + "\\Lib"),
        unpack(PYTHON + "\\python26_x64.7z", PYTHON),
        unpack(MERTLE + "\\NVX_MertleServer.7z", MERTLE),
        f'"{INSTALL_DIR}\\NVX Viewer\\NVXViewerConfig.exe" -i',
        "start /wait regedit -s C:\\script0.reg",
        "start /wait regedit -s C:\\script1.reg",
        remove(SHARED_DATA + "\\Analyze"),
        remove(INSTALL_DIR + "\\HPCAnalyze"),
        f'"{INSTALL_DIR}\\NVXServer.exe" -i',
        *register("Brevant"),
        *register("SolidWorks"),
    ]
    return "\r\n".join(lines) + "\r\n"


def make_machine(build: Path) -> Machine:
    machine = Machine.create(build / "bench", make_template(build / "wine-template"))
    machine.put_product(build / "installed_configuration", build / "sample")
    put_cad_systems(machine)
    places = {
        "Examples.7z": INSTALL_DIR + "\\en-US",
        "python26_x64.7z": PYTHON,
        "NVX_MertleServer.7z": MERTLE,
    }
    for name, archive in make_archives(build / "bench-archives").items():
        shutil.copy(archive, machine.path(places[name] + "\\" + name))
    machine.path("C:\\install.bat").write_text(batch_file())
    machine.path("C:\\remove.bat").write_text("rmdir /s /q %1\r\n")
    return machine


class Watcher(threading.Thread):
    """Calls `look` repeatedly until the end of its block."""

    def __init__(self, look: Callable[[], None]) -> None:
        super().__init__()
        self._look = look
        self._stop_asked = threading.Event()

    def run(self) -> None:
        while not self._stop_asked.wait(0.004):
            self._look()

    def __enter__(self) -> "Watcher":
        self.start()
        return self

    def __exit__(self, *_: object) -> None:
        self._stop_asked.set()
        self.join()
        self._look()


class Scripts:
    """The scripts that an install passes to the Registry Editor, which it deletes afterwards."""

    def __init__(self, machine: Machine) -> None:
        self._path = machine.path(SCRIPT)
        self.found: list[bytes] = []

    def look(self) -> None:
        try:
            script = self._path.read_bytes()
        except FileNotFoundError:
            return
        if self.found and script.startswith(self.found[-1]):
            self.found[-1] = script
        elif script:
            self.found.append(script)


class LogTimes:
    """The lines of a growing log, each with the time at which it was found."""

    def __init__(self, machine: Machine) -> None:
        self._path = machine.path(LOG)
        self._read = self._path.stat().st_size if self._path.exists() else 0
        self.lines: list[tuple[float, str]] = []

    def look(self) -> None:
        try:
            with self._path.open("rb") as log:
                log.seek(self._read)
                grown = log.read()
        except FileNotFoundError:
            return
        self._read += len(grown)
        now = time.monotonic()
        self.lines += [(now, line) for line in grown.decode("utf-8").splitlines()]


def install(machine: Machine) -> None:
    result = machine.run(INSTALL_DIR + "\\NVXConfig.exe", "-I", "-S", "-Len-US", folder=INSTALL_DIR)
    if result.returncode != 0 or COMPLETE not in machine.log().splitlines()[-1]:
        raise RuntimeError(f"the install did not complete: {result.stdout!r}")


def run_batch(machine: Machine) -> None:
    result = machine.run("cmd.exe", "/C", "C:\\install.bat", folder=INSTALL_DIR)
    if result.returncode != 0 or result.stdout.count(b"Everything is Ok") != 3:
        raise RuntimeError(f"the batch file failed: {result.stdout[-2000:]!r}")


def remove_server(machine: Machine) -> None:
    for order in ("stop", "delete"):
        machine.run("sc", order, SERVER)
    if machine.run("sc", "query", SERVER).returncode == 0:
        raise RuntimeError("the server cannot be removed")


def seconds(work: Callable[[Machine], None], machine: Machine) -> float:
    start = time.monotonic()
    work(machine)
    return time.monotonic() - start


class Split:
    """The parts of the time of one install, in seconds."""

    def __init__(self, start: float, lines: list[tuple[float, str]], end: float) -> None:
        commands = [i for i, (_, line) in enumerate(lines) if "   0 Command:" in line]
        outputs = [i for i, (_, line) in enumerate(lines) if re.search(r"\d+ ( o|O)utput:", line)]
        server = next(i for i, (_, line) in enumerate(lines) if "0 Desktop=" in line)
        if len(commands) != len(outputs):
            raise RuntimeError(f"{len(commands)} commands, {len(outputs)} outputs")
        self.start = lines[0][0] - start
        self.programs = sum(lines[o][0] - lines[c][0] for c, o in zip(commands, outputs))
        self.server = lines[server][0] - lines[server - 1][0]
        self.exit = end - lines[-1][0]
        self.own = end - start - self.start - self.programs - self.server - self.exit


def timed_install(machine: Machine) -> tuple[float, Split]:
    """The duration of an install in seconds, and its parts."""
    times = LogTimes(machine)
    start = time.monotonic()
    with Watcher(times.look):
        install(machine)
        end = time.monotonic()
    return end - start, Split(start, times.lines, end)


def warm_up(machine: Machine) -> None:
    scripts = Scripts(machine)
    with Watcher(scripts.look):
        install(machine)
    if len(scripts.found) != 2:
        raise RuntimeError(f"expected two scripts for the Registry Editor, found {len(scripts.found)}")
    for number, script in enumerate(scripts.found):
        machine.path(f"C:\\script{number}.reg").write_bytes(script)
    remove_server(machine)
    run_batch(machine)
    remove_server(machine)


def show(name: str, samples: list[float]) -> None:
    print(f"{name:<28} {statistics.median(samples) * 1000:6.0f} ms", flush=True)


def main(build: Path) -> None:
    machine = make_machine(build)
    warm_up(machine)
    installs, updates, batches, splits = [], [], [], []
    for _ in range(RUNS):
        took, split = timed_install(machine)
        installs.append(took)
        splits.append(split)
        updates.append(seconds(install, machine))
        remove_server(machine)
        batches.append(seconds(run_batch, machine))
        remove_server(machine)
    machine.stop()

    show("silent install", installs)
    show("the same programs alone", batches)
    show("install over a server", updates)
    print(f"ratio {statistics.median(installs) / statistics.median(batches):31.2f}")
    print("of an install:")
    show("  start to the first line", [split.start for split in splits])
    show("  programs that are logged", [split.programs for split in splits])
    show("  the server's registration", [split.server for split in splits])
    show("  our own work", [split.own for split in splits])
    show("  from the last line to exit", [split.exit for split in splits])


if __name__ == "__main__":
    main(Path(sys.argv[1]))
