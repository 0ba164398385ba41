"""A Windows machine under Wine, made for one purpose and thrown away.

Each machine is a Wine prefix of its own: files, registry, services and processes that no other machine sees.
A fresh one is a copy of a template that is made once; its Windows folder is shared with the template by hard
links, everything else is its own.

    machine = Machine.create(folder)
    machine.run(r"C:\\NVX\\NVXConfig.exe", "-I", "-S")
    machine.registry()["HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"]["Locale"]
    machine.stop()

As a program, winemachine.py FOLDER makes the template in a folder.
"""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

PROGRAM_FILES = "C:\\Program Files"
INSTALL_DIR = PROGRAM_FILES + "\\Velmora\\NVX 2017"
TRANSLATORS = PROGRAM_FILES + "\\Velmora\\Kelvane\\Translators"
SHARED_DATA = "C:\\ProgramData\\Velmora\\NVX 2017"
TUTORIALS = "C:\\users\\Public\\Documents\\Velmora\\NVX 2017\\Tutorials"
TRANSLATORS_KEY = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"
ENVIRONMENT_KEY = (
    "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment"
)


class Machine:
    """One machine. `locale` is the locale of its user, as Unix names it."""

    def __init__(self, prefix, locale="C.UTF-8", locale_folder=None):
        self.prefix = Path(prefix).absolute()
        self.locale = locale
        self.locale_folder = locale_folder

    @classmethod
    def create(cls, prefix, template, locale="C.UTF-8", locale_folder=None):
        """A fresh machine in the folder `prefix`, in place of what is there."""
        machine = cls(prefix, locale, locale_folder)
        if machine.prefix.exists():
            machine.stop()
            shutil.rmtree(machine.prefix)
        _copy_template(Path(template), machine.prefix)
        return machine

    def path(self, windows_path):
        """Where a file of the machine's drive C lies on the host."""
        drive, rest = windows_path[:2], windows_path[3:]
        if drive.upper() != "C:":
            raise ValueError("not on drive C: " + windows_path)
        return self.prefix / "drive_c" / rest.replace("\\", "/")

    def environment(self, **extra):
        kept = ("PATH", "LANG", "DISPLAY", "XAUTHORITY", "TMPDIR")
        environment = {name: os.environ[name] for name in kept if name in os.environ}
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
        environment.update(extra)
        return environment

    def run(self, program, *tokens, folder=None, timeout=240, **environment):
        """Runs a program of the machine to its end; answers its exit code, and what it wrote in `stdout`.

        A program that outlives the time-out raises subprocess.TimeoutExpired, and the machine is stopped.
        """
        working_folder = self.path(folder) if folder else self.prefix
        command = ["wine", program, *tokens]
        # The first program starts the machine's services, which keep its output open for as long as they
        # run: a file does not wait for them, a pipe would.
        with tempfile.TemporaryFile() as output:
            try:
                answer = subprocess.run(
                    command,
                    cwd=working_folder,
                    env=self.environment(**environment),
                    stdin=subprocess.DEVNULL,
                    stdout=output,
                    stderr=subprocess.STDOUT,
                    timeout=timeout,
                )
            except subprocess.TimeoutExpired:
                self.stop()
                raise
            output.seek(0)
            answer.stdout = output.read()
        return answer

    def start(self, program, *tokens):
        """Starts a program of the machine and does not wait for it; answers its process, which shows
        nothing."""
        return subprocess.Popen(
            ["wine", program, *tokens],
            cwd=self.prefix,
            env=self.environment(),
            stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )

    def stop(self):
        """Ends every process of the machine and writes its registry to the disk."""
        for option in ("-k", "-w"):
            subprocess.run(
                ["wineserver", option],
                env=self.environment(),
                stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL,
                timeout=60,
            )

    def start_to_stay(self):
        """Starts the machine anew, to go on for half a minute when its last program has ended, with its
        services; else it goes on for three seconds, in which a busy host may not start the next program."""
        self.stop()
        subprocess.run(["wineserver", "-p30"], env=self.environment(), check=True)

    def set_value(self, key, name, text):
        """Writes a text into the registry, as an administrator would with the machine's own tool."""
        answer = self.run("reg", "add", key, "/v", name, "/t", "REG_SZ", "/d", text, "/f")
        if answer.returncode != 0:
            raise RuntimeError("reg add failed: " + answer.stdout.decode(errors="replace"))

    def registry(self):
        """The whole registry: {key path: {value name: value}}. Stops the machine, which writes it down."""
        self.stop()
        keys = {}
        for file, root in (("system.reg", "HKEY_LOCAL_MACHINE"), ("user.reg", "HKEY_CURRENT_USER")):
            keys.update(_read_registry(self.prefix / file, root))
        return keys

    def files(self, folder="C:\\"):
        """Every file and empty folder below a folder of the machine, its Windows folder left out:
        {path: hash of the contents}."""
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

    def put_product(self, installed, sample, install_dir=INSTALL_DIR, translators=TRANSLATORS):
        """Copies the sample product and our program to the machine, as an installer does. `installed` is a
        folder laid out by `cmake --install`, `sample` the built sample product."""
        for source in (Path(sample) / "product", Path(installed)):
            shutil.copytree(source, self.path(install_dir), dirs_exist_ok=True)
        if translators:
            shutil.copytree(
                Path(sample) / "translators", self.path(translators), dirs_exist_ok=True
            )
            self.set_value(TRANSLATORS_KEY, "Folder", translators)

    def log(self, install_dir=INSTALL_DIR):
        """The text of the run's log."""
        return (self.path(install_dir) / "NVXConfig.log").read_text(encoding="utf-8")


