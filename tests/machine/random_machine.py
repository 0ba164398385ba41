"""Random machines: their CAD systems, what other programs have written into the CAD systems' files, and what
an earlier install left. A seed always gives the same machine.

    plan = random_plan(4711)
    print(plan)
    put_machine(case, plan)  puts it on the machine of a test
"""

import random
from dataclasses import dataclass, field, fields

from machine_case import INSTALL_DIR, MachineCase
from cadsystems import SPACE_CLAIM_ADDINS, TAMSEL_ADDINS
from languages import read_languages
from winemachine import ENVIRONMENT_KEY, SHARED_DATA, TRANSLATORS, TUTORIALS
from wineregistry import Registry, script_of

SOFTWARE = "HKEY_LOCAL_MACHINE\\SOFTWARE\\"
UNINSTALL = SOFTWARE + "Microsoft\\Windows\\CurrentVersion\\Uninstall\\"
NX_VERSIONS = ("8.5", "8.5.0", "9.0", "9.5", "9.5.0", "10.0", "10.5.0", "11.0")
TAMSEL_PRODUCTS = {
    "Tamsel": "Velmora Tamsel",
    "Tamsel Architecture": "Velmora Tamsel Architecture",
    "Tamsel MEP": "Velmora Tamsel MEP",
}
LOCALES = ("en-US", *sorted(row["locale"] for row in read_languages()[1:]))
CODE_PAGES = {"C.UTF-8": "cp1252", "ja_JP.UTF-8": "cp932"}

# Folder names, by the code page that can encode them.
_WORDS = {
    "cp1252": ("NVX", "Größe & Söhne", "a b,c=d^e@f!g", "100% frei", "Prog (x86)", "Éric's", "[1] {2}"),
    "cp932": ("NVX", "日本 ソフト", "表 計算", "ソ", "Prog (x86)", "能 100%"),
}
_LEGACY_MARKER = b"$OSTRADE2017"


@dataclass
class SharedFile:
    """A file of a CAD system that other programs write too."""

    path: str
    contents: bytes | None = None  # None if it is missing
    has_folder: bool = True
    fault: str = ""  # "held" by another program, or write-"protected"


@dataclass
class Creo:
    release: int
    folder: str
    ship_code: str | None  # None if the value is missing
    is_32_bit: bool
    protk: SharedFile


@dataclass
class Plan:
    seed: int
    locale: str  # of the machine's user
    language: str  # of the run
    install_dir: str
    creo: list[Creo] = field(default_factory=list)
    nx: dict[str, str] = field(default_factory=dict)  # {version: folder}
    menus: dict[str, SharedFile] = field(default_factory=dict)  # {folder of NX: SharedFile}
    brevant: tuple[str, ...] = ()  # its registry entries: "last run", "version"
    solidworks: tuple[int, ...] = ()  # years
    tamsel: dict[tuple[str, int], str] = field(default_factory=dict)  # {(edition, year): folder, "" for none}
    spaceclaim: str = ""  # "", "found" or "found without a folder of add-ins"
    has_translators: bool = False
    uninstall_path: str | None = None
    values: Registry = field(default_factory=dict)  # of the registry
    foreign: dict[str, bytes] = field(default_factory=dict)  # files that must not change: {path: contents}
    old: dict[str, bytes] = field(default_factory=dict)  # files of an earlier install: {path: contents}
    has_earlier_install: bool = False  # of the same product, in another folder

    @property
    def code_page(self) -> str:
        return CODE_PAGES[self.locale]

    def shared_files(self) -> list[SharedFile]:
        return [creo.protk for creo in self.creo] + list(self.menus.values())

    def __str__(self) -> str:
        lines = [f"{f.name}: {getattr(self, f.name)!r}" for f in fields(self)]
        return "\n".join(line if len(line) < 2000 else line[:2000] + "..." for line in lines)


def random_plan(seed: int) -> Plan:
    rng = random.Random(seed)
    locale = rng.choice(("C.UTF-8", "C.UTF-8", "ja_JP.UTF-8"))
    install_dir = INSTALL_DIR
    if rng.random() < 0.7:
        words = rng.sample(_WORDS[CODE_PAGES[locale]], rng.randint(1, 3))
        install_dir = "C:\\" + "\\".join(words)
    plan = Plan(seed, locale, rng.choice(LOCALES), install_dir)
    _add_creo(rng, plan)
    _add_nx(rng, plan)
    _add_other_systems(rng, plan)
    _add_tamsel(rng, plan)
    _add_faults(rng, plan)
    _add_earlier_state(rng, plan)
    _add_foreign_files(rng, plan)
    return plan


def _random_name(rng, plan):
    return rng.choice(_WORDS[plan.code_page]) + f" {rng.randint(1, 99)}"


