from case import CLEAN, CheckCase, sample
from macho.image import LC_SEGMENT_64, SECTION_INIT_OFFSETS, Image


class Initializers(CheckCase):
    def test_offsets_pass(self):
        self.passes("initializers", CLEAN)

    def test_pointers(self):
        path = sample("clean/classic_fixups/Dozewell2.dylib")
        self.fails("__mod_init_func holds initialisers as pointers", "initializers", path)

    def test_none_at_all(self):
        path = sample("function_table/Dozewell2.dylib")
        self.fails("there is no __init_offsets", "initializers", path)

    def test_offset_of_something_that_is_no_code(self):
        path = self.damaged((self.table().offset, "<I", 0x20))
        self.fails("the initialiser at 0x20 is not code", "initializers", path)

    def test_table_of_half_an_entry(self):
        image = Image.read(CLEAN)
        command = image.commands_of(LC_SEGMENT_64)[0]
        index = image.segments[0].sections.index(self.table())
        path = self.damaged((command.offset + 72 + 80 * index + 40, "<Q", 6))
        self.fails("__init_offsets has 6 bytes", "initializers", path)

    def table(self):
        return next(s for s in Image.read(CLEAN).sections if s.type == SECTION_INIT_OFFSETS)
