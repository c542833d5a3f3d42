#!/usr/bin/env python3
"""usage: tidy.py BUILD

Runs clang-tidy over the sources that the build in the folder BUILD compiles. A source that has
passed is not read again until it, a header of the project that it includes, or the list of checks
changes."""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

# clang-tidy cannot read what g++ has precompiled.
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S+cmake_pch\S+")
ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ["objc", "platform", "simulator", "tools", "tweak"]
TOOL = "clang-tidy-14"


def sources(build):
    """The C++ files to check, each with how it is compiled: once, even if into several programs."""
    found = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = pathlib.Path(entry["file"])
        inside = file.is_relative_to(ROOT) and file.relative_to(ROOT).parts[0] in FOLDERS
        if inside and file.suffix == ".cpp":
            found.setdefault(file, entry | {"command": PRECOMPILED.sub("", entry["command"])})
    return found


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
    digest = hashlib.sha256((ROOT / ".clang-tidy").read_bytes())
    for file in sorted(files):
        digest.update(str(file).encode() + b"\0" + file.read_bytes())
    return digest.hexdigest()


def check(database, source):
    # The build's compiler is g++, some of whose warnings clang does not know.
    run = subprocess.run([TOOL, "--quiet", "--extra-arg=-Wno-unknown-warning-option", "-p",
                          database, source], text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if run.returncode != 0:
        print(run.stdout, flush=True)
    return run.returncode == 0


def main(build):
    build = build.resolve()
    passed = build / "tidy"  # an empty file for each fingerprint
    passed.mkdir(exist_ok=True)
    dependencies = includes(build)
    found = sources(build)
    (passed / "compile_commands.json").write_text(json.dumps(list(found.values())))
    todo = {}
    for source, entry in found.items():
        words = shlex.split(entry["command"])
        output = words[words.index("-o") + 1]
        if output not in dependencies:
            sys.exit(f"{source} has not been compiled: build it first")
        stamp = passed / fingerprint(dependencies[output])
        if not stamp.exists():
            todo[source] = stamp

    def check_and_stamp(source):
        good = check(passed, source)
        if good:
            todo[source].touch()
        return good

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(check_and_stamp, todo))
    print(f"{results.count(True)} sources of {len(results)} passed")
    return 0 if all(results) else 1


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(pathlib.Path(sys.argv[1])))
