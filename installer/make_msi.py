#!/usr/bin/env python3
"""Makes the package for the Windows Installer (MSI) from what CPack has staged.

    make_msi.py STAGED VERSION TASK ICON OUTPUT

STAGED has the folders "product", "tools" and "translators", as for the set-up program; TASK is
NVXSetupTask.exe. All identifiers are made from names, so that they are the same in each build.
"""

import argparse
import hashlib
import os
import subprocess
import sys
import tempfile
import uuid
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path
from xml.etree import ElementTree
from xml.etree.ElementTree import Element, SubElement

# Every identifier is made from this one and a name. It never changes: an upgrade finds older versions by it.
PRODUCT = uuid.UUID("6a5e52a4-3f0c-5d3e-9f43-0e2b4f9f7a17")
PRODUCT_KEY = r"Software\Velmora\NVX"
SETUP_KEY = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\NVX 2017"

# What the product creates next to its files, relative to the install dir.
CREATED = (
    ("", "VistrelResources.dll"),
    ("", "VelmoraApplicationFrameRes.dll"),
    ("ja", "ZorvRes.dll"),
    ("NVX Viewer", "last-start.txt"),
)


@dataclass(frozen=True)
class Action:
    """A custom action: its place in the sequence, when it runs, its kind, its source and its target."""

    place: int
    name: str
    condition: str
    kind: int
    source: str
    target: str


# Kinds of the Windows Installer: set a property; run a program of the package at once, or with the rights of
# the installer at its turn or when the installation is undone.
ASSIGN = 51
RUN_NOW = 2
RUN = RUN_NOW + 0x400 + 0x800
MAY_FAIL = 0x40
UNDO = RUN + 0x100 + MAY_FAIL

# The first installation on a machine. If its configuration fails, it is removed at once, before the files:
# Wine undoes actions after it has removed the files.
INSTALL = 'NOT REMOVE~="ALL"'
FIRST = INSTALL + " AND NOT Installed AND NOT WIX_UPGRADE_DETECTED"
AGAIN = INSTALL + " AND (Installed OR WIX_UPGRADE_DETECTED)"
# An upgrade removes the files of the older version but not its configuration: the users keep their materials.
REMOVE = 'REMOVE~="ALL" AND NOT UPGRADINGPRODUCTCODE'
# The tools use the product's libraries, so the product is never left out.
ONLY_TOOLS = 'ADDLOCAL="DeveloperTools" AND NOT Installed'
CONFIGURE = 'configure "[INSTALLDIR]." [NVXTIMEOUT]'
INSTALL_TASK = 'install "[INSTALLDIR]." [NVXTIMEOUT]'
FOLDERS = '"[INSTALLDIR]." "[TRANSLATORSDIR]."'

# An undoing comes before what it undoes. A product whose server does not stop can still be replaced.
ACTIONS = (
    Action(102, "AddProduct", ONLY_TOOLS, ASSIGN, "ADDLOCAL", "Product,DeveloperTools"),
    Action(104, "RemoveTools", 'REMOVE="Product"', ASSIGN, "REMOVE", "ALL"),
    Action(110, "KeepLanguage", "NVXINSTALLEDLANG AND NOT NVXLANG", ASSIGN, "NVXLANG", "[NVXINSTALLEDLANG]"),
    Action(
        120, "KeepFolder", "NVXINSTALLEDDIR AND NOT INSTALLDIR", ASSIGN, "INSTALLDIR", "[NVXINSTALLEDDIR]"
    ),
    Action(130, "SetLanguage", "NVXLANG", ASSIGN, "LANGUAGEOPTION", "-L[NVXLANG]"),
    Action(1010, "SetLocation", "", ASSIGN, "ARPINSTALLLOCATION", "[INSTALLDIR]"),
    Action(1420, "CheckMachine", "NOT UPGRADINGPRODUCTCODE", RUN_NOW, "Task", "check"),
    Action(1505, "UndoStopServer", "Installed", UNDO, "Task", CONFIGURE + " -I -S [LANGUAGEOPTION]"),
    Action(1510, "StopServer", "Installed", RUN + MAY_FAIL, "Task", CONFIGURE + " -ST -S [LANGUAGEOPTION]"),
    Action(1515, "Unconfigure", REMOVE, RUN, "Task", CONFIGURE + " -U -S [LANGUAGEOPTION]"),
    Action(3650, "Unregister", REMOVE, RUN, "Task", "unregister " + FOLDERS),
    Action(3660, "UndoRegister", FIRST, UNDO, "Task", "unregister " + FOLDERS),
    Action(3670, "Reserve", INSTALL, RUN, "Task", 'reserve "[INSTALLDIR]."'),
    Action(5520, "Register", INSTALL, RUN, "Task", "register " + FOLDERS),
    Action(5530, "UndoConfigure", FIRST, UNDO, "Task", CONFIGURE + " -U -S [LANGUAGEOPTION]"),
    Action(5540, "ConfigureFirst", FIRST, RUN, "Task", INSTALL_TASK + " -I -S [LANGUAGEOPTION]"),
    Action(5550, "Configure", AGAIN, RUN, "Task", CONFIGURE + " -I -S [LANGUAGEOPTION]"),
)
# Of a feature: it cannot be left out.
UI_DISALLOW_ABSENT = 16
# After the beginning of what is undone after a failure, so that the older version is restored.
REMOVE_OLDER = 1525


