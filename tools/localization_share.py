"""What a run of "NVXConfig.exe -T" needs on a machine: sources, the translation tools, a share, and
translators on its other end.

    with Translators(machine, build, install_dir) as translators:
        machine.run(install_dir + "\\\\NVXConfig.exe", "-T")
"""

import shutil
import subprocess
import sys
from pathlib import Path

from winemachine import Machine, StrPath

HERE = Path(__file__).resolve().parent
SAMPLE = HERE.parent / "sample" / "localization"
HOST_TOOLS = Path("/usr/lib/qt6/bin")
ROOT = "C:\\build\\Übersetzung a b"
SHARE = "C:\\translators"
TOOLS = "C:\\build\\tools"


class Translators:
    """Prepares the machine; inside the context a worker translates the jobs on the share."""

    def __init__(self, machine: Machine, build: StrPath, install_dir: str, *worker_options: str) -> None:
        self.machine = machine
        self.build = Path(build)
        self.install_dir = install_dir
        self.worker_options = worker_options

    def put_sources(self) -> None:
        for folder in ("Projects", "Locale"):
            shutil.copytree(SAMPLE / folder, self.machine.path(ROOT + "\\" + folder), dirs_exist_ok=True)

    def put_tools(self) -> None:
        folder = self.machine.path(TOOLS)
        folder.mkdir(parents=True, exist_ok=True)
        for tool in ("lupdate", "lrelease"):
            program = folder / (tool + ".exe")
            shutil.copy(self.build / "sample" / "localization" / "unix_tool.exe", program)
            Path(str(program) + ".tool").write_text(str(HOST_TOOLS / tool))

    def put_settings(self) -> None:
        settings = self.machine.path(self.install_dir) / "localization.xml"
        settings.write_text(
            f"<localization>\n   <root>{ROOT}</root>\n   <share>{SHARE}</share>\n"
            f"   <qtTools>{TOOLS}</qtTools>\n"
            "</localization>\n",
            encoding="utf-8",
        )

    def __enter__(self) -> "Translators":
        self.put_sources()
        self.put_tools()
        self.put_settings()
        share = self.machine.path(SHARE)
        (share / "pTrans" / "~cBuild" / "job").mkdir(parents=True, exist_ok=True)
        self.worker = subprocess.Popen(
            [sys.executable, SAMPLE / "translation_worker.py", share, *self.worker_options],
            stdout=subprocess.DEVNULL,
        )
        return self

    def __exit__(self, *_: object) -> None:
        self.worker.terminate()
        self.worker.wait()
