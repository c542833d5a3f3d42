"""Plays scripts with changed copies of the extension's slices."""

import os
import pathlib
import struct
import subprocess
import tempfile
import unittest

HERE = pathlib.Path(__file__).parent
SLICES = pathlib.Path(os.environ["SLICES"])
EMULATOR = os.environ["EMULATOR"].split("|") if os.environ["EMULATOR"] else []
WITHOUT_SIGNATURES = ["max,pauth=off" if word.startswith("max") else word for word in EMULATOR]


class Played:
    """The end of a script: its exit status, and everything it has printed."""

    def __init__(self, status, text):
        self.status, self.text = status, text


class SliceCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def slice(self, name):
        """The bytes of the slice "arm64" or "arm64e"; of both without a name."""
        path = SLICES / name / "Dozewell2.dylib"
        self.assertTrue(path.exists(), f"{path} is not there: build the preset device first")
        return bytearray(path.read_bytes())

    def play(self, data, *options, script=HERE / "boot.phone", emulator=None):
        tweak = self.folder / "changed.dylib"
        tweak.write_bytes(data)
        done = subprocess.run(
            [*(EMULATOR if emulator is None else emulator), os.environ["SIMULATOR"], "play", "--quiet",
             "--tweak", tweak, *options, script],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace", check=False)
        return Played(done.returncode, done.stdout)

    def assertRefused(self, data, reason, *options, **others):
        played = self.play(data, *options, **others)
        self.assertEqual(played.status, 1, played.text)
        self.assertIn(reason, played.text)

    def assertPlayed(self, data, *options, **others):
        played = self.play(data, *options, **others)
        self.assertEqual(played.status, 0, played.text)


def words(data):
    """The slice's code, as (place, instruction)."""
    for name, offset, size in sections(data):
        if name == "__text":
            for place in range(offset, offset + size, 4):
                yield place, struct.unpack_from("<I", data, place)[0]


def commands(data):
    """As (kind, place)."""
    place = 32
    for _ in range(struct.unpack_from("<I", data, 16)[0]):
        kind, size = struct.unpack_from("<II", data, place)
        yield kind, place
        place += size


def sections(data):
    for kind, place in commands(data):
        if kind == 0x19:
            for index in range(struct.unpack_from("<I", data, place + 64)[0]):
                at = place + 72 + 80 * index
                name = data[at:at + 16].rstrip(b"\0").decode()
                size, offset = struct.unpack_from("<QI", data, at + 40)
                yield name, offset, size
