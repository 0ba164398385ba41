"""The batches of tools/soak, and what it reports of programs that succeed, fail or say nothing."""

import contextlib
import io
import sys
import tempfile
import unittest
from pathlib import Path

import soak

# A fuzzer that reports as many runs as it was allowed, at most 40, and fails from the seed 103 on.
FUZZER = f"""#!{sys.executable}
import sys
given = dict(a.lstrip("-").split("=") for a in sys.argv[1:] if "=" in a)
print("stat::number_of_executed_units: %d" % min(40, int(given["runs"])))
sys.exit(77 if int(given["seed"]) >= 103 else 0)
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

    def soak(self, *arguments):
        """The exit status and the output of a soak with the seed 100."""
        output, errors = io.StringIO(), io.StringIO()
        with contextlib.redirect_stdout(output), contextlib.redirect_stderr(errors):
            status = soak.main(self.root, ["--seed", "100", *arguments])
        return status, output.getvalue() + errors.getvalue()

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


if __name__ == "__main__":
    unittest.main()
