"""Whoever shows the extension's settings shows all of them, as what they are.

SOURCES is the top of the repository: the extension's list is tweak/settings/Settings.def, the page's
is simulator/serve/settings.json, which has no defaults: the page asks the phone for them."""

import json
import os
import pathlib
import re
import unittest

TOP = pathlib.Path(os.environ["SOURCES"])
LINE = re.compile(r"^SETTING\((\d+), (\w+), (\w+), ([^)]+)\)", re.MULTILINE)
TYPES = {"bool": "bool", "long": "integer", "double": "real", "NSString": "text"}


def value(text):
    return {"true": True, "false": False, "nullptr": None}[text] if text.isalpha() else json.loads(text)


class Settings(unittest.TestCase):
    def setUp(self):
        text = (TOP / "tweak/settings/Settings.def").read_text(encoding="utf-8")
        self.list = {name: (int(number), TYPES[of], value(otherwise))
                     for number, of, name, otherwise in LINE.findall(text)}
        self.assertEqual(text.count("\nSETTING("), len(self.list), "a line that this test cannot read")
        self.page = json.loads((TOP / "simulator/serve/settings.json").read_text(encoding="utf-8"))

    def test_are_registered_one_after_the_other(self):
        self.assertEqual(list(range(1, 25)), sorted(number for number, _, _ in self.list.values()))

    def test_are_all_on_the_page_once_and_no_others(self):
        self.assertEqual(sorted(self.list), sorted(setting["key"] for setting in self.page))

    def test_have_the_same_type_on_the_page(self):
        self.assertEqual({name: of for name, (_, of, _) in self.list.items()},
                         {setting["key"]: setting["type"] for setting in self.page})

    def test_can_be_set_to_their_defaults_on_the_page(self):
        for setting in self.page:
            otherwise = self.list[setting["key"]][2]
            with self.subTest(setting["key"]):
                if "choices" in setting:
                    self.assertIn(otherwise, [choice["value"] for choice in setting["choices"]])
                if "min" in setting:
                    self.assertLessEqual(setting["min"], otherwise)
                    self.assertGreaterEqual(setting["max"], otherwise)
                    self.assertEqual(0, (otherwise - setting["min"]) % setting["step"])


if __name__ == "__main__":
    unittest.main()
