"""Windows machines under Wine, each made for one purpose and deleted afterwards.

Each machine is a Wine prefix with its own files, registry, services and processes. A fresh one is a copy of a
template that is made once; programs and libraries of the Windows folder are shared by hard links.

A machine has one server process, which holds its registry and starts its programs. A server that Wine starts
ends with its last program, and drops a program that connects at that moment: the program exits with 1 and has
done nothing. Here the server is a child process that is started before the first program and runs until
`stop`. A machine has started once a program on it has run to its end.

    machine = Machine.create(folder)
    machine.run(r"C:\\NVX\\NVXConfig.exe", "-I", "-S")
    machine.registry()["HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"]["Locale"]
    machine.stop()

As a program, winemachine.py FOLDER makes the template in that folder.
"""

import contextlib
import ctypes
import hashlib
import os
import shutil
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import time
from collections.abc import Iterator
from pathlib import Path

from wineregistry import SCRIPT_HEADER, Registry, is_below, read_registry, script_of, value_of, write_registry

PROGRAM_FILES = "C:\\Program Files"
INSTALL_DIR = PROGRAM_FILES + "\\Velmora\\NVX 2017"
TRANSLATORS = PROGRAM_FILES + "\\Velmora\\Kelvane\\Translators"
SHARED_DATA = "C:\\ProgramData\\Velmora\\NVX 2017"
TUTORIALS = "C:\\users\\Public\\Documents\\Velmora\\NVX 2017\\Tutorials"
TRANSLATORS_KEY = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"
ENVIRONMENT_KEY = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"
SERVICES = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"
# Services and drivers that are not needed; they would double the time of a start.
NEEDLESS_SERVICES = ("Eventlog", "PlugPlay", "NDIS", "nsiproxy", "winebus", "winehid", "wineusb")
# Each program that starts asks the server for every value of the following keys, a call for each one: for the
# fonts that replace missing ones, and for the time zones up to that of the host. These are half of the calls
# of a small program.
WINDOWS_NT = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\"
FONT_LINKS = WINDOWS_NT + "FontLink\\SystemLink"
TIME_ZONES = WINDOWS_NT + "Time Zones\\"
TIME_ZONE_KEY = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\TimeZoneInformation"
# A configuration of fontconfig that finds no font.
NO_FONTS = """<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig/>
"""
# Started twice for each shortcut that is saved, to enter it into the menu of the host's desktop. Although
# it is disabled, its process would be started, and end at once. An empty file in its place is not started.
MENU_BUILDER = "C:\\windows\\system32\\winemenubuilder.exe"
# Files of these kinds in the Windows folder are shared by all machines.
SHARED_KINDS = {
    *(".dll", ".exe", ".sys", ".drv", ".ocx", ".cpl", ".acm", ".ds", ".ax", ".nls", ".tlb", ".msstyles")
}
SHARED_SIZE = 1 << 20
IMPORT_KEY = "HKEY_CURRENT_USER\\Software\\Wine\\Imported scripts"
START_TIMEOUT_S = 240  # the first start of a template fills its folder
STOP_TIMEOUT_S = 120
LOCK_TAKEN = 2  # the exit status of a server if another one is running

# From sys/prctl.h and sys/personality.h.
_LIBC = ctypes.CDLL(None)
_PR_SET_PDEATHSIG = 1
_ADDR_NO_RANDOMIZE = 0x0040000
_ASK_PERSONALITY = 0xFFFFFFFF


StrPath = str | os.PathLike[str]


class MachineError(Exception):
    """The machine itself failed, not a program on it."""


