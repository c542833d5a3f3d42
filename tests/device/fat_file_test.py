import struct

from case import CLEAN, CheckCase, sample

FAT = sample("clean", "fat.dylib")
PLAIN = sample("clean", "arm64", "Dozewell2.dylib")


class FatFile(CheckCase):
    def test_good_file_passes(self):
        self.passes("fat-file", FAT, PLAIN, CLEAN)

    def test_missing_slice(self):
        with open(FAT, "rb") as file:
            data = bytearray(file.read())
        struct.pack_into(">I", data, 4, 1)
        self.fails("not one of arm64 and one of arm64e", "fat-file", self.written(data), PLAIN)

    def test_header_that_names_the_older_abi(self):
        arm64e = self.entry_of(0x80000002)
        path = self.damaged((arm64e + 4, ">I", 2), path=FAT)
        self.fails("is of another type than the fat header says", "fat-file", path, PLAIN, CLEAN)

    def test_smaller_alignment(self):
        path = self.damaged((8 + 16, ">I", 12), path=FAT)
        self.fails("is not aligned to 2^14", "fat-file", path, PLAIN, CLEAN)

    def test_slices_of_another_build(self):
        other = sample("extra_export", "Dozewell2.dylib")
        self.fails("not the thin files byte for byte", "fat-file", FAT, PLAIN, other)

    def test_thin_file(self):
        self.fails("not that of a fat file", "fat-file", CLEAN)

    def entry_of(self, subtype):
        with open(FAT, "rb") as file:
            data = file.read(48)
        found = [at for at in (8, 28) if struct.unpack_from(">I", data, at + 4)[0] == subtype]
        self.assertEqual(len(found), 1)
        return found[0]
