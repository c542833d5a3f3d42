"""Imports and exports that are on no list are found, and so are listed exports that are missing."""

import struct

from case import ALLOWED_IMPORTS, CLEAN, EXPORTS, CheckCase, sample
from macho.image import LC_DYLD_CHAINED_FIXUPS, Image

IMPORTS_OFFSET, IMPORTS_COUNT = 8, 16  # in the fixups' header
ANY_LIBRARY = 0xFE  # the loader's "flat namespace"


class Symbols(CheckCase):
    def test_good_slice_passes(self):
        self.passes("imports", CLEAN, ALLOWED_IMPORTS)
        self.passes("exports", CLEAN, EXPORTS)

    def test_import_that_is_not_allowed(self):
        path = sample("extra_import/Dozewell2.dylib")
        self.fails("imports _getpid", "imports", path, ALLOWED_IMPORTS)

    def test_export_that_is_not_listed(self):
        path = sample("extra_export/Dozewell2.dylib")
        self.fails("exports _helper", "exports", path, EXPORTS)

    def test_listed_export_that_is_missing(self):
        path = sample("extra_export/Dozewell2.dylib")
        self.fails("does not export _preferences", "exports", path, EXPORTS)

    def test_comment_in_a_list_names_nothing(self):
        commented = self.written(b"# _preferences\n")
        self.fails("exports _preferences", "exports", CLEAN, commented)

    def test_slice_without_imports_is_not_passed_over(self):
        path = self.damaged((self.fixups() + IMPORTS_COUNT, "<I", 0))
        self.fails("the slice imports nothing", "imports", path, ALLOWED_IMPORTS)

    def test_import_from_whatever_library_has_it(self):
        start = self.fixups()
        (imports,) = struct.unpack_from("<I", Image.read(CLEAN).data, start + IMPORTS_OFFSET)
        path = self.damaged((start + imports, "B", ANY_LIBRARY))
        self.fails("from no library in particular", "imports", path, ALLOWED_IMPORTS)

    def fixups(self):
        command = Image.read(CLEAN).commands_of(LC_DYLD_CHAINED_FIXUPS)[0]
        return struct.unpack_from("<I", command.body)[0]
