from case import CLEAN, CheckCase, sample

PLAIN = sample("clean", "arm64", "Dozewell2.dylib")


class Instructions(CheckCase):
    def test_each_slice_in_its_place(self):
        self.passes("instructions", CLEAN, "arm64e")
        self.passes("instructions", PLAIN, "arm64")

    def test_each_slice_in_the_place_of_the_other(self):
        self.fails("the code is not arm64e", "instructions", PLAIN, "arm64e")
        self.fails("sign or authenticate pointers", "instructions", CLEAN, "arm64")
