#!/usr/bin/env python3
"""Turns what the linker wrote into what a phone loads:

    finish_slice.py LINKED ARCH OUTPUT

The linker has no arm64e: it marks that slice "any arm64", which a phone that authenticates
pointers does not load. It also marks its signature as made by a linker; a package's is plain
ad-hoc. The subtype lies in the first page, so that page is hashed again.
"""

import struct
import sys

from macho.image import CPU_SUBTYPE_ARM64E, CPU_SUBTYPE_OFFSET, Image
from macho.signature import FLAG_ADHOC, FLAGS_OFFSET, CodeDirectory


def finish(data, architecture):
    """The finished image. Signature flags are not hashed; the header is."""
    directory = CodeDirectory(Image(data))
    finished = bytearray(data)
    struct.pack_into(">I", finished, directory.offset + FLAGS_OFFSET, FLAG_ADHOC)
    if architecture == "arm64e":
        struct.pack_into("<I", finished, CPU_SUBTYPE_OFFSET, CPU_SUBTYPE_ARM64E)
        repaired = directory.actual_hash(0, finished)
        start = directory.hash_offset(0)
        finished[start : start + len(repaired)] = repaired
    return bytes(finished)


def main():
    linked, architecture, output = sys.argv[1:]
    with open(linked, "rb") as file:
        data = file.read()
    with open(output, "wb") as file:
        file.write(finish(data, architecture))


if __name__ == "__main__":
    main()
