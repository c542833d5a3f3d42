"""Plays scripts, and random nights of the model, against a library."""

import dataclasses
import hashlib
import os
import pathlib
import re
import subprocess
import time

PATIENCE = 20  # times as long as with the right library, and some seconds: then it hangs
GRACE = 5  # seconds
NIGHTS = 30
MODEL = "model"  # stands where else a script's name does


@dataclasses.dataclass
class Test:
    name: str  # a script's, or MODEL
    path: pathlib.Path | None
    text: str
    seconds: float = 0

    @property
    def digest(self):
        return hashlib.sha256(self.text.encode()).hexdigest()[:8]


class Player:
    def __init__(self, project, simulator, package, model, scripts):
        self.project = project
        self.simulator = simulator
        self.package = package
        self.model = model
        self.tests = {}
        for path in scripts:
            self.tests[path.stem] = Test(path.stem, path, path.read_text())
        if model:
            self.tests[MODEL] = Test(MODEL, None, f"{NIGHTS} nights")

    def words(self, library, tests):
        if tests[0].name == MODEL:
            return [self.model, "--tweak", library, "--package", self.package]
        own = [self.simulator, "play", "--quiet", "--tweak", library]
        return own + (["--package", self.package] if self.package else []) + [t.path for t in tests]

    def play(self, library, tests, environment=(), patience=None):
        """(the first that notices, how), or None. All are scripts, or the one is the model."""
        surroundings = os.environ | dict(environment)
        surroundings["RC_PARAMS"] = f"seed=1 max_size=30 max_success={NIGHTS} noshrink=1"
        process = subprocess.Popen(self.words(library, tests), stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                   text=True, errors="replace", cwd=self.project.root,
                                   env=surroundings, start_new_session=True)
        try:
            _, errors = process.communicate(timeout=patience)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, 9)
            _, errors = process.communicate()
            return self.blamed(errors, tests) or tests[0], "hangs"
        if process.returncode == 0:
            return None
        how = "crashes" if process.returncode < 0 or "the phone stopped" in errors else "fails"
        return self.blamed(errors, tests) or tests[0], how

    @staticmethod
    def blamed(errors, tests):
        """The first script that an error names."""
        names = {test.path and test.path.name: test for test in tests}
        for name in re.findall(r"([\w.-]+\.phone)\b", errors):
            if name in names:
                return names[name]
        return None

    def noticed(self, library, tests):
        """Plays until one notices; (it, how) or None. First few at a time, then many."""
        at, size = 0, 1
        while at < len(tests):
            batch = tests[at:at + size]
            alone = [index for index, test in enumerate(batch) if test.name == MODEL]
            if alone:
                batch = batch[:max(alone[0], 1)]
            found = self.play(library, batch, patience=self.patience(batch))
            if found:
                return found
            at += len(batch)
            size = min(size * 2, 64)
        return None

    @staticmethod
    def patience(tests):
        return GRACE + PATIENCE * sum(test.seconds for test in tests)

    def measure(self, library, test, environment=()):
        """Plays one as it should go; why it does not, or None."""
        started = time.monotonic()
        found = self.play(library, [test], environment)
        test.seconds = time.monotonic() - started
        return found
