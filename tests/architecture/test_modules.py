"""Modules include and link only what docs/architecture.md allows."""

import tempfile
import unittest
from pathlib import Path

from modules import (
    dependencies_of_includes,
    dependencies_of_links,
    cycle,
    forbidden,
    includes_of,
    read_modules,
    module_of,
    source_files,
    targets_of,
    unused_dependencies,
)

ROOT = Path(__file__).resolve().parents[2]
DOCUMENT = ROOT / "docs" / "architecture.md"


class Modules(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.modules = read_modules(DOCUMENT.read_text(encoding="utf-8"))
        cls.targets = targets_of(ROOT)

    def dependencies(self):
        return [
            *dependencies_of_includes(ROOT, self.modules),
            *dependencies_of_links(self.modules, self.targets),
        ]

    def test_every_file_is_in_a_module(self):
        files = source_files(ROOT)
        self.assertGreater(len(files), 200)
        self.assertEqual([path for path in files if not module_of(self.modules, path)], [])

    def test_every_module_has_files(self):
        populated = {module_of(self.modules, path) for path in source_files(ROOT)}
        self.assertEqual(set(self.modules) - populated, set())

    def test_every_module_that_is_used_is_in_the_table(self):
        used = {name for module in self.modules.values() for name in module.uses}
        self.assertEqual(used - self.modules.keys(), set())

    def test_every_include_of_the_project_exists(self):
        unresolved = [
            f'{path} includes "{name}"'
            for path in source_files(ROOT)
            for name, found in includes_of(ROOT, path)
            if found is None
        ]
        self.assertEqual(unresolved, [])

    def test_no_file_includes_what_its_module_may_not_use(self):
        self.assertEqual(forbidden(self.modules, dependencies_of_includes(ROOT, self.modules)), [])

    def test_no_library_links_what_its_module_may_not_use(self):
        dependencies = list(dependencies_of_links(self.modules, self.targets))
        self.assertGreater(len(dependencies), 40)
        self.assertEqual(forbidden(self.modules, dependencies), [])

    def test_every_source_is_in_one_library_or_program(self):
        built = [source for target in self.targets.values() for source in target.sources]
        existing = [path for path in source_files(ROOT) if path.endswith(".cpp")]
        self.assertEqual(sorted(built), existing)

    def test_every_allowed_dependency_exists(self):
        self.assertEqual(unused_dependencies(self.modules, self.dependencies()), [])

    def test_dependencies_go_one_way(self):
        self.assertEqual(cycle(self.modules), [])


# The modules of a small project; each test violates one rule.
TABLE = """
| Module | Files | What it holds | May use |
|---|---|---|---|
| **cellar** | `Utility/` | pipes | |
| **hall** | `source/` | a floor | cellar |
| **attic** | `source/attic/` | dust | hall |
"""


class ModuleChecks(unittest.TestCase):
    """The checks report violations in a small project."""

    def project(self, **files):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        for name, text in files.items():
            path = Path(folder.name) / name.replace("__", "/").replace("_DOT_", ".")
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return Path(folder.name), read_modules(TABLE)

    def test_the_longest_folder_decides_the_module(self):
        modules = read_modules(TABLE)
        self.assertEqual(module_of(modules, "source/attic/box.cpp"), "attic")
        self.assertEqual(module_of(modules, "source/floor.cpp"), "hall")
        self.assertIsNone(module_of(modules, "garden/tree.cpp"))

    def test_an_include_against_the_table_is_reported(self):
        root, modules = self.project(
            source__floor_DOT_cpp='#include "attic/box.h"\n',
            source__attic__box_DOT_h='#pragma once\n#include "floor.h"\n',
            source__floor_DOT_h="#pragma once\n",
        )
        self.assertEqual(
            forbidden(modules, dependencies_of_includes(root, modules)),
            ['source/floor.cpp includes "attic/box.h": hall may use cellar, not attic'],
        )

    def test_an_include_of_an_indirect_dependency_is_reported(self):
        root, modules = self.project(
            source__attic__box_DOT_cpp='  #  include "nvx_util/pipe.h"\n',
            Utility__include__nvx_util__pipe_DOT_h="#pragma once\n",
        )
        self.assertEqual(
            forbidden(modules, dependencies_of_includes(root, modules)),
            ['source/attic/box.cpp includes "nvx_util/pipe.h": attic may use hall, not cellar'],
        )

    def test_an_include_that_does_not_exist_is_reported(self):
        root, _ = self.project(source__floor_DOT_cpp='#include "carpet.h"\n')
        self.assertEqual(list(includes_of(root, "source/floor.cpp")), [("carpet.h", None)])

    def test_a_link_against_the_table_is_reported(self):
        root, modules = self.project(
            source__CMakeLists_DOT_txt="""
                nvx_library(nvx_attic SOURCES attic/box.cpp LINKS nvx_hall Qt6::Core)
                nvx_library(nvx_hall # LINKS nvx_cellar)
                    SOURCES floor.cpp LINKS nvx_attic)
                add_executable(door WIN32 attic/main.cpp)
                target_link_libraries(door PRIVATE nvx_pipes)
            """,
            Utility__CMakeLists_DOT_txt="nvx_library(nvx_pipes SOURCES source/${platform}/a.cpp)",
        )
        targets = targets_of(root)
        self.assertEqual(
            targets["nvx_pipes"].sources, ("Utility/source/unix/a.cpp", "Utility/source/windows/a.cpp")
        )
        self.assertEqual(
            sorted(forbidden(modules, dependencies_of_links(modules, targets))),
            [
                "door links nvx_pipes: attic may use hall, not cellar",
                "nvx_hall links nvx_attic: hall may use cellar, not attic",
            ],
        )

    def test_an_unused_dependency_is_reported(self):
        self.assertEqual(
            unused_dependencies(read_modules(TABLE), [("attic", "hall", "")]), [("hall", "cellar")]
        )

    def test_a_cycle_is_reported(self):
        turned = TABLE.replace("pipes | |", "pipes | attic |")
        self.assertEqual(cycle(read_modules(turned)), ["cellar", "attic", "hall", "cellar"])


if __name__ == "__main__":
    unittest.main()
