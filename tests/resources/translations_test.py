"""The texts of the bundle are complete, well-formed and fit their places."""

import glob
import os
import plistlib
import unicodedata
import unittest

from strings import read_strings

BUNDLE = os.environ["BUNDLE"]

# The widest text, in widths of a Latin letter, that fits the place at the smallest phone's width.
WIDTHS = {
    "1_SONG": 28,
    "N_SONG": 28,
    "SONG": 12,
    "SONGS": 12,
    "HOURS": 12,
    "MINUTES": 12,
    "YOUR_MUSIC_WILL_STOP_IN": 32,
    "BACK": 14,
    "CONFIRM": 14,
    "CANCEL": 14,
    "ON_TIMER_START": 28,
    "ON_TIMER_END": 28,
}

# What the names of a language's letters begin with; Latin where nothing is said.
SCRIPTS = {
    "ar": ["ARABIC"],
    "he": ["HEBREW"],
    "hi": ["DEVANAGARI"],
    "ja": ["CJK", "HIRAGANA", "KATAKANA"],
    "ko": ["HANGUL"],
    "ru": ["CYRILLIC"],
    "uk": ["CYRILLIC"],
    "zh-Hans": ["CJK"],
    "zh-Hant": ["CJK"],
}


def tables():
    """(language, texts) of every table in the bundle."""
    for path in sorted(glob.glob(os.path.join(glob.escape(BUNDLE), "*.lproj", "Localizable.strings"))):
        with open(path, encoding="utf-8") as file:
            yield os.path.basename(os.path.dirname(path))[: -len(".lproj")], read_strings(file.read())


def width(text):
    """Wide characters count twice, combining ones not at all."""
    columns = {"W": 2, "F": 2}
    return sum(
        columns.get(unicodedata.east_asian_width(character), 1)
        for character in text
        if not unicodedata.category(character).startswith("M")
    )


class Translations(unittest.TestCase):
    def for_each(self, check):
        for language, texts in tables():
            for key, text in texts.items():
                with self.subTest(language=language, key=key):
                    check(language, key, text)

    def test_are_those_that_the_bundle_promises(self):
        with open(os.path.join(BUNDLE, "Info.plist"), "rb") as file:
            promised = plistlib.load(file)["CFBundleLocalizations"]
        self.assertEqual([language for language, _ in tables()], sorted(promised))
        self.assertEqual(len(promised), 20)

    def test_have_every_key_and_no_other(self):
        for language, texts in tables():
            with self.subTest(language=language):
                self.assertEqual(sorted(texts), sorted(WIDTHS))

    def test_have_one_placeholder_where_the_number_goes(self):
        def check(_language, key, text):
            self.assertEqual(text.count("%@"), 1 if key == "N_SONG" else 0)
            self.assertEqual(text.count("%"), text.count("%@"))

        self.for_each(check)

    def test_have_words_and_no_space_around_them(self):
        def check(_language, _key, text):
            self.assertTrue(any(character.isalpha() for character in text.replace("%@", "")))
            self.assertEqual(text, text.strip())
            self.assertTrue(all(character.isprintable() for character in text))

        self.for_each(check)

    def test_fit_their_places(self):
        def check(_language, key, text):
            self.assertLessEqual(width(text), WIDTHS[key])

        self.for_each(check)

    def test_are_written_in_the_script_of_their_language(self):
        def check(language, _key, text):
            scripts = tuple(SCRIPTS.get(language, ["LATIN"]))
            letters = [unicodedata.name(character) for character in text if character.isalpha()]
            self.assertTrue(all(name.startswith(scripts) or name.endswith("SOUND MARK")
                                for name in letters), letters)

        self.for_each(check)

    def test_are_composed(self):
        # Decomposed letters look the same and are found by no search.
        def check(_language, _key, text):
            self.assertEqual(text, unicodedata.normalize("NFC", text))

        self.for_each(check)

    def test_differ_between_languages(self):
        seen = {}
        for language, texts in tables():
            self.assertIsNone(seen.get(tuple(texts.values())), language)
            seen[tuple(texts.values())] = language
