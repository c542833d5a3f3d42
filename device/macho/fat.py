"""The slices of a fat file."""

import struct
from dataclasses import dataclass

from macho.error import MachOError

MAGIC_FAT = 0xCAFEBABE


@dataclass
class Slice:
    cpu_type: int
    cpu_subtype: int
    offset: int
    align: int  # log2
    data: bytes


def read_slices(path):
    with open(path, "rb") as file:
        return slices_in(file.read())


def slices_in(data):
    magic, count = struct.unpack_from(">2I", data)
    if magic != MAGIC_FAT:
        raise MachOError(f"magic is {magic:#x}, not that of a fat file")
    return [_slice(data, 8 + 20 * index) for index in range(count)]


def _slice(data, position):
    cpu_type, cpu_subtype, offset, size, align = struct.unpack_from(">5I", data, position)
    if offset + size > len(data):
        raise MachOError(f"a slice at {offset} ends behind the file")
    return Slice(cpu_type, cpu_subtype, offset, align, data[offset : offset + size])