def guid(name: str) -> str:
    return str(uuid.uuid5(PRODUCT, name)).upper()


def identifier(kind: str, name: str) -> str:
    return kind + hashlib.sha1(name.encode()).hexdigest()


class Package:
    """The description of the package for wixl."""

    def __init__(self, version: str, task: Path, icon: Path) -> None:
        self._folders: dict[str, Element] = {}
        self.wix = Element("Wix", xmlns="http://schemas.microsoft.com/wix/2006/wi")
        self.product = SubElement(
            self.wix,
            "Product",
            Id=guid("product " + version),
            UpgradeCode=str(PRODUCT).upper(),
            Name="Velmora NVX 2017",
            Manufacturer="Velmora",
            Version=version,
            Language="1033",
            Codepage="1252",
        )
        SubElement(
            self.product,
            "Package",
            InstallerVersion="500",
            Compressed="yes",
            InstallScope="perMachine",
            Description="Velmora NVX 2017",
            Manufacturer="Velmora",
        )
        SubElement(self.product, "Media", Id="1", Cabinet="files.cab", EmbedCab="yes")
        newer = "A newer version of NVX 2017 is installed."
        SubElement(self.product, "MajorUpgrade", DowngradeErrorMessage=newer)
        SubElement(self.product, "Icon", Id="program.ico", SourceFile=str(icon))
        SubElement(self.product, "Binary", Id="Task", SourceFile=str(task))
        self._features = self._make_features()
        self._properties()
        self._conditions()

    def _make_features(self) -> dict[bool, Element]:
        """{whether it has the developers' tools: feature}"""
        product = SubElement(self.product, "Feature", Id="Product", Level="1", Title="NVX 2017")
        tools = SubElement(product, "Feature", Id="DeveloperTools", Level="1000")
        tools.set("Title", "Tools for the product developers")
        return {False: product, True: tools}

    def _properties(self) -> None:
        for name, value in (
            ("ARPPRODUCTICON", "program.ico"),
            ("ARPNOMODIFY", "1"),
            ("ARPHELPLINK", "https://help.velmora.example/"),
            ("NVXTIMEOUT", "1800"),
        ):
            SubElement(self.product, "Property", Id=name, Value=value)
        self._search("NVXSETUP", SETUP_KEY, "UninstallString")
        self._search("NVXINSTALLEDLANG", PRODUCT_KEY + r"\17.2", "Locale")
        self._search("NVXINSTALLEDDIR", PRODUCT_KEY, "WindowsInstallerFolder")
        self._search("TRANSLATORSDIR", r"Software\Velmora\Kelvane\Translators", "Folder")

    def _search(self, name: str, key: str, value: str) -> None:
        found = SubElement(self.product, "Property", Id=name)
        SubElement(
            found,
            "RegistrySearch",
            Id="Search" + name,
            Root="HKLM",
            Key=key,
            Name=value,
            Type="raw",
            Win64="yes",
        )

    def _conditions(self) -> None:
        for message, condition in (
            ("NVX 2017 needs the rights of an administrator to be installed.", "Privileged"),
            (
                "NVX 2017 was installed by its set-up program. Remove it first, or run the new one.",
                "Installed OR NOT NVXSETUP",
            ),
        ):
            SubElement(self.product, "Condition", Message=message).text = condition

    def make_folders(self) -> None:
        target = SubElement(self.product, "Directory", Id="TARGETDIR", Name="SourceDir")
        programs = SubElement(target, "Directory", Id="ProgramFiles64Folder")
        vendor = SubElement(programs, "Directory", Id="VendorFolder", Name="Velmora")
        other = SubElement(vendor, "Directory", Id="OtherProductFolder", Name="Kelvane")
        install = SubElement(vendor, "Directory", Id="INSTALLDIR", Name="NVX 2017")
        translators = SubElement(other, "Directory", Id="TRANSLATORSDIR", Name="Translators")
        self._folders = {"product": install, "tools": install, "translators": translators}
        for folder, _ in CREATED:
            self._folder("product/" + folder if folder else "product")

    def _folder(self, place: str) -> Element:
        """The folder of a staged one. The tools' folders are the product's."""
        place = place.replace("tools/", "product/", 1) if place.startswith("tools/") else place
        if place not in self._folders:
            parent, _, name = place.rpartition("/")
            directory = SubElement(self._folder(parent), "Directory", Id=identifier("d", place), Name=name)
            self._folders[place] = directory
        return self._folders[place]

    def add_files(self, staged: Path) -> None:
        """Adds the staged files, each with a component of its own, so that it is repaired by itself."""
        for path in sorted(path for path in staged.rglob("*") if path.is_file()):
            name = path.relative_to(staged).as_posix()
            place, _, file = name.rpartition("/")
            component = self._add_component(self._folder(place), name, name.startswith("tools/"))
            SubElement(component, "File", Id=identifier("f", name), Name=file, Source=name, KeyPath="yes")

    def _add_component(self, directory: Element, name: str, is_tool: bool = False) -> Element:
        component = SubElement(
            directory, "Component", Id=identifier("c", name), Guid=guid("component " + name), Win64="yes"
        )
        SubElement(self._features[is_tool], "ComponentRef", Id=component.get("Id", ""))
        return component

    def add_note(self) -> None:
        """The registry values by which the set-up program and the next package find the product."""
        component = self._add_component(self._folders["product"], "note")
        for name, value in (
            ("WindowsInstaller", "[ProductCode]"),
            ("WindowsInstallerFolder", "[INSTALLDIR]"),
        ):
            entry = SubElement(
                component,
                "RegistryValue",
                Root="HKLM",
                Key=PRODUCT_KEY,
                Name=name,
                Value=value,
                Type="string",
            )
            if name == "WindowsInstaller":
                entry.set("KeyPath", "yes")


