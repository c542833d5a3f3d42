"""Libraries that no phone has, or not every phone, are found, and so are those that are missing."""

from case import CLEAN, LIBRARIES, CheckCase, sample
from macho.image import (
    LC_LOAD_DYLIB,
    LC_LOAD_WEAK_DYLIB,
    LC_REEXPORT_DYLIB,
    Image,
)

UNKNOWN_COMMAND = 0x7FFF


class Libraries(CheckCase):
    def assert_fails(self, text, *changes):
        self.fails(text, "libraries", self.damaged(*changes), LIBRARIES)

    def weak(self):
        return Image.read(CLEAN).commands_of(LC_LOAD_WEAK_DYLIB)[0].offset

    def required(self):
        return Image.read(CLEAN).commands_of(LC_LOAD_DYLIB)[0].offset

    def test_good_slice_passes(self):
        self.passes("libraries", CLEAN, LIBRARIES)

    def test_library_that_is_on_no_phone(self):
        path = sample("extra_library/Dozewell2.dylib")
        self.fails("names required 1.0.0 @rpath/Extra.dylib", "libraries", path, LIBRARIES)

    def test_weak_library_that_is_required(self):
        change = (self.weak(), "<I", LC_LOAD_DYLIB)
        self.assert_fails("names required 0.0.0 @rpath/Cephei.framework/Cephei", change)
        self.assert_fails("does not name weak 0.0.0 @rpath/Cephei.framework/Cephei", change)

    def test_required_library_that_is_weak(self):
        self.assert_fails("names weak", (self.required(), "<I", LC_LOAD_WEAK_DYLIB))

    def test_library_that_is_exported_again(self):
        self.assert_fails("names re-exported", (self.required(), "<I", LC_REEXPORT_DYLIB))

    def test_library_that_is_not_named(self):
        self.assert_fails(
            "does not name weak 0.0.0 @rpath/Cephei", (self.weak(), "<I", UNKNOWN_COMMAND)
        )

    def test_newer_version_than_phones_have(self):
        self.assert_fails("names weak 2.0.0 @rpath/Cephei", (self.weak() + 20, "<I", 2 << 16))

    def test_library_that_is_named_twice(self):
        system, runtime = [
            command
            for command in Image.read(CLEAN).commands_of(LC_LOAD_DYLIB)
            if b"/usr/lib/lib" in command.body
        ]
        name = b"/usr/lib/libobjc.A.dylib"
        self.assertIn(name, runtime.body)
        self.assert_fails("libobjc.A.dylib 2 times", (system.offset + 24, "32s", name))

    def test_comment_in_a_list_names_nothing(self):
        commented = self.written(b"# required 1.0.0 /usr/lib/libobjc.A.dylib\n")
        self.fails("names required 1.0.0 /usr/lib/libobjc", "libraries", CLEAN, commented)
