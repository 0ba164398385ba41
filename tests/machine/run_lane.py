"""Runs the tests of a module in this folder, or every n-th of them: run_lane.py MODULE [LANE/LANES]

Lanes may run at the same time; each has its own machines."""

import sys
import unittest
from collections.abc import Iterator


def tests_in(suite: unittest.TestSuite) -> Iterator[unittest.TestCase | unittest.TestSuite]:
    """Yields the single tests of a suite in order."""
    for part in suite:
        if isinstance(part, unittest.TestSuite):
            yield from tests_in(part)
        else:
            yield part


def main(module: str, lane: str = "1/1") -> int:
    number, lanes = map(int, lane.split("/"))
    tests = list(tests_in(unittest.defaultTestLoader.loadTestsFromName(module)))
    result = unittest.TextTestRunner(verbosity=2).run(unittest.TestSuite(tests[number - 1 :: lanes]))
    return 0 if result.wasSuccessful() else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
