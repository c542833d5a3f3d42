"""Load commands and segments that a phone would refuse are found."""

from case import CLEAN, CheckCase, sample
from macho.image import (
    LC_BUILD_VERSION,
    LC_ID_DYLIB,
    LC_LOAD_DYLIB,
    LC_RPATH,
    LC_SEGMENT_64,
    LC_UUID,
    Image,
)

UNKNOWN_COMMAND = 0x7FFF


class Layout(CheckCase):
    def assert_fails(self, text, *changes):
        self.fails(text, "layout", self.damaged(*changes))

    def command(self, kind, index=0):
        return Image.read(CLEAN).commands_of(kind)[index]

    def test_good_slice_passes(self):
        self.passes("layout", CLEAN)

    def test_classic_fixups(self):
        path = sample("clean/classic_fixups/Dozewell2.dylib")
        self.fails("the fixups are not chained", "layout", path)

    def test_no_uuid(self):
        self.assert_fails("no LC_UUID", (self.command(LC_UUID).offset, "<I", UNKNOWN_COMMAND))

    def test_another_ios_version(self):
        at = self.command(LC_BUILD_VERSION).offset
        self.assert_fails("LC_BUILD_VERSION is", (at + 12, "<I", 16 << 16))

    def test_another_platform(self):
        at = self.command(LC_BUILD_VERSION).offset
        self.assert_fails("LC_BUILD_VERSION is", (at + 8, "<I", 1))

    def test_another_install_name(self):
        at = self.command(LC_ID_DYLIB).offset + 24
        self.assert_fails("the install names are ['xrpath/", (at, "c", b"x"))

    def test_another_run_path(self):
        at = self.command(LC_RPATH).offset + 12
        self.assert_fails("the run paths are ['xvar/", (at, "c", b"x"))

    def test_program_instead_of_dylib(self):
        self.assert_fails("file type 2: not an arm64 dylib", (12, "<I", 2))

    def test_writable_text(self):
        at = self.command(LC_SEGMENT_64).offset
        self.assert_fails("__TEXT has protection 7", (at + 60, "<I", 7))

    def test_overlapping_segments(self):
        at = self.command(LC_SEGMENT_64, 1).offset
        self.assert_fails("overlaps the segment before it", (at + 24, "<Q", 0))

    def test_segment_off_a_page(self):
        at = self.command(LC_SEGMENT_64, 1).offset
        address = Image.read(CLEAN).segments[1].address
        self.assert_fails("does not start on a page", (at + 24, "<Q", address + 0x1000))

    def test_no_dependencies(self):
        commands = Image.read(CLEAN).commands_of(LC_LOAD_DYLIB)
        changes = [(command.offset, "<I", UNKNOWN_COMMAND) for command in commands]
        self.assert_fails("there is no LC_LOAD_DYLIB", *changes)

    def test_another_order_of_segments(self):
        at = self.command(LC_SEGMENT_64).offset + 8
        self.assert_fails("__TEXT must come first", (at, "16s", b"__OTHER"))

    def test_file_that_is_cut_off(self):
        data = Image.read(CLEAN).data
        self.fails("__LINKEDIT ends behind", "layout", self.written(data[:-1]))

    def test_file_that_is_no_image(self):
        self.fails("magic is 0x61616161", "layout", self.written(b"a" * 64))
        self.fails("too short", "layout", self.written(b""))
