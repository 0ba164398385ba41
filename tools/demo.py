"""The machine of tools/demo: prepares it, runs the program on it and tells what changed.

    demo.py BUILD_FOLDER [TOKENS...]

Without tokens a new machine is made and the program installs the product on it.
"""

import sys
from pathlib import Path

from winemachine import INSTALL_DIR, Machine, make_template

# What Wine itself writes while any program runs.
NOISE = (
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
SERVICES = "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\"


def heading(text):
    form = "\n\033[1m== %s\033[0m" if sys.stdout.isatty() else "\n== %s"
    print(form % text, flush=True)


def is_noise(key):
    return any(key.lower().startswith(noise.lower()) for noise in NOISE)


def flatten(registry):
    return {
        (key, name): value
        for key, values in registry.items()
        if not is_noise(key)
        for name, value in values.items()
    }


def service_names(registry):
    names = {}
    for key in registry:
        if key.lower().startswith(SERVICES.lower()):
            names[key[len(SERVICES) :].split("\\")[0]] = ""
    return names


def print_changes(title, before, after, shown):
    heading(title)
    lines = ["  + " + shown(item) for item in sorted(after.keys() - before.keys())]
    lines += ["  - " + shown(item) for item in sorted(before.keys() - after.keys())]
    same = before.keys() & after.keys()
    lines += ["  * " + shown(item) for item in sorted(same) if before[item] != after[item]]
    print("\n".join(lines) if lines else "  nothing")


def prepare(build):
    heading("making a new Windows machine")
    template = make_template(build / "wine-template")
    machine = Machine.create(build / "demo", template)
    machine.put_product(build / "installed", build / "sample")
    machine.stop()
    print("drive C is %s" % (machine.prefix / "drive_c"))
    return machine


def main(build, tokens):
    if tokens:
        machine = Machine(build / "demo")
        if not machine.prefix.exists():
            sys.exit("there is no machine yet: run tools/demo without tokens first")
    else:
        machine = prepare(build)
        tokens = ["-I", "-S", "-Lde-DE"]

    files_before, registry_before = machine.files(), machine.registry()
    log_path = machine.path(INSTALL_DIR) / "NVXConfig.log"
    log_start = log_path.stat().st_size if log_path.exists() else 0

    heading("NVXConfig.exe " + " ".join(tokens))
    answer = machine.run(INSTALL_DIR + "\\NVXConfig.exe", *tokens, folder=INSTALL_DIR)
    files_after, registry_after = machine.files(), machine.registry()

    heading("the log of this run")
    print(log_path.read_bytes()[log_start:].decode("utf-8").replace("\r\n", "\n"), end="")

    print("\nWhat changed on the machine (+ new, - gone, * other contents)")
    print_changes("files", files_before, files_after, str)
    values_before, values_after = flatten(registry_before), flatten(registry_after)
    print_changes(
        "registry values",
        values_before,
        values_after,
        lambda item: "%s: %s = %s" % (*item, values_after.get(item, values_before.get(item))),
    )
    print_changes("services", service_names(registry_before), service_names(registry_after), str)
    heading("exit status %d" % answer.returncode)
    return answer.returncode


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]), sys.argv[2:]))
