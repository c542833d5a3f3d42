"""The pane is one that a loader of specifier plists shows, in each language of the extension's bundle.

PANE is its folder as it is installed, BUNDLE the resource bundle."""

import os
import pathlib
import plistlib
import re
import unicodedata
import unittest

from texts import read_strings

PANE = pathlib.Path(os.environ["PANE"])
BUNDLE = pathlib.Path(os.environ["BUNDLE"])
INSTALLED = "/var/jb/Library/PreferenceLoader/Preferences/Dozewell2"
# Those of names stay as they are.
NAMES = ("Dozewell", "Runwright", "respring", "Bluetooth", "App", "Start", "End")


def languages(folder):
    return sorted(path.stem for path in folder.glob("*.lproj"))


def width(text):
    """In Latin letters. Wide characters count twice, combining ones not at all."""
    columns = {"W": 2, "F": 2}
    return sum(columns.get(unicodedata.east_asian_width(character), 1)
               for character in text if not unicodedata.category(character).startswith("M"))


def tables():
    return {name: read_strings(PANE / f"{name}.lproj/Localizable.strings") for name in languages(PANE)}


def shown(plist):
    """Every text that the pane shows."""
    yield plist["title"]
    for item in plist["items"]:
        yield from (item[key] for key in ("label", "footerText", "placeholder") if key in item)
        yield from item.get("validTitles", [])


class Pane(unittest.TestCase):
    def setUp(self):
        self.plist = plistlib.loads((PANE / "Dozewell2.plist").read_bytes())

    def test_is_found_by_its_label(self):
        entry = self.plist["entry"]
        self.assertEqual("PSLinkCell", entry["cell"])
        self.assertEqual("Dozewell2", entry["label"])
        self.assertEqual({"Dozewell2.plist"}, {path.name for path in PANE.rglob("*.plist")})

    def test_needs_no_code(self):
        for key in ("bundle", "isController", "detail"):
            self.assertNotIn(key, self.plist["entry"])

    def test_names_a_folder_that_can_be_read(self):
        self.assertEqual(INSTALLED, self.plist["entry"]["bundlePath"])
        self.assertTrue(str(PANE).endswith(INSTALLED))

    def test_has_its_icon_in_three_sizes(self):
        self.assertEqual("Dozewell2.png", self.plist["entry"]["icon"])
        for name, pixels in (("", 29), ("@2x", 58), ("@3x", 87)):
            image = (PANE / f"Dozewell2{name}.png").read_bytes()
            self.assertEqual(pixels.to_bytes(4, "big") * 2, image[16:24])

    def test_tells_the_extension_of_every_change(self):
        for item in self.plist["items"]:
            if item["cell"] != "PSGroupCell":
                with self.subTest(item["key"]):
                    self.assertEqual("com.corvane.dozewell2", item["defaults"])
                    self.assertEqual("com.corvane.dozewell2/ReloadPrefs", item["PostNotification"])

    def test_names_every_value_of_a_list_once(self):
        for item in self.plist["items"]:
            if item["cell"] == "PSLinkListCell":
                with self.subTest(item["key"]):
                    self.assertEqual("PSListItemsController", item["detail"])
                    self.assertEqual(len(item["validTitles"]), len(item["validValues"]))
                    self.assertEqual(len(item["validTitles"]), len(set(item["validTitles"])))

    def test_offers_steps_that_an_hour_has_whole(self):
        steps = [item for item in self.plist["items"] if item.get("key") == "timerMinutesSteps"]
        self.assertEqual([], [step for step in steps[0]["validValues"] if 60 % step != 0])

    def test_leaves_the_name_of_a_device_as_it_is_typed(self):
        for item in self.plist["items"]:
            if item["cell"] == "PSEditTextCell":
                self.assertTrue(item["noAutoCorrect"])

    def test_explains_every_group(self):
        for item in self.plist["items"]:
            if item["cell"] == "PSGroupCell":
                self.assertTrue(item["label"] and item["footerText"])


class Translations(unittest.TestCase):
    def setUp(self):
        self.tables = tables()

    def test_are_those_of_the_bundle(self):
        self.assertEqual(languages(BUNDLE), languages(PANE))
        self.assertEqual(20, len(self.tables))

    def test_have_every_text_of_the_pane_and_no_other(self):
        plist = plistlib.loads((PANE / "Dozewell2.plist").read_bytes())
        texts = sorted(set(shown(plist)))
        for language, table in self.tables.items():
            with self.subTest(language):
                self.assertEqual(texts, sorted(table))

    def test_say_in_english_what_the_pane_says(self):
        self.assertEqual([], [key for key, text in self.tables["en"].items() if key != text])

    def test_are_words_without_space_around_them_and_composed(self):
        for language, table in self.tables.items():
            for key, text in table.items():
                with self.subTest(language, key=key):
                    self.assertTrue(text)
                    self.assertEqual(text, text.strip())
                    self.assertEqual(text, unicodedata.normalize("NFC", text))
                    self.assertNotIn("%@", text)

    def test_of_sentences_are_translated(self):
        for language, table in self.tables.items():
            for key, text in table.items():
                if language != "en" and key.endswith("."):
                    with self.subTest(language, key=key):
                        self.assertNotEqual(key, text)

    def test_of_amounts_have_no_more_numbers_than_in_english(self):
        plist = plistlib.loads((PANE / "Dozewell2.plist").read_bytes())
        titles = {title for item in plist["items"] for title in item.get("validTitles", [])
                  if title[0].isdigit()}
        for language, table in self.tables.items():
            for title in titles:
                with self.subTest(language, title=title):
                    number = re.compile(r"\d+(?:[.,\u066b]\d+)?")
                    self.assertLessEqual(len(number.findall(table[title])), len(number.findall(title)))

    def test_of_values_differ_within_a_list(self):
        plist = plistlib.loads((PANE / "Dozewell2.plist").read_bytes())
        for language, table in self.tables.items():
            for item in plist["items"]:
                titles = [table[title] for title in item.get("validTitles", [])]
                with self.subTest(language, key=item.get("key")):
                    self.assertEqual(len(titles), len(set(titles)))

    def test_fit_their_rows_on_the_smallest_phone(self):
        plist = plistlib.loads((PANE / "Dozewell2.plist").read_bytes())
        for language, table in self.tables.items():
            for item in plist["items"]:
                with self.subTest(language, label=item["label"]):
                    values = [width(table[title]) for title in item.get("validTitles", [])]
                    self.assertLessEqual(width(table[item["label"]]) + max(values, default=6), 40)

    def test_are_written_in_the_letters_of_their_language(self):
        scripts = {"ar": "ARABIC", "he": "HEBREW", "hi": "DEVANAGARI", "ru": "CYRILLIC",
                   "uk": "CYRILLIC", "ko": "HANGUL"}
        for language, script in scripts.items():
            for key, text in self.tables[language].items():
                for name in NAMES:
                    text = text.replace(name, "")
                with self.subTest(language, key=key):
                    letters = [unicodedata.name(letter) for letter in text if letter.isalpha()]
                    self.assertEqual([], [name for name in letters if not name.startswith(script)])


if __name__ == "__main__":
    unittest.main()
