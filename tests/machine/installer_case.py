"""What the tests of the set-up program share."""

import hashlib
import shutil
import time

import machine_case
from winemachine import INSTALL_DIR

SET_UP = machine_case.BUILD / "package" / "NVX-2017-17.2.0-setup.exe"
UNINSTALL_KEY = "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\NVX 2017"


class InstallerCase(machine_case.MachineCase):
    """Runs the set-up program on its machine."""

    @classmethod
    def setUpClass(cls) -> None:
        super().setUpClass()
        shutil.copy(SET_UP, cls.machine.path("C:\\set-up.exe"))

    def set_up(self, *tokens: str) -> int:
        return self.machine.run("C:\\set-up.exe", *tokens, timeout=900).returncode

    def remove(self, command: str) -> None:
        """Runs the command of the uninstall entry as Windows does, without a window, and waits for its end:
        the program goes on in a copy of itself."""
        program, _, options = command.removeprefix('"').partition('"')
        self.machine.run(program, *options.split(), "/S", timeout=900)
        deadline = time.monotonic() + 900
        while self.machine.programs("\\~nsu") and time.monotonic() < deadline:
            time.sleep(0.1)
        self.assertFalse(self.exists(program), "the removal has not come to its end")

    def server_is_running(self) -> bool:
        started = self.machine.run("net", "start").stdout.decode("utf-8", "replace")
        return "NVX 2017 Server" in started

    def log_lines(self, install_dir: str = INSTALL_DIR) -> list[str]:
        return machine_case.log_lines(self.machine.path(install_dir) / "NVXConfig.log")


def hash_of(contents: bytes) -> str:
    """As Machine.files tells it."""
    return hashlib.sha256(contents).hexdigest()
