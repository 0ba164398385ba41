"""The machine of tools/demo: prepares it, runs the program on it and prints what changed.

    demo.py BUILD_FOLDER [TOKENS...]

Without tokens, makes a new machine and installs the product on it.
"""

import contextlib
import sys
from collections.abc import Callable, Iterable
from pathlib import Path
from typing import TypeVar

from cadsystems import (
    COM_CLASSES,
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    PROTK_2,
    PROTK_3,
    SPACE_CLAIM_ADDINS,
    TAMSEL_ADDINS,
    put_cad_systems,
)
from localization_share import Translators
from winemachine import INSTALL_DIR, SERVICES, Machine, Registry, make_template, value_of

# Keys that Wine itself changes during any run.
WINE_KEYS = (
    "HKEY_CURRENT_USER\\Software\\Wine",
    "HKEY_LOCAL_MACHINE\\Software\\Wine",
    "HKEY_CURRENT_USER\\Volatile Environment",
    "HKEY_LOCAL_MACHINE\\Hardware",
    "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Enum",
    "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Class",
    "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\DeviceClasses",
    "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Video",
    "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Hardware Profiles",
    "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Perflib",
)

Item = TypeVar("Item", str, tuple[str, str])  # a path, a name, or a key with the name of a value


def heading(text: str) -> None:
    print(f"\n\033[1m== {text}\033[0m" if sys.stdout.isatty() else f"\n== {text}", flush=True)


def is_of_wine(key: str) -> bool:
    return key.lower().startswith(tuple(own.lower() for own in WINE_KEYS))


def flatten(registry: Registry) -> dict[tuple[str, str], str]:
    return {
        (key, name): value
        for key, values in registry.items()
        if not is_of_wine(key)
        for name, value in values.items()
    }


def service_names(registry: Registry) -> dict[str, str]:
    names = {}
    for key in registry:
        if key.lower().startswith(SERVICES.lower()):
            names[key[len(SERVICES) :].split("\\")[0]] = ""
    return names


def print_changes(
    title: str, before: dict[Item, str], after: dict[Item, str], shown: Callable[[Item], str]
) -> None:
    heading(title)
    lines = ["  + " + shown(item) for item in sorted(after.keys() - before.keys())]
    lines += ["  - " + shown(item) for item in sorted(before.keys() - after.keys())]
    same = before.keys() & after.keys()
    lines += ["  * " + shown(item) for item in sorted(same) if before[item] != after[item]]
    print("\n".join(lines) if lines else "  nothing")


# CAD systems' files that are printed as a whole before and after the run.
SHARED_FILES = (PROTK_2, PROTK_3, CUSTOM_DIRS_10, CUSTOM_DIRS_11)


def contents_of(machine: Machine, paths: Iterable[str]) -> dict[str, bytes]:
    return {path: machine.path(path).read_bytes() for path in paths if machine.path(path).exists()}


def print_contents(title: str, contents: bytes) -> None:
    print(f"  {title}:")
    for line in contents.decode("cp1252", "replace").splitlines():
        print("    | " + line)


def print_launchers(machine: Machine, before: dict[str, bytes], registry: Registry) -> None:
    """Prints what the run has changed for the CAD systems."""
    after = contents_of(machine, SHARED_FILES)
    for path in SHARED_FILES:
        heading(path)
        if path not in before and path not in after:
            print("  missing")
        elif before.get(path) == after.get(path):
            print_contents("not changed", after[path])
        else:
            print_contents("before", before.get(path, b""))
            print_contents("after", after.get(path, b""))

    heading("registered libraries")
    for system, key in COM_CLASSES.items():
        server = value_of(registry, key + "\\InprocServer32", "")
        print(f"  {system}: {server or 'none'}")

    heading("Tamsel's manifests and SpaceClaim's add-in")
    found = [path for path in sorted(machine.files()) if is_addin(path)]
    for path in found:
        print("  " + path)
        if path.endswith(".Addin"):
            lines = machine.path(path).read_text(encoding="utf-8", errors="replace").split("\n")
            print("    | " + next((line for line in lines if "<Assembly>" in line), ""))
    if not found:
        print("  none")


def is_addin(path: str) -> bool:
    in_space_claim = path.startswith(SPACE_CLAIM_ADDINS + "\\NVX")
    return in_space_claim or (path.endswith("\\NVX_2017.Addin") and TAMSEL_ADDINS in path)


def prepare(build: Path) -> Machine:
    heading("making a new Windows machine")
    template = make_template(build / "wine-template")
    machine = Machine.create(build / "demo", template)
    machine.put_product(build / "installed_configuration", build / "sample")
    put_cad_systems(machine)
    machine.stop()
    print(f"drive C is {machine.prefix / 'drive_c'}")
    return machine


def surroundings(
    machine: Machine, build: Path, tokens: list[str]
) -> contextlib.AbstractContextManager[Translators | None]:
    """The translators on the other end of the share, for the localisation tool."""
    if "-T" in tokens:
        return Translators(machine, build, INSTALL_DIR)
    return contextlib.nullcontext()


def main(build: Path, tokens: list[str]) -> int:
    if tokens:
        machine = Machine(build / "demo")
        if not machine.prefix.exists():
            sys.exit("no machine found: run tools/demo without tokens first")
    else:
        machine = prepare(build)
        tokens = ["-I", "-S", "-Lde-DE"]

    files_before, registry_before = machine.files(), machine.registry()
    shared_before = contents_of(machine, SHARED_FILES)
    log_path = machine.path(INSTALL_DIR) / "NVXConfig.log"
    log_start = log_path.stat().st_size if log_path.exists() else 0

    heading("NVXConfig.exe " + " ".join(tokens))
    with surroundings(machine, build, tokens):
        done = machine.run(INSTALL_DIR + "\\NVXConfig.exe", *tokens, folder=INSTALL_DIR)
    files_after, registry_after = machine.files(), machine.registry()

    heading("the log of this run")
    print(log_path.read_bytes()[log_start:].decode("utf-8").replace("\r\n", "\n"), end="")

    print("\nChanges on the machine (+ new, - deleted, * changed)")
    print_changes("files", files_before, files_after, str)
    values_before, values_after = flatten(registry_before), flatten(registry_after)
    print_changes(
        "registry values",
        values_before,
        values_after,
        lambda item: f"{item[0]}: {item[1]} = {values_after.get(item, values_before.get(item))}",
    )
    print_changes("services", service_names(registry_before), service_names(registry_after), str)
    print("\nThe product in the CAD systems")
    print_launchers(machine, shared_before, registry_after)
    heading(f"exit status {done.returncode}")
    return done.returncode


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]), sys.argv[2:]))
