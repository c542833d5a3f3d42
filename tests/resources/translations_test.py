"""The texts of the bundle are complete, well-formed and fit their places."""

import glob
import os
import plistlib
import re
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

# What a screen reader says; nothing has to fit.
SPOKEN = [
    "SLEEP_TIMER",
    "TIMER_ACTIONS",
    "CHOOSE_SONGS",
    "CHOOSE_DURATION",
    "SHOW_END_ACTIONS",
    "SHOW_START_ACTIONS",
    "AIRPLANE_MODE",
    "DO_NOT_DISTURB",
    "SHORTCUT",
    "CUSTOM_VOLUME",
    "BLUETOOTH",
    "PLURAL_RULE",
    "HOURS_AND_MINUTES",
    "TIME_LEFT",
    "LESS_THAN_A_MINUTE",
    "UNTIL_SONG_ENDS",
]

# The languages whose nouns follow numbers by one rule, and the forms that it asks for.
RULES = {
    "none": (["ja", "ko", "tr", "vi", "zh-Hans", "zh-Hant"], ["OTHER"]),
    "one": (["de", "en", "es", "it", "nl", "sv"], ["ONE", "OTHER"]),
    "zero-or-one": (["fr", "hi", "pt-BR"], ["ONE", "OTHER"]),
    "hebrew": (["he"], ["ONE", "TWO", "OTHER"]),
    "arabic": (["ar"], ["ONE", "TWO", "FEW", "OTHER"]),
    "polish": (["pl"], ["ONE", "FEW", "OTHER"]),
    "east-slavic": (["ru", "uk"], ["ONE", "FEW", "OTHER"]),
}
COUNTED = ["HOURS", "MINUTES", "SONGS_LEFT"]
# Their forms of one and two are words for the number, too.
NUMBERS_ARE_WORDS = ["ar", "he"]

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


def tables(name="Localizable"):
    """(language, texts) of every table of that name in the bundle."""
    for path in sorted(glob.glob(os.path.join(glob.escape(BUNDLE), "*.lproj", f"{name}.strings"))):
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


class SpokenTranslations(unittest.TestCase):
    def test_are_those_that_the_bundle_promises(self):
        self.assertEqual(
            [language for language, _ in tables("Accessibility")],
            [language for language, _ in tables()],
        )

    def test_count_by_the_rule_of_their_language(self):
        rules = {language: rule for rule, (languages, _) in RULES.items() for language in languages}
        self.assertEqual(
            {language: texts["PLURAL_RULE"] for language, texts in tables("Accessibility")}, rules
        )

    def test_have_every_key_that_their_rule_asks_for_and_no_other(self):
        for language, texts in tables("Accessibility"):
            with self.subTest(language=language):
                forms = RULES[texts["PLURAL_RULE"]][1]
                counted = [f"{key}_{form}" for key in COUNTED for form in forms]
                self.assertEqual(sorted(texts), sorted(SPOKEN + counted))

    def test_have_placeholders_where_something_goes(self):
        for language, texts in tables("Accessibility"):
            for key, text in texts.items():
                with self.subTest(language=language, key=key):
                    self.assertEqual(self.placeholders(text), self.expected(language, key), text)

    @staticmethod
    def placeholders(text):
        return sorted(re.findall(r"%\S?[$@]@?", text))

    @staticmethod
    def expected(language, key):
        base, _, form = key.rpartition("_")
        if key == "HOURS_AND_MINUTES":
            return ["%1$@", "%2$@"]
        if key == "TIME_LEFT":
            return ["%@"]
        if base not in COUNTED:
            return []
        return [] if language in NUMBERS_ARE_WORDS and form in ("ONE", "TWO") else ["%@"]

    def test_are_words_without_space_around_them(self):
        for language, texts in tables("Accessibility"):
            for key, text in texts.items():
                with self.subTest(language=language, key=key):
                    self.assertEqual(text, text.strip())
                    self.assertTrue(all(character.isprintable() for character in text))
                    self.assertEqual(text, unicodedata.normalize("NFC", text))

    def test_are_written_in_the_script_of_their_language(self):
        for language, texts in tables("Accessibility"):
            scripts = tuple(SCRIPTS.get(language, ["LATIN"]))
            for key, text in texts.items():
                if key in ("PLURAL_RULE", "BLUETOOTH"):  # a name that many languages keep
                    continue
                with self.subTest(language=language, key=key):
                    letters = [unicodedata.name(each) for each in text if each.isalpha()]
                    self.assertTrue(
                        all(name.startswith(scripts) or name.endswith("SOUND MARK") for name in letters),
                        letters,
                    )

    def test_name_every_control_differently(self):
        # Two buttons of one page must not be told alike.
        for language, texts in tables("Accessibility"):
            with self.subTest(language=language):
                labels = [texts[key] for key in SPOKEN[:11]]
                self.assertEqual(len(set(labels)), len(labels))