class Machine:
    """One machine. `locale` is the Unix locale of its user."""

    def __init__(
        self, prefix: StrPath, locale: str = "C.UTF-8", locale_folder: StrPath | None = None
    ) -> None:
        self.prefix = Path(prefix).absolute()
        self.locale = locale
        self.locale_folder = locale_folder
        self._server: subprocess.Popen[bytes] | None = None
        self._processor: int | None = None

    @classmethod
    def create(
        cls, prefix: StrPath, template: StrPath, locale: str = "C.UTF-8", locale_folder: StrPath | None = None
    ) -> "Machine":
        """A fresh machine in the folder `prefix`, which is deleted first. Its first program starts it."""
        machine = cls(prefix, locale, locale_folder)
        if machine.prefix.exists():
            machine.stop()
            shutil.rmtree(machine.prefix)
        _copy_template(Path(template), machine.prefix)
        # A server is found by the inode of its folder, and a new folder may get the inode of a deleted one.
        machine.stop()
        return machine

    def path(self, windows_path: str) -> Path:
        """The path on the host of a file on the machine's drive C."""
        drive, rest = windows_path[:2], windows_path[3:]
        if drive.upper() != "C:":
            raise ValueError("not on drive C: " + windows_path)
        return self.prefix / "drive_c" / rest.replace("\\", "/")

    def full_name(self, program: str) -> str:
        """The path of a program of Windows that is given by its name alone. Wine would start another program
        to find it."""
        if "\\" in program:
            return program
        name = program if program.endswith(".exe") else program + ".exe"
        folders = ("C:\\windows\\system32\\", "C:\\windows\\")
        return next((folder + name for folder in folders if self.path(folder + name).exists()), program)

    def environment(self, **extra: str) -> dict[str, str]:
        inherited = ("PATH", "LANG", "DISPLAY", "XAUTHORITY", "TMPDIR")
        environment = {name: os.environ[name] for name in inherited if name in os.environ}
        environment.update(
            HOME=str(self.prefix / "home"),
            WINEPREFIX=str(self.prefix),
            WINEARCH="win64",
            WINEDEBUG="-all",
            WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe=",
            LC_ALL=self.locale,
        )
        if self.locale_folder:
            environment["LOCPATH"] = str(self.locale_folder)
        # Each program would read the fonts of the host, which nobody sees without a display.
        if "DISPLAY" not in environment:
            environment["FONTCONFIG_FILE"] = str(self.prefix / "no-fonts.conf")
        environment.update(extra)
        return environment

    def run(
        self, program: str, *tokens: str, folder: str | None = None, timeout: float = 240, **environment: str
    ) -> subprocess.CompletedProcess[bytes]:
        """Runs a program on the machine to its end; returns its exit code, and its output in `stdout`.

        After the timeout, stops the machine and raises subprocess.TimeoutExpired with a note of the programs
        that were running.
        """
        self.start_up()
        working_folder = self.path(folder) if folder else self.prefix
        command = ["wine", self.full_name(program), *tokens]
        # The first program starts the machine's services, which inherit its output. Reading a pipe would wait
        # until they end, reading a file does not.
        with tempfile.TemporaryFile() as output:
            with self.program_settings():
                process = subprocess.Popen(
                    command,
                    cwd=working_folder,
                    env=self.environment(**environment),
                    stdin=subprocess.DEVNULL,
                    stdout=output,
                    stderr=subprocess.STDOUT,
                )
            try:
                process.wait(timeout)
            except subprocess.TimeoutExpired as error:
                error.add_note("Programs on the machine:\n" + "\n".join(self.programs().values()))
                self.stop()
                process.wait()
                raise
            output.seek(0)
            return subprocess.CompletedProcess(command, process.returncode, output.read())

    def start(self, program: str, *tokens: str) -> subprocess.Popen[bytes]:
        """Starts a program on the machine and returns its process; its output is discarded."""
        self.start_up()
        with self.program_settings():
            return subprocess.Popen(
                ["wine", self.full_name(program), *tokens],
                cwd=self.prefix,
                env=self.environment(),
                stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL,
            )

    def start_up(self) -> None:
        """Starts the machine and its services, unless it is running."""
        if self._server:
            if self._server.poll() is None:
                return
            raise MachineError(f"the server of {self.prefix} exited with {self._server.returncode}")
        self._processor = _free_processor()
        self._server_errors = tempfile.TemporaryFile()
        self._server = _start_server(self.environment(), self._processor, self._server_errors)
        try:
            done = self.run("reg", "query", ENVIRONMENT_KEY, "/v", "OS", timeout=START_TIMEOUT_S)
            if done.returncode != 0 or b"Windows_NT" not in done.stdout:
                raise MachineError(f"{self.prefix} did not start: {done!r}")
        except BaseException:
            self.stop()
            raise

    @contextlib.contextmanager
    def program_settings(self) -> Iterator[None]:
        """Processes started inside this context get the settings of the machine's programs.

        They stay on one processor: a program calls the server thousands of times, and waking another
        processor for each call and reply takes half as long again as the work itself. Their addresses are not
        random: each program needs the page at 0x7ffe0000, and a kernel that places the heap at random puts it
        there in about one of 2,500 starts, which then fails ("failed to map the shared user data").
        """
        processors = os.sched_getaffinity(0)
        personality = _LIBC.personality(_ASK_PERSONALITY)
        if self._processor is not None:
            os.sched_setaffinity(0, {self._processor})
        _LIBC.personality(personality | _ADDR_NO_RANDOMIZE)
        try:
            yield
        finally:
            _LIBC.personality(personality)
            os.sched_setaffinity(0, processors)

    def stop(self) -> None:
        """Ends every process on the machine and writes its registry to the disk."""
        server, self._server = self._server, None
        if server:
            server.send_signal(signal.SIGINT)
            # Not by force, which would lose the registry.
            status = server.wait(STOP_TIMEOUT_S)
            self._server_errors.seek(0)
            errors = self._server_errors.read().decode(errors="replace")
            self._server_errors.close()
            if errors:
                print(errors, file=sys.stderr)
            if status != 0 or "Protocol error" in errors:
                raise MachineError(f"the server of {self.prefix} exited with {status}: {errors}")
        else:
            _stop_other_server(self.environment())

    def programs(self, *names: str) -> dict[int, str]:
        """The running programs: {process id on the host: command line}; with names, only those whose command
        line contains one of the names."""
        prefix = f"WINEPREFIX={self.prefix}".encode()
        found = {}
        for folder in Path("/proc").glob("[0-9]*"):
            try:
                command = (folder / "cmdline").read_bytes().replace(b"\0", b" ").decode(errors="replace")
                wanted = not names or any(name.lower() in command.lower() for name in names)
                if wanted and prefix in (folder / "environ").read_bytes().split(b"\0"):
                    found[int(folder.name)] = command
            except OSError:
                pass  # it has ended
        return found

    def set_value(self, key: str, name: str, text: str) -> None:
        """Writes a string to the registry."""
        self.import_script(script_of({key: {name: text}}))

    def import_script(self, script: str) -> None:
        """Imports the text of a script for the Registry Editor. If the machine is stopped and the script
        deletes nothing, writes to its files instead of starting the editor.

        The editor always exits with 0, so a value is added at the end of the script and read back.
        """
        if not self._server:
            self.stop()
            if write_registry(self.prefix, script):
                return
        mark = str(time.monotonic_ns())
        lines = [*script.splitlines(), "", f"[{IMPORT_KEY}]", f'"Mark"="{mark}"', ""]
        path = self.path("C:\\import.reg")
        path.write_bytes(b"\xff\xfe" + "\r\n".join(lines).encode("utf-16-le"))
        self.run("regedit", "/S", "C:\\import.reg")
        path.unlink()
        if mark.encode() not in self.run("reg", "query", IMPORT_KEY, "/v", "Mark").stdout:
            raise MachineError(f"a registry script was not imported on {self.prefix}")

    def registry(self) -> Registry:
        """The whole registry. Stops the machine, which writes the registry to the disk."""
        self.stop()
        return read_registry(self.prefix)

    def files(self, folder: str = "C:\\") -> dict[str, str]:
        """Every file and empty folder below a folder of the machine, without the Windows folder: {path: hash
        of the contents}; the path of an empty folder ends in a backslash."""
        top = self.path(folder)
        drive = self.prefix / "drive_c"
        found = {}
        for place, folders, names in os.walk(top):
            if Path(place) == drive and "windows" in folders:
                folders.remove("windows")
            shown = "C:\\" + os.path.relpath(place, drive).replace("/", "\\")
            for name in names:
                path = Path(place) / name
                if path.is_file():
                    found[shown + "\\" + name] = hashlib.sha256(path.read_bytes()).hexdigest()
            if not folders and not names:
                found[shown + "\\"] = ""
        return found

    def put_product(
        self,
        installed: StrPath,
        sample: StrPath,
        install_dir: str = INSTALL_DIR,
        translators: str | None = TRANSLATORS,
    ) -> None:
        """Copies the sample product and the programs to the machine, as an installer does. `installed` is the
        folder of `cmake --install`, `sample` the built sample product."""
        for source in (Path(sample) / "product", Path(installed)):
            _copy_over(source, self.path(install_dir))
        if translators:
            _copy_over(Path(sample) / "translators", self.path(translators))
            self.set_value(TRANSLATORS_KEY, "Folder", translators)

    def log(self, install_dir: str = INSTALL_DIR) -> str:
        """The text of the log."""
        return (self.path(install_dir) / "NVXConfig.log").read_text(encoding="utf-8")


