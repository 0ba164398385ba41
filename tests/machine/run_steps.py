"""The steps of an installation and a removal in the log, and what a removal leaves on a machine with all CAD
systems."""

from collections.abc import Sequence

from cadsystems import CUSTOM_DIRS_10, CUSTOM_DIRS_11, SPACE_CLAIM_ADDINS, TAMSEL_ADDINS
from machine_case import COMPLETE, USER_DATA
from winemachine import SHARED_DATA, TUTORIALS

# How the first line of each step begins, in the order of the run.
INSTALL_STEPS = [
    "   0 Beginning Install",
    "! Processors: ",
    "   0 Install Tutorials",
    "   0 Install Python (locally for NVX)",
    "   0 Install Mertle Server",
    "   0 Created NVX2 default configuration: ",
    "   0 Registry paths",
    "   0 Running NVX 3D-ViewerConfig.",
    "   0 Create file associations",
    "   0 uninstallServer ",
    "   0 Desktop=",
    "   0 Configure Brevant",
    "   0 Install Creo Remove:",
    "   0 ProE Creo",
    "   0 SolidWorks",
    "   0 UGNX",
    "   0 Tamsel",
    "   0 SpaceClaim",
    "   0 Processing NVX_flags.txt",
    "   0 Checking material database",
    COMPLETE,
]
REMOVAL_STEPS = [
    "   0 Beginning UnInstall",
    "! Processors: ",
    "   0 UnInstall Tutorials",
    "   0 UnInstall Python (locally for NVX)",
    "   0 UnInstall Mertle Server",
    "   0 Registry paths",
    "   0 Running NVX 3D-ViewerConfig.",
    "   0 Create file associations",
    "   0 uninstallServer ",
    "   0 Desktop=",
    "   0 Configure Brevant",
    "   0 UnInstall Creo Remove:",
    "   0 ProE Creo",
    "   0 SolidWorks",
    "   0 UGNX",
    "   0 Tamsel",
    "   0 SpaceClaim",
    "   0 Processing NVX_flags.txt",
    "   0 Checking material database",
    COMPLETE,
]

# What a removal leaves outside the install dir: the user's files, and folders that other programs may use
# too.
LEFT_ELSEWHERE = [
    SHARED_DATA + "\\NVX2_config.nvxcfg",
    SHARED_DATA + "\\HPCAnalyze\\",
    USER_DATA + "\\",
    TUTORIALS.rpartition("\\")[0] + "\\",
    CUSTOM_DIRS_10 + ".bak",
    CUSTOM_DIRS_11 + ".bak",
    SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim\\",
    *(TAMSEL_ADDINS + f"\\{year}\\" for year in (2016, 2017, 2018)),
]


def steps_of(lines: Sequence[str], steps: Sequence[str]) -> list[str]:
    """The steps whose lines are in the log after the run's first line, in the order of their first lines."""
    found: list[str] = []
    for line in lines[lines.index(steps[0]) :]:
        found += [step for step in steps if line.startswith(step) and step not in found]
    return found
