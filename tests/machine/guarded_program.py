"""Small programs with the names of the product's and the CAD systems' programs, for the guards to find."""

import shutil

from machine_case import BUILD, wait_until
from winemachine import Machine

GUARDED = BUILD / "sample" / "guarded"


class GuardedProgram:
    """A program of sample/guarded, such as "product/NVX.exe", that runs at a path of a machine."""

    def __init__(self, machine: Machine, windows_path: str, source: str) -> None:
        self.path = machine.path(windows_path)
        self.path.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(GUARDED / source, self.path)
        self._running = self.path.with_name(self.path.name + ".running")
        self._running.unlink(missing_ok=True)
        self._process = machine.start(windows_path)
        wait_until(windows_path + " to start", lambda: self._running.exists() or not self.is_running(), 60)
        if not self._running.exists():
            raise RuntimeError(f"{windows_path} exited with {self._process.returncode} at its start")

    def is_running(self) -> bool:
        return self._process.poll() is None

    def was_ended_by_force(self) -> bool:
        """Waits for its end. A program that ends by itself deletes its ".running" file."""
        self._process.wait(timeout=30)
        return self._running.exists()

    def stop(self) -> None:
        """Asks it to end if it still runs, and waits for that."""
        if self.is_running():
            self.path.with_name(self.path.name + ".stop").touch()
        self._process.wait(timeout=30)
