#!/usr/bin/env python3
"""Simulates the translators at the other end of the share: watches the job folder, takes the job NVX360,
gives every text of its files a made-up translation in each language, and reports the job done.

    translation_worker.py SHARE [--once] [--settle SECONDS] [--damage CODE/NAME]

SHARE is the folder that contains "pTrans". --once ends after one job. --settle sets how long the uploaded
files must have been unchanged before they count as complete (5 seconds). --damage sends a file back cut in
half.
"""

import argparse
import sys
import time
import xml.etree.ElementTree as ElementTree
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))

from languages import read_languages  # noqa: E402

# The language of the files for each of the translators' codes.
LANGUAGES = {row["translatorsCode"]: row["locale"].replace("-", "_") for row in read_languages()[1:]}
JOB = "NVX360"


def pseudo_translation(source: str, code: str) -> str:
    """The text with the code of the language in front; its placeholders are preserved."""
    return f"[{code}] {source}"


def translate(table: bytes, code: str) -> bytes:
    """The bytes of a translation file, translated into the language of a code."""
    root = ElementTree.fromstring(table)
    root.set("language", LANGUAGES[code])
    for message in root.iter("message"):
        translation = message.find("translation")
        if translation is None:
            raise ValueError("a message has no element for its translation")
        translation.attrib.pop("type", None)
        text = pseudo_translation(message.findtext("source", ""), code)
        forms = translation.findall("numerusform")
        for form in forms:
            form.text = text
        if not forms:
            translation.text = text
    return b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n' + ElementTree.tostring(
        root, encoding="utf-8"
    )


def is_settled(job: Path, files_folder: Path, sources: list[Path], seconds: float) -> bool:
    """Whether all sources exist and no file has changed for some time.

    The job is written before its files, and files of an earlier job may still be there: the time of the job
    counts as well.
    """
    if not all(source.exists() for source in sources):
        return False
    try:
        newest = max(path.stat().st_mtime for path in (job, *files_folder.rglob("*")))
    except FileNotFoundError:  # a file has just been deleted
        return False
    return time.time() - newest >= seconds


def take(job: Path, files_folder: Path, settle: float, damaged: str) -> None:
    """Does a job, and writes the translations and the file that ends it."""
    names = [line.removeprefix("enu\\") for line in job.read_text(encoding="utf-8").splitlines() if line]
    sources = [files_folder / "enu" / name for name in names]
    while not is_settled(job, files_folder, sources, settle):
        time.sleep(0.1)
    job.unlink()
    for code in LANGUAGES:
        folder = files_folder / code
        folder.mkdir(parents=True, exist_ok=True)
        for source in sources:
            table = translate(source.read_bytes(), code)
            if f"{code}/{source.name}" == damaged:
                table = table[: len(table) // 2]
            (folder / source.name).write_bytes(table)
    job.with_suffix(".done").write_bytes(b"")
    print(f"{JOB}: {len(names)} files in {len(LANGUAGES)} languages", flush=True)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("share", type=Path)
    parser.add_argument("--once", action="store_true")
    parser.add_argument("--settle", type=float, default=5)
    parser.add_argument("--damage", default="")
    options = parser.parse_args()

    shared = options.share / "pTrans"
    job = shared / "~cBuild" / "job" / (JOB + ".job")
    job.parent.mkdir(parents=True, exist_ok=True)
    while True:
        if job.exists():
            take(job, shared / JOB, options.settle, options.damage)
            if options.once:
                return 0
        time.sleep(0.1)


if __name__ == "__main__":
    sys.exit(main())
