"""Whoever shows the extension's settings shows all of them, as what the extension registers: the pane
on the phone, the simulator's page, and the documentation.

PANE is the pane's folder as it is installed, PAGE the generated source with the page's settings,
DOCS and CURRENT_DOCS the page of the documentation as it is and as it would be written now."""

import json
import os
import pathlib
import plistlib
import re
import unittest

from registration import registered

PANE = pathlib.Path(os.environ["PANE"])
CELLS = {"bool": "PSSwitchCell", "integer": "PSLinkListCell", "real": "PSLinkListCell",
         "text": "PSEditTextCell"}
PYTHON = {"bool": bool, "integer": int, "real": float}


def page():
    source = pathlib.Path(os.environ["PAGE"]).read_text(encoding="utf-8")
    return json.loads(re.search(r'R"json\((.*)\)json"', source, re.DOTALL)[1])


class Settings(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.registered = registered()
        plist = plistlib.loads((PANE / "Dozewell2.plist").read_bytes())
        cls.pane = [item for item in plist["items"] if item["cell"] != "PSGroupCell"]
        cls.page = page()

    def test_are_registered(self):
        self.assertEqual(24, len(self.registered))

    def test_are_all_shown_once_and_no_others(self):
        self.assertEqual(sorted(self.registered), sorted(item["key"] for item in self.pane))
        self.assertEqual(sorted(self.registered), sorted(setting["key"] for setting in self.page))

    def test_have_their_defaults_in_the_pane(self):
        self.assertEqual({key: default for key, (_, default) in self.registered.items()},
                         {item["key"]: item.get("default") for item in self.pane})

    def test_have_cells_of_their_types_in_the_pane(self):
        self.assertEqual({key: CELLS[of] for key, (of, _) in self.registered.items()},
                         {item["key"]: item["cell"] for item in self.pane})

    def test_are_stored_as_their_types(self):
        for item in self.pane:
            of = self.registered[item["key"]][0]
            for value in item.get("validValues", []) + [item.get("default")]:
                with self.subTest(item["key"], value=value):
                    if of in PYTHON and value is not None:
                        self.assertIs(PYTHON[of], type(value))

    def test_can_be_set_to_their_defaults_in_the_pane(self):
        for item in self.pane:
            with self.subTest(item["key"]):
                if "validValues" in item:
                    self.assertIn(item["default"], item["validValues"])

    def test_have_the_same_type_on_the_page(self):
        self.assertEqual({key: of for key, (of, _) in self.registered.items()},
                         {setting["key"]: setting["type"] for setting in self.page})

    def test_can_be_set_to_their_defaults_on_the_page(self):
        for setting in self.page:
            default = self.registered[setting["key"]][1]
            with self.subTest(setting["key"]):
                if "choices" in setting:
                    self.assertIn(default, [choice["value"] for choice in setting["choices"]])
                if "min" in setting:
                    self.assertLessEqual(setting["min"], default)
                    self.assertGreaterEqual(setting["max"], default)
                    self.assertEqual(0, (default - setting["min"]) % setting["step"])

    def test_can_be_set_on_the_page_to_whatever_the_pane_offers(self):
        ranges = {setting["key"]: setting for setting in self.page if "min" in setting}
        for item in self.pane:
            if item["key"] in ranges:
                field = ranges[item["key"]]
                for value in item["validValues"]:
                    with self.subTest(item["key"], value=value):
                        self.assertTrue(field["min"] <= value <= field["max"])
                        self.assertEqual(0, (value - field["min"]) % field["step"])

    def test_are_all_documented_by_the_page_that_the_build_writes(self):
        docs = pathlib.Path(os.environ["DOCS"]).read_text(encoding="utf-8")
        current = pathlib.Path(os.environ["CURRENT_DOCS"]).read_text(encoding="utf-8")
        self.assertEqual(current, docs, "build the target settings-docs and commit docs/settings.md")
        for key, (of, _) in self.registered.items():
            self.assertEqual(1, len(re.findall(rf"^\| [^|]+ \| `{key}` \| {of} \|", docs, re.MULTILINE)))


if __name__ == "__main__":
    unittest.main()
