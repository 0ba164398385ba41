"""What the tests on a Windows machine share. A test class has a machine of its own; its tests put the product
into folders of their own on it."""

import contextlib
import os
import re
import shutil
import subprocess
import sys
import time
import unittest
from collections.abc import Iterator
from pathlib import Path
from typing import Any

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

from winemachine import INSTALL_DIR, Machine, make_template  # noqa: E402

# The build folder, handed over by ctest.
BUILD = Path(os.environ["NVX_BUILD"])
LANE = os.environ.get("NVX_LANE", "1")
HOLD_FILE = BUILD / "tests" / "machine" / "hold_file.exe"
SCRIPTED_TOOL = BUILD / "tests" / "scripted_tool.exe"
CATEGORY = "nvx.configuration: "
COMPLETE = "   0 The installation or update is complete. Click finish to continue."

_STAMP = re.compile(r"^[A-Z][a-z]{2} [A-Z][a-z]{2} [ \d]?\d \d\d:\d\d:\d\d \d{4} (.*)$")


class MachineCase(unittest.TestCase):
    locale = "C.UTF-8"
    maxDiff = None
    machine: Machine

    @classmethod
    def setUpClass(cls) -> None:
        cls.machine = Machine.create(
            # Two modules may have a class of one name, and run at the same time; so may two lanes of one.
            BUILD / "machines" / ".".join((cls.__module__, cls.__name__, LANE)),
            make_template(BUILD / "wine-template"),
            cls.locale,
            BUILD / "locales",
        )

    @classmethod
    def tearDownClass(cls) -> None:
        cls.machine.stop()
        shutil.rmtree(cls.machine.prefix)

    def put_product(self, install_dir: str = INSTALL_DIR, translators: str | None = None) -> str:
        self.machine.put_product(BUILD / "installed", BUILD / "sample", install_dir, translators)
        return install_dir

    def replace_seven_zip(self, install_dir: str, orders: str) -> None:
        """Puts a program in the place of 7z.exe that does what the orders say (scripted_tool.cpp)."""
        seven_zip = self.machine.path(install_dir) / "7z.exe"
        shutil.copy(SCRIPTED_TOOL, seven_zip)
        (seven_zip.parent / "7z.exe.script").write_text(orders)

    def configure(self, install_dir: str, *tokens: str, **options: Any) -> tuple[int, list[str]]:
        """Runs the program of an install dir; returns its exit code and the lines of the whole log, without
        their time stamps; a line without one keeps "! " before it."""
        return self._configure(install_dir, tokens, options)[:2]

    def diagnose(self, install_dir: str, *tokens: str, **options: Any) -> tuple[int, list[str], list[str]]:
        """The same with the diagnostic warnings of the run as a third value."""
        # Wine hides the host's variables for Qt from its programs.
        key = "HKEY_CURRENT_USER\\Environment"
        self.machine.set_value(key, "QT_FORCE_STDERR_LOGGING", "1")
        try:
            return self._configure(install_dir, tokens, options)
        finally:
            self.machine.run("reg", "delete", key, "/v", "QT_FORCE_STDERR_LOGGING", "/f")

    def _configure(
        self, install_dir: str, tokens: tuple[str, ...], options: dict[str, Any]
    ) -> tuple[int, list[str], list[str]]:
        log = self.machine.path(install_dir) / "NVXConfig.log"
        try:
            answer = self.machine.run(install_dir + "\\NVXConfig.exe", *tokens, **options)
        except subprocess.TimeoutExpired as error:
            error.add_note("Its log ends:\n" + "\n".join(log_lines(log)[-12:] if log.is_file() else []))
            raise
        if answer.returncode != 0:
            output = answer.stdout.decode(errors="replace")
            print(f"NVXConfig.exe ended with {answer.returncode}: {output}", file=sys.stderr)
        return answer.returncode, log_lines(log) if log.is_file() else [], warnings_of(answer.stdout)

    def write(self, windows_path: str, contents: bytes = b"") -> Path:
        path = self.machine.path(windows_path)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(contents)
        return path

    def exists(self, windows_path: str) -> bool:
        return self.machine.path(windows_path).exists()

    @contextlib.contextmanager
    def held(self, path: str, mark_path: str = "C:\\held") -> Iterator[None]:
        """A program has the file open and lets nobody else at it. The other path is a sign between us."""
        mark = self.machine.path(mark_path)
        mark.unlink(missing_ok=True)
        holder = self.machine.start(str(HOLD_FILE), path, mark_path)
        try:
            for _ in range(600):
                if mark.exists() or holder.poll() is not None:
                    break
                time.sleep(0.1)
            self.assertTrue(mark.exists(), "the file could not be held")
            yield
        finally:
            mark.unlink(missing_ok=True)
            self.assertEqual(holder.wait(60), 0)

    def assert_not_logged(self, lines: list[str]) -> None:
        """Nothing that could not be done is in the log."""
        self.assertEqual([line for line in lines if line.startswith("   1 ")], [])

    def assert_complete(self, code: int, lines: list[str]) -> None:
        """The run has come to its end; after a removal the old files are looked for."""
        self.assertEqual(code, 0)
        self.assertIn(COMPLETE, lines)
        if "   0 Remove: Report .pyc files" not in lines[lines.index(COMPLETE) :]:
            self.assertEqual(lines[-1], COMPLETE)

    def assert_removed(self, code: int, lines: list[str]) -> None:
        """A silent removal came to its end, and cleaned up after it."""
        self.assertEqual(code, 0)
        end = [line for line in lines if not line.startswith("   0 Removing:")][-1]
        self.assertEqual(end, "   0 Remove: Report .pyc files")
        self.assertIn(COMPLETE, lines)


def warnings_of(output: bytes) -> list[str]:
    """The diagnostic warnings of the configuration in what a program has written."""
    lines = output.decode("utf-8", "replace").splitlines()
    return [line.removeprefix(CATEGORY) for line in lines if line.startswith(CATEGORY)]


def log_lines(path: Path) -> list[str]:
    lines = []
    for line in path.read_text(encoding="utf-8").splitlines():
        stamped = _STAMP.match(line)
        lines.append(stamped.group(1) if stamped else "! " + line)
    return lines


def output_of(lines: list[str], command: str) -> list[str]:
    """The lines of a program's output: those that follow the line of its command."""
    start = next(i for i, line in enumerate(lines) if line.startswith("   0 Command:" + command))
    answer = []
    for line in lines[start + 2 :]:
        if re.match(r"^ *-?\d+ (Output:$|  )", line):
            answer.append(line)
        else:
            break
    return answer
