"""Reads the kind, the version, the icons, the manifest and the calls of a Windows program."""

import re
import struct
from pathlib import Path

ICON, GROUP_ICON, VERSION, MANIFEST = 3, 14, 16, 24

# The defences in the file's header: random addresses, also above 4 GB; no execution of data.
HIGH_ENTROPY, DYNAMIC_BASE, NO_EXECUTION = 0x20, 0x40, 0x100

# The subsystems in the file's header.
WINDOWED, CONSOLE = 2, 3


class ProgramFile:
    def __init__(self, path: Path) -> None:
        self.bytes = path.read_bytes()
        header = self._number("<I", 0x3C)
        if self.bytes[header : header + 4] != b"PE\0\0":
            raise ValueError(f"{path} is not a Windows program")
        section_count, optional_size = self._number("<H", header + 6), self._number("<H", header + 20)
        self._symbols, self._symbol_count = struct.unpack_from("<II", self.bytes, header + 12)
        self._optional = header + 24
        first_section = self._optional + optional_size
        self._sections = [
            struct.unpack_from("<IIII", self.bytes, first_section + 40 * i + 8) for i in range(section_count)
        ]

    @property
    def defences(self) -> int:
        """The defences of Windows that the file allows, as flags."""
        return self._number("<H", self._optional + 70)

    @property
    def kind(self) -> int:
        return self._number("<H", self._optional + 68)

    def calls(self, function: str) -> int:
        """How often the code calls a function whose name is in the file's symbol table; the name has more
        than eight letters. 0 without a symbol table."""
        strings = self._symbols + 18 * self._symbol_count
        name = self.bytes.find(b"\0" + function.encode() + b"\0", strings)
        if not self._symbols or name < 0:
            return 0
        symbol = self.bytes.index(struct.pack("<II", 0, name + 1 - strings), self._symbols)
        offset, section = struct.unpack_from("<Ih", self.bytes, symbol + 8)
        size, start, _, raw = self._sections[section - 1]
        code = self.bytes[raw : raw + size]
        found = 0
        for call in re.finditer(rb"\xe8(?=(....))", code, re.DOTALL):
            (distance,) = struct.unpack("<i", call.group(1))
            found += call.end() + 4 + distance == offset
        return found

    def resources(self, kind: int) -> list[tuple[int | str, bytes]]:
        """The resources of a kind: [(name or number, bytes)], each in its first language only."""
        root = self._number("<I", self._optional + 112 + 8 * 2)
        if not root:
            return []
        found = []
        for key, names in self._entries(root, 0):
            if key != kind:
                continue
            for name, languages in self._entries(root, names):
                _, leaf = next(iter(self._entries(root, languages)))
                address, size = struct.unpack_from("<II", self.bytes, self._place(root) + leaf)
                start = self._place(address)
                found.append((name, self.bytes[start : start + size]))
        return found

    def version(self) -> tuple[list[str], dict[str, str]]:
        """The versions of the file and of the product, and the strings of the version block."""
        ((_, block),) = self.resources(VERSION)
        numbers = struct.unpack_from("<4I", block, block.index(struct.pack("<I", 0xFEEF04BD)) + 8)
        return [_dotted(*numbers[:2]), _dotted(*numbers[2:])], dict(_version_strings(block, 0))

    def _number(self, form: str, offset: int) -> int:
        return struct.unpack_from(form, self.bytes, offset)[0]

    def _place(self, address):
        """The offset in the file of an address in the loaded program."""
        for size, start, raw_size, raw in self._sections:
            if start <= address < start + max(size, raw_size):
                return address - start + raw
        raise ValueError(f"no section contains the address {address:x}")

    def _entries(self, root, folder):
        """The entries of a folder of resources: (name or number, offset)."""
        start = self._place(root)
        count = sum(struct.unpack_from("<HH", self.bytes, start + folder + 12))
        for i in range(count):
            key, place = struct.unpack_from("<II", self.bytes, start + folder + 16 + 8 * i)
            if key & 0x80000000:
                text = start + (key & 0x7FFFFFFF)
                length = self._number("<H", text)
                key = self.bytes[text + 2 : text + 2 + 2 * length].decode("utf-16-le")
            yield key, place & 0x7FFFFFFF


def _version_strings(block, start):
    """Yields (name, string) for one part of a version block and the parts within it."""
    length, value_length, is_text = struct.unpack_from("<HHH", block, start)
    end = start + length
    name, at = _string_at(block, start + 6)
    if is_text and value_length:
        yield name, _string_at(block, at)[0]
        return
    at += (value_length + 3) // 4 * 4
    while at < end:
        yield from _version_strings(block, at)
        at += (struct.unpack_from("<H", block, at)[0] + 3) // 4 * 4


def _string_at(block, start):
    """The zero-terminated string at an offset, and the offset of the next item."""
    end = start
    while block[end : end + 2] != b"\0\0":
        end += 2
    return block[start:end].decode("utf-16-le"), (end + 2 + 3) // 4 * 4


def _dotted(high, low):
    return f"{high >> 16}.{high & 0xFFFF}.{low >> 16}.{low & 0xFFFF}"
