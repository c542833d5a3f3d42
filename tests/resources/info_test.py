"""The bundle says what it is."""

import os
import plistlib
import unittest

BUNDLE = os.environ["BUNDLE"]


class Info(unittest.TestCase):
    def setUp(self):
        with open(os.path.join(BUNDLE, "Info.plist"), "rb") as file:
            self.info = plistlib.load(file)

    def test_names_the_bundle(self):
        self.assertEqual(self.info["CFBundleIdentifier"], "com.corvane.dozewell2.bundle")
        self.assertEqual(self.info["CFBundleName"], "Dozewell2Bundle")
        self.assertEqual(self.info["CFBundlePackageType"], "BNDL")
        self.assertEqual(self.info["CFBundleInfoDictionaryVersion"], "6.0")

    def test_has_the_version_of_the_project(self):
        version = os.environ["VERSION"]
        self.assertEqual(self.info["CFBundleShortVersionString"], version)
        self.assertEqual(self.info["CFBundleVersion"], version)

    def test_falls_back_on_a_language_that_is_there(self):
        self.assertEqual(self.info["CFBundleDevelopmentRegion"], "en")
        self.assertIn("en", self.info["CFBundleLocalizations"])

    def test_holds_no_program(self):
        self.assertNotIn("CFBundleExecutable", self.info)

    def test_is_a_flat_bundle(self):
        # Folders of these names would make the platform look for another layout.
        names = {name.lower() for name in os.listdir(BUNDLE)}
        self.assertFalse(names & {"resources", "contents", "support files"})
