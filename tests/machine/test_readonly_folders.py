"""Each folder that a run writes to is read-only, alone or together with folders of other steps: the run
reaches its end, does everything else as usual, and reports what it could not do in the log or in the
diagnostic output.

A read-only disk stands for every folder that cannot be written, whether by its access rights or by its
medium. Only a disk works here: a Windows program under Wine may write wherever the host's administrator may.
The folder is mounted over itself in a mount name space of this process. Where mounting is not permitted, the
tests are skipped.
"""

import contextlib
import ctypes
import subprocess
import unittest

from launcher_case import LAUNCHERS, SPACE_CLAIM_ADDINS, TAMSEL_ADDINS, LauncherCase
from machine_case import BUILD, DESKTOP, LOG, SHORTCUT, USER_DATA, USER_FOLDER
from cadsystems import CUSTOM_DIRS_10, PROTK_2
from machine_state import MachineState, comparable_files
from winemachine import INSTALL_DIR, SHARED_DATA, TRANSLATORS, TUTORIALS

CLONE_NEWNS = 0x00020000
MERTLE = TRANSLATORS + "\\NVX_MertleServer"
BATCH_FILE = INSTALL_DIR + "work.bat"
AROUND = "around the install folder"
SPACE_CLAIM = SPACE_CLAIM_ADDINS + "\\NVX_2017_SpaceClaim"

# Marks lines of the diagnostic output among those of the log.
DIAGNOSTIC = "diagnostic: "
UNWRITTEN = DIAGNOSTIC + "Unable to write "


def parent(path):
    return path.rpartition("\\")[0]


# {name: (folder, parts of the lines that report it in an install, and in a removal)}
# The lists are empty where the run reports nothing: failed copies and deletions are not reported, and Wine's
# command interpreter reports success for a folder that it could not remove.
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
    "temporary files": (USER_FOLDER + "\\AppData\\Local\\Temp", [], []),
    "translators": (MERTLE, ["   2 Output:"], []),
    "launchers": (LAUNCHERS, [" Open failed:"], []),
    AROUND: (
        parent(INSTALL_DIR),
        [f"   1 Unable to create {BATCH_FILE}; this folder is not removed: "],
        [f"   1 Unable to create {BATCH_FILE}; this folder is not removed: "],
    ),
    "install folder": (INSTALL_DIR, None, None),  # the log cannot be written either
}
# What is read-only at the same time. Folders that contain others, or that other steps read, are alone.
GROUPS = (
    ("Python", "Creo", "Tamsel", "desktop", "the user's data"),
    ("tutorials", "NX", "SpaceClaim", "translators", "temporary files", "all users' data"),
    ("launchers",),
    (AROUND,),
    ("install folder",),
)
# Folders that stay writable inside a read-only one.
WRITABLE = {AROUND: (INSTALL_DIR, TRANSLATORS)}


def setUpModule():
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.unshare(CLONE_NEWNS) != 0:
        raise unittest.SkipTest("Not run: mounting a file system is not permitted.")
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
        cls.saved = BUILD / "machines" / "ReadOnlyFolders saved"
        cls.bare = MachineState(cls.machine, cls.saved / "bare")
        cls.files_bare = case.files()
        case.run_with("-I")
        cls.installed = MachineState(cls.machine, cls.saved / "installed")
        cls.files_installed = case.files()
        case.run_with("-U")
        cls.machine.stop()
        cls.files_removed = case.files()

    @classmethod
    def tearDownClass(cls):
        super().tearDownClass()
        subprocess.run(["rm", "-rf", str(cls.saved)], check=True)

    def files(self):
        """The files for comparisons. Empty folders are left out: which folders are empty differs by row."""
        self.machine.stop()
        files = comparable_files(self.machine, LOG)
        return {path: contents for path, contents in files.items() if not path.endswith("\\")}

    @contextlib.contextmanager
    def read_only(self, names):
        self.machine.stop()
        with contextlib.ExitStack() as mounted:
            for name in names:
                writable = WRITABLE.get(name, ())
                for folder, access in ((FOLDERS[name][0], "ro"), *((f, "rw") for f in writable)):
                    path = self.machine.path(folder)
                    mount("--bind", path, path)
                    mounted.callback(subprocess.run, ["umount", str(path)], check=True)
                    mount("-o", "remount,bind," + access, path)
            mounted.callback(self.machine.stop)
            yield

    def check_group(self, mode, names, state, before, expected):
        """One run with read-only folders, from a saved state of the machine with the files `before`; outside
        the folders the files must be as expected."""
        state.restore()
        self.delete_log()
        with self.read_only(names):
            code, lines, warnings = self.diagnose(INSTALL_DIR, mode, "-S", "-Len-US")
        self.assertEqual(code, 0)
        reports = [FOLDERS[name][1 if mode == "-I" else 2] for name in names]
        if reports == [None]:
            self.assertEqual(lines, [])
        else:
            self.assert_complete(code, lines)
            self.assert_reported(sum(reports, []), lines + [DIAGNOSTIC + text for text in warnings])

        folders = [FOLDERS[name][0] for name in names]
        found = self.files()
        if names != (AROUND,):
            there = {path: contents for path, contents in found.items() if is_below(path, *folders)}
            self.assertEqual(there, {p: h for p, h in before.items() if is_below(p, *folders)})
            found = {path: contents for path, contents in found.items() if path not in there}
            expected = {p: h for p, h in expected.items() if not is_below(p, *folders)}
        elif mode == "-U":
            # Folders are removed by a batch file in that folder; without it they stay.
            found = {path: contents for path, contents in found.items() if path in expected}
        # Tamsel's manifests are copies of the one among the launchers.
        left_out = TAMSEL_ADDINS if mode == "-I" and is_below(LAUNCHERS, *folders) else LOG
        differing = {p for p in (*found, *expected) if found.get(p) != expected.get(p)}
        self.assertEqual(sorted(p for p in differing if not is_below(p, left_out)), [])

    def assert_reported(self, reports, lines):
        """Each report is part of a line, and no line reports another failure."""
        for text in reports:
            self.assertTrue([line for line in lines if text in line], (text, lines))
        failures = [line for line in lines if line.startswith(("   1 ", DIAGNOSTIC))]
        unexpected = [f for f in failures if not any(text in f for text in reports)]
        self.assertEqual(unexpected, [])

    def test_each_folder_is_in_one_group(self):
        self.assertEqual(sorted(name for names in GROUPS for name in names), sorted(FOLDERS))

    def test_an_install_does_everything_else(self):
        for names in GROUPS:
            with self.subTest(names):
                self.check_group("-I", names, self.bare, self.files_bare, self.files_installed)

    def test_a_removal_does_everything_else(self):
        for names in GROUPS:
            with self.subTest(names):
                self.check_group("-U", names, self.installed, self.files_installed, self.files_removed)


def is_below(path, *folders):
    """Whether a path is that of one of the folders, or of something in it."""
    return (path + "\\").startswith(tuple(folder + "\\" for folder in folders))


if __name__ == "__main__":
    unittest.main()
