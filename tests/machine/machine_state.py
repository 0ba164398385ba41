"""The state of a machine, kept and brought back: its files and its registry, apart from its Windows folder.
"""

import os
import shutil
from pathlib import Path

from winemachine import Machine, StrPath

_REGISTRY = ("system.reg", "user.reg", "userdef.reg")


class MachineState:
    """What a stopped machine holds now. `bring_back` makes the machine so again, and copies only what
    differs."""

    def __init__(self, machine: Machine, folder: StrPath) -> None:
        machine.stop()
        self._machine = machine
        self._kept = Path(folder)
        shutil.rmtree(self._kept, ignore_errors=True)
        _make_equal(machine.prefix / "drive_c", self._kept / "drive_c")
        for name in _REGISTRY:
            shutil.copy2(machine.prefix / name, self._kept / name)

    def bring_back(self) -> None:
        self._machine.stop()
        _make_equal(self._kept / "drive_c", self._machine.prefix / "drive_c")
        for name in _REGISTRY:
            shutil.copy2(self._kept / name, self._machine.prefix / name)


def _make_equal(source, target):
    """Makes the folder `target` hold what `source` holds."""
    target.mkdir(parents=True, exist_ok=True)
    wanted = {entry.name: entry for entry in os.scandir(source) if entry.name != "windows"}
    there = {entry.name: entry for entry in os.scandir(target) if entry.name != "windows"}
    for name, entry in there.items():
        if name not in wanted or _kind(entry) != _kind(wanted[name]):
            _remove(entry)
    for name, entry in wanted.items():
        if entry.is_symlink():
            if not os.path.lexists(target / name):
                os.symlink(os.readlink(entry.path), target / name)
        elif entry.is_dir():
            _make_equal(Path(entry.path), target / name)
        elif _stamp(entry.path) != _stamp(target / name):
            # Never written into: the machine may share the file with others.
            (target / name).unlink(missing_ok=True)
            shutil.copy2(entry.path, target / name)


def _kind(entry):
    return entry.is_symlink(), entry.is_dir(follow_symlinks=False)


def _remove(entry):
    if entry.is_dir(follow_symlinks=False):
        shutil.rmtree(entry.path)
    else:
        os.unlink(entry.path)


def _stamp(path):
    try:
        status = os.stat(path)
    except FileNotFoundError:
        return None
    return status.st_size, status.st_mtime_ns, status.st_mode
