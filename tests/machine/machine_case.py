"""What the tests on Windows machines share. Each test class has its own machine; its tests install the
product into folders of it."""

import contextlib
import getpass
import os
import re
import shutil
import subprocess
import sys
import time
import unittest
from collections.abc import Callable, Iterator
from pathlib import Path
from typing import Any

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

from winemachine import INSTALL_DIR, SERVICES, Machine, make_template  # noqa: E402

# The build folder, set by ctest.
BUILD = Path(os.environ["NVX_BUILD"])
LANE = os.environ.get("NVX_LANE", "1")
HOLD_FILE = BUILD / "tests" / "machine" / "hold_file.exe"
CLOSE_MESSAGE_BOX = BUILD / "tests" / "machine" / "close_message_box.exe"
ASK_LOGOFF = BUILD / "tests" / "machine" / "ask_logoff.exe"
SCRIPTED_TOOL = BUILD / "tests" / "scripted_tool.exe"
CATEGORY = "nvx.configuration: "
COMPLETE = "   0 The installation or update is complete. Click finish to continue."

LOG = INSTALL_DIR + "\\NVXConfig.log"
DESKTOP = "C:\\users\\Public\\Desktop"
SHORTCUT = DESKTOP + "\\Velmora NVX 2017.lnk"
USER_FOLDER = "C:\\users\\" + getpass.getuser()
USER_DATA = USER_FOLDER + "\\AppData\\Roaming\\Velmora\\NVX 2017"
PRODUCT_KEY = "HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX"
USER_KEY = "HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"
UNINSTALL_KEY = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\NVX 2017"
SERVICE = "NVX 2017 Server"
SERVICE_KEY = SERVICES + SERVICE

TIME_STAMP = r"[A-Z][a-z]{2} [A-Z][a-z]{2} [ \d]?\d \d\d:\d\d:\d\d \d{4} "
_STAMPED_LINE = re.compile(f"^{TIME_STAMP}(.*)$")


