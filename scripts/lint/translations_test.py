#!/usr/bin/env python3
"""What translations.py finds in a small page."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("translations.py")
PAGE = '<html><body><p data-say>Hello</p><b translate="no">Name</b></body></html>'
SCRIPT = '''import { say, sayCount } from "./ui/language.js";
say("Go {how}", { how });
sayCount("One.", "{count} are left.", n);
this.say(x);
'''
FORMS = {
    "ar": ["zero", "one", "two", "few", "many", "other"],
    "de": ["one", "other"],
    "ja": ["other"],
}


def table(language):
    forms = {form: "{count}" for form in FORMS[language]}
    return {"Hello": "…", "Go {how}": "{how}", "{count} are left.": forms}


def check(page=PAGE, script=SCRIPT, changed=lambda german: None):
    """What is found, with the German table changed."""
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "languages").mkdir()
        (folder / "index.html").write_text(page)
        (folder / "some.js").write_text(script)
        for language in FORMS:
            content = table(language)
            if language == "de":
                changed(content)
            (folder / "languages" / f"{language}.json").write_text(json.dumps(content))
        done = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
        return done.returncode, done.stdout


class Translations(unittest.TestCase):
    def finds(self, what, **changes):
        code, said = check(**changes)
        self.assertIn(what, said)
        self.assertEqual(code, 1)

    def test_complete_tables_pass(self):
        self.assertEqual(check(), (0, ""))

    def test_a_text_without_translation(self):
        self.finds("de: no translation of 'Hello'", changed=lambda german: german.pop("Hello"))

    def test_a_translation_that_nothing_says(self):
        self.finds("de: nothing says 'Bye'", changed=lambda german: german.update(Bye="Ade"))

    def test_other_places(self):
        self.finds("different places", changed=lambda german: german.update({"Go {how}": "Geh"}))

    def test_missing_plural_forms(self):
        wrong = {"{count} are left.": {"other": "{count}"}}
        self.finds("wants one, other", changed=lambda german: german.update(wrong))

    def test_plural_forms_where_none_belong(self):
        self.finds("wants one text", changed=lambda german: german.update(Hello={"other": "Hallo"}))

    def test_a_text_of_the_page_that_is_not_marked(self):
        self.finds("text of <i> without data-say: Ho", page=PAGE.replace("<b", "<i>Ho</i><b"))

    def test_a_text_that_is_computed(self):
        self.finds("some.js:5: say() without a literal", script=SCRIPT + "say(text);")


if __name__ == "__main__":
    unittest.main()
