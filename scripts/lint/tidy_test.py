#!/usr/bin/env python3
"""usage: tidy_test.py FOLDER

Whether clang-tidy still finds mistakes the way that tidy.py runs it: several sources as one, and
the checks kept out of the system's headers. FOLDER is for what it writes."""

import json
import pathlib
import re
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
import tidy

SAMPLES = tidy.ROOT / "scripts/lint/tidy"
FLAGS = ["-std=c++20"]
MISTAKES = {
    "bugprone-integer-division",
    "bugprone-use-after-move",
    "clang-analyzer-core.NullDereference",
    "clang-analyzer-cplusplus.Move",
    "misc-unused-using-decls",
    "performance-unnecessary-value-param",
}


class TidyTest(unittest.TestCase):
    def setUp(self):
        folder = pathlib.Path(sys.argv[1])
        folder.mkdir(parents=True, exist_ok=True)
        self.tidy = tidy.Tidy(folder)

    def found(self, unit):
        """Files and checks."""
        result = self.tidy.run(unit, FLAGS)
        return set(re.findall(r"(\w+\.\w+):\d+:\d+: error: .*\[([a-zA-Z.-]+)", result.stdout))

    def test_finds_mistakes_of_every_kind(self):
        found = self.found([SAMPLES / "Careless.cpp"])
        self.assertEqual({mistake for _, mistake in found}, MISTAKES)
        self.assertIn(("Careless.h", "performance-unnecessary-value-param"), found)

    def test_finds_them_among_other_sources(self):
        found = self.found([SAMPLES / "Careful.cpp", SAMPLES / "Careless.cpp"])
        self.assertEqual({mistake for _, mistake in found}, MISTAKES)

    def test_knows_the_sources_that_the_build_joins(self):
        with tempfile.TemporaryDirectory() as folder:
            build = pathlib.Path(folder)
            (build / "Unity").mkdir()
            unit = build / "Unity/unit.cxx"
            twins = [tidy.ROOT / "tools/Twin.cpp", tidy.ROOT / "tools/OtherTwin.cpp"]
            unit.write_text("".join(f'/* NOLINT */\n#include "{twin}"\n' for twin in twins))
            (build / "compile_commands.json").write_text(json.dumps(
                [{"file": str(unit), "command": f"g++ -g1 -o unit.o -c {unit}"}]))
            self.assertEqual(tidy.sources(build), {twin: (("-g1",), "unit.o") for twin in twins})

    def test_passes_sources_that_use_the_same_name(self):
        twins = [SAMPLES / "Twin.cpp", SAMPLES / "OtherTwin.cpp"]
        self.assertNotEqual(self.tidy.run(twins, FLAGS).returncode, 0)
        self.assertTrue(self.tidy.passes(twins, FLAGS))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
