"""The slice names the libraries it needs, weakly those that a phone may lack, and no others.

The extension finds classes by name, so a library that it does not name loads only if somebody else
does; and one that a phone does not have keeps it from loading, without a word.
"""

import struct

from macho.image import (
    LC_LAZY_LOAD_DYLIB,
    LC_LOAD_DYLIB,
    LC_LOAD_UPWARD_DYLIB,
    LC_LOAD_WEAK_DYLIB,
    LC_REEXPORT_DYLIB,
    Image,
)

KINDS = {
    LC_LOAD_DYLIB: "required",
    LC_LOAD_WEAK_DYLIB: "weak",
    LC_REEXPORT_DYLIB: "re-exported",
    LC_LAZY_LOAD_DYLIB: "lazy",
    LC_LOAD_UPWARD_DYLIB: "upward",
}


def check(path, expected_path):
    expected = _read_list(expected_path)
    found = list(_named_libraries(Image.read(path)))
    for library in sorted(set(found)):
        if found.count(library) > 1:
            yield f"names {library} {found.count(library)} times"
        if library not in expected:
            yield f"names {library}, which {expected_path} does not list"
    for library in sorted(set(expected) - set(found)):
        yield f"does not name {library}, which {expected_path} lists"


def _named_libraries(image):
    for command in image.commands:
        if command.kind not in KINDS:
            continue
        (version,) = struct.unpack_from("<I", command.body, 12)
        numbers = f"{version >> 16}.{version >> 8 & 0xFF}.{version & 0xFF}"
        yield f"{KINDS[command.kind]} {numbers} {image.string(command, 0)}"


def _read_list(path):
    with open(path, encoding="utf-8") as file:
        lines = [" ".join(line.split("#")[0].split()) for line in file]
    return [line for line in lines if line]
