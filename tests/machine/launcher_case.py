"""What the tests of the launchers share: a machine with all six CAD systems, and what is installed in
each."""

from machine_case import MachineCase
from cadsystems import (
    CUSTOM_DIRS_10,
    CUSTOM_DIRS_11,
    FOREIGN_DIRS,
    FOREIGN_ENTRY,
    PROTK_2,
    PROTK_3,
    SPACE_CLAIM_ADDINS,
    TAMSEL_ADDINS,
    put_cad_systems,
)
from winemachine import INSTALL_DIR

LAUNCHERS = INSTALL_DIR + "\\Launchers"
MANIFEST = LAUNCHERS + "\\Tamsel\\NVX_2017.Addin"
ADDIN = SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\NVX_2017_SpaceClaim"


def creo_entry(release: int, install_dir: str = INSTALL_DIR, encoding: str = "ascii") -> bytes:
    library = f"Creo{release}\\NVX_2017_Creo{release}0.dll"
    text = (
        "name NVX 2017\r\n"
        "startup DLL\r\n"
        f"exec_file {install_dir}\\Launchers\\ProEngineer-Wildfire\\{library}\r\n"
        f"text_dir {install_dir}\\Text\r\n"
        "revision 20\r\n"
        "end\r\n"
    )
    return text.encode(encoding)


def nx_line(sub_folder: str, install_dir: str = INSTALL_DIR, encoding: str = "ascii") -> bytes:
    return f"\r\n{install_dir}\\Launchers\\UGNX{sub_folder}\r\n".encode(encoding)


def manifest(install_dir: str = INSTALL_DIR) -> bytes:
    text = (
        '<?xml version="1.0" encoding="utf-16" standalone="no"?>\n'
        "<TamselAddIns>\n"
        '<AddIn Type="Application">\n'
        "<Name>NVX 2017</Name>\n"
        f"<Assembly>{install_dir}\\Launchers\\Tamsel\\NVX_2017_Tamsel2017.dll</Assembly>\n"
        "<AddInId>D678F341-A94D-43BB-AD6F-8E0E9DABA31A</AddInId>\n"
        "<VendorId>Velmora, Inc.</VendorId>\n"
        "<FullClassName>Kelvane_2017.NvxApplication</FullClassName>\n"
        "</AddIn>\n"
        "</TamselAddIns>\n"
    )
    return text.encode("utf-8")[: len(text)]


def target_manifest(year: int) -> str:
    return TAMSEL_ADDINS + f"\\{year}\\NVX_2017.Addin"


class LauncherCase(MachineCase):
    @classmethod
    def setUpClass(cls) -> None:
        super().setUpClass()
        put_cad_systems(cls.machine)

    def run_with(self, option: str, install_dir: str = INSTALL_DIR) -> list[str]:
        """Runs NVXConfig.exe to its end; returns the lines of this run's log."""
        code, lines = self.configure_with_new_log(install_dir, option, "-S", "-Len-US")
        self.assert_complete(code, lines)
        return lines

    def diagnose_with(self, option: str, install_dir: str = INSTALL_DIR) -> tuple[list[str], list[str]]:
        """Like `run_with`; the second value is the run's diagnostic warnings."""
        self.delete_log(install_dir)
        code, lines, warnings = self.diagnose(install_dir, option, "-S", "-Len-US")
        self.assert_complete(code, lines)
        return lines, warnings

    def reset_files(self) -> None:
        """Restores the CAD systems' files to their state before the product was installed."""
        for path in (PROTK_2, PROTK_3, CUSTOM_DIRS_10, CUSTOM_DIRS_11):
            file = self.machine.path(path)
            file.chmod(0o644)
            file.write_bytes(FOREIGN_DIRS if "custom_dirs" in path else FOREIGN_ENTRY)
            file.with_name(file.name + ".bak").unlink(missing_ok=True)
