"""Imports and exports that are on no list are found, and so are listed exports that are missing."""

from case import ALLOWED_IMPORTS, CLEAN, EXPORTS, CheckCase, sample


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
