"""The reader refuses bytes that contradict each other instead of reading past them."""

import struct

from case import ALLOWED_IMPORTS, CLEAN, EXPORTS, CheckCase, sample
from macho.image import (
    LC_CODE_SIGNATURE,
    LC_DYLD_CHAINED_FIXUPS,
    LC_DYLD_EXPORTS_TRIE,
    Image,
)
from macho.signature import CodeDirectory


def blob(kind):
    """Where in the file the command's bytes are."""
    command = Image.read(CLEAN).commands_of(kind)[0]
    return struct.unpack_from("<I", command.body)[0]


def word(offset):
    return struct.unpack_from("<I", Image.read(CLEAN).data, offset)[0]


class Commands(CheckCase):
    def test_cut_off(self):
        self.fails("the load commands are cut off", "layout", self.damaged((20, "<I", 1 << 30)))

    def test_impossible_size(self):
        self.fails("the impossible size 4", "layout", self.damaged((36, "<I", 4)))

    def test_data_behind_the_end(self):
        command = Image.read(CLEAN).commands_of(LC_DYLD_EXPORTS_TRIE)[0]
        path = self.damaged((command.offset + 12, "<I", 1 << 30))
        self.fails("points behind the end of the file", "exports", path, EXPORTS)

    def test_fat_slice_behind_the_end(self):
        path = self.damaged((8 + 12, ">I", 1 << 30), path=sample("clean", "fat.dylib"))
        self.fails("ends behind the file", "fat-file", path)


class Fixups(CheckCase):
    def setUp(self):
        super().setUp()
        self.start = blob(LC_DYLD_CHAINED_FIXUPS)
        self.starts = self.start + word(self.start + 4)
        # __TEXT has none, so the first starts are those of the next segment.
        self.segment = self.starts + word(self.starts + 8)

    def assert_fails(self, text, *changes):
        self.fails(text, "code-pointers", self.damaged(*changes), ALLOWED_IMPORTS)

    def test_unknown_version(self):
        self.assert_fails("unexpected chained fixups header", (self.start, "<I", 1))

    def test_another_number_of_segments(self):
        self.assert_fails("fixups of 3 segments", (self.starts, "<I", 3))

    def test_another_pointer_format(self):
        self.assert_fails("has pointer format 1, not 64", (self.segment + 6, "<H", 1))

    def test_another_segment(self):
        self.assert_fails("__DATA_CONST start at 0x20000", (self.segment + 8, "<Q", 0x20000))

    def test_chain_that_leaves_its_segment(self):
        self.assert_fails("a chain leaves __DATA_CONST", (self.segment + 22, "<H", 0x3FFC))

    def test_bind_of_an_import_that_is_not_there(self):
        self.assert_fails("names import 0, which is not there", (self.start + 16, "<I", 0))


class Exports(CheckCase):
    def assert_fails(self, text, layout, *values):
        path = self.damaged((blob(LC_DYLD_EXPORTS_TRIE), layout, *values))
        self.fails(text, "exports", path, EXPORTS)

    def test_edge_to_itself(self):
        # The root: no name of its own, one child "a" at offset 0.
        self.assert_fails("a bad edge to 0", "5B", 0, 1, ord("a"), 0, 0)

    def test_number_without_an_end(self):
        trie = Image.read(CLEAN).blob(LC_DYLD_EXPORTS_TRIE)
        self.assert_fails("is cut off", f"{len(trie)}s", b"\x80" * len(trie))


class Signature(CheckCase):
    def assert_fails(self, text, *change):
        self.fails(text, "signature", self.damaged(change), "arm64e")

    def test_no_superblob(self):
        self.assert_fails("is not a superblob", blob(LC_CODE_SIGNATURE), ">I", 0)

    def test_no_code_directory(self):
        self.assert_fails("has no code directory", blob(LC_CODE_SIGNATURE) + 12, ">I", 2)

    def test_another_hash(self):
        at = CodeDirectory(Image.read(CLEAN)).offset + 37
        self.assert_fails("is not one of SHA-256", at, "B", 1)
