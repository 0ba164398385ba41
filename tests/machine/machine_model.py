"""The expected result of an install and a removal on a random machine, as values: the steps in the log, the
CAD systems' files, the files that are left, the registry."""

import xml.etree.ElementTree as ElementTree
from pathlib import Path

from launcher_case import ADDIN, TAMSEL_ADDINS, creo_entry, manifest, nx_line
from machine_case import SHORTCUT, USER_DATA
from random_machine import UNINSTALL, Plan
from winemachine import ENVIRONMENT_KEY, SHARED_DATA, TRANSLATORS, TUTORIALS

LANGUAGES = Path(__file__).resolve().parents[2] / "resource" / "languages"
LIBRARIES = ("VistrelResources.dll", "VelmoraApplicationFrameRes.dll")
NX_SUB_FOLDERS = {"8": "\\NX8", "9": "\\NX9", "10": "\\NX10", "11": ""}
# The languages for which the sample has libraries.
LANGUAGES_WITH_LIBRARIES = ("en-US", "de-DE", "ja-JP")

SharedContents = dict[str, bytes | None]  # {path: contents, None for no file}


class Catalogue:
    """The program's texts in a language."""

    def __init__(self, locale: str) -> None:
        self._texts: dict[str, str] = {}
        path = LANGUAGES / f"nvxconfig_{locale}.ts"
        if path.exists():
            for message in ElementTree.parse(path).iter("message"):
                source, translation = message.findtext("source", ""), message.findtext("translation")
                self._texts.setdefault(source, translation or source)

    def __call__(self, source: str) -> str:
        return self._texts.get(source, source)


def step_beginnings(plan: Plan, is_install: bool) -> list[str]:
    """How the first line of each step begins, in the order of the run."""
    tr = Catalogue(plan.language)
    mode = tr("Install" if is_install else "UnInstall")
    steps = ["   0 " + tr("Beginning ") + mode, "! " + tr("Processors: %1, Cores per processor: %2")[:4]]
    steps += ["   0 " + mode + tr(title) for title in (" Tutorials", " Python (locally for NVX)")]
    steps.append("   0 " + mode + tr(" Mertle Server"))
    if is_install:
        for title in ("Created NVX2 default configuration: %1", "Created NVX2 analyze folder: %1"):
            steps.append("   0 " + tr(title).partition("%1")[0])
    steps.append("   0 " + tr("Registry paths"))
    if is_install:
        steps.append("   0 " + tr("Updating language registry uninstall "))
    steps += ["   0 " + tr(t) for t in ("Running NVX 3D-ViewerConfig.", "Create file associations")]
    steps += ["   0 " + tr("uninstallServer "), "   0 " + tr("Desktop=")]
    steps += _launcher_beginnings(plan, tr, mode)
    steps.append("   0 " + tr("Processing ") + "NVX_flags.txt")
    steps.append("   0 " + tr("Checking material database"))
    steps.append("   0 " + tr("The installation or update is complete. Click finish to continue."))
    if not is_install:
        steps += ["   0 " + tr("Remove: ") + SHARED_DATA + "*.dat", "   0 " + tr("Remove: Report .pyc files")]
    return steps


def _launcher_beginnings(plan, tr, mode):
    titles = ["Configure Brevant"] if plan.brevant else []
    steps = ["   0 " + tr(title) for title in titles] + ["   0 " + mode + tr(" Creo Remove:")]
    titles = ["ProE Creo"] if plan.creo else []
    titles += ["SolidWorks"] if set(plan.solidworks) & set(range(2008, 2017)) else []
    titles += ["UGNX"] if plan.nx else []
    for edition in ("Tamsel", "Tamsel Architecture", "Tamsel MEP"):
        titles += [edition] if any(plan.tamsel.get((edition, y)) for y in range(2015, 2019)) else []
    titles += ["SpaceClaim"] if plan.spaceclaim else []
    return steps + ["   0 " + title for title in titles]