class MachineCase(unittest.TestCase):
    locale = "C.UTF-8"
    maxDiff = None
    machine: Machine

    @classmethod
    def setUpClass(cls) -> None:
        # Classes of the same name in two modules may run at the same time, and so may two lanes of one
        # module.
        cls.machine = new_machine(".".join((cls.__module__, cls.__name__, LANE)), cls.locale)

    @classmethod
    def tearDownClass(cls) -> None:
        cls.machine.stop()
        shutil.rmtree(cls.machine.prefix)

    @classmethod
    def turn_screen_off(cls) -> None:
        """Makes the machine show message boxes without a screen; close_message_box finds them all the
        same."""
        cls.machine.set_value("HKEY_CURRENT_USER\\Software\\Wine\\Drivers", "Graphics", "null")
        cls.machine.stop()

    def put_product(self, install_dir: str = INSTALL_DIR, translators: str | None = None) -> str:
        self.machine.put_product(BUILD / "installed", BUILD / "sample", install_dir, translators)
        return install_dir

    def replace_seven_zip(self, install_dir: str, orders: str) -> None:
        """Replaces 7z.exe with a program that follows the orders (scripted_tool.cpp)."""
        seven_zip = self.machine.path(install_dir) / "7z.exe"
        shutil.copy(SCRIPTED_TOOL, seven_zip)
        (seven_zip.parent / "7z.exe.script").write_text(orders)

    def configure(self, install_dir: str, *tokens: str, **options: Any) -> tuple[int, list[str]]:
        """Runs NVXConfig.exe; returns its exit code and the lines of the whole log.

        The lines are without their time stamps; a line that has none begins with "! ".
        """
        return self._configure(install_dir, tokens, options)[:2]

    def configure_with_new_log(self, install_dir: str, *tokens: str, **options: Any) -> tuple[int, list[str]]:
        """Like `configure`, with a log that holds this run only."""
        self.delete_log(install_dir)
        return self.configure(install_dir, *tokens, **options)

    def diagnose(self, install_dir: str, *tokens: str, **options: Any) -> tuple[int, list[str], list[str]]:
        """Like `configure`; the third value is the run's diagnostic warnings."""
        # Wine does not pass the host's variables for Qt on to its programs.
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
            done = self.machine.run(install_dir + "\\NVXConfig.exe", *tokens, **options)
        except subprocess.TimeoutExpired as error:
            error.add_note("End of the log:\n" + "\n".join(log_lines(log)[-12:]))
            raise
        if done.returncode != 0:
            output = done.stdout.decode(errors="replace")
            print(f"NVXConfig.exe exited with {done.returncode}: {output}", file=sys.stderr)
        return done.returncode, log_lines(log), warnings_of(done.stdout)

    def delete_log(self, install_dir: str = INSTALL_DIR) -> None:
        self.machine.path(install_dir + "\\NVXConfig.log").unlink(missing_ok=True)

    def write(self, windows_path: str, contents: bytes = b"") -> Path:
        path = self.machine.path(windows_path)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(contents)
        return path

    def read(self, windows_path: str) -> bytes:
        return self.machine.path(windows_path).read_bytes()

    def exists(self, windows_path: str) -> bool:
        return self.machine.path(windows_path).exists()

    def server_is_running(self) -> bool:
        return SERVICE in self.machine.run("net", "start").stdout.decode("utf-8", "replace")

    def server_is_registered(self) -> bool:
        """Queries the key of the service. Unlike `Machine.registry` this does not stop the machine."""
        return self.machine.run("reg", "query", SERVICE_KEY).returncode == 0

    @contextlib.contextmanager
    def held(self, path: str, mark_path: str = "C:\\held") -> Iterator[None]:
        """Another program has the file open and denies all access to it. It signals with the file
        `mark_path`."""
        mark = self.machine.path(mark_path)
        mark.unlink(missing_ok=True)
        holder = self.machine.start(str(HOLD_FILE), path, mark_path)
        try:
            wait_until("a program to open " + path, lambda: mark.exists() or holder.poll() is not None)
            self.assertTrue(mark.exists(), f"hold_file could not open {path}")
            yield
        finally:
            mark.unlink(missing_ok=True)
            self.assertEqual(holder.wait(60), 0)

    def assert_no_failure_logged(self, lines: list[str]) -> None:
        self.assertEqual([line for line in lines if line.startswith("   1 ")], [])

    def assert_complete(self, code: int, lines: list[str]) -> None:
        """The run reached its end; only the search for old files after a removal may follow the last line."""
        self.assertEqual(code, 0)
        self.assertIn(COMPLETE, lines)
        if "   0 Remove: Report .pyc files" not in lines[lines.index(COMPLETE) :]:
            self.assertEqual(lines[-1], COMPLETE)

    def assert_removed(self, code: int, lines: list[str]) -> None:
        """A silent removal reached its end and deleted the old files after it."""
        self.assertEqual(code, 0)
        end = [line for line in lines if not line.startswith("   0 Removing:")][-1]
        self.assertEqual(end, "   0 Remove: Report .pyc files")
        self.assertIn(COMPLETE, lines)


def new_machine(name: str, locale: str = "C.UTF-8") -> Machine:
    """A fresh machine in a folder of that name in the build folder."""
    template = make_template(BUILD / "wine-template")
    return Machine.create(BUILD / "machines" / name, template, locale, BUILD / "locales")


def wait_until(what: str, condition: Callable[[], object], timeout: float = 240) -> None:
    """Waits until the condition holds; `what` names it if it does not in that many seconds."""
    deadline = time.monotonic() + timeout
    while not condition():
        if time.monotonic() > deadline:
            raise TimeoutError("timed out waiting for " + what)
        time.sleep(0.05)


def warnings_of(output: bytes) -> list[str]:
    """The configuration's diagnostic warnings in a program's output."""
    lines = output.decode("utf-8", "replace").splitlines()
    return [line.removeprefix(CATEGORY) for line in lines if line.startswith(CATEGORY)]


def log_lines(path: Path) -> list[str]:
    """The lines of a log without their time stamps; a line that has none begins with "! ". Empty without a
    file."""
    lines = []
    for line in path.read_text(encoding="utf-8").splitlines() if path.is_file() else ():
        stamped = _STAMPED_LINE.match(line)
        lines.append(stamped.group(1) if stamped else "! " + line)
    return lines


def output_of(lines: list[str], command: str) -> list[str]:
    """The output of a program in the log: the lines that follow the line with its command."""
    start = next(i for i, line in enumerate(lines) if line.startswith("   0 Command:" + command))
    output = []
    for line in lines[start + 2 :]:
        if not re.match(r"^ *-?\d+ (Output:$|  )", line):
            break
        output.append(line)
    return output
