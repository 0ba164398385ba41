"""Links and variables that somebody without administrator rights has left on the machine: the configuration,
which runs with those rights, neither removes nor writes where they lead.

Wine has no junctions. A link of the host stands for one: Wine reports where it leads, and its target's owner.
Only the host's administrator can give it to another user; for everyone else those tests are skipped.
"""

import os
import shutil
import unittest

from machine_case import MachineCase
from winemachine import INSTALL_DIR, SHARED_DATA, TUTORIALS

OTHER_USER = 65534
ELSEWHERE = "C:\\elsewhere"


def parent(path):
    return path.rpartition("\\")[0]


class PlantedFolders(MachineCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls().put_product()

    def plant(self, link, below):
        """Puts a link of another user at `link`, to a folder with a file at `below`; returns the path of the
        file."""
        if os.geteuid() != 0:
            self.skipTest("Not run: only an administrator can give a link to another user")
        important = self.write(f"{ELSEWHERE}\\{below}", b"important")
        target = self.machine.path(ELSEWHERE)
        os.chown(target, OTHER_USER, OTHER_USER)
        path = self.machine.path(link)
        path.parent.mkdir(parents=True, exist_ok=True)
        path.symlink_to(target)
        os.chown(path, OTHER_USER, OTHER_USER, follow_symlinks=False)
        self.addCleanup(path.unlink)
        return important

    def left_unchanged(self, link, path):
        return (
            f"   1 {link} does not belong to administrators and may lead elsewhere; "
            f"this is left unchanged: {path}"
        )

    def test_tutorials_behind_a_users_link_are_neither_removed_nor_unpacked(self):
        link = parent(TUTORIALS)
        important = self.plant(link, "Tutorials\\important.txt")
        before = sorted(important.parent.iterdir())
        code, lines = self.configure_with_new_log(INSTALL_DIR, "-I", "-S", "-Len-US")
        self.assert_complete(code, lines)
        self.assertEqual(sorted(important.parent.iterdir()), before)
        self.assertEqual(important.read_bytes(), b"important")
        self.assertEqual(lines.count(self.left_unchanged(link, TUTORIALS)), 2)

    def test_shared_data_behind_a_users_link_is_not_removed(self):
        link = parent(SHARED_DATA)
        shutil.rmtree(self.machine.path(link), ignore_errors=True)
        important = self.plant(link, "NVX 2017\\Sorvane\\important.txt")
        table = self.write(ELSEWHERE + "\\NVX 2017\\TABLE.DAT", b"important")
        materials = self.write(ELSEWHERE + "\\NVX 2017\\matprop.nvxmdb", b"important")
        code, lines = self.configure_with_new_log(INSTALL_DIR, "-U", "-S", "-Len-US")
        self.assert_removed(code, lines)
        for file in (important, table, materials):
            self.assertEqual(file.read_bytes(), b"important")
        self.assertIn(self.left_unchanged(link, SHARED_DATA + "\\Sorvane"), lines)

    def test_folders_named_by_the_users_environment_are_not_used(self):
        tutorials = self.write(ELSEWHERE + "\\Documents\\Velmora\\NVX 2017\\Tutorials\\mine.txt")
        sorvane = self.write(ELSEWHERE + "\\Velmora\\NVX 2017\\Sorvane\\mine.txt")
        variables = "".join(f"set {name}={ELSEWHERE}\r\n" for name in ("PUBLIC", "ProgramData", "APPDATA"))
        self.write("C:\\start.bat", f'{variables}"{INSTALL_DIR}\\NVXConfig.exe" -U -S -Len-US\r\n'.encode())
        self.delete_log()
        self.assertEqual(self.machine.run("cmd", "/c", "C:\\start.bat").returncode, 0)
        self.assertTrue(tutorials.exists())
        self.assertTrue(sorvane.exists())
        self.assertIn("Sorvane", self.machine.path(INSTALL_DIR + "\\NVXConfig.log").read_text())


if __name__ == "__main__":
    unittest.main()
