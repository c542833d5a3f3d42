"""What the loader does to an image: the imports it looks up and the pointers it writes."""

import struct
from dataclasses import dataclass

from macho.error import MachOError
from macho.image import LC_DYLD_CHAINED_FIXUPS

FORMAT_PTR_64 = 2  # every arm64 and arm64e loader since iOS 14 takes it
IMPORTS_PLAIN = 1
NO_FIXUPS_IN_PAGE = 0xFFFF
STRIDE = 4


@dataclass
class Import:
    name: str
    library: int  # 1 is the first LC_LOAD_DYLIB
    weak: bool


@dataclass
class Fixup:
    address: int
    target: int = None  # address inside the image, for a rebase
    symbol: Import = None  # for a bind


class ChainedFixups:
    """Raises MachOError when the image has none, or in a format other than the one we link."""

    def __init__(self, image):
        self._image = image
        self._blob = image.blob(LC_DYLD_CHAINED_FIXUPS)
        if self._blob is None:
            raise MachOError("there is no LC_DYLD_CHAINED_FIXUPS")
        header = struct.unpack_from("<7I", self._blob)
        version, self._starts, imports, symbols, count, import_format, symbol_format = header
        if (version, import_format, symbol_format) != (0, IMPORTS_PLAIN, 0):
            raise MachOError(f"unexpected chained fixups header {header}")
        self.imports = [self._read_import(imports + 4 * i, symbols) for i in range(count)]

    def __iter__(self):
        (count,) = struct.unpack_from("<I", self._blob, self._starts)
        if count != len(self._image.segments):
            raise MachOError(f"fixups of {count} segments in {len(self._image.segments)}")
        for index, segment in enumerate(self._image.segments):
            (offset,) = struct.unpack_from("<I", self._blob, self._starts + 4 + 4 * index)
            if offset:
                yield from self._segment(segment, self._starts + offset)

    def _read_import(self, offset, symbols):
        (word,) = struct.unpack_from("<I", self._blob, offset)
        name = self._blob[symbols + (word >> 9) :].split(b"\0", 1)[0].decode()
        return Import(name, word & 0xFF, bool(word & 0x100))

    def _segment(self, segment, offset):
        _, page_size, pointer_format, address, _, pages = struct.unpack_from(
            "<IHHQIH", self._blob, offset
        )
        if pointer_format != FORMAT_PTR_64:
            raise MachOError(f"{segment.name} has pointer format {pointer_format}, not 64")
        if address != segment.address:
            raise MachOError(f"the fixups of {segment.name} start at {address:#x}")
        for page in range(pages):
            (start,) = struct.unpack_from("<H", self._blob, offset + 22 + 2 * page)
            if start != NO_FIXUPS_IN_PAGE:
                yield from self._chain(segment, page * page_size + start)

    def _chain(self, segment, position):
        while True:
            if position + 8 > segment.file_size:
                raise MachOError(f"a chain leaves {segment.name} at {position:#x}")
            (word,) = struct.unpack_from("<Q", self._image.data, segment.offset + position)
            yield self._decode(segment.address + position, word)
            step = (word >> 51) & 0xFFF
            if step == 0:
                return
            position += step * STRIDE

    def _decode(self, address, word):
        if not word >> 63:
            return Fixup(address, target=word & 0xFFFFFFFFF)
        ordinal = word & 0xFFFFFF
        if ordinal >= len(self.imports):
            raise MachOError(f"the bind at {address:#x} names import {ordinal}, which is not there")
        return Fixup(address, symbol=self.imports[ordinal])