def _free_processor():
    """The processor with the fewest machines of this host."""
    machines = dict.fromkeys(sorted(os.sched_getaffinity(0)), 0)
    for comm in Path("/proc").glob("[0-9]*/comm"):
        try:
            if comm.read_text().startswith("wineserver"):
                on = os.sched_getaffinity(int(comm.parent.name))
                if len(on) == 1 and on <= machines.keys():
                    machines[on.pop()] += 1
        except (OSError, ValueError):
            pass  # it has ended
    return min(machines, key=machines.__getitem__)


def _start_server(environment, processor, errors):
    """Starts the server of a machine as a child process that ends with this one, and waits until it listens.
    Its messages are written to the file `errors`."""

    def in_child():
        _end_with_parent()
        os.sched_setaffinity(0, {processor})

    deadline = time.monotonic() + START_TIMEOUT_S
    while True:
        server = subprocess.Popen(
            ["wineserver", "--foreground", "--persistent"],
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=errors,
            preexec_fn=in_child,
        )
        while server.poll() is None and not _is_listening(server):
            if time.monotonic() > deadline:
                server.kill()
                raise MachineError(f"the server of {environment['WINEPREFIX']} did not start to listen")
            time.sleep(0.005)
        if server.poll() is None:
            return server
        if server.returncode != LOCK_TAKEN or time.monotonic() > deadline:
            raise MachineError(f"no server for {environment['WINEPREFIX']}: {server.returncode}")
        _stop_other_server(environment)


