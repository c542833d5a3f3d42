"""Pointers to code in static data are found, in the assembly and in the linked slice."""

import struct

from case import ALLOWED_IMPORTS, CLEAN, CheckCase, sample
from macho.fixups import ChainedFixups
from macho.image import Image


class CodePointers(CheckCase):
    def assert_linked(self, text, path):
        self.fails(text, "code-pointers", path, ALLOWED_IMPORTS)

    def test_pointers_to_text_and_to_variables_are_fine(self):
        self.passes("code-pointers", CLEAN, ALLOWED_IMPORTS)
        self.passes("assembly", sample("clean", "assembly.txt"))

    def test_table_of_functions(self):
        self.fails("_preferences holds a signed", "assembly", sample("function_table/assembly.txt"))
        self.assert_linked("__data points at code", sample("function_table/Dozewell2.dylib"))

    def test_virtual_function(self):
        self.fails("__ZTV4Base holds", "assembly", sample("virtual_function/assembly.txt"))
        self.assert_linked("__const points at code", sample("virtual_function/Dozewell2.dylib"))

    def test_pointer_to_an_imported_function(self):
        self.fails("_preferences holds", "assembly", sample("bound_function/assembly.txt"))
        self.assert_linked(
            "bound to the function _objc_release", sample("bound_function/Dozewell2.dylib")
        )

    def test_slice_without_chained_fixups_is_not_passed_over(self):
        self.assert_linked(
            "no LC_DYLD_CHAINED_FIXUPS", sample("clean/classic_fixups/Dozewell2.dylib")
        )

    def test_pointer_to_no_section(self):
        image = Image.read(CLEAN)
        fixup = next(f for f in ChainedFixups(image) if f.symbol is None)
        segment = next(s for s in image.segments if fixup.address < s.address + s.size)
        at = segment.offset + fixup.address - segment.address
        (word,) = struct.unpack_from("<Q", image.data, at)
        path = self.damaged((at, "<Q", word - fixup.target + 0x40))
        self.assert_linked("points at 0x40, in no section", path)

    def test_objects_are_no_assembly(self):
        self.fails("lists no assembly", "assembly", self.written(b""))
        another_text = self.written(ALLOWED_IMPORTS.encode() + b"\n")
        self.fails("is not assembly", "assembly", another_text)