def find_steps(lines: list[str], beginnings: list[str]) -> list[str]:
    """The beginnings that the log contains in this order, up to the first that is missing."""
    found, at = [], 0
    for beginning in beginnings:
        place = next((i for i in range(at, len(lines)) if lines[i].startswith(beginning)), None)
        if place is None:
            break
        found.append(beginning)
        at = place + 1
    return found


def shared_files_before(plan: Plan) -> SharedContents:
    """The files that other programs write too, and NX's backups of them, before the first run."""
    shared = {file.path: file.contents for file in plan.shared_files()}
    return {**shared, **{menu.path + ".bak": None for menu in plan.menus.values()}}


def shared_files_after(plan: Plan, is_install: bool, before: SharedContents) -> SharedContents:
    """The same files after a run."""
    after = dict(before)
    for creo in plan.creo:
        if _can_be_written(creo.protk):
            after[creo.protk.path] = _protk_after(plan, creo, is_install, before[creo.protk.path])
    for version, folder in plan.nx.items():
        menu = plan.menus[folder]
        backup = menu.path + ".bak"
        if is_install and after[backup] is None and menu.fault != "held":
            after[backup] = after[menu.path]
        if _can_be_written(menu):
            after[menu.path] = _menu_after(plan, version, is_install, after[menu.path])
    return after


def _can_be_written(file):
    return file.has_folder and not file.fault


def _protk_after(plan, creo, is_install, contents):
    if contents is not None:
        pieces = contents.split(b"end\r\n")
        kept = [p for p in pieces if b"nvx_2017_creo" not in p.lower() and _length(plan, p) >= 5]
        contents = b"".join(piece + b"end\r\n" for piece in kept)
    if not is_install:
        return contents
    old = contents or b""
    if old.find(b"$OSTRADE2017") >= 1:
        return old
    return creo_entry(creo.release, plan.install_dir, plan.code_page) + old


def _length(plan, piece):
    """The number of characters in the machine's code page, without leading and trailing white space."""
    return len(piece.decode(plan.code_page, "replace").strip())


def _menu_after(plan, version, is_install, contents):
    if not is_install:
        if contents is None:
            return None
        return b"".join(p for p in _lines(contents) if not _contains(plan, p, plan.install_dir))
    line = nx_line(NX_SUB_FOLDERS[version.partition(".")[0]], plan.install_dir, plan.code_page)
    old = contents or b""
    return old if _contains(plan, old, line.decode(plan.code_page)) else old + line


def _contains(plan, contents, text):
    """Whether the contents include a string, in any letter case."""
    decoded = contents.decode(plan.code_page, "replace")
    return text.encode(plan.code_page) in contents or text.lower() in decoded.lower()


def _lines(contents):
    return [line + b"\n" for line in contents.split(b"\n")[:-1]] + [contents.split(b"\n")[-1]]


def tamsel_years(plan: Plan) -> list[int]:
    return sorted({year for (_, year), folder in plan.tamsel.items() if folder})


def manifests(plan: Plan) -> dict[str, bytes]:
    """{path: contents} of Tamsel's manifests while the product is installed."""
    paths = [f"{TAMSEL_ADDINS}\\{year}\\NVX_2017.Addin" for year in tamsel_years(plan)]
    return {path: manifest(plan.install_dir) for path in paths}