def _add_creo(rng, plan):
    for release in (1, 2, 3):
        if rng.random() < 0.5:
            continue
        parametric = rng.choice(("\\Parametric", "\\Parametric", ""))
        folder = f"C:\\PTC {release}\\{_random_name(rng, plan)}{parametric}"
        ship_code = rng.choice(("M010", "F000", None)) if release < 3 else "F000"
        base = folder.replace("Parametric", "Common Files")
        if release < 3:
            base += "\\" + (ship_code or "")
        path = (base + "\\text\\protk.dat").replace("\\\\", "\\")
        protk = SharedFile(path, _random_protk(rng, plan))
        protk.has_folder = protk.contents is not None or rng.random() < 0.7
        is_32_bit = release > 1 and rng.random() < 0.3
        plan.creo.append(Creo(release, folder, ship_code, is_32_bit, protk))
        key = f"PTC\\Creo Parametric\\{release}.0"
        if is_32_bit:
            key = f"Wow6432Node\\PTC\\{'PTC ' * (release == 3)}Creo Parametric\\{release}.0"
        values = plan.values.setdefault(SOFTWARE + key + f"\\M0{release}", {})
        values[rng.choice(("INSTALLDIR", "InstallDir"))] = folder
        if ship_code is not None:
            values["SHIPCODE"] = ship_code


def _random_protk(rng, plan):
    """Entries of other programs and of an older install; None for no file."""
    if rng.random() < 0.15:
        return None
    pieces = [_random_entry(rng) for _ in range(rng.randint(0, 4))]
    if rng.random() < 0.4:
        ours = b"name NVX 2017\r\nexec_file D:\\old\\%s20.dll\r\nend\r\n"
        name = rng.choice((b"NVX_2017_Creo", b"nvx_2017_creo"))
        pieces.insert(rng.randint(0, len(pieces)), ours % name)
    if rng.random() < 0.2:
        pieces.insert(rng.randint(0, len(pieces)), _LEGACY_MARKER + b"\\text\r\nend\r\n")
    contents = b"".join(pieces)
    if rng.random() < 0.2:
        contents = contents.rstrip(b"\r\n")
    return contents


def _random_entry(rng):
    word, encoding = rng.choice(
        (("Schaltplan Größe", "latin-1"), ("表の部品", "cp932"), ("Деталь", "utf-8"), ("gear", "ascii"))
    )
    text = f"name {word}\r\nstartup dll\r\nexec_file C:\\{word}\\x.dll\r\ntext_dir C:\\x\r\nend\r\n"
    entry = text.encode(encoding)
    kind = rng.random()
    if kind < 0.15:
        return entry.replace(b"\r\n", b"\n")
    if kind < 0.3:
        return rng.randbytes(rng.randint(1, 300))
    if kind < 0.4:
        return rng.choice((b" x\r\nend\r\n", b"end\r\n", b"\r\n\r\n", b"\0\0\0\0\0\0end\r\n"))
    return entry


def _add_nx(rng, plan):
    shared = "C:\\Siemens\\" + _random_name(rng, plan)
    for version in NX_VERSIONS:
        if rng.random() < 0.65:
            continue
        folder = shared if rng.random() < 0.4 else f"C:\\Siemens\\NX {version}"
        plan.nx[version] = folder
        plan.values[SOFTWARE + "Unigraphics Solutions\\NX\\" + version] = {"UGII_BASE_DIR": folder}
        if folder not in plan.menus:
            menu = SharedFile(folder + "\\UGII\\MENUS\\custom_dirs.dat", _random_menu(rng, plan))
            menu.has_folder = menu.contents is not None or rng.random() < 0.7
            plan.menus[folder] = menu


def _random_menu(rng, plan):
    if rng.random() < 0.15:
        return None
    ours = plan.install_dir.lower().encode(plan.code_page)
    choices = (
        "# Ordner für Menüs\r\n".encode("latin-1"),
        b"C:\\other\\nx\r\n",
        "C:\\表\\nx\r\n".encode("cp932"),
        b"C:\\unix\\nx\n",
        rng.randbytes(rng.randint(1, 200)) + b"\r\n",
        b"\r\n",
        ours + b"\\of an older install\r\n",
    )
    contents = b"".join(rng.choice(choices) for _ in range(rng.randint(0, 6)))
    return contents.rstrip(b"\r\n") if rng.random() < 0.3 else contents


def _add_other_systems(rng, plan):
    plan.brevant = tuple(what for what in ("last run", "version") if rng.random() < 0.4)
    if "last run" in plan.brevant:
        plan.values[SOFTWARE + "Velmora\\Brevant\\Current Version"] = {"LASTVERSIONRUN": "21.0.3"}
    if "version" in plan.brevant:
        plan.values[SOFTWARE + "Velmora\\Brevant\\RegistryVersion20.0"] = {"ProductName": "Brevant"}
    plan.solidworks = tuple(year for year in (2007, 2010, 2016, 2017) if rng.random() < 0.3)
    for year in plan.solidworks:
        key = SOFTWARE + f"SolidWorks\\SolidWorks {year}\\Setup"
        plan.values[key] = {"SolidWorks Folder": "C:\\" + _random_name(rng, plan)}
    plan.spaceclaim = rng.choice(("", "found", "found without a folder of add-ins"))
    if plan.spaceclaim:
        plan.values[SOFTWARE + "Classes\\SpaceClaim.Location"] = {"Folder": "C:\\SpaceClaim"}


