"""Only the arm64e slice signs pointers, and it does.

Plain arm64 code under the arm64e name would load and then hand unsigned functions to a host that
authenticates them; signing instructions in the arm64 slice are undefined on the phones it is for.
"""

import struct

from macho.image import Image

PACIBSP = 0xD503237F  # how a function that returns with authentication begins
# (mask, value): pac* and aut* of a register, braa* and blraa*, retaa and retab.
SIGNING = [(0xFFFFC000, 0xDAC10000), (0xFE9FF800, 0xD61F0800), (0xFFFFFBFF, 0xD65F0BFF)]


def check(path, architecture):
    image = Image.read(path)
    words = [
        word
        for section in image.sections
        if section.holds_code
        for (word,) in struct.iter_unpack("<I", image.content(section))
    ]
    signing = [word for word in words if word == PACIBSP or _is_signing(word)]
    if architecture == "arm64" and signing:
        yield f"{len(signing)} instructions sign or authenticate pointers, such as {signing[0]:#x}"
    if architecture == "arm64e" and PACIBSP not in signing:
        yield "no function signs its return address: the code is not arm64e"


def _is_signing(word):
    return any(word & mask == value for mask, value in SIGNING)
