"""A wrong signature or slice type is found."""

import struct

from case import CLEAN, CheckCase, sample
from macho.image import CPU_SUBTYPE_ARM64E, LC_CODE_SIGNATURE, Image
from macho.signature import CodeDirectory

LINKED = sample("clean", "linked", "Dozewell2.dylib")


class Signature(CheckCase):
    def assert_fails(self, text, path):
        self.fails(text, "signature", path, "arm64e")

    def command(self):
        return Image.read(CLEAN).commands_of(LC_CODE_SIGNATURE)[0]

    def test_good_slices_pass(self):
        self.passes("signature", CLEAN, "arm64e")
        self.passes("signature", sample("clean/arm64/Dozewell2.dylib"), "arm64")

    def test_what_the_linker_left(self):
        self.assert_fails("the cpu subtype is 0x0, not 0x80000002", LINKED)
        self.assert_fails("flags are 0x20002, not 0x2", LINKED)

    def test_subtype_of_the_older_abi(self):
        self.assert_fails("the cpu subtype is 0x2,", self.damaged((8, "<I", 2)))

    def test_subtype_without_repaired_hash(self):
        path = self.damaged((8, "<I", CPU_SUBTYPE_ARM64E), path=LINKED)
        self.assert_fails("the hash of page 0 is wrong", path)

    def test_one_flipped_bit_in_each_page(self):
        directory = CodeDirectory(Image.read(CLEAN))
        self.assertGreater(directory.pages, 4)
        for page in range(directory.pages):
            # The last byte of the last page is the last that the signature covers.
            offset = min((page + 1) * directory.page_size, directory.code_limit) - 1
            flipped = Image.read(CLEAN).data[offset] ^ 1
            path = self.damaged((offset, "B", flipped))
            self.assert_fails(f"the hash of page {page} is wrong", path)

    def test_unsigned(self):
        path = self.damaged((self.command().offset, "<I", 0x7FFF))
        self.assert_fails("there is no code signature", path)

    def test_another_identifier(self):
        with open(CLEAN, "rb") as file:
            data = file.read()
        at = data.rindex(b"Dozewell2.dylib\0")
        self.assert_fails("identifier is Nozewell2.dylib", self.damaged((at, "c", b"N")))

    def test_signature_that_covers_too_little(self):
        at = CodeDirectory(Image.read(CLEAN)).offset + 32
        self.assert_fails("the signature covers 4096 of", self.damaged((at, ">I", 4096)))

    def test_too_few_hashes(self):
        at = CodeDirectory(Image.read(CLEAN)).offset + 28
        self.assert_fails("has 1 page hashes, too few", self.damaged((at, ">I", 1)))

    def test_cms(self):
        self.assert_fails("the signature has a CMS part", self.with_cms(b"certificate"))

    def test_empty_cms_counts_as_none(self):
        failures = "the signature has a CMS part"
        with self.assertRaises(AssertionError):
            self.assert_fails(failures, self.with_cms(b""))

    def with_cms(self, content):
        """The clean slice with a second blob in its signature."""
        start, size = struct.unpack_from("<2I", self.command().body)
        data = bytearray(Image.read(CLEAN).data)
        blob = data[CodeDirectory(Image.read(CLEAN)).offset : start + size]
        cms = struct.pack(">2I", 0xFADE0B01, 8 + len(content)) + content
        index = struct.pack(">4I", 0, 28, 0x10000, 28 + len(blob))
        header = struct.pack(">3I", 0xFADE0CC0, 28 + len(blob) + len(cms), 2)
        data[start:] = header + index + blob + cms
        struct.pack_into("<I", data, self.command().offset + 12, len(data) - start)
        return self.written(data)
