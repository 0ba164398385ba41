"""The rooms know of each other what docs/architecture.md says, and no more."""

import tempfile
import unittest
from pathlib import Path

from rooms import (
    arrows_of_includes,
    arrows_of_links,
    circle,
    forbidden,
    includes_of,
    read_rooms,
    room_of,
    source_files,
    targets_of,
    unused_arrows,
)

ROOT = Path(__file__).resolve().parents[2]
DOCUMENT = ROOT / "docs" / "architecture.md"


class Rooms(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.rooms = read_rooms(DOCUMENT.read_text(encoding="utf-8"))
        cls.targets = targets_of(ROOT)

    def arrows(self):
        return [*arrows_of_includes(ROOT, self.rooms), *arrows_of_links(self.rooms, self.targets)]

    def test_every_file_lies_in_a_room(self):
        files = source_files(ROOT)
        self.assertGreater(len(files), 200)
        self.assertEqual([path for path in files if not room_of(self.rooms, path)], [])

    def test_every_room_has_files(self):
        lived_in = {room_of(self.rooms, path) for path in source_files(ROOT)}
        self.assertEqual(set(self.rooms) - lived_in, set())

    def test_every_room_that_is_known_is_in_the_table(self):
        known = {name for room in self.rooms.values() for name in room.knows}
        self.assertEqual(known - self.rooms.keys(), set())

    def test_every_include_of_ours_leads_to_a_file(self):
        lost = [
            f'{path} includes "{name}"'
            for path in source_files(ROOT)
            for name, found in includes_of(ROOT, path)
            if found is None
        ]
        self.assertEqual(lost, [])

    def test_no_file_includes_what_its_room_may_not_know(self):
        self.assertEqual(forbidden(self.rooms, arrows_of_includes(ROOT, self.rooms)), [])

    def test_no_library_links_what_its_room_may_not_know(self):
        arrows = list(arrows_of_links(self.rooms, self.targets))
        self.assertGreater(len(arrows), 40)
        self.assertEqual(forbidden(self.rooms, arrows), [])

    def test_every_source_is_in_one_library_or_program(self):
        built = [source for target in self.targets.values() for source in target.sources]
        there = [path for path in source_files(ROOT) if path.endswith(".cpp")]
        self.assertEqual(sorted(built), there)

    def test_the_table_allows_nothing_that_is_not_used(self):
        self.assertEqual(unused_arrows(self.rooms, self.arrows()), [])

    def test_arrows_go_one_way(self):
        self.assertEqual(circle(self.rooms), [])


# A small house with one fault of each kind.
TABLE = """
| Room | Files | What it holds | May know |
|---|---|---|---|
| **cellar** | `Utility/` | pipes | |
| **hall** | `source/` | a floor | cellar |
| **attic** | `source/attic_*` | dust | hall |
"""


class TheChecks(unittest.TestCase):
    """The checks find what they look for."""

    def house(self, **files):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        for name, text in files.items():
            path = Path(folder.name) / name.replace("__", "/").replace("_DOT_", ".")
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return Path(folder.name), read_rooms(TABLE)

    def test_the_longest_pattern_decides_the_room(self):
        rooms = read_rooms(TABLE)
        self.assertEqual(room_of(rooms, "source/attic_box.cpp"), "attic")
        self.assertEqual(room_of(rooms, "source/floor.cpp"), "hall")
        self.assertIsNone(room_of(rooms, "garden/tree.cpp"))

    def test_an_include_against_the_arrow_is_told(self):
        root, rooms = self.house(
            source__floor_DOT_cpp='#include "attic_box.h"\n',
            source__attic_box_DOT_h='#pragma once\n#include "floor.h"\n',
            source__floor_DOT_h="#pragma once\n",
        )
        self.assertEqual(
            forbidden(rooms, arrows_of_includes(root, rooms)),
            ['source/floor.cpp includes "attic_box.h": hall may know cellar, not attic'],
        )

    def test_an_include_over_two_arrows_is_told(self):
        root, rooms = self.house(
            source__attic_box_DOT_cpp='  #  include "nvx_util/pipe.h"\n',
            Utility__include__nvx_util__pipe_DOT_h="#pragma once\n",
        )
        self.assertEqual(
            forbidden(rooms, arrows_of_includes(root, rooms)),
            ['source/attic_box.cpp includes "nvx_util/pipe.h": attic may know hall, not cellar'],
        )

    def test_an_include_that_leads_nowhere_is_told(self):
        root, _ = self.house(source__floor_DOT_cpp='#include "carpet.h"\n')
        self.assertEqual(list(includes_of(root, "source/floor.cpp")), [("carpet.h", None)])

    def test_a_link_against_the_arrow_is_told(self):
        root, rooms = self.house(
            source__CMakeLists_DOT_txt="""
                nvx_library(nvx_attic SOURCES attic_box.cpp LINKS nvx_hall Qt6::Core)
                nvx_library(nvx_hall # LINKS nvx_cellar)
                    SOURCES floor.cpp LINKS nvx_attic)
                add_executable(door WIN32 attic_main.cpp)
                target_link_libraries(door PRIVATE nvx_pipes)
            """,
            Utility__CMakeLists_DOT_txt="nvx_library(nvx_pipes SOURCES source/${platform}/a.cpp)",
        )
        targets = targets_of(root)
        self.assertEqual(
            targets["nvx_pipes"].sources, ("Utility/source/unix/a.cpp", "Utility/source/windows/a.cpp")
        )
        self.assertEqual(
            sorted(forbidden(rooms, arrows_of_links(rooms, targets))),
            [
                "door links nvx_pipes: attic may know hall, not cellar",
                "nvx_hall links nvx_attic: hall may know cellar, not attic",
            ],
        )

    def test_an_arrow_that_nothing_uses_is_told(self):
        self.assertEqual(unused_arrows(read_rooms(TABLE), [("attic", "hall", "")]), [("hall", "cellar")])

    def test_a_circle_is_told(self):
        turned = TABLE.replace("pipes | |", "pipes | attic |")
        self.assertEqual(circle(read_rooms(turned)), ["cellar", "attic", "hall", "cellar"])


if __name__ == "__main__":
    unittest.main()