def make_template(folder):
    """Makes the template of all machines, once; a Wine of another version makes it anew."""
    folder = Path(folder)
    version = subprocess.run(
        ["wine", "--version"], env={**os.environ, "WINEDEBUG": "-all"}, stdout=subprocess.PIPE
    ).stdout.decode()
    stamp = folder / "made-by"
    if stamp.exists() and stamp.read_text() == version:
        return folder
    shutil.rmtree(folder, ignore_errors=True)
    (folder / "home").mkdir(parents=True)
    machine = Machine(folder)
    machine.run("wineboot", "--init")
    machine.stop()
    stamp.write_text(version)
    return folder


def _copy_template(template, prefix):
    windows = template / "drive_c" / "windows"

    def copy(source, target):
        if Path(source).is_relative_to(windows):
            os.link(source, target)
        else:
            shutil.copy2(source, target)

    shutil.copytree(template, prefix, symlinks=True, copy_function=copy)


_KEY = re.compile(r"^\[(.*)\] \d+")
_VALUE = re.compile(r'^(?:"((?:[^"\\]|\\.)*)"|@)=(.*)$')


def _read_registry(path, root):
    keys = {}
    values = None
    for line in path.read_text(encoding="utf-8", errors="surrogateescape").splitlines():
        key = _KEY.match(line)
        value = _VALUE.match(line)
        if key:
            values = keys.setdefault(_canonical(root + "\\" + _unescape(key.group(1))), {})
        elif value and values is not None:
            text = value.group(2)
            quoted = re.match(r'^(?:str\(\d+\):)?"(.*)"$', text)
            values[_unescape(value.group(1) or "")] = (
                _unescape(quoted.group(1)) if quoted else text
            )
    return keys


def _canonical(key):
    """Wine stores the current control set under its number."""
    return re.sub(r"(?i)^(HKEY_LOCAL_MACHINE\\System)\\ControlSet001", r"\1\\CurrentControlSet", key)


def _unescape(text):
    def character(match):
        found = match.group(1)
        if found[0] == "x":
            return chr(int(found[1:], 16))
        return {"n": "\n", "r": "\r", "0": "\0"}.get(found, found)

    return re.sub(r"\\(x[0-9a-f]{1,4}|.)", character, text)


def value_of(registry, key, name):
    """A value of a registry, keys and names compared without case; None when it is missing."""
    for path, values in registry.items():
        if path.lower() == key.lower():
            for value_name, value in values.items():
                if value_name.lower() == name.lower():
                    return value
    return None


if __name__ == "__main__":
    make_template(sys.argv[1])
