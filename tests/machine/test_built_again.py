"""A build in another folder, without the compiler cache, gives the same files as this one.

It builds what takes seconds: pictures, archives, translations, resources of a program, and small programs.
`tools/package --twice` builds everything.
"""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from machine_case import BUILD

ROOT = Path(__file__).resolve().parents[2]
TARGETS = ("nvx_wizard_pictures_objects", "nvx_help_pictures_objects", "sample_archives", "translations",
           "NVXConfig_resources", "NVXSetupTask", "NVXServer")  # fmt: skip
KINDS = (".obj", ".res", ".qm", ".7z", ".exe", ".dll")


def copy_sources(folder: Path) -> None:
    """Copies the files of the checkout, with the times and access rights of new files."""
    listing = ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
    names = subprocess.run(listing, cwd=ROOT, check=True, capture_output=True, text=True).stdout.split("\0")
    for name in filter(None, names):
        if (ROOT / name).is_file():
            (folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(ROOT / name, folder / name)
            if os.access(ROOT / name, os.X_OK):
                (folder / name).chmod(0o700)


class BuiltAgain(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        sources = cls.folder / "a longer path" / "with blanks"
        copy_sources(sources)
        environment = {**os.environ, "CCACHE_DISABLE": "1", "TZ": "Asia/Tokyo"}
        for command in (
            ["cmake", "--preset", "windows"],
            ["cmake", "--build", "build/windows", "--target", *TARGETS],
        ):
            done = subprocess.run(
                command, cwd=sources, env=environment, umask=0o077, capture_output=True, text=True
            )
            if done.returncode != 0:
                raise AssertionError(done.stdout[-4000:] + done.stderr[-2000:])
        cls.again = sources / "build" / "windows"

    def test_the_same_sources_in_another_folder_give_the_same_files(self):
        names = [
            path.relative_to(self.again)
            for path in sorted(self.again.rglob("*"))
            if path.suffix in KINDS and "CompilerIdCXX" not in path.parts
        ]
        for kind in KINDS[:-1]:
            self.assertIn(kind, {name.suffix for name in names})
        different = [
            str(name) for name in names if (self.again / name).read_bytes() != (BUILD / name).read_bytes()
        ]
        self.assertEqual(different, [])

    def test_the_resources_of_all_programs_are_in_the_format_without_times(self):
        sources = list(BUILD.glob("*/*_autogen/*/qrc_*.cpp"))
        self.assertIn("qrc_program.cpp", [path.name for path in sources])
        for path in sources:
            self.assertIn("int version = 1;", path.read_text(), path.name)


if __name__ == "__main__":
    unittest.main()
