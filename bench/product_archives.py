"""Archives for the sample product with the size of a real product's, always with the same bytes.

    make_archives(folder)    creates them in the folder and returns their paths by their names

Together they contain some 2,000 files of 80 MB: studies and modules that are text, and results that can
hardly be compressed.
"""

import random
import shutil
import subprocess
from pathlib import Path

# The contents of an archive: the number of text files and the bytes of each, and the same of binary files.
_CONTENTS = {
    "Examples.7z": {"folder": "Study %02d", "text": (400, 30_000), "binary": (80, 400_000)},
    "python26_x64.7z": {"folder": "Lib/package_%02d", "text": (1200, 9_000), "binary": (60, 150_000)},
    "NVX_MertleServer.7z": {"folder": "server/part_%02d", "text": (200, 12_000), "binary": (60, 220_000)},
}
_FILES_IN_FOLDER = 40
_STAMP = "made-of"


def make_archives(folder: str | Path) -> dict[str, Path]:
    """{archive name: its path}. The archives are created once in the folder."""
    folder = Path(folder)
    archives = {name: folder / name for name in _CONTENTS}
    stamp = folder / _STAMP
    if stamp.exists() and stamp.read_text() == repr(_CONTENTS):
        return archives
    shutil.rmtree(folder, ignore_errors=True)
    for name, contents in _CONTENTS.items():
        unpacked = folder / "unpacked"
        _write_files(unpacked, contents, random.Random(name))
        subprocess.run(
            ["7zz", "a", "-bso0", "-bsp0", "-mx=5", str(archives[name].absolute()), "."],
            cwd=unpacked,
            check=True,
        )
        shutil.rmtree(unpacked)
    stamp.write_text(repr(_CONTENTS))
    return archives


def _write_files(top, contents, chance):
    words = [
        "".join(chance.choices("abcdefghijklmnopqrstuvwxyz", k=chance.randint(2, 11))) for _ in range(3000)
    ]
    number = 0
    for kind, ending, write in (("text", "txt", _text), ("binary", "bin", _binary)):
        count, size = contents[kind]
        for _ in range(count):
            place = top / (contents["folder"] % (number // _FILES_IN_FOLDER))
            place.mkdir(parents=True, exist_ok=True)
            (place / f"{kind}_{number:04d}.{ending}").write_bytes(write(words, size, chance))
            number += 1


def _text(words, size, chance):
    # A word has at most ten bytes on average, so there are always enough.
    lines = " ".join(chance.choices(words, k=size // 4)).encode()
    return b"\r\n".join(lines[at : at + 90] for at in range(0, size, 90))[:size]


def _binary(_words, size, chance):
    # Like the numbers of a grid: their first bytes hardly change, their last ones are noise.
    noise = chance.randbytes(size // 2)
    mixed = bytearray(size)
    mixed[0::2] = noise + bytes(size - size // 2 - len(noise))
    mixed[1::2] = bytes(16) * (size // 32) + bytes(size // 2 - 16 * (size // 32))
    return bytes(mixed)
