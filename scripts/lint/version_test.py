#!/usr/bin/env python3
"""The comparison of versions sees each place that differs."""

import unittest

from version import complaints, project_version

FILE = "see com.corvane.dozewell2_1.2.3_iphoneos-arm64.deb\n"


class Version(unittest.TestCase):
    def found(self, text=FILE, changelog="# Changes\n\n## 1.2.3\n\n## 1.2.2\n"):
        return list(complaints("1.2.3", {"README.md": text}, changelog))

    def test_reads_the_projects(self):
        self.assertEqual(project_version("x\nproject(Dozewell VERSION 1.2.3 LANGUAGES CXX)\n"), "1.2.3")

    def test_equal_versions_pass(self):
        self.assertEqual(self.found(), [])
        self.assertEqual(self.found(changelog="## 1.2.3 (not released)\n"), [])

    def test_another_package(self):
        self.assertEqual(len(self.found(FILE.replace("1.2.3", "1.2.4"))), 1)
        self.assertEqual(len(self.found(FILE + FILE.replace("1.2.3", "1.2.30"))), 1)

    def test_no_package(self):
        self.assertIn("does not name the package's file", self.found("")[0])

    def test_changelog(self):
        for changelog in ("", "## Unreleased\n", "## 1.2.4\n\n## 1.2.3\n"):
            self.assertIn("the newest entry names", self.found(changelog=changelog)[0])


if __name__ == "__main__":
    unittest.main()