def _add_tamsel(rng, plan):
    for edition, product in TAMSEL_PRODUCTS.items():
        for year in (2014, 2015, 2016, 2017, 2018):
            if rng.random() < 0.7:
                continue
            folder = "C:\\" + _random_name(rng, plan) if rng.random() < 0.8 else ""
            code = f"{{T{year}-{edition[-3:]}}}"
            key = SOFTWARE + f"Velmora\\Tamsel\\{product} {year}\\Components"
            plan.values[key] = {"ProductCode": code}
            plan.values[UNINSTALL + code] = {"DisplayName": edition}
            if folder:
                plan.values[UNINSTALL + code]["InstallLocation"] = folder
            if year > 2014:  # 2015 is the first with a launcher
                plan.tamsel[edition, year] = folder


def _add_faults(rng, plan):
    for file in plan.shared_files():
        if file.contents is not None and rng.random() < 0.2:
            file.fault = rng.choice(("held", "protected"))


def _add_earlier_state(rng, plan):
    folder = plan.install_dir
    possible = {
        folder + "\\Python\\Lib\\old\\gone.py": b"old",
        folder + "\\Python\\Ostrade\\NVX\\results.pyc": b"old",
        folder + "\\NVX_2017_Creo20.dll": b"old",
        folder + "\\VistrelResources.dll": b"of another language",
        folder + "\\ja\\ZorvRes.dll": b"of another language",
        folder + "\\HPCAnalyze\\job.txt": b"old",
        folder + "\\WebServices\\a.txt": b"old",
        folder + "\\A.NEW.TXT": b"old",
        folder + "\\plugins\\Reports\\report.pyc": b"old",
        TUTORIALS + "\\from an update.txt": b"old",
        SHARED_DATA + "\\Sorvane\\ribbon.txt": b"of another language",
        SHARED_DATA + "\\values.dat": b"old",
        SHARED_DATA + "\\NVX2_config.nvxcfg": b"of another machine",
        SHARED_DATA + "\\matprop.nvxmdb": b"what the users have added" * rng.randint(0, 5000),
        SHARED_DATA + "\\Materials 2016.nvxmdb": b"of 2016",
        SHARED_DATA + "\\NVX_flags.txt": rng.choice((b"", b" \r\n", b"mine\r\n")),
        "C:\\users\\Public\\Desktop\\Velmora NVX 2017.lnk": b"not a link",
    }
    plan.old = {path: contents for path, contents in possible.items() if rng.random() < 0.4}
    plan.has_translators = rng.random() < 0.5
    plan.has_earlier_install = rng.random() < 0.25
    plan.uninstall_path = rng.choice(
        (None, '"C:\\Set Up\\setup.exe" /LANG=en-US /X', "/LANG=en-US", "setup.exe", "a/LANG")
    )
    if plan.uninstall_path is not None:
        plan.values[UNINSTALL + "NVX 2017"] = {"UninstallPath": plan.uninstall_path}
    if rng.random() < 0.4:
        plan.values[ENVIRONMENT_KEY] = {"OSTRADE2016DIR": "C:\\NVX 2016"}
        plan.foreign["C:\\NVX 2016\\matprop.mdb"] = b"the database of 2016"


def _add_foreign_files(rng, plan):
    possible = (
        plan.install_dir + "\\mine.txt",
        plan.install_dir + "\\systeminfo2012.xml",
        plan.install_dir + "\\plugins\\Reports\\report.py",
        SHARED_DATA + "\\mine.txt",
        SHARED_DATA + "\\HPCAnalyze\\job.txt",
        TAMSEL_ADDINS + "\\2017\\Other.Addin",
        TAMSEL_ADDINS + "\\2014\\NVX_2017.Addin",
        "C:\\users\\Public\\Desktop\\Other.lnk",
        TRANSLATORS + "\\other.txt",
    )
    for path in possible:
        if rng.random() < 0.5:
            plan.foreign[path] = rng.randbytes(rng.randint(0, 2000))
    if plan.spaceclaim == "found" and rng.random() < 0.5:
        plan.foreign[SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\mine.txt"] = b"mine"
    plan.values[UNINSTALL + "Other product"] = {"UninstallPath": "x.exe /LANG=en-US"}
    plan.values[SOFTWARE + "Classes\\.other"] = {"a": "b"}
    plan.values[SOFTWARE + "Velmora\\Other"] = {"a": "b"}


def put_machine(case: MachineCase, plan: Plan) -> None:
    """Puts the planned files and registry values on the machine of a test, and the product too."""
    for path, contents in {**plan.foreign, **plan.old}.items():
        case.write(path, contents)
    for file in plan.shared_files():
        place = case.machine.path(file.path)
        if file.has_folder:
            place.parent.mkdir(parents=True, exist_ok=True)
        if file.contents is not None:
            place.write_bytes(file.contents)
            place.chmod(0o444 if file.fault == "protected" else 0o644)
    if plan.spaceclaim == "found":
        case.machine.path(SPACE_CLAIM_ADDINS).mkdir(parents=True, exist_ok=True)
    case.machine.import_script(script_of(plan.values))
    case.put_product(plan.install_dir, TRANSLATORS if plan.has_translators else None)
