#!/usr/bin/env python3
"""usage: tidy.py BUILD

Runs clang-tidy over the sources that the build in the folder BUILD compiles, several at a time as
one unit, because most of a source is headers. A unit that has passed is not read again until one of
its sources, a header of the project that it includes, or the list of checks changes."""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "cmake"))
import units as apart
FOLDERS = ["objc", "platform", "simulator", "tools", "tweak"]
TOOL = "clang-tidy-14"
COMPILER = "clang++-14"
PLUGIN = ROOT / "scripts/lint/tidy/OwnDeclarations.cpp"
CHECKS = ROOT / ".clang-tidy"
PRECOMPILED = "-Winvalid-pch"  # then come -include and a header
PARAMETER = "--param"


def joined(file):
    """The sources that CMake's file joins; a source of ours alone."""
    if file.parent.name != "Unity":
        return [file]
    return map(pathlib.Path, re.findall(r'^#include "(.+)"$', file.read_text(), re.MULTILINE))


def sources(build):
    """The C++ files to check, each with how it is compiled and into what: once, even if into
    several programs."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        words = shlex.split(entry["command"])
        first = next(at for at, word in enumerate(words) if word.startswith("-"))
        out = words.index("-o")
        for file in joined(pathlib.Path(entry["file"])):
            inside = file.is_relative_to(ROOT) and file.relative_to(ROOT).parts[0] in FOLDERS
            if inside and file.suffix == ".cpp":
                found.setdefault(file, (tuple(words[first:out]), words[out + 1]))
    return found


def units(found):
    """Lists of sources that are compiled alike."""
    groups = {}
    for source, (flags, _) in sorted(found.items()):
        groups.setdefault(flags, []).append(source)
    for group in groups.values():
        yield from apart.units(group)


def includes(build):
    """For each object, the files of the project that it was compiled from."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True, text=True,
                             capture_output=True).stdout
    found = {}
    for line in listing.splitlines():
        if line.startswith("    "):
            file = (build / line.strip()).resolve()
            if file.is_relative_to(ROOT):
                files.append(file)
        elif ":" in line:
            files = found.setdefault(line.split(":")[0], [])
    return found


def fingerprint(files):
    digest = hashlib.sha256()
    for file in [CHECKS, PLUGIN, *sorted(files)]:
        digest.update(str(file).encode() + b"\0" + file.read_bytes())
    return digest.hexdigest()


def short_hash(text):
    return hashlib.sha256(text.encode()).hexdigest()[:16]


class Tidy:
    """Runs the tool; keeps what it needs in a folder."""

    def __init__(self, folder):
        self.folder = folder
        self.plugin = folder / (short_hash(PLUGIN.read_text()) + ".so")
        if not self.plugin.exists():
            subprocess.run(["g++", "-std=c++17", "-shared", "-fPIC", "-fno-rtti", "-isystem",
                            "/usr/lib/llvm-14/include", PLUGIN, "-o", self.plugin], check=True)

    def precompile(self, flags):
        """The flags as the tool takes them: with what g++ has precompiled compiled again, and
        without warnings and parameters that clang does not know."""
        known = [*flags, "-Wno-unknown-warning-option"]
        while PARAMETER in known:
            at = known.index(PARAMETER)
            known[at:at + 2] = []
        if PRECOMPILED not in flags:
            return known
        at = known.index(PRECOMPILED)
        header = known[at + 2]
        known[at:at + 3] = []
        file = self.folder / (short_hash(" ".join(known) + header) + ".pch")
        subprocess.run([COMPILER, *known, "-Wno-pragma-system-header-outside-header", "-x",
                        "c++-header", header, "-o", file], check=True)
        return [*known, "-include-pch", str(file)]

    def run(self, unit, flags):
        """Reads these sources as one: their text, because some checks know less of what is
        included."""
        source = unit[0]
        if len(unit) > 1:
            text = "".join(file.read_text() for file in unit)
            source = self.folder / (short_hash(text) + ".cpp")
            source.write_text(text)
            flags = [*flags, *(f"-iquote{folder}" for folder in {file.parent for file in unit})]
        return subprocess.run([TOOL, "--quiet", f"--load={self.plugin}", f"--config-file={CHECKS}",
                               source, "--", *flags],
                              text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def passes(self, unit, flags):
        """Whether these sources pass, together or else in halves: names that only one source at a
        time can have are no mistake."""
        run = self.run(unit, flags)
        if run.returncode == 0:
            return True
        if len(unit) == 1:
            print(run.stdout, flush=True)
            return False
        half = len(unit) // 2
        # Both: whoever mends something wants to see all.
        return all([self.passes(unit[:half], flags), self.passes(unit[half:], flags)])


def to_check(build, found, folder):
    """The units that have not passed yet, each with the file that will say that it has."""
    dependencies = includes(build)
    for unit in units(found):
        files = set(unit)
        for source in unit:
            compiled = found[source][1]
            if compiled not in dependencies:
                sys.exit(f"{source} has not been compiled: build it first")
            files.update(dependencies[compiled])
        stamp = folder / fingerprint(files)
        if not stamp.exists():
            yield unit, stamp


def main(build):
    build = build.resolve()
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    found = sources(build)
    # The largest first: none of them is to be left for the end.
    left = sorted(to_check(build, found, folder), key=lambda item: -len(item[0]))
    if not left:
        print("every unit has passed before")
        return 0
    tidy = Tidy(folder)

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        given = {found[unit[0]][0] for unit, _ in left}
        flags = dict(zip(given, pool.map(tidy.precompile, given)))

        def check(item):
            unit, stamp = item
            good = tidy.passes(unit, flags[found[unit[0]][0]])
            if good:
                stamp.touch()
            return good

        results = list(pool.map(check, left))
    print(f"{results.count(True)} units of {len(results)} passed")
    return 0 if all(results) else 1


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(pathlib.Path(sys.argv[1])))
