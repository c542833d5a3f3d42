"""The header, load commands, segments and sections of one thin image."""

import struct
from dataclasses import dataclass, field

from macho.error import MachOError

MAGIC_64 = 0xFEEDFACF
CPU_TYPE_ARM64 = 0x0100000C
CPU_SUBTYPE_ARM64_ALL = 0
# The pointer-authentication ABI that phones load: subtype 2 with the "versioned ABI" flag.
CPU_SUBTYPE_ARM64E = 0x80000002
CPU_SUBTYPE_OFFSET = 8
FILETYPE_DYLIB = 6

LC_SEGMENT_64 = 0x19
LC_SYMTAB = 0x02
LC_ID_DYLIB = 0x0D
LC_LOAD_DYLIB = 0x0C
LC_LOAD_WEAK_DYLIB = 0x80000018
LC_REEXPORT_DYLIB = 0x8000001F
LC_LAZY_LOAD_DYLIB = 0x20
LC_LOAD_UPWARD_DYLIB = 0x80000023
LC_UUID = 0x1B
LC_RPATH = 0x8000001C
LC_CODE_SIGNATURE = 0x1D
LC_DYLD_INFO_ONLY = 0x80000022
LC_BUILD_VERSION = 0x32
LC_DYLD_EXPORTS_TRIE = 0x80000033
LC_DYLD_CHAINED_FIXUPS = 0x80000034

SECTION_TYPE_MASK = 0xFF
SECTION_HOLDS_CODE = 0x80000000 | 0x00000400  # pure instructions, some instructions
SECTION_INIT_OFFSETS = 0x16
SECTION_MOD_INIT_FUNCS = 0x9

SYMBOL_EXTERNAL = 0x01

PROTECTION_READ, PROTECTION_WRITE, PROTECTION_EXECUTE = 1, 2, 4


@dataclass
class Section:
    name: str
    segment: str
    address: int
    size: int
    offset: int
    align: int  # log2
    flags: int

    @property
    def type(self):
        return self.flags & SECTION_TYPE_MASK

    @property
    def holds_code(self):
        return bool(self.flags & SECTION_HOLDS_CODE)

    @property
    def full_name(self):
        return f"{self.segment},{self.name}"

    def contains(self, address):
        return self.address <= address < self.address + self.size


@dataclass
class Segment:
    name: str
    address: int
    size: int
    offset: int
    file_size: int
    protection: int
    sections: list = field(default_factory=list)


@dataclass
class Symbol:
    name: str
    external: bool  # exported or imported


@dataclass
class Command:
    kind: int
    offset: int
    body: bytes  # without the two words that every command starts with


class Image:
    """One thin image. Raises MachOError for anything that is not a 64-bit Mach-O."""

    def __init__(self, data):
        self.data = bytes(data)
        if len(self.data) < 32:
            raise MachOError("too short for a Mach-O header")
        header = struct.unpack_from("<8I", self.data)
        magic, self.cpu_type, self.cpu_subtype, self.file_type, count, size, self.flags, _ = header
        if magic != MAGIC_64:
            raise MachOError(f"magic is {magic:#x}, not that of a 64-bit Mach-O")
        self.commands = list(self._read_commands(count, size))
        self.segments = [self._read_segment(c) for c in self.commands if c.kind == LC_SEGMENT_64]

    @classmethod
    def read(cls, path):
        with open(path, "rb") as file:
            return cls(file.read())

    def commands_of(self, kind):
        return [command for command in self.commands if command.kind == kind]

    def blob(self, kind):
        """The bytes in __LINKEDIT that a command of this kind points at; None without one."""
        commands = self.commands_of(kind)
        if not commands:
            return None
        offset, size = struct.unpack_from("<2I", commands[0].body)
        if offset + size > len(self.data):
            raise MachOError(f"load command {kind:#x} points behind the end of the file")
        return self.data[offset : offset + size]

    def string(self, command, position):
        """The text of a command whose body holds the text's offset at `position`."""
        (start,) = struct.unpack_from("<I", command.body, position)
        return command.body[start - 8 :].split(b"\0", 1)[0].decode()

    @property
    def sections(self):
        return [section for segment in self.segments for section in segment.sections]

    def section_at(self, address):
        return next((s for s in self.sections if s.contains(address)), None)

    def content(self, section):
        return self.data[section.offset : section.offset + section.size]

    def symbols(self):
        """Those of the symbol table, which debuggers read; the loader needs none of them."""
        for command in self.commands_of(LC_SYMTAB):
            start, count, names, names_size = struct.unpack_from("<4I", command.body)
            if max(start + 16 * count, names + names_size) > len(self.data):
                raise MachOError("the symbol table points behind the end of the file")
            for at in range(start, start + 16 * count, 16):
                name, kind = struct.unpack_from("<IB", self.data, at)
                text = self.data[names + name : names + names_size].split(b"\0", 1)[0]
                yield Symbol(text.decode(), bool(kind & SYMBOL_EXTERNAL))

    def _read_commands(self, count, size):
        offset, end = 32, 32 + size
        if end > len(self.data):
            raise MachOError("the load commands are cut off")
        for _ in range(count):
            kind, length = struct.unpack_from("<2I", self.data, offset)
            if length < 8 or offset + length > end:
                raise MachOError(f"load command at {offset} has the impossible size {length}")
            yield Command(kind, offset, self.data[offset + 8 : offset + length])
            offset += length

    @staticmethod
    def _read_segment(command):
        fields = struct.unpack_from("<16s4Q4I", command.body)
        name, address, size, offset, file_size, _, protection, count, _ = fields
        segment = Segment(_text(name), address, size, offset, file_size, protection)
        for index in range(count):
            values = struct.unpack_from("<16s16s2Q8I", command.body, 64 + 80 * index)
            section, owner, address, size, offset, align, _, _, flags = values[:9]
            segment.sections.append(
                Section(_text(section), _text(owner), address, size, offset, align, flags)
            )
        return segment


def _text(padded):
    return padded.split(b"\0", 1)[0].decode()
