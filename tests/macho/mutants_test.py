"""Copies of the arm64e slice in which one kind of signature is wrong, or is not asked for, must not
get through a script. A wrong signature is taken for a right one once in 128 times, so all places of
a kind are changed."""

import struct

import case

NOP = 0xD503201F
IA_OF_NOTHING, IA, DA = 0xDAC123E0, 0xDAC10000, 0xDAC10800  # paciza, pacia, pacda
BR_SIGNED, BLR_SIGNED, BR, BLR = 0xD61F081F, 0xD63F081F, 0xD61F0000, 0xD63F0000
ISA_OF_BLOCKS = 0xF2ED5C20  # movk Xd, #0x6ae1, lsl #48
ONE_REGISTER, TWO_REGISTERS, SOURCE = 0xFFFFFFE0, 0xFFFFFC00, 0xFFFFFC1F


class Mutants(case.SliceCase):
    def changed(self, wanted, mask, made):
        """The slice, with every instruction of a kind changed; `made` gets its other bits."""
        data, count = self.slice("arm64e"), 0
        for place, word in list(case.words(data)):
            if word & mask == wanted:
                struct.pack_into("<I", data, place, made(word & ~mask & 0xFFFFFFFF))
                count += 1
        self.assertGreater(count, 3, "the slice has hardly any of these instructions")
        return data

    def assertNoticed(self, data, *reasons):
        """By the runtime, in these words; or by the processor: no reasons."""
        played = self.play(data, script=case.HERE / "signatures.phone")
        self.assertEqual(played.status, 1, played.text)
        if reasons:
            self.assertTrue(any(reason in played.text for reason in reasons), played.text)
        else:
            self.assertRegex(played.text, "Segmentation fault|Bus error|Illegal instruction")

    def test_nothing_wrong(self):
        self.assertPlayed(self.slice("arm64e"), script=case.HERE / "signatures.phone")

    def test_implementations_are_not_signed(self):
        self.assertNoticed(self.changed(IA_OF_NOTHING, ONE_REGISTER, lambda rest: NOP),
                           "is not signed as it must be")

    def test_implementations_are_signed_with_another_key(self):
        self.assertNoticed(self.changed(IA_OF_NOTHING, ONE_REGISTER, lambda rest: IA_OF_NOTHING | 0x400 | rest),
                           "is not signed as it must be")

    def test_blocks_functions_are_not_signed(self):
        self.assertNoticed(self.changed(IA, TWO_REGISTERS, lambda rest: NOP),
                           "a block's function is not signed as it must be")

    def test_blocks_functions_are_signed_without_their_place(self):
        self.assertNoticed(self.changed(IA, TWO_REGISTERS, lambda rest: IA_OF_NOTHING | rest & 31),
                           "a block's function is not signed as it must be")

    def test_blocks_functions_are_signed_with_another_key(self):
        self.assertNoticed(self.changed(IA, TWO_REGISTERS, lambda rest: IA | 0x400 | rest),
                           "a block's function is not signed as it must be")

    def test_blocks_classes_are_not_signed(self):
        self.assertNoticed(self.changed(DA, TWO_REGISTERS, lambda rest: NOP),
                           "the isa of an object or a block is not signed as it must be")

    def test_blocks_classes_are_signed_with_another_key(self):
        self.assertNoticed(self.changed(DA, TWO_REGISTERS, lambda rest: DA | 0x400 | rest),
                           "the isa of an object or a block is not signed as it must be")

    def test_blocks_classes_have_another_discriminator(self):
        self.assertNoticed(self.changed(ISA_OF_BLOCKS, ONE_REGISTER, lambda rest: ISA_OF_BLOCKS + 0x20 | rest),
                           "the isa of an object or a block is not signed as it must be")

    def test_calls_do_not_authenticate(self):
        self.assertNoticed(self.changed(BLR_SIGNED, SOURCE, lambda rest: BLR | rest))

    def test_jumps_do_not_authenticate(self):
        self.assertNoticed(self.changed(BR_SIGNED, SOURCE, lambda rest: BR | rest))

    def test_returns_do_not_authenticate(self):
        retab, ret = 0xD65F0FFF, 0xD65F03C0
        self.assertNoticed(self.changed(retab, 0xFFFFFFFF, lambda rest: ret))


if __name__ == "__main__":
    import unittest
    unittest.main()
