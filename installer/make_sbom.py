#!/usr/bin/env python3
"""Lists what a package contains, with versions and licences, as CycloneDX 1.5 in JSON.

    make_sbom.py STAGED VERSION CACHE OUTPUT

STAGED is what CPack has staged, CACHE the folder of tools/setup. Everything is read from what was built: the
staged licences name the libraries; the attributions in Qt's sources, Debian's package lists and the programs
themselves have their versions.
"""

import argparse
import hashlib
import json
import re
import subprocess
import sys
import uuid
from collections.abc import Iterator
from pathlib import Path
from typing import Any

Component = dict[str, Any]

# The packages whose libraries are shipped, by the folder of their licence, and their licences.
DEBIAN_PACKAGES = {
    "GCC": ("gcc-mingw-w64-x86-64-posix-runtime", "GPL-3.0-or-later WITH GCC-exception-3.1"),
    "mingw-w64": ("mingw-w64-x86-64-dev", "ZPL-2.1"),
    "Qt translations": ("qt6-translations-l10n", "GPL-3.0-only WITH Qt-GPL-exception-1.0"),
}


def component(name: str, version: str, licence: str, **more: Any) -> Component:
    found: Component = {"type": "library", "bom-ref": name, "name": name}
    if version:
        found["version"] = version
    if licence:
        terms = re.split(r" (?:AND|OR|WITH) ", licence)
        if any(" " in term for term in terms):
            found["licenses"] = [{"license": {"name": licence}}]
        elif len(terms) > 1:
            found["licenses"] = [{"expression": licence}]
        else:
            found["licenses"] = [{"license": {"id": licence}}]
    return found | more


def debian_version(package: str) -> str:
    query = ["dpkg-query", "-W", "-f", "${Version}", package]
    return subprocess.run(query, check=True, capture_output=True, text=True).stdout


def qt_components(licences: Path, cache: Path) -> Iterator[Component]:
    """Qt, and the libraries in its sources whose licences are shipped."""
    version = (cache / "qt-windows" / "built-from").read_text().strip().rpartition("Qt ")[2]
    yield component("Qt", version, "LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only")
    sources = cache / "qt-source" / "src"
    for folder in sorted(path for path in (licences / "Qt").iterdir() if path.is_dir()):
        attributions = [
            path
            for parent in ("3rdparty", "corelib", "gui")
            if (path := sources / parent / folder.name / "qt_attribution.json").exists()
        ]
        for attribution in attributions:
            yield from attributed(attribution)


def attributed(attribution: Path) -> Iterator[Component]:
    """The libraries of one folder of Qt's sources. Its attribution has line breaks in strings."""
    text = json.loads(attribution.read_text(encoding="utf-8"), strict=False)
    patched = attribution.with_name("debian-version")
    for entry in text if isinstance(text, list) else [text]:
        version = patched.read_text().split()[1] if patched.exists() else entry.get("Version", "")
        yield component(entry["Name"], version, entry.get("LicenseId", ""))


def windows_components(staged: Path, cache: Path) -> Iterator[Component]:
    (licences,) = staged.rglob("licences/readme.txt")
    yield from qt_components(licences.parent, cache)
    for folder, (package, licence) in DEBIAN_PACKAGES.items():
        if (licences.parent / folder).is_dir():
            yield component(folder, debian_version(package), licence)
    for program in staged.rglob("7z.exe"):
        yield component("7-Zip", file_version(program), "LGPL-2.1-or-later")


def file_version(program: Path) -> str:
    """The version that Windows shows of a program."""
    key = "FileVersion\0".encode("utf-16-le")
    contents = program.read_bytes()
    start = contents.index(key) + len(key)
    text = contents[start : start + 64].decode("utf-16-le", "replace").lstrip("\0")
    return text.split("\0")[0]


def linux_components(staged: Path) -> Iterator[Component]:
    """The Debian packages whose licences are shipped."""
    for licence in sorted(staged.rglob("licences/*.txt")):
        found = component(
            licence.stem, debian_version(licence.stem), "", purl=f"pkg:deb/debian/{licence.stem}"
        )
        names = licences_of(licence.read_text(encoding="utf-8"), licence.name)
        yield found | {"licenses": [{"license": {"name": name}} for name in names]}


def licences_of(copyright_text: str, file: str) -> list[str]:
    """The licences that a Debian copyright file names; if it is free text, where to read them."""
    names = sorted(set(re.findall(r"^License: *(\S.*?) *$", copyright_text, re.MULTILINE)))
    return names or [f"see licences/{file}"]


def shipped_files(staged: Path) -> Iterator[Component]:
    """Every program and library, with its hash."""
    for path in sorted(path for path in staged.rglob("*") if path.is_file()):
        if (
            path.suffix in (".exe", ".dll")
            or ".so" in path.name
            or path.parent.name == "bin"
            and not path.suffix
        ):
            name = path.relative_to(staged).as_posix()
            digest = hashlib.sha256(path.read_bytes()).hexdigest()
            yield {
                "type": "file",
                "bom-ref": "file:" + name,
                "name": name,
                "hashes": [{"alg": "SHA-256", "content": digest}],
            }


def bill(staged: Path, version: str, cache: Path) -> Component:
    is_windows = any(staged.rglob("Qt6Core.dll"))
    libraries = windows_components(staged, cache) if is_windows else linux_components(staged)
    components = [*libraries, *shipped_files(staged)]
    content = json.dumps(components, sort_keys=True)
    return {
        "bomFormat": "CycloneDX",
        "specVersion": "1.5",
        "serialNumber": "urn:uuid:" + str(uuid.uuid5(uuid.NAMESPACE_URL, content)),
        "version": 1,
        "metadata": {
            "component": {
                "type": "application",
                "bom-ref": "NVX 2017",
                "name": "NVX 2017",
                "version": version,
                "supplier": {"name": "Velmora"},
            }
        },
        "components": components,
    }


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").split("\n", maxsplit=1)[0])
    parser.add_argument("staged", type=Path)
    parser.add_argument("version")
    parser.add_argument("cache", type=Path)
    parser.add_argument("output", type=Path)
    options = parser.parse_args()
    text = json.dumps(bill(options.staged, options.version, options.cache), indent=2)
    options.output.write_text(text + "\n", encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
