"""Takes the pictures of tools/screenshots, each program and language on its own Windows machine.

    screenshots.py BUILD_FOLDER [--to FOLDER] [--scale PERCENT] [--program NAME] [--locale LOCALE]

A picture is FOLDER/LOCALE/PROGRAM-PAGE.png, FOLDER by default docs/images. Needs a display (xvfb-run), the
programs as the target installed_programs lays them out, and the sample product.
"""

import argparse
import shutil
import subprocess
import sys
import time
import xml.etree.ElementTree as ElementTree
from collections.abc import Callable
from dataclasses import dataclass
from pathlib import Path
from typing import TypeVar

from cadsystems import put_cad_systems
from languages import read_languages
from winemachine import INSTALL_DIR, Machine, StrPath, make_template

ROOT = Path(__file__).resolve().parents[1]
LANGUAGES = ROOT / "resource" / "languages"
COMPLETE = "The installation or update is complete. Click finish to continue."
TABLES = "C:\\tables"
# The name under which the set-up program is put on the machine.
SET_UP = "NVXSetup"
SCREEN = "2560x1800"
TIMEOUT_S = 120
MARLETT = Path("/usr/share/wine/fonts/marlett.ttf")

# The font of the system in each language; Wine accepts only families that the host has. The last font of a
# language is the one for Linux.
FAMILIES = {row["locale"]: row["fonts"] for row in read_languages() if "fonts" in row}
OTHER_FAMILY = "Open Sans"
SYSTEM_FAMILIES = ("MS Shell Dlg", "MS Shell Dlg 2", "Tahoma")

Value = TypeVar("Value")


@dataclass
class Page:
    """A page, the keys that lead to it from the previous page, and a text in the log that it waits for."""

    name: str
    keys: tuple[str, ...] = ()
    log_text: str = ""


@dataclass
class Program:
    """A program, the catalogue of its texts, its pages in order, and its arguments, in which {locale} stands
    for the language."""

    name: str
    catalogue: str
    pages: tuple[Page, ...]
    tokens: tuple[str, ...] = ()
    only: tuple[str, ...] = ()  # the languages, all of them if empty
    folder: str = INSTALL_DIR
    log: str = INSTALL_DIR + "\\NVXConfig.log"

    def locales(self) -> list[str]:
        if self.only:
            return list(self.only)
        files = sorted(LANGUAGES.glob(self.catalogue + "_*.ts"))
        return ["en-US"] + [file.stem.split("_")[1] for file in files]


PROGRAMS = (
    Program(
        "NVXConfig",
        "nvxconfig",
        (
            Page("welcome"),
            Page("launchers", keys=("Return",)),
            Page("conclusion", keys=("Return",), log_text=COMPLETE),
        ),
        tokens=("-L{locale}",),
    ),
    Program(
        SET_UP,
        "nvxconfig",
        (
            Page("welcome"),
            Page("components", keys=("Return",)),
            # Not with the caret of the folder, which blinks.
            Page("folder", keys=("Return", "Tab")),
            # With the beginning of the line after it, which is the last one.
            Page("finish", keys=("shift+Tab", "Return"), log_text="NVXConfig.exe: 0\r\n2"),
        ),
        tokens=("/LANG={locale}", "/LOG=C:\\set-up.log"),
        only=("en-US", "de-DE"),
        folder="C:",
        log="C:\\set-up.log",
    ),
    Program(
        "MessageTableUtility",
        "messagetableutility",
        (Page("window"), Page("panel", keys=("ctrl+Down",)), Page("findings", keys=("F7",))),
        tokens=(TABLES + "\\errors.xml",),
        only=("en-US", "ja-JP"),
    ),
    Program(
        "MaterialNameUtility",
        "materialnameutility",
        (Page("window"),),
        tokens=(TABLES + "\\matprop.ts",),
        only=("en-US", "ja-JP"),
    ),
)


def translated(text: str, catalogue: str, locale: str) -> str:
    """The translation of a text of the program."""
    file = LANGUAGES / f"{catalogue}_{locale}.ts"
    if not file.exists():
        return text
    for message in ElementTree.parse(file).iter("message"):
        if message.findtext("source") == text:
            return message.findtext("translation", "")
    raise ValueError(f"{file.name} has no text '{text}'")


def wait_for(what: str, condition: Callable[[], Value | None]) -> Value:
    """Waits until the condition returns a true value, and returns it."""
    deadline = time.monotonic() + TIMEOUT_S
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise TimeoutError("timed out waiting for " + what)
        time.sleep(0.2)


def output_of(*command: StrPath | bytes) -> bytes:
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout


def make_machine(build: Path, program: Program, locale: str, scale: int) -> Machine:
    """A fresh machine with the product or its set-up program, whose user speaks that language."""
    unix_locale = locale.replace("-", "_") + ".UTF-8"
    locales = build / "locales"
    locales.mkdir(exist_ok=True)
    if not (locales / unix_locale).exists():
        output_of("localedef", "-i", unix_locale.split(".")[0], "-f", "UTF-8", locales / unix_locale)
    machine = Machine.create(
        build / "screenshots", make_template(build / "wine-template"), unix_locale, locales
    )
    if program.name == SET_UP:
        (set_up,) = (build / "package").glob("*-setup.exe")
        shutil.copy(set_up, machine.path(f"C:\\{SET_UP}.exe"))
    else:
        machine.put_product(build / "installed_programs", build / "sample")
    put_cad_systems(machine)
    shutil.copytree(ROOT / "sample" / "tables", machine.path(TABLES))
    # Debian installs the font of the title bars' buttons where Wine does not look for it.
    shutil.copy(MARLETT, machine.path("C:\\windows\\Fonts\\marlett.ttf"))
    # A machine's first program sets the fonts of its language, which would replace ours.
    machine.start_up()
    machine.import_script(screen_settings(FAMILIES.get(locale, OTHER_FAMILY), scale))
    machine.stop()
    return machine


