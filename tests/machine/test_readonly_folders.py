"""Each folder that a run writes into, in turn on a disk that is read-only: the run comes to its end and does
everything else as if nothing were. What it could not do is in the log, or in the diagnostic output.

A read-only disk stands for every folder that cannot be written: one that is protected by its rights, on a
medium that is, or on a share that is. To see an administrator refused, nothing less will do here: a Windows
program under Wine may write wherever the host's administrator may. The folder is mounted over itself in a
name space of this process, which nobody else sees; where that is not permitted the tests say so, and ctest
counts them as not run.
"""

import contextlib
import ctypes
import getpass
import subprocess
import unittest

from launcher_case import LAUNCHERS, SPACE_CLAIM_ADDINS, TAMSEL_ADDINS, LauncherCase
from machine_case import BUILD
from cadsystems import CUSTOM_DIRS_10, PROTK_2
from machine_state import MachineState
from winemachine import INSTALL_DIR, SHARED_DATA, TRANSLATORS, TUTORIALS

CLONE_NEWNS = 0x00020000
LOG = INSTALL_DIR + "\\NVXConfig.log"
DESKTOP = "C:\\users\\Public\\Desktop"
SHORTCUT = DESKTOP + "\\Velmora NVX 2017.lnk"
USER = "C:\\users\\" + getpass.getuser()
USER_DATA = USER + "\\AppData\\Roaming\\Velmora\\NVX 2017"
MERTLE = TRANSLATORS + "\\NVX_MertleServer"
BATCH_FILE = INSTALL_DIR + "work.bat"
AROUND = "around the install folder"
SPACE_CLAIM = SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim"

# Begins what the log leaves out and the diagnostic output has.
DIAGNOSTIC = "diagnostic: "
UNWRITTEN = DIAGNOSTIC + "Unable to write "


def parent(path):
    return path.rpartition("\\")[0]


# Each folder, and how lines begin or what they hold that tell of it: after an install, and after a removal.
# Where the list is empty the run says nothing of it: a copy or a removal that fails is not reported, and
# the command interpreter of this machine takes a folder that stays for removed.
FOLDERS = {
    "Python": (
        INSTALL_DIR + "\\Python",
        ["   2 Output:", "   2   ERROR: "],
        [],
    ),
    "tutorials": (TUTORIALS, ["   2 Output:"], []),
    "all users' data": (
        SHARED_DATA,
        [
            "   1 Unable to create NVX2 default configuration: " + SHARED_DATA,
            "   1 Unable to create NVX2 analyze folder: " + SHARED_DATA,
            f"   1 Unable to create {SHARED_DATA}\\NVX_flags.txt",
            DIAGNOSTIC + f"Unable to copy {INSTALL_DIR}\\matprop.mdb to ",
        ],
        [],
    ),
    "the user's data": (USER_DATA, [], []),
    "Creo": (parent(PROTK_2), [UNWRITTEN + PROTK_2], [UNWRITTEN + PROTK_2]),
    "NX": (
        parent(CUSTOM_DIRS_10),
        [
            UNWRITTEN + CUSTOM_DIRS_10 + ".bak",
            UNWRITTEN + CUSTOM_DIRS_10,
        ],
        [UNWRITTEN + CUSTOM_DIRS_10],
    ),
    "Tamsel": (TAMSEL_ADDINS, [], []),
    "SpaceClaim": (SPACE_CLAIM, [], []),
    "desktop": (DESKTOP, [f"Create shortcut {SHORTCUT} Failed"], ["   1 Unable to remove " + SHORTCUT]),
    "temporary files": (USER + "\\AppData\\Local\\Temp", [], []),
    "translators": (MERTLE, ["   2 Output:"], []),
    "launchers": (LAUNCHERS, [" Open failed:"], []),
    AROUND: (
        parent(INSTALL_DIR),
        [f"   1 Unable to create {BATCH_FILE}, this folder is not removed: "],
        [f"   1 Unable to create {BATCH_FILE}, this folder is not removed: "],
    ),
    "install folder": (INSTALL_DIR, None, None),  # where the log cannot be written either
}
# What can be written although it lies in such a folder.
WRITABLE = {AROUND: (INSTALL_DIR, TRANSLATORS)}


def setUpModule():
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.unshare(CLONE_NEWNS) != 0:
        raise unittest.SkipTest("Not run: this process may not mount a file system.")
    mount("--make-rprivate", "/")


