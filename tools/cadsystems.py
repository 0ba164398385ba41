"""The six CAD systems that have a launcher, as their installers leave them on a machine: their registry
values and the files that list add-ins.

    put_cad_systems(machine)
"""

from winemachine import Machine
from wineregistry import Registry, script_of

CREO_2 = "C:\\Program Files\\PTC\\Creo 2.0\\Parametric"
CREO_3 = "C:\\Program Files\\PTC\\Creo 3.0\\Parametric"
NX_10 = "C:\\Program Files\\Siemens\\NX 10.0"
NX_11 = "C:\\Program Files\\Siemens\\NX 11.0"
TAMSEL = "C:\\Program Files\\Velmora\\Tamsel 2017"

PROTK_2 = "C:\\Program Files\\PTC\\Creo 2.0\\Common Files\\M010\\text\\protk.dat"
PROTK_3 = "C:\\Program Files\\PTC\\Creo 3.0\\Common Files\\text\\protk.dat"
CUSTOM_DIRS_10 = NX_10 + "\\UGII\\MENUS\\custom_dirs.dat"
CUSTOM_DIRS_11 = NX_11 + "\\UGII\\MENUS\\custom_dirs.dat"
TAMSEL_ADDINS = "C:\\Documents and Settings\\All Users\\Application Data\\Velmora\\Tamsel\\Addins"
SPACE_CLAIM_ADDINS = "C:\\ProgramData\\SpaceClaim\\Addins"

# The launchers that are COM libraries, by the class that they register.
COM_CLASSES = {
    "Brevant": "HKEY_LOCAL_MACHINE\\Software\\Classes\\CLSID\\{5E0C3B5A-6E0B-4C53-9C55-0B7B9A3D2017}",
    "SolidWorks": "HKEY_LOCAL_MACHINE\\Software\\Classes\\CLSID\\{8F1D6C72-21B4-4E0F-8A4E-61C0D94E2017}",
}

# An add-in of another program, in a different encoding.
FOREIGN_ENTRY = (
    "name Schaltplan für Größen\r\n"
    "startup DLL\r\n"
    "exec_file C:\\Müller\\schaltplan.dll\r\n"
    "text_dir C:\\Müller\\text\r\n"
    "revision 24\r\n"
    "end\r\n"
).encode("latin-1")
FOREIGN_DIRS = "# Ordner für Menüs\r\nC:\\Müller\\nx\r\n".encode("latin-1")

_SOFTWARE = "HKEY_LOCAL_MACHINE\\SOFTWARE\\"
_TAMSEL_CODE = "{0A7B2B0E-5E54-4C2E-9A5B-6E5C0F3B%s}"


def registry_values() -> Registry:
    """{key: {value name: text}}"""
    values = {
        _SOFTWARE + "Velmora\\Brevant\\Current Version": {"LASTVERSIONRUN": "21.0.3"},
        _SOFTWARE + "Velmora\\Brevant\\RegistryVersion20.0": {"ProductName": "Brevant 2016"},
        _SOFTWARE + "Velmora\\Brevant\\RegistryVersion21.0": {"ProductName": "Brevant 2017"},
        _SOFTWARE + "PTC\\Creo Parametric\\2.0\\M010": {"InstallDir": CREO_2, "ShipCode": "M010"},
        _SOFTWARE + "PTC\\Creo Parametric\\3.0\\F000": {"InstallDir": CREO_3, "ShipCode": "F000"},
        f"{_SOFTWARE}SolidWorks\\SolidWorks 2016\\Setup": {
            "SolidWorks Folder": "C:\\Program Files\\SolidWorks"
        },
        _SOFTWARE + "Unigraphics Solutions\\NX\\10.0": {"UGII_BASE_DIR": NX_10},
        _SOFTWARE + "Unigraphics Solutions\\NX\\11.0": {"UGII_BASE_DIR": NX_11},
        _SOFTWARE + "Classes\\SpaceClaim.Location": {"Folder": "C:\\Program Files\\SpaceClaim"},
    }
    for product, year in (
        ("Velmora Tamsel", "2016"),
        ("Velmora Tamsel", "2017"),
        ("Velmora Tamsel Architecture", "2017"),
        ("Velmora Tamsel MEP", "2018"),
    ):
        code = _TAMSEL_CODE % (str(len(product)) + year[2:])
        components = _SOFTWARE + f"Velmora\\Tamsel\\{product} {year}\\Components"
        uninstall = _SOFTWARE + "Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + code
        values[components] = {"ProductCode": code}
        values[uninstall] = {"InstallLocation": TAMSEL}
    return values


def put_cad_systems(machine: Machine) -> None:
    """Installs all six on the machine, with an add-in of another program in each shared file."""
    machine.import_script(script_of(registry_values()))
    for path, contents in (
        (PROTK_2, FOREIGN_ENTRY),
        (PROTK_3, FOREIGN_ENTRY),
        (CUSTOM_DIRS_10, FOREIGN_DIRS),
        (CUSTOM_DIRS_11, FOREIGN_DIRS),
    ):
        file = machine.path(path)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(contents)
    machine.path(SPACE_CLAIM_ADDINS).mkdir(parents=True, exist_ok=True)
