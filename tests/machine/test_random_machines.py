"""The product on random machines, installed twice and removed: the steps run in order, other programs' files
and registry values survive, a second install changes nothing, and a removal leaves only what it should.

    NVX_MACHINES=100 NVX_SEED=1000 python3 -B -m unittest -v test_random_machines

tries the machines of the seeds 1000 to 1099. NVX_BUILD names the build folder."""

import contextlib
import os
import shutil
import subprocess
import unittest

from machine_case import SHORTCUT, MachineCase, log_lines, new_machine
import machine_model as model
from random_machine import put_machine, random_plan
from winemachine import SHARED_DATA, value_of

FIRST_SEED = int(os.environ.get("NVX_SEED", "2017"))
MACHINES = int(os.environ.get("NVX_MACHINES", "4"))
# Keys of devices, which a machine writes when it starts.
DEVICE_KEYS = tuple(
    ("HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\" + name).lower()
    for name in ("Control\\Class\\", "Control\\Video\\", "Enum\\")
)
EARLIER_DIR = "C:\\earlier NVX"
WORKING_DATABASE = SHARED_DATA + "\\matprop.nvxmdb"


class RandomMachines(MachineCase):
    """_add_tests adds a method for each seed. Each test has its own machine."""

    @classmethod
    def setUpClass(cls):
        """Each test makes its machine."""

    @classmethod
    def tearDownClass(cls):
        """Each test has deleted its machine."""

    def try_machine(self, seed):
        self.plan = random_plan(seed)
        self.lines = []
        self.machine = new_machine(f"random {seed}", self.plan.locale)
        self.addCleanup(shutil.rmtree, self.machine.prefix)
        self.addCleanup(self.machine.stop)
        try:
            self.install_twice_and_remove()
        except (AssertionError, subprocess.TimeoutExpired):
            print(f"\nThe machine of NVX_SEED={seed}:\n{self.plan}\n")
            print("The end of its log:\n" + "\n".join(self.lines[-20:]))
            raise

    def install_twice_and_remove(self):
        put_machine(self, self.plan)
        # A machine's first start writes what depends on its locale, such as the names of fonts.
        self.machine.start_up()
        if self.plan.has_earlier_install:
            self.put_product(EARLIER_DIR)
            self.run_once(EARLIER_DIR, "-I")
        before = self.state()
        shared = {path: self.contents_of(path) for path in model.shared_files_before(self.plan)}

        self.run_once(self.plan.install_dir, "-I")
        first = self.state()
        installed = model.shared_files_after(self.plan, True, shared)
        self.check_install(before, first, installed)
        self.run_once(self.plan.install_dir, "-I")
        self.check_second_install(first, self.state(), installed)

        self.run_once(self.plan.install_dir, "-U")
        installed = model.shared_files_after(self.plan, True, installed)
        removed = model.shared_files_after(self.plan, False, installed)
        self.check_removal(before, self.state(), removed)

    def run_once(self, install_dir, mode):
        """One run, during which another program has the plan's "held" files open."""
        self.delete_log(install_dir)
        with contextlib.ExitStack() as held:
            for number, file in enumerate(self.plan.shared_files()):
                if file.fault == "held":
                    held.enter_context(self.held(file.path, f"C:\\held {number}"))
            try:
                code, lines = self.configure(install_dir, mode, "-S", "-L" + self.plan.language)
            finally:
                self.lines = log_lines(self.machine.path(install_dir + "\\NVXConfig.log"))
        self.assertEqual(code, 0)
        steps = model.step_beginnings(self.plan, mode == "-I")
        self.assertEqual(model.find_steps(lines, steps), steps)

    def state(self):
        return self.machine.files(), self.machine.registry()

    def contents_of(self, path):
        file = self.machine.path(path)
        return file.read_bytes() if file.is_file() else None

    def assert_shared(self, expected):
        for path, contents in expected.items():
            self.assertEqual(self.contents_of(path), contents, path)

    def assert_foreign_files_unchanged(self):
        for path, contents in self.plan.foreign.items():
            self.assertEqual(self.contents_of(path), contents, path)

    def check_install(self, before, after, shared):
        self.assert_foreign_files_unchanged()
        self.assert_shared(shared)
        self.assert_shared(model.manifests(self.plan))
        database = self.plan.old.get(WORKING_DATABASE)
        if database is None:
            database = self.contents_of(self.plan.install_dir + "\\matprop.mdb")
        self.assertEqual(self.contents_of(WORKING_DATABASE), database)
        old = self.plan.old.get(SHARED_DATA + "\\NVX_flags.txt", b"")
        self.assertEqual(self.contents_of(SHARED_DATA + "\\NVX_flags.txt"), old)
        self.assert_foreign_keys_unchanged(before[1], after[1])
        command = value_of(after[1], model.UNINSTALL + "NVX 2017", "UninstallPath")
        self.assertEqual(command, model.uninstall_path_after(self.plan))

    def assert_foreign_keys_unchanged(self, before, after):
        foreign = [line for line in differences(before, after) if not is_ours(line)]
        self.assertEqual(foreign, [])

    def check_second_install(self, first, second, shared):
        self.assert_foreign_files_unchanged()
        self.assert_shared(model.shared_files_after(self.plan, True, shared))
        # The log holds one run, and a shortcut the time when its program was last accessed.
        excepted = (self.plan.install_dir + "\\NVXConfig.log", SHORTCUT, *shared)
        for files in (first[0], second[0]):
            for path in excepted:
                files.pop(path, None)
        self.assertEqual(second[0], first[0])
        self.assertEqual(differences(first[1], second[1]), [])

    def check_removal(self, before, after, shared):
        self.assert_foreign_files_unchanged()
        self.assert_shared(shared)
        self.assert_files_left(before[0], after[0], shared)
        self.assert_foreign_keys_unchanged(before[1], after[1])
        left = [key for key in after[1] if is_ours(key) and not key.lower().startswith(model.OURS_LEFT)]
        self.assertEqual(left, [])

    def assert_files_left(self, before, after, shared):
        deleted = tuple(path.lower() for path in model.deleted_files(self.plan))
        kept = [path for path in before if not path.lower().startswith(deleted) and not path.endswith("\\")]
        self.assertEqual([path for path in kept if path not in after], [])
        self.assertEqual([p for p in after if p.lower().startswith(deleted) and not p.endswith("\\")], [])
        changing = model.changing_files(self.plan) | set(shared)
        changed = [path for path in kept if path not in changing and after[path] != before[path]]
        self.assertEqual(changed, [])

        left = model.left_files(self.plan, shared)
        new = [path for path in after if path not in before and not is_folder_of(path, before)]
        self.assertEqual([path for path in new if path not in left], [])
        missing = [path for path in left if path not in after and not is_folder_of(path, after)]
        self.assertEqual(missing, [])


def is_ours(key):
    return key.lower().startswith(model.OURS)


def is_folder_of(path, files):
    """Whether a path is that of a folder that contains some of the files."""
    return path.endswith("\\") and any(file.startswith(path) for file in files)


def differences(before, after):
    """A line for each difference of two registries: key, name of the value, value before and after."""
    lines = []
    for key in sorted({*before, *after}):
        if key.lower().startswith(DEVICE_KEYS):
            continue
        if key not in before or key not in after:
            lines.append(f"{key}: {'new' if key in after else 'deleted'}")
        old, new = before.get(key, {}), after.get(key, {})
        for name in sorted({*old, *new}):
            if old.get(name) != new.get(name):
                lines.append(f"{key}, {name}: {old.get(name)}, {new.get(name)}")
    return lines


def _add_tests():
    def test_of(seed):
        return lambda case: case.try_machine(seed)

    for seed in range(FIRST_SEED, FIRST_SEED + MACHINES):
        setattr(RandomMachines, f"test_the_machine_of_seed_{seed}", test_of(seed))


_add_tests()

if __name__ == "__main__":
    unittest.main()
