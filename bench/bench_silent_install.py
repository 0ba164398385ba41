"""A silent install beside the same external programs started from one batch file, on one Windows machine.

    bench_silent_install.py BUILD_FOLDER

BUILD_FOLDER is the Windows build, with the product laid out in its folder "installed". Prints the medians of
five runs each, in turn, and their ratio.
"""

import statistics
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))

from winemachine import INSTALL_DIR, TRANSLATORS, TUTORIALS, Machine, make_template  # noqa: E402

PYTHON = INSTALL_DIR + "\\Python"
MERTLE = TRANSLATORS + "\\NVX_MertleServer"


def batch_file():
    """The commands of an installation, as its log has them."""

    def remove(folder):
        return 'cmd.exe /C ""C:\\remove.bat" "%s""' % folder

    def unpack(archive, folder):
        return '"%s\\7z.exe" x "%s" -y "-o%s"' % (INSTALL_DIR, archive, folder)

    lines = [
        remove(TUTORIALS),
        unpack(INSTALL_DIR + "\\en-US\\Examples.7z", TUTORIALS),
        remove(PYTHON + "\\DLLs"),
        remove(PYTHON + "\\Lib"),
        unpack(PYTHON + "\\python26_x64.7z", PYTHON),
        unpack(MERTLE + "\\NVX_MertleServer.7z", MERTLE),
    ]
    return "\r\n".join(lines) + "\r\n"


def seconds(machine, program, *tokens):
    start = time.monotonic()
    machine.run(program, *tokens, folder=INSTALL_DIR)
    return time.monotonic() - start


def main(build):
    machine = Machine.create(build / "bench", make_template(build / "wine-template"))
    machine.put_product(build / "installed", build / "sample")
    machine.path("C:\\install.bat").write_text(batch_file())
    machine.path("C:\\remove.bat").write_text("rmdir /s /q %1\r\n")

    installs, batches = [], []
    for _ in range(6):  # the first of each warms the machine up
        installs.append(seconds(machine, INSTALL_DIR + "\\NVXConfig.exe", "-I", "-S", "-Len-US"))
        batches.append(seconds(machine, "cmd.exe", "/C", "C:\\install.bat"))
    machine.stop()
    install, batch = statistics.median(installs[1:]), statistics.median(batches[1:])
    print("silent install           %6.0f ms" % (install * 1000))
    print("the same programs alone  %6.0f ms" % (batch * 1000))
    print("ratio                    %6.2f" % (install / batch))


if __name__ == "__main__":
    main(Path(sys.argv[1]))
