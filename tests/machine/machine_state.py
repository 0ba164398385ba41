"""Saves and restores the state of a machine: its files and its registry, without its Windows folder."""

import os
import shutil
from pathlib import Path

from machine_case import SHORTCUT
from winemachine import Machine, StrPath

_REGISTRY = ("system.reg", "user.reg", "userdef.reg")


class MachineState:
    """The state of a machine when this object is made. `restore` copies only what differs."""

    def __init__(self, machine: Machine, folder: StrPath) -> None:
        machine.stop()
        self._machine = machine
        self._saved = Path(folder)
        shutil.rmtree(self._saved, ignore_errors=True)
        _make_equal(machine.prefix / "drive_c", self._saved / "drive_c")
        for name in _REGISTRY:
            shutil.copy2(machine.prefix / name, self._saved / name)

    def restore(self) -> None:
        self._machine.stop()
        _make_equal(self._saved / "drive_c", self._machine.prefix / "drive_c")
        for name in _REGISTRY:
            shutil.copy2(self._saved / name, self._machine.prefix / name)


def comparable_files(machine: Machine, log: str) -> dict[str, str]:
    """The machine's files as `Machine.files` returns them, for comparing the ends of two runs.

    Without the log, which differs for each run, and without the contents of the shortcut, which holds the
    time when its program was last accessed.
    """
    files = machine.files()
    files.pop(log, None)
    if SHORTCUT in files:
        files[SHORTCUT] = ""
    return files


def _make_equal(source, target):
    """Makes the folder `target` a copy of the folder `source`."""
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
            # Not overwritten: machines may share the file by a hard link.
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
