"""Slices that cannot be loaded, and what whoever tries is told."""

import struct

import case

ARM64E = 0x80000002


def replaced(data, old, new):
    assert len(old) == len(new) and data.count(old) > 0
    return data.replace(old, new)


class Refused(case.SliceCase):
    def test_good_ones_are_not(self):
        for name in ("arm64", "arm64e", ""):
            with self.subTest(name or "both"):
                self.assertPlayed(self.slice(name))

    def test_either_slice_can_be_asked_for(self):
        for name in ("arm64", "arm64e"):
            with self.subTest(name):
                self.assertPlayed(self.slice(""), "--slice", name)
                other = "arm64" if name == "arm64e" else "arm64e"
                self.assertRefused(self.slice(name), f"has no slice for {other}", "--slice", other)

    def test_processor_that_cannot_authenticate(self):
        without = {"emulator": case.WITHOUT_SIGNATURES}
        if not case.EMULATOR:
            self.skipTest("this machine has only its own processor")
        self.assertPlayed(self.slice(""), **without)
        self.assertRefused(self.slice("arm64e"), "only code that signs its pointers (arm64e), and this processor cannot",
                           **without)
        self.assertRefused(self.slice(""), "signs its pointers (arm64e), and this processor cannot",
                           "--slice", "arm64e", **without)

    def test_another_processor(self):
        data = self.slice("arm64")
        struct.pack_into("<II", data, 4, 0x01000007, 3)
        self.assertRefused(data, "has no code for arm64 or arm64e, only for: x86_64")

    def test_arm64e_of_before(self):
        data = self.slice("arm64e")
        struct.pack_into("<I", data, 8, 2)
        self.assertRefused(data, "only for: arm64e.old")

    def test_missing_function(self):
        data = replaced(self.slice("arm64"), b"\0_sel_registerName\0", b"\0_sel_registerFame\0")
        self.assertRefused(data, "needs _sel_registerFame of /usr/lib/libobjc.A.dylib, which the simulator does not have")

    def test_missing_library(self):
        data = replaced(self.slice("arm64"), b"/usr/lib/libobjc.A.dylib", b"/usr/lib/libother.dylib\0")
        self.assertRefused(data, "needs the library /usr/lib/libother.dylib, which the simulator does not have")

    def test_missing_weak_library(self):
        data = replaced(self.slice("arm64"), b"/Cephei.framework/Cephei", b"/Cephex.framework/Cephex")
        played = self.play(data)
        self.assertEqual(played.status, 0, played.text)

    def test_encrypted(self):
        self.assertRefused(self.with_command("arm64", 0x2C, 16, 1), "is encrypted")

    def test_old_fixups(self):
        self.assertRefused(self.with_command("arm64", 0x80000022, 8, 0), "has fixups of the old kind")

    def test_damaged(self):
        data = self.slice("arm64")
        for size in (20, 500, 40000, len(data) - 2000):
            with self.subTest(size):
                self.assertRefused(data[:size], "is damaged: ")

    def test_both_kinds_at_once(self):
        plain = self.folder / "plain.dylib"
        plain.write_bytes(self.slice("arm64"))
        self.assertRefused(self.slice("arm64e"), "signs no pointers (arm64), and another extension does (arm64e)",
                           "--tweak", plain)

    def with_command(self, name, kind, offset, value):
        """With the load command that identifies the slice made one of that kind, and a word of it."""
        data = self.slice(name)
        place = next(place for each, place in case.commands(data) if each == 0x1B)
        struct.pack_into("<I", data, place, kind)
        struct.pack_into("<I", data, place + offset, value)
        return data


if __name__ == "__main__":
    import unittest
    unittest.main()