def left_files(plan: Plan, after_removal: SharedContents) -> set[str]:
    """The files and empty folders that a removal leaves; `after_removal` holds the shared files after it."""
    folder = plan.install_dir
    left = {folder + "\\NVXConfig.log", folder + "\\NVX Viewer\\last-start.txt"}
    left |= {SHARED_DATA + "\\NVX2_config.nvxcfg", SHARED_DATA + "\\HPCAnalyze\\"}
    left |= {USER_DATA + "\\", TUTORIALS.rpartition("\\")[0] + "\\"}
    if plan.language in LANGUAGES_WITH_LIBRARIES:
        left |= {folder + "\\" + library for library in LIBRARIES}
    if plan.language == "ja-JP":
        left.add(folder + "\\ja\\ZorvRes.dll")
    if "C:\\NVX 2016\\matprop.mdb" in plan.foreign and ENVIRONMENT_KEY in plan.values:
        left.add(SHARED_DATA + "\\Materials 2016.nvxmdb")
    left |= {path for path, contents in after_removal.items() if contents is not None}
    left |= {f"{TAMSEL_ADDINS}\\{year}\\" for year in tamsel_years(plan)}
    if plan.spaceclaim == "found":
        left.add(ADDIN.rpartition("\\")[0] + "\\")
    return left


def deleted_files(plan: Plan) -> list[str]:
    """How the paths begin of the earlier files that a removal deletes."""
    folder = plan.install_dir
    deleted = [folder + "\\" + name for name in ("Python\\", "HPCAnalyze\\", "WebServices\\", "Launchers\\")]
    deleted += [folder + "\\" + name for name in ("A.NEW.TXT", "NVX_2017_Creo20.dll", "matprop.new")]
    deleted += [folder + "\\plugins\\Reports\\report.pyc", TUTORIALS + "\\", SHORTCUT]
    deleted += [SHARED_DATA + name for name in ("\\Sorvane\\", "\\values.dat", "\\matprop.nvxmdb")]
    deleted += [folder + "\\ja\\ZorvRes.dll"] if plan.language != "ja-JP" else []
    if plan.old.get(SHARED_DATA + "\\NVX_flags.txt", b"").strip() == b"":
        deleted.append(SHARED_DATA + "\\NVX_flags.txt")
    deleted.append(SHARED_DATA + "\\Analyze\\")
    deleted += list(manifests(plan))
    deleted += [ADDIN + ".dll", ADDIN + ".xml"] if plan.spaceclaim else []
    if plan.has_translators:
        deleted.append(TRANSLATORS + "\\NVX_MertleServer\\")
    if plan.language not in LANGUAGES_WITH_LIBRARIES:
        deleted += [folder + "\\" + library for library in LIBRARIES]
    return deleted


def changing_files(plan: Plan) -> set[str]:
    """The files whose contents differ before and after the runs."""
    names = [*LIBRARIES, "ja\\ZorvRes.dll", "NVXConfig.log"]
    changing = {plan.install_dir + "\\" + name for name in names}
    return changing | {SHARED_DATA + "\\NVX2_config.nvxcfg"}


def uninstall_path_after(plan: Plan) -> str | None:
    """The uninstall command in the language of the run."""
    command = plan.uninstall_path
    if not command:
        return command
    at = command.find("/LANG")
    return command[: at + 6] + plan.language if at > 0 else command


# The keys below which a run may change the registry, in lower case.
OURS = tuple(
    key.lower()
    for key in (
        "HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX",
        "HKEY_CURRENT_USER\\Software\\Velmora\\NVX",
        UNINSTALL + "NVX 2017",
        *("HKEY_LOCAL_MACHINE\\Software\\Classes\\." + e for e in ("nvxst", "nvz", "tpl", "nvxpkg")),
        "HKEY_LOCAL_MACHINE\\Software\\Classes\\NVX2017.",
        "HKEY_LOCAL_MACHINE\\Software\\Classes\\CLSID\\{5E0C3B5A-6E0B-4C53-9C55-0B7B9A3D2017}",
        "HKEY_LOCAL_MACHINE\\Software\\Classes\\CLSID\\{8F1D6C72-21B4-4E0F-8A4E-61C0D94E2017}",
        "HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\NVX 2017 Server",
    )
)
# How the paths begin of the keys that a removal leaves, in lower case.
OURS_LEFT = OURS[:3] + tuple(
    ("HKEY_LOCAL_MACHINE\\Software\\Classes\\" + name).lower()
    for name in (".tpl", ".nvxpkg", "NVX2017.nvxpkg")
)
