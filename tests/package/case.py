"""What the tests share: the built package, damaged copies of it, and two assertions."""

import copy
import gzip
import lzma
import os
import pathlib
import tempfile
import unittest

from package import ar, check, deb, tar

GOOD = pathlib.Path(os.environ["PACKAGE"])
GOOD_PACKAGE = deb.read(GOOD)
CONTROL = os.environ["CONTROL"]
APPLICATION_SUPPORT = "./var/jb/Library/Application Support"
BUNDLE = f"{APPLICATION_SUPPORT}/Dozewell2Bundle.bundle"
INJECTED = "./var/jb/Library/MobileSubstrate/DynamicLibraries"


class PackageCase(unittest.TestCase):
    """`self.package` is the built one, to be changed; files live until the test ends."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.package = copy.deepcopy(GOOD_PACKAGE)

    def passes(self, name, *arguments, path=GOOD):
        self.assertEqual(list(check.failures(name, [path, *arguments])), [])

    def fails(self, text, name, *arguments, path=None):
        """One of the failures must contain `text`."""
        found = list(check.failures(name, [path or self.written(), *arguments]))
        self.assertTrue(any(text in failure for failure in found), f"{text!r} not in {found}")

    def member(self, name):
        return next(member for member in self.package.members if member.name == name)

    def entry(self, name):
        entries = self.package.control + self.package.data
        return next(entry for entry in entries if entry.name == name)

    def replace_in_control(self, old, new):
        entry = self.entry("./control")
        self.assertIn(old, entry.data)
        entry.data = entry.data.replace(old, new)

    def written(self, name=GOOD.name):
        """The package as it is now, compressed in haste."""
        self.member(deb.CONTROL).data = gzip.compress(tar.write(self.package.control), mtime=0)
        self.member(deb.DATA).data = lzma.compress(tar.write(self.package.data), preset=0)
        return self.written_members(name)

    def written_members(self, name=GOOD.name):
        return self.written_bytes(ar.write(self.package.members), name)

    def written_bytes(self, data, name=GOOD.name):
        path = self.folder / name
        path.write_bytes(data)
        return path
