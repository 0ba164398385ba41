"""The archive for Linux does not depend on who packs it, where, and when."""

import os
import subprocess
import tarfile
import tempfile
import unittest
from pathlib import Path

INSTALLER = Path(__file__).resolve().parents[2] / "installer"
TIME = 1_500_000_000
FILES = ("bin/b", "bin/B", "bin/a", "lib/ä.so", "lib-x/c", "readme.txt")


class LinuxArchive(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        cls.first = cls.pack("first", FILES)
        with tarfile.open(cls.first) as archive:
            cls.entries = archive.getmembers()

    @classmethod
    def pack(cls, name, files, mask=0o022):
        """Packs files of another user, created in this order, into a folder; returns the archive."""
        staged = cls.folder / name / "tools"
        before = os.umask(mask)
        for file in files:
            path = staged / file
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(file)
        os.umask(before)
        if os.getuid() == 0:
            for path in (staged, *staged.rglob("*")):
                os.chown(path, 1234, 5678)
        variables = {
            "CPACK_TEMPORARY_DIRECTORY": staged,
            "CPACK_TOPLEVEL_DIRECTORY": cls.folder / name,
            "CPACK_PACKAGE_FILE_NAME": "packed",
        }
        options = [f"-D{variable}={value}" for variable, value in variables.items()]
        environment = {**os.environ, "SOURCE_DATE_EPOCH": str(TIME)}
        for part in ("prepare_files.cmake", "make_archive.cmake"):
            subprocess.run(["cmake", *options, "-P", INSTALLER / part], env=environment, check=True)
        return cls.folder / name / "packed.tar.gz"

    def test_every_entry_belongs_to_root(self):
        owners = {(entry.uid, entry.gid, entry.uname, entry.gname) for entry in self.entries}
        self.assertEqual(owners, {(0, 0, "root", "root")})

    def test_every_entry_has_the_time_of_the_commit(self):
        self.assertEqual({entry.mtime for entry in self.entries}, {TIME})

    def test_the_entries_are_sorted_in_one_folder(self):
        names = [entry.name for entry in self.entries if entry.isfile()]
        order = ["bin/B", "bin/a", "bin/b", "lib/ä.so", "lib-x/c", "readme.txt"]
        self.assertEqual(names, ["tools/" + name for name in order])

    def test_files_created_in_another_order_with_another_mask_give_the_same_archive(self):
        second = self.pack("second", FILES[::-1], 0o077)
        self.assertEqual(second.read_bytes(), self.first.read_bytes())


if __name__ == "__main__":
    unittest.main()
