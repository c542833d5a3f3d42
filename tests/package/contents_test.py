import os
import pathlib
import struct

from case import BUNDLE, INJECTED, PackageCase

FILES = os.environ["FILES"].split(":")
SLICES = os.environ["SLICES"].split(":")
MACHINE = os.environ["MACHINE"].split(":")
LIBRARY = f"{INJECTED}/Dozewell2.dylib"


class Contents(PackageCase):
    def test_good_package_passes(self):
        for name, references in (("md5sums", []), ("sources", FILES), ("slices", SLICES), ("filter", []),
                                 ("paths", MACHINE)):
            with self.subTest(name):
                self.passes(name, *references)
                self.passes(name, *references, path=self.written())

    def test_one_bit_of_each_kind_of_file(self):
        for name in (LIBRARY, f"{INJECTED}/Dozewell2.plist", f"{BUNDLE}/CurrentTimerView.nib",
                     f"{BUNDLE}/DozewellButtonDark.ca/main.caml", f"{BUNDLE}/he.lproj/Localizable.strings",
                     f"{BUNDLE}/timerIcon@3x.png"):
            with self.subTest(name):
                self.setUp()
                self.flip(name, -1)
                self.fails(f"{name[2:]}: the sum in md5sums is not the file's", "md5sums")
                self.fails(f"{name[1:]} is not what was built", "sources", *FILES)

    def test_sums_in_another_order(self):
        sums = self.entry("./md5sums")
        sums.data = b"".join(reversed(sums.data.splitlines(True)))
        self.fails("each file once, in the order", "md5sums")

    def test_sum_that_is_missing(self):
        sums = self.entry("./md5sums")
        sums.data = b"".join(sums.data.splitlines(True)[1:])
        self.fails("the sum in md5sums is not the file's", "md5sums")

    def test_file_that_nobody_built(self):
        self.entry(f"{BUNDLE}/Info.plist").info.name = f"{BUNDLE}/Other.plist"
        self.fails("Other.plist is not what was built (", "sources", *FILES)
        self.fails("Info.plist is not what was built (no such file", "sources", *FILES)

    def test_cut_file(self):
        entry = self.entry(f"{BUNDLE}/timerIcon.png")
        entry.data = entry.data[:-1]
        self.fails("timerIcon.png is not what was built (", "sources", *FILES)

    def test_slices_that_were_not_checked(self):
        offset, size = struct.unpack_from(">2I", self.entry(LIBRARY).data, 8 + 8)
        self.flip(LIBRARY, offset + size - 1)
        self.fails("the slices are not the checked ones", "slices", *SLICES)

    def test_one_slice_alone(self):
        self.entry(LIBRARY).data = pathlib.Path(SLICES[0]).read_bytes()
        self.fails("not that of a fat file", "slices", *SLICES)

    def test_no_library(self):
        self.package.data.remove(self.entry(LIBRARY))
        self.fails("there is no file", "slices", *SLICES)

    def test_filters_that_let_other_hosts_in(self):
        entry = self.entry(f"{INJECTED}/Dozewell2.plist")
        good = entry.data
        for wrong in (good.replace(b"com.apple.springboard", b"com.apple.UIKit"),
                      good.replace(b"Bundles", b"Executables"),
                      good.replace(b"</array>", b"<string>com.apple.Music</string></array>"),
                      good.replace(b"<array>", b""), b""):
            with self.subTest(wrong):
                self.setUp()
                self.entry(entry.name).data = wrong
                self.fails("Dozewell2.plist ", "filter")

    def test_path_of_the_machine(self):
        for name in (LIBRARY, f"{BUNDLE}/Info.plist", "./control"):
            with self.subTest(name):
                self.setUp()
                self.entry(name).data += f"{MACHINE[0]}/tweak/hooks/Startup.cpp\0".encode()
                self.fails(f"{name} names {MACHINE[0]}", "paths", *MACHINE)

    def flip(self, name, position):
        entry = self.entry(name)
        data = bytearray(entry.data)
        data[position] ^= 1
        entry.data = bytes(data)
