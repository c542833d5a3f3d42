from case import CLEAN, CheckCase, sample
from macho.image import SECTION_INIT_OFFSETS, Image


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
        sections = Image.read(CLEAN).sections
        table = next(s for s in sections if s.type == SECTION_INIT_OFFSETS)
        path = self.damaged((table.offset, "<I", 0x20))
        self.fails("the initialiser at 0x20 is not code", "initializers", path)