def _end_with_parent():
    """Called in the child: makes it receive SIGINT when its parent ends. The server then ends its programs
    and saves its registry; after SIGTERM the programs would keep running."""
    _LIBC.prctl(_PR_SET_PDEATHSIG, signal.SIGINT)


def _is_listening(server):
    """Whether this server accepts connections on the socket in its working folder. Another server of the
    machine may be listening there, until this one detects it and ends."""
    with socket.socket(socket.AF_UNIX) as probe:
        try:
            probe.connect(f"/proc/{server.pid}/cwd/socket")
        except OSError:
            return False
        credentials = probe.getsockopt(socket.SOL_SOCKET, socket.SO_PEERCRED, struct.calcsize("3i"))
        listening_process, _user, _group = struct.unpack("3i", credentials)
        return listening_process == server.pid


def _stop_other_server(environment):
    """Ends the server of a machine that another process started, if there is one."""
    for option in ("-k", "-w"):
        subprocess.run(
            ["wineserver", option],
            env=environment,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
            timeout=STOP_TIMEOUT_S,
        )


def make_template(folder: StrPath) -> Path:
    """Makes the template of all machines, unless it exists and was made in the same way by this version of
    Wine."""
    folder = Path(folder)
    version = subprocess.run(
        ["wine", "--version"], env={**os.environ, "WINEDEBUG": "-all"}, stdout=subprocess.PIPE
    ).stdout.decode()
    made_by = " ".join((version.strip(), "without", *NEEDLESS_SERVICES, MENU_BUILDER, FONT_LINKS, TIME_ZONES))
    stamp = folder / "made-by"
    if stamp.exists() and stamp.read_text() == made_by:
        return folder
    shutil.rmtree(folder, ignore_errors=True)
    (folder / "home").mkdir(parents=True)
    (folder / "no-fonts.conf").write_text(NO_FONTS)
    machine = Machine(folder)
    machine.start_up()  # the first start fills the folder
    machine.import_script(_without_needless_keys(machine.registry()))
    machine.stop()
    menu_builder = machine.path(MENU_BUILDER)
    menu_builder.unlink()
    menu_builder.touch()
    stamp.write_text(made_by)
    return folder


def _without_needless_keys(registry):
    """A script that disables what a machine does not need and deletes what would slow down its programs."""
    lines = [SCRIPT_HEADER]
    for service in NEEDLESS_SERVICES:
        lines += [f"[{SERVICES}{service}]", '"Start"=dword:00000004']
    own_zone = value_of(registry, TIME_ZONE_KEY, "TimeZoneKeyName")
    zones = {key[len(TIME_ZONES) :].split("\\")[0] for key in registry if is_below(key, TIME_ZONES)}
    lines += [f"[-{TIME_ZONES}{zone}]" for zone in sorted(zones - {own_zone})]
    lines.append(f"[-{FONT_LINKS}]")
    return "\n".join(lines)


def _copy_over(source, target):
    """Copies a folder over another one. Existing files are replaced, not overwritten: a program may be
    running from them. Large libraries, which are never written, are shared by hard links."""

    def copy(file, place):
        Path(place).unlink(missing_ok=True)
        if file.endswith(".dll") and os.path.getsize(file) >= SHARED_SIZE:
            return os.link(file, place)
        return shutil.copy2(file, place)

    shutil.copytree(source, target, dirs_exist_ok=True, copy_function=copy)


def _copy_template(template, prefix):
    windows = template / "drive_c" / "windows"

    def copy(source, target):
        # Programs are never overwritten; other files may be, for example win.ini.
        if Path(source).suffix.lower() in SHARED_KINDS and Path(source).is_relative_to(windows):
            os.link(source, target)
        else:
            shutil.copy2(source, target)

    shutil.copytree(template, prefix, symlinks=True, copy_function=copy)


if __name__ == "__main__":
    make_template(sys.argv[1])
