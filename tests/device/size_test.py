"""Slices that have grown, or that carry names nobody asks for, are found."""

from case import CLEAN, CheckCase
from macho.image import LC_SEGMENT_64, LC_SYMTAB, Image

FIRST_SECTION, SECTION_SIZE = 72, 40  # of a segment's command, of a section's part of it


class Size(CheckCase):
    def setUp(self):
        super().setUp()
        self.image = Image.read(CLEAN)

    def test_good_slice_passes(self):
        self.passes("size", CLEAN)

    def test_too_much_code(self):
        at = self.image.commands_of(LC_SEGMENT_64)[0].offset + FIRST_SECTION + SECTION_SIZE
        self.fails("bytes of code and constants", "size", self.damaged((at, "<Q", 120_001)))

    def test_too_many_constants(self):
        at = self.image.commands_of(LC_SEGMENT_64)[1].offset + FIRST_SECTION + SECTION_SIZE
        self.fails("bytes of code and constants", "size", self.damaged((at, "<Q", 120_001)))

    def test_large_file(self):
        padding = b"\0" * (160_001 - len(self.image.data))
        self.fails("has 160001 bytes", "size", self.written(self.image.data + padding))

    def test_local_symbol(self):
        (symbol,) = [n for n, s in enumerate(self.image.symbols()) if s.name == "_preferences"]
        start = self.image.commands_of(LC_SYMTAB)[0].body[:4]
        at = int.from_bytes(start, "little") + 16 * symbol
        self.fails("1 symbols that are not exported, such as _preferences", "size",
                   self.damaged((at + 4, "B", 0x0E)))

    def test_symbol_table_that_is_cut_off(self):
        at = self.image.commands_of(LC_SYMTAB)[0].offset
        self.fails("the symbol table points behind", "size", self.damaged((at + 12, "<I", 1 << 20)))
