"""The product on machines drawn by lot: installed twice and removed. Whatever a machine has, the steps come
in their order, what others have written stays, a second install changes nothing, and a removal leaves what is
meant to stay.

    NVX_MACHINES=100 NVX_SEED=1000 python3 -B -m unittest -v test_random_machines

tries 100 machines, those of the seeds 1000 to 1099. NVX_BUILD names the build folder."""

import contextlib
import os
import shutil
import subprocess
import unittest

from machine_case import BUILD, MachineCase, log_lines
import machine_model as model
from random_machine import draw_machine, put_machine
from winemachine import SHARED_DATA, Machine, make_template, value_of

FIRST_SEED = int(os.environ.get("NVX_SEED", "2017"))
MACHINES = int(os.environ.get("NVX_MACHINES", "8"))
# What a machine notes of its devices when it starts.
OF_ITSELF = tuple(
    ("HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\" + name).lower()
    for name in ("Control\\Class\\", "Control\\Video\\", "Enum\\")
)
EARLIER_DIR = "C:\\earlier NVX"
WORKING_DATABASE = SHARED_DATA + "\\matprop.nvxmdb"


class RandomMachines(MachineCase):
    """The methods are made below, one a seed. Each has a machine of its own."""

    @classmethod
    def setUpClass(cls):
        cls.template = make_template(BUILD / "wine-template")

    @classmethod
    def tearDownClass(cls):
        """Every test has taken its machine away."""

    def try_machine(self, seed):
        self.plan = draw_machine(seed)
        self.lines = []
        self.machine = Machine.create(
            BUILD / "machines" / f"random {seed}", self.template, self.plan.locale, BUILD / "locales"
        )
        self.addCleanup(shutil.rmtree, self.machine.prefix)
        self.addCleanup(self.machine.stop)
        try:
            self.play()
        except (AssertionError, subprocess.TimeoutExpired):
            print(f"\nThe machine of NVX_SEED={seed}:\n{self.plan}\n")
            print("Its log ends:\n" + "\n".join(self.lines[-20:]))
            raise

    def play(self):
        put_machine(self, self.plan)
        if self.plan.has_earlier_install:
            self.put_product(EARLIER_DIR)
            self.run_alone(EARLIER_DIR, "-I")
        before = self.state()
        shared = {path: self.contents(path) for path in model.shared_files_before(self.plan)}

        self.run_alone(self.plan.install_dir, "-I")
        first = self.state()
        installed = model.shared_files_after(self.plan, True, shared)
        self.check_install(before, first, installed)
        self.run_alone(self.plan.install_dir, "-I")
        self.check_second_install(first, self.state(), installed)

        self.run_alone(self.plan.install_dir, "-U")
        installed = model.shared_files_after(self.plan, True, installed)
        removed = model.shared_files_after(self.plan, False, installed)
        self.check_removal(before, self.state(), removed)

    def run_alone(self, install_dir, mode):
        """One run with a log of its own and with the files held that are to be held."""
        self.machine.path(install_dir + "\\NVXConfig.log").unlink(missing_ok=True)
        with contextlib.ExitStack() as held:
            for number, file in enumerate(self.plan.shared_files()):
                if file.fault == "held":
                    held.enter_context(self.held(file.path, f"C:\\held by {number}"))
            try:
                code, lines = self.configure(install_dir, mode, "-S", "-L" + self.plan.language)
            finally:
                log = self.machine.path(install_dir + "\\NVXConfig.log")
                self.lines = log_lines(log) if log.is_file() else []
        self.assertEqual(code, 0)
        steps = model.step_beginnings(self.plan, mode == "-I")
        self.assertEqual(model.find_steps(lines, steps), steps)

    def state(self):
        return self.machine.files(), self.machine.registry()

    def contents(self, path):
        file = self.machine.path(path)
        return file.read_bytes() if file.is_file() else None

    def assert_shared(self, expected):
        for path, contents in expected.items():
            self.assertEqual(self.contents(path), contents, path)

    def assert_kept(self):
        for path, contents in self.plan.kept.items():
            self.assertEqual(self.contents(path), contents, path)

    def check_install(self, before, after, shared):
        self.assert_kept()
        self.assert_shared(shared)
        self.assert_shared(model.manifests(self.plan))
        database = self.plan.old.get(WORKING_DATABASE)
        if database is None:
            database = self.contents(self.plan.install_dir + "\\matprop.mdb")
        self.assertEqual(self.contents(WORKING_DATABASE), database)
        old = self.plan.old.get(SHARED_DATA + "\\NVX_flags.txt", b"")
        self.assertEqual(self.contents(SHARED_DATA + "\\NVX_flags.txt"), old)
        self.assert_registry_kept(before[1], after[1])
        command = value_of(after[1], model.UNINSTALL + "NVX 2017", "UninstallPath")
        self.assertEqual(command, model.uninstall_path_after(self.plan))

    def assert_registry_kept(self, before, after):
        foreign = [line for line in differences(before, after) if not is_ours(line)]
        self.assertEqual(foreign, [])

    def check_second_install(self, first, second, shared):
        self.assert_kept()
        self.assert_shared(model.shared_files_after(self.plan, True, shared))
        # The log tells of its own run, and a shortcut when its program was looked at last.
        excepted = (self.plan.install_dir + "\\NVXConfig.log", model.SHORTCUT, *shared)
        for files in (first[0], second[0]):
            for path in excepted:
                files.pop(path, None)
        self.assertEqual(second[0], first[0])
        self.assertEqual(differences(first[1], second[1]), [])

    def check_removal(self, before, after, shared):
        self.assert_kept()
        self.assert_shared(shared)
        self.assert_files_left(before[0], after[0], shared)
        self.assert_registry_kept(before[1], after[1])
        left = [key for key in after[1] if is_ours(key) and not key.lower().startswith(model.OURS_LEFT)]
        self.assertEqual(left, [])

    def assert_files_left(self, before, after, shared):
        gone = tuple(path.lower() for path in model.gone_files(self.plan))
        kept = [path for path in before if not path.lower().startswith(gone) and not path.endswith("\\")]
        self.assertEqual([path for path in kept if path not in after], [])
        self.assertEqual([p for p in after if p.lower().startswith(gone) and not p.endswith("\\")], [])
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
    """Whether a path is that of a folder in which files lie."""
    return path.endswith("\\") and any(file.startswith(path) for file in files)


def differences(before, after):
    """The differences of two registries, a line each: key, name of the value, contents before and after."""
    lines = []
    for key in sorted({*before, *after}):
        if key.lower().startswith(OF_ITSELF):
            continue
        if key not in before or key not in after:
            lines.append(f"{key}: {'new' if key in after else 'gone'}")
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
