"""Builds one mutant after the other and plays scripts until one notices."""

import concurrent.futures
import hashlib
import json
import pathlib
import re
import tempfile
import threading

from player import MODEL
from project import OPTIMISED

NOTICED, SURVIVED, UNBUILDABLE, SAME = "noticed", "survived", "does not compile", "same code"


class Judge:
    def __init__(self, project, world, objects, player, coverage, users, results):
        self.project = project
        self.world = world  # decides, with a mutant and a script, how the script ends
        self.player = player
        self.coverage = coverage
        self.users = users  # of each file, the sources compiled from it
        self.results = results
        self.objects = objects
        self.objects_by_name = {one.name: one for one in objects.values()}
        self.emitters = project.emitters(objects)
        self.lock = threading.Lock()
        self.optimised_known = set()
        self.optimised_locks = {source: threading.Lock() for source in project.sources}
        self.noticers = {}  # (file, enclosing): how often each test has noticed something there
        self.breadths = {name: coverage.breadth(name) for name in player.tests}

    def judge_all(self, mutants, report):
        with concurrent.futures.ThreadPoolExecutor(self.project.jobs) as pool:
            # Mixed: what is known when a run is broken off says something about the whole.
            mixed = sorted(mutants, key=lambda mutant: mutant.digest)
            runs = {pool.submit(self.judge, mutant): mutant for mutant in mixed}
            for run in concurrent.futures.as_completed(runs):
                mutant, result = runs[run], run.result()
                with self.lock:
                    self.results[mutant.identity] = result
                    report(mutant, result)

    def judge(self, mutant):
        earlier = self.results.get(mutant.identity, {})
        key = self.key(mutant)
        if earlier.get("key") != key:
            earlier = {"by": earlier.get("by")}
        elif earlier["verdict"] in (UNBUILDABLE, SAME) or self.still_noticed(earlier):
            return earlier
        with tempfile.TemporaryDirectory(prefix="mutant") as folder:
            return {"key": key} | self.judge_in(pathlib.Path(folder), mutant, earlier)

    def judge_in(self, folder, mutant, earlier):
        tests = self.tests_for(mutant, earlier)
        played = set(earlier.get("played", []))
        todo = [test for test in tests if test.digest not in played]
        survived = {"verdict": SURVIVED, "played": sorted(test.digest for test in tests)}
        if earlier and not todo and "played" in earlier:
            return survived
        library = folder / self.project.library.name
        verdict = self.build(folder, library, mutant)
        if verdict:
            return {"verdict": verdict}
        found = self.player.noticed(library, todo)
        if found:
            test, how = found
            with self.lock:
                counts = self.noticers.setdefault((mutant.file, mutant.enclosing), {})
                counts[test.name] = counts.get(test.name, 0) + 1
            return {"verdict": NOTICED, "by": test.name, "digest": test.digest, "how": how}
        if not played and self.optimised_equal(folder, mutant):
            return {"verdict": SAME}
        return survived

    def key(self, mutant):
        digest = hashlib.sha256(self.world.encode())
        digest.update(repr([edit[2] for edit in mutant.edits]).encode())
        return digest.hexdigest()[:16]

    def still_noticed(self, earlier):
        test = self.player.tests.get(earlier.get("by"))
        return earlier["verdict"] == NOTICED and test and test.digest == earlier["digest"]

    # Building

    def overlay(self, folder, mutant):
        original = self.project.root / mutant.file
        text = mutant.apply(original.read_bytes())
        changed = folder / original.name
        changed.write_bytes(text)
        overlay = folder / "overlay.yaml"
        overlay.write_text(json.dumps({"version": 0, "roots": [
            {"type": "file", "name": str(original), "external-contents": str(changed)}]}))
        return overlay

    def affected(self, mutant):
        """The sources to compile. Of an inline function the linker takes the first it finds."""
        if not mutant.symbol:
            return self.users[mutant.file]
        holders = self.emitters.get(mutant.symbol, [])
        return sorted(holders, key=lambda source: self.objects[source].stat().st_size)[:1]

    def build(self, folder, library, mutant):
        overlay = self.overlay(folder, mutant)
        objects = {source: None for source in self.affected(mutant)} | self.objects
        for source in self.affected(mutant):
            output = folder / self.project.object_name(source)
            if self.project.compile(source, output, overlay).returncode != 0:
                return UNBUILDABLE
            objects[source] = output
        changed = [objects[source] for source in self.affected(mutant)]
        if all(same_bytes(one, self.objects_by_name[one.name]) for one in changed):
            return SAME
        linked = self.project.link([*objects.values(), self.project.header_object], library)
        return None if linked.returncode == 0 else UNBUILDABLE

    def optimised_equal(self, folder, mutant):
        """Whether nobody can tell them apart: optimised, both are the same machine code."""
        for source in self.affected(mutant):
            changed = folder / "optimised.o"
            self.project.compile(source, changed, folder / "overlay.yaml", OPTIMISED)
            if not same_bytes(changed, self.optimised(source)):
                return False
        return True

    def optimised(self, source):
        """The unchanged source's object; made when it is first asked for."""
        with self.optimised_locks[source]:
            output = self.project.work / "optimised" / self.project.object_name(source)
            if source not in self.optimised_known:
                output.parent.mkdir(exist_ok=True)
                self.project.compile(source, output, options=OPTIMISED)
                self.optimised_known.add(source)
            return output

    # What to play, and in which order

    def tests_for(self, mutant, earlier):
        covering = self.covering(mutant)
        words = set(re.findall(r"\w{5,}", " ".join(edit[2] for edit in mutant.edits) + mutant.what))
        words |= {mutant.enclosing.split("::")[-1]}
        with self.lock:
            counts = dict(self.noticers.get((mutant.file, mutant.enclosing), {}))

        def rank(test):
            mentions = sum(word in test.text for word in words)
            return (test.name != earlier.get("by"), -counts.get(test.name, 0), test.name == MODEL,
                    test.seconds > 1, -mentions, self.breadths[test.name], test.name)
        return sorted((self.player.tests[name] for name in covering), key=rank)

    def covering(self, mutant):
        found = self.coverage.tests_of(mutant.file, mutant.first_line, mutant.last_line)
        if found:
            return found
        # No code, or none that is executed: it may have been at compile time.
        named = self.by_name(mutant)
        if found is None and not named:
            return self.player.tests.keys()
        return named or set()

    def by_name(self, mutant):
        """For a constant: the tests that execute a line which names it."""
        name = mutant.enclosing.split("::")[-1]
        if not re.fullmatch(r"\w+", name):
            return None
        found = None
        for file in self.users:
            lines = (self.project.root / file).read_text().split("\n")
            for number, line in enumerate(lines, 1):
                if re.search(rf"\b{name}\b", line):
                    more = self.coverage.tests_of(file, number, number)
                    if more is None and self.is_code_elsewhere(file, number, mutant):
                        return None
                    found = (found or set()) | (more or set())
        return found

    @staticmethod
    def is_code_elsewhere(file, number, mutant):
        """A name that is used where no code is: in another constant, or in a declaration."""
        return (file, number) != (mutant.file, mutant.first_line)


def same_bytes(one, other):
    return one.read_bytes() == other.read_bytes()
