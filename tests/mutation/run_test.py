"""The whole tool over a small library of its own: strong scripts, weak ones, and the list.

usage: run_test.py BUILD LIBRARY
"""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
SAMPLE = HERE / "sample"
EQUIVALENT = ("tests/mutation/sample/Sample.cpp | keepLater | swap | "
              "dispatch::onMain([value] { keep(value); }) <-> keep(9)")
SWAPPED = "tests/mutation/sample/Sample.cpp | keepTwo | swap | keep(1) <-> keep(2)"


def run(scripts, listed, *options):
    done = subprocess.run([sys.executable, HERE / "run.py", "--build", BUILD, "--library", LIBRARY,
                           "--subject", "tests/mutation/sample", "--scripts", SAMPLE / scripts,
                           "--no-model", "--survivors", listed, *options],
                          text=True, capture_output=True)
    return done.returncode, done.stdout + done.stderr


class Run(unittest.TestCase):
    def listed(self, *names):
        file = tempfile.NamedTemporaryFile("w", suffix=".txt")
        self.addCleanup(file.close)
        file.write("".join(f"{name}\n    Because.\n" for name in names))
        file.flush()
        return file.name

    def test_strong_scripts_notice_all_but_the_equivalent(self):
        status, output = run("strong", SAMPLE / "survivors.txt")
        self.assertEqual(status, 0, output)
        self.assertIn(" 1 survived (1 of them listed)", output)
        verdicts = re.search(r"(\d+) noticed", output)
        self.assertGreater(int(verdicts[1]), 15, output)
        self.assertNotIn("SURVIVED", output)

    def test_header_is_changed_too(self):
        _, output = run("strong", SAMPLE / "survivors.txt", "--file", "Sample.h")
        self.assertRegex(output, r"tests/mutation/sample/Sample\.h +[1-9]\d* +0  100\.0 %")

    def test_weak_script_leaves_survivors_with_their_diffs(self):
        status, output = run("weak", self.listed())
        self.assertEqual(status, 1, output)
        self.assertIn(f"SURVIVED: {SWAPPED}", output)
        self.assertIn("+  keep(2);\n   keep(1);\n-  keep(2);\n", output)

    def test_what_no_script_executes_survives(self):
        _, output = run("weak", self.listed(), "--match", "| capped |")
        self.assertRegex(output, r"\n\d+ mutants: 0 noticed")

    def test_survivor_that_is_not_listed_fails(self):
        status, output = run("strong", self.listed(), "--match", EQUIVALENT)
        self.assertEqual(status, 1, output)
        self.assertIn(f"SURVIVED: {EQUIVALENT}", output)

    def test_listed_but_noticed_fails(self):
        status, output = run("strong", self.listed(EQUIVALENT, SWAPPED), "--match", "keepTwo")
        self.assertEqual(status, 1, output)
        self.assertIn(f"Listed, but noticed (or the same machine code): {SWAPPED}", output)

    def test_listed_but_gone_fails(self):
        gone = "tests/mutation/sample/Sample.cpp | gone | swap | one() <-> two()"
        status, output = run("strong", self.listed(EQUIVALENT, gone), "--match", EQUIVALENT)
        self.assertEqual(status, 1, output)
        self.assertIn(f"Listed, but there is no such mutant: {gone}", output)

    def test_score_below_the_wanted_fails(self):
        status, output = run("strong", SAMPLE / "survivors.txt", "--at-least", "99")
        self.assertEqual(status, 1, output)
        self.assertEqual(run("strong", SAMPLE / "survivors.txt", "--at-least", "80")[0], 0)

    def test_script_that_fails_without_mutant_fails(self):
        with tempfile.TemporaryDirectory() as folder:
            pathlib.Path(folder, "wrong.phone").write_text("boot\nexpect-no-class NSObject\n")
            status, output = run(folder, self.listed(), "--match", SWAPPED)
        self.assertEqual(status, 1, output)
        self.assertIn("wrong fails without any mutant", output)

    def test_reason_is_required(self):
        file = self.listed()
        pathlib.Path(file).write_text(EQUIVALENT + "\n")
        status, output = run("strong", file)
        self.assertEqual(status, 1, output)
        self.assertIn("has no reason", output)


if __name__ == "__main__":
    BUILD, LIBRARY = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
