"""What the tests of the checks share: the samples, damaged copies, and two assertions."""

import os
import struct
import tempfile
import unittest

import check

SOURCE = os.path.dirname(os.path.abspath(__file__))
EXPORTS = os.path.join(SOURCE, "samples", "exports.txt")
LIBRARIES = os.path.join(os.path.dirname(check.__file__), "libraries.txt")
ALLOWED_IMPORTS = os.path.join(os.path.dirname(check.__file__), "imports.txt")


def sample(*parts):
    return os.path.join(os.environ["DEVICE_SAMPLES"], *parts)


CLEAN = sample("clean", "Dozewell2.dylib")


class CheckCase(unittest.TestCase):
    """The damaged copy lives until the test ends."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self._copy = os.path.join(folder.name, "Dozewell2.dylib")

    def passes(self, name, *arguments):
        self.assertEqual(list(check.failures(name, arguments)), [])

    def fails(self, text, name, *arguments):
        """One of the failures must contain `text`."""
        found = list(check.failures(name, arguments))
        self.assertTrue(any(text in failure for failure in found), f"{text!r} not in {found}")

    def damaged(self, *changes, path=CLEAN):
        """A copy of the file with each (offset, struct format, values...) written over it."""
        with open(path, "rb") as file:
            data = bytearray(file.read())
        for offset, layout, *values in changes:
            struct.pack_into(layout, data, offset, *values)
        return self.written(data)

    def written(self, data):
        with open(self._copy, "wb") as file:
            file.write(data)
        return self._copy