def screen_settings(family: str, scale: int) -> str:
    """A script for the Registry Editor that sets a desktop on which windows have title bars, its font and its
    scaling."""
    lines = [
        "Windows Registry Editor Version 5.00",
        "[HKEY_CURRENT_USER\\Software\\Wine\\Explorer]",
        '"Desktop"="Default"',
        "[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]",
        f'"Default"="{SCREEN}"',
        "[HKEY_CURRENT_USER\\Control Panel\\Desktop]",
        f'"LogPixels"=dword:{96 * scale // 100:08x}',
        "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\FontSubstitutes]",
    ]
    lines += [f'"{name}"="{family}"' for name in SYSTEM_FAMILIES]
    return "\r\n".join(lines) + "\r\n"


class Session:
    """A running program with a window."""

    def __init__(self, machine: Machine, program: Program, locale: str) -> None:
        self.machine, self.program, self.locale = machine, program, locale
        self.log = machine.path(program.log)
        self.last_picture: bytes | None = None
        tokens = [token.format(locale=locale) for token in program.tokens]
        self.process = machine.start(f"{program.folder}\\{program.name}.exe", *tokens)

    def window(self) -> str | None:
        """The program's only window, None while it has none."""
        pattern = f"^{self.program.name.lower()}\\.exe$"
        found = output_of("xdotool", "search", "--onlyvisible", "--class", pattern).split()
        if len(found) > 1:
            names = [output_of("xdotool", "getwindowname", window).decode().strip() for window in found]
            raise RuntimeError("more than one window is shown: " + ", ".join(names))
        if not found and self.process.poll() is not None:
            raise RuntimeError(f"{self.program.name} exited with {self.process.returncode}")
        return found[0].decode() if found else None

    def picture(self) -> bytes | None:
        """The window as a PNG, None while there is none."""
        window = self.window()
        options = ("-strip", "-define", "png:exclude-chunks=date,time", "-define", "png:compression-level=9")
        return output_of("import", "-window", window, *options, "png:-") if window else None

    def still_picture(self) -> bytes:
        """The window once it differs from the last picture and no longer changes."""
        seen = []

        def settled_picture():
            seen.append(self.picture())
            return len(seen) > 3 and len(set(seen[-4:])) == 1 and seen[-1] != self.last_picture and seen[-1]

        wait_for("the window", self.window)
        output_of("xdotool", "mousemove", "0", "0")  # a control below the pointer would be highlighted
        self.last_picture = wait_for("a page that no longer changes", settled_picture)
        return self.last_picture

    def log_text(self) -> str:
        """The log of the configuration program in UTF-8, or that of the set-up program in UTF-16."""
        contents = self.log.read_bytes()
        return contents.decode("utf-16" if contents.startswith(b"\xff\xfe") else "utf-8", "replace")

    def show(self, page: Page) -> bytes:
        for key in page.keys:
            output_of("xdotool", "key", key)
        if page.log_text:
            text = page.log_text
            if self.program.name != SET_UP:
                text = translated(text, self.program.catalogue, self.locale)
            wait_for(
                f"'{text}' in the log",
                lambda: self.log.exists() and text in self.log_text(),
            )
        return self.still_picture()


def take_pictures(build: Path, program: Program, locale: str, scale: int, folder: Path) -> None:
    machine = make_machine(build, program, locale, scale)
    try:
        session = Session(machine, program, locale)
        for page in program.pages:
            path = folder / locale / f"{program.name}-{page.name}.png"
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(session.show(page))
            print("   " + str(path), flush=True)
    finally:
        machine.stop()


def check_fonts() -> None:
    families = output_of("fc-list", ":", "family").decode()
    missing = {family for family in (*FAMILIES.values(), OTHER_FAMILY) if family not in families}
    if missing:
        sys.exit(f"these fonts are missing: {', '.join(sorted(missing))}; run tools/setup")


def main() -> None:
    parser = argparse.ArgumentParser(prog="tools/screenshots")
    parser.add_argument("build", type=Path)
    parser.add_argument("--to", type=Path, default=ROOT / "docs" / "images")
    parser.add_argument("--scale", type=int, default=200)
    parser.add_argument("--program", choices=[program.name for program in PROGRAMS])
    parser.add_argument("--locale")
    chosen = parser.parse_args()
    check_fonts()
    taken = 0
    for program in PROGRAMS:
        for locale in program.locales():
            if chosen.program not in (None, program.name) or chosen.locale not in (None, locale):
                continue
            take_pictures(chosen.build.resolve(), program, locale, chosen.scale, chosen.to)
            taken += 1
    if not taken:
        sys.exit("unknown language " + chosen.locale)


if __name__ == "__main__":
    main()
