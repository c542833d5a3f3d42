"""Numbers take the unit's form that their language asks for, and its digits."""

import unittest

from amounts import amount
from make import languages


class Amounts(unittest.TestCase):
    def setUp(self):
        self.languages = languages()

    def expect(self, language, unit, expected):
        words = self.languages[language]
        self.assertEqual(expected, {value: amount(value, unit, words) for value in expected})

    def test_in_english(self):
        self.expect("en", "minutes", {1: "1 minute", 60: "1 hour", 90: "1 hour 30 minutes"})
        self.expect("en", "seconds", {0.5: "0.5 seconds", 1.0: "1 second", 1.5: "1.5 seconds"})
        self.expect("en", "percent", {0: "0%", 100: "100%"})

    def test_in_german_have_a_comma_and_a_space_that_does_not_break(self):
        self.expect("de", "seconds", {0.5: "0,5 Sekunden", 1.0: "1 Sekunde"})
        self.expect("de", "percent", {15: "15\u00a0%"})

    def test_below_two_are_singular_in_french(self):
        self.expect("fr", "seconds", {0.5: "0,5 seconde", 1.5: "1,5 seconde", 2: "2 secondes"})

    def test_in_arabic_have_its_digits_and_a_dual(self):
        self.expect("ar", "minutes", {2: "دقيقتان", 5: "٥ دقائق", 11: "١١ دقيقة", 20: "٢٠ دقيقة"})
        self.expect("ar", "seconds", {0.5: "٠٫٥ ثانية", 3.0: "٣ ثوانٍ"})
        self.expect("ar", "percent", {100: "١٠٠٪"})

    def test_in_hebrew_have_a_dual(self):
        self.expect("he", "songs", {1: "שיר אחד", 2: "שני שירים", 3: "3 שירים"})

    def test_in_polish_change_from_five_on(self):
        self.expect("pl", "songs", {1: "1 utwór", 4: "4 utwory", 5: "5 utworów", 12: "12 utworów",
                                    22: "22 utwory"})
        self.expect("pl", "seconds", {0.5: "0,5 sekundy"})

    def test_in_russian_go_by_their_last_digit(self):
        self.expect("ru", "songs", {1: "1 песня", 3: "3 песни", 11: "11 песен", 21: "21 песня",
                                    12: "12 песен"})
        self.expect("ru", "seconds", {1.5: "1,5 секунды"})

    def test_stand_behind_their_sign_in_turkish(self):
        self.expect("tr", "percent", {15: "%15"})


if __name__ == "__main__":
    unittest.main()
