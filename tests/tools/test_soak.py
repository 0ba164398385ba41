"""The batches of tools/soak, and what it reports of programs that succeed, fail or say nothing."""

import contextlib
import io
import os
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import soak

# A fuzzer that reports as many runs as it was allowed, at most 40, and fails from the seed 103 on.
FUZZER = f"""#!{sys.executable}
import sys
given = dict(a.lstrip("-").split("=") for a in sys.argv[1:] if "=" in a)
print("stat::number_of_executed_units: %d" % min(40, int(given["runs"])))
sys.exit(77 if int(given["seed"]) >= 103 else 0)
"""

# A fuzzer that fails, and prints the sanitizer's options and the folder for temporary files.
TELLING_FUZZER = f"""#!{sys.executable}
import os, sys
print("options", os.environ.get("ASAN_OPTIONS"))
print("temporary", os.environ["TMPDIR"] if os.path.isdir(os.environ["TMPDIR"]) else "missing")
sys.exit(77)
"""


class Soak(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.put_fuzzer("fuzz_example", FUZZER)
        machine_tests = self.root / "tests" / "machine"
        machine_tests.mkdir(parents=True)
        # Writes the environment variables of each batch to a file.
        (machine_tests / "run_lane.py").write_text(
            "import os, sys\n"
            "with open('../../batches', 'a') as file:\n"
            "    names = ('NVX_SEED', 'NVX_KILLS', 'NVX_MACHINES', 'NVX_CYCLES')\n"
            "    print(sys.argv[1], *(os.environ.get(n, '-') for n in names), file=file)\n"
        )

    def put_fuzzer(self, name, text):
        program = self.root / "build" / "sanitize" / "fuzz" / name
        program.parent.mkdir(parents=True, exist_ok=True)
        program.write_text(text)
        program.chmod(0o755)

    def soak(self, *arguments, memory="no such folder", **environment):
        """The exit status and the output of a soak with the seed 100. Of the variables that fuzzers read only
        these are set."""
        output, errors = io.StringIO(), io.StringIO()
        unset = {name: value for name, value in os.environ.items() if name not in ("ASAN_OPTIONS", "TMPDIR")}
        with contextlib.redirect_stdout(output), contextlib.redirect_stderr(errors):
            with mock.patch.dict(os.environ, unset | environment, clear=True):
                status = soak.main(self.root, ["--seed", "100", *arguments], self.root / memory)
        return status, output.getvalue() + errors.getvalue()

    def log_of_telling_fuzzer(self, **how):
        """The lines of the log after a soak with a fuzzer that fails."""
        self.put_fuzzer("fuzz_telling", TELLING_FUZZER)
        self.soak("fuzz_telling", **how)
        return (self.root / "build" / "soak" / "fuzz_telling.1.log").read_text().splitlines()

    @staticmethod
    def temporary(lines):
        """The folders for temporary files in a log of the telling fuzzer."""
        return [line.split()[1] for line in lines if line.startswith("temporary ")]

    def test_a_fuzzer_runs_in_batches_to_its_amount(self):
        status, output = self.soak("--runs", "100", "fuzz_example")
        self.assertEqual(status, 0)
        self.assertRegex(output, r"^seed 100\nfuzz_example +100 runs in \d+ s\n$")

    def test_a_failure_ends_its_part_and_names_the_output(self):
        status, output = self.soak("--runs", "1000", "fuzz_example", "cycles")
        self.assertEqual(status, 1)
        self.assertRegex(output, r"fuzz_example +160 runs in \d+ s: failed, see .*/fuzz_example\.4\.log\n")
        self.assertRegex(output, r"cycles +20 cycles in \d+ s\n")
        log = (self.root / "build" / "soak" / "fuzz_example.4.log").read_text()
        self.assertIn("-seed=103", log.splitlines()[0])

    def test_a_fuzzer_that_reports_no_runs_has_failed(self):
        self.put_fuzzer("fuzz_silent", "#!/bin/sh\n")
        status, output = self.soak("fuzz_silent")
        self.assertEqual(status, 1)
        self.assertRegex(output, r"fuzz_silent +0 runs .*failed")

    def test_machine_tests_get_their_share_of_the_amount_and_a_seed_of_their_own(self):
        status, _ = self.soak(
            "--kills", "120", "--machines", "10", "killed_runs", "random_machines", "cycles"
        )
        self.assertEqual(status, 0)
        self.assertEqual(
            (self.root / "batches").read_text().splitlines(),
            [
                "test_killed_runs 100 50 - -",
                "test_killed_runs 101 50 - -",
                "test_killed_runs 102 20 - -",
                "test_random_machines 100 - 8 -",
                "test_random_machines 108 - 2 -",
                "test_cycles - - - 20",
            ],
        )

    def test_every_part_has_one_batch_at_least_when_there_is_no_time(self):
        status, output = self.soak("--minutes", "0", "fuzz_example", "killed_runs")
        self.assertEqual(status, 0)
        self.assertRegex(output, r"fuzz_example +40 runs")
        self.assertRegex(output, r"killed_runs +50 instants")

    def test_an_unknown_part_is_refused_with_the_list_of_parts(self):
        status, output = self.soak("fuzz_missing")
        self.assertEqual(status, 2)
        self.assertIn("error: no part fuzz_missing", output)
        self.assertIn("fuzz_example killed_runs random_machines cycles", output)

    def test_temporary_files_of_a_fuzzer_are_in_memory_and_removed_at_the_end(self):
        memory = self.root / "memory"
        memory.mkdir()
        (folder,) = self.temporary(self.log_of_telling_fuzzer(memory="memory"))
        self.assertEqual(Path(folder).parent, memory)
        self.assertEqual(list(memory.iterdir()), [])

    def test_without_a_file_system_in_memory_the_folder_for_temporary_files_is_the_usual_one(self):
        self.put_fuzzer(
            "fuzz_example", FUZZER.replace("import sys", "import os, sys; assert 'TMPDIR' not in os.environ")
        )
        status, _ = self.soak("--runs", "40", "fuzz_example")
        self.assertEqual(status, 0)

    def test_a_folder_for_temporary_files_of_the_caller_is_used(self):
        (self.root / "memory").mkdir()
        (folder,) = self.temporary(self.log_of_telling_fuzzer(memory="memory", TMPDIR=str(self.root)))
        self.assertEqual(folder, str(self.root))

    def test_stacks_of_allocations_are_short_and_the_log_tells_how_to_see_whole_ones(self):
        command, hint, *output = self.log_of_telling_fuzzer(TMPDIR=str(self.root))
        self.assertIn("options malloc_context_size=2", output)
        self.assertRegex(command, r"^ASAN_OPTIONS=malloc_context_size=2 /.*fuzz_telling -seed=100 ")
        self.assertIn("malloc_context_size=30 in ASAN_OPTIONS", hint)

    def test_other_options_of_the_sanitizer_stay(self):
        lines = self.log_of_telling_fuzzer(TMPDIR=str(self.root), ASAN_OPTIONS="verbosity=0")
        self.assertIn("options verbosity=0:malloc_context_size=2", lines)

    def test_a_size_of_stacks_that_the_caller_has_set_stays(self):
        command, *output = self.log_of_telling_fuzzer(
            TMPDIR=str(self.root), ASAN_OPTIONS="malloc_context_size=9"
        )
        self.assertEqual(output[0], "options malloc_context_size=9")
        self.assertNotIn("ASAN_OPTIONS", command)


if __name__ == "__main__":
    unittest.main()
