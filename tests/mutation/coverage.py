"""Which script executes which line of the sources."""

import bisect
import concurrent.futures
import hashlib
import re
import shutil
import subprocess
import sys

from project import COVERAGE


class Coverage:
    """Made by playing every script once against a library that counts."""

    def __init__(self, project, player):
        self.project = project
        self.player = player
        self.lines = {}  # (file, line): the blocks of code that begin there
        self.hits = {}  # name of a test: one byte a block
        self.folder = project.work / "coverage"
        self.library = self.folder / project.library.name

    def record(self, world):
        """`world` says what, besides the scripts, decides what they execute. What is known of it
        from an earlier run is not measured again. Gives the names of tests that fail without any
        mutant: they prove nothing, and are not played any more."""
        stamp = self.folder / "world"
        if not stamp.exists() or stamp.read_text() != world:
            shutil.rmtree(self.folder, ignore_errors=True)
            self.folder.mkdir()
            self.build()
            stamp.write_text(world)
        with concurrent.futures.ThreadPoolExecutor(self.project.jobs) as pool:
            runs = pool.map(self.play, self.player.tests.values())
        failed = [name for name in runs if name]
        for name in failed:
            del self.player.tests[name]
        self.read_lines()
        return failed

    def build(self):
        objects = self.project.build_all("covered", COVERAGE)
        probe = self.folder / "Probe.o"
        source = self.project.root / "tests/mutation/Probe.cpp"
        for done in (self.project.compile(source, probe),
                     self.project.link([*objects.values(), probe], self.library)):
            if done.returncode != 0:
                sys.exit(done.stderr)

    def play(self, test):
        """Its name if it does not pass, or None."""
        known = self.folder / (hashlib.sha256(test.text.encode()).hexdigest() + "-" + test.name)
        seconds = known.with_name(known.name + ".seconds")
        if not seconds.exists():
            known.unlink(missing_ok=True)
            blocks = str(self.folder / "blocks")
            variables = {"MUTATION_HITS": str(known), "MUTATION_BLOCKS": blocks}
            if self.player.measure(self.library, test, variables):
                return test.name
            seconds.write_text(str(test.seconds))
        test.seconds = float(seconds.read_text())
        self.hits[test.name] = known.read_bytes() if known.exists() else b""
        return None

    def read_lines(self):
        addresses = [int(line, 16) for line in (self.folder / "blocks").read_text().split()]
        order = sorted(range(len(addresses)), key=addresses.__getitem__)
        ordered = [addresses[block] for block in order]
        listing = subprocess.run(["llvm-dwarfdump-14", "--debug-line", self.library], check=True,
                                 text=True, capture_output=True).stdout
        files, folders = {}, {}
        for line in listing.splitlines():
            row = re.match(r"0x([0-9a-f]+)\s+(\d+)\s+\d+\s+(\d+)", line)
            if row:
                block = bisect.bisect_right(ordered, int(row[1], 16)) - 1
                if block >= 0 and row[2] != "0" and int(row[3]) in files:
                    place = (files[int(row[3])], int(row[2]))
                    self.lines.setdefault(place, set()).add(order[block])
                continue
            if line.startswith("debug_line["):
                files, folders = {}, {}
            folder = re.match(r'include_directories\[\s*(\d+)\] = "(.*)"', line)
            if folder:
                folders[int(folder[1])] = folder[2]
            name = re.match(r"file_names\[\s*(\d+)\]:", line)
            current = int(name[1]) if name else None
            if current is not None:
                number = current
            text = re.match(r'\s+name: "(.*)"', line)
            if text:
                files[number] = text[1]
            within = re.match(r"\s+dir_index: (\d+)", line)
            if within and not files[number].startswith("/"):
                files[number] = f"{folders.get(int(within[1]), '')}/{files[number]}"
            if within:
                files[number] = self.relative(files[number])

    def relative(self, name):
        prefix = f"{self.project.root}/"
        return name.removeprefix(prefix)

    def blocks(self, file, first, last):
        found = set()
        for line in range(first, last + 1):
            found |= self.lines.get((file, line), set())
        return found

    def tests_of(self, file, first, last):
        """Names of the tests that execute one of the lines; None if the lines hold no code."""
        blocks = self.blocks(file, first, last)
        if not blocks:
            return None
        return {name for name, hits in self.hits.items()
                if hits and any(hits[block] for block in blocks)}

    def breadth(self, name):
        """How much a test executes in all."""
        return sum(self.hits[name])