def mount(*arguments):
    subprocess.run(["mount", *map(str, arguments)], check=True, stdout=subprocess.DEVNULL)


class ReadOnlyFolders(LauncherCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        case = cls()
        case.put_product(translators=TRANSLATORS)
        for folder, _, _ in FOLDERS.values():
            cls.machine.path(folder).mkdir(parents=True, exist_ok=True)
        case.write(SHARED_DATA + "\\mine.txt", b"mine")
        case.write(USER_DATA + "\\mine.txt", b"mine")
        cls.kept = BUILD / "machines" / "ReadOnlyFoldersKept"
        cls.bare = MachineState(cls.machine, cls.kept / "bare")
        cls.files_bare = case.comparable_files()
        case.run_with("-I")
        cls.installed = MachineState(cls.machine, cls.kept / "installed")
        cls.files_installed = case.comparable_files()
        case.run_with("-U")
        cls.machine.stop()
        cls.files_removed = case.comparable_files()

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        subprocess.run(["rm", "-rf", str(cls.kept)], check=True)

    def comparable_files(self):
        """The files of the machine. The log tells of each run, and a shortcut holds when its program was
        looked at last; empty folders are left out, as a file in one of them is a question of the row."""
        self.machine.stop()
        files = {p: h for p, h in self.machine.files().items() if p != LOG and not p.endswith("\\")}
        if SHORTCUT in files:
            files[SHORTCUT] = ""
        return files

    @contextlib.contextmanager
    def read_only(self, name):
        self.machine.stop()
        with contextlib.ExitStack() as mounted:
            for folder, access in ((FOLDERS[name][0], "ro"), *((f, "rw") for f in WRITABLE.get(name, ()))):
                path = self.machine.path(folder)
                mount("--bind", path, path)
                mounted.callback(subprocess.run, ["umount", str(path)], check=True)
                mount("-o", "remount,bind," + access, path)
            mounted.callback(self.machine.stop)
            yield

    def check_row(self, mode, name, state, before, expected):
        """One run with that folder read-only, from that state of the machine with the files `before`; in
        its other folders everything must be as expected."""
        folder, *told = FOLDERS[name]
        lines_told = told[0 if mode == "-I" else 1]
        state.bring_back()
        self.machine.path(LOG).unlink(missing_ok=True)
        with self.read_only(name):
            code, lines, warnings = self.diagnose(INSTALL_DIR, mode, "-S", "-Len-US")
        self.assertEqual(code, 0)
        if lines_told is None:
            self.assertEqual(lines, [])
        else:
            self.assert_complete(code, lines)
            told = lines + [DIAGNOSTIC + text for text in warnings]
            for text in lines_told:
                self.assertTrue([line for line in told if text in line], (text, told))
            failures = [line for line in told if line.startswith(("   1 ", DIAGNOSTIC))]
            unexpected = [f for f in failures if not any(text in f for text in lines_told)]
            self.assertEqual(unexpected, [])

        found = self.comparable_files()
        if name != AROUND:
            there = {path: contents for path, contents in found.items() if is_below(path, folder)}
            self.assertEqual(there, {p: h for p, h in before.items() if is_below(p, folder)})
            found = {path: contents for path, contents in found.items() if path not in there}
            expected = {p: h for p, h in expected.items() if not is_below(p, folder)}
        elif mode == "-U":
            # Folders are removed by a batch file there; without it they stay.
            found = {path: contents for path, contents in found.items() if path in expected}
        # The manifests of Tamsel are copies of the one among the launchers.
        left_out = TAMSEL_ADDINS if mode == "-I" and is_below(LAUNCHERS, folder) else LOG
        differing = {p for p in (*found, *expected) if found.get(p) != expected.get(p)}
        self.assertEqual(sorted(p for p in differing if not is_below(p, left_out)), [])

    def test_an_install_does_all_the_rest(self):
        for name in FOLDERS:
            with self.subTest(name):
                self.check_row("-I", name, self.bare, self.files_bare, self.files_installed)

    def test_a_removal_does_all_the_rest(self):
        for name in FOLDERS:
            with self.subTest(name):
                self.check_row("-U", name, self.installed, self.files_installed, self.files_removed)


def is_below(path, folder):
    return (path + "\\").startswith(folder + "\\")


if __name__ == "__main__":
    unittest.main()
