"""Reads shortcuts, which are link files of the shell: the parts of [MS-SHLLINK] that the tests check."""

import struct
import uuid

_LINK_CLASS = uuid.UUID("00021401-0000-0000-c000-000000000046")
_HEADER_SIZE = 76

# The bits of the header's flags.
_HAS_ID_LIST = 1 << 0
_HAS_LINK_INFO = 1 << 1
_STRINGS = (
    (1 << 2, "description"),
    (1 << 3, "relative_path"),
    (1 << 4, "work_folder"),
    (1 << 5, "arguments"),
    (1 << 6, "icon"),
)
_IS_UNICODE = 1 << 7


def read_link(contents: bytes, code_page: str) -> dict[str, str]:
    """The strings that a link contains: {"target": ..., "description": ...}.

    `code_page` is that of the machine that wrote the link; 8-bit strings are encoded in it.
    """
    size, link_class, flags = struct.unpack_from("<I16sI", contents)
    if size != _HEADER_SIZE or uuid.UUID(bytes_le=link_class) != _LINK_CLASS:
        raise ValueError("not a link file")
    strings = {}
    offset = _HEADER_SIZE
    if flags & _HAS_ID_LIST:
        offset += 2 + struct.unpack_from("<H", contents, offset)[0]
    if flags & _HAS_LINK_INFO:
        strings["target"] = _local_path(contents, offset, code_page)
        offset += struct.unpack_from("<I", contents, offset)[0]
    for flag, name in _STRINGS:
        if flags & flag:
            strings[name], offset = _counted_string(contents, offset, flags, code_page)
    return strings


def _local_path(contents, start, code_page):
    header_size, _, _, ansi_offset = struct.unpack_from("<4I", contents, start + 4)
    if header_size >= 0x24:
        wide_offset = struct.unpack_from("<I", contents, start + 0x1C)[0]
        end = start + wide_offset
        while contents[end : end + 2] != b"\0\0":
            end += 2
        return contents[start + wide_offset : end].decode("utf-16-le")
    begin = start + ansi_offset
    return contents[begin : contents.index(b"\0", begin)].decode(code_page, errors="replace")


# Some writers count the terminating zero.
def _counted_string(contents, offset, flags, code_page):
    length = struct.unpack_from("<H", contents, offset)[0]
    begin = offset + 2
    if flags & _IS_UNICODE:
        end = begin + 2 * length
        return contents[begin:end].decode("utf-16-le").rstrip("\0"), end
    return contents[begin : begin + length].decode(code_page).rstrip("\0"), begin + length