def inserted(table: str, **row: str | int) -> str:
    columns = ", ".join(f"`{name}`" for name in row)
    values = ", ".join(str(value) if isinstance(value, int) else f"'{value}'" for value in row.values())
    return f"INSERT INTO `{table}` ({columns}) VALUES ({values})"


def queries() -> Iterator[str]:
    """What wixl cannot say."""
    yield f"UPDATE `Feature` SET `Attributes`={UI_DISALLOW_ABSENT} WHERE `Feature`='Product'"
    for action in ACTIONS:
        yield inserted(
            "CustomAction", Action=action.name, Type=action.kind, Source=action.source, Target=action.target
        )
        yield inserted(
            "InstallExecuteSequence", Action=action.name, Condition=action.condition, Sequence=action.place
        )
    where = "WHERE `Action`='RemoveExistingProducts'"
    yield f"UPDATE `InstallExecuteSequence` SET `Sequence`={REMOVE_OLDER} {where}"
    secure = "INSTALLDIR;NVXLANG;NVXTIMEOUT;WIX_DOWNGRADE_DETECTED;WIX_UPGRADE_DETECTED"
    yield f"UPDATE `Property` SET `Value`='{secure}' WHERE `Property`='SecureCustomProperties'"
    for folder, name in CREATED:
        yield inserted(
            "RemoveFile",
            FileKey=identifier("r", name),
            Component_=identifier("c", "note"),
            FileName=name,
            DirProperty=identifier("d", "product/" + folder) if folder else "INSTALLDIR",
            InstallMode=2,
        )


def make(staged: Path, version: str, task: Path, icon: Path, output: Path) -> None:
    # wixl takes only relative paths, from the folder that it runs in.
    task, icon = (Path(os.path.relpath(path, staged)) for path in (task, icon))
    package = Package(version, task, icon)
    package.make_folders()
    package.add_files(staged)
    package.add_note()
    output.unlink(missing_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        description = Path(folder) / "package.wxs"
        ElementTree.ElementTree(package.wix).write(description, encoding="utf-8", xml_declaration=True)
        subprocess.run(["wixl", "-a", "x64", "-o", output.resolve(), description], cwd=staged, check=True)
    for query in queries():
        subprocess.run(["msibuild", output, "-q", query], check=True)
    # The code of a package is made from its contents; the one that wixl has set is random.
    set_code(output, uuid.UUID(int=0))
    set_code(output, uuid.uuid5(PRODUCT, hashlib.sha256(output.read_bytes()).hexdigest()))


def set_code(package: Path, code: uuid.UUID) -> None:
    summary = ["Velmora NVX 2017", "Velmora", "x64;1033", f"{{{str(code).upper()}}}"]
    subprocess.run(["msibuild", package, "-s", *summary], check=True)


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").split("\n", maxsplit=1)[0])
    parser.add_argument("staged", type=Path)
    parser.add_argument("version")
    for name in ("task", "icon", "output"):
        parser.add_argument(name, type=Path)
    options = parser.parse_args()
    make(options.staged, options.version, options.task, options.icon, options.output)
    return 0


if __name__ == "__main__":
    sys.exit(main())
