"""The registry of a stopped Windows machine, in the files of its folder."""

import functools
import re
import time
from pathlib import Path

Registry = dict[str, dict[str, str]]  # {key path: {value name: value}}

SCRIPT_HEADER = "Windows Registry Editor Version 5.00"
FILES = {"HKEY_LOCAL_MACHINE": "system.reg", "HKEY_CURRENT_USER": "user.reg"}

_KEY = re.compile(r"^(.*)\] \d+")
_VALUE = re.compile(r'^(?:"((?:[^"\\]|\\.)*)"|@)=(.*)$')
_SCRIPT_KEY = re.compile(r"^\[([^\\]*)\\(.*)\]$")


def read_registry(folder: Path) -> Registry:
    """The registry of the stopped machine in this folder."""
    keys: Registry = {}
    for root, name in FILES.items():
        text = (folder / name).read_text(encoding="utf-8", errors="surrogateescape")
        # Machines differ from their template in a few of twenty thousand keys, so most sections are in the
        # cache.
        for section in text.split("\n["):
            key, values = _read_section(section)
            if key:
                keys.setdefault(_canonical(root + "\\" + key), {}).update(values)
    return keys


def write_registry(folder: Path, script: str) -> bool:
    """Adds the keys and values of a script of the Registry Editor to the registry of the stopped machine in
    this folder. Writes nothing and returns False if the script has no header, deletes something or has other
    roots."""
    header, *lines = script.splitlines() or [""]
    added: dict[str, list[str]] = {name: [] for name in FILES.values()}
    section = None
    for line in lines:
        key = _SCRIPT_KEY.match(line)
        if key:
            section = added.get(FILES.get(key.group(1), ""))
            if section is not None:
                section += ["", f"[{_escape(key.group(2))}] {int(time.time())}"]
        elif line and section is not None:
            section.append(_ascii(line))
        if line and (section is None or line.endswith("=-")):
            return False
    if header != SCRIPT_HEADER:
        return False
    for name, sections in added.items():
        with (folder / name).open("a", encoding="ascii", newline="\n") as file:
            file.writelines(line + "\n" for line in sections)
    return True


@functools.lru_cache(maxsize=None)
def _read_section(section):
    """The key and the values of a section without its opening bracket; the key is None for the head of the
    file.
    """
    head, *lines = section.splitlines() or [""]
    key = _KEY.match(head)
    values = {}
    for line in lines if key else ():
        value = _VALUE.match(line)
        if value:
            text = value.group(2)
            quoted = re.match(r'^(?:str\(\d+\):)?"(.*)"$', text)
            values[_unescape(value.group(1) or "")] = _unescape(quoted.group(1)) if quoted else text
    return key and _unescape(key.group(1)), values


def _canonical(key):
    """Wine stores the current control set under its number."""
    return re.sub(r"(?i)^(HKEY_LOCAL_MACHINE\\System)\\ControlSet001", r"\1\\CurrentControlSet", key)


def _unescape(text):
    def character(match):
        found = match.group(1)
        if found[0] == "x":
            return chr(int(found[1:], 16))
        return {"n": "\n", "r": "\r", "0": "\0"}.get(found, found)

    return re.sub(r"\\(x[0-9a-f]{1,4}|.)", character, text)


def script_of(registry: Registry) -> str:
    """A script of the Registry Editor that writes the values, all of them strings."""
    lines = [SCRIPT_HEADER]
    for key, texts in registry.items():
        lines += ["", f"[{key}]"]
        lines += [f'"{_quoted(name)}"="{_quoted(text)}"' for name, text in texts.items()]
    return "\r\n".join(lines) + "\r\n"


def _quoted(text):
    return text.replace("\\", "\\\\").replace('"', '\\"')


def _escape(key):
    return _ascii(key.replace("\\", "\\\\").replace("]", "\\]"))


def _ascii(text):
    """The text with each other character as Wine's files have it: the numbers of its UTF-16 units."""
    return re.sub(
        r"[^ -~]+",
        lambda found: "".join(f"\\x{unit:04x}" for unit in _units(found.group())),
        text,
    )


def _units(text):
    encoded = text.encode("utf-16-le")
    return [int.from_bytes(encoded[at : at + 2], "little") for at in range(0, len(encoded), 2)]


def value_of(registry: Registry, key: str, name: str) -> str | None:
    """A value of a registry, None if it is missing. Letter case does not matter."""
    for path, values in registry.items():
        if path.lower() == key.lower():
            for value_name, value in values.items():
                if value_name.lower() == name.lower():
                    return value
    return None


def is_below(key: str, folder: str) -> bool:
    """Whether a key is below another one, whose path ends in a backslash. Letter case does not matter."""
    return key.lower().startswith(folder.lower())
