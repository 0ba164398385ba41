"""What the tests of the set-up program share."""

import hashlib
import shutil
from pathlib import Path

import machine_case
from winemachine import INSTALL_DIR

SET_UP = machine_case.BUILD / "package" / "NVX-2017-17.2.0-setup.exe"


class InstallerCase(machine_case.MachineCase):
    """A machine with the set-up program on it."""

    @classmethod
    def setUpClass(cls) -> None:
        super().setUpClass()
        shutil.copy(SET_UP, cls.machine.path("C:\\set-up.exe"))

    def set_up(self, *tokens: str) -> int:
        return self.machine.run("C:\\set-up.exe", *tokens, timeout=900).returncode

    def exit_code_of(self, *command: str) -> int:
        """The whole exit code of a program on the machine; Wine passes on only its lowest 8 bits."""
        script = '@start "" /wait ' + " ".join(command) + "\r\n@echo %errorlevel%>C:\\exit-code\r\n"
        self.write("C:\\run.cmd", script.encode())
        self.machine.run("cmd", "/c", "C:\\run.cmd", timeout=900)
        code = int(self.read("C:\\exit-code"))
        for name in ("run.cmd", "exit-code"):
            self.machine.path("C:\\" + name).unlink()
        return code

    def remove(self, command: str) -> None:
        """Runs the command of the uninstall entry without a window, and waits for the removal to end.

        The command ends early: the removal continues in a copy of the program.
        """
        program, _, options = command.removeprefix('"').partition('"')
        self.machine.run(program, *options.split(), "/S", timeout=900)
        machine_case.wait_until("the removal to end", lambda: not self.machine.programs("\\~nsu"), 900)
        self.assertFalse(self.exists(program), "the removal did not reach its end")

    def log_lines(self, install_dir: str = INSTALL_DIR) -> list[str]:
        return machine_case.log_lines(self.machine.path(install_dir) / "NVXConfig.log")


def is_tool(path: Path) -> bool:
    """Whether the file belongs to the developers' tools, which are not installed unless they are selected."""
    if path.suffix == ".qm":
        return not path.name.startswith(("nvxconfig", "qt"))
    return path.stem in (
        "MaterialNameUtility",
        "MessageTableCheck",
        "MessageTableUtility",
        "NVXLogSummary",
        "UpdateErrorTable",
    )


def hash_of(contents: bytes) -> str:
    """The hash of the contents, as in `Machine.files`."""
    return hashlib.sha256(contents).hexdigest()
